// The echo sounder: its depth, its offset, its noise and what it sends.

#include "sensor_bench.hpp"

namespace brinewright {
namespace {

struct Typed_Depth {
    const char* Text;
    float Depth_m;
    const char* Shown;
    int Bar;
};

TEST(Echosounder, Both_Start_From_The_Kept_Depth_And_Only_The_First_Writes_It) {
    Sensor_Bench Bench;
    Bench.Echo().Echo_Depth = 512.25F;
    frmEchosounder& First = Bench.Open_Echo(1);
    frmEchosounder& Second = Bench.Open_Echo(2);
    EXPECT_EQ(Bench.Echo().Echo_Depth, 512.25F) << "showing it has changed it";
    EXPECT_EQ(First.scrDepth.Value(), 4000);
    EXPECT_EQ(Second.Depth_Value, 512.25F);
    Second.scrDepth.Set_Value(70);
    EXPECT_EQ(Second.Depth_Value, 7);
    EXPECT_EQ(Bench.Echo().Echo_Depth, 512.25F);
    First.scrDepth.Set_Value(90);
    EXPECT_EQ(Bench.Echo().Echo_Depth, 9);
    EXPECT_EQ(Bench.Tick(Second.Sentences["DPT"].Clock), Framed("SDDPT,7.0,0.0,400.0"));
    EXPECT_EQ(Bench.Sent[0].Port, 23);

    Bench.Close(First);
    Bench.Echo().Echo_Depth = -3;
    EXPECT_EQ(Bench.Tick(Bench.Open_Echo(1).Sentences["DPT"].Clock), Framed("SDDPT,0.0,0.0,400.0"));
}

TEST(Echosounder, Noise_Stays_Within_Its_Bound_And_Above_The_Bottom) {
    Sensor_Bench Bench;
    Bench.Echo().Echo_Noise_Enabled[2] = true;
    Bench.Echo().Echo_Noise_Level[2] = 8;
    frmEchosounder& W = Bench.Open_Echo(2);
    EXPECT_TRUE(W.chkNoise.Value());
    EXPECT_EQ(W.cmbNoise.Text(), "8");
    double Least = 1e9, Most = -1e9;
    const auto Run = [&](double Depth_m, int Times) {
        W.scrDepth.Set_Value(std::llround(Depth_m * 10));
        Least = 1e9, Most = -1e9;
        int Different = 0;
        for (int I = 0; I < Times; ++I) {
            for (Timer* Clock : {&W.Sentences["DBT"].Clock, &W.Sentences["DPT"].Clock}) Bench.Tick(*Clock);
            const double DBT_m = W.DBT_Record.Depth_Metres, DPT_m = W.DPT_Record.Depth;
            Least = std::min({Least, DBT_m, DPT_m}), Most = std::max({Most, DBT_m, DPT_m});
            Different += std::abs(DBT_m - DPT_m) > 0.1 ? 1 : 0;
        }
        EXPECT_GT(Different, Times / 2) << "one draw for both";
    };
    Run(100, 400);
    EXPECT_GE(Least, 92);
    EXPECT_LE(Most, 108);
    EXPECT_LT(Least, 93);
    EXPECT_GT(Most, 107);
    Run(1, 200);
    EXPECT_EQ(Least, 0);

    Bench.Click(W.chkNoise);
    W.cmbNoise.Set_List_Index(20);
    EXPECT_FALSE(Bench.Echo().Echo_Noise_Enabled[2]);
    EXPECT_EQ(Bench.Echo().Echo_Noise_Level[2], 20);
    EXPECT_EQ(W.Depth_Value, 1);
    EXPECT_EQ(Bench.Tick(W.Sentences["DPT"].Clock), Framed("SDDPT,1.0,0.0,400.0"));
}

} // namespace
} // namespace brinewright
