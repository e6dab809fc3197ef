// The echo sounder: its depth, its offset, its noise and what it sends.

#include "sensor_bench.hpp"
#include "sensors/echosounder/echo_state.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/shell_state.hpp"

namespace brinewright {
namespace {

TEST(Echosounder, Sends_Feet_Metres_And_No_Fathoms) {
    Sensor_Bench Bench;
    frmEchosounder& W = Bench.Open_Echo();
    Bench.Type(W.txtDepth, "10");
    EXPECT_EQ(Bench.Tick(W.Sentences["DBT"].Clock), Framed("SDDBT,32.81,f,10.0,M,,F"));
    EXPECT_EQ(Bench.Sent[0].Port, 22);
    EXPECT_EQ(Bench.Tick(W.Sentences["DPT"].Clock), Framed("SDDPT,10.0,0.0,400.0"));
    EXPECT_EQ(*W.lblCurrentDepth.Caption, "10.0");
    Bench.Type(W.txtDepth, "400"); // 3.28083 feet to the metre: another last digit would show here
    EXPECT_EQ(Bench.Tick(W.Sentences["DBT"].Clock), Framed("SDDBT,1312.33,f,400.0,M,,F"));
    Bench.Type(W.txtDepth, "10");

    Bench.Type(W.txtTalker, "yx");
    Bench.Sim.State.Of<Fault_State>().Fault_No_Checksum = true;
    EXPECT_EQ(Bench.Tick(W.Sentences["DBT"].Clock), "$YXDBT,32.81,f,10.0,M,,F");
    EXPECT_EQ(Bench.S.Of<Echo_State>().Echo_Talker[1], "YX");
    Bench.S.Of<IEC450_State>().IEC450_Enabled = Bench.S.Of<IEC450_State>().Use_n_Tag = true;
    EXPECT_EQ(Bench.Tick(W.Sentences["DPT"].Clock),
              "\\" + Framed("n:1").substr(1) + "\\$YXDPT,10.0,0.0,400.0");
}

struct Typed_Depth {
    const char* Text;
    float Depth_m;
    const char* Shown;
    int Bar;
};

TEST(Echosounder, Typed_Depths_Outlive_The_Bar_And_Stay_Numbers) {
    Sensor_Bench Bench;
    frmEchosounder& W = Bench.Open_Echo();
    for (const Typed_Depth& T : {Typed_Depth{"12.34", 12.34F, "12.3", 123},
                                 {"-7,5", 7.5F, "7.5", 75},
                                 {"1000", 1000, "1000.0", 4000},
                                 {"fathoms", 0, "0.0", 0},
                                 {"400", 400, "400.0", 4000}}) {
        Bench.Type(W.txtDepth, T.Text);
        EXPECT_EQ(W.Depth_Value, T.Depth_m) << T.Text;
        EXPECT_EQ(Bench.S.Of<Echo_State>().Echo_Depth, T.Depth_m) << T.Text;
        EXPECT_EQ(W.scrDepth.Value(), T.Bar) << T.Text;
        EXPECT_EQ(*W.lblDepth.Caption, T.Shown) << T.Text;
        EXPECT_EQ(W.txtDepth.Text(), T.Shown) << T.Text;
    }
    Bench.Type(W.txtDepth, "1e300");
    for (Timer* Clock : {&W.Sentences["DBT"].Clock, &W.Sentences["DPT"].Clock}) Bench.Tick(*Clock);
    for (const float Number : {W.DBT_Record.Depth_Metres, W.DBT_Record.Depth_Feet, W.DPT_Record.Depth})
        EXPECT_TRUE(std::isfinite(Number));
    W.scrDepth.Set_Value(81);
    EXPECT_EQ(Bench.S.Of<Echo_State>().Echo_Depth, 8.1F);
    EXPECT_EQ(W.txtDepth.Text(), "8.1");
    EXPECT_TRUE(Bench.Take_Boxes().empty());
}

TEST(Echosounder, Both_Start_From_The_Kept_Depth_And_Only_The_First_Writes_It) {
    Sensor_Bench Bench;
    Bench.S.Of<Echo_State>().Echo_Depth = 512.25F;
    frmEchosounder& First = Bench.Open_Echo(1);
    frmEchosounder& Second = Bench.Open_Echo(2);
    EXPECT_EQ(Bench.S.Of<Echo_State>().Echo_Depth, 512.25F) << "showing it has changed it";
    EXPECT_EQ(First.scrDepth.Value(), 4000);
    EXPECT_EQ(Second.Depth_Value, 512.25F);
    Second.scrDepth.Set_Value(70);
    EXPECT_EQ(Second.Depth_Value, 7);
    EXPECT_EQ(Bench.S.Of<Echo_State>().Echo_Depth, 512.25F);
    First.scrDepth.Set_Value(90);
    EXPECT_EQ(Bench.S.Of<Echo_State>().Echo_Depth, 9);
    EXPECT_EQ(Bench.Tick(Second.Sentences["DPT"].Clock), Framed("SDDPT,7.0,0.0,400.0"));
    EXPECT_EQ(Bench.Sent[0].Port, 23);

    Bench.Close(First);
    Bench.S.Of<Echo_State>().Echo_Depth = -3;
    EXPECT_EQ(Bench.Tick(Bench.Open_Echo(1).Sentences["DPT"].Clock), Framed("SDDPT,0.0,0.0,400.0"));
}

TEST(Echosounder, Offset_Is_Read_As_It_Is_Typed_And_Written_Back_On_Leaving) {
    Sensor_Bench Bench;
    frmEchosounder& W = Bench.Open_Echo();
    EXPECT_EQ(W.cmbOffset.Items().size(), 41U);
    EXPECT_EQ(W.cmbOffset.Items()[0].Text, "-20");
    EXPECT_EQ(W.cmbOffset.Items()[40].Text, " 20");
    EXPECT_EQ(W.cmbOffset.Text(), " 0");
    EXPECT_EQ(*W.cmbOffset.Tool_Tip,
              "Transducer offset. Positive means transducer to waterline, negative means transducer to keel");
    W.cmbOffset.Set_Text("-1.5 m"); // not left yet
    EXPECT_EQ(Bench.Tick(W.Sentences["DPT"].Clock), Framed("SDDPT,0.0,-1.5,400.0"));

    const struct {
        const char* Typed;
        const char* Written_Back;
        const char* Sent;
    } Rows[] = {{"-1.5", "-1.5", "-1.5"}, {"2,25x", " 2.25", "2.3"}, {"7", " 7", "7.0"},
                {"keel", " 0", "0.0"},    {"-0", " 0", "0.0"},       {"-17", "-17", "-17.0"}};
    for (const auto& Row : Rows) {
        Bench.Type(W.cmbOffset, Row.Typed);
        EXPECT_EQ(W.cmbOffset.Text(), Row.Written_Back) << Row.Typed;
        EXPECT_EQ(Bench.Tick(W.Sentences["DPT"].Clock),
                  Framed(std::string("SDDPT,0.0,") + Row.Sent + ",400.0"));
    }
}

TEST(Echosounder, Noise_Stays_Within_Its_Bound_And_Above_The_Bottom) {
    Sensor_Bench Bench;
    Bench.S.Of<Echo_State>().Echo_Noise_Enabled[2] = true;
    Bench.S.Of<Echo_State>().Echo_Noise_Level[2] = 8;
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
    EXPECT_FALSE(Bench.S.Of<Echo_State>().Echo_Noise_Enabled[2]);
    EXPECT_EQ(Bench.S.Of<Echo_State>().Echo_Noise_Level[2], 20);
    EXPECT_EQ(W.Depth_Value, 1);
    EXPECT_EQ(Bench.Tick(W.Sentences["DPT"].Clock), Framed("SDDPT,1.0,0.0,400.0"));
}

TEST(Echosounder, Opens_With_What_Is_Kept_And_Ticks_At_Its_Intervals) {
    Sensor_Bench Bench;
    Simulator_State& S = Bench.S;
    S.Of<Echo_State>().DBT_Enabled[1] = S.Of<Echo_State>().DPT_Enabled[1] = true;
    S.Of<Echo_State>().DBT_Interval[1] = 1;
    S.Of<Echo_State>().DPT_Interval[1] = 77;     // no such entry
    S.Of<Echo_State>().Echo_Noise_Level[1] = -4; // neither
    const std::int64_t Before_us = Bench.Now_us();
    frmEchosounder& W = Bench.Open_Echo();
    EXPECT_GT(Bench.Now_us() - Before_us, 150'000) << "the second sentence starts at once";
    EXPECT_EQ(W.Tag, "7");
    EXPECT_EQ(Entries(W.Sentences["DBT"].Interval_List),
              (Texts{"0.1 sec", "0.5 sec", " 1 sec", " 2 sec", " 3 sec", " 4 sec", " 5 sec"}));
    EXPECT_EQ(Entries(W.Sentences["DPT"].Interval_List), Entries(W.Sentences["DBT"].Interval_List));
    EXPECT_EQ(W.Sentences["DPT"].Interval_List.Text(), " 1 sec");
    EXPECT_EQ(W.cmbNoise.Text(), "0");
    EXPECT_EQ(W.cmbNoise.Items().size(), 21U);
    Expect_Texts(W, {"lblEchosounder=ECHOSOUNDER", "frmDepth=Depth", "lblDepthUnit=meter",
                     "lblTransducer=Transducer", "lblOffset=offset", "chkNoise=Random noise On",
                     "lblMaxNoise=Max noise", "frmCurrentValue=Current value", "chkDBT=DBT", "chkDPT=DPT"});
    Bench.Sent.clear();
    Bench.Run_s(10);
    EXPECT_EQ(Bench.Sent.size(), 30U);
    S.Of<Shell_State>().Mode = "Sensor"; // the modes differ in nothing here
    EXPECT_EQ(Bench.Open_Echo(2).Sentences["DBT"].Interval_List.Text(), " 1 sec");
}

} // namespace
} // namespace brinewright
