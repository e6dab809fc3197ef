// The wind gauge: what it sends, its true wind, units, noise and what it keeps.

#include "sensor_bench.hpp"

namespace brinewright {
namespace {

void Set_Wind(Sensor_Bench& Bench, int k, float Speed, float From_deg) {
    Bench.Wind().Wind_Speed[k] = Speed;
    Bench.Wind().Wind_Direction[k] = From_deg;
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

TEST(Wind_Gauge, Units_Count_In_Every_Sentence) {
    Sensor_Bench Bench;
    Set_Wind(Bench, 1, 3600, 90); // enough for every digit of the factors to show
    Bench.Gyro().Gyro_HDG[1] = 90;
    Bench.Log().Log_Speed[1] = 10;
    Bench.Wind().Wind_Relative_Ref[1] = true;
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
        EXPECT_EQ(Bench.Wind().Wind_Speed[1], 3600);
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

} // namespace
} // namespace brinewright
