#include "automation/json_edge.hpp"

#include "automation/rpc_error.hpp"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace brinewright {

namespace {

constexpr int Deepest_Nesting = 32; // more than any request needs; writing a value back recurses

bool Nests_Too_Deep(std::string_view Line) {
    int Depth = 0;
    bool In_Text = false;
    for (std::size_t I = 0; I < Line.size(); ++I) {
        const char C = Line[I];
        if (In_Text) {
            if (C == '\\') ++I;
            if (C == '"') In_Text = false;
        } else if (C == '"') {
            In_Text = true;
        } else if (C == '[' || C == '{') {
            if (++Depth > Deepest_Nesting) return true;
        } else if (C == ']' || C == '}') {
            --Depth;
        }
    }
    return false;
}

} // namespace

std::string To_UTF8(std::string_view Latin1) {
    std::string UTF8;
    UTF8.reserve(Latin1.size());
    for (const char C : Latin1) {
        const auto Code = static_cast<unsigned char>(C);
        if (Code < 0x80) {
            UTF8 += C;
        } else {
            UTF8 += static_cast<char>(0xC0 | (Code >> 6));
            UTF8 += static_cast<char>(0x80 | (Code & 0x3F));
        }
    }
    return UTF8;
}

std::string To_Latin1(std::string_view UTF8) {
    std::string Latin1;
    Latin1.reserve(UTF8.size());
    for (std::size_t I = 0; I < UTF8.size(); ++I) {
        const auto Lead = static_cast<unsigned char>(UTF8[I]);
        if (Lead < 0x80) {
            Latin1 += UTF8[I];
            continue;
        }
        // C2 and C3 lead the characters U+0080 to U+00FF; every other lead byte stands for a greater one.
        if (Lead > 0xC3 || I + 1 >= UTF8.size())
            throw Rpc_Error{rpc_code::Value_Refused, "Texts may hold the characters U+0000 to U+00FF only"};
        const auto Trail = static_cast<unsigned char>(UTF8[++I]);
        Latin1 += static_cast<char>(((Lead & 0x03) << 6) | (Trail & 0x3F));
    }
    return Latin1;
}

Json Parse_Json(std::string_view Line) {
    if (Nests_Too_Deep(Line)) throw Rpc_Error{rpc_code::Invalid_Request, "Invalid Request: nested too deep"};
    try {
        return Json::parse(Line);
    } catch (const Json::parse_error& Failure) {
        // The parser's own text may quote bytes that are no text at all.
        throw Rpc_Error{rpc_code::Parse, "Parse error at byte " + std::to_string(Failure.byte)};
    } catch (const Json::exception&) {
        throw Rpc_Error{rpc_code::Parse, "Parse error: a number is out of range"};
    }
}

std::string Json_Line(const Json& Value) {
    return Value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json Number_Json(float Value) {
    if (!std::isfinite(Value)) return nullptr;
    std::array<char, 32> Digits{};
    const auto Written = std::to_chars(Digits.data(), Digits.data() + Digits.size(), Value);
    double Shortest = 0;
    std::from_chars(Digits.data(), Written.ptr, Shortest);
    return Shortest;
}

Json Number_Json(double Value) {
    if (!std::isfinite(Value)) return nullptr;
    return Value;
}

Json Text_Json(std::string_view Latin1) { return To_UTF8(Latin1); }

Json Value_Json(const Control_Value& Value) {
    struct Writer {
        Json operator()(std::monostate) const { return nullptr; }
        Json operator()(bool B) const { return B; }
        Json operator()(std::int64_t I) const { return I; }
        Json operator()(double D) const { return Number_Json(D); }
        Json operator()(const std::string& Text) const { return Text_Json(Text); }
    };
    return std::visit(Writer(), Value);
}

Control_Value To_Control_Value(const Json& Value) {
    constexpr double Exact_To = 9007199254740992.0; // 2 to the 53rd: doubles count one by one up to here
    if (Value.is_boolean()) return Value.get<bool>();
    if (Value.is_string()) return To_Latin1(Value.get_ref<const std::string&>());
    if (Value.is_number_float()) {
        const double Number = Value.get<double>();
        if (std::trunc(Number) == Number && std::abs(Number) <= Exact_To)
            return static_cast<std::int64_t>(Number);
        return Number;
    }
    if (Value.is_number_unsigned() &&
        Value.get<std::uint64_t>() > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
        throw Rpc_Error{rpc_code::Value_Refused, "The number is out of range"};
    if (Value.is_number()) return Value.get<std::int64_t>();
    throw Rpc_Error{rpc_code::Value_Refused, "The value must be true, false, a number or a text"};
}

} // namespace brinewright
