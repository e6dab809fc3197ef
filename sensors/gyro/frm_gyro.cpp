#include "sensors/gyro/frm_gyro.hpp"

#include "ownship/geodesy/latin1.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 3;
constexpr double Simulator_Period_ms = 400;
constexpr int Noise_Tenths[] = {0, 2, 4, 6, 8, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100};
constexpr const char* THS_Modes[] = {"A=Autonomous", "E=Estimated", "M=Manual", "S=Simulator", "V=Not valid"};
// Of what is typed: a heading that noise of one circle at most has moved is back with one wrap.
constexpr float Noise_Limit = 360;
constexpr int Most_Decimals = 3;
constexpr int Default_Decimals = 1;

enum Noise { Heading_Noise, Turn_Noise, Roll_Noise, Pitch_Noise };

// Noise that is not accumulated shows in the report alone, and that is the noisy heading as the last
// simulator tick left it: before the first START, and in Ship mode for ever, it is 0. This is required.
float Reported_Heading(const Gyro_State& S, const frmGyro& W) {
    const bool Noisy = W.chkNoise.Value() && W.optAccumulatedNoise.Selected() == 0;
    return Noisy ? W.Noisy_HDG : S.Gyro_HDG[W.Instance];
}

void Show_Angle(Label& Where, float Angle, std::string_view Pattern) {
    Where.Caption = Format_Dot(Angle, Pattern);
}

float With_Noise(Simulator& Sim, const frmGyro& W, float Value, Noise Which) {
    if (!W.chkNoise.Value()) return Value;
    return Record_Number(Value + Signed_Draw(Sim) * W.Noise_Max[Which]);
}

template <auto Record, auto Compose>
void Send_Heading(Simulator& Sim, frmGyro& W) {
    const Gyro_State& S = Sim.State.Of<Gyro_State>();
    (W.*Record).Heading = Reported_Heading(S, W);
    Show_Angle(W.lblCurrentHdg, (W.*Record).Heading, "000.0#");
    Send_Sentence(Sim, Compose(W.*Record, S.Gyro_Decimals[W.Instance], No_Checksum(Sim)), W);
}

void Send_Turn(Simulator& Sim, frmGyro& W) {
    const Gyro_State& S = Sim.State.Of<Gyro_State>();
    ROT_Record& R = W.ROT_Record;
    R.Rate = With_Noise(Sim, W, S.Gyro_ROT[W.Instance], Turn_Noise);
    R.Status = 'A';
    Show_Angle(W.lblCurrentRot, R.Rate, "000.0#");
    Send_Sentence(Sim, Compose_ROT(R, S.Gyro_Decimals[W.Instance], No_Checksum(Sim)), W);
}

// Here the noisy heading is reported whether it is accumulated or not.
template <auto Record, auto Compose>
void Send_Attitude(Simulator& Sim, frmGyro& W) {
    auto& R = W.*Record;
    R.Heading = W.chkNoise.Value() ? W.Noisy_HDG : Sim.State.Of<Gyro_State>().Gyro_HDG[W.Instance];
    R.Roll = With_Noise(Sim, W, W.Roll_Value, Roll_Noise);
    R.Pitch = With_Noise(Sim, W, W.Pitch_Value, Pitch_Noise);
    Show_Angle(W.lblCurrentHdg, R.Heading, "000.0#");
    Show_Angle(W.lblCurrentRoll, R.Roll, "0.0#");
    Show_Angle(W.lblCurrentPitch, R.Pitch, "0.0#");
    Send_Sentence(Sim, Compose(R, No_Checksum(Sim)), W);
}

constexpr const char* Entries[] = {"0.1 sec", "0.2 sec", "0.4 sec", "0.6 sec", "0.8 sec",
                                   "1.0 sec", "2.0 sec", "3.0 sec", "4.0 sec", "5.0 sec",
                                   "6.0 sec", "7.0 sec", "8.0 sec", "9.0 sec", "10.0 sec"};
constexpr Interval_Choices Choices{Entries, 5};

using G = frmGyro;

// Other than with the GNSS, START starts and PAUSE stops all of them.
constexpr Sentence_Row All_The_Same{
    .Choices = &Choices, .New_Setup_Interval = 5, .Stagger_s = 0.15F, .Stopped_By_Pause = true};

constexpr Sentence_Row Rows[] = {
    Row<&G::HDT_Record, &Gyro_State::HDT_Enabled, &Gyro_State::HDT_Interval,
        Send_Heading<&G::HDT_Record, Compose_HDT>>(All_The_Same, "HDT", "true heading", 1,
                                                   {"REM Active messages", 15}),
    Row<&G::THS_Record, &Gyro_State::THS_Enabled, &Gyro_State::THS_Interval,
        Send_Heading<&G::THS_Record, Compose_THS>>(All_The_Same, "THS", "true heading and status", 2,
                                                   {"REM THS messages", 1}),
    Row<&G::ROT_Record, &Gyro_State::ROT_Enabled, &Gyro_State::ROT_Interval, Send_Turn>(
        All_The_Same, "ROT", "rate of turn", 3, {"REM Active messages", 17}),
    // HDM has its box, its list and its running timer, and sends nothing. This is required.
    Row<&Gyro_State::HDM_Enabled, &Gyro_State::HDM_Interval>(
        All_The_Same, "HDM", "magnetic heading: kept as a choice, nothing leaves", 4,
        {"REM Active messages", 19}),
    Row<&G::ATT_Record, &Gyro_State::ATT_Enabled, &Gyro_State::ATT_Interval,
        Send_Attitude<&G::ATT_Record, Compose_ATT>>(All_The_Same, "ATT", "heading, pitch and roll", 5,
                                                    {"REM Active messages", 21}, "Furuno propr."),
    Row<&G::PRDID_Record, &Gyro_State::PRDID_Enabled, &Gyro_State::PRDID_Interval,
        Send_Attitude<&G::PRDID_Record, Compose_PRDID>>(All_The_Same, "PRDID", "pitch, roll and heading", 6,
                                                        {"REM Active messages", 23}, "RD Instr propr."),
};

// Back into the circle, once: above 359.99 counts as past north.
float Past_North(float Heading_deg) {
    constexpr float Last_deg = 359.99F, Circle_deg = 360;
    if (Heading_deg > Last_deg) Heading_deg -= Circle_deg;
    if (Heading_deg < 0) Heading_deg += Circle_deg;
    return Heading_deg;
}

// A tick is 0.4 seconds long, but the rate is divided by the 60 seconds of its minute: the turn runs 2.5
// times faster than it says, which is required.
float Turned(float Heading_deg, float Rate_deg_min) {
    constexpr float Divisor = 60;
    return Rate_deg_min == 0 ? Heading_deg : Record_Number(Heading_deg + Rate_deg_min / Divisor);
}

// The turn enters Gyro_HDG, which HDT reports, only together with accumulated noise. In all other cases
// Gyro_HDG stands still and only Nav_HDG shows the turn, of one tick. This dependence is required.
void timer_Simulator_Tick(Simulator& Sim, frmGyro& W) {
    Gyro_State& State = Sim.State.Of<Gyro_State>();
    float& Heading = State.Gyro_HDG[W.Instance];
    float H = Turned(Heading, State.Gyro_ROT[W.Instance]);
    if (W.chkNoise.Value()) H = Record_Number(H + Signed_Draw(Sim) * W.Noise_Max[Heading_Noise]);
    W.Noisy_HDG = H == Heading ? Heading : Past_North(H);
    // Gyro 1 steers the ship's heading, which targets and the log read, while no ship does.
    if (W.Instance == 1 && Sim.State.Of<Shell_State>().Mode == "Sensor")
        Sim.State.Of<Navdata_State>().Nav_HDG = W.Noisy_HDG;
    if (W.chkNoise.Value() && W.optAccumulatedNoise.Selected() == 1) {
        Heading = W.Noisy_HDG;
        // The bar's handler rounds Noisy_HDG to a tenth; Heading and Nav_HDG keep the value as it was made.
        Move_Bar(W.scrHDG, Bar_Place(W.scrHDG, W.Noisy_HDG, Bar_Steps));
    }
}

// The caption stays: a pause makes it "Continue".
void cmdStart_Click(frmGyro& W) {
    W.cmdPause.Enabled = true;
    W.timer_Simulator.Set_Interval(Simulator_Period_ms);
    Start_Sentences(W.Sentences);
}

void cmdPause_Click(frmGyro& W) {
    W.cmdStart.Caption = std::string("Continue");
    W.timer_Simulator.Set_Interval(0);
    Pause_Sentences(W.Sentences);
}

// Showing heading and turn writes neither. With noise the bar sets only the noisy heading, which the next
// simulator tick makes anew; Gyro_HDG stays. This is required.
void Wire_Motion(Simulator& Sim, frmGyro& W) {
    float& Heading = Sim.State.Of<Gyro_State>().Gyro_HDG[W.Instance];
    float& Turn = Sim.State.Of<Gyro_State>().Gyro_ROT[W.Instance];
    W.scrHDG.Set_Value(Direction_Place(W.scrHDG, Heading));
    W.scrROT.Set_Value(Bar_Place(W.scrROT, Turn, Bar_Steps));
    Wire_Typed_Bar(Sim, W,
                   {W.scrHDG, W.txtHDG, "Heading must be 0.0 to 360.0 degrees. Try again!",
                    [&] { (W.chkNoise.Value() ? W.Noisy_HDG : Heading) = Bar_Value(W.scrHDG); },
                    [&] { return Direction_Shown(W.scrHDG); }, true});
    const auto Wire = [&](Scroll_Bar& Bar, Text_Box& Box, float& Value, const char* Refusal) {
        Wire_Typed_Bar(
            Sim, W,
            {Bar, Box, Refusal, [&] { Value = Bar_Value(Bar); }, [&] { return Format_Dot(Value, "0.0"); }});
    };
    Wire(W.scrROT, W.txtROT, Turn, "Rate of turn must be -30.0 to 30.0 deg/min. Try again!");
    Wire(W.scrRoll, W.txtRoll, W.Roll_Value, "Roll must be -15.0 to 15.0 degrees. Try again!");
    Wire(W.scrPitch, W.txtPitch, W.Pitch_Value, "Pitch must be -15.0 to 15.0 degrees. Try again!");
}

// A number that was typed takes effect and is not kept over a restart: only places in the list are.
void Wire_Noise(Gyro_State& S, frmGyro& W) {
    for (const auto& List : W.cmbNoise) {
        const int I = List->Index;
        for (const int Tenths : Noise_Tenths)
            List->Add_Item(Format_Dot(Tenths / 10.0, "0.0") + ' ' + Degree_Sign);
        List->Tool_Tip = *W.lblNoise[I].Tool_Tip + "; others, -360 to 360, can be typed";
        Wire_Number_List(*List, {-Noise_Limit, Noise_Limit}, [&W, I](float Most) { W.Noise_Max[I] = Most; });
        Keep(*List, S.Gyro_Noise_Level[W.Instance][I], 0, List->Change);
    }
    Keep(W.optAccumulatedNoise, S.Gyro_Noise_Accumulated[W.Instance]);
    Keep(W.chkNoise, S.Gyro_Noise_Enabled[W.Instance]);
}

// In Ship mode the window is its sentences alone: the ship sets heading and rate of turn, and with the frames
// go noise and attitude, which stay as they are.
void Apply_Mode(const Simulator& Sim, frmGyro& W) {
    const bool Ship_Mode = Sim.State.Of<Shell_State>().Mode == "Ship";
    W.lblShipControl.Visible = Ship_Mode;
    for (Frame* By_Hand : {&W.frmSimulator, &W.frmRoll, &W.frmPitch, &W.frmSimulatorControl})
        By_Hand->Visible = !Ship_Mode;
}

void Form_Load(Simulator& Sim, frmGyro& W) {
    Gyro_State& S = Sim.State.Of<Gyro_State>();
    Wire_Motion(Sim, W);
    W.cmdStart.Click = [&] { cmdStart_Click(W); };
    W.cmdPause.Click = [&] { cmdPause_Click(W); };
    W.timer_Simulator.Tick = [&] { timer_Simulator_Tick(Sim, W); };
    Wire_Routing(Sim, W, S.Gyro_Talker[W.Instance]);
    Wire_Sentences(Sim, W);
    Apply_Mode(Sim, W);
    Wire_Noise(S, W);
    Add_Items(W.cmbModeIndicator, THS_Modes);
    W.cmbModeIndicator.Click = [&] { W.THS_Record.Mode = W.cmbModeIndicator.Text().front(); };
    W.cmbModeIndicator.Set_List_Index(0);
    for (int Decimals = 0; Decimals <= Most_Decimals; ++Decimals)
        W.cmbDecimals.Add_Item(Number_Text(Decimals));
    Keep(W.cmbDecimals, S.Gyro_Decimals[W.Instance], Default_Decimals);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

std::string Value_Now(const Simulator_State& S, int Instance) {
    return Format_Dot(S.Of<Gyro_State>().Gyro_HDG[Instance], "000.0") + " deg";
}

} // namespace

frmGyro::frmGyro(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "HE",
                  "Talker of all sentences but PRDID, two characters") {
    cmdPause.Enabled = false;
}

const Window_Class Gyro_Windows{
    .Name = frmGyro::Class_Name,
    .Count = 2,
    .First_Form_Index = First_Form_Index,
    .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Gyro", .Place = 4},
    .Caption = "Gyro #",
    .Make = Make_Instance<frmGyro>,
    .Load = Load_Sensor<frmGyro, Form_Load>,
    .Lay_Out = Lay_Out_Gyro,
    .Lay_Out_Small = Lay_Out_Small_Gyro,
    .Value_Now = Value_Now,
    .Sentences = Rows};

} // namespace brinewright
