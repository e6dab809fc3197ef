#pragma once

#include "shell/kit/sentence_family.hpp"
#include "ui/form_view.hpp"

#include <functional>
#include <utility>
#include <vector>

class QHBoxLayout;

namespace brinewright {

// What every sensor window has, from top to bottom.

// Running, paused or under the ship's control, the port and the talker; START and PAUSE carry the state as a
// colour.
QWidget* State_Line(Form_View& View, Button& Start, Button& Pause, const Timer& Simulation, int Form_Index);

// The same for a window whose sentences run by themselves. Follows_Ship: the ship sets its value in Ship
// mode.
QWidget* State_Line(Form_View& View, const Sentence_Family& Sentences, bool Follows_Ship, int Form_Index);

// A row a sentence: box, interval, and a thin bar that fills when it leaves and empties until the next one;
// at its end what else belongs to the sentence.
using Row_Note = std::pair<const Check_Box*, std::function<QLayout*()>>;
QGroupBox* Messages_Box(Form_View& View, Frame& Box, Sentence_Family& Sentences,
                        const std::vector<Row_Note>& Notes = {});

// A value in large figures that does not jump in width.
QLabel* Readout(Form_View& View, Label& Value, int Pixels, const char* Widest);
// The same with its unit behind it.
QHBoxLayout* Readout_Row(Form_View& View, Label& Value, int Pixels, const char* Widest, QWidget* Unit);

// A bar with the scale of its values below it or to its right. Steps count as the bar does, figures are
// written in the unit.
struct Scale_Steps {
    int Tick, Figure;
    int Per_Unit = 10;
    bool Unsigned = false; // figures without their sign
};
QLayout* Scaled(Form_View& View, Scroll_Bar& Bar, Qt::Orientation Direction, const Scale_Steps& Steps);

// The box that puts noise on, and lists of how much, each behind its caption and before its unit.
struct Noise_List {
    Label* Title;
    Combo_Box* List;
    QWidget* Unit;
};
QHBoxLayout* Noise_Row(Form_View& View, Check_Box& On, const std::vector<Noise_List>& Lists);

// Port and talker, and lists with their captions behind them.
QLayout* Routing_Row(Form_View& View, Combo_Box& Ports, Text_Box& Talker,
                     const std::vector<std::pair<Label*, Combo_Box*>>& Lists = {},
                     Label* Lists_Title = nullptr);

// The last sentence that the sensor sent, in one slim line.
QWidget* Ticker(Form_View& View, int Form_Index);

// The box that has the focus while the keyboard steers. What has no size cannot have it, so it is one pixel,
// and not to be seen.
QWidget* Key_Catcher(Form_View& View, Text_Box& Box);

} // namespace brinewright
