#include "automation/script.hpp"
#include "platform/trimmed.hpp"

#include "automation/core.hpp"
#include "automation/methods.hpp"
#include "automation/rpc_error.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace brinewright {

namespace {

constexpr double Longest_Script_s = 366.0 * 86400.0;

[[noreturn]] void Wrong(const std::string& Why) { throw Rpc_Error{rpc_code::Parse, Why}; }

constexpr std::string_view Blanks = " \t\r";

std::int64_t Read_Time_us(std::string_view Text, std::int64_t Previous_us) {
    const bool Relative = Text.front() == '+';
    if (Relative) Text.remove_prefix(1);
    double Time_s = 0;
    const auto [End, Failure] =
        std::from_chars(Text.data(), Text.data() + Text.size(), Time_s, std::chars_format::fixed);
    if (Failure != std::errc() || End != Text.data() + Text.size() ||
        !(Time_s >= 0 && Time_s <= Longest_Script_s))
        Wrong("a time in seconds is wanted at the start, as 12.5 or +0.5");
    const std::int64_t Time_us = std::llround(Time_s * 1e6) + (Relative ? Previous_us : 0);
    if (Time_us < Previous_us) Wrong("the time is before that of the line before");
    return Time_us;
}

// Without an id there would be no response, and errors would pass unseen.
void Complete(Json& Request, int Line_Number) {
    if (!Request.is_object()) Wrong("a request is an object");
    if (!Request.contains("jsonrpc")) Request["jsonrpc"] = "2.0";
    if (!Request.contains("id")) Request["id"] = Line_Number;
    const auto Method = Request.find("method");
    if (Method == Request.end() || !Method->is_string()) Wrong("method must be a text");
    if (const auto Given = Request.find("params"); Given != Request.end() && !Given->is_structured())
        Wrong("params must be an object or an array");
    Bind_Parameters(Find_Method(Method->get_ref<const std::string&>()), Request);
}

Script_Line Read_Line(std::string_view Line, int Line_Number, std::int64_t Previous_us) {
    const std::size_t Time_Length = std::min(Line.find_first_of(" \t"), Line.size());
    const std::int64_t Due_us = Read_Time_us(Line.substr(0, Time_Length), Previous_us);
    Json Message = Parse_Json(Trimmed(Line.substr(Time_Length), Blanks));
    if (Message.is_array()) {
        for (Json& Request : Message) Complete(Request, Line_Number);
    } else {
        Complete(Message, Line_Number);
    }
    return {Due_us, Json_Line(Message), Line_Number};
}

bool Is_Error(const std::string& Response) {
    const Json Parsed = Json::parse(Response);
    if (!Parsed.is_array()) return Parsed.contains("error");
    return std::any_of(Parsed.begin(), Parsed.end(), [](const Json& One) { return One.contains("error"); });
}

// A script line runs while time passes, so it cannot itself let time pass.
Automation_Hooks Without_Advance(Automation_Hooks Hooks) {
    if (Hooks.Advance)
        Hooks.Advance = [](double) { throw User_Refusal("A script waits by the times of its lines"); };
    return Hooks;
}

} // namespace

std::string Read_Script(std::string_view Text, std::vector<Script_Line>& Lines) {
    std::vector<Script_Line> Read;
    int Line_Number = 0;
    while (!Text.empty()) {
        ++Line_Number;
        const std::size_t Length = std::min(Text.find('\n'), Text.size());
        const std::string_view Line = Trimmed(Text.substr(0, Length), Blanks);
        Text.remove_prefix(std::min(Length + 1, Text.size()));
        if (Line.empty() || Line.front() == '#') continue;
        try {
            Read.push_back(Read_Line(Line, Line_Number, Read.empty() ? 0 : Read.back().Due_us));
        } catch (const Rpc_Error& Failure) {
            return "line " + std::to_string(Line_Number) + ": " + Failure.Message;
        }
    }
    Lines = std::move(Read);
    return {};
}

Script_Player::Script_Player(Automation_Target Target, Automation_Hooks Hooks,
                             std::vector<Script_Line> Script)
    : Timers(Target.Windows.Timers), Lines(std::move(Script)), Started_us(Timers.Time.Wide_us()),
      Session(Target, Without_Advance(std::move(Hooks))) {
    Session.Push = [this](const std::string& Change) {
        if (On_Output) On_Output(0, Change);
    };
    Alarm.Tick = [this] { Play_Next(); };
    Await_Next();
}

Script_Player::~Script_Player() { Timers.Stop(Alarm); }

void Script_Player::Await_Next() {
    if (Is_Done()) return Timers.Stop(Alarm);
    const std::int64_t Wait_us = Started_us + Lines[Next].Due_us - Timers.Time.Wide_us();
    Timers.Start(Alarm, std::max<std::int64_t>(Wait_us, 1)); // 0 would be no timer
}

void Script_Player::Play_Next() {
    const Script_Line Line = Lines[Next++];
    const std::string Response = Session.Handle_Line(Line.Message);
    Await_Next();
    if (!Response.empty() && Is_Error(Response)) {
        ++Error_Count;
        if (On_Error) On_Error(Line.Line_Number, Response);
    }
    if (!Response.empty() && On_Output) On_Output(Line.Line_Number, Response);
}

} // namespace brinewright
