#include "gnss/position/frm_position.hpp"
#include "gnss/position/position_parts.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr float GST_Record::*Lengths_m[] = {&GST_Record::RMS,
                                            &GST_Record::Semi_Major,
                                            &GST_Record::Semi_Minor,
                                            nullptr, // Orientation, degrees
                                            &GST_Record::Sd_Lat,
                                            &GST_Record::Sd_Lon,
                                            &GST_Record::Sd_Alt};

double Step(int Index) { return Lengths_m[Index] ? 0.1 : 1; }

void Store(frmPosition& W, int Index, double Value) {
    constexpr double Last_deg = 359;
    GST_Record& R = W.GST_Record;
    if (const auto Length_m = Lengths_m[Index]) {
        R.*Length_m = Record_Number(Value);
        W.txtGST[Index].Set_Text(Format_Dot(R.*Length_m, "0.00 m"));
    } else {
        R.Orientation = static_cast<std::int16_t>(std::nearbyint(std::clamp(Value, 0.0, Last_deg)));
        W.txtGST[Index].Set_Text(Format_Dot(R.Orientation, "000 deg"));
    }
}

// Left counts up, any other button down. Only a value of exactly 0 stops the way down: from 0.05 m it leads
// to -0.05 m and on, which is required.
void lblGST_MouseDown(frmPosition& W, int Index, Mouse_Button Pressed) {
    const double Value = Val_Dot(W.txtGST[Index].Text());
    if (Pressed != Mouse_Button::Left && Value == 0) return;
    Store(W, Index, Value + (Pressed == Mouse_Button::Left ? Step(Index) : -Step(Index)));
}

} // namespace

void Open_GST(frmPosition& W) {
    for (const auto& Each : W.txtGST) {
        Text_Box& Box = *Each;
        const int I = Box.Index;
        Box.Got_Focus = [&Box] { Box.Select_All(); };
        Box.Lost_Focus = [&W, &Box, I] {
            if (const auto Typed = Typed_Number(Box, Bad_Text_Is_Zero))
                Store(W, I, std::max(0.0, *Typed));
            else
                Box.Set_Text(Box.Text_Before());
        };
        Label& Title = W.lblGST[I];
        Title.Tool_Tip = *Box.Tool_Tip + "; a click steps by " + (Lengths_m[I] ? "0.1" : "1");
        Title.Mouse_Down = [&W, I](Mouse_Button Pressed) { lblGST_MouseDown(W, I, Pressed); };
    }
}

} // namespace brinewright
