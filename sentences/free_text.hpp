#pragma once

#include "platform/message_box.hpp"

#include <string>

namespace brinewright {

// Replaces the characters that frame a sentence, ",", "$" and "*" in this order, by "X" in Text, with a
// warning box for each occurrence. Returns Text.
std::string Check_Free_Text(std::string& Text, Message_Boxes& Boxes);

} // namespace brinewright
