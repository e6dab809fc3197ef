#include "ownship/setup/frm_ship_setup.hpp"

#include "ownship/geodesy/position_text.hpp"
#include "ownship/navdata_state.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "ownship/ship/ship_controls.hpp"
#include "platform/tool_tips.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/utc_state.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace brinewright {

namespace {

constexpr float Form_Height = 3960, Form_Width = 5460; // twentieths of a point
constexpr double Same_Start_deg = 1e-11;               // a start position less off than this is the same
constexpr int Most_Zone_Hours = 13, Last_Minute = 59;

// A value that is chosen from a list of equal steps.
struct Choice {
    Combo_Box frmShipSetup::*List;
    float Navdata_State::*Value;
    int First, Last, Step;
    const char* Pattern;
};
constexpr Choice Choices[] = {
    {&frmShipSetup::cmbMaxSpeedAhead, &Navdata_State::Max_Speed_Ahead, 5, 100, 5, "0"},
    {&frmShipSetup::cmbMaxSpeedAstern, &Navdata_State::Max_Speed_Astern, 1, 20, 1, "0"},
    {&frmShipSetup::cmbMaxRudder, &Navdata_State::Max_Rudder, 5, 360, 5, "000"},
};
constexpr Choice Deviation{
    &frmShipSetup::cmbMagneticDeviation, &Navdata_State::Magnetic_Variation, -10, 10, 1, "0"};

// One of the two clocks.
struct Zone {
    int Element;
    std::int16_t UTC_State::*Offset_min;
    std::int16_t UTC_State::*Minutes;
};
constexpr Zone Zones[] = {
    {0, &UTC_State::UTC_Offset_Hours, &UTC_State::UTC_Offset_Minutes},
    {1, &UTC_State::GNSS2_UTC_Offset_Hours, &UTC_State::GNSS2_UTC_Offset_Minutes},
};

struct Start_Box {
    Text_Box frmShipSetup::*Box;
    double Navdata_State::*Start;
    double Navdata_State::*Ship;
    const char* Kind;
};
constexpr Start_Box Start_Boxes[] = {
    {&frmShipSetup::txtStartLat, &Navdata_State::Start_Lat, &Navdata_State::Nav_Lat, "LAT"},
    {&frmShipSetup::txtStartLon, &Navdata_State::Start_Lon, &Navdata_State::Nav_Lon, "LON"},
};

constexpr const char *Metres = "0.0 m", *Degrees = "000.0 deg", *Knots = "0.0 knop";

struct Offset_Box {
    Text_Box& Box;
    const char* Pattern;
};
std::array<Offset_Box, 6> Offset_Boxes(frmShipSetup& F) {
    return {{{F.txtLatOffset, Metres},
             {F.txtLonOffset, Metres},
             {F.txtGyroOffset[0], Degrees},
             {F.txtGyroOffset[1], Degrees},
             {F.txtLogOffset[0], Knots},
             {F.txtLogOffset[1], Knots}}};
}

// A stored value that the list does not have, as a setup file may hold, leaves nothing chosen; Apply then
// leaves the value alone.
void Choose(Combo_Box& List, double Place) {
    const int Count = static_cast<int>(List.Items().size());
    const double Rounded = std::nearbyint(Place);
    List.Set_List_Index(Rounded >= 0 && Rounded < Count ? static_cast<int>(Rounded) : -1);
}

void Fill(frmShipSetup& F, const Choice& C) {
    for (int Value = C.First; Value <= C.Last; Value += C.Step)
        (F.*C.List).Add_Item(Format_Dot(Value, C.Pattern));
}

void Show(const Simulator_State& S, frmShipSetup& F, const Choice& C) {
    Choose(F.*C.List, (static_cast<double>(S->*C.Value) - C.First) / C.Step);
}

void Take(Simulator_State& S, const frmShipSetup& F, const Choice& C) {
    if ((F.*C.List).List_Index() >= 0) S->*C.Value = Number_Shown((F.*C.List).Text());
}

void Fill_Sixty(Combo_Box& List) {
    for (int I = 0; I <= Last_Minute; ++I) List.Add_Item(Format_Dot(I, "00"));
}

void Fill_Lists(frmShipSetup& F) {
    for (const Choice& C : Choices) Fill(F, C);
    Fill(F, Deviation);
    for (const Zone& Z : Zones) {
        for (int Hours = -Most_Zone_Hours; Hours <= Most_Zone_Hours; ++Hours)
            F.cmbUTCOffsetHours[Z.Element].Add_Item((Hours > 0 ? "+" : "") + Format_Dot(Hours, "00"));
        Fill_Sixty(F.cmbUTCOffsetMinutes[Z.Element]);
    }
    Fill_Sixty(F.cmbGNSS2OffsetSeconds);
}

// The hours come back with the other sign than they were chosen with: +02 shows as -02 at the next opening.
// This is required.
void Show_Zone(const Simulator_State& S, frmShipSetup& F, const Zone& Z) {
    const int Hours = -(S->*Z.Offset_min) / 60; // cut off, not rounded
    Choose(F.cmbUTCOffsetHours[Z.Element], Hours + Most_Zone_Hours);
    Choose(F.cmbUTCOffsetMinutes[Z.Element], S->*Z.Minutes);
}

void Show_State(const Simulator_State& S, frmShipSetup& F) {
    for (const Choice& C : Choices) Show(S, F, C);
    Show(S, F, Deviation);
    F.chkUseUTC.Set_Value(S.Of<UTC_State>().Use_UTC);
    for (const Zone& Z : Zones) Show_Zone(S, F, Z);
    Choose(F.cmbGNSS2OffsetSeconds, S.Of<UTC_State>().GNSS2_UTC_Offset_Seconds);
    for (const Start_Box& B : Start_Boxes)
        (F.*B.Box).Set_Text(Position_Text(S.Of<Shell_State>().LatLon_Format, S->*B.Start, B.Kind));
    // Each in its own width: the 32-bit 123.45 shows as 123.5.
    F.txtLatOffset.Set_Text(Format_Dot(S.Of<Navdata_State>().Lat_Offset, Metres));
    F.txtLonOffset.Set_Text(Format_Dot(S.Of<Navdata_State>().Lon_Offset, Metres));
    for (int I = 1; I <= 2; ++I) {
        F.txtGyroOffset[I - 1].Set_Text(Format_Dot(S.Of<Gyro_State>().Gyro_Offset[I], Degrees));
        F.txtLogOffset[I - 1].Set_Text(Format_Dot(S.Of<Log_State>().Log_Offset[I], Knots));
    }
}

double Typed_Start(Simulator& Sim, const frmShipSetup& F, const Start_Box& B) {
    return Parse_Position(Sim.State.Of<Shell_State>().LatLon_Format, (F.*B.Box).Text(), B.Kind,
                          Sim.Windows.Boxes);
}

void Leave_Start_Box(Simulator& Sim, frmShipSetup& F, const Start_Box& B) {
    const double New_deg = Typed_Start(Sim, F, B);
    (F.*B.Box).Set_Text(Position_Text(Sim.State.Of<Shell_State>().LatLon_Format, New_deg, B.Kind));
    if (std::abs(New_deg - Sim.State->*B.Start) > Same_Start_deg) F.Start_Changed = true;
}

// The ship jumps to a new start at once.
void Take_Start(Simulator& Sim, frmShipSetup& F) {
    if (!F.Start_Changed) return;
    for (const Start_Box& B : Start_Boxes) Sim.State->*B.Ship = Sim.State->*B.Start = Typed_Start(Sim, F, B);
    F.Start_Changed = false;
}

void Take_List_Place(const Combo_Box& List, std::int16_t& Value) {
    if (List.List_Index() >= 0) Value = static_cast<std::int16_t>(List.List_Index());
}

void Take_Zone_Hours(Simulator_State& S, const frmShipSetup& F, const Zone& Z) {
    using Limits = std::numeric_limits<std::int16_t>;
    const Combo_Box& List = F.cmbUTCOffsetHours[Z.Element];
    if (List.List_Index() < 0) return;
    const int Hours = static_cast<int>(Val(List.Text()));
    const int Minutes = Hours >= 0 ? S->*Z.Minutes : -(S->*Z.Minutes);
    S->*Z.Offset_min =
        static_cast<std::int16_t>(std::clamp<int>(Hours * 60 + Minutes, Limits::min(), Limits::max()));
}

void Take_Offsets(Simulator_State& S, const frmShipSetup& F) {
    S.Of<Navdata_State>().Lat_Offset = Val_Dot(F.txtLatOffset.Text());
    S.Of<Navdata_State>().Lon_Offset = Val_Dot(F.txtLonOffset.Text());
    for (int I = 1; I <= 2; ++I) {
        S.Of<Gyro_State>().Gyro_Offset[I] = Number_Shown(F.txtGyroOffset[I - 1].Text());
        S.Of<Log_State>().Log_Offset[I] = Number_Shown(F.txtLogOffset[I - 1].Text());
    }
}

void cmdApply_Click(Simulator& Sim, frmShipSetup& F) {
    Simulator_State& S = Sim.State;
    Take_Start(Sim, F);
    for (const Choice& C : Choices) Take(S, F, C);
    for (const Zone& Z : Zones) Take_List_Place(F.cmbUTCOffsetMinutes[Z.Element], S->*Z.Minutes);
    for (const Zone& Z : Zones) Take_Zone_Hours(S, F, Z);
    Take_List_Place(F.cmbGNSS2OffsetSeconds, S.Of<UTC_State>().GNSS2_UTC_Offset_Seconds);
    Take(S, F, Deviation);
    Take_Offsets(S, F);
    if (auto* const Ship = Open_One<frmShip>(Sim)) Show_Rudder_Range(S, *Ship);
    S.Of<UTC_State>().Use_UTC = F.chkUseUTC.Value();
}

void cmdOK_Click(Simulator& Sim, frmShipSetup& F) {
    cmdApply_Click(Sim, F);
    Sim.Windows.Unload(F);
}

void Wire_Boxes(Simulator& Sim, frmShipSetup& F) {
    for (const Start_Box& B : Start_Boxes) {
        Text_Box& Box = F.*B.Box;
        Box.Got_Focus = [&Box] { Box.Select_All(); };
        Box.Lost_Focus = [&Sim, &F, &B] { Leave_Start_Box(Sim, F, B); };
    }
    for (const Offset_Box& B : Offset_Boxes(F)) {
        B.Box.Got_Focus = [&Box = B.Box] { Box.Select_All(); };
        B.Box.Lost_Focus = [B] { B.Box.Set_Text(Format_Dot(Val_Dot(B.Box.Text()), B.Pattern)); };
    }
}

void frmShipSetup_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmShipSetup&>(Opened);
    F.Resize(Form_Width, Form_Height);
    Fill_Lists(F);
    Show_State(Sim.State, F);
    Wire_Boxes(Sim, F);
    F.cmdOK.Click = [&] { cmdOK_Click(Sim, F); };
    F.cmdApply.Click = [&] { cmdApply_Click(Sim, F); };
    F.cmdCancel.Click = [&] { Sim.Windows.Unload(F); };
}

template <class Controls>
void Set_All(const Controls& Parts, const char* Text) {
    for (const auto& Part : Parts) Part->Tool_Tip = std::string(Text);
}

constexpr const char* Zone_Hours_Tip = "Hours from the clock of the machine to UTC, -13 to 13";
constexpr const char* Zone_Minutes_Tip = "Minutes that go with the hours, 0 to 59";

void Set_Tool_Tips(frmShipSetup& F) {
    const Tip_Row Tips[] = {
        {F.frameStartPosition, "Where the ship starts, degrees"},
        {F.lblStartLat, "Latitude where the ship starts, 90 S to 90 N"},
        {F.txtStartLat, "Latitude, 90 S to 90 N; a new one moves the ship there with Apply"},
        {F.lblStartLon, "Longitude where the ship starts, 180 W to 180 E"},
        {F.txtStartLon, "Longitude, 180 W to 180 E; a new one moves the ship there with Apply"},
        {F.lblMaxSpeedAhead, "Speed at 100 % ahead, 5 to 100 knots"},
        {F.cmbMaxSpeedAhead,
         "Speed at 100 % ahead, 5 to 100 knots; the ship keeps its speed until the throttle moves"},
        {F.lblMaxSpeedAheadUnit, "Knots"},
        {F.lblMaxSpeedAstern, "Speed at 100 % astern, 1 to 20 knots"},
        {F.cmbMaxSpeedAstern,
         "Speed at 100 % astern, 1 to 20 knots; the ship keeps its speed until the throttle moves"},
        {F.lblMaxSpeedAsternUnit, "Knots"},
        {F.lblMaxRudder, "Greatest rate of turn, 5 to 360 degrees per minute"},
        {F.cmbMaxRudder, "Greatest rate of turn, 5 to 360 degrees per minute"},
        {F.lblMaxRudderUnit, "Degrees per minute"},
        {F.lblMagneticDeviation, "Between true and magnetic north, -10 to 10 degrees"},
        {F.cmbMagneticDeviation,
         "Between true and magnetic north, -10 to 10 degrees, for the magnetic fields of sentences"},
        {F.lblMagneticDeviationUnit, "Unit of the deviation"},
        {F.framePosOffset, "Where position 2 stands from position 1, metres"},
        {F.lblNorthing, "Metres to the north, negative to the south"},
        {F.txtLatOffset, "Metres to the north, negative to the south"},
        {F.lblEasting, "Metres to the east, negative to the west"},
        {F.txtLonOffset, "Metres to the east, negative to the west"},
        {F.lblGyro1Offset, "Degrees that gyro 1 shows more than the heading"},
        {F.lblGyro2Offset, "Degrees that gyro 2 shows more than the heading"},
        {F.lblLog1Offset, "Knots that log 1 shows more than the speed over ground"},
        {F.lblLog2Offset, "Knots that log 2 shows more than the speed over ground"},
        {F.chkUseUTC, "Times in sentences, hours to seconds, become UTC; otherwise the clock of the machine"},
        {F.lblGNSS1, "Offset of all clocks but that of GNSS 2, minutes to hours"},
        {F.lblGNSS2, "Offset of the clock of GNSS 2, seconds to hours"},
        {F.lblZoneHours, Zone_Hours_Tip},
        {F.lblZoneMinutes, Zone_Minutes_Tip},
        {F.lblGNSS2Offset, "Seconds that GNSS 2 goes ahead, 0 to 59"},
        {F.cmbGNSS2OffsetSeconds, "Seconds that GNSS 2 goes ahead, 0 to 59"},
        {F.lblGNSS2OffsetUnit, "Seconds"},
        {F.cmdOK, "Takes the settings over and closes"},
        {F.cmdApply, "Takes the settings over"},
        {F.cmdCancel, "Closes; the settings stay as they were"},
    };
    Show_Tips(Tips);
    Set_All(F.txtGyroOffset, "Degrees that this gyro shows more than the heading");
    Set_All(F.lblFromCOG, "Degrees");
    Set_All(F.txtLogOffset, "Knots that this log shows more than the speed over ground");
    Set_All(F.lblFromSOG, "Knots");
    Set_All(F.cmbUTCOffsetHours, Zone_Hours_Tip);
    Set_All(F.cmbUTCOffsetMinutes, Zone_Minutes_Tip);
}

} // namespace

frmShipSetup::frmShipSetup(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "Ship & Environment Setup";
    Set_Tool_Tips(*this);
}

const Window_Class Ship_Setup_Window{.Name = frmShipSetup::Class_Name,
                                     .Entry = {.Name = "mnuSetupShip",
                                               .Menu = "Setup",
                                               .Text = "Ship setup",
                                               .Place = 1,
                                               .Checked_While_Open = false,
                                               .In_Ship_Mode_Only = true},
                                     .Make = Make_Single<frmShipSetup>,
                                     .Load = frmShipSetup_Load,
                                     .Lay_Out = Lay_Out_Ship_Setup};

} // namespace brinewright
