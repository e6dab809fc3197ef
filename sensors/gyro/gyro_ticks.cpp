#include "sensors/gyro/gyro_ticks.hpp"

#include "ownship/navdata_state.hpp"
#include "sensors/gyro/frm_gyro.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <utility>

namespace brinewright {

namespace {

constexpr const char* Entries[] = {"0.1 sec", "0.2 sec", "0.4 sec", "0.6 sec", "0.8 sec",
                                   "1.0 sec", "2.0 sec", "3.0 sec", "4.0 sec", "5.0 sec",
                                   "6.0 sec", "7.0 sec", "8.0 sec", "9.0 sec", "10.0 sec"};
constexpr Interval_Choices Choices{Entries, 5};
constexpr float Stagger_s = 0.15F;

// Other than with the GNSS, START starts and PAUSE stops all of them.
constexpr Sentence_Row Rows[] = {
    {.Type = "HDT",
     .Content = "true heading",
     .Tick = On_Window<timer_HDT_Tick>::Run,
     .Talker = Talker_In<&frmGyro::HDT_Record>::Of,
     .Setting = Setting_In<&Gyro_State::HDT_Enabled, &Gyro_State::HDT_Interval>::Of,
     .Kept = {{"REM Active messages", 15}, {"REM Active messages", 16}},
     .Choices = &Choices,
     .New_Setup_Interval = 5,
     .Stagger_s = Stagger_s,
     .Start_Place = 1,
     .Stopped_By_Pause = true},
    {.Type = "THS",
     .Content = "true heading and status",
     .Tick = On_Window<timer_THS_Tick>::Run,
     .Talker = Talker_In<&frmGyro::THS_Record>::Of,
     .Setting = Setting_In<&Gyro_State::THS_Enabled, &Gyro_State::THS_Interval>::Of,
     .Kept = {{"REM THS messages", 1}, {"REM THS messages", 2}},
     .Choices = &Choices,
     .New_Setup_Interval = 5,
     .Stagger_s = Stagger_s,
     .Start_Place = 2,
     .Stopped_By_Pause = true},
    {.Type = "ROT",
     .Content = "rate of turn",
     .Tick = On_Window<timer_ROT_Tick>::Run,
     .Talker = Talker_In<&frmGyro::ROT_Record>::Of,
     .Setting = Setting_In<&Gyro_State::ROT_Enabled, &Gyro_State::ROT_Interval>::Of,
     .Kept = {{"REM Active messages", 17}, {"REM Active messages", 18}},
     .Choices = &Choices,
     .New_Setup_Interval = 5,
     .Stagger_s = Stagger_s,
     .Start_Place = 3,
     .Stopped_By_Pause = true},
    {.Type = "HDM",
     .Content = "magnetic heading: kept as a choice, nothing leaves",
     .Tick = On_Window<timer_HDM_Tick>::Run,
     .Talker = nullptr,
     .Setting = Setting_In<&Gyro_State::HDM_Enabled, &Gyro_State::HDM_Interval>::Of,
     .Kept = {{"REM Active messages", 19}, {"REM Active messages", 20}},
     .Choices = &Choices,
     .New_Setup_Interval = 5,
     .Stagger_s = Stagger_s,
     .Start_Place = 4,
     .Stopped_By_Pause = true},
    {.Type = "ATT",
     .Content = "heading, pitch and roll",
     .Note = "Furuno propr.",
     .Note_Tip = "ATT is the sentence of one maker",
     .Tick = On_Window<timer_ATT_Tick>::Run,
     .Talker = Talker_In<&frmGyro::ATT_Record>::Of,
     .Setting = Setting_In<&Gyro_State::ATT_Enabled, &Gyro_State::ATT_Interval>::Of,
     .Kept = {{"REM Active messages", 21}, {"REM Active messages", 22}},
     .Choices = &Choices,
     .New_Setup_Interval = 5,
     .Stagger_s = Stagger_s,
     .Start_Place = 5,
     .Stopped_By_Pause = true},
    {.Type = "PRDID",
     .Content = "pitch, roll and heading",
     .Note = "RD Instr propr.",
     .Note_Tip = "PRDID is the sentence of one maker",
     .Tick = On_Window<timer_PRDID_Tick>::Run,
     .Talker = Talker_In<&frmGyro::PRDID_Record>::Of,
     .Setting = Setting_In<&Gyro_State::PRDID_Enabled, &Gyro_State::PRDID_Interval>::Of,
     .Kept = {{"REM Active messages", 23}, {"REM Active messages", 24}},
     .Choices = &Choices,
     .New_Setup_Interval = 5,
     .Stagger_s = Stagger_s,
     .Start_Place = 6,
     .Stopped_By_Pause = true},
};

enum Noise { Heading_Noise, Turn_Noise, Roll_Noise, Pitch_Noise };

// Noise that is not accumulated shows in the report alone, and that is the noisy heading as the last
// simulator tick left it: before the first START, and in Ship mode for ever, it is 0. This is required.
float Reported_Heading(const Simulator_State& State, const frmGyro& W) {
    const bool Noisy = W.chkNoise.Value() && W.optAccumulatedNoise.Selected() == 0;
    return Noisy ? W.Noisy_HDG : State.Of<Gyro_State>().Gyro_HDG[W.Instance];
}

void Show_Angle(Label& Where, float Angle, std::string_view Pattern) {
    Where.Caption = Format_Dot(Angle, Pattern);
}

float With_Noise(Simulator& Sim, const frmGyro& W, float Value, Noise Which) {
    if (!W.chkNoise.Value()) return Value;
    return Record_Number(Value + Signed_Draw(Sim) * W.Noise_Max[Which]);
}

// Here the noisy heading is reported whether it is accumulated or not.
template <class Record>
void Refresh_Attitude(Simulator& Sim, frmGyro& W, Record& R) {
    R.Heading = W.chkNoise.Value() ? W.Noisy_HDG : Sim.State.Of<Gyro_State>().Gyro_HDG[W.Instance];
    R.Roll = With_Noise(Sim, W, W.Roll_Value, Roll_Noise);
    R.Pitch = With_Noise(Sim, W, W.Pitch_Value, Pitch_Noise);
    Show_Angle(W.lblCurrentHdg, R.Heading, "000.0#");
    Show_Angle(W.lblCurrentRoll, R.Roll, "0.0#");
    Show_Angle(W.lblCurrentPitch, R.Pitch, "0.0#");
}

template <class Record>
void Send_Heading(Simulator& Sim, frmGyro& W, Record& R,
                  std::string (*Compose)(const Record&, std::int16_t, bool)) {
    R.Heading = Reported_Heading(Sim.State, W);
    Show_Angle(W.lblCurrentHdg, R.Heading, "000.0#");
    Send_Sentence(Sim, Compose(R, Sim.State.Of<Gyro_State>().Gyro_Decimals[W.Instance], No_Checksum(Sim)), W);
}

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

} // namespace

std::span<const Sentence_Row> Gyro_Sentences() { return Rows; }

void timer_HDT_Tick(Simulator& Sim, frmGyro& W) { Send_Heading(Sim, W, W.HDT_Record, Compose_HDT); }

void timer_THS_Tick(Simulator& Sim, frmGyro& W) { Send_Heading(Sim, W, W.THS_Record, Compose_THS); }

void timer_ROT_Tick(Simulator& Sim, frmGyro& W) {
    ROT_Record& R = W.ROT_Record;
    R.Rate = With_Noise(Sim, W, Sim.State.Of<Gyro_State>().Gyro_ROT[W.Instance], Turn_Noise);
    R.Status = 'A';
    Show_Angle(W.lblCurrentRot, R.Rate, "000.0#");
    Send_Sentence(Sim, Compose_ROT(R, Sim.State.Of<Gyro_State>().Gyro_Decimals[W.Instance], No_Checksum(Sim)),
                  W);
}

// HDM has its box, its list and its running timer, and sends nothing. This is required.
void timer_HDM_Tick(Simulator&, frmGyro&) {}

void timer_ATT_Tick(Simulator& Sim, frmGyro& W) {
    Refresh_Attitude(Sim, W, W.ATT_Record);
    Send_Sentence(Sim, Compose_ATT(W.ATT_Record, No_Checksum(Sim)), W);
}

void timer_PRDID_Tick(Simulator& Sim, frmGyro& W) {
    Refresh_Attitude(Sim, W, W.PRDID_Record);
    Send_Sentence(Sim, Compose_PRDID(W.PRDID_Record, No_Checksum(Sim)), W);
}

// The turn enters Gyro_HDG, which HDT reports, only together with accumulated noise. In all other cases
// Gyro_HDG stands still and only Nav_HDG shows the turn, of one tick. This dependence is required.
void timer_Simulator_Tick(Simulator& Sim, frmGyro& W) {
    float& Heading = Sim.State.Of<Gyro_State>().Gyro_HDG[W.Instance];
    float H = Turned(Heading, Sim.State.Of<Gyro_State>().Gyro_ROT[W.Instance]);
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

} // namespace brinewright
