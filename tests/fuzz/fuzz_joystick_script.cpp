// A joystick script of any bytes is refused with the line that is wrong, or plays: positions and buttons
// within their ranges, times that ascend.

#include "platform/run_time_error.hpp"
#include "platform/scripted_joystick.hpp"
#include "platform/virtual_platform.hpp"
#include "tests/fuzz/require.hpp"

using namespace brinewright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    std::vector<Joystick_Script_Line> Lines;
    try {
        Lines = Read_Joystick_Script({reinterpret_cast<const char*>(Data), Size});
    } catch (const Run_Time_Error& Wrong) {
        Require(std::string_view(Wrong.what()).starts_with("line "));
        return 0;
    }
    Virtual_Clock Time;
    Scripted_Joystick Stick(Lines, Time);
    std::int64_t Previous_us = 0;
    for (std::size_t I = 0; I < Lines.size(); ++I) {
        const Joystick_Script_Line& Line = Lines[I];
        Require(Line.Due_us >= Previous_us);
        Previous_us = Line.Due_us;
        if (const auto& At = Line.Reading)
            Require(At->X >= 0 && At->X <= 65535 && At->Y >= 0 && At->Y <= 65535 && At->Buttons <= 65535);
        Time.Advance_To(Line.Due_us);
        const bool Is_Last_At_Its_Time = I + 1 == Lines.size() || Lines[I + 1].Due_us > Line.Due_us;
        if (Is_Last_At_Its_Time) Require(Stick.Read() == Line.Reading);
    }
    return 0;
}
