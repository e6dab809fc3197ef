#pragma once

#include <string>

namespace brinewright {

// Codes of errors: those of JSON-RPC, then this system's own. They are a promise to the scripts of users.
namespace rpc_code {
inline constexpr int Parse = -32700;
inline constexpr int Invalid_Request = -32600;
inline constexpr int Unknown_Method = -32601;
inline constexpr int Params = -32602;
inline constexpr int Internal = -32603;
inline constexpr int Unknown_Path = -32000;
inline constexpr int Closed = -32001;        // the path is good, its window is not open
inline constexpr int Refused = -32002;       // as a user is refused: disabled, hidden, nothing to click
inline constexpr int Value_Refused = -32003; // wrong kind of value, or out of range
inline constexpr int Read_Only = -32004;     // only the program itself sets it
inline constexpr int Not_Virtual = -32005;
inline constexpr int Not_Available = -32006; // this program cannot do it, or it failed
inline constexpr int Unknown_Box = -32007;
} // namespace rpc_code

// Ends a request with an error; nothing has changed. The message is 8-bit text.
struct Rpc_Error {
    int Code = 0;
    std::string Message;
};

} // namespace brinewright
