// Speed and course: bars, boxes and arrow keys.

#include "gnss_bench.hpp"

namespace brinewright {
namespace {

TEST(Motion_Controls, Arrow_Keys_Work_Until_Another_Control_Is_Chosen) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto Press = [&](int Key, int Times = 1) {
        for (int I = 0; I < Times; ++I) Bench.Sim.Windows.User_Key(W, Key);
    };
    EXPECT_FALSE(W.txtDummy.Visible);
    Press(key::Up);
    EXPECT_EQ(Bench.GNSS().GNSS_SOG[1], 0);
    EXPECT_EQ(*W.cmdArrows.Caption, "Control SOG/COG by keyboard Arrow keys");

    Bench.Click(W.cmdArrows);
    EXPECT_EQ(*W.cmdArrows.Caption, "SOG/COG controlled by Arrow keys");
    EXPECT_FALSE(W.cmdArrows.Enabled);
    EXPECT_TRUE(W.lblArrows.Visible);
    EXPECT_EQ(Bench.Sim.Windows.Focus, &W.txtDummy);
    Press(key::Down);
    EXPECT_EQ(W.scrSOG.Value(), 0);
    Press(key::Left);
    EXPECT_EQ(Bench.GNSS().GNSS_COG[1], 359.9F);
    Press(key::Right, 3);
    EXPECT_EQ(Bench.GNSS().GNSS_COG[1], 0.2F);
    Press(key::Up, 401);
    EXPECT_EQ(Bench.GNSS().GNSS_SOG[1], 40);
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
