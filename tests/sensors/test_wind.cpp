// The wind gauge: what it sends, its true wind, units, noise and what it keeps.

#include "ownship/navdata_state.hpp"
#include "sensor_bench.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sensors/wind/wind_state.hpp"
#include "shell/state/fault_state.hpp"

namespace brinewright {
namespace {

void Set_Wind(Sensor_Bench& Bench, int k, float Speed, float From_deg) {
    Bench.S.Of<Wind_State>().Wind_Speed[k] = Speed;
    Bench.S.Of<Wind_State>().Wind_Direction[k] = From_deg;
}

TEST(Wind_Gauge, Sends_Relative_Wind_From_Its_Own_Gyro_And_Log) {
    Sensor_Bench Bench;
    Simulator_State& S = Bench.S;
    for (const int k : {1, 2}) Set_Wind(Bench, k, 10, 0);
    S.Of<Log_State>().Log_Speed[1] = 5;
    S.Of<Gyro_State>().Gyro_HDG[2] = 180;
    S.Of<Wind_State>().Wind_Relative_Ref[1] = S.Of<Wind_State>().Wind_Relative_Ref[2] = true;
    frmWind& First = Bench.Open_Wind(1);
    frmWind& Second = Bench.Open_Wind(2);
    EXPECT_EQ(Bench.Tick(First.Sentences["MWV"].Clock), Framed("WIMWV,000.0,R,015.0,N,A"));
    EXPECT_EQ(Bench.Sent[0].Port, 24);
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "15");
    EXPECT_EQ(*First.lblRelativeDir.Caption, "000");
    EXPECT_EQ(*First.lblRelativeWind.Caption, "log 1 and  gyro 1");
    EXPECT_EQ(Bench.Tick(Second.Sentences["MWV"].Clock), Framed("WIMWV,180.0,R,010.0,N,A"));
    EXPECT_EQ(Bench.Sent[0].Port, 25);
    EXPECT_EQ(*Second.lblRelativeDir.Caption, "180");
    EXPECT_EQ(*Second.lblRelativeWind.Caption, "log 2 and gyro 2");

    // The label follows the ship by itself, in both modes.
    S.Of<Log_State>().Log_Speed[1] = 7;
    Bench.Run_s(1.5);
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "15");
    Bench.Run_s(1);
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "17");
    S.Of<Log_State>().Log_Speed[1] = -30; // faster astern than the wind blows from ahead
    EXPECT_EQ(Bench.Tick(First.Sentences["MWV"].Clock), Framed("WIMWV,000.0,R,-020.0,N,A"));
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "-20");
    EXPECT_EQ(*First.lblWindSpeed.Caption, "-20.0");
}

TEST(Wind_Gauge, Sends_True_Wind_Status_And_Talker) {
    Sensor_Bench Bench;
    Set_Wind(Bench, 1, 12.34F, 270.5F);
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 33;
    Bench.S.Of<Log_State>().Log_Speed[1] = 20;
    frmWind& W = Bench.Open_Wind();
    EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock), Framed("WIMWV,270.5,T,012.34,N,A"));
    EXPECT_EQ(*W.lblWindAngle.Caption, "270.5");
    EXPECT_EQ(*W.lblWindSpeed.Caption, "12.34");
    Bench.Click(W.chkInvalid);
    Bench.Type(W.txtTalker, "xx");
    EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock), Framed("XXMWV,270.5,T,012.34,N,V"));
    Bench.Click(W.chkInvalid);
    Bench.Click(*W.optRef.Buttons[0]);
    EXPECT_TRUE(Bench.S.Of<Wind_State>().Wind_Relative_Ref[1]);
    EXPECT_NE(Bench.Tick(W.Sentences["MWV"].Clock).find(",R,"), std::string::npos);
    Bench.Click(*W.optRef.Buttons[1]);
    EXPECT_FALSE(Bench.S.Of<Wind_State>().Wind_Relative_Ref[1]);
    Bench.Sim.State.Of<Fault_State>().Fault_No_Checksum = true;
    EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock), "$XXMWV,270.5,T,012.34,N,A");
    EXPECT_EQ(Bench.Tick(W.Sentences["MWD"].Clock), "$XXMWD,270.5,T,270.5,M,012.34,N,006.35,M");
}

TEST(Wind_Gauge, Units_Count_In_Every_Sentence) {
    Sensor_Bench Bench;
    Set_Wind(Bench, 1, 3600, 90); // enough for every digit of the factors to show
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 90;
    Bench.S.Of<Log_State>().Log_Speed[1] = 10;
    Bench.S.Of<Wind_State>().Wind_Relative_Ref[1] = true;
    frmWind& W = Bench.Open_Wind();
    EXPECT_EQ(Entries(W.cmbUnits), (Texts{"knots", "m/s", "km/h"}));
    // 3600 m/s are 6997.840 knots; 3600 km/h are 1000 m/s, 1943.844 knots. The log adds 10 knots.
    const struct {
        const char* Unit;
        const char* MWD;
        const char* MWV;
        const char* Shown;
    } Rows[] = {{"knots", "3600.0,N,1852.0,M", "3610.0,N", "3610"},
                {"m/s", "6997.84,N,3600.0,M", "3605.14,M", "3605"},
                {"km/h", "1943.84,N,1000.0,M", "3618.52,K", "3619"}};
    for (const auto& Row : Rows) {
        Bench.Type(W.cmbUnits, Row.Unit);
        EXPECT_EQ(*W.lblUnit[0].Caption, Row.Unit);
        EXPECT_EQ(*W.lblUnit[1].Caption, Row.Unit);
        EXPECT_EQ(*W.lblRelativeSpeed.Caption, Row.Shown) << "worked out at once";
        EXPECT_EQ(Bench.Tick(W.Sentences["MWD"].Clock),
                  Framed(std::string("WIMWD,090.0,T,090.0,M,") + Row.MWD));
        EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock),
                  Framed(std::string("WIMWV,000.0,R,") + Row.MWV + ",A"));
        EXPECT_EQ(Bench.S.Of<Wind_State>().Wind_Speed[1], 3600);
    }
}

TEST(Wind_Gauge, Magnetic_Direction_Wraps_And_The_Variation_Shows) {
    Sensor_Bench Bench;
    Bench.S.Of<Navdata_State>().Magnetic_Variation = -2.5F;
    frmWind& W = Bench.Open_Wind();
    EXPECT_EQ(*W.lblMagDev.Caption, "-2.5 deg");
    const struct {
        float From_deg, Variation_deg;
        const char* Directions;
        const char* Shown;
    } Rows[] = {{359, 2.5F, "359.0,T,001.5,M", " 2.5 deg"},
                {1, -2.5F, "001.0,T,358.5,M", "-2.5 deg"},
                {350, 10, "350.0,T,000.0,M", " 10 deg"},
                {20.25F, 0, "020.25,T,020.25,M", " 0 deg"}};
    for (const auto& Row : Rows) {
        Set_Wind(Bench, 1, 0, Row.From_deg);
        Bench.S.Of<Navdata_State>().Magnetic_Variation = Row.Variation_deg;
        EXPECT_EQ(Bench.Tick(W.Sentences["MWD"].Clock),
                  Framed(std::string("WIMWD,") + Row.Directions + ",000.0,N,000.0,M"));
        EXPECT_EQ(*W.lblMagDev.Caption, Row.Shown);
    }
}

TEST(Wind_Gauge, Noise_Reaches_MWV_Alone_And_Stays_In_Bounds) {
    Sensor_Bench Bench;
    Simulator_State& S = Bench.S;
    S.Of<Wind_State>().Wind_Noise_Enabled[2] = true;
    S.Of<Wind_State>().Wind_Noise_Level[2][0] = 10;
    S.Of<Wind_State>().Wind_Noise_Level[2][1] = 4;
    Set_Wind(Bench, 2, 1, 3);
    frmWind& W = Bench.Open_Wind(2);
    EXPECT_EQ(W.cmbNoise[0].Text(), "10");
    EXPECT_EQ(W.cmbNoise[1].Items().size(), 21U);
    // One draw for the angle and another for the speed: 0.159793 and 0.992145 are the first of seed 0.
    EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock), Framed("WIMWV,356.2,T,004.94,N,A"));
    double Left_deg = 0, Right_deg = 0, Least = 99, Most = 0;
    for (int I = 0; I < 400; ++I) {
        Bench.Tick(W.Sentences["MWV"].Clock);
        const double Angle_deg = W.MWV_Record.Angle, Speed = W.MWV_Record.Speed;
        ASSERT_TRUE(Angle_deg >= 0 && Angle_deg < 360) << Angle_deg;
        const double Off_deg = std::remainder(Angle_deg - 3, 360);
        Left_deg = std::min(Left_deg, Off_deg), Right_deg = std::max(Right_deg, Off_deg);
        Least = std::min(Least, Speed), Most = std::max(Most, Speed);
    }
    EXPECT_TRUE(Left_deg >= -10 && Left_deg < -9.5) << Left_deg;
    EXPECT_TRUE(Right_deg <= 10 && Right_deg > 9.5) << Right_deg;
    EXPECT_EQ(Least, 0);
    EXPECT_TRUE(Most <= 5 && Most > 4.8) << Most;
    EXPECT_EQ(Bench.Tick(W.Sentences["MWD"].Clock), Framed("WIMWD,003.0,T,003.0,M,001.0,N,000.51,M"));
    EXPECT_EQ(S.Of<Wind_State>().Wind_Direction[2], 3);

    W.cmbNoise[1].Set_List_Index(20);
    Bench.Click(W.chkNoise);
    EXPECT_EQ(S.Of<Wind_State>().Wind_Noise_Level[2][1], 20);
    EXPECT_EQ(S.Of<Wind_State>().Wind_Noise_Level[2][0], 10);
    EXPECT_FALSE(S.Of<Wind_State>().Wind_Noise_Enabled[2]);
    EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock), Framed("WIMWV,003.0,T,001.0,N,A"));
}

struct Typed_Wind {
    const char* Text;
    float Value;
    const char* Shown;
    int Bar;
    bool Refused = false;
};

TEST(Wind_Gauge, Bars_And_Boxes_Set_The_True_Wind) {
    Sensor_Bench Bench;
    Simulator_State& S = Bench.S;
    S.Of<Wind_State>().Wind_Direction[1] = 359.97F; // its bar stands at 0
    frmWind& W = Bench.Open_Wind();
    for (const Typed_Wind& T : {Typed_Wind{"0", 0, "000.0", 0},
                                {"123.4", 123.4F, "123.4", 1234},
                                {"123,41", 123.4F, "123.4", 1234},
                                {"360", 0, "000.0", 0},
                                {"359.9", 359.9F, "359.9", 3599},
                                {"-5", 359.9F, "359.9", 3599, true},
                                {"400", 359.9F, "359.9", 3599, true},
                                {"1e30", 359.9F, "359.9", 3599, true},
                                {"359.96", 0, "000.0", 0},
                                {"7.5", 7.5F, "007.5", 75},
                                {"north", 0, "000.0", 0}}) {
        Bench.Type(W.txtHDG, T.Text);
        EXPECT_EQ(Bench.Take_Boxes(),
                  T.Refused ? Texts{"Wind direction must be 0.0 to 360.0 degrees. Try again!"} : Texts{})
            << T.Text;
        EXPECT_EQ(S.Of<Wind_State>().Wind_Direction[1], T.Value) << T.Text;
        EXPECT_EQ(W.scrHDG.Value(), T.Bar) << T.Text;
        EXPECT_EQ(W.txtHDG.Text(), T.Shown) << T.Text;
    }
    for (const Typed_Wind& T : {Typed_Wind{"12.34", 12.34F, "12.3", 123},
                                {"-8", 8, "8.0", 80},
                                {"64", 64, "64.0", 400},
                                {"calm", 0, "0.0", 0}}) {
        Bench.Type(W.txtSpeed, T.Text);
        EXPECT_EQ(S.Of<Wind_State>().Wind_Speed[1], T.Value) << T.Text;
        EXPECT_EQ(W.scrSpeed.Value(), T.Bar) << T.Text;
        EXPECT_EQ(W.txtSpeed.Text(), T.Shown) << T.Text;
        EXPECT_EQ(*W.lblSpeed.Caption, T.Shown) << T.Text;
    }
    Bench.Set(W.scrHDG, std::int64_t{-1});
    EXPECT_EQ(S.Of<Wind_State>().Wind_Direction[1], 359.9F);
    Bench.Set(W.scrHDG, std::int64_t{3600});
    EXPECT_EQ(S.Of<Wind_State>().Wind_Direction[1], 0);
    W.scrSpeed.Set_Value(255);
    EXPECT_EQ(S.Of<Wind_State>().Wind_Speed[1], 25.5F);
    EXPECT_EQ(*W.lblRelativeSpeed.Caption, "26") << "worked out at once";
    Bench.Set(W.scrHDG, std::int64_t{900});
    EXPECT_EQ(*W.lblRelativeDir.Caption, "090") << "worked out at once";
    EXPECT_EQ(S.Of<Wind_State>().Wind_Speed[2], 0);

    S.Of<Gyro_State>().Gyro_HDG[1] = 90; // a wind from right ahead
    S.Of<Log_State>().Log_Speed[1] = 3e38F;
    Bench.Type(W.txtSpeed, "1e300");
    for (const char* Unit : {"knots", "m/s", "km/h"}) {
        Bench.Type(W.cmbUnits, Unit);
        for (const int Reference : {0, 1}) {
            W.optRef.Select(Reference);
            for (Timer* Clock : {&W.Sentences["MWV"].Clock, &W.Sentences["MWD"].Clock}) Bench.Tick(*Clock);
            for (const float Number : {W.MWV_Record.Angle, W.MWV_Record.Speed, W.MWD_Record.Speed_Knots,
                                       W.MWD_Record.Speed_Ms, W.MWD_Record.Dir_Magnetic})
                EXPECT_TRUE(std::isfinite(Number)) << Unit;
        }
    }
    EXPECT_TRUE(Bench.Take_Boxes().empty());
}

TEST(Wind_Gauge, Directions_Outside_The_Circle_Are_Shown_And_Sent_Within_It) {
    const struct {
        float Kept_deg;
        const char* Sent;
        const char* Shown;
        int Bar;
    } Rows[] = {{360, "000.0", "000.0", 0},
                {400.5F, "040.5", "040.5", 405},
                {-5.25F, "354.75", "354.8", 3548},
                {-1e30F, "240.0", "240.0", 2400}};
    for (const auto& Row : Rows) {
        Sensor_Bench Bench;
        Set_Wind(Bench, 1, 10, Row.Kept_deg);
        frmWind& W = Bench.Open_Wind();
        EXPECT_EQ(W.scrHDG.Value(), Row.Bar) << Row.Kept_deg;
        EXPECT_EQ(W.txtHDG.Text(), Row.Shown) << Row.Kept_deg;
        const std::string Sent = Row.Sent;
        EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock), Framed("WIMWV," + Sent + ",T,010.0,N,A"));
        EXPECT_EQ(Bench.Tick(W.Sentences["MWD"].Clock),
                  Framed("WIMWD," + Sent + ",T," + Sent + ",M,010.0,N,005.14,M"));
        Bench.S.Of<Log_State>().Log_Speed[1] = 5;
        Bench.S.Of<Gyro_State>().Gyro_HDG[1] = W.MWD_Record.Dir_True; // right ahead
        Bench.Click(*W.optRef.Buttons[0]);
        EXPECT_EQ(Bench.Tick(W.Sentences["MWV"].Clock), Framed("WIMWV,000.0,R,015.0,N,A"));
        EXPECT_EQ(Bench.S.Of<Wind_State>().Wind_Direction[1], Row.Kept_deg);
    }
}

TEST(Wind_Gauge, Opens_With_What_Is_Kept_And_Ticks_At_Its_Intervals) {
    Sensor_Bench Bench;
    Simulator_State& S = Bench.S;
    Set_Wind(Bench, 2, 55.55F, 359.97F);
    S.Of<Wind_State>().Wind_Relative_Ref[2] = true;
    S.Of<Wind_State>().MWV_Enabled[2] = S.Of<Wind_State>().MWD_Enabled[2] = true;
    S.Of<Wind_State>().MWV_Interval[2] = 3;
    S.Of<Wind_State>().MWD_Interval[2] = -1;        // no such entry
    S.Of<Wind_State>().Wind_Noise_Level[2][0] = 21; // neither
    const std::int64_t Before_us = Bench.Now_us();
    frmWind& W = Bench.Open_Wind(2);
    EXPECT_GT(Bench.Now_us() - Before_us, 150'000) << "the second sentence starts at once";
    EXPECT_EQ(W.Tag, "10");
    EXPECT_EQ(S.Of<Wind_State>().Wind_Speed[2], 55.55F) << "showing it has changed it";
    EXPECT_EQ(S.Of<Wind_State>().Wind_Direction[2], 359.97F);
    EXPECT_EQ(W.scrHDG.Value(), 0);
    EXPECT_EQ(W.scrSpeed.Value(), 400);
    EXPECT_EQ(W.optRef.Selected(), 0);
    EXPECT_EQ(W.cmbNoise[0].Text(), "0");
    EXPECT_EQ(W.cmbUnits.Text(), "knots");
    EXPECT_EQ(Entries(W.Sentences["MWV"].Interval_List),
              (Texts{"0.1 sec", "0.5 sec", " 1 sec", " 2 sec", " 3 sec", " 4 sec", " 5 sec"}));
    EXPECT_EQ(W.Sentences["MWV"].Interval_List.Text(), " 2 sec");
    EXPECT_EQ(W.Sentences["MWD"].Interval_List.Text(), "0.1 sec");
    EXPECT_EQ(Bench.Open_Wind(1).Sentences["MWV"].Interval_List.Text(), " 1 sec");
    Expect_Texts(W,
                 {"frmTrueWindDir=True Wind Dir", "frmTrueWindSpd=True Wind Spd", "lblSpeedUnit=Speed Unit",
                  "chkNoise=Random noise On", "lblMaxNoise(0)=Max noise", "lblMaxNoise(1)=Max noise",
                  "chkInvalid=Flag as invalid", "optRef(0)=Relative", "optRef(1)=True",
                  "frmCurrentValue=Current value", "chkMWV=MWV", "chkMWD=MWD", "lblShipSetup=(Ship Setup)"});
    Bench.Sent.clear();
    Bench.Run_s(10);
    EXPECT_EQ(Bench.Sent.size(), 105U);
}

} // namespace
} // namespace brinewright
