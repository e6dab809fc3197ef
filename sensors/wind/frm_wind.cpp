#include "sensors/wind/frm_wind.hpp"

#include "ownship/geodesy/angles.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sensors/wind/relative_wind.hpp"
#include "sensors/wind/wind_state.hpp"
#include "sensors/wind/wind_units.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/depth_wind_parts.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 9;
constexpr double Relative_Wind_Period_ms = 2000;
constexpr int Relative_Index = 0; // of optRef
constexpr int True_Index = 1;

// Within the circle, although a setup file may hold any number.
float True_Direction_deg(const Wind_State& S, const frmWind& W) {
    return Normalise_Direction(S.Wind_Direction[W.Instance]);
}

// The variation in effect beside MWD.
void Show_Variation(const Simulator& Sim, frmWind& W) {
    W.lblMagDev.Caption = Decimal_Text(Sim.State.Of<Navdata_State>().Magnetic_Variation) + " deg";
}

// Noise reaches MWV only.
void Add_Noise(Simulator& Sim, const frmWind& W, MWV_Record& R) {
    const double Angle_Noise_deg = Signed_Draw(Sim) * Number_Shown(W.cmbNoise[0].Text());
    const double Speed_Noise = Signed_Draw(Sim) * Number_Shown(W.cmbNoise[1].Text());
    R.Angle = Sum_Direction(R.Angle, Angle_Noise_deg);
    R.Speed = Record_Number(std::max(0.0, R.Speed + Speed_Noise));
}

void Send_MWV(Simulator& Sim, frmWind& W) {
    const Wind_State& S = Sim.State.Of<Wind_State>();
    MWV_Record& R = W.MWV_Record;
    if (R.Reference == 'R') {
        CalculateRelativeWind(Sim, W, W.Instance);
        R.Angle = W.Relative_Dir;
        R.Speed = W.Relative_Speed;
    } else {
        R.Angle = True_Direction_deg(S, W);
        R.Speed = S.Wind_Speed[W.Instance];
    }
    if (W.chkNoise.Value()) Add_Noise(Sim, W, R);
    W.lblWindAngle.Caption = Format_Dot(R.Angle, "000.0#");
    W.lblWindSpeed.Caption = Format_Dot(R.Speed, "0.0#");
    Send_Sentence(Sim, Compose_MWV(R, No_Checksum(Sim)), W);
}

void Send_MWD(Simulator& Sim, frmWind& W) {
    const Wind_State& S = Sim.State.Of<Wind_State>();
    const Wind_Unit& Unit = Unit_Of_Letter(W.MWV_Record.Speed_Unit);
    const float Speed = S.Wind_Speed[W.Instance];
    MWD_Record& R = W.MWD_Record;
    Show_Variation(Sim, W);
    R.Dir_True = True_Direction_deg(S, W);
    R.Dir_Magnetic = Sum_Direction(R.Dir_True, Sim.State.Of<Navdata_State>().Magnetic_Variation);
    R.Speed_Ms = Record_Number(Speed * Unit.mps_Factor / Unit.mps_Divisor);
    R.Speed_Knots = Unit.Letter == 'N' ? Speed : Record_Number(R.Speed_Ms * Knots_Per_mps);
    Send_Sentence(Sim, Compose_MWD(R, No_Checksum(Sim)), W);
}

constexpr Interval_Choices MWV_Choices{Depth_Wind_Intervals, 2};
constexpr Interval_Choices MWD_Choices{Depth_Wind_Intervals, 0};

// The window has no START: its sentences run as soon as they are ticked.
constexpr int No_Start = 0;
constexpr Sentence_Row Rows[] = {
    Kept_Apart(Row<&frmWind::MWV_Record, &Wind_State::MWV_Enabled, &Wind_State::MWV_Interval, Send_MWV>(
                   {.Choices = &MWV_Choices, .New_Setup_Interval = 2, .Stagger_s = 0.15F}, "MWV",
                   "angle and speed of the relative or true wind", No_Start, {"REM Active messages", 31}),
               {"REM Utvidelser v6", 7}),
    Row<&frmWind::MWD_Record, &Wind_State::MWD_Enabled, &Wind_State::MWD_Interval, Send_MWD>(
        {.Choices = &MWD_Choices, .Stagger_s = 0.15F}, "MWD", "direction and speed of the true wind",
        No_Start, {"REM MWD", 1}),
};

// Showing the wind does not write it.
void Wire_True_Wind(Simulator& Sim, frmWind& W) {
    Wind_State& S = Sim.State.Of<Wind_State>();
    float& Direction = S.Wind_Direction[W.Instance];
    float& Speed = S.Wind_Speed[W.Instance];
    W.scrHDG.Set_Value(Direction_Place(W.scrHDG, Direction));
    W.scrSpeed.Set_Value(Bar_Place(W.scrSpeed, Speed, Bar_Steps));
    Wire_Typed_Bar(Sim, W,
                   {W.scrHDG, W.txtHDG, "Wind direction must be 0.0 to 360.0 degrees. Try again!",
                    [&] {
                        Direction = Bar_Value(W.scrHDG);
                        CalculateRelativeWind(Sim, W, W.Instance);
                    },
                    [&] { return Direction_Shown(W.scrHDG); }, true});
    Wire_Size_Bar({W.scrSpeed, W.lblSpeed, W.txtSpeed}, Speed,
                  [&] { CalculateRelativeWind(Sim, W, W.Instance); });
}

// The unit is not kept: a window starts with knots. The numbers of the true wind stay as they are when it
// changes and count in the new unit from then on.
void Wire_Units(Simulator& Sim, frmWind& W) {
    for (const Wind_Unit& Unit : Wind_Units) W.cmbUnits.Add_Item(Unit.Name);
    W.cmbUnits.Click = [&] {
        const Wind_Unit& Unit = Wind_Units[static_cast<std::size_t>(W.cmbUnits.List_Index())];
        W.MWV_Record.Speed_Unit = Unit.Letter;
        for (const auto& Beside : W.lblUnit) Beside->Caption = std::string(Unit.Name);
        CalculateRelativeWind(Sim, W, W.Instance);
    };
    W.cmbUnits.Set_List_Index(0);
}

void Wire_Reports(Wind_State& S, frmWind& W) {
    bool& Is_Relative = S.Wind_Relative_Ref[W.Instance];
    W.optRef.Click = [&](int Index) {
        Is_Relative = Index == Relative_Index;
        W.MWV_Record.Reference = Is_Relative ? 'R' : 'T';
    };
    W.optRef.Select(Is_Relative ? Relative_Index : True_Index);
    for (const auto& List : W.cmbNoise) {
        for (int Number = 0; Number <= Last_Noise_Choice; ++Number) List->Add_Item(std::to_string(Number));
        Keep(*List, S.Wind_Noise_Level[W.Instance][List->Index], 0);
    }
    Keep(W.chkNoise, S.Wind_Noise_Enabled[W.Instance]);
    W.chkInvalid.Click = [&] { W.MWV_Record.Status = W.chkInvalid.Value() ? 'V' : 'A'; };
}

void Form_Load(Simulator& Sim, frmWind& W) {
    Wind_State& S = Sim.State.Of<Wind_State>();
    Wire_True_Wind(Sim, W);
    Wire_Routing(Sim, W, S.Wind_Talker[W.Instance]);
    Wire_Sentences(Sim, W);
    // One of the two has two blanks, as is required.
    W.lblRelativeWind.Caption = std::string(W.Instance == 1 ? "log 1 and  gyro 1" : "log 2 and gyro 2");
    Show_Variation(Sim, W);
    Wire_Units(Sim, W);
    Wire_Reports(S, W);
    Restore_Intervals(W.Sentences);
    W.timerRelativeWind.Tick = [&] { CalculateRelativeWind(Sim, W, W.Instance); };
    W.timerRelativeWind.Set_Interval(Relative_Wind_Period_ms);
    Start_Enabled_Sentences(W.Sentences);
}

std::string Value_Now(const Simulator_State& S, int Instance) {
    return "from " + Format_Dot(S.Of<Wind_State>().Wind_Direction[Instance], "000") + " deg, " +
           Format_Dot(S.Of<Wind_State>().Wind_Speed[Instance], "0.0");
}

} // namespace

frmWind::frmWind(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "WI",
                  "Talker of all sentences, two characters") {}

const Window_Class Wind_Windows{
    .Name = frmWind::Class_Name,
    .Count = 2,
    .First_Form_Index = First_Form_Index,
    .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Wind Gauge", .Place = 10},
    .Caption = "Wind gauge #",
    .Make = Make_Instance<frmWind>,
    .Load = Load_Sensor<frmWind, Form_Load>,
    .Lay_Out = Lay_Out_Wind,
    .Lay_Out_Small = Lay_Out_Small_Wind,
    .Value_Now = Value_Now,
    .Sentences = Rows};

void CalculateRelativeWind(Simulator& Sim, frmWind& W, int k) {
    const Simulator_State& S = Sim.State;
    const Wind_State& Wind = S.Of<Wind_State>();
    const Navdata_State& Ship = S.Of<Navdata_State>();
    const Wind_Unit& Unit = Unit_Of_Letter(W.MWV_Record.Speed_Unit);
    const Relative_Wind Felt =
        Work_Out_Relative_Wind({.Wind_Speed_kn = Wind.Wind_Speed[k] * Unit.Knots_Per_Unit,
                                .Wind_Direction_deg = Normalise_Direction(Wind.Wind_Direction[k]),
                                .Heading_deg = S.Of<Gyro_State>().Gyro_HDG[k],
                                .Log_Speed_kn = S.Of<Log_State>().Log_Speed[k],
                                .Lat_deg = Ship.Nav_Lat,
                                .Lon_deg = Ship.Nav_Lon,
                                .Course_deg = Ship.Nav_COG,
                                .Ground_Speed_kn = Ship.Nav_SOG});
    W.Relative_Speed = Record_Number(Felt.Speed_kn * Unit.Units_Per_Knot);
    W.Relative_Dir = Felt.Direction_deg;
    W.lblRelativeSpeed.Caption = Format_Dot(W.Relative_Speed, "0");
    W.lblRelativeDir.Caption = Format_Dot(W.Relative_Dir, "000");
}

} // namespace brinewright
