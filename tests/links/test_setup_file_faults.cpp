#include "shell/main/setup_names.hpp"
#include "tests/links/test_setup_file_support.hpp"

#include <chrono>

namespace brinewright {
namespace {

// Empty when reading succeeds, else the text of the failure.
std::string Failure_Of(const std::string& Bytes, Simulator_State& State) {
    try {
        Read_Setup(Bytes, State, All_Windows());
    } catch (const Run_Time_Error& Error) {
        return Error.what();
    }
    return {};
}

std::string Failure_Of(const std::string& Bytes) {
    Simulator_State State;
    return Failure_Of(Bytes, State);
}

TEST(Setup_File_Faults, A_Field_Of_The_Wrong_Form) {
    struct Case {
        const char* Bytes;
        const char* Failure;
    };
    const Case Cases[] = {
        // 16-bit integer
        {"\"REM UTCOffset\"\n32768\n", "Overflow"},
        {"\"REM UTCOffset\"\n-32769\n", "Overflow"},
        {"\"REM UTCOffset\"\n99999999999999999999999\n", "Overflow"},
        {"\"REM UTCOffset\"\n1.5\n", "Type mismatch"},
        {"\"REM UTCOffset\"\n12a\n", "Type mismatch"},
        {"\"REM UTCOffset\"\n\"12\"\n", "Type mismatch"},
        {"\"REM UTCOffset\"\n#TRUE#\n", "Type mismatch"},
        {"\"REM UTCOffset\"\n\n", "Type mismatch"},
        {"\"REM UTCOffset\"\n--1\n", "Type mismatch"},
        {"\"REM UTCOffset\"\n+-1\n", "Type mismatch"},
        {"\"REM UTCOffset\"\n\"REM Mode\"\n\"Ship\"\n", "Type mismatch"},
        {"\"REM UTCOffset\"", "Input past end of file"},
        {"\"REM UTCOffset\"\n", "Input past end of file"},
        // 32-bit integer
        {"\"REM TCP/IP settings\"\n#TRUE#,#TRUE#,2147483648\n", "Overflow"},
        {"\"REM TCP/IP settings\"\n#TRUE#,#TRUE#,8040.0\n", "Type mismatch"},
        {"\"REM TCP/IP settings\"\n#TRUE#,#TRUE#\n", "Input past end of file"},
        // boolean
        {"\"REM Use UTC\"\nTRUE\n", "Type mismatch"},
        {"\"REM Use UTC\"\n-1\n", "Type mismatch"},
        {"\"REM Use UTC\"\n\"#TRUE#\"\n", "Type mismatch"},
        {"\"REM Use UTC\"\n#TRUE\n", "Type mismatch"},
        // 32-bit float
        {"\"REM ShipNoise\"\n1e39,0\n", "Overflow"},
        {"\"REM ShipNoise\"\n0,nan\n", "Type mismatch"},
        {"\"REM ShipNoise\"\n0,-inf\n", "Type mismatch"},
        {"\"REM ShipNoise\"\n0x10,0\n", "Type mismatch"},
        {"\"REM ShipNoise\"\n0;5,0\n", "Type mismatch"},
        {"\"REM ShipNoise\"\n.,0\n", "Type mismatch"},
        {"\"REM ShipNoise\"\n1e,0\n", "Type mismatch"},
        {"\"REM ShipNoise\"\n1\n", "Input past end of file"},
        // double
        {"\"REM Startpositions\"\n1e309,0\n", "Overflow"},
        {"\"REM Startpositions\"\n62 35 30N,0\n", "Type mismatch"},
        // text
        {"\"REM Mode\"\n\"Ship\n", "Input past end of file"},
        {"\"REM Mode\"\n\"Ship\n\"REM UTCOffset\"\n", "Type mismatch"},
        {"\"REM Mode\"", "Input past end of file"},
        // a count that the list has no room for
        {"\"REM Open forms\"\n-3\n", "Subscript out of range"},
        {"\"REM Open forms\"\n21\n", "Subscript out of range"},
        {"\"REM Open forms\"\n30000\n\"frmShip\",0,1,2,3,4\n", "Subscript out of range"},
        {"\"REM Open forms\"\n2\n\"frmShip\",0,1,2,3,4\n", "Input past end of file"},
        // the navdata are looked at even when they are thrown away
        {"\"REM Current navdata\"\n#FALSE#\nhere,0\n", "Type mismatch"},
    };
    for (const Case& C : Cases) EXPECT_EQ(Failure_Of(C.Bytes), C.Failure) << C.Bytes;
}

TEST(Setup_File_Faults, What_Was_Read_Before_The_Failure_Stays) {
    Simulator_State State;
    State.Of<Shell_State>().Open_Form_Count = 4;
    EXPECT_EQ(
        Failure_Of("\"REM LatLon Format\"\n1\n\"REM UTC Offset GNSS2\"\n60,x,9\n\"REM Mode\"\n\"Ship\"\n",
                   State),
        "Type mismatch");
    EXPECT_EQ(State.Of<Shell_State>().LatLon_Format, 1);
    EXPECT_EQ(State.Of<UTC_State>().GNSS2_UTC_Offset_Hours, 60);
    EXPECT_EQ(State.Of<UTC_State>().GNSS2_UTC_Offset_Seconds, 0);
    EXPECT_EQ(State.Of<Shell_State>().Mode, "");
    // A count that cannot be is never met in the state: the next saving has to work.
    EXPECT_EQ(Failure_Of("\"REM Open forms\"\n30000\n", State), "Subscript out of range");
    EXPECT_EQ(State.Of<Shell_State>().Open_Form_Count, 4);
    EXPECT_NO_THROW(Write_Setup(State, All_Windows()));
    State.Of<Shell_State>().Open_Form_Count = 21;
    EXPECT_THROW(Write_Setup(State, All_Windows()), Run_Time_Error);
}

TEST(Setup_File_Faults, Bytes_That_Are_No_Setup_Change_Nothing) {
    const Leaf_Texts Before = All_Texts(Filled_State(4));
    std::string Every_Byte;
    for (int Byte = 0; Byte < 256; ++Byte) Every_Byte += static_cast<char>(Byte);
    for (const std::string& Bytes :
         {std::string(), std::string(1, '"'), std::string(",,,\r\r\n\n"), Every_Byte, std::string(5000, '\0'),
          std::string("%PDF-1.4\nREM Modes, \"REM")}) {
        Simulator_State State = Filled_State(4);
        EXPECT_EQ(Failure_Of(Bytes, State), "");
        EXPECT_EQ(All_Texts(State), Before);
    }
}

// The failure, if any, is one of the told kinds, and the state can be saved and read again afterwards.
std::string Expect_Sound_Outcome(const std::string& Bytes, const std::string& Hint) {
    Simulator_State State;
    const std::string Failure = Failure_Of(Bytes, State);
    const bool Known = Failure.empty() || Failure == error_text::Past_End_Of_File ||
                       Failure == error_text::Type_Mismatch || Failure == error_text::Overflow ||
                       Failure == error_text::Subscript;
    EXPECT_TRUE(Known) << Failure << Hint;
    const std::string Saved = Write_Setup(State, All_Windows());
    EXPECT_EQ(Failure_Of(Saved, State), "") << Hint;
    EXPECT_TRUE(Write_Setup(State, All_Windows()) == Saved) << Hint; // too long to be printed
    return Failure;
}

TEST(Setup_File_Faults, Cut_At_Every_Byte) {
    const std::string Bytes = File_Of(All_Texts(Filled_State(5)));
    const std::size_t Known_From = Bytes.find("\"REM Comport");
    for (std::size_t Length = 0; Length < Bytes.size(); ++Length) {
        const std::string Told =
            Expect_Sound_Outcome(Bytes.substr(0, Length), " cut at " + std::to_string(Length));
        const bool In_Line = Length > Known_From && Bytes[Length - 1] != '\r' && Bytes[Length - 1] != '\n';
        EXPECT_TRUE(!In_Line || !Told.empty()) << Length;
    }
    EXPECT_EQ(Failure_Of(Bytes + "\"REM Unknown\"\r\n\"open\r\n"), "Type mismatch");
}

// What no control could give becomes the default of its field; all else stays, also what lies on its limit.
TEST(Setup_File_Faults, Values_That_Cannot_Be) {
    struct Case {
        const char *Section, *Wrong;
        std::vector<std::string> Repaired;
    };
    const Case Cases[] = {
        {"Mode", "\"ship\"", {"Mode"}},
        {"Startpositions", "90.1,-180.1\n90,180", {"GNSS_Start_Lat[1]", "GNSS_Start_Lon[1]"}},
        {"Startpositions", "62,5,6.17\n-90,-180", {"GNSS_Start_Lat[1]", "GNSS_Start_Lon[1]"}},
        {"Startpositions", "1,2\n62,5,6,25", {"GNSS_Start_Lat[2]", "GNSS_Start_Lon[2]"}},
        {"Startpositions", "1,2,3,4,5,6", {}}, // joined lines, and more of them
        {"ShipNoise", "1000000,999999", {"Ship_SOG_Noise_Index"}},
        {"TCP/IP settings", "#TRUE#,#TRUE#,65536", {"TCP_Port"}},
        {"Talker ID",
         "\"G\x01\",\"gp\",\"\",\"HEX\"\n\"1W\",\"S-\",\"RA\",\"WI\"",
         {"GNSS_Talker[1]", "Gyro_Talker[2]", "Echo_Talker[1]"}},
        {"UDP Mode", "1,\"10.0.0.1\x7F\"", {"UDP_Remote_Host"}},
        {"Current navdata", "#FALSE#\n200,0\n0,0\n0,0\n0\n0,0\n#FALSE#", {}}, // thrown away
        {"Current navdata", "#TRUE#\n200,0\n0,0\n0,0\n0\n0,361\n#FALSE#", {"Nav_Lat", "Wind_Direction[1]"}},
    };
    Simulator_State Defaults;
    Load_Default_Data(Defaults, All_Windows());
    Simulator_State State = Defaults;
    EXPECT_TRUE(Repair_Values(State, {}, All_Windows()).empty());
    const Leaf_Texts Right = All_Texts(Defaults);
    for (const Case& C : Cases) {
        State = Defaults;
        const auto Reading =
            Read_Setup(std::string("\"REM ") + C.Section + "\"\n" + C.Wrong + "\n", State, All_Windows());
        const auto Repaired = Repair_Values(State, Reading.Lost, All_Windows());
        EXPECT_EQ(Names_Of(State, Repaired), C.Repaired) << C.Wrong;
        for (const std::string& Name : C.Repaired)
            EXPECT_EQ(All_Texts(State).at(Name), Right.at(Name)) << Name;
    }
}

TEST(Setup_File_Faults, Cut_Behind_Every_Line_Keeps_The_Lines_Before) {
    const Leaf_Texts Values = All_Texts(Filled_State(6));
    Simulator_State State;
    Leaf_Texts Expected = All_Texts(State);
    std::string Bytes;
    for (const auto& Fields : Layout_Of_File()) {
        Bytes += File_Line(Fields, Values);
        for (const std::string& Path : Fields)
            if (Path[0] != '"') Expected[Path] = Values.at(Path);
        Simulator_State Cut;
        Failure_Of(Bytes, Cut);
        Expected["ARPA_Random_Count"] = "0";
        ASSERT_EQ(All_Texts(Cut), Expected) << File_Line(Fields, Values);
    }
}

TEST(Setup_File_Faults, One_Byte_Changed_Anywhere) {
    const std::string Bytes = File_Bytes("default.ini");
    for (std::size_t Place = 0; Place < Bytes.size(); ++Place) {
        std::string Changed = Bytes;
        Changed[Place] = "\",\n9#\0-R"[Place % 8];
        Expect_Sound_Outcome(Changed, " changed at " + std::to_string(Place));
    }
}

TEST(Setup_File_Faults, Megabytes_Of_Junk_Take_No_Time) {
    for (const char* Piece :
         {"\"REM Mod\"\r\n", "\"", "\" ", ",", " ", "\r\n\r", "REM,", "12.5,\"a\"\"b\",#TRUE#\n",
          "\"REM Current navdata\"\r\n#FALSE#\r\n1,2\r\n3,4\r\n5,6\r\n7\r\n8,9\r\n#TRUE#\r\n"}) {
        const std::string_view Part = Piece;
        std::string Bytes;
        while (Bytes.size() < (4u << 20)) Bytes += Part;
        Simulator_State State;
        const auto Start = std::chrono::steady_clock::now();
        EXPECT_EQ(Failure_Of(Bytes, State), "") << Part;
        // Some hundredths of a second; anything that goes over the bytes twice per field would take hours.
        EXPECT_LT(std::chrono::steady_clock::now() - Start, std::chrono::seconds(20)) << Part;
    }
}

} // namespace
} // namespace brinewright
