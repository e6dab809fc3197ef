#include "sensors/log/frm_log.hpp"

#include "gnss/gnss_state.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 5;
constexpr float Width = 2800; // twentieths of a point
// The blank in front of the whole knots belongs to them.
constexpr const char* Noise_Levels[] = {"0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9",
                                        " 1",  " 2",  " 3",  " 4",  " 5",  " 6",  " 7",  " 8",  " 9",  " 10"};

// The log speed with noise to either side if there is any; noise never makes it negative.
float Noisy_Speed(Simulator& Sim, const frmLog& W, float Max_Noise_kn) {
    const float Speed_kn = Sim.State.Of<Log_State>().Log_Speed[W.Instance];
    if (!W.chkNoise.Value()) return Speed_kn;
    return Record_Number(std::max(0.0, Speed_kn + Signed_Draw(Sim) * Max_Noise_kn));
}

float Reported_Speed(Simulator& Sim, frmLog& W) {
    const float Speed_kn = Noisy_Speed(Sim, W, Sim.State.Of<Log_State>().Log_Noise_Level[W.Instance]);
    W.lblCurrentSpeed.Caption = Format_Dot(Speed_kn, "0.0#");
    return Speed_kn;
}

// The heading is the ship's, also for log 2 and also while the gyro has noise.
void Send_VHW(Simulator& Sim, frmLog& W) {
    constexpr double kmh_Per_Knot = 1.852;
    const Navdata_State& Ship = Sim.State.Of<Navdata_State>();
    VHW_Record& R = W.VHW_Record;
    R.Heading_True = Record_Number(Ship.Nav_HDG);
    R.Heading_Magnetic = Sum_Direction(Ship.Nav_HDG, Ship.Magnetic_Variation);
    R.Speed_Knots = Reported_Speed(Sim, W);
    R.Speed_Kmh = Record_Number(R.Speed_Knots * kmh_Per_Knot);
    Send_Sentence(Sim, Compose_VHW(R, No_Checksum(Sim)), W);
}

void Send_VBW(Simulator& Sim, frmLog& W) {
    VBW_Record& R = W.VBW_Record;
    R.Water_Long = Reported_Speed(Sim, W);
    R.Water_Trans = 0;
    R.Ground_Long = Sim.State.Of<Log_State>().Log_Speed[W.Instance];
    R.Ground_Trans = 0;
    Send_Sentence(Sim, Compose_VBW(R, No_Checksum(Sim)), W);
}

// With noise the drift starts from the speed of the log and not from the drift of the current. This
// difference is required.
void Send_VDR(Simulator& Sim, frmLog& W) {
    const Navdata_State& Sea = Sim.State.Of<Navdata_State>();
    VDR_Record& R = W.VDR_Record;
    R.Drift = W.chkNoise.Value() ? Noisy_Speed(Sim, W, Number_Shown(W.cmbNoise.Text())) : Sea.Current_Drift;
    R.Set_True = Sea.Current_Set;
    R.Set_Magnetic = Sum_Direction(Sea.Current_Set, Sea.Magnetic_Variation);
    Send_Sentence(Sim, Compose_VDR(R, No_Checksum(Sim)), W);
}

void Send_VLW(Simulator& Sim, frmLog& W) {
    const int I = W.Instance;
    Log_State& S = Sim.State.Of<Log_State>();
    const VLW_Counters Counters{S.Log_VLW_Seconds[I], S.Log_Total_Water[I], S.Log_Trip_Water[I],
                                S.Log_Total_Ground[I], S.Log_Trip_Ground[I]};
    const Log_Speeds Speeds{S.Log_Speed[I], Sim.State.Of<GNSS_State>().GNSS_SOG[I]};
    Send_Sentence(Sim, Compose_VLW(Counters, Speeds, W.VLW_Record, No_Checksum(Sim)), W);
}

// The counting of distances needs to know the seconds between two sentences.
void Store_VLW_Period(Simulator& Sim, frmLog& W) {
    Sim.State.Of<Log_State>().Log_VLW_Seconds[W.Instance] =
        static_cast<std::int16_t>(Val_Dot(W.Sentences["VLW"].Interval_List.Text()));
}

// Ticking the box of VLW starts the distances anew.
void chkVLW_Clicked(Simulator& Sim, frmLog& W) {
    const bool On = W.Sentences["VLW"].Box.Value();
    W.cmdResetVLW.Enabled = On;
    if (!On) return;
    Store_VLW_Period(Sim, W);
    Log_State& S = Sim.State.Of<Log_State>();
    for (auto* Counter : {&S.Log_Total_Water, &S.Log_Total_Ground, &S.Log_Trip_Water, &S.Log_Trip_Ground})
        (*Counter)[W.Instance] = 0;
}

constexpr const char* Entries[] = {" 1 sec", " 2 sec", " 3 sec", " 4 sec", " 5 sec"};
constexpr Interval_Choices Choices{Entries, 0};
constexpr const char* Kept_First = "REM Active messages";
constexpr const char* Kept_Second = "REM Utvidelser v6";

// The window has no START: its sentences run as soon as they are ticked.
constexpr Sentence_Row All_The_Same{.Choices = &Choices, .Stagger_s = 0.15F};
constexpr Sentence_Row With_Distances{.Choices = &Choices,
                                      .Stagger_s = 0.15F,
                                      .After_Check = On_Window<chkVLW_Clicked>::Run,
                                      .After_Interval = On_Window<Store_VLW_Period>::Run};

using L = frmLog;

constexpr Sentence_Row Rows[] = {
    Kept_Apart(Row<&L::VHW_Record, &Log_State::VHW_Enabled, &Log_State::VHW_Interval, Send_VHW>(
                   All_The_Same, "VHW", "heading and speed through the water", 0, {Kept_First, 25}),
               {Kept_Second, 1}),
    Kept_Apart(Row<&L::VBW_Record, &Log_State::VBW_Enabled, &Log_State::VBW_Interval, Send_VBW>(
                   All_The_Same, "VBW", "speed through the water and over ground", 0, {Kept_First, 26}),
               {Kept_Second, 2}),
    Kept_Apart(Row<&L::VDR_Record, &Log_State::VDR_Enabled, &Log_State::VDR_Interval, Send_VDR>(
                   All_The_Same, "VDR", "set and drift of the current", 0, {Kept_First, 27}),
               {Kept_Second, 3}),
    Kept_Apart(
        Row<&L::VLW_Record, &Log_State::VLW_Enabled, &Log_State::VLW_Interval, Send_VLW>(
            With_Distances, "VLW", "distances through the water and over ground", 0, {"REM VLW Message", 1}),
        {Kept_Second, 4}),
};

// The state holds the knots themselves and not a place in the list. A level that the list does not have, as a
// setup file may hold, stays in effect with nothing chosen.
int Place_Of_Level(const Combo_Box& List, float Level_kn) {
    const auto Has_Level = [&](const Combo_Box::Item& I) { return Number_Shown(I.Text) == Level_kn; };
    const auto& Items = List.Items();
    const auto Found = std::find_if(Items.begin(), Items.end(), Has_Level);
    return Found == Items.end() ? -1 : static_cast<int>(Found - Items.begin());
}

void chkInvalid_Click(frmLog& W) {
    VBW_Record& R = W.VBW_Record;
    const char Status = W.chkInvalid.Value() ? 'V' : 'A';
    R.Water_Status = R.Ground_Status = R.Stern_Water_Status = R.Stern_Ground_Status = Status;
}

// In Ship mode the ship sets the speed; the noise on it stays with the user.
void Apply_Mode(const Simulator& Sim, frmLog& W) {
    const bool Ship_Mode = Sim.State.Of<Shell_State>().Mode == "Ship";
    W.lblShipControl.Visible = Ship_Mode;
    W.frmSpeed.Visible = !Ship_Mode;
}

void Form_Load(Simulator& Sim, frmLog& W) {
    const int I = W.Instance;
    Log_State& S = Sim.State.Of<Log_State>();
    Wire_Size_Bar({W.scrSpeed, W.lblSpeed, W.txtSpeed}, S.Log_Speed[I]);
    Wire_Routing(Sim, W, S.Log_Talker[I]);
    W.chkInvalid.Click = [&W] { chkInvalid_Click(W); };
    W.cmdResetVLW.Click = [&S, I] { S.Log_Trip_Water[I] = S.Log_Trip_Ground[I] = 0; };
    Wire_Sentences(Sim, W);
    Apply_Mode(Sim, W);
    Add_Items(W.cmbNoise, Noise_Levels);
    W.cmbNoise.Click = [&S, &W] { S.Log_Noise_Level[W.Instance] = Number_Shown(W.cmbNoise.Text()); };
    W.cmbNoise.Set_List_Index(Place_Of_Level(W.cmbNoise, S.Log_Noise_Level[I]));
    Keep(W.chkNoise, S.Log_Noise_Enabled[I]);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

std::string Value_Now(const Simulator_State& S, int Instance) {
    return Format_Dot(S.Of<Log_State>().Log_Speed[Instance], "0.0") + " knots";
}

} // namespace

frmLog::frmLog(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "VW",
                  "Talker of all sentences, two characters") {
    const std::string Number = Number_Text(Its_Instance);
    lblVLW.Caption = "VLW Water spd fr Log" + Number + "\nVLW Ground spd fr GNSS" + Number;
    cmdResetVLW.Enabled = false;
}

const Window_Class Log_Windows{.Name = frmLog::Class_Name,
                               .Count = 2,
                               .First_Form_Index = First_Form_Index,
                               .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Log", .Place = 6},
                               .Caption = "Log #",
                               .Make = Make_Instance<frmLog>,
                               .Load = Load_Sensor<frmLog, Form_Load>,
                               .Lay_Out = Lay_Out_Log,
                               .Lay_Out_Small = Lay_Out_Small_Log,
                               .Value_Now = Value_Now,
                               .Sentences = Rows,
                               .Width = Width};

} // namespace brinewright
