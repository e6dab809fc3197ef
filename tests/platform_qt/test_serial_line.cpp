#include "platform_linux/serial_settings.hpp"
#include "platform_linux/system_error.hpp"
#include "platform_qt/serial_line.hpp"
#include "support.hpp"

#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <typeinfo>
#include <vector>

using namespace brinewright;

namespace {

// A port on one end of a pseudo-terminal; the test holds the other.
struct Line {
    Unique_Fd Far_End;
    std::string Path;
    std::vector<Comm_Event> Events;
    std::string Read;
    Termios_Serial_Port Port{"COM 3", [this] { return Path; }};

    Line() {
        int Far = -1, Near = -1;
        char Name[100] = {};
        EXPECT_EQ(::openpty(&Far, &Near, Name, nullptr, nullptr), 0);
        Far_End = Unique_Fd(Far);
        const Unique_Fd Only_To_Make(Near);
        ::fcntl(Far, F_SETFL, O_NONBLOCK);
        Path = Name;
        Port.On_Comm = [this](Comm_Event Event) { Events.push_back(Event); };
    }
    void Write(std::string_view Text) const {
        EXPECT_EQ(::write(Far_End.Get(), Text.data(), Text.size()), static_cast<ssize_t>(Text.size()));
    }
    bool Run_Until_Read(const std::string& Expected) {
        return Run_Until([&] {
            Read_More(Far_End, Read);
            return Read == Expected;
        });
    }
};

std::string All_Bytes() {
    std::string Text;
    for (int Byte = 0; Byte < 256; ++Byte) Text += static_cast<char>(Byte);
    return Text;
}

} // namespace

TEST(Serial_Line, All_bytes_pass_unchanged_both_ways) {
    Line At;
    At.Port.Open("4800,n,8,1");
    EXPECT_TRUE(At.Port.Is_Open());
    At.Port.Output(All_Bytes());
    EXPECT_TRUE(At.Run_Until_Read(All_Bytes()));

    std::string Received;
    At.Port.On_Comm = [&](Comm_Event Event) {
        EXPECT_EQ(Event, Comm_Event::Receive);
        Received += At.Port.Input();
    };
    At.Write(All_Bytes());
    EXPECT_TRUE(Run_Until([&] { return Received.size() >= 256; }));
    EXPECT_EQ(Received, All_Bytes());
}

TEST(Serial_Line, What_nobody_takes_fills_the_receive_buffer_and_then_overflows) {
    Line At;
    At.Port.Open("4800,n,8,1");
    At.Write(std::string(1000, 'a'));
    Run_For(20);
    EXPECT_EQ(std::count(At.Events.begin(), At.Events.end(), Comm_Event::Receive_Overflow), 0);
    At.Write(std::string(100, 'b'));
    EXPECT_TRUE(Run_Until(
        [&] { return std::count(At.Events.begin(), At.Events.end(), Comm_Event::Receive_Overflow) == 1; }));
    EXPECT_EQ(At.Port.Input(), std::string(1000, 'a') + std::string(24, 'b'));
    EXPECT_EQ(At.Port.Input(), "");
    At.Write("c");
    EXPECT_TRUE(Run_Until([&] { return At.Port.Input() == "c"; }));
}

TEST(Serial_Line, Output_that_nobody_takes_is_bounded_and_skipped_in_whole_sentences) {
    Line At;
    At.Port.Open("9600,n,8,1");
    const std::string Sentence = "$GPHDT,123.4,T*00\r\n";
    std::uint64_t Sent = 0, Skipped = 0;
    for (; Skipped < 10 && Sent < 100'000; ++Sent) Skipped += !At.Port.Output(Sentence);
    ASSERT_EQ(Skipped, 10u);
    std::string Expected;
    for (std::uint64_t Number = 10; Number < Sent; ++Number) Expected += Sentence;
    EXPECT_TRUE(At.Run_Until_Read(Expected));
    At.Port.Output("again\r\n");
    EXPECT_TRUE(At.Run_Until_Read(Expected + "again\r\n"));
}

TEST(Serial_Line, A_device_that_vanishes_is_closed_once_and_each_write_fails) {
    for (const bool Noticed_By_Reading : {true, false}) {
        Line At;
        At.Port.Open("4800,n,8,1");
        At.Far_End.Reset();
        if (Noticed_By_Reading) {
            EXPECT_TRUE(Run_Until([&] { return !At.Port.Is_Open(); }));
        }
        for (int Number = 0; Number < 3; ++Number) {
            EXPECT_EQ(Error_Of([&] { At.Port.Output("x"); }), "Device unavailable");
            EXPECT_FALSE(At.Port.Is_Open());
        }
        const std::clock_t CPU_Before = std::clock();
        Run_For(200);
        EXPECT_LT(static_cast<double>(std::clock() - CPU_Before) / CLOCKS_PER_SEC, 0.1) << "spins";
        EXPECT_TRUE(At.Events.empty());
        EXPECT_NE(Error_Of([&] { At.Port.Open("4800,n,8,1"); }), "");
        At.Port.Close();
        EXPECT_EQ(Error_Of([&] { At.Port.Output("x"); }), "Port not open");
    }
}

TEST(Serial_Line, Opening_tells_why_it_fails) {
    Line At;
    Scratch_Folder Folder;
    At.Port.Open("4800,e,7,2");
    Termios_Serial_Port Second("COM 4", [&] { return At.Path; });
    EXPECT_EQ(Error_Of([&] { Second.Open("4800,n,8,1"); }), "Device or resource busy");
    At.Port.Close();
    EXPECT_EQ(Error_Of([&] { Second.Open("4800,n,8,1"); }), "");
    EXPECT_EQ(Error_Of([&] { Second.Open("4800,n,8,1"); }), "") << "opening again closes first";

    std::string Path;
    Termios_Serial_Port Elsewhere("COM 5", [&] { return Path; });
    EXPECT_EQ(Error_Of([&] { Elsewhere.Open("4800,n,8,1"); }), "No device is assigned to COM 5");
    Path = Folder / "missing";
    EXPECT_EQ(Error_Of([&] { Elsewhere.Open("4800,n,8,1"); }), "No such file or directory");
    Path = "/dev/null";
    EXPECT_EQ(Error_Of([&] { Elsewhere.Open("4800,n,8,1"); }), "Inappropriate ioctl for device");
    EXPECT_FALSE(Elsewhere.Is_Open());
}

TEST(Serial_Line, Trying_a_port_tells_whether_it_is_free_and_leaves_its_line_alone) {
    Line At;
    const Unique_Fd Somebody(::open(At.Path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK)); // without any lock
    termios Before{};
    ASSERT_EQ(::tcgetattr(Somebody.Get(), &Before), 0);
    Before.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
    ASSERT_EQ(::tcsetattr(Somebody.Get(), TCSANOW, &Before), 0);
    At.Write("for somebody");
    At.Port.Try();
    EXPECT_FALSE(At.Port.Is_Open());
    termios After{};
    ASSERT_EQ(::tcgetattr(Somebody.Get(), &After), 0);
    EXPECT_EQ(After.c_cflag, Before.c_cflag);
    EXPECT_EQ(After.c_lflag, Before.c_lflag);
    EXPECT_EQ(::cfgetospeed(&After), ::cfgetospeed(&Before));
    std::string Read;
    Read_More(Somebody, Read);
    EXPECT_EQ(Read, "for somebody");
    At.Port.Open("4800,n,8,1"); // no lock is left behind

    // Held by the lock, and by the exclusive mode alone, which does not stop the superuser.
    Termios_Serial_Port Second("COM 4", [&] { return At.Path; });
    EXPECT_THROW(Second.Try(), Device_Busy);
    At.Port.Close();
    ASSERT_EQ(::ioctl(Somebody.Get(), TIOCEXCL), 0);
    EXPECT_THROW(Second.Try(), Device_Busy);
    EXPECT_THROW(Second.Open("19200,e,7,2"), Device_Busy);
    ASSERT_EQ(::tcgetattr(Somebody.Get(), &After), 0);
    ::ioctl(Somebody.Get(), TIOCNXCL);
    EXPECT_EQ(::cfgetospeed(&After), static_cast<speed_t>(B4800)) << "as it was left, not as it was refused";
    EXPECT_NO_THROW(Second.Try());
}

TEST(Serial_Line, Failures_tell_a_taken_device_and_missing_rights_from_others) {
    EXPECT_THROW(Throw_System_Error(EBUSY), Device_Busy);
    EXPECT_THROW(Throw_System_Error(EACCES), Access_Refused);
    EXPECT_THROW(Throw_System_Error(EPERM), Access_Refused);
    for (const int Other : {ENOENT, ENXIO, ENOTTY, EIO}) {
        try {
            Throw_System_Error(Other);
        } catch (const Run_Time_Error& Failure) {
            EXPECT_EQ(typeid(Failure), typeid(Run_Time_Error)) << Other;
        }
    }
    Termios_Serial_Port Nowhere("COM 5", [] { return std::string(); });
    EXPECT_EQ(Error_Of([&] { Nowhere.Try(); }), "No device is assigned to COM 5");
}

TEST(Serial_Line, A_handler_may_close_and_reopen_or_destroy_its_port) {
    Line At;
    int Calls = 0;
    At.Port.On_Comm = [&](Comm_Event) {
        if (++Calls > 1) return;
        At.Port.Close();
        At.Port.Open("4800,n,8,1");
    };
    At.Port.Open("4800,n,8,1");
    At.Write("first");
    EXPECT_TRUE(Run_Until([&] { return Calls == 1; }));
    At.Write("second");
    EXPECT_TRUE(Run_Until([&] { return At.Port.Input() == "second"; }));
    // Closed at the first of two events of one reading: the second does not come.
    At.Port.On_Comm = [&](Comm_Event Event) {
        At.Events.push_back(Event);
        if (Event == Comm_Event::Receive_Overflow) At.Port.Close();
    };
    At.Write(std::string(1500, 'x'));
    EXPECT_TRUE(Run_Until([&] { return !At.Port.Is_Open(); }));
    EXPECT_EQ(At.Events.back(), Comm_Event::Receive_Overflow);

    auto Short_Lived = std::make_unique<Termios_Serial_Port>("COM 6", [&] { return At.Path; });
    Short_Lived->On_Comm = [&](Comm_Event) { Short_Lived.reset(); };
    Short_Lived->Open("4800,n,8,1");
    At.Write("x");
    EXPECT_TRUE(Run_Until([&] { return Short_Lived == nullptr; }));
}

TEST(Serial_Line, Settings_texts_set_the_line) {
    struct Case {
        const char* Text;
        speed_t Speed;
        tcflag_t Flags;
        double Bytes_Per_Second;
    };
    const Case Cases[] = {
        {"4800,n,8,1", B4800, CS8, 480},
        {"9600,e,7,2", B9600, CS7 | PARENB | CSTOPB, 9600 / 11.0},
        {"19200,O,8,1", B19200, CS8 | PARENB | PARODD, 19200 / 11.0},
        {"115200,n,5,1.5", B115200, CS5 | CSTOPB, 115200 / 8.0},
    };
    for (const Case& Each : Cases) {
        const Serial_Settings Settings = Parse_Serial_Settings(Each.Text);
        termios Mode{};
        Mode.c_cflag = PARODD | CRTSCTS | CSTOPB; // left over from somebody else
        Mode.c_lflag = ECHO | ICANON | ISIG;
        Mode.c_iflag = IXON | IXOFF | ICRNL | IGNPAR | ISTRIP;
        Mode.c_oflag = OPOST;
        Set_Line_Mode(Mode, Settings);
        EXPECT_EQ(Mode.c_cflag & (CSIZE | PARENB | PARODD | CSTOPB | CRTSCTS), Each.Flags) << Each.Text;
        EXPECT_EQ(::cfgetospeed(&Mode), Each.Speed) << Each.Text;
        EXPECT_EQ(Mode.c_iflag, static_cast<tcflag_t>(INPCK | PARMRK)) << Each.Text;
        EXPECT_EQ(Mode.c_lflag, 0u);
        EXPECT_EQ(Mode.c_oflag, 0u);
        EXPECT_DOUBLE_EQ(Bytes_Per_Second(Settings), Each.Bytes_Per_Second) << Each.Text;
    }
    for (const char* Text : {"", "4800", "4800,n,8", "4800,n,8,1,", "4800,x,8,1", "4800,n,4,1", "4800,n,9,1",
                             "4800,n,8,3", "4800,n,8,1.5", " 4800,n,8,1", "-4800,n,8,1", "4800,none,8,1"}) {
        EXPECT_NE(Error_Of([&] { Parse_Serial_Settings(Text); }), "") << Text;
    }
    EXPECT_EQ(Error_Of([&] { Parse_Serial_Settings("4801,n,8,1"); }), "The baud rate 4801 is not supported");
}
