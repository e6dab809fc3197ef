#include "gnss/position/satellites_in_view.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/gnss_satellites.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr std::int16_t Last_GPS = 32;

// In twentieths of a point; the wider one has room for a scroll bar.
constexpr int Table_Width = 2050;
constexpr int Scrolled_Table_Width = 2350;
constexpr int First_Scrolled = 20;

enum Column { PRN, El, Az, SNR };

std::string Number_In_Table(std::int16_t Identifier) {
    if (Identifier > Before_GLONASS) return "GL" + Format_Dot(Identifier - Before_GLONASS, "00");
    return Format_Dot(Reported_Number(Identifier), "00");
}

// Ties to even, and no "-0".
float Rounded(float Value) { return std::nearbyint(Value) + 0.0F; }
float As_It_Is(float Value) { return Value; }

// Only the values of the satellites in use are rounded before their pattern rounds them, which is required:
// 2.5 degrees are "02" there and "03" in the rows behind.
void Show_Satellite(Grid& G, int Row, const Simulator_State& State, std::int16_t Identifier,
                    float (*Prepared)(float), Ink Colour) {
    if (Row >= G.Rows()) return;
    G.Set_Cell(Row, PRN, Number_In_Table(Identifier), Colour);
    if (!Is_In_Sky(State, Identifier)) return;
    const Sky_Satellite& S = State.Of<GNSS_State>().Sky_Table[Identifier];
    G.Set_Cell(Row, El, Format_Dot(Prepared(S.Elevation), "00"), Colour);
    G.Set_Cell(Row, Az, Format_Dot(Prepared(S.Azimuth), "000"), Colour);
    G.Set_Cell(Row, SNR, Format_Dot(Prepared(S.SNR), "00"), Colour);
}

// All free ones go in, not just as many as are wanted; who reads the list stops in time.
void List_Free_Satellites(Simulator_State& State) {
    State.Of<GNSS_State>().Svs_In_View = {};
    int Count = 0;
    for (std::int16_t Identifier = 1; Identifier <= Last_GPS; ++Identifier) {
        Sky_Satellite& S = State.Of<GNSS_State>().Sky_Table[Identifier];
        if (S.Used) continue;
        State.Of<GNSS_State>().Svs_In_View[++Count] = Identifier;
        S.In_View = true;
    }
}

} // namespace

void cmbInView_Click(Simulator& Sim, frmPosition& W) {
    if (W.cmbInView.List_Index() < W.cmbSats.List_Index()) {
        Sim.Windows.Boxes.Show("Satellites in view can not be less than used satellites", "Illegal choice");
        W.cmbInView.Set_List_Index(W.cmbSats.List_Index()); // which comes back here
        return;
    }
    const int In_View = W.cmbInView.List_Index();
    W.GSV_Record.In_View = static_cast<std::int16_t>(In_View);
    W.hfgGSV.Set_Rows(In_View);
    W.hfgGSV.Width = In_View < First_Scrolled ? Table_Width : Scrolled_Table_Width;
    if (In_View > W.GGA_Record.Sats) List_Free_Satellites(Sim.State);
    Update_GSVTable(Sim.State, W);
}

void Update_GSVTable(const Simulator_State& State, frmPosition& W) {
    const int In_Use = W.GGA_Record.Sats, In_View = W.cmbInView.List_Index();
    for (int I = 1; I <= In_Use; ++I)
        Show_Satellite(W.hfgGSV, I - 1, State, State.Of<GNSS_State>().Svs_In_Use[I], Rounded, Ink::Black);
    for (int I = In_Use + 1; I <= In_View; ++I)
        Show_Satellite(W.hfgGSV, I - 1, State, State.Of<GNSS_State>().Svs_In_View[I - In_Use], As_It_Is,
                       Ink::Red);
}

} // namespace brinewright
