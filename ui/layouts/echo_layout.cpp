#include "sensors/echosounder/frm_echosounder.hpp"
#include "ui/layouts/layout_parts.hpp"
#include "ui/layouts/sensor_parts.hpp"

namespace brinewright {

namespace {

constexpr int Least_Slider = 130;

QGroupBox* Depth_Box(Form_View& View, frmEchosounder& F) {
    QHBoxLayout* Line = Row();
    Line->addLayout(Scaled(View, F.scrDepth, Qt::Vertical, {100, 1000}));
    auto* Values = new QVBoxLayout;
    Values->setSpacing(rhythm::Base);
    Values->addWidget(Readout(View, F.lblDepth, 28, "000.0"));
    Values->addWidget(View.Make(F.lblDepthUnit, "dim"));
    Values->addStretch(1);
    Values->addWidget(View.Make(F.txtDepth));
    Line->addLayout(Values, 1);
    View.Widget_Of(F.scrDepth)->setMinimumHeight(Least_Slider);
    return Boxed(View.Make(F.frmDepth), Line);
}

QGroupBox* Sent_Box(Form_View& View, frmEchosounder& F) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    Column->addLayout(Readout_Row(View, F.lblCurrentDepth, 34, "000.00", Caption(QStringLiteral("meter"))));
    Column->addStretch(1);
    QHBoxLayout* Offset = Row();
    auto* Title = new QHBoxLayout; // one caption of two labels
    Title->setSpacing(rhythm::Base);
    Title->addWidget(View.Make(F.lblTransducer, "dim"));
    Title->addWidget(View.Make(F.lblOffset, "dim"));
    Offset->addLayout(Title);
    Offset->addStretch(1);
    Offset->addWidget(View.Make(F.cmbOffset));
    Offset->addWidget(Caption(QStringLiteral("m")));
    Column->addLayout(Offset);
    Column->addLayout(
        Noise_Row(View, F.chkNoise, {{&F.lblMaxNoise, &F.cmbNoise, Caption(QStringLiteral("m"))}}));
    return Boxed(View.Make(F.frmCurrentValue), Column);
}

} // namespace

void Lay_Out_Echosounder(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmEchosounder&>(Shown);
    QVBoxLayout* Column = Column_In(&View, rhythm::Gap);
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* First = Row();
    First->addWidget(State_Line(View, F.Sentences, false, F.Form_Index), 1);
    First->addWidget(View.Make(F.lblEchosounder, "dim"));
    Column->addLayout(First);
    QHBoxLayout* Values = Row();
    Values->addWidget(Depth_Box(View, F));
    Values->addWidget(Sent_Box(View, F), 1);
    Column->addLayout(Values, 1);
    Column->addWidget(Messages_Box(View, F.frameNMEAMessages, F.Sentences));
    Column->addLayout(Routing_Row(View, F.cmbComPort, F.txtTalker));
    Column->addWidget(Ticker(View, F.Form_Index));
}

} // namespace brinewright
