#pragma once

#include "platform/control.hpp"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace brinewright {

// Objects keep the order in which they are written.
using Json = nlohmann::ordered_json;

// The edge between JSON and the program: texts are UTF-8 outside and 8-bit Latin-1 inside, where they may
// hold a NUL.
std::string To_UTF8(std::string_view Latin1);
// Throws Rpc_Error (Value_Refused) for characters above U+00FF. UTF8 must be valid, as the parser leaves it.
std::string To_Latin1(std::string_view UTF8);

// Parses one line. Throws Rpc_Error: Parse for what is no JSON, Invalid_Request for what nests too deep.
Json Parse_Json(std::string_view Line);
std::string Json_Line(const Json& Value);

// A 32-bit float as the shortest number that stands for it: 1.4 and not 1.39999998.
Json Number_Json(float Value);
// Not-a-number and the infinities, which JSON has no way to write, are null.
Json Number_Json(double Value);
Json Text_Json(std::string_view Latin1);
Json Value_Json(const Control_Value& Value);

// Whole numbers come as integers even when they are written with a fraction of zero. Throws Rpc_Error
// (Value_Refused) for null, arrays, objects and integers beyond 64 bits.
Control_Value To_Control_Value(const Json& Value);

} // namespace brinewright
