#include "platform/run_time_error.hpp"
#include "platform/scripted_joystick.hpp"
#include "platform/virtual_platform.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace brinewright {

TEST(Scripted_Joystick_, Holds_The_Last_Line_That_Is_Due) {
    Virtual_Clock Time;
    Time.Spin_us(7'000'000); // times count from the making of the joystick
    Scripted_Joystick Stick(Read_Joystick_Script("# a dash to starboard\r\n"
                                                 "\n"
                                                 "  # then nothing\n"
                                                 "0.5 0 65535 0\n"
                                                 "2\t40000   32768  32769\r\n"
                                                 "2 1 2 3\n"
                                                 "3.000001 gone\n"
                                                 "4 5 6 7"),
                            Time);
    const std::int64_t Start_us = Time.Wide_us();
    const auto At = [&](std::int64_t After_us) {
        Time.Advance_To(Start_us + After_us);
        return Stick.Read();
    };
    EXPECT_EQ(At(0), std::nullopt);
    EXPECT_EQ(At(499'999), std::nullopt);
    EXPECT_EQ(At(500'000), (Joystick_Reading{0, 65535, 0}));
    EXPECT_EQ(At(1'999'999), (Joystick_Reading{0, 65535, 0}));
    EXPECT_EQ(At(2'000'000), (Joystick_Reading{1, 2, 3})) << "of lines at one time the last";
    EXPECT_EQ(At(3'000'000), (Joystick_Reading{1, 2, 3}));
    EXPECT_EQ(At(3'000'001), std::nullopt);
    EXPECT_EQ(At(3'999'999), std::nullopt);
    EXPECT_EQ(At(86'400'000'000), (Joystick_Reading{5, 6, 7}));

    Scripted_Joystick Late(Read_Joystick_Script("0 1 2 0\n60 3 4 0\n"), Time);
    EXPECT_EQ(Late.Read(), (Joystick_Reading{1, 2, 0})) << "from its making on, not from the clock's zero";
    EXPECT_EQ(Scripted_Joystick(Read_Joystick_Script(""), Time).Read(), std::nullopt);
}

TEST(Scripted_Joystick_, A_Wrong_Line_Is_Named) {
    const std::string X = "x must be a whole number from 0 to 65535";
    const std::string Buttons = "the button mask must be a whole number from 0 to 65535";
    const std::string Time = "a time in seconds is wanted at the start, as 12.5";
    const std::vector<std::pair<std::string, std::string>> Rows = {
        {"2 65536 0 0", X},
        {"2 -1 0 0", X},
        {"2 1.5 0 0", X},
        {"2 GONE", X},
        {"2", X},
        {"2 99999999999999999999 0 0", X},
        {"2 0 left 0", "y must be a whole number from 0 to 65535"},
        {"2 0 0 65536", Buttons},
        {"2 0 0", Buttons},
        {"2 0 0 0x1", Buttons},
        {"2 0 0 0 0", "there is more in it than is wanted"},
        {"2 gone 0", "there is more in it than is wanted"},
        {"0.9 0 0 0", "the time is before that of the line before"},
        {"-1 0 0 0", Time},
        {"nan 0 0 0", Time},
        {"inf 0 0 0", Time},
        {"1e300 0 0 0", Time},
        {"1,5 0 0 0", Time},
        {"x", Time},
        {std::string("2\0 0 0 0", 8), Time},
    };
    for (const auto& [Line, Told] : Rows) {
        std::string Message;
        try {
            Read_Joystick_Script("# first\n1 0 0 0\n" + Line + "\n9 0 0 0\n");
        } catch (const Run_Time_Error& Wrong) {
            Message = Wrong.what();
        }
        EXPECT_EQ(Message, "line 3: " + Told) << Line;
    }
}

} // namespace brinewright
