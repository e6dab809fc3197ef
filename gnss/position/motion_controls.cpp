#include "gnss/position/motion_controls.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brinewright {

namespace {

constexpr int Bar_Steps = 10; // of a knot or of a degree

void Show_SOG(const Simulator_State& S, frmPosition& W) {
    W.lblSOG.Caption = Format_Dot(S.Of<GNSS_State>().GNSS_SOG[W.Instance], "0.0");
    W.txtSOG.Set_Text(W.lblSOG.Caption);
}

void Show_COG(const Simulator_State& S, frmPosition& W) {
    W.lblCOG.Caption = Format_Dot(S.Of<GNSS_State>().GNSS_COG[W.Instance], "000.0");
    W.txtCOG.Set_Text(W.lblCOG.Caption);
}

} // namespace

void Wire_Motion_Controls(Simulator& Sim, frmPosition& W) {
    W.scrSOG.Change = [&] { scrSOG_Change(Sim, W); };
    W.txtSOG.Lost_Focus = [&] { txtSOG_LostFocus(Sim, W); };
    W.scrCOG.Change = [&] { scrCOG_Change(Sim, W); };
    W.txtCOG.Lost_Focus = [&] { txtCOG_LostFocus(Sim, W); };
    W.cmdArrows.Click = [&] { cmdArrows_Click(Sim, W); };
    W.txtDummy.Lost_Focus = [&] { txtDummy_LostFocus(Sim, W); };
    W.On_Key_Down = [&W](int Key_Code, Key_Modifiers) { return frmPosition_KeyDown(W, Key_Code); };
}

void Show_Motion(const Simulator_State& State, frmPosition& W) {
    W.scrSOG.Set_Value(Bar_Place(W.scrSOG, State.Of<GNSS_State>().GNSS_SOG[W.Instance], Bar_Steps));
    // The ends of the course bar are the wrap, not places to stand on.
    const int Circle = W.scrCOG.Max;
    W.scrCOG.Set_Value(
        (Bar_Place(W.scrCOG, State.Of<GNSS_State>().GNSS_COG[W.Instance], Bar_Steps) + Circle) % Circle);
    Show_SOG(State, W);
    Show_COG(State, W);
}

void scrSOG_Change(Simulator& Sim, frmPosition& W) {
    Sim.State.Of<GNSS_State>().GNSS_SOG[W.Instance] = static_cast<float>(W.scrSOG.Value()) / Bar_Steps;
    Show_SOG(Sim.State, W);
}

// The bar goes first and the typed value last, so that it stays in effect where the bar cannot follow: above
// 40 knots, where the bar stands at its end, and between two tenths. This order is required.
void txtSOG_LostFocus(Simulator& Sim, frmPosition& W) {
    const double Speed = std::abs(Val_Dot(W.txtSOG.Text()));
    W.scrSOG.Set_Value(Bar_Place(W.scrSOG, Speed, Bar_Steps));
    Sim.State.Of<GNSS_State>().GNSS_SOG[W.Instance] =
        static_cast<float>(std::min(Speed, static_cast<double>(std::numeric_limits<float>::max())));
    Show_SOG(Sim.State, W);
}

void scrCOG_Change(Simulator& Sim, frmPosition& W) {
    if (Wrap_Direction_Bar(W.scrCOG)) return;
    Sim.State.Of<GNSS_State>().GNSS_COG[W.Instance] = static_cast<float>(W.scrCOG.Value()) / Bar_Steps;
    Show_COG(Sim.State, W);
}

// Here the bar comes last, other than with the speed: where it moves, its tenth of a degree replaces what was
// typed. This order is required.
void txtCOG_LostFocus(Simulator& Sim, frmPosition& W) {
    constexpr float Last_deg = 359.9F;
    const double Typed = Val_Dot(W.txtCOG.Text());
    const float Course = Typed > 0 && Typed < 360 ? static_cast<float>(Typed) : 0.0F;
    Sim.State.Of<GNSS_State>().GNSS_COG[W.Instance] = Course > Last_deg ? 0.0F : Course;
    Show_COG(Sim.State, W);
    const float Tenths = Sim.State.Of<GNSS_State>().GNSS_COG[W.Instance] * Bar_Steps;
    W.scrCOG.Set_Value(static_cast<int>(std::nearbyint(Tenths)));
}

void cmdArrows_Click(Simulator& Sim, frmPosition& W) {
    W.txtDummy.Visible = true;
    W.Key_Preview = true;
    W.cmdArrows.Caption = std::string("SOG/COG controlled by Arrow keys");
    W.cmdArrows.Enabled = false;
    W.lblArrows.Visible = true;
    Sim.Windows.Set_Focus(&W.txtDummy);
}

// The caption differs from the first one by a word, which is required.
void txtDummy_LostFocus(Simulator&, frmPosition& W) {
    W.Key_Preview = false;
    W.cmdArrows.Caption = std::string("Control SOG/COG by Arrow keys");
    W.cmdArrows.Enabled = true;
    W.lblArrows.Visible = false;
    W.txtDummy.Visible = false;
}

bool frmPosition_KeyDown(frmPosition& W, int Key_Code) {
    Scroll_Bar& SOG = W.scrSOG;
    Scroll_Bar& COG = W.scrCOG;
    switch (Key_Code) {
    case key::Left: COG.Set_Value(COG.Value() - 1); return true;
    case key::Right: COG.Set_Value(COG.Value() + 1); return true;
    case key::Up:
        if (SOG.Value() < SOG.Min) SOG.Set_Value(SOG.Value() + 1);
        return true;
    case key::Down:
        if (SOG.Value() >= 1) SOG.Set_Value(SOG.Value() - 1);
        return true;
    default: return false;
    }
}

} // namespace brinewright
