#pragma once

#include "shell/kit/layout.hpp"
#include "shell/kit/sensor_form.hpp"

#include <string_view>
#include <utility>
#include <vector>

namespace brinewright {

// What every sensor window has, from top to bottom.

// Running, paused or under the ship's control, and where the sentences go or why they do not. Standing says
// what does not move while sentences leave though the simulation was not started: "heading stands still".
Layout State_Line(const Simulator& Sim, const Sensor_Form& W, const Button& Pause, const Timer& Simulation,
                  const char* Standing);

// The same for a window whose sentences run by themselves. Follows_Ship: the ship sets its value in Ship
// mode.
Layout State_Line(const Simulator& Sim, const Sensor_Form& W, bool Follows_Ship);

// START and PAUSE, which carry the state as a colour.
Layout Start_And_Pause(Button& Start, Button& Pause, const Timer& Simulation);

// A row a sentence: box, interval, and a thin bar that fills when it leaves and empties until the next one,
// and stands empty while nothing leaves; at its end what else belongs to the sentence.
using Message_Note = std::pair<std::string_view, Layout>; // the type of the sentence first
Layout Messages(const Simulator& Sim, Sensor_Form& W, const std::vector<Message_Note>& Notes = {});

// A bar with its scale, and beside it the box to type the value in, above its unit.
Layout Bar_And_Box(Scroll_Bar& Bar, layout::Steps Scale, Text_Box& Typed, Layout Unit);
inline constexpr int Typed_Width = 58; // of that box

inline constexpr int Least_Standing_Bar = 130;

// The box that puts noise on, and lists of how much, each behind its caption and before its unit.
struct Noise_List {
    Label& Title;
    Combo_Box& List;
    Layout Unit;
};
Layout Noise_Row(Check_Box& On, std::vector<Noise_List> Lists);

// Port and talker, and lists with their captions behind them.
Layout Routing(Sensor_Form& W, const std::vector<std::pair<Label*, Combo_Box*>>& Lists = {},
               Label* Lists_Title = nullptr);

// The last sentence of the sensor that left.
Layout Ticker(const Simulator& Sim, const Sensor_Form& W);

// A sensor window in its small form: state, values and which sentences leave.
Layout Small_Window(const Simulator& Sim, Sensor_Form& W, bool Follows_Ship, std::vector<Layout> Values);
Layout Small_Value(const char* Title, Label& Value, layout::Measure Widest, const char* Unit);

// The box that has the focus while the keyboard steers, not to be seen.
Layout Key_Catcher(Text_Box& Box);

} // namespace brinewright
