#include "shell/kit/talker_box.hpp"

#include "ownship/geodesy/latin1.hpp"
#include "platform/desktop.hpp"

#include <algorithm>

namespace brinewright {

namespace {

bool Is_Letter_Or_Digit(char C) {
    return (C >= '0' && C <= '9') || (C >= 'A' && C <= 'Z') || (C >= 'a' && C <= 'z');
}

} // namespace

void Wire_Talker_Box(Desktop& Windows, Text_Box& Box, std::string& Stored,
                     std::function<void(const std::string& Talker)> Write_Records) {
    Box.Got_Focus = [&Box] { Box.Select_All(); };
    Box.Lost_Focus = [&Windows, &Box, &Stored, Write_Records = std::move(Write_Records)] {
        if (Box.Text().size() != 2) {
            Windows.Boxes.Show("NMEA Talker ID must be two characters. Try again!", "NMEA Talker ID");
            Box.Set_Text(Stored);
            Windows.Set_Focus(&Box);
            return;
        }
        if (!std::all_of(Box.Text().begin(), Box.Text().end(), Is_Letter_Or_Digit)) {
            Box.Refuse("A talker is two letters or digits");
            Box.Set_Text(Stored);
            return;
        }
        Stored = Upper_Case(Box.Text());
        Box.Set_Text(Stored);
        Write_Records(Stored);
    };
}

} // namespace brinewright
