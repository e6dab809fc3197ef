// "Set SOG/COG" and "Ship & Environment Setup".

#include "tests/ship/ship_bench.hpp"

#include <string>

namespace brinewright {
namespace {

frmSetSOG& Open_Set_SOG(Ship_Bench& B) {
    B.Click(B.Ship().cmdSetSOG);
    return *Open_One<frmSetSOG>(B.Sim);
}

frmShipSetup& Open_Setup(Ship_Bench& B) {
    B.Choose_Menu("mnuSetupShip");
    return *Open_One<frmShipSetup>(B.Sim);
}

void Type(Ship_Bench& B, Text_Box& Box, const std::string& Text) { B.Set(Box, Text); }

TEST(Set_SOG, OK_Sets_Speed_Heading_And_Slider) {
    Ship_Bench B;
    const struct {
        const char* Typed;
        int Slider;
        float SOG_kn; // a slider that moves rounds to its whole percent
        const char* Label;
    } Rows[] = {{"12", -30, 12, "12.0 knot"},      {"12.1", -30, 12.1F, "12.1 knot"},
                {"12.3", -31, 12.4F, "12.4 knot"}, {"-2.5", 50, -2.5F, "-2.5 knot"},
                {"0.1", 0, 0, "0.0 knot"},         {"0.1", 0, 0.1F, "0.1 knot"}};
    for (const auto& R : Rows) {
        frmSetSOG& F = Open_Set_SOG(B);
        Type(B, F.txtSOG, R.Typed);
        Type(B, F.txtCOG, "123.45");
        B.Click(F.cmdOK);
        EXPECT_EQ(Open_One<frmSetSOG>(B.Sim), nullptr);
        EXPECT_EQ(B.Nav().Nav_SOG, R.SOG_kn) << R.Typed;
        EXPECT_EQ(B.Nav().Nav_HDG, 123.45);
        EXPECT_EQ(B.Ship().sldThrottle.Value(), R.Slider);
        EXPECT_EQ(Shown(B.Ship().lblSOG), R.Label);
    }
    B.Nav().Nav_COG = 77.777;
    frmSetSOG& F = Open_Set_SOG(B);
    EXPECT_EQ(F.txtSOG.Text(), "0.10");
    EXPECT_EQ(F.txtCOG.Text(), "077.78");
    Type(B, F.txtSOG, "30");
    B.Click(F.cmdCancel);
    EXPECT_EQ(B.Nav().Nav_SOG, 0.1F);
}

TEST(Set_SOG, Without_A_Limit_And_Without_The_Window) {
    Ship_Bench B;
    frmSetSOG& F = Open_Set_SOG(B);
    B.Nav().Max_Speed_Ahead = B.Nav().Max_Speed_Astern = 0;
    for (const char* Typed : {"5", "-5", "0"}) {
        Type(B, F.txtSOG, Typed);
        EXPECT_EQ(Val_Dot(F.txtSOG.Text()), 0) << Typed;
    }
    B.Set(F.txtSOG, std::string("0"));
    F.txtSOG.Set_Text("5"); // as a key that confirms without leaving the box
    B.Sim.Windows.Event([&] { F.cmdOK.Click(); });
    EXPECT_EQ(B.Nav().Nav_SOG, 5);
    EXPECT_EQ(B.Ship().sldThrottle.Value(), 0);

    frmSetSOG& Again = Open_Set_SOG(B);
    B.Click(B.Ship().cmdSetSOG);
    EXPECT_EQ(Open_One<frmSetSOG>(B.Sim), &Again);
    B.Close(B.Ship());
    B.Nav().Max_Speed_Ahead = 40;
    Type(B, Again.txtSOG, "8");
    B.Click(Again.cmdOK);
    EXPECT_EQ(B.Nav().Nav_SOG, 8);
}

TEST(Ship_Setup, Apply_Takes_All_And_Moves_The_Ship_Only_For_A_New_Start) {
    Ship_Bench B;
    frmShipSetup& F = Open_Setup(B);
    const double Lat = B.Nav().Nav_Lat;
    B.Set(F.cmbMaxSpeedAhead, std::string("25"));
    B.Set(F.cmbMaxSpeedAstern, std::string("12"));
    B.Set(F.cmbMaxRudder, std::string("060"));
    B.Set(F.cmbMagneticDeviation, std::string("-10"));
    B.Set(F.cmbUTCOffsetHours[0], std::string("-03"));
    B.Set(F.cmbUTCOffsetMinutes[0], std::string("30"));
    B.Set(F.cmbUTCOffsetHours[1], std::string("+05"));
    B.Set(F.cmbUTCOffsetMinutes[1], std::string("45"));
    B.Set(F.cmbGNSS2OffsetSeconds, std::string("59"));
    B.Set(F.chkUseUTC, true);
    Type(B, F.txtLatOffset, "12,34");
    Type(B, F.txtLonOffset, "-7.5 m");
    Type(B, F.txtGyroOffset[0], "359.96");
    Type(B, F.txtGyroOffset[1], "west");
    Type(B, F.txtLogOffset[0], "-1.25");
    Type(B, F.txtLogOffset[1], "2");
    EXPECT_EQ(F.txtGyroOffset[1].Text(), "000.0 deg");
    Type(B, F.txtStartLat, F.txtStartLat.Text()); // the same
    B.Click(F.cmdApply);
    const Simulator_State& S = B.State();
    EXPECT_EQ(S.Of<Navdata_State>().Nav_Lat, Lat);
    EXPECT_EQ(S.Of<Navdata_State>().Max_Speed_Ahead, 25);
    EXPECT_EQ(S.Of<Navdata_State>().Max_Speed_Astern, 12);
    EXPECT_EQ(S.Of<Navdata_State>().Max_Rudder, 60);
    EXPECT_EQ(S.Of<Navdata_State>().Magnetic_Variation, -10);
    EXPECT_EQ(S.Of<UTC_State>().UTC_Offset_Hours, -210);
    EXPECT_EQ(S.Of<UTC_State>().UTC_Offset_Minutes, 30);
    EXPECT_EQ(S.Of<UTC_State>().GNSS2_UTC_Offset_Hours, 345);
    EXPECT_EQ(S.Of<UTC_State>().GNSS2_UTC_Offset_Minutes, 45);
    EXPECT_EQ(S.Of<UTC_State>().GNSS2_UTC_Offset_Seconds, 59);
    EXPECT_TRUE(S.Of<UTC_State>().Use_UTC);
    EXPECT_EQ(S.Of<Navdata_State>().Lat_Offset, 12.3);
    EXPECT_EQ(S.Of<Navdata_State>().Lon_Offset, -7.5);
    EXPECT_EQ(S.Of<Gyro_State>().Gyro_Offset[1], 360);
    EXPECT_EQ(S.Of<Log_State>().Log_Offset[1], -1.3F);
    EXPECT_EQ(S.Of<Log_State>().Log_Offset[2], 2);
    Type(B, F.txtStartLat, "10 30 S");
    EXPECT_EQ(F.txtStartLat.Text(), "10\xB0 30.0000' S");
    Type(B, F.txtStartLon, "170 15.5 W");
    EXPECT_EQ(S.Of<Navdata_State>().Nav_Lat, Lat) << "not before Apply";
    B.Click(F.cmdOK);
    EXPECT_EQ(S.Of<Navdata_State>().Start_Lat, -10.5);
    EXPECT_EQ(S.Of<Navdata_State>().Nav_Lat, -10.5);
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_Lon, -170.258333333, 1e-9);
    EXPECT_EQ(Open_One<frmShipSetup>(B.Sim), nullptr);
    EXPECT_EQ(B.Take_Boxes(), Texts{});
}

TEST(Ship_Setup, Limits_Move_The_Scale_And_Hold_The_Rate) {
    Ship_Bench B;
    frmShip& W = B.Ship();
    const struct {
        const char* Chosen;
        Texts Ticks; // 0 to 3; 4 to 6 are as 1 to 3
    } Rows[] = {{"035", {"0", "", "", "35"}},
                {"030", {"0", "10", "20", "30"}},
                {"360", {"0", "120", "240", "360"}},
                {"005", {"0", "", "", "5"}}};
    B.Place(W.sldRudder, 300);
    frmShipSetup& F = Open_Setup(B);
    for (const auto& R : Rows) {
        B.Set(F.cmbMaxRudder, std::string(R.Chosen));
        B.Click(F.cmdApply);
        EXPECT_EQ(*W.sldRudder.Max, Val(R.Chosen) * 10);
        EXPECT_EQ(*W.sldRudder.Min, -Val(R.Chosen) * 10);
        for (int Tick = 0; Tick <= 6; ++Tick)
            EXPECT_EQ(Shown(W.lblRudderTick[Tick]),
                      R.Ticks[static_cast<std::size_t>(Tick > 3 ? Tick - 3 : Tick)])
                << R.Chosen << Tick;
    }
    EXPECT_EQ(B.Nav().Nav_Rudder, 5) << "brought into the new range";
    B.Close(W);
    B.Click(F.cmdOK);
    EXPECT_EQ(B.Take_Boxes(), Texts{});
}

// What the lists do not have shows nothing, and Apply leaves it as it is.
TEST(Ship_Setup, Stored_Values_Beyond_The_Lists) {
    Ship_Bench B([](Simulator_State& S) {
        S.Of<Navdata_State>().Max_Speed_Ahead = 1e30F;
        S.Of<Navdata_State>().Max_Speed_Astern = -4;
        S.Of<Navdata_State>().Max_Rudder = 720;
        S.Of<Navdata_State>().Magnetic_Variation = 25;
        S.Of<UTC_State>().UTC_Offset_Hours = -32768;
        S.Of<UTC_State>().UTC_Offset_Minutes = -1;
        S.Of<UTC_State>().GNSS2_UTC_Offset_Seconds = 32767;
        S.Of<UTC_State>().GNSS2_UTC_Offset_Minutes = 32767;
    });
    frmShipSetup& F = Open_Setup(B);
    for (const Combo_Box* List :
         {&F.cmbMaxSpeedAhead, &F.cmbMaxSpeedAstern, &F.cmbMaxRudder, &F.cmbMagneticDeviation,
          &F.cmbUTCOffsetHours[0], &F.cmbUTCOffsetMinutes[0], &F.cmbGNSS2OffsetSeconds})
        EXPECT_EQ(List->List_Index(), -1) << List->Path();
    B.Set(F.cmbUTCOffsetHours[1], std::string("+13"));
    B.Click(F.cmdApply);
    const Simulator_State& S = B.State();
    EXPECT_EQ(S.Of<Navdata_State>().Max_Speed_Ahead, 1e30F);
    EXPECT_EQ(S.Of<Navdata_State>().Max_Speed_Astern, -4);
    EXPECT_EQ(S.Of<Navdata_State>().Max_Rudder, 720);
    EXPECT_EQ(S.Of<Navdata_State>().Magnetic_Variation, 25);
    EXPECT_EQ(S.Of<UTC_State>().UTC_Offset_Hours, -32768);
    EXPECT_EQ(S.Of<UTC_State>().UTC_Offset_Minutes, -1);
    EXPECT_EQ(S.Of<UTC_State>().GNSS2_UTC_Offset_Seconds, 32767);
    EXPECT_EQ(S.Of<UTC_State>().GNSS2_UTC_Offset_Hours, 32767) << "held within its 16 bits";
    EXPECT_EQ(B.Take_Boxes(), Texts{});
}

} // namespace
} // namespace brinewright
