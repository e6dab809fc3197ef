#include "gnss/configuration/frm_gnss.hpp"
#include "ui/layouts/layout_parts.hpp"

namespace brinewright {

void Lay_Out_GNSS_Configuration(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmGNSS&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Margin);
    Grid->setVerticalSpacing(rhythm::Gap);
    int Line = 0;
    for (GNSS_System_Row& System : F.Systems) {
        Grid->addWidget(View.Make(System.lblGNSS_System), Line, 0);
        Grid->addWidget(View.Make(System.chkUse), Line, 1);
        Grid->addWidget(View.Make(System.cmbMode), Line, 2);
        ++Line;
    }
    Column->addWidget(Boxed(QStringLiteral("Constellations"), Grid));
    Field_Grid Result;
    Result.Add(View.Make(F.lblModeIndicatorTitle, "dim"), View.Make(F.lblGNSModeIndicator, "readout"));
    Result.Add(View.Make(F.lblSystemsTitle, "dim"), View.Make(F.lblGNSS_Config, "readout"));
    Result.Add(View.Make(F.lblTalkerTitle, "dim"), View.Make(F.lblGNSTalker, "readout"));
    Column->addLayout(Result.Layout());
    Column->addLayout(Buttons_Row({View.Make(F.cmdOK), View.Make(F.cmdCancel)}));
}

} // namespace brinewright
