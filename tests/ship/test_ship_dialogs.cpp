// "Set SOG/COG" and "Ship & Environment Setup".

#include "gnss/gnss_state.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sentences/utc_state.hpp"
#include "ship_bench.hpp"

#include <gtest/gtest.h>

#include <string>

namespace brinewright {
namespace {

frmSetSOG& Open_Set_SOG(Ship_Bench& B) {
    B.Click(B.Ship().cmdSetSOG);
    return *Open_One<frmSetSOG>(B.Sim);
}

frmShipSetup& Open_Setup(Ship_Bench& B) {
    B.Click(Main_Window(B.Sim).Item("mnuSetupShip"));
    return *Open_One<frmShipSetup>(B.Sim);
}

void Type(Ship_Bench& B, Text_Box& Box, const std::string& Text) { B.Set(Box, Text); }

void Expect_Tips(const Form& F) {
    for (const Control* C : F.Controls)
        EXPECT_FALSE(static_cast<const Visible_Control*>(C)->Tool_Tip->empty()) << C->Path();
}

TEST(Set_SOG, Holds_The_Limits_Of_The_Ship) {
    Ship_Bench B;
    frmSetSOG& F = Open_Set_SOG(B);
    EXPECT_EQ(F.Width, 3195);
    EXPECT_EQ(F.Height, 2430);
    Expect_Tips(F);
    const struct {
        const char *Typed, *Shown, *Box;
    } Speeds[] = {{"12,3", "12.30", ""},
                  {"-10", "-5.00", "SOG Astern can't be more than Max 5"},
                  {"-5", "-5.00", ""},
                  {"40.01", "40.00", "SOG Ahead can't be more than Max 40"},
                  {"1e999", "40.00", "SOG Ahead can't be more than Max 40"},
                  {"fast", "0.00", ""},
                  {"nan", "0.00", ""}};
    for (const auto& T : Speeds) {
        Type(B, F.txtSOG, T.Typed);
        EXPECT_EQ(F.txtSOG.Text(), T.Shown) << T.Typed;
        if (*T.Box) {
            ASSERT_EQ(B.Told.size(), 1U) << T.Typed;
            EXPECT_EQ(B.Told[0].Title, "Invalid SOG");
            EXPECT_EQ(B.Take_Boxes(), Texts{T.Box});
        }
        EXPECT_EQ(B.Take_Boxes(), Texts{});
    }
    const struct {
        const char *Typed, *Shown;
    } Courses[] = {{"359.99", "359.99"}, {"360", "000.00"}, {"-0.1", "000.00"},
                   {"7,255", "007.26"},  {"400", "000.00"}, {"x", "000.00"}};
    for (const auto& T : Courses) {
        Type(B, F.txtCOG, T.Typed);
        EXPECT_EQ(F.txtCOG.Text(), T.Shown) << T.Typed;
    }
}

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
        EXPECT_EQ(B.State().Of<Navdata_State>().Nav_SOG, R.SOG_kn) << R.Typed;
        EXPECT_EQ(B.State().Of<Navdata_State>().Nav_HDG, 123.45);
        EXPECT_EQ(B.Ship().sldThrottle.Value(), R.Slider);
        EXPECT_EQ(Shown(B.Ship().lblSOG), R.Label);
    }
    B.State().Of<Navdata_State>().Nav_COG = 77.777;
    frmSetSOG& F = Open_Set_SOG(B);
    EXPECT_EQ(F.txtSOG.Text(), "0.10");
    EXPECT_EQ(F.txtCOG.Text(), "077.78");
    Type(B, F.txtSOG, "30");
    B.Click(F.cmdCancel);
    EXPECT_EQ(B.State().Of<Navdata_State>().Nav_SOG, 0.1F);
}

TEST(Set_SOG, Without_A_Limit_And_Without_The_Window) {
    Ship_Bench B;
    frmSetSOG& F = Open_Set_SOG(B);
    B.State().Of<Navdata_State>().Max_Speed_Ahead = B.State().Of<Navdata_State>().Max_Speed_Astern = 0;
    for (const char* Typed : {"5", "-5", "0"}) {
        Type(B, F.txtSOG, Typed);
        EXPECT_EQ(Val_Dot(F.txtSOG.Text()), 0) << Typed;
    }
    B.Set(F.txtSOG, std::string("0"));
    F.txtSOG.Set_Text("5"); // as a key that confirms without leaving the box
    B.Sim.Windows.Event([&] { F.cmdOK.Click(); });
    EXPECT_EQ(B.State().Of<Navdata_State>().Nav_SOG, 5);
    EXPECT_EQ(B.Ship().sldThrottle.Value(), 0);

    frmSetSOG& Again = Open_Set_SOG(B);
    B.Click(B.Ship().cmdSetSOG);
    EXPECT_EQ(Open_One<frmSetSOG>(B.Sim), &Again);
    B.Close(B.Ship());
    B.State().Of<Navdata_State>().Max_Speed_Ahead = 40;
    Type(B, Again.txtSOG, "8");
    B.Click(Again.cmdOK);
    EXPECT_EQ(B.State().Of<Navdata_State>().Nav_SOG, 8);
}

TEST(Ship_Setup, Shows_What_Is_Stored) {
    Ship_Bench B([](Simulator_State& S) {
        S.Of<Navdata_State>().Start_Lat = 59.5;
        S.Of<Navdata_State>().Start_Lon = -10.25;
        S.Of<Navdata_State>().Magnetic_Variation = -3;
        S.Of<Navdata_State>().Lat_Offset = -12.34;
        S.Of<Gyro_State>().Gyro_Offset[2] = -5.5F;
        S.Of<Log_State>().Log_Offset[1] = 0.25F;
        S.Of<UTC_State>().Use_UTC = true;
        S.Of<UTC_State>().UTC_Offset_Hours = 120;
        S.Of<UTC_State>().UTC_Offset_Minutes = 59;
        S.Of<UTC_State>().GNSS2_UTC_Offset_Hours = -210;
        S.Of<UTC_State>().GNSS2_UTC_Offset_Seconds = 7;
    });
    frmShipSetup& F = Open_Setup(B);
    Expect_Tips(F);
    EXPECT_EQ(F.Caption, "Ship & Environment Setup");
    EXPECT_EQ(F.Height, 3960);
    EXPECT_EQ(F.txtStartLat.Text(), "59\xB0 30.0000' N");
    EXPECT_EQ(F.txtStartLon.Text(), "010\xB0 15.0000' W");
    EXPECT_EQ(F.cmbMaxSpeedAhead.Text(), "40");
    EXPECT_EQ(F.cmbMaxSpeedAhead.Items().size(), 20U);
    EXPECT_EQ(F.cmbMaxSpeedAstern.Text(), "5");
    EXPECT_EQ(F.cmbMaxRudder.Text(), "030");
    EXPECT_EQ(F.cmbMaxRudder.Items().back().Text, "360");
    EXPECT_EQ(F.cmbMagneticDeviation.Text(), "-3");
    EXPECT_EQ(F.txtLatOffset.Text(), "-12.3 m");
    EXPECT_EQ(F.txtGyroOffset[0].Text(), "000.0 deg");
    EXPECT_EQ(F.txtGyroOffset[1].Text(), "-005.5 deg");
    EXPECT_EQ(F.txtLogOffset[0].Text(), "0.3 knop");
    EXPECT_TRUE(F.chkUseUTC.Value());
    EXPECT_EQ(F.cmbUTCOffsetHours[0].Text(), "-02") << "with the other sign, as required";
    EXPECT_EQ(F.cmbUTCOffsetHours[1].Text(), "+03");
    EXPECT_EQ(F.cmbUTCOffsetHours[1].Items()[13].Text, "00");
    EXPECT_EQ(F.cmbUTCOffsetMinutes[0].Text(), "59");
    EXPECT_EQ(F.cmbGNSS2OffsetSeconds.Text(), "07");
    const auto Selected = *F.txtLogOffset[1].Select_All_Count;
    B.Sim.Windows.Event([&] { B.Sim.Windows.User_Focus(F.txtLogOffset[1]); });
    EXPECT_EQ(*F.txtLogOffset[1].Select_All_Count, Selected + 1);
}

TEST(Ship_Setup, Apply_Takes_All_And_Moves_The_Ship_Only_For_A_New_Start) {
    Ship_Bench B;
    frmShipSetup& F = Open_Setup(B);
    const double Lat = B.State().Of<Navdata_State>().Nav_Lat;
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
    EXPECT_EQ(B.State().Of<Navdata_State>().Nav_Rudder, 5) << "brought into the new range";
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

TEST(Ship_Setup, Bad_Texts_Are_Told_And_Nothing_Breaks) {
    Ship_Bench B;
    frmShipSetup& F = Open_Setup(B);
    Type(B, F.txtStartLat, "91 0 N");
    EXPECT_EQ(B.Take_Boxes(), Texts{"LATITUDE FORMAT ERROR. Max 90 deg allowed"});
    EXPECT_EQ(F.txtStartLat.Text(), "90\xB0 00.0000' N");
    Type(B, F.txtStartLon, "99999999999999999999 E");
    Type(B, F.txtLonOffset, "1e999");
    Type(B, F.txtGyroOffset[0], "-1e999");
    B.Take_Boxes();
    B.Click(F.cmdOK);
    B.Place(B.Ship().sldThrottle, -100);
    B.Run_s(5);
    EXPECT_EQ(B.State().Of<Navdata_State>().Nav_Lat, 90);
    EXPECT_LE(std::abs(B.State().Of<GNSS_State>().GNSS_Lon[2]), 180);
    EXPECT_TRUE(B.State().Of<Gyro_State>().Gyro_HDG[1] >= 0 && B.State().Of<Gyro_State>().Gyro_HDG[1] <= 360);
    EXPECT_EQ(B.Take_Boxes(), Texts{});
}

} // namespace
} // namespace brinewright
