#include "sentences/free_text.hpp"

namespace brinewright {

std::string Check_Free_Text(std::string& Text, Message_Boxes& Boxes) {
    for (const char Framing : {',', '$', '*'}) {
        for (auto Place = Text.find(Framing); Place != std::string::npos; Place = Text.find(Framing, Place)) {
            Boxes.Show(std::string("The character   '  ") + Framing +
                           "  '   is not allowed in a NMEA message free text",
                       {}, Box_Icon::Warning);
            Text[Place] = 'X';
        }
    }
    return Text;
}

} // namespace brinewright
