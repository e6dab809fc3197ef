#pragma once

#include <stdexcept>
#include <string>

namespace brinewright {

// A failure of a handler that is told to the user in a box; the program goes on. What() is the system's error
// text as it stands in messages, for instance "Subscript out of range".
struct Run_Time_Error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The device is there, but another program holds it.
struct Device_Busy : Run_Time_Error {
    using Run_Time_Error::Run_Time_Error;
};

// It may be there, but this user has no right to it.
struct Access_Refused : Run_Time_Error {
    using Run_Time_Error::Run_Time_Error;
};

// What a user, a script or an automation asked for cannot be done as asked: nothing has changed. It is
// answered to the one who asked, not told in a box.
struct User_Refusal : Run_Time_Error {
    using Run_Time_Error::Run_Time_Error;
};

// The value is of the wrong kind or out of range.
struct Value_Refusal : User_Refusal {
    using User_Refusal::User_Refusal;
};

namespace error_text {
inline constexpr const char* Subscript = "Subscript out of range";
inline constexpr const char* Type_Mismatch = "Type mismatch";
inline constexpr const char* Overflow = "Overflow";
inline constexpr const char* Past_End_Of_File = "Input past end of file";
inline constexpr const char* File_Not_Found = "File not found";
inline constexpr const char* Property_Value = "Invalid property value";
} // namespace error_text

} // namespace brinewright
