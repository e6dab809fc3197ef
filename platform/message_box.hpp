#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace brinewright {

enum class Box_Icon { None, Information, Warning, Stop };
enum class Box_Buttons { OK, OK_Cancel, Yes_No };
enum class Box_Button { OK, Cancel, Yes, No };

// The buttons of a box from left to right; the first is the default.
std::span<const Box_Button> Buttons_Of(Box_Buttons Which);
std::string_view Caption_Of(Box_Button Which);

struct Message_Box {
    std::int64_t Id = 0; // counts from 1, to answer it by
    std::string Text;
    std::string Title;
    Box_Icon Icon = Box_Icon::None;
    Box_Buttons Buttons = Box_Buttons::OK;
    std::function<void(Box_Button Pressed)> Answered; // runs when the box has gone
};

// The message boxes that stand, oldest first. The handler that shows one goes on at once, and the timers keep
// ticking behind it: what depends on the button that is pressed stands in Answered. Send_NMEA sends nothing
// while one stands.
struct Message_Boxes {
    struct Answer_Record {
        std::int64_t Id = 0;
        Box_Button Pressed = Box_Button::OK;
    };

    std::deque<Message_Box> Standing;
    std::int64_t Last_Id = 0;
    std::optional<Answer_Record> Last_Answer;
    std::uint64_t Revision = 0;                      // grows when a box comes or goes
    std::function<void(const Message_Box&)> On_Show; // told of each new box; may answer it at once

    void Show(std::string Text, std::string Title = {}, Box_Icon Icon = Box_Icon::None,
              Box_Buttons Buttons = Box_Buttons::OK, std::function<void(Box_Button)> Answered = nullptr);
    // Takes box Id away; without a button its default one counts. False when no such box stands, or when it
    // has no such button: then it still stands.
    bool Answer(std::int64_t Id, std::optional<Box_Button> Pressed = std::nullopt);
};

} // namespace brinewright
