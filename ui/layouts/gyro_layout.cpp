#include "sensors/gyro/frm_gyro.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/control_text.hpp"
#include "ui/instruments/attitude_indicator.hpp"
#include "ui/layouts/layout_parts.hpp"
#include "ui/layouts/sensor_parts.hpp"

namespace brinewright {

namespace {

constexpr int Typed_Width = 58;

// A bar with its scale, and beside it the box to type the value in.
QGroupBox* Lying_Box(Form_View& View, Frame& Box, Scroll_Bar& Bar, const Scale_Steps& Steps, Text_Box& Text,
                     QWidget* Unit) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(0);
    Grid->addLayout(Scaled(View, Bar, Qt::Horizontal, Steps), 0, 0, 2, 1);
    QLineEdit* Typed = View.Make(Text);
    Typed->setFixedWidth(Typed_Width);
    Grid->addWidget(Typed, 0, 1);
    Grid->addWidget(Unit, 1, 1);
    Grid->setColumnStretch(0, 1);
    return Boxed(View.Make(Box), Grid, rhythm::Gap);
}

// What the sentences carry: with noise the values last sent, otherwise those that are set.
Attitude_Reading Read_Attitude(const frmGyro& F) {
    const bool Sent = F.chkNoise.Value() &&
                      (F.timer_ATT.Interval_ms() > 0 || F.timer_PRDID.Interval_ms() > 0) &&
                      !F.lblCurrentRoll.Caption->empty();
    if (!Sent) return {F.Roll_Value, F.Pitch_Value};
    return {Number_Shown(*F.lblCurrentRoll.Caption), Number_Shown(*F.lblCurrentPitch.Caption)};
}

QGroupBox* Attitude_Box(Form_View& View, frmGyro& F) {
    auto* Grid = new QGridLayout;
    Grid->setSpacing(rhythm::Gap);
    auto* Pitch = new QVBoxLayout;
    Pitch->setSpacing(rhythm::Base);
    Pitch->addLayout(Scaled(View, F.scrPitch, Qt::Vertical, {10, 50}));
    QLineEdit* Typed = View.Make(F.txtPitch);
    Typed->setFixedWidth(Typed_Width);
    Pitch->addWidget(Typed);
    Grid->addWidget(Boxed(View.Make(F.frmPitch), Pitch, rhythm::Gap), 0, 0);
    auto* Ball = new Instrument<Attitude_Reading>(
        View.Colours, Paint_Attitude, [&F] { return Read_Attitude(F); }, QSize(200, 210),
        QStringLiteral("The horizon as seen over the bow. Roll in degrees, to starboard when the pointer "
                       "hangs to the right; pitch in degrees, bow up when the horizon sinks"));
    View.When_Shown([Ball] { Ball->Look(); });
    Grid->addWidget(Ball, 0, 1);
    Grid->addWidget(
        Lying_Box(View, F.frmRoll, F.scrRoll, {10, 50}, F.txtRoll, Caption(QStringLiteral("degrees"))), 1, 0,
        1, 2);
    Grid->setRowStretch(0, 1);
    Grid->setColumnStretch(1, 1);
    return Boxed(QStringLiteral("Attitude"), Grid);
}

QGroupBox* Simulator_Box(Form_View& View, frmGyro& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    Column->addWidget(
        Lying_Box(View, F.frmHDG, F.scrHDG, {150, 900}, F.txtHDG, Caption(QStringLiteral("degrees"))));
    Column->addWidget(
        Lying_Box(View, F.frmROT, F.scrROT, {50, 100}, F.txtROT, View.Make(F.lblROTUnit, "dim")));
    QHBoxLayout* Noise = Row();
    Noise->addWidget(View.Make(F.chkNoise));
    Noise->addStretch(1);
    Noise->addWidget(View.Make(F.lblMaxNoise, "dim"));
    Column->addLayout(Noise);
    Field_Grid Lists(2);
    for (int I = 0; I <= 3; ++I) Lists.Add(View.Make(F.lblNoise[I], "dim"), View.Make(F.cmbNoise[I]));
    Column->addLayout(Lists.Layout());
    QHBoxLayout* Accumulated = Row();
    for (const auto& B : F.optAccumulatedNoise.Buttons) Accumulated->addWidget(View.Make(*B));
    Accumulated->addStretch(1);
    Column->addLayout(Accumulated);
    return Boxed(View.Make(F.frmSimulator), Column);
}

QGroupBox* Control_Box(Form_View& View, frmGyro& F) {
    QHBoxLayout* Wide = Row();
    Wide->addWidget(View.Make(F.cmdStart));
    Wide->addWidget(View.Make(F.cmdPause));
    return Boxed(View.Make(F.frmSimulatorControl), Wide);
}

QGroupBox* Current_Box(Form_View& View, frmGyro& F) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Margin);
    Grid->setVerticalSpacing(0);
    const struct {
        Label &Title, &Value;
        const char* Unit;
    } Values[] = {{F.lblHdgTitle, F.lblCurrentHdg, "deg"},
                  {F.lblRotTitle, F.lblCurrentRot, "deg/min"},
                  {F.lblRollTitle, F.lblCurrentRoll, "deg"},
                  {F.lblPitchTitle, F.lblCurrentPitch, "deg"}};
    for (int I = 0; I < 4; ++I) {
        Grid->addWidget(View.Make(Values[I].Title, "dim"), I / 2 * 2, I % 2);
        Grid->addLayout(
            Readout_Row(View, Values[I].Value, 24, "-000.00", Caption(QString::fromLatin1(Values[I].Unit))),
            I / 2 * 2 + 1, I % 2);
    }
    return Boxed(View.Make(F.frmCurrent), Grid);
}

QHBoxLayout* Note(Form_View& View, Label& Text) {
    QHBoxLayout* Line = Row();
    Line->addWidget(View.Make(Text, "dim"));
    return Line;
}

} // namespace

void Lay_Out_Gyro(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmGyro&>(Shown);
    QVBoxLayout* Column = Column_In(&View, rhythm::Gap);
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* First = Row();
    First->addWidget(State_Line(View, F.cmdStart, F.cmdPause, F.timer_Simulator, F.Form_Index), 1);
    First->addWidget(View.Make(F.lblShipControl, "dim"));
    Column->addLayout(First);
    QHBoxLayout* Columns = Row();
    auto* Left = new QVBoxLayout;
    Left->setSpacing(rhythm::Base);
    Left->addWidget(Current_Box(View, F));
    Left->addWidget(Attitude_Box(View, F), 1);
    Left->addWidget(Control_Box(View, F));
    Columns->addLayout(Left, 1);
    auto* Right = new QVBoxLayout;
    Right->setSpacing(rhythm::Base);
    Right->addWidget(Simulator_Box(View, F));
    Right->addWidget(Messages_Box(View, F.frameNMEAMessages, F.Sentences,
                                  {{&F.chkATT, [&] { return Note(View, F.lblATT); }},
                                   {&F.chkPRDID, [&] { return Note(View, F.lblPRDID); }}}));
    Right->addLayout(Routing_Row(View, F.cmbComPort, F.txtTalker, {{&F.lblDecimals, &F.cmbDecimals}}));
    QHBoxLayout* Mode = Row();
    Mode->addWidget(View.Make(F.lblModeIndicator, "dim"));
    Mode->addWidget(View.Make(F.cmbModeIndicator), 1);
    Right->addLayout(Mode);
    Right->addStretch(1);
    Columns->addLayout(Right, 1);
    Column->addLayout(Columns, 1);
    Column->addWidget(Ticker(View, F.Form_Index));
}

} // namespace brinewright
