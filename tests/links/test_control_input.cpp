#include "ownship/ship/control_input.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

constexpr const char* Port_File = "/data/Quillon_UDP_port.txt";
constexpr const char* Title = "BRINEWRIGHT 7.00 2026-04-21 - Quillon special option";
constexpr const char* Warning =
    "Special Quillon option control of SOG and ROT with NMEA input is only relevant in "
    "Ship mode. UDP input ignored! ";

// A ship of at most 40 knots ahead, 5 astern, 30 degrees per minute, with the control input on port 5050.
struct Steered_Ship : Virtual_Simulator {
    explicit Steered_Ship(const char* Mode = "Ship") {
        Disk.Content[Port_File] = "5050\r\n";
        Sim.Options.Control_Input = true;
        Start(Default_Setup(Mode));
        Opening = std::exchange(Told, {});
    }
    void Arrive(const std::string& Datagram) const { Input().Arrive(Datagram); }
    Played_Platform::UDP& Input() const { return *World.Sockets.back(); }
    const frmShip& Ship() const { return *Open_One<frmShip>(Sim); }

    std::vector<Message_Box> Opening;
};

// The boxes of a start with this port file, nothing being told but by the control input.
std::vector<Message_Box> Boxes_Of_Start(Virtual_Simulator& V, const std::string& Content) {
    V.Disk.Content[Port_File] = Content;
    V.Shell().Data_Folder = "/data/";
    V.Sim.Windows.Event([&] { Start_Control_Input(V.Sim); });
    return V.Told;
}

TEST(Control_Input, Opens_The_Port_That_The_File_Names) {
    const Steered_Ship V;
    ASSERT_EQ(V.Opening.size(), 1u);
    // The number has the blank of a number that is joined to text.
    EXPECT_EQ(V.Opening[0].Text,
              "Dedicated Quillon UDP port  5050 opened for NMEA VTG and ROT input. NB! Only "
              "relevant for Ship mode.");
    EXPECT_EQ(V.Opening[0].Title, Title);
    EXPECT_EQ(V.World.Log.back(), "UDP bound to 5050");

    for (const auto& [Content, Port] :
         {std::pair{"40000", 40000}, std::pair{" \t65535 \n\n", 65535}, std::pair{"1", 1}}) {
        Virtual_Simulator Other;
        EXPECT_EQ(Boxes_Of_Start(Other, Content).size(), 1u) << Content;
        EXPECT_EQ(Other.World.Log, Texts{"UDP bound to " + std::to_string(Port)});
        EXPECT_EQ(Other.Sim.State.Of<Link_State>().Control_Input_Port, Port);
    }
    // Without the option there is neither box nor socket.
    Virtual_Simulator Without;
    Without.Disk.Content[Port_File] = "5050";
    Without.Start(Default_Setup("Ship"));
    EXPECT_TRUE(Without.Told.empty());
    EXPECT_TRUE(Without.World.Sockets.empty());
}

TEST(Control_Input, A_Bad_Port_File_Or_A_Taken_Port_Is_A_Box_And_Not_An_End) {
    for (const std::string Content :
         {"", "\r\n", "0", "65536", "-1", "99999999999", "port 5050", "5050x", "5050.5", "5050 5051",
          "\xFF\xFE"
          "5"}) {
        Virtual_Simulator V;
        const auto Boxes = Boxes_Of_Start(V, Content);
        ASSERT_EQ(Boxes.size(), 1u) << Content;
        EXPECT_EQ(Boxes[0].Text,
                  "The control input is not open. /data/Quillon_UDP_port.txt: it must hold one UDP "
                  "port number, 1 to 65535, and nothing else");
        EXPECT_EQ(Boxes[0].Title, Title);
        EXPECT_TRUE(V.World.Sockets.empty());
        EXPECT_EQ(V.Link().Control_Input_Port, 0);
    }
    Virtual_Simulator Large;
    EXPECT_NE(Boxes_Of_Start(Large, std::string(2000, ' ') + "5050").at(0).Text.find("File too large"),
              std::string::npos);

    Virtual_Simulator Missing;
    Missing.Sim.State.Of<Shell_State>().Data_Folder = "/data/";
    Missing.Sim.Windows.Event([&] { Start_Control_Input(Missing.Sim); });
    EXPECT_EQ(Missing.Take_Boxes(),
              Texts{"The control input is not open. /data/Quillon_UDP_port.txt: File not found"});

    Virtual_Simulator Taken;
    Taken.World.Failures["UDP bound to 5050"] = "Address already in use";
    const auto Boxes = Boxes_Of_Start(Taken, "5050");
    ASSERT_EQ(Boxes.size(), 2u); // the first is told before the port is bound
    EXPECT_EQ(Boxes[1].Text, "The control input is not open. UDP port 5050: Address already in use");
    EXPECT_EQ(Boxes[1].Icon, Box_Icon::Stop);
}

TEST(Control_Input, Speed_Sets_The_Throttle_And_Then_The_Speed_Itself) {
    const Steered_Ship V;
    const Simulator_State& S = V.Sim.State;
    struct Row {
        const char* Datagram;
        int Throttle;
        float SOG_kn;
        const char* Label;
    };
    const Row Rows[] = {
        {"$GPVTG,045.0,T,,M,12.00,N,022.2,K,A*2C\r\n", -30, 12.0F, "12.0 knot"},
        {"$GPVTG,,,,,12.34", -31, 12.34F, "12.3 knot"},   // 30.85; neither checksum nor the rest is needed
        {"!zzVTG,x,y,z,u,5,V*00", -12, 5.0F, "5.0 knot"}, // any talker, a wrong checksum; 12.5 is a tie
        {"$INVTG,,,,, 7kn,N", -18, 7.0F, "7.0 knot"},     // the number that the text starts with; 17.5
        {"$GPVTG,,,,,60,N", -100, 60.0F, "60.0 knot"},    // more than the ship can
        {"$GPVTG,,,,,-4,N", 10, -4.0F, "-4.0 knot"},      // astern by the greatest speed ahead
        {"$GPVTG,,,,,1,N", -2, 1.0F, "1.0 knot"},         // 2.5
        {"$GPVTG,,,,,0.2,N", 0, 0.2F, "0.2 knot"},        // 0.5
        {"$GPVTG,,,,,,N,,K,N*2C", 100, -9999.0F, "-9999.0 knot"}, // no speed
        {"$GPVTG,,,,,\xB5,N", 0, 0.0F, "0.0 knot"},               // no number
        {"$GPVTG,,,,,1,5,N", -2, 1.0F, "1.0 knot"},               // a comma always ends a field
        {"$GPVTG", 0, 0.0F, "0.0 knot"},                          // no fields at all
    };
    for (const Row& R : Rows) {
        V.Arrive(R.Datagram);
        EXPECT_EQ(V.Ship().sldThrottle.Value(), R.Throttle) << R.Datagram;
        EXPECT_EQ(S.Of<Navdata_State>().Nav_SOG, R.SOG_kn) << R.Datagram;
        EXPECT_EQ(*V.Ship().lblSOG.Caption, R.Label) << R.Datagram;
    }
    V.Arrive("$GPVTG,,,,,12.34");
    EXPECT_EQ(*V.Ship().lblThrottle.Caption, "31 % ahead") << "as if the user had moved it";
    EXPECT_EQ(S.Of<Navdata_State>().Nav_Rudder, 0.0F);
}

TEST(Control_Input, Rate_Of_Turn_Sets_The_Rudder) {
    const Steered_Ship V;
    struct Row {
        const char* Datagram;
        int Rudder;
    };
    const Row Rows[] = {
        {"$HEROT,12.3,A*00\r\n", 123}, {"$TIROT,-5.04,V", -50}, {"$HEROT,0.25", 2}, // a tie
        {"$HEROT,100,A", 300},         {"$HEROT,,A", -300},     {"$HEROT,1,2,3,4,5", 10},
        {"$HEROT,-0.0,A", 0},          {"$HEROT,*33", -300},    {"$HEROT", 0},
    };
    for (const Row& R : Rows) {
        V.Arrive(R.Datagram);
        EXPECT_EQ(V.Ship().sldRudder.Value(), R.Rudder) << R.Datagram;
        EXPECT_EQ(V.Nav().Nav_Rudder, static_cast<float>(R.Rudder) / 10) << R.Datagram;
    }
    EXPECT_EQ(V.Nav().Nav_SOG, 0.0F);
}

TEST(Control_Input, Whatever_Is_No_VTG_Or_ROT_Is_Ignored_And_Numbers_Stay_Finite) {
    Steered_Ship V;
    V.Arrive("$GPVTG,,,,,10,N");
    V.Arrive("$HEROT,5,A");
    for (const std::string& Datagram :
         {std::string(), std::string("$"), std::string("$GPVT"), std::string("VTG,,,,,3"),
          std::string("$GPvtg,,,,,3"), std::string("$GPRMC,,,,,3"), std::string(" $GPVTG,,,,,3"),
          std::string("$GPVT\0,,,,,3", 12), std::string(65507, '\xFF'), std::string(65507, ','),
          std::string("UdPbC\0$GPVTG,,,,,3", 18)}) {
        V.Arrive(Datagram);
        EXPECT_EQ(V.Nav().Nav_SOG, 10.0F);
        EXPECT_EQ(V.Nav().Nav_Rudder, 5.0F);
    }
    for (const std::string& Number : {std::string("1e999"), std::string("-1e999"), std::string("nan"),
                                      std::string("inf"), std::string("1e38"), std::string(60000, '9'),
                                      std::string("5\0"
                                                  "9",
                                                  3)}) {
        V.Arrive("$GPVTG,,,,," + Number + ",N");
        V.Arrive("$HEROT," + Number + ",A");
        EXPECT_TRUE(std::isfinite(V.Nav().Nav_SOG)) << Number.substr(0, 9);
        V.Run_s(3);
        const Simulator_State& S = V.Sim.State;
        for (const double Value :
             {S.Of<Navdata_State>().Nav_Lat, S.Of<Navdata_State>().Nav_Lon, S.Of<Navdata_State>().Nav_COG,
              S.Of<Navdata_State>().Nav_HDG, double{S.Of<Navdata_State>().Current_Set},
              double{S.Of<Navdata_State>().Current_Drift}, double{S.Of<Log_State>().Log_Speed[1]},
              double{S.Of<Log_State>().Log_Speed[2]}})
            EXPECT_TRUE(std::isfinite(Value)) << Number.substr(0, 9);
    }
    EXPECT_EQ(V.Nav().Nav_SOG, 5.0F); // a NUL ends a number
    // A ship that cannot go ahead: its setup file may say so.
    V.Nav().Max_Speed_Ahead = 0;
    V.Arrive("$GPVTG,,,,,0,N");
    EXPECT_EQ(V.Ship().sldThrottle.Value(), 0);
    V.Arrive("$GPVTG,,,,,3,N");
    EXPECT_EQ(V.Ship().sldThrottle.Value(), -100);
    EXPECT_EQ(V.Nav().Nav_SOG, 3.0F);
    EXPECT_TRUE(V.Told.empty());
}

TEST(Control_Input, In_Sensor_Mode_It_Warns_Once_And_Leaves_The_Data_Unread) {
    Steered_Ship V("Sensor");
    V.Arrive("$GPVTG,,,,,10,N");
    V.Arrive("$HEROT,5,A");
    ASSERT_EQ(V.Told.size(), 1u);
    EXPECT_EQ(V.Told[0].Text, Warning);
    EXPECT_EQ(V.Told[0].Title, Title);
    EXPECT_EQ(V.Input().Received.size(), 2u);
    EXPECT_EQ(V.Nav().Nav_SOG, 0.0F);

    // What waits comes first, in its order, each as an event of its own.
    V.Choose_Menu("mnuMode", 1);
    ASSERT_NE(Open_One<frmShip>(V.Sim), nullptr);
    int Events = 0;
    V.Sim.Windows.On_Settled.push_back([&] { ++Events; });
    V.Arrive("$GPVTG,,,,,20,N");
    EXPECT_EQ(Events, 3);
    EXPECT_TRUE(V.Input().Received.empty());
    EXPECT_EQ(V.Nav().Nav_SOG, 20.0F);
    EXPECT_EQ(V.Nav().Nav_Rudder, 5.0F);

    V.Choose_Menu("mnuMode", 2);
    V.Arrive("$GPVTG,,,,,30,N");
    EXPECT_EQ(V.Nav().Nav_SOG, 20.0F);
    EXPECT_EQ(V.Told.size(), 1u) << "once in a run";
}

TEST(Control_Input, With_The_Ship_Window_Closed_Only_The_Speed_Is_Set) {
    Steered_Ship V;
    V.Close(*Open_One<frmShip>(V.Sim));
    ASSERT_EQ(Open_One<frmShip>(V.Sim), nullptr);
    V.Arrive("$GPVTG,,,,,10,N");
    V.Arrive("$HEROT,5,A");
    EXPECT_EQ(V.Nav().Nav_SOG, 10.0F);
    EXPECT_EQ(V.Nav().Nav_Rudder, 0.0F);
    EXPECT_TRUE(V.Told.empty());
}

TEST(Control_Input, Sentences_Are_Taken_Apart_Field_By_Field) {
    const VTG_Record Whole = Extract_VTG("$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K,D*48\r\n");
    EXPECT_EQ(Whole.COG_True, 54.7F);
    EXPECT_EQ(Whole.COG_Magnetic, 34.4F);
    EXPECT_EQ(Whole.SOG_Knots, 5.5F);
    EXPECT_EQ(Whole.SOG_Kmh, 10.2F);
    EXPECT_EQ(Whole.Mode, 'D');

    const VTG_Record Empty = Extract_VTG("$GPVTG,,T,,M,,N,,K,*48");
    EXPECT_EQ(Empty.COG_True, -9999.0F);
    EXPECT_EQ(Empty.COG_Magnetic, -9999.0F);
    EXPECT_EQ(Empty.SOG_Knots, -9999.0F);
    EXPECT_EQ(Empty.SOG_Kmh, -9999.0F);
    EXPECT_EQ(Empty.Mode, '\0');

    // Without the mode, as older devices send it; cut; and with more fields than there should be.
    const VTG_Record Old = Extract_VTG("$GPVTG,1,T,2,M,3,N,4,K*48");
    EXPECT_EQ(Old.SOG_Kmh, 4.0F);
    EXPECT_EQ(Old.Mode, '\0');
    const VTG_Record Cut = Extract_VTG("$GPVTG,1,T,2,M*12");
    EXPECT_EQ(Cut.COG_Magnetic, 2.0F);
    EXPECT_EQ(Cut.SOG_Knots, 0.0F);
    EXPECT_EQ(Extract_VTG("$GPVTG,1,T,2,M,3,N,4,K,A,B*48").Mode, 'A');
    EXPECT_EQ(Extract_VTG("").SOG_Knots, 0.0F);

    const ROT_Record Turn = Extract_ROT("$TIROT,-35.6,V*12");
    EXPECT_EQ(Turn.Rate, -35.6F);
    EXPECT_EQ(Turn.Status, 'V');
    EXPECT_EQ(Extract_ROT("$TIROT,,V*12").Rate, -9999.0F);
    EXPECT_EQ(Extract_ROT("$TIROT*12").Rate, 0.0F);
}

} // namespace
} // namespace brinewright
