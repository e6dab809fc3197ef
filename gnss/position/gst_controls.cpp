#include "gnss/position/gst_controls.hpp"

#include "gnss/position/frm_position.hpp"
#include "shell/kit/control_text.hpp"

#include <cmath>

namespace brinewright {

namespace {

struct GST_Row {
    const char* Caption;
    float GST_Record::*Field; // metres; null: Orientation, degrees
};
constexpr GST_Row Rows[] = {
    {"RMS pseudo ranges", &GST_Record::RMS},         {"sd Semi Major Axis", &GST_Record::Semi_Major},
    {"sd Semi Minor Axis", &GST_Record::Semi_Minor}, {"dir Semi Major Axis", nullptr},
    {"sd Latitude error", &GST_Record::Sd_Lat},      {"sd Longitude error", &GST_Record::Sd_Lon},
    {"sd Altitude error", &GST_Record::Sd_Alt},
};

constexpr const char* Start_Text_m = "0.0 m"; // with a decimal less than every later one, which is required
constexpr const char* Pattern_m = "0.00 m";
constexpr const char* Pattern_deg = "000 deg";
constexpr double Step_m = 0.1;
constexpr double Last_deg = 359;

double Value_Shown(const frmPosition& W, int Index) { return Val_Dot(W.txtGST[Index].Text()); }

void Store(frmPosition& W, int Index, double Value) {
    GST_Record& R = W.GST_Record;
    if (const auto Field = Rows[Index].Field) {
        R.*Field = Record_Number(Value);
        W.txtGST[Index].Set_Text(Format_Dot(R.*Field, Pattern_m));
    } else {
        R.Orientation = static_cast<std::int16_t>(std::nearbyint(std::clamp(Value, 0.0, Last_deg)));
        W.txtGST[Index].Set_Text(Format_Dot(R.Orientation, Pattern_deg));
    }
}

} // namespace

void Preset_GST_Controls(frmPosition& W) {
    for (const auto& Text : W.lblGST) Text->Caption = std::string(Rows[Text->Index].Caption);
    for (const auto& Box : W.txtGST)
        Box->Set_Text(Rows[Box->Index].Field ? Start_Text_m : Format_Dot(0, Pattern_deg));
}

void Wire_GST_Controls(frmPosition& W) {
    for (const auto& Text : W.lblGST)
        Text->Mouse_Down = [&W, I = Text->Index](Mouse_Button Pressed) { lblGST_MouseDown(W, I, Pressed); };
    for (const auto& Box : W.txtGST) {
        Box->Got_Focus = [&B = *Box] { B.Select_All(); };
        Box->Lost_Focus = [&W, I = Box->Index] { txtGST_LostFocus(W, I); };
    }
}

// Only a value of exactly 0 stops the way down: from 0.05 m it leads to -0.05 m and on, which is required.
void lblGST_MouseDown(frmPosition& W, int Index, Mouse_Button Pressed) {
    const double Value = Value_Shown(W, Index);
    if (Pressed != Mouse_Button::Left && Value == 0) return;
    const double Step = Rows[Index].Field ? Step_m : 1;
    Store(W, Index, Value + (Pressed == Mouse_Button::Left ? Step : -Step));
}

void txtGST_LostFocus(frmPosition& W, int Index) { Store(W, Index, std::max(0.0, Value_Shown(W, Index))); }

} // namespace brinewright
