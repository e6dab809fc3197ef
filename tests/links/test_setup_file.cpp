#include "tests/links/test_setup_file_support.hpp"

#include <cmath>
#include <limits>
#include <set>

namespace brinewright {
namespace {

Simulator_State Read(const std::string& Bytes) {
    Simulator_State State;
    Read_Setup(Bytes, State, All_Windows());
    return State;
}

// The variables that the file keeps come out of reading and the others stay at their defaults.
void Expect_Kept_And_Nothing_Else(const Leaf_Texts& Read_Back, const Leaf_Texts& Filled) {
    std::set<std::string> Kept;
    for (const auto& Fields : Layout_Of_File()) Kept.insert(Fields.begin(), Fields.end());
    Kept.erase("ARPA_Random_Count"); // written, and set back to 0 by reading
    const Leaf_Texts Zero = All_Texts(Simulator_State{});
    for (const auto& [Path, Text] : Read_Back)
        EXPECT_EQ(Text, Kept.contains(Path) ? Filled.at(Path) : Zero.at(Path)) << Path;
}

TEST(Setup_File, Every_Field_Stands_In_Its_Place) {
    for (int Bit = 0; Bit <= 11; ++Bit) {
        const Simulator_State State = Filled_State(Bit);
        const Leaf_Texts Values = All_Texts(State);
        ASSERT_EQ(Write_Setup(State, All_Windows()), File_Of(Values)) << "bit " << Bit;
        Expect_Kept_And_Nothing_Else(All_Texts(Read(File_Of(Values))), Values);
    }
}

TEST(Setup_File, Default_State_Is_The_Golden_File) {
    Simulator_State State;
    Load_Default_Data(State, All_Windows());
    EXPECT_EQ(Write_Setup(State, All_Windows()), File_Bytes("default.ini"));
}

TEST(Setup_File, Defaults_Touch_Nothing_Else) {
    Simulator_State Zero;
    Load_Default_Data(Zero, All_Windows());
    const Leaf_Texts Defaults = All_Texts(Zero);
    const Leaf_Texts Nothing = All_Texts(Simulator_State{});
    Simulator_State State = Filled_State(3);
    const Leaf_Texts Before = All_Texts(State);
    Load_Default_Data(State, All_Windows());
    for (const auto& [Path, Text] : All_Texts(State)) {
        const bool Set_To_Zero =
            Path.ends_with("_Interval") || Path.find("_Interval[") != std::string::npos; // the interval table
        if (Defaults.at(Path) != Nothing.at(Path) || Set_To_Zero)
            EXPECT_EQ(Text, Defaults.at(Path)) << Path;
        else
            EXPECT_EQ(Text, Before.at(Path)) << Path;
    }
}

TEST(Setup_File, Line_Ends_And_A_Missing_Last_One_Do_Not_Matter) {
    const Leaf_Texts Values = All_Texts(Filled_State(1));
    for (const std::string Line_End : {"\r\n", "\n", "\r", " \t\r\n"}) {
        const std::string Bytes = File_Of(Values, Line_End);
        Expect_Kept_And_Nothing_Else(All_Texts(Read(Bytes)), Values);
        const std::string Without_Last = Bytes.substr(0, Bytes.size() - Line_End.size());
        Expect_Kept_And_Nothing_Else(All_Texts(Read(Without_Last)), Values);
    }
    Expect_Kept_And_Nothing_Else(All_Texts(Read("\xEF\xBB\xBF" + File_Of(Values))), Values);
}

TEST(Setup_File, Sections_In_Any_Order_With_Unknown_Ones_Between) {
    const Leaf_Texts Values = All_Texts(Filled_State(2));
    std::vector<std::string> Sections;
    for (const auto& Fields : Layout_Of_File()) {
        if (Fields[0][0] == '"') Sections.emplace_back();
        Sections.back() += File_Line(Fields, Values);
    }
    ASSERT_EQ(Sections.size(), 51u);
    std::string Backwards;
    for (auto Section = Sections.rbegin(); Section != Sections.rend(); ++Section)
        Backwards +=
            *Section +
            "\"REM Of another version\"\r\n#TRUE#,12,\"REMnant, REM Mode\"\r\n\"rem Mode\",5,\"open\r\n";
    Expect_Kept_And_Nothing_Else(All_Texts(Read(Backwards)), Values);
}

TEST(Setup_File, A_File_Without_The_Late_Sections_Leaves_Second_Instances_Alone) {
    const Leaf_Texts Values = All_Texts(Filled_State(0));
    std::string Old;
    for (const auto& Fields : Layout_Of_File()) {
        if (Fields[0] == "\"REM Sensor settings v6\"") break;
        Old += File_Line(Fields, Values);
    }
    const Simulator_State State = Read(Old);
    EXPECT_EQ(Text_Of(State.Of<Wind_State>().Wind_Speed[1]), Values.at("Wind_Speed[1]"));
    EXPECT_EQ(Text_Of(State.Of<Log_State>().VLW_Interval[1]), Values.at("VLW_Interval[1]"));
    EXPECT_EQ(Text_Of(State.Of<Link_State>().Port_Table[25].Present), Values.at("Port_Table[25].Present"));
    EXPECT_EQ(State.Of<Wind_State>().Wind_Speed[2], 0);
    EXPECT_EQ(State.Of<Log_State>().Log_Talker[2], "");
    EXPECT_EQ(State.Of<Log_State>().VLW_Interval[2], 0);
    EXPECT_EQ(State.Of<Link_State>().Sensor_Table[9].Name, "");
    EXPECT_EQ(State.Of<Link_State>().UDP_Port_Number[8], 0);

    const Leaf_Texts Only_Mode = All_Texts(Read("\"REM Mode\"\r\n\"Sensor\"\r\n"));
    for (const auto& [Path, Text] : All_Texts(Simulator_State{}))
        EXPECT_EQ(Only_Mode.at(Path), Path == "Mode" ? "\"Sensor\"" : Text) << Path;
}

TEST(Setup_File, Navdata_Is_Passed_Over_When_Not_Wanted) {
    Simulator_State State;
    State.Of<Navdata_State>().Nav_Lat = 1.5;
    State.Of<Shell_State>().Freeze_Active = true;
    Read_Setup(
        "\"REM Current navdata\"\r\n#FALSE#\r\n62.5,6\r\n12,270\r\n271,-3.5\r\n40.25\r\n10,200\r\n#FALSE#\r\n"
        "\"REM UTCOffset\"\r\n-120\r\n",
        State, All_Windows());
    EXPECT_EQ(State.Of<Navdata_State>().Nav_Lat, 1.5);
    EXPECT_EQ(State.Of<Navdata_State>().Nav_Lon, 0);
    EXPECT_EQ(State.Of<Wind_State>().Wind_Speed[1], 0);
    EXPECT_EQ(State.Of<Echo_State>().Echo_Depth, 0);
    EXPECT_TRUE(State.Of<Shell_State>().Freeze_Active);
    EXPECT_EQ(State.Of<UTC_State>().UTC_Offset_Hours, -120);
}

TEST(Setup_File, A_Marker_Inside_Skipped_Data_Counts) {
    // A text of an unknown section that reads like a marker is taken for one; inside a known section it is
    // not.
    EXPECT_EQ(Read("\"REM Unknown\"\r\n1,\"REM LatLon Format\"\r\n7\r\n").Of<Shell_State>().LatLon_Format, 7);
    EXPECT_EQ(Read("\"REM Autopilot\"\r\n1,\"REM LatLon Format\"\r\n7\r\n").Of<Shell_State>().LatLon_Format,
              0);
    EXPECT_EQ(Read("\"REM latlon format\"\r\n7\r\n\"REM LatLon Format x\"\r\n7\r\n")
                  .Of<Shell_State>()
                  .LatLon_Format,
              0);
}

TEST(Setup_File, Numbers_In_All_Their_Forms) {
    const auto Lat = [](const std::string& Text) {
        return Read("\"REM Public variables\"\r\n" + Text + ",0\r\n0,0,0\r\n0\r\n0,0,0,0,0")
            .Of<Navdata_State>()
            .Start_Lat;
    };
    EXPECT_EQ(Lat(".5"), 0.5);
    EXPECT_EQ(Lat("-.5"), -0.5);
    EXPECT_EQ(Lat("+0012.250"), 12.25);
    EXPECT_EQ(Lat(" 7. "), 7);
    EXPECT_EQ(Lat("25E-1"), 2.5);
    EXPECT_EQ(Lat("1e+2"), 100);
    EXPECT_EQ(Read("\"REM UTCOffset\"\n-032768\n").Of<UTC_State>().UTC_Offset_Hours, -32768);
    EXPECT_EQ(Read("\"REM UTCOffset\"\n+32767\n").Of<UTC_State>().UTC_Offset_Hours, 32767);
    EXPECT_TRUE(Read("\"REM Use UTC\"\n#true#").Of<UTC_State>().Use_UTC);
}

TEST(Setup_File, Numbers_Are_Written_Short_And_Exact) {
    const auto Written = [](double Start, float Ahead) {
        Simulator_State State;
        State.Of<Navdata_State>().Start_Lat = Start;
        State.Of<Navdata_State>().Max_Speed_Ahead = Ahead;
        const std::string Bytes = Write_Setup(State, All_Windows());
        const Simulator_State Back = Read(Bytes);
        EXPECT_EQ(Back.Of<Navdata_State>().Start_Lat, std::isnan(Start) ? 0 : Start);
        EXPECT_EQ(Back.Of<Navdata_State>().Max_Speed_Ahead, Ahead);
        const std::string Marker = "\"REM Public variables\"\r\n";
        const std::size_t First = Bytes.find(Marker) + Marker.size();
        return Bytes.substr(First, Bytes.find(",0,0", First + 1) - First);
    };
    EXPECT_EQ(Written(0.1, 12.3f), "0.1,0\r\n12.3");
    EXPECT_EQ(Written(-1e21, 0.00001f), "-1000000000000000000000,0\r\n0.00001");
    EXPECT_EQ(Written(1.0 / 3, 16777216), "0.3333333333333333,0\r\n16777216");
    EXPECT_EQ(Written(std::numeric_limits<double>::quiet_NaN(), 1),
              "0,0\r\n1"); // else nothing would load again
    for (const double Extreme :
         {std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::lowest()})
        EXPECT_EQ(Written(Extreme, std::numeric_limits<float>::denorm_min()).find_first_of("eE"),
                  std::string::npos);
}

TEST(Setup_File, Texts_With_Commas_And_Quotation_Marks) {
    const auto Route_After_Saving = [](const std::string& Text) {
        Simulator_State State;
        State.Of<Autopilot_State>().Route_File = Text;
        State.Of<Autopilot_State>().Autopilot_Mode = 2;
        const Simulator_State Back = Read(Write_Setup(State, All_Windows()));
        EXPECT_EQ(Back.Of<Autopilot_State>().Autopilot_Mode, 2) << Text;
        return Back.Of<Autopilot_State>().Route_File;
    };
    for (const std::string Text : {"", "a, b,,c", "\"", "\"\"", "say \"aye\" twice", "ends in a mark\"",
                                   " blanks ", "\xB0 \xD8", "REM Mode", "#TRUE#", "12"})
        EXPECT_EQ(Route_After_Saving(Text), Text);
    EXPECT_EQ(Route_After_Saving(std::string("nul \0 in it", 11)), std::string("nul \0 in it", 11));
    // What the format cannot hold is replaced.
    EXPECT_EQ(Route_After_Saving("a\",b"), "a',b");
    EXPECT_EQ(Route_After_Saving("\",\",\r\nx\n"), "',',  x ");
    // Leaf_Texts typed into the file by hand.
    EXPECT_EQ(Read("\"REM Mode\"\nShip\n").Of<Shell_State>().Mode, "Ship");
    EXPECT_EQ(Read("\"REM Mode\"\n  \"Ship\"  \n").Of<Shell_State>().Mode, "Ship");
}

} // namespace
} // namespace brinewright
