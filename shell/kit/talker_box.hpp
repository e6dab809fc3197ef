#pragma once

#include "platform/controls.hpp"

#include <functional>
#include <string>

namespace brinewright {

class Desktop;

// The talker rule, the same in every sensor window. Leaving Box with exactly two characters puts them in
// upper case into Stored and into Box and hands them to Write_Records, which copies them into the records of
// the window's sentences. A text of another length is refused with a message: the box gets Stored back, and
// the focus. Characters that would break a sentence, others than letters and digits, are refused beside the
// box. Entering the box selects its text.
void Wire_Talker_Box(Desktop& Windows, Text_Box& Box, std::string& Stored,
                     std::function<void(const std::string& Talker)> Write_Records);

} // namespace brinewright
