#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/gnss_satellites.hpp"
#include "ui/instruments/countdown_bar.hpp"
#include "ui/instruments/sky_plot.hpp"
#include "ui/layouts/layout_parts.hpp"
#include "ui/layouts/sensor_parts.hpp"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>

namespace brinewright {

namespace {

// Value in large figures, slider, and the box to type it in.
QGroupBox* Motion_Box(Form_View& View, Frame& Box, Label& Value, Label& Unit, Scroll_Bar& Bar,
                      Text_Box& Text) {
    auto* Grid = new QGridLayout;
    Grid->setVerticalSpacing(rhythm::Base);
    Grid->addWidget(Readout(View, Value, 24, "000.0"), 0, 0);
    Grid->addWidget(View.Make(Unit, "dim"), 0, 1, Qt::AlignLeft | Qt::AlignBottom);
    Grid->addWidget(View.Make(Bar, Qt::Horizontal), 1, 0);
    QLineEdit* Typed = View.Make(Text);
    Typed->setFixedWidth(58);
    Grid->addWidget(Typed, 1, 1);
    return Boxed(View.Make(Box), Grid, rhythm::Gap);
}

QGroupBox* Simulator_Box(Form_View& View, frmPosition& F) {
    auto* Column = new QVBoxLayout;
    auto* Position = new QGridLayout;
    Position->setHorizontalSpacing(rhythm::Gap);
    Position->setVerticalSpacing(rhythm::Base);
    Label* const Titles[] = {&F.lblLatitude, &F.lblStartLat, &F.lblLongitude, &F.lblStartLon};
    for (int I = 0; I < 4; ++I) Position->addWidget(View.Make(*Titles[I], "dim"), I / 2 * 2, I % 2);
    Position->addWidget(Readout(View, F.lblLat, 22, "000\xB0 00.0000' N"), 1, 0);
    Position->addWidget(View.Make(F.txtLat), 1, 1);
    Position->addWidget(Readout(View, F.lblLon, 22, "000\xB0 00.0000' E"), 3, 0);
    Position->addWidget(View.Make(F.txtLon), 3, 1);
    Column->addLayout(Position);
    Column->addWidget(View.Make(F.chkFixOffset));
    QHBoxLayout* Motion = Row();
    Motion->addWidget(Motion_Box(View, F.frmSOG, F.lblSOG, F.lblSOGUnit, F.scrSOG, F.txtSOG));
    Motion->addWidget(Motion_Box(View, F.frmCOG, F.lblCOG, F.lblCOGUnit, F.scrCOG, F.txtCOG));
    Column->addLayout(Motion);
    QHBoxLayout* Noise = Row();
    Noise->addWidget(View.Make(F.chkNoise));
    Noise->addStretch(1);
    Noise->addWidget(View.Make(F.lblMaxNoise, "dim"));
    Noise->addWidget(View.Make(F.cmbNoise));
    Column->addLayout(Noise);
    QHBoxLayout* Accumulated = Row();
    for (const auto& B : F.optAccumulatedNoise.Buttons) Accumulated->addWidget(View.Make(*B));
    Accumulated->addStretch(1);
    Column->addLayout(Accumulated);
    return Boxed(View.Make(F.frmSimulator), Column);
}

QGroupBox* Control_Box(Form_View& View, frmPosition& F) {
    auto* Column = new QVBoxLayout;
    QHBoxLayout* Wide = Row();
    Wide->addWidget(View.Make(F.cmdStart));
    Wide->addWidget(View.Make(F.cmdPause));
    Column->addLayout(Wide);
    Column->addWidget(View.Make(F.cmdArrows));
    QHBoxLayout* Arrows = Row();
    Arrows->addWidget(View.Make(F.lblArrows, "good"));
    Arrows->addWidget(Key_Catcher(View, F.txtDummy));
    Column->addLayout(Arrows);
    return Boxed(View.Make(F.frmSimulatorControl), Column);
}

QLayout* GNS_Row(Form_View& View, frmPosition& F) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(rhythm::Base);
    Label* const Lines[][2] = {{&F.lblModeIndicatorTitle, &F.lblGNS_ModeIndicator},
                               {&F.lblSystemsTitle, &F.lblGNSS},
                               {&F.lblTalkerTitle, &F.lblGNS_Talker}};
    for (int I = 0; I < 3; ++I) {
        Grid->addWidget(View.Make(*Lines[I][0], "dim"), I, 0, Qt::AlignRight);
        QLabel* Value = View.Make(*Lines[I][1]);
        Value->setWordWrap(true);
        Grid->addWidget(Value, I, 1);
    }
    Grid->setColumnStretch(1, 1);
    Grid->addWidget(View.Make(F.cmdGNSS), 0, 2, 3, 1, Qt::AlignVCenter);
    return Grid;
}

QLayout* Quality_Fields(Form_View& View, frmPosition& F) {
    auto* Column = new QVBoxLayout;
    QHBoxLayout* Quality = Row();
    Quality->addWidget(View.Make(F.lblQuality, "dim"));
    Quality->addWidget(View.Make(F.cmbQuality), 1);
    Column->addLayout(Quality);
    Field_Grid Fields(2);
    Fields.Add(View.Make(F.lblSats, "dim"), View.Make(F.cmbSats));
    Fields.Add(View.Make(F.lblHdop, "dim"), View.Make(F.cmbHdop));
    Fields.Add(View.Make(F.lblAge, "dim"), View.Make(F.cmbAge));
    Fields.Add(View.Make(F.lblStnID, "dim"), View.Make(F.txtStnID));
    Fields.Add(View.Make(F.lblAlt, "dim"), View.Make(F.txtAlt));
    Fields.Add(View.Make(F.lblGeoidSep, "dim"), View.Make(F.txtGeoidSep));
    Column->addLayout(Fields.Layout());
    Column->addWidget(View.Make(F.chkDifferential));
    return Column;
}

QGroupBox* Modes_Box(Form_View& View, frmPosition& F) {
    QHBoxLayout* Line = Row();
    Line->addWidget(View.Make(F.lblModeIndicator, "dim"));
    Line->addWidget(View.Make(F.cmbModeIndicator), 1);
    for (const auto& List : F.cmbGLLRMVVTG_Mode) Line->addWidget(View.Make(*List), 1);
    QGroupBox* Box = Boxed(View.Make(F.frmModeIndicator), Line);
    Box->setMinimumWidth(Box->fontMetrics().horizontalAdvance(To_Screen(*F.frmModeIndicator.Caption)) + 28);
    return Box;
}

QGroupBox* Datum_Box(Form_View& View, frmPosition& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* Datums = Row();
    Datums->addWidget(View.Make(F.lblLocalDatum, "dim"));
    Datums->addWidget(View.Make(F.cmbDatum[0]), 1);
    Datums->addWidget(View.Make(F.lblRefDatum, "dim"));
    Datums->addWidget(View.Make(F.cmbDatum[1]), 1);
    Column->addLayout(Datums);
    Column->addWidget(View.Make(F.lblOffset, "dim"));
    QHBoxLayout* Offsets = Row();
    Combo_Box* const Directions[] = {&F.cmbNS, &F.cmbEW, nullptr}; // the altitude has a sign instead
    for (int I = 0; I <= 2; ++I) {
        QLineEdit* Value = View.Make(F.txtOffset[I]);
        Value->setMinimumWidth(Value->sizeHint().width());
        Offsets->addWidget(Value, 1);
        if (!Directions[I]) continue;
        QComboBox* Direction = View.Make(*Directions[I]);
        Direction->setFixedWidth(Direction->fontMetrics().horizontalAdvance(QStringLiteral("W")) + 34);
        Offsets->addWidget(Direction);
    }
    Column->addLayout(Offsets);
    return Boxed(QStringLiteral("Datum (DTM)"), Column);
}

QGridLayout* Box_Grid(Form_View& View, const std::vector<Check_Box*>& Boxes, int Columns) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(2);
    Grid->setVerticalSpacing(2);
    for (std::size_t I = 0; I < Boxes.size(); ++I)
        Grid->addWidget(View.Make(*Boxes[I]), static_cast<int>(I) / Columns, static_cast<int>(I) % Columns);
    return Grid;
}

template <class Array>
std::vector<Check_Box*> All_Of(const Array& Boxes) {
    std::vector<Check_Box*> All;
    for (const auto& B : Boxes) All.push_back(B.get());
    return All;
}

QGroupBox* GSA_Box(Form_View& View, frmPosition& F) {
    auto* Column = new QVBoxLayout;
    QHBoxLayout* Modes = Row();
    for (const auto& [Box, Group] :
         {std::pair(&F.frmMode3D2D, &F.optMode3D2D), {&F.frmModeAutMan, &F.optModeAutMan}}) {
        QHBoxLayout* Choices = Row();
        for (const auto& B : Group->Buttons) Choices->addWidget(View.Make(*B));
        Modes->addWidget(Boxed(View.Make(*Box), Choices, rhythm::Gap));
    }
    Column->addLayout(Modes);
    Field_Grid Dilution(2);
    Dilution.Add(View.Make(F.lblPdop, "dim"), View.Make(F.cmbPdop));
    Dilution.Add(View.Make(F.lblVdop, "dim"), View.Make(F.cmbVdop));
    Column->addLayout(Dilution.Layout());
    Column->addWidget(Boxed(View.Make(F.frmSvs), Box_Grid(View, All_Of(F.chkSv), 8), rhythm::Gap));
    auto* GLONASS = new QVBoxLayout;
    GLONASS->addLayout(Box_Grid(View, All_Of(F.chkGLSv), 8));
    GLONASS->addWidget(View.Make(F.lblGLSvNote, "dim"));
    Column->addWidget(Boxed(View.Make(F.frmGlonassSvs), GLONASS, rhythm::Gap));
    auto* SBAS = new QGridLayout;
    SBAS->setVerticalSpacing(2);
    const struct {
        Label& Name;
        int First, Last;
    } Systems[] = {{F.lblEGNOS, 0, 2}, {F.lblWAAS, 3, 4}, {F.lblMSAS, 5, 6}, {F.lblGAGAN, 7, 7}};
    for (int I = 0; I < 4; ++I) {
        SBAS->addWidget(View.Make(Systems[I].Name, "dim"), I, 0);
        for (int Box = Systems[I].First; Box <= Systems[I].Last; ++Box)
            SBAS->addWidget(View.Make(F.chkWAASSv[Box]), I, Box - Systems[I].First + 1);
    }
    SBAS->addWidget(View.Make(F.lblWAASSvNote, "dim"), 4, 0, 1, 4);
    Column->addWidget(Boxed(View.Make(F.frmSBAS), SBAS, rhythm::Gap));
    QLabel* Warning = View.Make(F.lblGSAWarning, "warn");
    Warning->setWordWrap(true);
    Column->addWidget(Warning);
    Column->addStretch(1);
    return Boxed(View.Make(F.frmGSA), Column, rhythm::Gap);
}

// The satellites of the window in the order of its table: those in use, then the others in view.
std::vector<Sky_Mark> Read_Sky(const Simulator_State& State, const frmPosition& F) {
    std::vector<Sky_Mark> Marks;
    const int In_Use = F.GGA_Record.Sats;
    for (int Row_Number = 1; Row_Number <= F.hfgGSV.Rows() && Row_Number <= 88; ++Row_Number) {
        const bool Used = Row_Number <= In_Use;
        const std::int16_t Identifier =
            Used ? State.Of<GNSS_State>().Svs_In_Use[Row_Number]
                 : State.Of<GNSS_State>().Svs_In_View[std::max(Row_Number - In_Use, 1)];
        if (!Is_In_Sky(State, Identifier)) continue;
        const Sky_Satellite& S = State.Of<GNSS_State>().Sky_Table[Identifier];
        Marks.push_back({F.hfgGSV.At(Row_Number - 1, 0).Text, S.Elevation, S.Azimuth, S.SNR, Used});
    }
    return Marks;
}

QGroupBox* GSV_Box(Form_View& View, frmPosition& F) {
    auto* Column = new QVBoxLayout;
    QHBoxLayout* In_View = Row();
    In_View->addWidget(View.Make(F.lblInView, "dim"));
    In_View->addWidget(View.Make(F.cmbInView));
    In_View->addStretch(1);
    Column->addLayout(In_View);
    auto* Plot = new Instrument<Sky_Reading>(
        View.Colours, Paint_Sky, [&State = View.Sim.State, &F] { return Read_Sky(State, F); },
        QSize(190, 170),
        QStringLiteral(
            "Satellites in view, north up, the zenith in the middle; filled: in use. Green: 25 dB and "
            "more, amber: 12 dB and more, red: less"));
    Plot->setMinimumSize(150, 150);
    Column->addWidget(Plot, 3);
    QTableView* Table = View.Make(F.hfgGSV);
    Table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    Table->verticalHeader()->setDefaultSectionSize(20);
    Table->setMinimumSize(190, 110);
    Table->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    Column->addWidget(Table, 2);
    View.When_Shown([Plot] { Plot->Look(); });
    return Boxed(View.Make(F.frmGSV), Column, rhythm::Gap);
}

QGroupBox* GST_Box(Form_View& View, frmPosition& F) {
    auto* Grid = new QGridLayout;
    Grid->setVerticalSpacing(2);
    for (int I = 0; I <= 6; ++I) {
        Grid->addWidget(View.Make(F.lblGST[I]), I, 0);
        QLineEdit* Box = View.Make(F.txtGST[I]);
        Box->setFixedWidth(64);
        Grid->addWidget(Box, I, 1);
    }
    Grid->addWidget(View.Make(F.lblGSTIncrease, "dim"), 7, 0, 1, 2);
    Grid->addWidget(View.Make(F.lblGSTDecrease, "dim"), 8, 0, 1, 2);
    Grid->setRowStretch(9, 1);
    return Boxed(View.Make(F.frmGST), Grid, rhythm::Gap);
}

QGroupBox* Fix_Box(Form_View& View, frmPosition& F) {
    QGroupBox* Main = View.Make(F.frmGGA);
    // A group box takes its margins from the style when it is made, before it had the name that the style
    // knows.
    Main->ensurePolished();
    QEvent Named(QEvent::StyleChange);
    QCoreApplication::sendEvent(Main, &Named);
    auto* Columns = new QHBoxLayout(Main);
    Columns->setContentsMargins(0, 0, 0, 0);
    Columns->setSpacing(rhythm::Gap);
    auto* Left = new QVBoxLayout;
    Left->setSpacing(rhythm::Base);
    Left->addWidget(View.Make(F.lblShipControl, "readout"));
    Left->addWidget(Simulator_Box(View, F));
    Left->addWidget(Control_Box(View, F));
    Left->addWidget(Boxed(QStringLiteral("GNS"), GNS_Row(View, F)));
    Left->addWidget(Datum_Box(View, F));
    Left->addStretch(1);
    auto* Right = new QVBoxLayout;
    Right->setSpacing(rhythm::Base);
    Right->addWidget(Messages_Box(View, F.frameNMEAMessages, F.Sentences));
    Right->addLayout(
        Routing_Row(View, F.cmbComPort, F.txtTalker,
                    {{&F.lblDecimalsPosition, &F.cmbDecimals}, {&F.lblDecimalsTime, &F.cmbDecimalsTime}},
                    &F.lblDecimals));
    Right->addWidget(Boxed(QStringLiteral("Fix quality"), Quality_Fields(View, F)));
    Right->addWidget(Modes_Box(View, F));
    Right->addStretch(1);
    Columns->addLayout(Left);
    Columns->addLayout(Right);
    return Main;
}

} // namespace

void Lay_Out_Position(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmPosition&>(Shown);
    QVBoxLayout* Column = Column_In(&View, rhythm::Gap);
    Column->setSpacing(rhythm::Base);
    Column->addWidget(State_Line(View, F.cmdStart, F.cmdPause, F.timer_Simulator, F.Instance));
    QHBoxLayout* Frames = Row();
    Frames->addWidget(Fix_Box(View, F));
    QGroupBox* const Wide[] = {GSA_Box(View, F), GSV_Box(View, F), GST_Box(View, F)};
    Frames->addWidget(Wide[0]);
    auto* Last = new QVBoxLayout; // GST stands below GSV, so that all frames fit a small display
    Last->addWidget(Wide[1], 1);
    Last->addWidget(Wide[2]);
    Frames->addLayout(Last);
    Column->addLayout(Frames, 1);
    Column->addWidget(Ticker(View, F.Instance));
    // The frames to the right are there only when the window is wide enough for them.
    View.When_Shown([&F, Wide] {
        int Needed = F.frmGGA.Width;
        const Frame* const Frames_In_Order[] = {&F.frmGSA, &F.frmGSV, &F.frmGST};
        for (int I = 0; I < 3; ++I) {
            Needed += Frames_In_Order[I]->Width;
            Wide[I]->setVisible(*Frames_In_Order[I]->Visible && static_cast<int>(F.Width) >= Needed);
        }
    });
}

} // namespace brinewright
