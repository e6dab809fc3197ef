#include "automation/script.hpp"
#include "tests/automation/little_desktop.hpp"
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/some_inputs.hpp"

#include <nlohmann/json.hpp>

using namespace brinewright;

namespace {

void Check_Response(const nlohmann::json& Response) {
    Require(Response.value("jsonrpc", "") == "2.0");
    Require(Response.contains("id"));
    Require(Response.contains("result") != Response.contains("error"));
    if (Response.contains("error")) {
        Require(Response["error"]["code"].is_number_integer());
        Require(Response["error"]["message"].is_string());
    }
}

void Check_Line(const std::string& Response, bool Whatever_Its_Length) {
    constexpr std::size_t Long_Bytes = 4096; // a list of the state takes a hundred times the rest of an input
    Require(Response.find('\n') == std::string::npos);
    if (Response.size() > Long_Bytes && !Whatever_Its_Length) return;
    const auto Parsed = nlohmann::json::parse(Response);
    Require(!Parsed.empty());
    if (Parsed.is_array())
        for (const auto& One : Parsed) Check_Response(One);
    else
        Check_Response(Parsed);
}

// The desktop that takes all inputs. What one of them has operated is made anew for the next.
Little_Desktop& Untouched_Desktop() {
    static std::unique_ptr<Little_Desktop> Desk;
    static std::uint64_t Revision = 0;
    static std::int64_t Time_us = 0;
    if (!Desk || Desk->Windows.Revision != Revision || Desk->Timers.Time.Wide_us() != Time_us) {
        Desk = std::make_unique<Little_Desktop>();
        Desk->Hooks_Limit_s = 5;
        Revision = Desk->Windows.Revision;
        Time_us = Desk->Timers.Time.Wide_us();
    }
    Desk->Pushed.clear();
    return *Desk;
}

// Two lines are a watch and what it is told of; longer talks are held by some inputs only.
std::string_view First_Lines(std::string_view All) {
    const std::size_t Second = std::min(All.find('\n'), All.size() - 1) + 1;
    return All.substr(0, All.find('\n', Second));
}

void Play_As_Script(std::string_view All) {
    std::vector<Script_Line> Lines;
    if (!Read_Script(All, Lines).empty()) return;
    Little_Desktop Stage;
    const double End_s = Lines.empty() ? 0 : static_cast<double>(Lines.back().Due_us) / 1e6 + 1;
    Script_Player Player(Stage.Target(), Stage.Hooks(), std::move(Lines));
    Stage.Advance(End_s);
    Require(Player.Is_Done());
}

} // namespace

// Whatever the lines are, each is answered by what JSON-RPC allows, and so is each change that is pushed. The
// same bytes as a script are refused, or play to their end, which some of them have to show.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const std::string_view All(reinterpret_cast<const char*>(Data), Size);
    if (All.empty()) return 0;
    Little_Desktop& Desk = Untouched_Desktop();
    Automation_Session Session(Desk.Target(), Desk.Hooks());
    Session.Push = Desk.Session.Push;
    const bool Is_Whole = Is_One_Of_Some(Data, Size);
    for (std::string_view Rest = Is_Whole ? All : First_Lines(All); !Rest.empty();) {
        const std::size_t Length = std::min(Rest.find('\n'), Rest.size());
        const std::string Response = Session.Handle_Line(Rest.substr(0, Length));
        Rest.remove_prefix(std::min(Length + 1, Rest.size()));
        if (!Response.empty()) Check_Line(Response, Is_Whole);
    }
    for (const std::string& Line : Desk.Pushed) Require(nlohmann::json::parse(Line)["method"] == "changed");
    if (Is_Whole) Play_As_Script(All);
    return 0;
}
