#include "ownship/set_sog/frm_set_sog.hpp"
#include "ownship/setup/frm_ship_setup.hpp"
#include "ui/layouts/layout_parts.hpp"

namespace brinewright {

namespace {

QGroupBox* Start_Box(Form_View& View, frmShipSetup& F) {
    Field_Grid Fields;
    for (const auto& [Title, Box] :
         {std::pair(&F.lblStartLat, &F.txtStartLat), {&F.lblStartLon, &F.txtStartLon}}) {
        QLineEdit* Edit = View.Make(*Box);
        Edit->setMinimumWidth(150);
        Fields.Add(View.Make(*Title, "dim"), Edit);
    }
    return Boxed(View.Make(F.frameStartPosition), Fields.Layout());
}

QGroupBox* Limits_Box(Form_View& View, frmShipSetup& F) {
    Field_Grid Fields;
    const struct {
        Label& Title;
        Combo_Box& List;
        Label& Unit;
    } Rows[] = {{F.lblMaxSpeedAhead, F.cmbMaxSpeedAhead, F.lblMaxSpeedAheadUnit},
                {F.lblMaxSpeedAstern, F.cmbMaxSpeedAstern, F.lblMaxSpeedAsternUnit},
                {F.lblMaxRudder, F.cmbMaxRudder, F.lblMaxRudderUnit},
                {F.lblMagneticDeviation, F.cmbMagneticDeviation, F.lblMagneticDeviationUnit}};
    for (const auto& R : Rows)
        Fields.Add(View.Make(R.Title, "dim"), View.Make(R.List), View.Make(R.Unit, "dim"));
    return Boxed(QStringLiteral("Ship and environment"), Fields.Layout());
}

QGroupBox* Position_2_Box(Form_View& View, frmShipSetup& F) {
    Field_Grid Fields;
    Fields.Add(View.Make(F.lblNorthing, "dim"), View.Make(F.txtLatOffset));
    Fields.Add(View.Make(F.lblEasting, "dim"), View.Make(F.txtLonOffset));
    return Boxed(View.Make(F.framePosOffset), Fields.Layout());
}

QGroupBox* Offsets_Box(Form_View& View, frmShipSetup& F) {
    Field_Grid Fields;
    const struct {
        Label& Title;
        Text_Box& Box;
        Label& From;
    } Rows[] = {{F.lblGyro1Offset, F.txtGyroOffset[0], F.lblFromCOG[0]},
                {F.lblGyro2Offset, F.txtGyroOffset[1], F.lblFromCOG[1]},
                {F.lblLog1Offset, F.txtLogOffset[0], F.lblFromSOG[0]},
                {F.lblLog2Offset, F.txtLogOffset[1], F.lblFromSOG[1]}};
    for (const auto& R : Rows) {
        QLineEdit* Edit = View.Make(R.Box);
        Edit->setMinimumWidth(92);
        Fields.Add(View.Make(R.Title, "dim"), Edit, View.Make(R.From, "dim"));
    }
    return Boxed(QStringLiteral("Gyro and log"), Fields.Layout());
}

QGroupBox* Time_Box(Form_View& View, frmShipSetup& F) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(rhythm::Base + 2);
    Grid->addWidget(View.Make(F.chkUseUTC), 0, 0);
    Grid->addWidget(View.Make(F.lblGNSS1, "dim"), 0, 1);
    Grid->addWidget(View.Make(F.lblGNSS2, "dim"), 0, 2);
    Grid->addWidget(View.Make(F.lblZoneHours, "dim"), 1, 0, Qt::AlignRight);
    Grid->addWidget(View.Make(F.lblZoneMinutes, "dim"), 2, 0, Qt::AlignRight);
    for (int I = 0; I <= 1; ++I) {
        Grid->addWidget(View.Make(F.cmbUTCOffsetHours[I]), 1, I + 1);
        Grid->addWidget(View.Make(F.cmbUTCOffsetMinutes[I]), 2, I + 1);
    }
    Grid->addWidget(View.Make(F.lblGNSS2Offset, "dim"), 3, 0, 1, 2, Qt::AlignRight);
    Grid->addWidget(View.Make(F.cmbGNSS2OffsetSeconds), 3, 2);
    Grid->addWidget(View.Make(F.lblGNSS2OffsetUnit, "dim"), 3, 3);
    Grid->setColumnStretch(4, 1);
    return Boxed(QStringLiteral("Time"), Grid);
}

} // namespace

void Lay_Out_Ship_Setup(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmShipSetup&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    auto* Grid = new QGridLayout;
    Grid->setSpacing(rhythm::Gap);
    Grid->addWidget(Start_Box(View, F), 0, 0);
    Grid->addWidget(Position_2_Box(View, F), 0, 1);
    Grid->addWidget(Limits_Box(View, F), 1, 0);
    Grid->addWidget(Offsets_Box(View, F), 1, 1);
    Grid->addWidget(Time_Box(View, F), 2, 0, 1, 2);
    Column->addLayout(Grid);
    Column->addLayout(Buttons_Row({View.Make(F.cmdOK), View.Make(F.cmdApply), View.Make(F.cmdCancel)}));
}

void Lay_Out_Set_SOG(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmSetSOG&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    Field_Grid Fields;
    Fields.Add(View.Make(F.lblSOG, "dim"), View.Make(F.txtSOG), View.Make(F.lblSOGUnit, "dim"));
    Fields.Add(View.Make(F.lblCOG, "dim"), View.Make(F.txtCOG), View.Make(F.lblCOGUnit, "dim"));
    Column->addLayout(Fields.Layout());
    Column->addLayout(Buttons_Row({View.Make(F.cmdOK), View.Make(F.cmdCancel)}));
}

} // namespace brinewright
