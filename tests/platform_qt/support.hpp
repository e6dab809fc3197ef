#pragma once

#include "platform/run_time_error.hpp"
#include "platform_linux/unique_fd.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

namespace brinewright {

// Runs the event loop until Reached, at most for Limit_ms. The result is whether it was reached.
bool Run_Until(const std::function<bool()>& Reached, int Limit_ms = 5000);
// Runs the event loop for that long; for showing that something does not happen.
void Run_For(int Duration_ms);

// A folder that is removed with all it holds.
struct Scratch_Folder {
    Scratch_Folder();
    ~Scratch_Folder();
    std::string Path; // without "/" at the end
    std::string operator/(const std::string& Name) const { return Path + "/" + Name; }
};

// A TCP port (SOCK_STREAM) or UDP port (SOCK_DGRAM) of 127.0.0.1 that nobody uses.
std::int32_t Free_Port(int Kind);
Unique_Fd Connect_TCP(std::int32_t Port, int Receive_Buffer_Bytes = 0); // to 127.0.0.1
Unique_Fd Connect_Local(const std::string& Path);

void Send_All(const Unique_Fd& Socket, const std::string& Text);
// Appends what can be read at once; false when the peer has closed or reset.
bool Read_More(const Unique_Fd& Source, std::string& Text);

// The text of the Run_Time_Error that Work throws; empty when it throws none.
std::string Error_Of(const std::function<void()>& Work);

} // namespace brinewright
