#pragma once

#include "shell/sentence_family.hpp"
#include "ui/form_view.hpp"

#include <utility>
#include <vector>

class QHBoxLayout;

namespace brinewright {

// What every sensor window has, from top to bottom.

// Running, paused or under the ship's control, the port and the talker; START and PAUSE carry the state as a
// colour.
QWidget* State_Line(Form_View& View, Button& Start, Button& Pause, const Timer& Simulation, int Form_Index);

// A row a sentence: box, interval, and a thin bar that fills when it leaves and empties until the next one.
QGroupBox* Messages_Box(Form_View& View, Frame& Box, Sentence_Family& Sentences);

// Port and talker, and lists with their captions behind them.
QLayout* Routing_Row(Form_View& View, Combo_Box& Ports, Text_Box& Talker,
                     const std::vector<std::pair<Label*, Combo_Box*>>& Lists, Label* Lists_Title);

// The last sentence that the sensor sent, in one slim line.
QWidget* Ticker(Form_View& View, int Form_Index);

} // namespace brinewright
