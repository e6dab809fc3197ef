#include "gnss/position/gnss_satellites.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/position_parts.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/state/simulator.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr std::int16_t Last_GPS = 32, First_SBAS = 33, Last_SBAS = 64;
constexpr int SBAS_Number_Offset = 87; // SBAS 120 is satellite 33
constexpr int Before_GLONASS = 64;     // GLONASS 1 is satellite 65

constexpr int Default_Satellites[] = {3, 6, 8, 12, 19, 24, 25, 32};
constexpr int Most_Satellites = 63;
constexpr int GSA_Places = 12;
constexpr double Table_Period_ms = 60'000;
constexpr int Last_SBAS_Box = 6; // the one behind it has no number yet and nothing reads it

// In twentieths of a point; the wider one has room for a scroll bar.
constexpr int Table_Width = 2050;
constexpr int Scrolled_Table_Width = 2350;
constexpr int First_Scrolled = 20;

enum Column { PRN, El, Az, SNR };

struct Satellite_Box {
    Check_Box* Box;
    std::int16_t Identifier;
};
using Satellite_Boxes = std::vector<Satellite_Box>;

void Append(Satellite_Boxes& Boxes, const auto& Group, int Before) {
    for (const auto& Box : Group)
        Boxes.push_back({Box.get(), static_cast<std::int16_t>(Box->Index + Before)});
}

void Append_SBAS(Satellite_Boxes& Boxes, const frmPosition& W) {
    for (int I = 0; I <= Last_SBAS_Box; ++I) {
        Check_Box& Box = W.chkWAASSv[I];
        Boxes.push_back({&Box, static_cast<std::int16_t>(Val_Dot(*Box.Caption) - SBAS_Number_Offset)});
    }
}

// As GSA and GSV list them. They are taken out of use in the opposite order.
Satellite_Boxes In_Listing_Order(const frmPosition& W) {
    Satellite_Boxes Boxes;
    Append(Boxes, W.chkSv, 0);
    Append_SBAS(Boxes, W);
    Append(Boxes, W.chkGLSv, Before_GLONASS);
    return Boxes;
}

// The order in which cmbSats takes more of them into use: GLONASS before SBAS, other than listed.
Satellite_Boxes In_Adding_Order(const frmPosition& W) {
    Satellite_Boxes Boxes;
    Append(Boxes, W.chkSv, 0);
    Append(Boxes, W.chkGLSv, Before_GLONASS);
    Append_SBAS(Boxes, W);
    return Boxes;
}

void Add_Satellites(const frmPosition& W, int Wanted) {
    for (const Satellite_Box& S : In_Adding_Order(W)) {
        if (Wanted <= 0) return;
        if (S.Box->Value()) continue;
        S.Box->Set_Value(true);
        --Wanted;
    }
}

void Remove_Satellites(const frmPosition& W, int Wanted) {
    const Satellite_Boxes Boxes = In_Listing_Order(W);
    for (auto S = Boxes.rbegin(); S != Boxes.rend() && Wanted > 0; ++S) {
        if (!S->Box->Value()) continue;
        S->Box->Set_Value(false);
        --Wanted;
    }
}

std::string Number_In_Table(std::int16_t Identifier) {
    if (Identifier > Before_GLONASS) return "GL" + Format_Dot(Identifier - Before_GLONASS, "00");
    return Format_Dot(Reported_Number(Identifier), "00");
}

// Ties to even, and no "-0".
float Rounded(float Value) { return std::nearbyint(Value) + 0.0F; }
float As_It_Is(float Value) { return Value; }

// Only the values of the satellites in use are rounded before their pattern rounds them, which is required:
// 2.5 degrees are "02" there and "03" in the rows behind. An identifier without a satellite shows as number
// "00"; the other fields of its row stay as they were.
void Show_Satellite(const Simulator_State& State, frmPosition& W, int Row) {
    const bool Used = Row < W.GGA_Record.Sats;
    const auto Prepared = Used ? Rounded : As_It_Is;
    const Ink Colour = Used ? Ink::Black : Ink::Red;
    const std::int16_t Identifier = Listed_Satellite(State, W, Row + 1);
    W.hfgGSV.Set_Cell(Row, PRN, Number_In_Table(Identifier), Colour);
    if (!Is_In_Sky(State, Identifier)) return;
    const Sky_Satellite& S = State.Of<GNSS_State>().Sky_Table[Identifier];
    W.hfgGSV.Set_Cell(Row, El, Format_Dot(Prepared(S.Elevation), "00"), Colour);
    W.hfgGSV.Set_Cell(Row, Az, Format_Dot(Prepared(S.Azimuth), "000"), Colour);
    W.hfgGSV.Set_Cell(Row, SNR, Format_Dot(Prepared(S.SNR), "00"), Colour);
}

void Update_GSVTable(const Simulator_State& State, frmPosition& W) {
    for (int Row = 0; Row < W.hfgGSV.Rows(); ++Row) Show_Satellite(State, W, Row);
}

// In ascending order. All free ones go in, not just as many as are wanted; who reads the list stops in time.
void List_Free_Satellites(GNSS_State& S) {
    S.Svs_In_View = {};
    int Count = 0;
    for (std::int16_t Identifier = 1; Identifier <= Last_GPS; ++Identifier) {
        Sky_Satellite& Satellite = S.Sky_Table[Identifier];
        if (Satellite.Used) continue;
        S.Svs_In_View[++Count] = Identifier;
        Satellite.In_View = true;
    }
}

void cmbInView_Click(Simulator& Sim, frmPosition& W) {
    const int In_View = W.cmbInView.List_Index(), In_Use = W.cmbSats.List_Index();
    if (In_View < In_Use) {
        Sim.Windows.Boxes.Show("Satellites in view can not be less than used satellites", "Illegal choice");
        W.cmbInView.Set_List_Index(In_Use); // which comes back here
        return;
    }
    W.GSV_Record.In_View = static_cast<std::int16_t>(In_View);
    W.hfgGSV.Set_Rows(In_View);
    W.hfgGSV.Width = In_View < First_Scrolled ? Table_Width : Scrolled_Table_Width;
    if (In_View > W.GGA_Record.Sats) List_Free_Satellites(Sim.State.Of<GNSS_State>());
    Update_GSVTable(Sim.State, W);
}

// The boxes and cmbSats, their number, drive each other.
void cmbSats_Click(frmPosition& W) {
    const int Old = W.GGA_Record.Sats, New = W.cmbSats.List_Index();
    W.GGA_Record.Sats = W.GNS_Record.Sats = static_cast<std::int16_t>(New);
    if (W.Sentences.Is_Loading) return;
    W.cmbInView.Set_List_Index(New);
    W.lblGSAWarning.Visible = New > GSA_Places; // also where the boxes set the number
    if (W.Sv_Click_Guard) return;
    W.Sats_Changing = true;
    Add_Satellites(W, New - Old);
    Remove_Satellites(W, Old - New);
    W.Sats_Changing = false;
}

// A box of any of the three groups.
void chkSv_Click(Simulator& Sim, frmPosition& W) {
    GNSS_State& State = Sim.State.Of<GNSS_State>();
    W.GSA_Record.PRN = {};
    State.Svs_In_Use = {};
    int Count = 0;
    for (const Satellite_Box& S : In_Listing_Order(W)) {
        const bool Used = S.Box->Value();
        State.Sky_Table[S.Identifier].Used = Used;
        if (!Used) continue;
        ++Count;
        if (Count <= GSA_Places) W.GSA_Record.PRN[Count] = Reported_Number(S.Identifier);
        State.Svs_In_Use[Count] = S.Identifier;
    }
    Update_GSVTable(Sim.State, W);
    if (W.Sats_Changing) return;
    W.Sv_Click_Guard = true;
    W.cmbSats.Set_List_Index(Count);
    W.Sv_Click_Guard = false;
}

void Name_Boxes(const auto& Boxes, const std::string& System) {
    for (const auto& Box : Boxes) {
        Box->Caption = Format_Dot(Box->Index, "00");
        Box->Tool_Tip = System + " satellite " + std::to_string(Box->Index) + " is in use";
    }
}

} // namespace

std::int16_t Reported_Number(std::int16_t Identifier) {
    const bool SBAS = Identifier >= First_SBAS && Identifier <= Last_SBAS;
    return static_cast<std::int16_t>(SBAS ? Identifier + SBAS_Number_Offset : Identifier);
}

bool Is_In_Sky(const Simulator_State& State, std::int16_t Identifier) {
    const auto& Sky = State.Of<GNSS_State>().Sky_Table;
    return Identifier >= Sky.First_Index && Identifier <= Sky.Last_Index;
}

std::int16_t Listed_Satellite(const Simulator_State& State, const frmPosition& W, int Place) {
    const GNSS_State& S = State.Of<GNSS_State>();
    const int In_Use = W.GGA_Record.Sats;
    if (Place <= In_Use) return S.Svs_In_Use[Place];
    return Place <= W.cmbInView.List_Index() ? S.Svs_In_View[Place - In_Use] : std::int16_t{0};
}

void Open_Satellites(Simulator& Sim, frmPosition& W) {
    Name_Boxes(W.chkSv, "GPS");
    Name_Boxes(W.chkGLSv, "GLONASS");
    for (int I = 0; I <= Most_Satellites; ++I) {
        W.cmbSats.Add_Item(std::to_string(I));
        W.cmbInView.Add_Item(std::to_string(I));
    }
    for (const int I : Default_Satellites) W.chkSv[I].Set_Value(true); // as yet without a handler
    const auto Wire = [&](const auto& Boxes) {
        for (const auto& Box : Boxes) Box->Click = [&] { chkSv_Click(Sim, W); };
    };
    Wire(W.chkSv);
    Wire(W.chkGLSv);
    Wire(W.chkWAASSv);
    W.cmbSats.Click = [&W] { cmbSats_Click(W); };
    W.cmbInView.Click = [&] { cmbInView_Click(Sim, W); };
    W.timer_GSVUpdate.Tick = [&] { Update_GSVTable(Sim.State, W); };
    W.timer_GSVUpdate.Set_Interval(Table_Period_ms);
    chkSv_Click(Sim, W);
    W.cmbInView.Set_List_Index(W.cmbSats.List_Index());
}

} // namespace brinewright
