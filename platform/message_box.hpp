#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

namespace brinewright {

enum class Box_Icon { None, Information, Warning, Stop };
enum class Box_Buttons { OK, OK_Cancel }; // both take the box away, and nothing depends on which

struct Message_Box {
    std::int64_t Id = 0; // counts from 1, to answer it by
    std::string Text{};
    std::string Title{};
    Box_Icon Icon = Box_Icon::None;
    Box_Buttons Buttons = Box_Buttons::OK;
    std::string Advice{}; // what it is about and what to do, below a text that is required as it stands
};

// The message boxes that stand, oldest first. The handler that shows one goes on at
// once: nothing that follows a box depends on its answer, and the timers keep ticking behind it. Send_NMEA
// sends nothing while one stands.
struct Message_Boxes {
    std::deque<Message_Box> Standing;
    std::int64_t Last_Id = 0;
    std::function<void(const Message_Box&)> On_Show; // told of each new box; may answer it at once
    std::function<void(std::int64_t Id)> On_Answer;  // told when a box went away

    void Show(Message_Box New); // its number is given here
    void Show(std::string Text, std::string Title = {}, Box_Icon Icon = Box_Icon::None,
              Box_Buttons Buttons = Box_Buttons::OK);
    // Takes box Id away; false when no such box stands.
    bool Answer(std::int64_t Id);
};

} // namespace brinewright
