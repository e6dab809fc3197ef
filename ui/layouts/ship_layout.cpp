#include "ownship/navdata_state.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "shell/state/shell_state.hpp"
#include "ui/instruments/compass_rose.hpp"
#include "ui/instruments/rate_of_turn_bar.hpp"
#include "ui/instruments/slider_scale.hpp"
#include "ui/layouts/layout_parts.hpp"
#include "ui/layouts/sensor_parts.hpp"

namespace brinewright {

namespace {

constexpr int Beside_Slider = 9; // so that its scale stands below that of the bar

Compass_Reading Read_Compass(const Simulator_State& S) {
    Compass_Reading Now;
    Now.Heading_deg = static_cast<float>(S.Of<Navdata_State>().Nav_HDG);
    if (S.Of<Navdata_State>().Nav_SOG != 0)
        Now.Course_deg = static_cast<float>(S.Of<Navdata_State>().Nav_COG);
    return Now;
}

// With noise what the sensors were given, otherwise what the slider says.
Turn_Reading Read_Turn(const Simulator_State& S, const frmShip& F) {
    const bool Noisy = F.cmbROTNoise.List_Index() > 0;
    return {static_cast<float>(Noisy ? S.Of<Gyro_State>().Gyro_ROT[1] : S.Of<Navdata_State>().Nav_Rudder),
            static_cast<float>(S.Of<Navdata_State>().Max_Rudder)};
}

QLayout* Ship_State_Line(Form_View& View, frmShip& F) {
    QHBoxLayout* Line = Row();
    auto* State = new QLabel;
    Line->addWidget(State);
    Line->addStretch(1);
    Line->addWidget(View.Make(F.lblFreeze, "warn"));
    Line->addWidget(View.Make(F.lblPause, "warn"));
    View.When_Shown([&View, &F, State] {
        const Simulator_State& S = View.Sim.State;
        const bool Moves = S.Of<Navdata_State>().Nav_SOG != 0;
        State->setText(QString::fromLatin1(S.Of<Shell_State>().Freeze_Active ? "Frozen"
                                           : Moves                           ? "Under way"
                                                                             : "Stopped"));
        Show_State(State, "role", S.Of<Shell_State>().Freeze_Active ? "warn" : Moves ? "good" : "dim");
        for (const auto& [Key, Active] : {std::pair(&F.cmdFreeze, S.Of<Shell_State>().Freeze_Active),
                                          {&F.cmdPause, S.Of<Shell_State>().Pause_Active}})
            Show_State(View.Widget_Of(*Key), "state", Active ? "warn" : "");
    });
    return Line;
}

QGroupBox* Throttle_Box(Form_View& View, frmShip& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    Column->addWidget(View.Make(F.lblAhead, "dim"));
    Column->addLayout(Scaled(View, F.sldThrottle, Qt::Vertical, {5, 25, 1, true}), 1);
    Column->addWidget(View.Make(F.lblAstern, "dim"));
    Column->addWidget(Readout(View, F.lblThrottle, 16, "100 % astern"));
    return Boxed(View.Make(F.frameThrottle), Column);
}

QWidget* Rudder_Scale(Form_View& View, frmShip& F) {
    std::vector<Slider_Scale::Placed_Label> Labels;
    constexpr int Per_Side = 3;
    for (int I = 0; I <= 2 * Per_Side; ++I) {
        const int Place = I <= Per_Side ? -I : I - Per_Side; // 1 to 3 to port, 4 to 6 to starboard
        Labels.push_back({0.5 + 0.5 * Place / Per_Side, View.Make(F.lblRudderTick[I], "dim")});
    }
    auto* Scale = new Slider_Scale(
        View.Colours, Qt::Horizontal, 26,
        [&F] {
            const int Range = *F.sldRudder.Max - *F.sldRudder.Min;
            return Slider_Scale_Reading{
                Qt::Horizontal, Range > 0 ? static_cast<double>(F.sldRudder.Tick_Step) / Range : 1, 0.5, {}};
        },
        Labels);
    View.When_Shown([Scale] { Scale->Look(); });
    return Scale;
}

QGroupBox* Turn_Box(Form_View& View, frmShip& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* Value = Row();
    QLabel* Rate = Readout(View, F.lblRudder, 26, "000.00");
    Rate->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Value->addWidget(Rate);
    Value->addWidget(View.Make(F.lblRudderUnit, "dim"), 0, Qt::AlignBottom);
    Value->addStretch(1);
    Value->addWidget(View.Make(F.cmdZeroRudder));
    Column->addLayout(Value);
    auto* Bar = new Instrument<Turn_Reading>(
        View.Colours, Paint_Rate_Of_Turn, [&S = View.Sim.State, &F] { return Read_Turn(S, F); },
        QSize(260, 36), QStringLiteral("Rate of turn in degrees per minute, to port or to starboard"));
    View.When_Shown([Bar] { Bar->Look(); });
    Column->addWidget(Bar);
    auto* Slider_Column = new QVBoxLayout;
    Slider_Column->setSpacing(0);
    Slider_Column->setContentsMargins(Beside_Slider, 0, Beside_Slider, 0);
    Slider_Column->addWidget(View.Make(F.sldRudder, Qt::Horizontal));
    Slider_Column->addWidget(Rudder_Scale(View, F));
    Column->addLayout(Slider_Column);
    return Boxed(View.Make(F.frameRudder), Column);
}

QLayout* Middle(Form_View& View, frmShip& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    auto* Speeds = new QGridLayout;
    Speeds->setVerticalSpacing(0);
    Speeds->addWidget(View.Make(F.lblSOGTitle, "dim"), 0, 0);
    Speeds->addWidget(Readout(View, F.lblSOG, 28, "-00.00 knot"), 1, 0);
    Speeds->addWidget(View.Make(F.lblCOGTitle, "dim"), 0, 1);
    Speeds->addWidget(Readout(View, F.lblCOG, 28, "000.00 deg"), 1, 1);
    Column->addLayout(Speeds);
    auto* Rose = new Instrument<Compass_Reading>(
        View.Colours, Paint_Compass_Rose, [&S = View.Sim.State] { return Read_Compass(S); }, QSize(262, 262),
        QStringLiteral("Heading up, in degrees from true north. Filled triangle: heading; open triangle: "
                       "course over ground"));
    View.When_Shown([Rose] { Rose->Look(); });
    Column->addWidget(Rose, 1);
    return Column;
}

QGroupBox* Positions_Box(Form_View& View, frmShip& F) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Margin);
    Grid->setVerticalSpacing(rhythm::Base);
    Label* const Titles[] = {&F.lblPos1, &F.lblPos2};
    for (int I = 0; I <= 1; ++I) {
        Grid->addWidget(View.Make(*Titles[I], "dim"), I, 0);
        Grid->addWidget(Readout(View, F.lblLat[I], 14, "00\xB0 00' 00.000\" N"), I, 1);
        Grid->addWidget(Readout(View, F.lblLon[I], 14, "000\xB0 00' 00.000\" E"), I, 2);
    }
    Grid->setColumnStretch(1, 1);
    return Boxed(QStringLiteral("Position"), Grid);
}

QGroupBox* Sensors_Box(Form_View& View, frmShip& F) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Margin);
    Grid->setVerticalSpacing(rhythm::Base);
    const struct {
        Label &Title, &Value;
        const char* Widest;
    } Values[] = {{F.lblGyro1, F.lblGyro[0], "000.00 deg"},
                  {F.lblLog1, F.lblLog[0], "-00.0 knot"},
                  {F.lblGyro2, F.lblGyro[1], "000.00 deg"},
                  {F.lblLog2, F.lblLog[1], "-00.0 knot"}};
    for (int I = 0; I < 4; ++I) {
        Grid->addWidget(View.Make(Values[I].Title, "dim"), I / 2, I % 2 * 2);
        Grid->addWidget(Readout(View, Values[I].Value, 14, Values[I].Widest), I / 2, I % 2 * 2 + 1);
    }
    return Boxed(QStringLiteral("Gyro and log"), Grid);
}

QGroupBox* Current_Box(Form_View& View, frmShip& F) {
    QHBoxLayout* Line = Row();
    Line->addWidget(View.Make(F.lblSetTitle, "dim"));
    Line->addWidget(Readout(View, F.lblSet, 14, "000.0 deg"), 1);
    Line->addWidget(View.Make(F.lblDriftTitle, "dim"));
    Line->addWidget(Readout(View, F.lblDrift, 14, "00.0 knot"), 1);
    return Boxed(View.Make(F.frameCurrent), Line);
}

QGroupBox* Noise_Box(Form_View& View, frmShip& F) {
    Field_Grid Lists(2);
    const std::pair<Label*, Combo_Box*> Noises[] = {{&F.lblSOGNoise, &F.cmbSOGNoise},
                                                    {&F.lblROTNoise, &F.cmbROTNoise}};
    for (const auto& [Title, List] : Noises) Lists.Add(View.Make(*Title, "dim"), View.Make(*List));
    return Boxed(QStringLiteral("Noise"), Lists.Layout());
}

QGroupBox* Steering_Box(Form_View& View, frmShip& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* Heading = Row();
    Heading->addWidget(View.Make(F.lblHDG, "dim"));
    Heading->addWidget(View.Make(F.cmbHDG), 1);
    QPushButton* Set_SOG = View.Make(F.cmdSetSOG);
    QSizePolicy Kept = Set_SOG->sizePolicy();
    Kept.setRetainSizeWhenHidden(true); // it goes while the keyboard steers, and the rest stays where it is
    Set_SOG->setSizePolicy(Kept);
    Heading->addWidget(Set_SOG);
    Column->addLayout(Heading);
    Column->addWidget(View.Make(F.cmdArrows));
    QHBoxLayout* Keys = Row();
    Keys->addWidget(View.Make(F.lblArrows, "good"));
    Keys->addWidget(Key_Catcher(View, F.txtDummy));
    Keys->addStretch(1);
    Keys->addWidget(View.Make(F.lblJoystick, "dim"));
    Column->addLayout(Keys);
    return Boxed(QStringLiteral("Steering"), Column);
}

// The help for the keyboard, and in its place the help for the joystick.
QLayout* Help(Form_View& View, frmShip& F) {
    auto* Column = new QVBoxLayout;
    const auto Add = [&](Frame& Box, const std::vector<Label*>& Lines) {
        auto* Grid = new QGridLayout;
        Grid->setVerticalSpacing(2);
        int Place = 0;
        for (Label* Line : Lines) {
            Grid->addWidget(View.Make(*Line), Place / 2, Place % 2);
            ++Place;
        }
        Column->addWidget(Boxed(View.Make(Box), Grid));
    };
    Add(F.frameArrows, {&F.lblArrowsStep, &F.lblArrowsShift, &F.lblArrowsAlt, &F.lblArrowsCtrl});
    std::vector<Label*> Buttons;
    for (const auto& Line : F.lblJoystickButton) Buttons.push_back(Line.get());
    Add(F.frameJoystick, Buttons);
    return Column;
}

} // namespace

void Lay_Out_Ship(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmShip&>(Shown);
    QVBoxLayout* Column = Column_In(&View, rhythm::Gap);
    Column->setSpacing(rhythm::Gap);
    Column->addLayout(Ship_State_Line(View, F));
    QHBoxLayout* Columns = Row();
    Columns->setSpacing(rhythm::Margin);
    Columns->addWidget(Throttle_Box(View, F));
    auto* Centre = new QVBoxLayout;
    Centre->setSpacing(rhythm::Base);
    Centre->addLayout(Middle(View, F), 1);
    Centre->addWidget(Turn_Box(View, F));
    Columns->addLayout(Centre, 1);
    auto* Right = new QVBoxLayout;
    Right->setSpacing(rhythm::Base);
    // The help comes and goes; the boxes share what it leaves.
    Right->addWidget(Positions_Box(View, F), 1);
    Right->addWidget(Sensors_Box(View, F), 1);
    Right->addWidget(Current_Box(View, F), 1);
    Right->addWidget(Noise_Box(View, F), 1);
    Right->addWidget(Steering_Box(View, F), 1);
    Right->addLayout(Help(View, F));
    Columns->addLayout(Right);
    Column->addLayout(Columns, 1);
    QHBoxLayout* Wide = Row();
    for (Button* Key : {&F.cmdZero, &F.cmdFreeze, &F.cmdPause}) Wide->addWidget(View.Make(*Key), 1);
    Column->addLayout(Wide);
}

} // namespace brinewright
