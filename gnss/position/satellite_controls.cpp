#include "gnss/position/satellite_controls.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/gnss_satellites.hpp"
#include "gnss/position/satellites_in_view.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr int Default_Satellites[] = {3, 6, 8, 12, 19, 24, 25, 32};
constexpr int Most_Satellites = 63;
constexpr int GSA_Places = 12;
constexpr double Table_Period_ms = 60'000;

struct SBAS_Row {
    const char* Caption;
    const char* Hint;
};
constexpr SBAS_Row SBAS_Rows[] = {
    {"120 ", "120 (EGNOS AOR-E) NMEA Index 33"}, {"124 ", "124 (EGNOS Artemis) NMEA Index 37"},
    {"131", "131 (EGNOS IOR-E) NMEA Index 44"},  {"135", "135 (WAAS PanAm) NMEA Index 48"},
    {"138", "138 (WAAS Anik) NMEA Index 51"},    {"129", "129 (MTSAT-1) NMEA Index 42"},
    {"137", "137 (MTSAT-2) NMEA Index 50"},      {"x", "xxx (GSAT-4,082E) NMEA Index xx"},
};
constexpr int Last_SBAS_Box = 6; // the box behind it has no number yet and nothing reads it

struct Satellite_Box {
    Check_Box* Box;
    std::int16_t Identifier;
};
using Satellite_Boxes = std::vector<Satellite_Box>;

void Append_GPS(Satellite_Boxes& Boxes, const frmPosition& W) {
    for (const auto& Box : W.chkSv) Boxes.push_back({Box.get(), static_cast<std::int16_t>(Box->Index)});
}

void Append_GLONASS(Satellite_Boxes& Boxes, const frmPosition& W) {
    for (const auto& Box : W.chkGLSv)
        Boxes.push_back({Box.get(), static_cast<std::int16_t>(Box->Index + Before_GLONASS)});
}

// The caption is the number that counts.
void Append_SBAS(Satellite_Boxes& Boxes, const frmPosition& W) {
    for (int I = 0; I <= Last_SBAS_Box; ++I)
        Boxes.push_back({&W.chkWAASSv[I],
                         static_cast<std::int16_t>(Val_Dot(*W.chkWAASSv[I].Caption) - SBAS_Number_Offset)});
}

// As GSA and GSV list them. They are taken out of use in the opposite order.
Satellite_Boxes In_Listing_Order(const frmPosition& W) {
    Satellite_Boxes Boxes;
    Append_GPS(Boxes, W);
    Append_SBAS(Boxes, W);
    Append_GLONASS(Boxes, W);
    return Boxes;
}

// The order in which cmbSats takes more of them into use: GLONASS before SBAS, other than listed.
Satellite_Boxes In_Adding_Order(const frmPosition& W) {
    Satellite_Boxes Boxes;
    Append_GPS(Boxes, W);
    Append_GLONASS(Boxes, W);
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

} // namespace

void Preset_Satellite_Boxes(frmPosition& W) {
    for (const int I : Default_Satellites) W.chkSv[I].Set_Value(true);
    for (const auto& Box : W.chkWAASSv) {
        const SBAS_Row& Row = SBAS_Rows[Box->Index];
        Box->Caption = std::string(Row.Caption);
        Box->Tool_Tip = std::string(Row.Hint);
    }
    W.lblGSAWarning.Visible = false;
}

void Wire_Satellite_Controls(Simulator& Sim, frmPosition& W) {
    const auto Wire = [&](const auto& Boxes) {
        for (const auto& Box : Boxes) Box->Click = [&] { chkSv_Click(Sim, W); };
    };
    Wire(W.chkSv);
    Wire(W.chkGLSv);
    Wire(W.chkWAASSv);
    W.cmbSats.Click = [&] { cmbSats_Click(Sim, W); };
    W.cmbInView.Click = [&] { cmbInView_Click(Sim, W); };
    W.timer_GSVUpdate.Tick = [&] { Update_GSVTable(Sim.State, W); };
    W.timer_GSVUpdate.Set_Interval(Table_Period_ms);
}

void Fill_Satellite_Lists(frmPosition& W) {
    for (int I = 0; I <= Most_Satellites; ++I) {
        W.cmbSats.Add_Item(std::to_string(I));
        W.cmbInView.Add_Item(std::to_string(I));
    }
    for (const auto& Box : W.chkSv) Box->Caption = Format_Dot(Box->Index, "00");
    for (const auto& Box : W.chkGLSv) Box->Caption = Format_Dot(Box->Index, "00");
}

void Restore_Satellites(Simulator& Sim, frmPosition& W) {
    chkSv_Click(Sim, W);
    W.cmbInView.Set_List_Index(W.cmbSats.List_Index());
}

void chkSv_Click(Simulator& Sim, frmPosition& W) {
    Simulator_State& State = Sim.State;
    W.GSA_Record.PRN = {};
    State.Of<GNSS_State>().Svs_In_Use = {};
    int Count = 0;
    for (const Satellite_Box& S : In_Listing_Order(W)) {
        const bool Used = S.Box->Value();
        State.Of<GNSS_State>().Sky_Table[S.Identifier].Used = Used;
        if (!Used) continue;
        ++Count;
        if (Count <= GSA_Places) W.GSA_Record.PRN[Count] = Reported_Number(S.Identifier);
        State.Of<GNSS_State>().Svs_In_Use[Count] = S.Identifier;
    }
    Update_GSVTable(State, W);
    if (W.Sats_Changing) return;
    W.Sv_Click_Guard = true;
    W.cmbSats.Set_List_Index(Count);
    W.Sv_Click_Guard = false;
}

void cmbSats_Click(Simulator&, frmPosition& W) {
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

} // namespace brinewright
