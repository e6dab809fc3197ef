#include "sensors/log/frm_log.hpp"
#include "ui/layouts/layout_parts.hpp"
#include "ui/layouts/sensor_parts.hpp"

namespace brinewright {

namespace {

constexpr int Least_Slider = 130;

QGroupBox* Speed_Box(Form_View& View, frmLog& F) {
    QHBoxLayout* Line = Row();
    Line->addLayout(Scaled(View, F.scrSpeed, Qt::Vertical, {10, 100}));
    auto* Values = new QVBoxLayout;
    Values->setSpacing(rhythm::Base);
    Values->addWidget(Readout(View, F.lblSpeed, 28, "00.0"));
    Values->addWidget(View.Make(F.lblSpeedUnit, "dim"));
    Values->addStretch(1);
    Values->addWidget(View.Make(F.txtSpeed));
    Line->addLayout(Values, 1);
    View.Widget_Of(F.scrSpeed)->setMinimumHeight(Least_Slider);
    return Boxed(View.Make(F.frmSpeed), Line);
}

QGroupBox* Sent_Box(Form_View& View, frmLog& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    Column->addWidget(View.Make(F.lblCurrentTitle, "dim"));
    Column->addLayout(Readout_Row(View, F.lblCurrentSpeed, 34, "00.00", Caption(QStringLiteral("knots"))));
    Column->addStretch(1);
    Column->addLayout(
        Noise_Row(View, F.chkNoise, {{&F.lblMaxNoise, &F.cmbNoise, Caption(QStringLiteral("knots"))}}));
    Column->addWidget(View.Make(F.chkInvalid));
    return Boxed(QStringLiteral("Speed through water"), Column);
}

} // namespace

void Lay_Out_Log(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmLog&>(Shown);
    QVBoxLayout* Column = Column_In(&View, rhythm::Gap);
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* First = Row();
    First->addWidget(State_Line(View, F.Sentences, true, F.Form_Index), 1);
    First->addWidget(View.Make(F.lblShipControl, "dim"));
    Column->addLayout(First);
    QHBoxLayout* Values = Row();
    Values->addWidget(Speed_Box(View, F));
    Values->addWidget(Sent_Box(View, F), 1);
    Column->addLayout(Values, 1);
    Column->addWidget(Messages_Box(View, F.frameNMEAMessages, F.Sentences));
    QHBoxLayout* Distance = Row();
    Distance->addWidget(View.Make(F.lblVLW, "dim"), 1);
    Distance->addWidget(View.Make(F.cmdResetVLW));
    Column->addLayout(Distance);
    Column->addLayout(Routing_Row(View, F.cmbComPort, F.txtTalker));
    Column->addWidget(Ticker(View, F.Form_Index));
}

} // namespace brinewright
