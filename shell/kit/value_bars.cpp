#include "shell/kit/value_bars.hpp"

#include "ownship/geodesy/angles.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brinewright {

double Signed_Draw(Simulator& Sim) { return 2 * (Sim.Services.Random.Draw() - 0.5); }

int Bar_Place(const Scroll_Bar& Bar, double Value, int Steps) {
    const int Least = std::min<int>(Bar.Min, Bar.Max), Most = std::max<int>(Bar.Min, Bar.Max);
    if (std::isnan(Value)) return std::clamp(0, Least, Most);
    return static_cast<int>(
        std::nearbyint(std::clamp(Value * Steps, static_cast<double>(Least), static_cast<double>(Most))));
}

bool Wrap_Direction_Bar(Scroll_Bar& Bar) {
    if (Bar.Value() == Bar.Max) {
        Bar.Set_Value(0);
        return true;
    }
    if (Bar.Value() == Bar.Min) {
        Bar.Set_Value(Bar.Max - 1);
        return true;
    }
    return false;
}

int Direction_Place(const Scroll_Bar& Bar, double Angle_deg) {
    const int Circle = Bar.Max;
    return Bar_Place(Bar, Normalise_Direction(Angle_deg), Bar_Steps) % Circle;
}

float Bar_Value(const Scroll_Bar& Bar) { return static_cast<float>(Bar.Value()) / Bar_Steps; }

std::string Direction_Shown(const Scroll_Bar& Bar) { return Format_Dot(Bar_Value(Bar), "000.0"); }

void Move_Bar(Scroll_Bar& Bar, int Place) {
    if (Bar.Value() != Place)
        Bar.Set_Value(Place);
    else if (Bar.Change)
        Bar.Change();
}

void Leave_Box(Simulator& Sim, const Form& W, const Box_Of_Bar& B) {
    if (B.Box.Text() == B.Shown) {
        const double Tenths = std::nearbyint(Val_Dot(B.Shown) * Bar_Steps);
        if (Tenths == Bar_Place(B.Bar, Tenths, 1)) Move_Bar(B.Bar, static_cast<int>(Tenths));
        return;
    }
    const std::optional<double> Typed = Typed_Number(B.Box);
    const double Tenths = std::nearbyint(Typed.value_or(0) * Bar_Steps);
    if (Typed && Tenths == Bar_Place(B.Bar, Tenths, 1)) return Move_Bar(B.Bar, static_cast<int>(Tenths));
    if (Typed) B.Box.Refuse(B.Refusal);
    Sim.Windows.Boxes.Show(B.Refusal, W.Caption, Box_Icon::Warning);
    B.Box.Set_Text(B.Shown);
}

void Wire_Typed_Bar(Simulator& Sim, const Form& W, const Typed_Bar& B) {
    B.Box.Set_Text(B.Shown());
    B.Bar.Change = [B] {
        if (B.Full_Circle && Wrap_Direction_Bar(B.Bar)) return;
        B.Take();
        B.Box.Set_Text(B.Shown());
    };
    B.Box.Lost_Focus = [&Sim, &W, B] { Leave_Box(Sim, W, {B.Bar, B.Box, B.Refusal, B.Shown()}); };
}

std::optional<float> Typed_Size(Scroll_Bar& Bar, Text_Box& Box, const Number_Rule& Rule) {
    const std::optional<double> Typed = Typed_Number(Box, Rule);
    if (!Typed) return std::nullopt;
    Bar.Set_Value(Bar_Place(Bar, std::abs(*Typed), Bar_Steps));
    return Record_Number(std::abs(*Typed));
}

void Show_Size(Label& Shown, Text_Box& Box, float Value) {
    Shown.Caption = Format_Dot(Value, "0.0");
    Box.Set_Text(Shown.Caption);
}

void Wire_Size_Bar(const Size_Bar& B, float& Value, Handler Taken) {
    const auto Take = [B, &Value, Taken = std::move(Taken)](float New) {
        Value = New;
        Show_Size(B.Shown, B.Box, Value);
        if (Taken) Taken();
    };
    B.Bar.Set_Value(Bar_Place(B.Bar, Value, Bar_Steps));
    Show_Size(B.Shown, B.Box, Value);
    B.Bar.Change = [B, Take] { Take(Bar_Value(B.Bar)); };
    B.Box.Lost_Focus = [B, &Value, Take] {
        if (const std::optional<float> Typed = Typed_Size(B.Bar, B.Box))
            Take(*Typed);
        else
            Show_Size(B.Shown, B.Box, Value);
    };
}

} // namespace brinewright
