#include "platform/run_time_error.hpp"
#include "shell/state/simulator_state.hpp"
#include "extra/extra_state.hpp"
#include "gnss/gnss_state.hpp"
#include "shell/state/link_state.hpp"
#include "radar/radar_state.hpp"
#include "shell/state/shell_state.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace brinewright {
namespace {

namespace fs = std::filesystem;

struct State_Header {
    std::string Name;
    std::string Text; // without comments
};

std::vector<State_Header> State_Headers() {
    std::vector<State_Header> Headers;
    for (const auto& Entry : fs::directory_iterator(BRINEWRIGHT_SOURCE_DIR "/shell/state")) {
        std::ifstream File(Entry.path(), std::ios::binary);
        const std::string Text(std::istreambuf_iterator<char>(File), {});
        Headers.push_back({Entry.path().filename(), std::regex_replace(Text, std::regex("//[^\n]*"), "")});
    }
    return Headers;
}

// Everything between the braces behind what Opening matches; group 1 of it is the name.
std::vector<std::pair<std::string, std::string>> Bodies(const std::string& Text, const std::string& Opening) {
    std::vector<std::pair<std::string, std::string>> Found;
    const std::regex Start(Opening);
    for (std::sregex_iterator I(Text.begin(), Text.end(), Start), End; I != End; ++I) {
        const auto First = static_cast<std::size_t>(I->position() + I->length());
        Found.emplace_back((*I)[1], Text.substr(First, Text.find("\n}", First) - First));
    }
    return Found;
}

std::vector<std::string> Declared_Members(const std::string& Body) {
    // The last word before an initialiser or the semicolon.
    const std::regex Declaration(R"((\w+)(?:\{\}|\s*=[^;]*)?;)");
    std::vector<std::string> Names;
    for (std::sregex_iterator I(Body.begin(), Body.end(), Declaration), End; I != End; ++I)
        Names.push_back((*I)[1]);
    return Names;
}

std::vector<std::string> Visited_Members(const std::string& Body) {
    const std::regex Line(R"re(Visit\("(\w+)", [SR]\.(\w+)\);)re");
    std::vector<std::string> Names;
    for (std::sregex_iterator I(Body.begin(), Body.end(), Line), End; I != End; ++I) {
        EXPECT_EQ((*I)[1], (*I)[2]);
        Names.push_back((*I)[1]);
    }
    return Names;
}

TEST(Simulator_State, Every_Member_Has_Its_Visit_Line) {
    std::size_t Members = 0;
    for (const auto& [Name, Text] : State_Headers()) {
        const auto Structs = Bodies(Text, R"(struct (\w+) \{)");
        const auto Visits = Bodies(Text, R"(void Visit_(?:State|Record)\((\w+)& [SR], Visitor&& Visit\) \{)");
        ASSERT_FALSE(Structs.empty()) << Name;
        ASSERT_EQ(Structs.size(), Visits.size()) << Name;
        for (std::size_t I = 0; I < Structs.size(); ++I) {
            EXPECT_EQ(Structs[I].first, Visits[I].first) << Name;
            const auto Declared = Declared_Members(Structs[I].second);
            EXPECT_EQ(Declared, Visited_Members(Visits[I].second)) << Name << ", " << Structs[I].first;
            Members += Declared.size();
        }
    }
    EXPECT_GT(Members, 250u); // the patterns found what there is
}

TEST(Simulator_State, Every_Area_Is_Part_Of_The_State_And_No_Name_Is_There_Twice) {
    Simulator_State State;
    std::set<std::string> Visited;
    Visit_State(State, [&](const std::string& Name, auto&) {
        EXPECT_TRUE(Visited.insert(Name).second) << Name << " is in two areas";
    });
    for (const auto& [Name, Text] : State_Headers())
        for (const auto& [Area, Body] : Bodies(Text, R"(void Visit_State\((\w+)& S, Visitor&& Visit\) \{)"))
            for (const auto& Member : Visited_Members(Body))
                EXPECT_TRUE(Visited.contains(Member)) << Area << "::" << Member;
}

TEST(Simulator_State, Tables_Have_The_Told_Bounds) {
    Simulator_State S;
    const auto Expect_Bounds = [](auto& Table, int First, int Last) {
        EXPECT_NO_THROW(Table[First]);
        EXPECT_NO_THROW(Table[Last]);
        EXPECT_THROW(Table[First - 1], Run_Time_Error);
        EXPECT_THROW(Table[Last + 1], Run_Time_Error);
    };
    Expect_Bounds(S.Of<Link_State>().Port_Table, 1, 28);
    Expect_Bounds(S.Of<Link_State>().Sensor_Table, 1, 11);
    Expect_Bounds(S.Of<Shell_State>().Open_Form_List, 1, 20);
    Expect_Bounds(S.Of<Link_State>().UDP_Port_Number, 0, 10);
    Expect_Bounds(S.Of<Radar_State>().ARPA_Target, 1, 50);
    Expect_Bounds(S.Of<GNSS_State>().Sky_Table, 1, 88);
    Expect_Bounds(S.Of<GNSS_State>().Svs_In_Use, 1, 88);
    Expect_Bounds(S.Of<GNSS_State>().GNSS_Lat, 1, 2);
    Expect_Bounds(S.Of<GNSS_State>().GGA_Enabled, 1, 2);
    Expect_Bounds(S.Of<Extra_State>().Extra_GNSS, 0, 3);
    Expect_Bounds(S.Of<Extra_State>().Sync_GGA, 1, 2);
    Expect_Bounds(S.Of<Extra_State>().Sync_GGA[2], 0, 3);
    Expect_Bounds(S.Of<GNSS_State>().GNSS_System_Mode, 1, 6);
    Expect_Bounds(S.Of<GNSS_State>().GNSS_System_Mode[6], 1, 6);
    Expect_Bounds(S.Of<Link_State>().Transmit.Last_Tx_Time, 0, 17);
    Expect_Bounds(S.Of<Link_State>().Transmit.Monitor_Line_Count, 0, 27);
    Expect_Bounds(S.Of<Link_State>().Transmit.UdPbC_Sequence, 0, 28); // every port has its counters
    Expect_Bounds(S.Of<Link_State>().Transmit.UdPbC_Group, 0, 28);
}

} // namespace
} // namespace brinewright
