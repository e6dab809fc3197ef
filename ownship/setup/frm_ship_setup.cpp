#include "ownship/setup/frm_ship_setup.hpp"

#include "ownship/geodesy/position_text.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/utc_state.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
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
    {&frmShipSetup::cmbMagneticDeviation, &Navdata_State::Magnetic_Variation, -10, 10, 1, "0"},
};

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

// The offsets of position 2, the gyros and the logs: Do(box, value, pattern).
void For_Each_Offset(Simulator_State& S, frmShipSetup& F, const auto& Do) {
    Do(F.txtLatOffset, S.Of<Navdata_State>().Lat_Offset, "0.0 m");
    Do(F.txtLonOffset, S.Of<Navdata_State>().Lon_Offset, "0.0 m");
    for (int I = 1; I <= 2; ++I) {
        Do(F.txtGyroOffset[I - 1], S.Of<Gyro_State>().Gyro_Offset[I], "000.0 deg");
        Do(F.txtLogOffset[I - 1], S.Of<Log_State>().Log_Offset[I], "0.0 knop");
    }
}

// A stored value that the list does not have, as a setup file may hold, leaves nothing chosen; Apply then
// leaves the value alone.
void Choose(Combo_Box& List, double Place) {
    const int Count = static_cast<int>(List.Items().size());
    const double Rounded = std::nearbyint(Place);
    List.Set_List_Index(Rounded >= 0 && Rounded < Count ? static_cast<int>(Rounded) : -1);
}

void Fill_Sixty(Combo_Box& List) {
    for (int I = 0; I <= Last_Minute; ++I) List.Add_Item(Format_Dot(I, "00"));
}

void Fill_Lists(frmShipSetup& F) {
    for (const Choice& C : Choices)
        for (int Value = C.First; Value <= C.Last; Value += C.Step)
            (F.*C.List).Add_Item(Format_Dot(Value, C.Pattern));
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
    const UTC_State& UTC = S.Of<UTC_State>();
    for (const Choice& C : Choices) Choose(F.*C.List, (static_cast<double>(S->*C.Value) - C.First) / C.Step);
    F.chkUseUTC.Set_Value(UTC.Use_UTC);
    for (const Zone& Z : Zones) Show_Zone(S, F, Z);
    Choose(F.cmbGNSS2OffsetSeconds, UTC.GNSS2_UTC_Offset_Seconds);
    for (const Start_Box& B : Start_Boxes)
        (F.*B.Box).Set_Text(Position_Text(S.Of<Shell_State>().LatLon_Format, S->*B.Start, B.Kind));
}

double Typed_Start(Simulator& Sim, const frmShipSetup& F, const Start_Box& B) {
    return Parse_Position(Sim.State.Of<Shell_State>().LatLon_Format, (F.*B.Box).Text(), B.Kind,
                          Sim.Windows.Boxes);
}

void Leave_Start_Box(Simulator& Sim, frmShipSetup& F, const Start_Box& B) {
    Text_Box& Box = F.*B.Box;
    const auto Typed_deg = Typed_Position(Sim, Box, B.Kind);
    if (!Typed_deg) return Box.Set_Text(Box.Text_Before());
    const double New_deg = *Typed_deg;
    Box.Set_Text(Position_Text(Sim.State.Of<Shell_State>().LatLon_Format, New_deg, B.Kind));
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

void Take_Zone(Simulator_State& S, const frmShipSetup& F, const Zone& Z) {
    using Limits = std::numeric_limits<std::int16_t>;
    Take_List_Place(F.cmbUTCOffsetMinutes[Z.Element], S->*Z.Minutes);
    const Combo_Box& List = F.cmbUTCOffsetHours[Z.Element];
    if (List.List_Index() < 0) return;
    const int Hours = static_cast<int>(Val(List.Text()));
    const int Minutes = Hours >= 0 ? S->*Z.Minutes : -(S->*Z.Minutes);
    S->*Z.Offset_min =
        static_cast<std::int16_t>(std::clamp<int>(Hours * 60 + Minutes, Limits::min(), Limits::max()));
}

void Take_Number(const Text_Box& Box, double& Value) { Value = Val_Dot(Box.Text()); }
void Take_Number(const Text_Box& Box, float& Value) { Value = Number_Shown(Box.Text()); }

void cmdApply_Click(Simulator& Sim, frmShipSetup& F) {
    Simulator_State& S = Sim.State;
    Take_Start(Sim, F);
    for (const Choice& C : Choices)
        if ((F.*C.List).List_Index() >= 0) S->*C.Value = Number_Shown((F.*C.List).Text());
    for (const Zone& Z : Zones) Take_Zone(S, F, Z);
    Take_List_Place(F.cmbGNSS2OffsetSeconds, S.Of<UTC_State>().GNSS2_UTC_Offset_Seconds);
    For_Each_Offset(S, F, [](Text_Box& Box, auto& Value, const char*) { Take_Number(Box, Value); });
    Sim.Told.Ship_Limits.Tell();
    S.Of<UTC_State>().Use_UTC = F.chkUseUTC.Value();
}

void Wire_Boxes(Simulator& Sim, frmShipSetup& F) {
    for (const Start_Box& B : Start_Boxes) {
        Text_Box& Box = F.*B.Box;
        Box.Got_Focus = [&Box] { Box.Select_All(); };
        Box.Lost_Focus = [&Sim, &F, &B] { Leave_Start_Box(Sim, F, B); };
    }
    // Each value in its own width: the 32-bit 123.45 shows as 123.5.
    For_Each_Offset(Sim.State, F, [](Text_Box& Box, const auto& Value, const char* Pattern) {
        Box.Set_Text(Format_Dot(Value, Pattern));
        Box.Got_Focus = [&Box] { Box.Select_All(); };
        Box.Lost_Focus = [&Box, Pattern] {
            const auto Typed = Typed_Number(Box, Bad_Text_Is_Zero);
            Box.Set_Text(Typed ? Format_Dot(*Typed, Pattern) : Box.Text_Before());
        };
    });
}

void frmShipSetup_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmShipSetup&>(Opened);
    F.Resize(Form_Width, Form_Height);
    Fill_Lists(F);
    Show_State(Sim.State, F);
    Wire_Boxes(Sim, F);
    F.cmdOK.Confirms = F.cmdApply.Confirms = true;
    F.cmdOK.Click = [&] {
        cmdApply_Click(Sim, F);
        Sim.Windows.Unload(F);
    };
    F.cmdApply.Click = [&] { cmdApply_Click(Sim, F); };
    F.cmdCancel.Click = [&] { Sim.Windows.Unload(F); };
}

} // namespace

frmShipSetup::frmShipSetup(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "Ship & Environment Setup";
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
