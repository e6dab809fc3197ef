#include "sensors/echosounder/frm_echosounder.hpp"

#include "sensors/echosounder/echo_state.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/depth_wind_parts.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 7;
constexpr double Feet_Per_m = 3.28083;
constexpr float Scale_m = 400;
constexpr int Offset_Limit_m = 20;

// Each sentence draws noise of its own, so that DBT and DPT of one period differ.
float Reported_Depth(Simulator& Sim, frmEchosounder& W) {
    float Depth_m = W.Depth_Value;
    if (W.chkNoise.Value())
        Depth_m = Record_Number(std::max(0.0, Depth_m + Signed_Draw(Sim) * Number_Shown(W.cmbNoise.Text())));
    W.lblCurrentDepth.Caption = Format_Dot(Depth_m, "0.0#");
    return Depth_m;
}

void Send_DBT(Simulator& Sim, frmEchosounder& W) {
    DBT_Record& R = W.DBT_Record;
    R.Depth_Metres = Reported_Depth(Sim, W);
    R.Depth_Feet = Record_Number(R.Depth_Metres * Feet_Per_m);
    Send_Sentence(Sim, Compose_DBT(R, No_Checksum(Sim)), W);
}

void Send_DPT(Simulator& Sim, frmEchosounder& W) {
    DPT_Record& R = W.DPT_Record;
    R.Depth = Reported_Depth(Sim, W);
    R.Offset = W.Transducer_Offset;
    Send_Sentence(Sim, Compose_DPT(R, No_Checksum(Sim)), W);
}

constexpr Interval_Choices Choices{Depth_Wind_Intervals, 2};

// The window has no START: its sentences run as soon as they are ticked.
constexpr Sentence_Row All_The_Same{.Choices = &Choices, .New_Setup_Interval = 2, .Stagger_s = 0.15F};

using E = frmEchosounder;

constexpr Sentence_Row Rows[] = {
    Kept_Apart(Row<&E::DBT_Record, &Echo_State::DBT_Enabled, &Echo_State::DBT_Interval, Send_DBT>(
                   All_The_Same, "DBT", "depth below the transducer", 0, {"REM Active messages", 28}),
               {"REM Utvidelser v6", 5}),
    Kept_Apart(Row<&E::DPT_Record, &Echo_State::DPT_Enabled, &Echo_State::DPT_Interval, Send_DPT>(
                   All_The_Same, "DPT", "depth and offset of the transducer", 0, {"REM Active messages", 29}),
               {"REM Utvidelser v6", 6}),
};

// Both echo sounders start from the kept depth, and echo sounder 1 alone hands its own back.
void Wire_Depth(Echo_State& S, frmEchosounder& W) {
    W.Depth_Value = std::max(S.Echo_Depth, 0.0F); // a setup file may hold any number
    Wire_Size_Bar({W.scrDepth, W.lblDepth, W.txtDepth}, W.Depth_Value, [&] {
        if (W.Instance == 1) S.Echo_Depth = W.Depth_Value;
    });
}

// The transducer offset is not kept: it starts at 0.
void Wire_Offset(frmEchosounder& W) {
    for (int Metres = -Offset_Limit_m; Metres <= Offset_Limit_m; ++Metres)
        W.cmbOffset.Add_Item(Number_Text(Metres));
    Wire_Number_List(W.cmbOffset, {}, [&W](float Offset_m) { W.Transducer_Offset = Offset_m; });
    W.cmbOffset.Lost_Focus = [&W, Say_What_Is_Wrong = std::move(W.cmbOffset.Lost_Focus)] {
        Say_What_Is_Wrong();
        W.cmbOffset.Set_Text(Decimal_Text(W.Transducer_Offset));
    };
    W.cmbOffset.Set_List_Index(Offset_Limit_m);
}

void Form_Load(Simulator& Sim, frmEchosounder& W) {
    Echo_State& S = Sim.State.Of<Echo_State>();
    Wire_Depth(S, W);
    Wire_Routing(Sim, W, S.Echo_Talker[W.Instance]);
    Wire_Sentences(Sim, W);
    Wire_Offset(W);
    for (int Metres = 0; Metres <= Last_Noise_Choice; ++Metres) W.cmbNoise.Add_Item(std::to_string(Metres));
    Keep(W.cmbNoise, S.Echo_Noise_Level[W.Instance], 0);
    Keep(W.chkNoise, S.Echo_Noise_Enabled[W.Instance]);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

std::string Value_Now(const Simulator_State& S, int) {
    return Format_Dot(S.Of<Echo_State>().Echo_Depth, "0.0") + " meter";
}

} // namespace

frmEchosounder::frmEchosounder(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "SD",
                  "Talker of all sentences, two characters") {
    DBT_Record.Depth_Fathoms = Empty_Marker; // never given
    DPT_Record.Range = Scale_m;
}

const Window_Class Echosounder_Windows{
    .Name = frmEchosounder::Class_Name,
    .Count = 2,
    .First_Form_Index = First_Form_Index,
    .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Echosounder", .Place = 8},
    .Caption = "Echosounder #",
    .Make = Make_Instance<frmEchosounder>,
    .Load = Load_Sensor<frmEchosounder, Form_Load>,
    .Lay_Out = Lay_Out_Echosounder,
    .Lay_Out_Small = Lay_Out_Small_Echosounder,
    .Value_Now = Value_Now,
    .Sentences = Rows,
    // The log of the same number, if it is open: this slip is required.
    .Focused_Instead = "frmLog"};

} // namespace brinewright
