#pragma once

#include "platform/controls.hpp"

#include <functional>

namespace brinewright {

// A text to be read, of which a part can be marked. Whoever chooses a character of it, by pointer, cursor key
// or its number, runs Character_Chosen. Its caption stands where there is no text.
struct Marked_Text : Text_Box {
    Marked_Text(Stand At, std::string N, std::string Tip);

    std::function<void(int Place)> Character_Chosen;
    Property<int> Mark_First{*this, 0};
    Property<int> Mark_Length{*this, 0}; // 0: nothing is marked

    void Set_Text(std::string New); // with nothing marked
    void Mark(int First, int Length);

    void Check(const Control_Value& V) const override;
    void User_Set(const Control_Value& V) override; // the number of a character, from 0
};

} // namespace brinewright
