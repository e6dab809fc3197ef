#include "sensors/gyro/gyro_state.hpp"
#include "sensors/wind/frm_wind.hpp"
#include "sensors/wind/wind_state.hpp"
#include "ui/instruments/wind_dial.hpp"
#include "ui/layouts/layout_parts.hpp"
#include "ui/layouts/sensor_parts.hpp"

namespace brinewright {

namespace {

Wind_Reading Read_Wind(const Simulator_State& S, const frmWind& F) {
    return {F.Relative_Dir,
            F.Relative_Speed,
            S.Of<Wind_State>().Wind_Direction[F.Instance],
            S.Of<Wind_State>().Wind_Speed[F.Instance],
            S.Of<Gyro_State>().Gyro_HDG[F.Instance],
            F.cmbUnits.Text()};
}

// Follows the list of units, as the labels of the window do that stand beside other speeds.
QLabel* Unit_Now(Form_View& View, const frmWind& F) {
    QLabel* Unit = Caption({});
    View.When_Shown([&F, Unit] { Unit->setText(To_Screen(F.cmbUnits.Text())); });
    Unit->setMinimumWidth(Unit->fontMetrics().horizontalAdvance(QStringLiteral("knots")));
    return Unit;
}

QGroupBox* Direction_Box(Form_View& View, frmWind& F) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(0);
    Grid->addLayout(Scaled(View, F.scrHDG, Qt::Horizontal, {150, 900}), 0, 0, 2, 1);
    QLineEdit* Typed = View.Make(F.txtHDG);
    Typed->setFixedWidth(58);
    Grid->addWidget(Typed, 0, 1);
    Grid->addWidget(View.Make(F.lblHDGUnit, "dim"), 1, 1);
    return Boxed(View.Make(F.frmTrueWindDir), Grid);
}

QGroupBox* Speed_Box(Form_View& View, frmWind& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* First = Row();
    First->addWidget(Readout(View, F.lblSpeed, 26, "00.0"));
    First->addWidget(View.Make(F.lblUnit[0], "dim"), 0, Qt::AlignLeft | Qt::AlignBottom);
    First->addStretch(1);
    First->addWidget(View.Make(F.lblSpeedUnit, "dim"));
    First->addWidget(View.Make(F.cmbUnits));
    Column->addLayout(First);
    QHBoxLayout* Second = Row();
    Second->addLayout(Scaled(View, F.scrSpeed, Qt::Horizontal, {10, 100}));
    QLineEdit* Typed = View.Make(F.txtSpeed);
    Typed->setFixedWidth(58);
    Second->addWidget(Typed, 0, Qt::AlignTop);
    Column->addLayout(Second);
    return Boxed(View.Make(F.frmTrueWindSpd), Column);
}

QGroupBox* Relative_Box(Form_View& View, frmWind& F) {
    QHBoxLayout* Line = Row();
    Line->addLayout(Readout_Row(View, F.lblRelativeDir, 26, "000", Caption(QStringLiteral("deg"))));
    Line->addLayout(Readout_Row(View, F.lblRelativeSpeed, 26, "00", View.Make(F.lblUnit[1], "dim")));
    Line->addWidget(View.Make(F.lblRelativeWind, "dim"), 0, Qt::AlignBottom);
    return Boxed(View.Make(F.frmRelativeWind), Line);
}

QGroupBox* Sent_Box(Form_View& View, frmWind& F) {
    QHBoxLayout* Line = Row();
    Line->addLayout(Readout_Row(View, F.lblWindAngle, 26, "000.00", Caption(QStringLiteral("deg"))));
    Line->addLayout(Readout_Row(View, F.lblWindSpeed, 26, "00.00", Unit_Now(View, F)));
    Line->addWidget(View.Make(F.chkInvalid), 0, Qt::AlignBottom);
    return Boxed(View.Make(F.frmCurrentValue), Line);
}

QLayout* Reference_Choice(Form_View& View, frmWind& F) {
    QHBoxLayout* Line = Row();
    for (const auto& B : F.optRef.Buttons) Line->addWidget(View.Make(*B));
    return Line;
}

QLayout* Variation(Form_View& View, frmWind& F) {
    QHBoxLayout* Line = Row();
    Line->addWidget(View.Make(F.lblMagDev));
    Line->addWidget(View.Make(F.lblShipSetup, "dim"));
    Line->addStretch(1);
    return Line;
}

} // namespace

void Lay_Out_Wind(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmWind&>(Shown);
    QVBoxLayout* Column = Column_In(&View, rhythm::Gap);
    Column->setSpacing(rhythm::Base);
    Column->addWidget(State_Line(View, F.Sentences, false, F.Form_Index));
    QHBoxLayout* Columns = Row();
    auto* Left = new QVBoxLayout;
    Left->setSpacing(rhythm::Base);
    auto* Dial = new Instrument<Wind_Reading>(
        View.Colours, Paint_Wind_Dial, [&S = View.Sim.State, &F] { return Read_Wind(S, F); }, QSize(264, 300),
        QStringLiteral("Where the wind comes from, bow up, in degrees off the bow. Filled arrow: apparent "
                       "wind; open arrow: true wind, whose figure counts from north"));
    View.When_Shown([Dial] { Dial->Look(); });
    Left->addWidget(Dial, 1);
    Left->addWidget(Relative_Box(View, F));
    Columns->addLayout(Left, 1);
    auto* Right = new QVBoxLayout;
    Right->setSpacing(rhythm::Base);
    Right->addWidget(Direction_Box(View, F));
    Right->addWidget(Speed_Box(View, F));
    Right->addLayout(Noise_Row(View, F.chkNoise,
                               {{&F.lblMaxNoise[0], &F.cmbNoise[0], Caption(QStringLiteral("deg"))},
                                {&F.lblMaxNoise[1], &F.cmbNoise[1], Unit_Now(View, F)}}));
    Right->addWidget(Sent_Box(View, F));
    Right->addWidget(Messages_Box(View, F.frameNMEAMessages, F.Sentences,
                                  {{&F.Sentences["MWV"].Box, [&] { return Reference_Choice(View, F); }},
                                   {&F.Sentences["MWD"].Box, [&] { return Variation(View, F); }}}));
    Right->addLayout(Routing_Row(View, F.cmbComPort, F.txtTalker));
    Right->addStretch(1);
    Columns->addLayout(Right);
    Column->addLayout(Columns, 1);
    Column->addWidget(Ticker(View, F.Form_Index));
}

} // namespace brinewright
