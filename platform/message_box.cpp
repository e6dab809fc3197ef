#include "platform/message_box.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

std::span<const Box_Button> Buttons_Of(Box_Buttons Which) {
    static constexpr Box_Button OK[] = {Box_Button::OK}, OK_Cancel[] = {Box_Button::OK, Box_Button::Cancel},
                                Yes_No[] = {Box_Button::Yes, Box_Button::No};
    switch (Which) {
    case Box_Buttons::OK: return OK;
    case Box_Buttons::OK_Cancel: return OK_Cancel;
    case Box_Buttons::Yes_No: return Yes_No;
    }
    return OK;
}

std::string_view Caption_Of(Box_Button Which) {
    constexpr std::string_view Captions[] = {"OK", "Cancel", "Yes", "No"};
    return Captions[static_cast<std::size_t>(Which)];
}

void Message_Boxes::Show(std::string Text, std::string Title, Box_Icon Icon, Box_Buttons Buttons,
                         std::function<void(Box_Button)> Answered) {
    Standing.push_back({++Last_Id, std::move(Text), std::move(Title), Icon, Buttons, std::move(Answered)});
    ++Revision;
    // A copy, because the listener may answer at once and so remove the element.
    const Message_Box Shown = Standing.back();
    if (On_Show) On_Show(Shown);
}

bool Message_Boxes::Answer(std::int64_t Id, std::optional<Box_Button> Pressed) {
    const auto Found =
        std::find_if(Standing.begin(), Standing.end(), [&](const Message_Box& B) { return B.Id == Id; });
    if (Found == Standing.end()) return false;
    const auto Buttons = Buttons_Of(Found->Buttons);
    const Box_Button Chosen = Pressed.value_or(Buttons.front());
    if (std::find(Buttons.begin(), Buttons.end(), Chosen) == Buttons.end()) return false;
    const Message_Box Gone = std::move(*Found);
    Standing.erase(Found);
    ++Revision;
    Last_Answer = {Id, Chosen};
    if (Gone.Answered) Gone.Answered(Chosen);
    return true;
}

} // namespace brinewright
