#include "sensors/echosounder/echo_controls.hpp"

#include "sensors/echosounder/echo_state.hpp"
#include "sensors/echosounder/frm_echosounder.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/depth_wind_parts.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr int Offset_Limit_m = 20;

void Show_Depth(frmEchosounder& W) { Show_Size(W.lblDepth, W.txtDepth, W.Depth_Value); }

// Echo sounder 1 alone hands its depth to the state, although both start from it.
void Take_Depth(Simulator& Sim, frmEchosounder& W, float Depth_m) {
    W.Depth_Value = Depth_m;
    if (W.Instance == 1) Sim.State.Of<Echo_State>().Echo_Depth = Depth_m;
    Show_Depth(W);
}

} // namespace

void Fill_Echo_Lists(frmEchosounder& W) {
    for (int Metres = -Offset_Limit_m; Metres <= Offset_Limit_m; ++Metres)
        W.cmbOffset.Add_Item(Number_Text(Metres));
    for (int Metres = 0; Metres <= Last_Noise_Choice; ++Metres) W.cmbNoise.Add_Item(std::to_string(Metres));
}

void Show_Kept_Depth(const Simulator& Sim, frmEchosounder& W) {
    W.Depth_Value = std::max(Sim.State.Of<Echo_State>().Echo_Depth, 0.0F); // a setup file may hold any number
    W.scrDepth.Set_Value(Bar_Place(W.scrDepth, W.Depth_Value, Bar_Steps));
    Show_Depth(W);
}

void Wire_Echo_Controls(Simulator& Sim, frmEchosounder& W) {
    W.scrDepth.Change = [&] { scrDepth_Change(Sim, W); };
    W.txtDepth.Lost_Focus = [&] { txtDepth_LostFocus(Sim, W); };
    W.cmbOffset.Click = [&W] { cmbOffset_Change(W); };
    W.cmbOffset.Change = [&W] { cmbOffset_Change(W); };
    W.cmbOffset.Lost_Focus = [&W] { cmbOffset_LostFocus(W); };
    W.chkNoise.Click = [&] {
        Sim.State.Of<Echo_State>().Echo_Noise_Enabled[W.Instance] = W.chkNoise.Value();
    };
    W.cmbNoise.Click = [&] {
        Sim.State.Of<Echo_State>().Echo_Noise_Level[W.Instance] =
            static_cast<std::int16_t>(W.cmbNoise.List_Index());
    };
}

void Restore_Echo_Settings(const Simulator& Sim, frmEchosounder& W) {
    W.cmbOffset.Set_List_Index(Offset_Limit_m);
    Restore_Choice(W.cmbNoise, Sim.State.Of<Echo_State>().Echo_Noise_Level[W.Instance], 0);
    W.chkNoise.Set_Value(Sim.State.Of<Echo_State>().Echo_Noise_Enabled[W.Instance]);
}

void scrDepth_Change(Simulator& Sim, frmEchosounder& W) { Take_Depth(Sim, W, Bar_Value(W.scrDepth)); }

void txtDepth_LostFocus(Simulator& Sim, frmEchosounder& W) {
    Take_Depth(Sim, W, Typed_Size(W.scrDepth, W.txtDepth));
}

void cmbOffset_Change(frmEchosounder& W) { W.Transducer_Offset = Number_Shown(W.cmbOffset.Text()); }

void cmbOffset_LostFocus(frmEchosounder& W) { W.cmbOffset.Set_Text(Decimal_Text(W.Transducer_Offset)); }

} // namespace brinewright
