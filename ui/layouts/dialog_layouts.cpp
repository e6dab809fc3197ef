#include "dialogs/geo_format/frm_geo_format.hpp"
#include "dialogs/iec61162/frm_iec61162.hpp"
#include "ui/layouts/layout_parts.hpp"

namespace brinewright {

void Lay_Out_IEC61162(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmIEC61162&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    Column->addWidget(View.Make(F.chkIEC61162_450));
    Column->addWidget(View.Make(F.chkUdpbc));
    auto* Tags = new QGridLayout;
    Tags->setHorizontalSpacing(rhythm::Margin);
    Tags->setVerticalSpacing(rhythm::Gap);
    // The text of a tag stands beside its box.
    const std::pair<int, Text_Box*> Texts[] = {
        {0, &F.txtSourceId}, {1, &F.txtDestinationId[0]}, {2, &F.txtDestinationId[1]}, {6, &F.txtTextString}};
    for (int I = 0; I < static_cast<int>(F.chkIEC61162.size()); ++I) {
        Tags->addWidget(View.Make(*F.chkIEC61162[static_cast<std::size_t>(I)]), I, 0);
        for (const auto& [Tag, Box] : Texts)
            if (Tag == I) {
                QLineEdit* W = View.Make(*Box);
                W->setMinimumWidth(220);
                Tags->addWidget(W, I, 1);
            }
    }
    Column->addWidget(Boxed(QStringLiteral("Tag block"), Tags));
    Column->addLayout(Buttons_Row({View.Make(F.cmdOK), View.Make(F.cmdCancel)}));
}

void Lay_Out_Geo_Format(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmGeoFormat&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    auto* Choice = new QVBoxLayout;
    for (const auto& B : F.optFormat.Buttons) Choice->addWidget(View.Make(*B));
    Column->addWidget(Boxed(QStringLiteral("Format"), Choice));
    QHBoxLayout* Decimals = Row();
    Decimals->addWidget(View.Make(F.lblDecimals, "dim"));
    QComboBox* List = View.Make(F.cmbDecimals);
    List->setMinimumWidth(80);
    Decimals->addWidget(List);
    Decimals->addStretch(1);
    Column->addLayout(Decimals);
    QLabel* Example = View.Make(F.lblExample, "readout");
    Example->setFont(Readout_Font(22));
    Example->setMinimumWidth(300);
    Column->addWidget(Example);
    Column->addLayout(Buttons_Row({View.Make(F.cmdOk), View.Make(F.cmdCancel)}));
}

} // namespace brinewright
