#include "platform_linux/serial_settings.hpp"

#include "platform/run_time_error.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <string_view>
#include <vector>

namespace brinewright {

namespace {

struct Baud_Rate {
    int Baud;
    speed_t Speed;
};

constexpr Baud_Rate Baud_Rates[] = {
    {50, B50},           {75, B75},           {110, B110},         {150, B150},         {300, B300},
    {600, B600},         {1200, B1200},       {2400, B2400},       {4800, B4800},       {9600, B9600},
    {19200, B19200},     {38400, B38400},     {57600, B57600},     {115200, B115200},   {230400, B230400},
    {460800, B460800},   {500000, B500000},   {576000, B576000},   {921600, B921600},   {1000000, B1000000},
    {1152000, B1152000}, {1500000, B1500000}, {2000000, B2000000}, {3000000, B3000000},
};

constexpr std::array<tcflag_t, 4> Data_Bit_Flags = {CS5, CS6, CS7, CS8};

std::vector<std::string_view> Split_At_Commas(std::string_view Text) {
    std::vector<std::string_view> Fields;
    for (;;) {
        const std::size_t Comma = Text.find(',');
        Fields.push_back(Text.substr(0, Comma));
        if (Comma == std::string_view::npos) return Fields;
        Text.remove_prefix(Comma + 1);
    }
}

[[noreturn]] void Refuse(const std::string& Text) {
    throw Run_Time_Error(std::string(error_text::Property_Value) + " \"" + Text + "\"");
}

} // namespace

Serial_Settings Parse_Serial_Settings(const std::string& Text) {
    const auto Fields = Split_At_Commas(Text);
    if (Fields.size() != 4 || Fields[1].size() != 1 || Fields[2].size() != 1) Refuse(Text);
    Serial_Settings Result;

    const char* End = Fields[0].data() + Fields[0].size();
    const auto Number = std::from_chars(Fields[0].data(), End, Result.Baud);
    if (Number.ec != std::errc{} || Number.ptr != End) Refuse(Text);
    const auto Rate = std::find_if(std::begin(Baud_Rates), std::end(Baud_Rates),
                                   [&](const Baud_Rate& Each) { return Each.Baud == Result.Baud; });
    if (Rate == std::end(Baud_Rates)) {
        throw Run_Time_Error("The baud rate " + std::string(Fields[0]) + " is not supported");
    }
    Result.Speed = Rate->Speed;

    Result.Parity = static_cast<char>(Fields[1][0] | 0x20); // either case
    if (std::string_view("neo").find(Result.Parity) == std::string_view::npos) Refuse(Text);
    Result.Data_Bits = Fields[2][0] - '0';
    if (Result.Data_Bits < 5 || Result.Data_Bits > 8) Refuse(Text);
    if (Fields[3] != "1" && Fields[3] != (Result.Data_Bits == 5 ? "1.5" : "2")) Refuse(Text);
    Result.Two_Stops = Fields[3] != "1";
    return Result;
}

double Bytes_Per_Second(const Serial_Settings& Settings) {
    const int Bits = 1 + Settings.Data_Bits + (Settings.Parity != 'n' ? 1 : 0) + (Settings.Two_Stops ? 2 : 1);
    return static_cast<double>(Settings.Baud) / Bits;
}

void Set_Line_Mode(termios& Mode, const Serial_Settings& Settings) {
    ::cfmakeraw(&Mode); // one byte satisfies a read, so that 0 bytes always mean that the device is gone
    Mode.c_iflag &= static_cast<tcflag_t>(~(IGNBRK | IGNPAR | IXOFF | IXANY));
    Mode.c_iflag |= INPCK | PARMRK;
    Mode.c_cflag &= static_cast<tcflag_t>(~(CSIZE | PARENB | PARODD | CSTOPB | CRTSCTS | CMSPAR));
    Mode.c_cflag |= CLOCAL | CREAD | Data_Bit_Flags[static_cast<std::size_t>(Settings.Data_Bits - 5)];
    if (Settings.Parity != 'n') Mode.c_cflag |= PARENB;
    if (Settings.Parity == 'o') Mode.c_cflag |= PARODD;
    if (Settings.Two_Stops) Mode.c_cflag |= CSTOPB;
    ::cfsetispeed(&Mode, Settings.Speed);
    ::cfsetospeed(&Mode, Settings.Speed);
}

} // namespace brinewright
