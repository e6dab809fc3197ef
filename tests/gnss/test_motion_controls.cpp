// Speed and course: bars, boxes and arrow keys.

#include "gnss/gnss_state.hpp"
#include "gnss_bench.hpp"

#include <limits>

namespace brinewright {
namespace {

struct Typed_Value {
    const char* Text;
    float Value;
    const char* Shown;
    int Bar;
};

TEST(Motion_Controls, Typed_Speed_Outlives_The_Bar) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    for (const Typed_Value& T : {Typed_Value{"12.3", 12.3F, "12.3", 123},
                                 {"-5", 5, "5.0", 50},
                                 {"55", 55, "55.0", 400},
                                 {"40", 40, "40.0", 400},
                                 {"12,34 kn", 12.34F, "12.3", 123},
                                 {"0.25", 0.25F, "0.3", 2},
                                 {"0.35", 0.35F, "0.4", 4},
                                 {"abc", 0, "0.0", 0},
                                 {"1e300", std::numeric_limits<float>::max(), nullptr, 400}}) {
        Bench.Type(W.txtSOG, T.Text);
        EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[1], T.Value) << T.Text;
        EXPECT_EQ(W.scrSOG.Value(), T.Bar) << T.Text;
        EXPECT_EQ(W.txtSOG.Text(), *W.lblSOG.Caption);
        if (T.Shown) {
            EXPECT_EQ(*W.lblSOG.Caption, T.Shown) << T.Text;
        }
    }
    W.scrSOG.Set_Value(77);
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[1], 7.7F);
    EXPECT_EQ(W.txtSOG.Text(), "7.7");
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[2], 0);
    EXPECT_EQ(Bench.Box_Count(), 0U);
}

TEST(Motion_Controls, Typed_Course_Gives_Way_To_A_Bar_That_Moves) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    for (const Typed_Value& T : {Typed_Value{"360", 0, "000.0", 0},
                                 {"359.9", 359.9F, "359.9", 3599},
                                 {"359.92", 0, "000.0", 0},
                                 {"-1", 0, "000.0", 0},
                                 {"7,5", 7.5F, "007.5", 75},
                                 {"123.45", 123.4F, "123.4", 1234},
                                 {"1e30", 0, "000.0", 0},
                                 {"x", 0, "000.0", 0}}) {
        Bench.Type(W.txtCOG, T.Text);
        EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_COG[1], T.Value) << T.Text;
        EXPECT_EQ(W.scrCOG.Value(), T.Bar) << T.Text;
        EXPECT_EQ(*W.lblCOG.Caption, T.Shown) << T.Text;
        EXPECT_EQ(W.txtCOG.Text(), T.Shown) << T.Text;
    }
    W.scrCOG.Set_Value(1234);
    Bench.Type(W.txtCOG, "123.45");
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_COG[1], 123.45F) << "the bar stands there already";
}

TEST(Motion_Controls, The_Course_Bar_Wraps_At_Both_Ends) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Bench.Sim.Windows.User_Set(W.scrCOG, std::int64_t{3600});
    EXPECT_EQ(W.scrCOG.Value(), 0);
    Bench.Sim.Windows.User_Set(W.scrCOG, std::int64_t{-1});
    EXPECT_EQ(W.scrCOG.Value(), 3599);
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_COG[1], 359.9F);
    EXPECT_EQ(W.txtCOG.Text(), "359.9");
    Bench.Close();
    Bench.Sim.State.Of<GNSS_State>().GNSS_COG[1] = 359.97F;
    frmPosition& Again = Bench.Open();
    EXPECT_EQ(Again.scrCOG.Value(), 0);
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_COG[1], 359.97F);
}

TEST(Motion_Controls, Arrow_Keys_Work_Until_Another_Control_Is_Chosen) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto Press = [&](int Key, int Times = 1) {
        for (int I = 0; I < Times; ++I) Bench.Sim.Windows.User_Key(W, Key);
    };
    EXPECT_FALSE(W.txtDummy.Visible);
    Press(key::Up);
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[1], 0);
    EXPECT_EQ(*W.cmdArrows.Caption, "Control SOG/COG by keyboard Arrow keys");

    Bench.Click(W.cmdArrows);
    EXPECT_EQ(*W.cmdArrows.Caption, "SOG/COG controlled by Arrow keys");
    EXPECT_FALSE(W.cmdArrows.Enabled);
    EXPECT_TRUE(W.lblArrows.Visible);
    EXPECT_EQ(Bench.Sim.Windows.Focus, &W.txtDummy);
    Press(key::Down);
    EXPECT_EQ(W.scrSOG.Value(), 0);
    Press(key::Left);
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_COG[1], 359.9F);
    Press(key::Right, 3);
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_COG[1], 0.2F);
    Press(key::Up, 401);
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[1], 40);
    Press(key::Down, 5);
    EXPECT_EQ(*W.lblSOG.Caption, "39.5");

    Bench.Click(W.cmdStart);
    EXPECT_EQ(*W.cmdArrows.Caption, "Control SOG/COG by Arrow keys");
    EXPECT_TRUE(W.cmdArrows.Enabled);
    EXPECT_FALSE(W.lblArrows.Visible);
    EXPECT_FALSE(W.txtDummy.Visible);
    Press(key::Up);
    EXPECT_EQ(W.scrSOG.Value(), 395);
}

} // namespace
} // namespace brinewright
