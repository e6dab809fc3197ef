#include "sensors/echosounder/echo_ticks.hpp"

#include "sensors/echosounder/echo_state.hpp"
#include "sensors/echosounder/frm_echosounder.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/depth_wind_parts.hpp"
#include "shell/kit/value_bars.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr double Feet_Per_m = 3.28083;
constexpr float Scale_m = 400;

constexpr Interval_Choices Choices{Depth_Wind_Intervals, 2};
constexpr float Stagger_s = 0.15F;

// The window has no START: its sentences run as soon as they are ticked.
constexpr Sentence_Row Rows[] = {
    {.Type = "DBT",
     .Content = "depth below the transducer",
     .Tick = On_Window<timer_DBT_Tick>::Run,
     .Talker = Talker_In<&frmEchosounder::DBT_Record>::Of,
     .Setting = Setting_In<&Echo_State::DBT_Enabled, &Echo_State::DBT_Interval>::Of,
     .Kept = {{"REM Active messages", 28}, {"REM Utvidelser v6", 5}},
     .Choices = &Choices,
     .New_Setup_Interval = 2,
     .Stagger_s = Stagger_s},
    {.Type = "DPT",
     .Content = "depth and offset of the transducer",
     .Tick = On_Window<timer_DPT_Tick>::Run,
     .Talker = Talker_In<&frmEchosounder::DPT_Record>::Of,
     .Setting = Setting_In<&Echo_State::DPT_Enabled, &Echo_State::DPT_Interval>::Of,
     .Kept = {{"REM Active messages", 29}, {"REM Utvidelser v6", 6}},
     .Choices = &Choices,
     .New_Setup_Interval = 2,
     .Stagger_s = Stagger_s},
};

float Depth_Now_m(Simulator& Sim, const frmEchosounder& W) {
    if (!W.chkNoise.Value()) return W.Depth_Value;
    const double Largest_m = Number_Shown(W.cmbNoise.Text());
    return Record_Number(std::max(0.0, W.Depth_Value + Signed_Draw(Sim) * Largest_m));
}

void Show_Current_Depth(frmEchosounder& W, float Depth_m) {
    W.lblCurrentDepth.Caption = Format_Dot(Depth_m, "0.0#");
}

} // namespace

std::span<const Sentence_Row> Echo_Sentences() { return Rows; }

void Preset_Echo_Records(frmEchosounder& W) {
    W.DBT_Record.Depth_Fathoms = Empty_Marker;
    W.DPT_Record.Range = Scale_m;
}

void timer_DBT_Tick(Simulator& Sim, frmEchosounder& W) {
    DBT_Record& R = W.DBT_Record;
    R.Depth_Metres = Depth_Now_m(Sim, W);
    R.Depth_Feet = Record_Number(R.Depth_Metres * Feet_Per_m);
    Show_Current_Depth(W, R.Depth_Metres);
    Send_Sentence(Sim, Compose_DBT(R, No_Checksum(Sim)), W);
}

void timer_DPT_Tick(Simulator& Sim, frmEchosounder& W) {
    DPT_Record& R = W.DPT_Record;
    R.Depth = Depth_Now_m(Sim, W);
    R.Offset = W.Transducer_Offset;
    Show_Current_Depth(W, R.Depth);
    Send_Sentence(Sim, Compose_DPT(R, No_Checksum(Sim)), W);
}

} // namespace brinewright
