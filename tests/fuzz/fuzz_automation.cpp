#include "automation/script.hpp"
#include "tests/automation/little_desktop.hpp"
#include "tests/fuzz/require.hpp"

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

} // namespace

// Whatever the lines are, each is answered by what JSON-RPC allows, and so is each change that is pushed. The
// same bytes as a script are refused, or play to their end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const std::string_view All(reinterpret_cast<const char*>(Data), Size);
    Little_Desktop Desk;
    Desk.Hooks_Limit_s = 5;
    for (std::string_view Rest = All; !Rest.empty();) {
        const std::size_t Length = std::min(Rest.find('\n'), Rest.size());
        const std::string Response = Desk.Session.Handle_Line(Rest.substr(0, Length));
        Rest.remove_prefix(std::min(Length + 1, Rest.size()));
        if (Response.empty()) continue;
        Require(Response.find('\n') == std::string::npos);
        const auto Parsed = nlohmann::json::parse(Response);
        Require(!Parsed.empty());
        if (Parsed.is_array())
            for (const auto& One : Parsed) Check_Response(One);
        else
            Check_Response(Parsed);
    }
    for (const std::string& Line : Desk.Pushed) Require(nlohmann::json::parse(Line)["method"] == "changed");

    Little_Desktop Stage;
    std::vector<Script_Line> Lines;
    if (!Read_Script(All, Lines).empty()) return 0;
    const double End_s = Lines.empty() ? 0 : static_cast<double>(Lines.back().Due_us) / 1e6 + 1;
    Script_Player Player(Stage.Target(), Stage.Hooks(), std::move(Lines));
    Stage.Advance(End_s);
    Require(Player.Is_Done());
    return 0;
}
