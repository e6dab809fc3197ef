#pragma once

#include <string>

#include <termios.h>

namespace brinewright {

// A settings text such as "4800,n,8,1" taken apart.
struct Serial_Settings {
    speed_t Speed = B4800;  // the system's code of the baud rate
    int Baud = 4800;        // bits per second
    char Parity = 'n';      // n, e or o
    int Data_Bits = 8;      // 5 to 8
    bool Two_Stops = false; // with 5 data bits the hardware makes 1.5 stop bits of it
};

// Throws Run_Time_Error with the text that cannot be read, or a baud rate that the system does not have.
Serial_Settings Parse_Serial_Settings(const std::string& Text);

double Bytes_Per_Second(const Serial_Settings& Settings);

// Turns the mode of a terminal into a raw line with these settings, in which errors of the line are marked.
void Set_Line_Mode(termios& Mode, const Serial_Settings& Settings);

} // namespace brinewright
