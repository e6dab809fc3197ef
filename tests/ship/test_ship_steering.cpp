// Steering by keyboard and game controller.

#include "tests/ship/ship_bench.hpp"

#include <limits>

namespace brinewright {
namespace {

constexpr Key_Modifiers None{}, Shift{.Shift = true}, Ctrl{.Ctrl = true}, Alt{.Alt = true};

struct Press {
    Key_Modifiers Held;
    int Key;
    int Throttle, Rudder; // what 40 and 70 become; 40 is astern
};

TEST(Ship_Keyboard, Every_Key_With_Every_Modifier) {
    Ship_Bench B;
    frmShip& W = B.Ship();
    B.Click(W.cmdArrows);
    const Press Presses[] = {
        {None, key::Up, 39, 70},
        {None, key::Down, 41, 70},
        {None, key::Page_Up, 30, 70},
        {None, key::Page_Down, 50, 70},
        {None, key::Left, 40, 69},
        {None, key::Right, 40, 71},
        {Shift, key::Up, 30, 70},
        {Shift, key::Down, 50, 70},
        {Shift, key::Page_Up, 30, 70},
        {Shift, key::Page_Down, 50, 70},
        {Shift, key::Left, 40, 60},
        {Shift, key::Right, 40, 80},
        {Ctrl, key::Up, -100, 70},
        {Ctrl, key::Down, 100, 70},
        {Ctrl, key::Page_Up, -100, 70},
        {Ctrl, key::Page_Down, 100, 70},
        {Ctrl, key::Left, 40, -300},
        {Ctrl, key::Right, 40, 300},
        {Alt, key::Up, 0, 70},
        {Alt, key::Down, 0, 70},
        {Alt, key::Page_Up, 0, 70},
        {Alt, key::Page_Down, 0, 70},
        {Alt, key::Left, 40, 0},
        {Alt, key::Right, 40, 0},
        {None, 65, 40, 70},
        {{.Shift = true, .Alt = true}, key::Up, 40, 70},
    };
    for (const Press& P : Presses) {
        W.sldThrottle.Set_Value(40);
        W.sldRudder.Set_Value(70);
        B.Key(P.Key, P.Held);
        EXPECT_EQ(W.sldThrottle.Value(), P.Throttle) << P.Key << P.Held.Shift << P.Held.Ctrl << P.Held.Alt;
        EXPECT_EQ(W.sldRudder.Value(), P.Rudder) << P.Key << P.Held.Shift << P.Held.Ctrl << P.Held.Alt;
    }
}

TEST(Ship_Keyboard, Ends_And_Steps) {
    Ship_Bench B;
    frmShip& W = B.Ship();
    B.Click(W.cmdArrows);
    const auto After = [&](Slider& Moved, int From, int Code, Key_Modifiers Held) {
        Moved.Set_Value(From);
        B.Key(Code, Held);
        return Moved.Value();
    };
    EXPECT_EQ(After(W.sldThrottle, -100, key::Up, None), -100);
    EXPECT_EQ(After(W.sldThrottle, -95, key::Page_Up, None), -100);
    EXPECT_EQ(After(W.sldThrottle, 100, key::Page_Down, Shift), 100);
    EXPECT_EQ(After(W.sldThrottle, -100, key::Up, Alt), -100) << "stays at the end that the key goes to";
    EXPECT_EQ(After(W.sldThrottle, 100, key::Up, Alt), 0);
    EXPECT_EQ(After(W.sldThrottle, 100, key::Page_Down, Alt), 100);
    EXPECT_EQ(After(W.sldRudder, 300, key::Right, None), 300);
    EXPECT_EQ(After(W.sldRudder, -295, key::Left, Shift), -300);
    EXPECT_EQ(After(W.sldRudder, 300, key::Right, Alt), 0);
    W.sldRudder.Small_Change = 3;
    W.sldRudder.Large_Change = 20;
    EXPECT_EQ(After(W.sldThrottle, 0, key::Up, None), -3) << "the throttle steps as the rate of turn";
    EXPECT_EQ(After(W.sldThrottle, 0, key::Page_Down, None), 20);
    EXPECT_EQ(B.Nav().Nav_SOG, -1);
}

TEST(Ship_Keyboard, The_Mode_Lasts_Until_Another_Control_Is_Chosen) {
    {
        Ship_Bench Left_By_Escape;
        Left_By_Escape.Click(Left_By_Escape.Ship().cmdArrows);
        Left_By_Escape.Key(key::Escape);
        EXPECT_FALSE(Left_By_Escape.Ship().Key_Preview);
        EXPECT_TRUE(*Left_By_Escape.Ship().cmdArrows.Enabled);
    }
    Ship_Bench B;
    frmShip& W = B.Ship();
    const auto Expect_Mode = [&](bool On) {
        EXPECT_EQ(W.Key_Preview, On);
        EXPECT_EQ(*W.cmdArrows.Enabled, !On);
        EXPECT_EQ(*W.lblArrows.Visible, On);
        EXPECT_EQ(*W.frameArrows.Visible, On);
        EXPECT_EQ(*W.cmdSetSOG.Visible, !On);
    };
    Expect_Mode(false);
    B.Key(key::Up);
    EXPECT_EQ(W.sldThrottle.Value(), 0);
    B.Click(W.cmdArrows);
    Expect_Mode(true);
    B.Sim.Windows.Event([&] { B.Sim.Windows.Activate(*B.Sim.Main); });
    B.Sim.Windows.Event([&] { B.Sim.Windows.Activate(W); });
    Expect_Mode(true);
    B.Key(key::Up);
    EXPECT_EQ(B.Nav().Nav_SOG, 0.4F);
    B.Click(W.cmdFreeze);
    Expect_Mode(false);
    B.Key(key::Up);
    EXPECT_EQ(W.sldThrottle.Value(), -1);
    B.Sim.Windows.Event([&] { B.Sim.Windows.Activate(W); });
    EXPECT_EQ(B.Sim.Windows.Focus, &W.txtDummy) << "the window hands the focus on";
    Expect_Mode(false);
}

struct Stick_Bench {
    Played_Joystick& Stick = *new Played_Joystick;
    Ship_Bench B;
    explicit Stick_Bench(const std::function<void(Simulator_State&)>& Change = {}) : B(Change, &Stick) {}
    void Hold(std::int32_t X, std::int32_t Y, std::uint32_t Buttons = 0) {
        Stick.Now = Joystick_Reading{X, Y, Buttons};
    }
};

TEST(Ship_Joystick, Takes_The_Place_Of_Freeze_And_Pause) {
    Stick_Bench T([](Simulator_State& S) { S.Of<Shell_State>().Freeze_Active = true; });
    const frmShip& W = T.B.Ship();
    EXPECT_FALSE(T.B.Shell().Freeze_Active);
    EXPECT_TRUE(*W.frameJoystick.Visible);
    EXPECT_FALSE(*W.lblJoystick.Visible || *W.cmdFreeze.Visible || *W.cmdPause.Visible);
    EXPECT_FALSE(*W.lblFreeze.Visible || *W.lblPause.Visible);
    EXPECT_EQ(Shown(W.cmdFreeze), "FREEZE");
    EXPECT_EQ(Shown(W.cmdPause), "TX PAUSE");
    EXPECT_EQ(Shown(W.lblJoystickButton[0]), "Button 1 - All stop");
    EXPECT_EQ(Shown(W.lblJoystickButton[5]), "Button 6 - Full ahead");
    EXPECT_FALSE(Joystick_Present(T.B.Sim, 1)) << "the first device is the only one";
}

TEST(Ship_Joystick, One_That_Comes_While_The_Windows_Open_Steers_Too) {
    // Absent when the ship window looks for it, there when the start is over.
    struct Late_Joystick final : Joystick {
        int Looks = 0;
        std::optional<Joystick_Reading> Read() override {
            if (Looks++ == 0) return {};
            return Joystick_Reading{Looks > 2 ? 65535 : 32768, 32768, 0};
        }
    };
    Ship_Bench B({}, new Late_Joystick);
    EXPECT_TRUE(*B.Ship().frameJoystick.Visible);
    B.Run_s(0.25);
    EXPECT_EQ(B.Ship().sldRudder.Value(), 20);
}

TEST(Ship_Joystick, Its_Help_And_That_Of_The_Keyboard_Share_A_Place) {
    Ship_Bench B({}, new Played_Joystick);
    B.Click(B.Ship().cmdArrows);
    EXPECT_TRUE(*B.Ship().frameArrows.Visible);
    EXPECT_FALSE(*B.Ship().frameJoystick.Visible);
    B.Click(B.Ship().cmdZero);
    EXPECT_FALSE(*B.Ship().frameArrows.Visible);
    EXPECT_TRUE(*B.Ship().frameJoystick.Visible);
}

TEST(Ship_Joystick, Steps_Ten_Times_A_Second_While_It_Is_Held) {
    Stick_Bench T;
    frmShip& W = T.B.Ship();
    const struct {
        int X, Y, Rudder, Throttle; // off the rest, and the sliders after a second
    } Rows[] = {{0, 0, 0, 0},        {1, 0, 10, 0},        {-1, 0, -10, 0},      {20000, 0, 10, 0},
                {20001, 0, 100, 0},  {-20001, 0, -100, 0}, {0, 20000, 0, 10},    {0, 20001, 0, 100},
                {0, -20000, 0, -10}, {0, -32768, 0, -100}, {32767, -1, 100, -10}};
    for (const auto& R : Rows) {
        W.sldRudder.Set_Value(0);
        W.sldThrottle.Set_Value(0);
        T.Hold(32768 + R.X, 32768 + R.Y);
        T.B.Run_s(1);
        EXPECT_EQ(W.sldRudder.Value(), R.Rudder) << R.X << " " << R.Y;
        EXPECT_EQ(W.sldThrottle.Value(), R.Throttle) << R.X << " " << R.Y;
    }
    T.Hold(65535, 65535);
    T.B.Run_s(10);
    EXPECT_EQ(W.sldRudder.Value(), 300);
    EXPECT_EQ(T.B.Nav().Nav_SOG, -5) << "pulled back: astern";
}

TEST(Ship_Joystick, Buttons) {
    Stick_Bench T;
    frmShip& W = T.B.Ship();
    const struct {
        std::uint32_t Mask;
        int Rudder, Throttle;
    } Rows[] = {{1, 0, 0},
                {2, 0, 40},
                {4, -300, 40},
                {8, 300, 40},
                {16, 70, 100},
                {32, 70, -100},
                {1 + 8 + 32, 300, -100},
                {4 + 8 + 16 + 32, 300, -100},
                {0xFFFFFFC0, 70, 40},
                {0, 70, 40}};
    for (const auto& R : Rows) {
        W.sldRudder.Set_Value(70);
        W.sldThrottle.Set_Value(40);
        T.Hold(32768, 32768, R.Mask);
        T.B.Run_s(0.1);
        EXPECT_EQ(W.sldRudder.Value(), R.Rudder) << R.Mask;
        EXPECT_EQ(W.sldThrottle.Value(), R.Throttle) << R.Mask;
        for (int Bit = 0; Bit <= 15; ++Bit)
            EXPECT_EQ(T.B.State().Of<Joystick_State>().Buttons[Bit], (R.Mask >> Bit) % 2 == 1);
    }
}

TEST(Ship_Joystick, Rest_Is_Where_It_Was_Found_And_Vanishing_Is_Rest) {
    Stick_Bench T;
    T.Hold(10000, 50000, 4);
    T.B.Close(T.B.Ship());
    T.B.Click(Main_Window(T.B.Sim).Item("mnuShip"));
    frmShip& W = T.B.Ship();
    T.Hold(10000, 50000);
    T.B.Run_s(1);
    EXPECT_EQ(W.sldRudder.Value(), 0);
    EXPECT_EQ(W.sldThrottle.Value(), 0);
    T.Hold(10001, 49999, 16);
    T.B.Run_s(0.1);
    EXPECT_EQ(W.sldRudder.Value(), 1);
    EXPECT_EQ(W.sldThrottle.Value(), 100);
    W.sldThrottle.Set_Value(-50);
    T.Stick.Now.reset();
    T.B.Run_s(5);
    EXPECT_EQ(W.sldRudder.Value(), 1);
    EXPECT_EQ(W.sldThrottle.Value(), -50);
    T.Hold(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
    T.B.Run_s(0.1);
    EXPECT_EQ(W.sldRudder.Value(), -9) << "it works again when it comes back, whatever it tells";
    EXPECT_EQ(T.B.Take_Boxes(), Texts{});
}

} // namespace
} // namespace brinewright
