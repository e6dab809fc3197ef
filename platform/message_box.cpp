#include "platform/message_box.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

void Message_Boxes::Show(std::string Text, std::string Title, Box_Icon Icon, Box_Buttons Buttons) {
    Show(Message_Box{0, std::move(Text), std::move(Title), Icon, Buttons});
}

void Message_Boxes::Show(Message_Box New) {
    New.Id = ++Last_Id;
    Standing.push_back(std::move(New));
    // A copy, because the listener may answer at once and so remove the element.
    const Message_Box Shown = Standing.back();
    if (On_Show) On_Show(Shown);
}

bool Message_Boxes::Answer(std::int64_t Id) {
    const auto Found =
        std::find_if(Standing.begin(), Standing.end(), [&](const Message_Box& B) { return B.Id == Id; });
    if (Found == Standing.end()) return false;
    Standing.erase(Found);
    if (On_Answer) On_Answer(Id);
    return true;
}

} // namespace brinewright
