#include "gnss/position/datum_controls.hpp"

#include "gnss/position/frm_position.hpp"
#include "shell/kit/control_text.hpp"

#include <cmath>

namespace brinewright {

namespace {

struct Datum {
    const char* Name;
    const char* Code; // on the wire
};
constexpr Datum Datums[] = {{"WGS84", "W84"}, {"PE90", "P90"}, {"ED50", "E50"}};

// The directions of the first two come from cmbNS and cmbEW alone, so that their sign is dropped.
struct Offset_Row {
    float DTM_Record::*Field;
    const char* Pattern;
    bool Signed;
};
constexpr Offset_Row Offset_Rows[] = {{&DTM_Record::Lat_Offset, "0.0000'", false},
                                      {&DTM_Record::Lon_Offset, "0.0000'", false},
                                      {&DTM_Record::Alt_Offset, "0.0 m", true}};

} // namespace

void Wire_Datum_Controls(frmPosition& W) {
    for (const auto& List : W.cmbDatum) List->Click = [&W, I = List->Index] { cmbDatum_Click(W, I); };
    for (const auto& Box : W.txtOffset) Box->Lost_Focus = [&W, I = Box->Index] { txtOffset_LostFocus(W, I); };
    W.cmbNS.Click = [&W] { W.DTM_Record.Lat_Dir = W.cmbNS.Text().front(); };
    W.cmbEW.Click = [&W] { W.DTM_Record.Lon_Dir = W.cmbEW.Text().front(); };
}

void Fill_Datum_Lists(frmPosition& W) {
    for (const auto& List : W.cmbDatum)
        for (const Datum& D : Datums) List->Add_Item(D.Name);
    for (const char* Direction : {"N", "S"}) W.cmbNS.Add_Item(Direction);
    for (const char* Direction : {"E", "W"}) W.cmbEW.Add_Item(Direction);
    for (const auto& Box : W.txtOffset) Box->Set_Text(Format_Dot(0, Offset_Rows[Box->Index].Pattern));
}

void Restore_Datum(frmPosition& W) {
    for (Combo_Box* List : {&W.cmbDatum[0], &W.cmbDatum[1], &W.cmbNS, &W.cmbEW}) List->Set_List_Index(0);
}

void cmbDatum_Click(frmPosition& W, int Index) {
    DTM_Record& R = W.DTM_Record;
    (Index == 0 ? R.Local_Datum : R.Ref_Datum) = Datums[W.cmbDatum[Index].List_Index()].Code;
    R.Sub_Division = ' ';
}

void txtOffset_LostFocus(frmPosition& W, int Index) {
    const Offset_Row& Row = Offset_Rows[Index];
    const float Typed = Number_Shown(W.txtOffset[Index].Text());
    W.DTM_Record.*Row.Field = Row.Signed ? Typed : std::abs(Typed);
    W.txtOffset[Index].Set_Text(Format_Dot(W.DTM_Record.*Row.Field, Row.Pattern));
}

} // namespace brinewright
