// The ship window: opening, throttle, rate of turn, heading, noise, labels, freeze and pause.

#include "tests/ship/ship_bench.hpp"

#include <limits>
#include <random>

namespace brinewright {

TEST(Frm_Ship, Opening_Brings_Speed_And_Rate_Of_Turn_Within_Their_Limits) {
    for (const float Sign : {1.0F, -1.0F}) {
        Ship_Bench B([&](Simulator_State& S) {
            S.Of<Navdata_State>().Nav_SOG = 45 * Sign;
            S.Of<Navdata_State>().Nav_Rudder = 31 * Sign;
        });
        EXPECT_EQ(B.Nav().Nav_SOG, Sign > 0 ? 40 : -5);
        EXPECT_EQ(B.Nav().Nav_Rudder, 30 * Sign);
    }
}

TEST(Frm_Ship, Starts_At_The_Start_Position_Unless_Told_Otherwise) {
    for (const bool Last : {false, true}) {
        Ship_Bench B([&](Simulator_State& S) {
            S.Of<Shell_State>().Start_With_Last_Navdata = Last;
            S.Of<Navdata_State>().Start_Lat = -10;
            S.Of<Navdata_State>().Start_Lon = 20.5;
            S.Of<Navdata_State>().Nav_Lat = 50;
            S.Of<Navdata_State>().Nav_SOG = -2.5F;
            S.Of<Shell_State>().LatLon_Format = 1;
        });
        EXPECT_EQ(B.Nav().Nav_Lat, Last ? 50 : -10);
        EXPECT_EQ(Shown(B.Ship().lblLat[0]), Last ? "50\xB0"
                                                    "00'00.000\"N"
                                                  : "10\xB0"
                                                    "00'00.000\"S");
        if (Last) {
            EXPECT_EQ(B.Ship().sldThrottle.Value(), 50);
            EXPECT_EQ(Shown(B.Ship().lblThrottle), "50 % astern");
            EXPECT_EQ(Shown(B.Ship().lblSOG), "-2.5 knot");
        }
    }
}

TEST(Frm_Ship, Has_One_Size_And_Keeps_Its_Place) {
    Ship_Bench B;
    B.Sim.Windows.Event([&] { B.Ship().Set_Place(100, 200, 9000, 1); });
    EXPECT_EQ(B.Ship().Width, 7212);
    EXPECT_EQ(B.Ship().Height, 5700);
    const std::weak_ptr<Form> Gone = B.Sim.Windows.Forms.back();
    ASSERT_EQ(Gone.lock().get(), Open_One<frmShip>(B.Sim));
    B.Close(B.Ship());
    EXPECT_TRUE(Gone.expired());
    EXPECT_FALSE(*Main_Window(B.Sim).Item("mnuShip").Checked);
    EXPECT_EQ(Open_One<frmShip>(B.Sim), nullptr);
    ASSERT_EQ(B.Shell().Open_Form_Count, 1);
    EXPECT_EQ(B.Shell().Open_Form_List[1].Name, "frmShip");
    EXPECT_EQ(B.Shell().Open_Form_List[1].Index, 0);
    B.Nav().Nav_SOG = 10;
    const double Lat = B.Nav().Nav_Lat;
    B.Run_s(10);
    EXPECT_EQ(B.Nav().Nav_Lat, Lat) << "only an open window moves the ship";
    B.Choose_Menu("mnuShip");
    EXPECT_EQ(B.Ship().Left, 100);
    EXPECT_EQ(B.Ship().Top, 200);
    const frmShip* Same = Open_One<frmShip>(B.Sim);
    B.Choose_Menu("mnuShip");
    EXPECT_EQ(Open_One<frmShip>(B.Sim), Same);
    B.Run_s(10);
    EXPECT_GT(B.Nav().Nav_Lat, Lat);
}

TEST(Frm_Ship, All_Stop_Stops_What_The_Sliders_Are_Too_Coarse_For) {
    Ship_Bench B;
    frmShip& W = B.Ship();
    for (const int Place : {0, -30}) {
        B.Place(W.sldThrottle, Place);
        B.Place(W.sldRudder, Place);
        B.Nav().Nav_SOG = 0.1F;
        B.Nav().Nav_Rudder = 0.01F;
        B.Click(W.cmdZeroRudder);
        EXPECT_EQ(B.Nav().Nav_Rudder, 0);
        EXPECT_EQ(B.Nav().Nav_SOG, 0.1F);
        B.Nav().Nav_Rudder = 0.01F;
        B.Click(W.cmdZero);
        EXPECT_EQ(B.Nav().Nav_SOG, 0);
        EXPECT_EQ(B.Nav().Nav_Rudder, 0);
        EXPECT_EQ(W.sldThrottle.Value(), 0);
        EXPECT_EQ(W.sldRudder.Value(), 0);
        EXPECT_EQ(Shown(W.lblSOG), "0.0 knot");
    }
}

TEST(Frm_Ship, Labels_After_A_Step) {
    Ship_Bench B([](Simulator_State& S) {
        S.Of<Log_State>().Log_Offset[1] = 1;
        S.Of<Gyro_State>().Gyro_Offset[2] = -10.25F;
        S.Of<Navdata_State>().Lat_Offset = 1852;
    });
    frmShip& W = B.Ship();
    B.Place(W.sldThrottle, -30);
    B.Type(W.cmbHDG, "5.06");
    B.Run_s(1);
    EXPECT_EQ(Shown(W.lblLat[0]), "62\xB0 35.5033' N");
    EXPECT_EQ(Shown(W.lblLat[1]), "62\xB0 36.5033' N");
    EXPECT_EQ(Shown(W.lblLon[1]), "006\xB0 10.0006' E");
    EXPECT_EQ(Shown(W.lblGyro[0]), "005.06 deg");
    EXPECT_EQ(Shown(W.lblGyro[1]), "354.81 deg");
    EXPECT_EQ(Shown(W.lblCOG), "005.06 deg");
    EXPECT_EQ(W.cmbHDG.Text(), "005.1");
    EXPECT_EQ(B.Nav().Nav_HDG, 5.06) << "the label rounds, the ship does not";
    EXPECT_EQ(Shown(W.lblLog[0]), "13.0 knot");
    EXPECT_EQ(Shown(W.lblLog[1]), "12.0 knot");
    EXPECT_EQ(Shown(W.lblSet), "185.1 deg");
    EXPECT_EQ(Shown(W.lblDrift), "1.0 knot");

    W.GUI_Off = true;
    B.Run_s(60);
    EXPECT_EQ(Shown(W.lblLat[0]), "62\xB0 35.5033' N");
    EXPECT_GT(B.GNSS().GNSS_Lat[1], 62.594);
}

TEST(Frm_Ship, Noise_Is_Of_The_Sensors_And_Of_The_Way_Sailed_Only) {
    Ship_Bench B;
    frmShip& W = B.Ship();
    B.Place(W.sldThrottle, -30);
    B.Place(W.sldRudder, -100);
    B.Set(W.cmbROTNoise, std::string("0.5 \xB0"));
    B.Set(W.cmbSOGNoise, std::string("1.0 kt"));
    EXPECT_EQ(B.Nav().Ship_ROT_Noise_Index, 5);
    EXPECT_EQ(B.Nav().Ship_SOG_Noise_Index, 10);
    std::mt19937_64 Draws(0); // the generator of the standard, whose 10000th draw is fixed by it
    const auto Draw = [&] { return std::ldexp(static_cast<double>(Draws() >> 11), -53); };
    for (int Second = 0; Second < 100; ++Second) {
        B.Run_s(1);
        const double ROT = -10 - 0.5 + Draw(), SOG_kn = 12 - 1 + 2 * Draw(); // the rate is drawn first
        EXPECT_NEAR(B.Gyro().Gyro_ROT[2], ROT, 1e-6);
        EXPECT_NEAR(B.GNSS().GNSS_SOG[1], SOG_kn, 1e-6);
        EXPECT_EQ(B.Log().Log_Speed[1], 12);
        EXPECT_EQ(B.Nav().Nav_SOG, 12);
        EXPECT_EQ(B.Nav().Nav_Rudder, -10);
        EXPECT_NEAR(Val_Dot(Shown(W.lblRudder)), -ROT, 0.0051);
        EXPECT_EQ(*W.lblRudder.Fore_Colour, Ink::Red);
        EXPECT_NEAR(Val_Dot(Shown(W.lblSOG)), SOG_kn, 0.0051);
    }
    EXPECT_EQ(Shown(W.lblSOG).substr(2, 1) + Shown(W.lblSOG).substr(5), ". knot") << "two decimals";
    B.Set(W.cmbROTNoise, std::int64_t{0});
    B.Place(W.sldRudder, 50);
    B.Run_s(1);
    EXPECT_EQ(Shown(W.lblRudder), "5.0") << "as the slider wrote it";
}

TEST(Frm_Ship, Freeze_Stops_The_Ship_And_Pause_The_Output) {
    Ship_Bench B;
    frmShip& W = B.Ship();
    B.Use({18});
    B.Place(W.sldThrottle, -100);
    B.Place(W.sldRudder, 300);
    B.Set(W.cmbSOGNoise, std::int64_t{5});
    B.Run_s(3);
    B.Click(W.cmdFreeze);
    EXPECT_EQ(Shown(W.cmdFreeze), "continue");
    EXPECT_TRUE(*W.lblFreeze.Visible);
    const double Lat = B.Nav().Nav_Lat, Heading_deg = B.Nav().Nav_HDG;
    const float SOG_kn = B.GNSS().GNSS_SOG[1];
    const std::string Label = Shown(W.lblSOG), Position = Shown(W.lblLat[0]);
    B.Run_s(100);
    EXPECT_EQ(B.Nav().Nav_Lat, Lat);
    EXPECT_EQ(B.Nav().Nav_HDG, Heading_deg);
    EXPECT_EQ(B.GNSS().GNSS_SOG[1], SOG_kn);
    EXPECT_EQ(Shown(W.lblSOG), Label);
    EXPECT_EQ(Shown(W.lblLat[0]), Position);
    EXPECT_EQ(B.Send("$A", 18), "$A\r\n") << "sentences go on";
    B.Click(W.cmdFreeze);
    EXPECT_EQ(Shown(W.cmdFreeze), "FREEZE");
    EXPECT_FALSE(*W.lblFreeze.Visible);

    B.Click(W.cmdPause);
    EXPECT_EQ(Shown(W.cmdPause), "continue");
    EXPECT_TRUE(*W.lblPause.Visible);
    const std::size_t Sent = B.Left.size();
    B.Send("$B", 18);
    EXPECT_EQ(B.Left.size(), Sent);
    B.Run_s(1);
    EXPECT_NE(B.Nav().Nav_Lat, Lat) << "the ship goes on";
    B.Click(W.cmdPause);
    EXPECT_EQ(Shown(W.cmdPause), "TX PAUSE");
    EXPECT_FALSE(*W.lblPause.Visible);
    B.Send("$C", 18);
    EXPECT_EQ(B.Left.size(), Sent + 1);
}

} // namespace brinewright
