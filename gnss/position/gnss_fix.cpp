#include "gnss/position/frm_position.hpp"
#include "gnss/position/position_parts.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/state/simulator.hpp"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

namespace brinewright {

namespace {

using P = frmPosition;

constexpr const char* Qualities[] = {"0 - Invalid",
                                     "1 - GPS, SPS mode",
                                     "2 - Diff GPS, SPS mode",
                                     "3 - GPS, PPS mode",
                                     "4 - RTK, Fixed integers",
                                     "5 - RTK, Floating integers",
                                     "6 - Dead Reckoning mode",
                                     "7 - Manual input mode",
                                     "8 - Simulator mode"};
constexpr int Invalid = 0, GPS = 1, Differential_GPS = 2; // ListIndex and value

// Quality touches the fix of GSA and nothing else: no status letter, no mode letter.
void Write_Quality(P& W) {
    constexpr std::int16_t No_Fix = 1, Fix_2D = 2, Fix_3D = 3;
    W.GGA_Record.Quality = static_cast<std::int16_t>(W.cmbQuality.List_Index());
    const std::int16_t Fix = W.optMode3D2D.Selected() == 0 ? Fix_3D : Fix_2D;
    W.GSA_Record.Fix = W.GGA_Record.Quality == Invalid ? No_Fix : Fix;
}

// Checked, the second entries of lists 1 to 3 make the mode of GLL and VTG "D", but the status of GLL "V",
// and RMC stays as it is. The hint promises more than this; these assignments are the required ones.
void chkDifferential_Click(P& W) {
    const bool On = W.chkDifferential.Value();
    W.cmbQuality.Set_List_Index(On ? Differential_GPS : GPS);
    for (const int List : {1, 2, 3}) W.cmbGLLRMVVTG_Mode[List].Set_List_Index(On ? 1 : 0);
}

void Open_Quality(P& W) {
    Add_Items(W.cmbQuality, Qualities);
    W.cmbQuality.Click = [&W] { Write_Quality(W); };
    W.optMode3D2D.Click = [&W](int) { Write_Quality(W); };
    W.optModeAutMan.Click = [&W](int Index) { W.GSA_Record.Mode = Index == 0 ? 'A' : 'M'; };
    W.chkDifferential.Click = [&W] { chkDifferential_Click(W); };
    W.cmbQuality.Set_List_Index(GPS);
    W.optMode3D2D.Select(0);
    W.optModeAutMan.Select(0);
}

std::string DOP_Entry(int I) { return Format_Dot(1 + 2.0 * I / 10, "0.0"); }
std::string Age_Entry(int I) { return Number_Text(I) + " sec"; }

// Lists that the user may also type in. What they write is the number that they show, chosen or typed.
struct Number_List {
    Combo_Box P::*List;
    std::string (*Entry)(int);
    int Default_List_Index;
    void (*Write)(P&, float);
};
constexpr Number_List Number_Lists[] = {
    {&P::cmbHdop, DOP_Entry, 2,
     [](P& W, float V) { W.GGA_Record.HDOP = W.GNS_Record.HDOP = W.GSA_Record.HDOP = V; }},
    {&P::cmbPdop, DOP_Entry, 8, [](P& W, float V) { W.GSA_Record.PDOP = V; }},
    {&P::cmbVdop, DOP_Entry, 6, [](P& W, float V) { W.GSA_Record.VDOP = V; }},
    {&P::cmbAge, Age_Entry, 5, [](P& W, float V) { W.GGA_Record.Age = W.GNS_Record.Age = V; }},
};

void Open_Number_Lists(P& W) {
    constexpr int Choices = 64;
    for (const Number_List& Row : Number_Lists) {
        Combo_Box& List = W.*Row.List;
        for (int I = 0; I < Choices; ++I) List.Add_Item(Row.Entry(I));
        Wire_Number_List(List, Bad_Text_Is_Zero, [&W, &Row](float Value) { Row.Write(W, Value); });
        List.Set_List_Index(Row.Default_List_Index);
    }
}

// The whole text has to be a number, which is rounded to an integer, ties to even, of 16 bits.
std::optional<std::int16_t> As_Integer(std::string Text) {
    Text.erase(0, Text.find_first_not_of(' '));
    Text.erase(Text.find_last_not_of(' ') + 1);
    for (char& C : Text)
        if (C == ',') C = '.';
    const std::size_t Sign = Text.starts_with('+') || Text.starts_with('-') ? 1 : 0;
    // from_chars would also take the words for infinity and a second sign.
    if (Text.find_first_of("0123456789.") != Sign) return {};
    double Value = 0;
    const char* const End = Text.data() + Text.size();
    const auto [Stop, Failure] = std::from_chars(Text.data() + (Text[0] == '+' ? 1 : 0), End, Value);
    if (Failure != std::errc() || Stop != End) return {};
    Value = std::nearbyint(Value);
    using Limits = std::numeric_limits<std::int16_t>;
    if (Value < Limits::min() || Value > Limits::max()) return {};
    return static_cast<std::int16_t>(Value);
}

std::int32_t Station_Shown(const P& W) {
    return std::abs(std::int32_t{As_Integer(W.txtStnID.Text()).value_or(0)});
}

// A station that is out of range is reported and all the same stored, which is required.
void txtStnID_LostFocus(Simulator& Sim, P& W) {
    constexpr int Highest_Station = 1023;
    if (!Typed_Number(W.txtStnID, Bad_Text_Is_Zero)) return W.txtStnID.Set_Text(W.txtStnID.Text_Before());
    const std::int32_t Station = Station_Shown(W);
    if (Station > Highest_Station)
        Sim.Windows.Boxes.Show("Station ID not within accepted interval, has to be 0000-1023.");
    W.GGA_Record.Station_ID = W.GNS_Record.Station_ID = Station;
    W.txtStnID.Set_Text(std::to_string(Station));
}

// GNS stays without station until the user has left the box once: "0" beside the "0100" of GGA is the
// required start state.
void Open_Station_And_Heights(Simulator& Sim, P& W) {
    W.txtStnID.Lost_Focus = [&] { txtStnID_LostFocus(Sim, W); };
    W.GGA_Record.Station_ID = Station_Shown(W);
    const auto Wire = [&W](Text_Box& Box, float& Of_GGA, float& Of_GNS) {
        Box.Lost_Focus = [&Box, &Of_GGA, &Of_GNS] {
            // Left alone, it still hands the height to GNS.
            const auto Typed = Typed_Number(Box, Bad_Text_Is_Zero);
            Of_GGA = Of_GNS = Typed ? Record_Number(*Typed) : Of_GGA;
            Box.Set_Text(Format_Dot(Of_GGA, "0.0 m"));
        };
    };
    Wire(W.txtAlt, W.GGA_Record.Alt, W.GNS_Record.Alt);
    Wire(W.txtGeoidSep, W.GGA_Record.Geoid_Sep, W.GNS_Record.Geoid_Sep);
}

constexpr const char* Safety[] = {"S - Safe", "C - Caution", "U - Unsafe", "V - Not valid"};
constexpr const char* GLL_Status[] = {"A - Data valid", "V - Data Invalid"};
constexpr const char* GLL_Mode[] = {"A - Autonomous", "D - Differential", "E - Estimated",
                                    "M - Manual",     "S - Simulator",    "N - Not valid"};
constexpr const char* VTG_Mode[] = {"A - Autonomous", "D - Differential", "E - Estimated", "M - Manual",
                                    "P - Precise",    "S - Simulator",    "N - Not valid"};
constexpr const char* RMC_Mode[] = {"A - Autonomous", "D - Differential", "E - Estimated",
                                    "F - Float RTK",  "M - Manual",       "N - No fix",
                                    "P - Precise",    "R - RTK",          "S - Simulator"};

// The mode and status letters: each list writes one letter of one record.
struct Mode_List {
    const char* Name;
    std::span<const char* const> Entries;
    char& (*Field)(P&);
};
constexpr Mode_List Mode_Lists[] = {
    {"GNS Status", Safety, [](P& W) -> char& { return W.GNS_Record.Status; }},
    {"GLL Status", GLL_Status, [](P& W) -> char& { return W.GLL_Record.Status; }},
    {"GLL Mode Indicator", GLL_Mode, [](P& W) -> char& { return W.GLL_Record.Mode; }},
    {"VTG Mode Indicator", VTG_Mode, [](P& W) -> char& { return W.VTG_Record.Mode; }},
    {"RMC Mode Indicator", RMC_Mode, [](P& W) -> char& { return W.RMC_Record.Mode; }},
    {"RMC-Nav status", Safety, [](P& W) -> char& { return W.RMC_Record.Nav_Status; }},
};

void cmbModeIndicator_Click(P& W) {
    const int Chosen = W.cmbModeIndicator.List_Index();
    W.cmbGLLRMVVTG_Mode[Chosen].Set_List_Index(W.Mode_Item[Chosen]);
    for (const auto& List : W.cmbGLLRMVVTG_Mode) List->Visible = List->Index == Chosen;
}

void Open_Modes(P& W) {
    for (const auto& Each : W.cmbGLLRMVVTG_Mode) {
        Combo_Box& List = *Each;
        const int I = List.Index;
        W.cmbModeIndicator.Add_Item(Mode_Lists[I].Name);
        Add_Items(List, Mode_Lists[I].Entries);
        List.Click = [&W, &List, I] {
            Mode_Lists[I].Field(W) = List.Text().front();
            W.Mode_Item[I] = static_cast<std::int16_t>(List.List_Index());
        };
        List.Set_List_Index(0);
    }
    W.cmbModeIndicator.Click = [&W] { cmbModeIndicator_Click(W); };
    W.cmbModeIndicator.Set_List_Index(0);
}

struct Datum {
    const char* Name;
    const char* Code; // on the wire
};
constexpr Datum Datums[] = {{"WGS84", "W84"}, {"PE90", "P90"}, {"ED50", "E50"}};

// The directions of the first two come from cmbNS and cmbEW alone, so that their sign is dropped.
struct Offset_Row {
    float DTM_Record::*Field;
    const char* Pattern;
    bool Signed;
};
constexpr Offset_Row Offset_Rows[] = {{&DTM_Record::Lat_Offset, "0.0000'", false},
                                      {&DTM_Record::Lon_Offset, "0.0000'", false},
                                      {&DTM_Record::Alt_Offset, "0.0 m", true}};

void txtOffset_LostFocus(DTM_Record& R, Text_Box& Box) {
    const Offset_Row& Row = Offset_Rows[Box.Index];
    if (const auto Typed = Typed_Number(Box, Bad_Text_Is_Zero))
        R.*Row.Field = Record_Number(Row.Signed ? *Typed : std::abs(*Typed));
    Box.Set_Text(Format_Dot(R.*Row.Field, Row.Pattern));
}

// From WGS84 to WGS84, without offset.
void Open_Datum(P& W) {
    DTM_Record& R = W.DTM_Record;
    const auto Open_List = [](Combo_Box& List, std::string& Code) {
        for (const Datum& D : Datums) List.Add_Item(D.Name);
        List.Click = [&List, &Code] { Code = Datums[List.List_Index()].Code; };
        List.Set_List_Index(0);
    };
    Open_List(W.cmbDatum[0], R.Local_Datum);
    Open_List(W.cmbDatum[1], R.Ref_Datum);
    const auto Open_Direction = [](Combo_Box& List, std::span<const char* const> Letters, char& Letter) {
        Add_Items(List, Letters);
        List.Click = [&List, &Letter] { Letter = List.Text().front(); };
        List.Set_List_Index(0);
    };
    constexpr const char *North_South[] = {"N", "S"}, *East_West[] = {"E", "W"};
    Open_Direction(W.cmbNS, North_South, R.Lat_Dir);
    Open_Direction(W.cmbEW, East_West, R.Lon_Dir);
    for (const auto& Box : W.txtOffset) Box->Lost_Focus = [&R, &B = *Box] { txtOffset_LostFocus(R, B); };
}

} // namespace

void Open_Fix(Simulator& Sim, frmPosition& W) {
    Open_Quality(W);
    Open_Number_Lists(W);
    Open_Station_And_Heights(Sim, W);
    Open_Modes(W);
    Open_Datum(W);
}

} // namespace brinewright
