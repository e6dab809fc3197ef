#include "sensors/echo_ticks.hpp"

#include "sensors/depth_wind_parts.hpp"
#include "sensors/frm_echosounder.hpp"
#include "sensors/sensor_parts.hpp"
#include "shell/control_text.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr double Feet_Per_m = 3.28083;
constexpr float Scale_m = 400;

constexpr Interval_Choices Choices{Depth_Wind_Intervals, 2};
constexpr float Stagger_s = 0.15F;

using E = frmEchosounder;
using S = Message_State;

// The window has no START: its sentences run as soon as they are ticked.
constexpr Sentence_Row<E> Rows[] = {
    {"DBT", "depth below the transducer", &E::chkDBT, &E::cmbDBTInterval, &E::timer_DBT, &Choices, Stagger_s,
     timer_DBT_Tick, 0, false, nullptr, &S::DBT_Enabled, &S::DBT_Interval},
    {"DPT", "depth and offset of the transducer", &E::chkDPT, &E::cmbDPTInterval, &E::timer_DPT, &Choices,
     Stagger_s, timer_DPT_Tick, 0, false, nullptr, &S::DPT_Enabled, &S::DPT_Interval},
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

std::span<const Sentence_Row<frmEchosounder>> Echo_Sentences() { return Rows; }

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
