#include "shell/kit/typed_number.hpp"

#include "ownship/geodesy/position_text.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

namespace brinewright {

namespace {

// As it can stand in a line of text.
std::string Quoted(std::string_view Text) {
    constexpr std::size_t Most_Letters = 20;
    const bool Whole = Text.size() <= Most_Letters;
    return '"' + std::string(Text.substr(0, Most_Letters)) + (Whole ? "\"" : "...\"");
}

// Empty when nothing is wrong.
std::string Wrong_With(const std::string& Text, const Number_Rule& Rule) {
    if (!Starts_With_Number(Text)) return Quoted(Text) + " is no number";
    const double Value = Val_Dot(Text);
    if (!Beyond_Any_Instrument(Value) && Value >= Rule.Least && Value <= Rule.Most) return {};
    return Quoted(Text) + " is out of range: " + Format_Dot(Rule.Least, "") + " to " +
           Format_Dot(Rule.Most, "");
}

std::optional<double> Number_In(const std::string& Text, const Number_Rule& Rule) {
    if (Rule.Bad_Is_Zero && !Starts_With_Number(Text)) return 0.0;
    if (!Wrong_With(Text, Rule).empty()) return std::nullopt;
    return Val_Dot(Text);
}

void Say_What_Is_Wrong(Typed_Control& Box, const Number_Rule& Rule) {
    const std::string Why = Wrong_With(Box.Text(), Rule);
    if (Why.empty()) return;
    if (Number_In(Box.Text(), Rule))
        Box.Warn(Why + " and counts as 0");
    else
        Box.Refuse(Why);
}

// Whole degrees are 16 bits wide, and so is what else stands in a position, with room to spare.
bool Is_Position(std::string_view Text) {
    constexpr double Greatest_Part = 32'767;
    constexpr std::string_view Digits = "0123456789", Part = "0123456789.,";
    std::size_t Start = Text.find_first_of(Digits);
    if (Start == std::string_view::npos) return false;
    for (; Start != std::string_view::npos; Start = Text.find_first_of(Digits, Start)) {
        const std::size_t End = std::min(Text.find_first_not_of(Part, Start), Text.size());
        if (Val_Dot(Text.substr(Start, End - Start)) > Greatest_Part) return false;
        Start = End;
    }
    return true;
}

} // namespace

std::optional<double> Typed_Number(Typed_Control& Box, const Number_Rule& Rule) {
    Say_What_Is_Wrong(Box, Rule);
    return Number_In(Box.Text(), Rule);
}

std::optional<double> Typed_Position(Simulator& Sim, Text_Box& Box, const char* Kind) {
    const double Angle_deg =
        Parse_Position(Sim.State.Of<Shell_State>().LatLon_Format, Box.Text(), Kind, Sim.Windows.Boxes);
    if (Is_Position(Box.Text())) return Angle_deg;
    Box.Refuse(Quoted(Box.Text()) + " is no position");
    return std::nullopt;
}

void Wire_Number_List(Combo_Box& List, const Number_Rule& Rule, std::function<void(float)> Take) {
    const auto Taken = std::make_shared<float>(0.0F);
    List.Free_Text = true;
    List.Click = List.Change = [&List, Rule, Taken, Take = std::move(Take)] {
        const std::optional<double> Typed = Number_In(List.Text(), Rule);
        if (Typed) Take(*Taken = Record_Number(*Typed));
    };
    List.Lost_Focus = [&List, Rule, Taken] {
        if (Wrong_With(List.Text(), Rule).empty()) return;
        Say_What_Is_Wrong(List, Rule);
        List.Set_Text(Format_Dot(*Taken, ""));
    };
}

} // namespace brinewright
