#include "gnss/position/fix_quality.hpp"

#include "gnss/position/frm_position.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/state/simulator.hpp"

#include <charconv>
#include <cmath>
#include <cstdlib>
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
constexpr std::int16_t No_Fix = 1, Fix_2D = 2, Fix_3D = 3;

constexpr int Number_Choices = 64;
constexpr const char* Height_Pattern = "0.0 m";
constexpr int Highest_Station = 1023;

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

struct Height_Box {
    Text_Box P::*Box;
    float GGA_Record::*Of_GGA;
    float GNS_Record::*Of_GNS;
};
constexpr Height_Box Height_Boxes[] = {
    {&P::txtAlt, &GGA_Record::Alt, &GNS_Record::Alt},
    {&P::txtGeoidSep, &GGA_Record::Geoid_Sep, &GNS_Record::Geoid_Sep},
};

void Write_Number(P& W, const Number_List& Row) { Row.Write(W, Number_Shown((W.*Row.List).Text())); }

void Height_Box_LostFocus(P& W, const Height_Box& Row) {
    const float Height_m = Number_Shown((W.*Row.Box).Text());
    W.GGA_Record.*Row.Of_GGA = W.GNS_Record.*Row.Of_GNS = Height_m;
    (W.*Row.Box).Set_Text(Format_Dot(Height_m, Height_Pattern));
}

void Write_Fix(P& W) {
    W.GSA_Record.Fix = W.GGA_Record.Quality == Invalid ? No_Fix
                       : W.optMode3D2D.Selected() == 0 ? Fix_3D
                                                       : Fix_2D;
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

} // namespace

void Wire_Fix_Quality(Simulator& Sim, frmPosition& W) {
    W.cmbQuality.Click = [&W] { cmbQuality_Click(W); };
    W.optMode3D2D.Click = [&W](int) { optMode3D2D_Click(W); };
    W.optModeAutMan.Click = [&W](int Index) { W.GSA_Record.Mode = Index == 0 ? 'A' : 'M'; };
    W.chkDifferential.Click = [&W] { chkDifferential_Click(W); };
    W.txtStnID.Lost_Focus = [&] { txtStnID_LostFocus(Sim, W); };
    for (const Number_List& Row : Number_Lists)
        (W.*Row.List).Click = (W.*Row.List).Change = [&] { Write_Number(W, Row); };
    for (const Height_Box& Row : Height_Boxes)
        (W.*Row.Box).Lost_Focus = [&] { Height_Box_LostFocus(W, Row); };
}

void Fill_Fix_Quality(frmPosition& W) {
    Add_Items(W.cmbQuality, Qualities);
    for (const Number_List& Row : Number_Lists) {
        (W.*Row.List).Free_Text = true;
        for (int I = 0; I < Number_Choices; ++I) (W.*Row.List).Add_Item(Row.Entry(I));
    }
}

void Restore_Fix_Quality(frmPosition& W) {
    W.cmbQuality.Set_List_Index(GPS);
    for (const Number_List& Row : Number_Lists) (W.*Row.List).Set_List_Index(Row.Default_List_Index);
    W.optMode3D2D.Select(0);
    W.optModeAutMan.Select(0);
}

void Read_Fix_Boxes(frmPosition& W) {
    W.GGA_Record.Station_ID = Station_Shown(W);
    for (const Height_Box& Row : Height_Boxes) W.GGA_Record.*Row.Of_GGA = Number_Shown((W.*Row.Box).Text());
}

// Quality touches the fix of GSA and nothing else: no status letter, no mode letter.
void cmbQuality_Click(frmPosition& W) {
    W.GGA_Record.Quality = static_cast<std::int16_t>(W.cmbQuality.List_Index());
    Write_Fix(W);
}

void optMode3D2D_Click(frmPosition& W) { Write_Fix(W); }

// Checked, the second entries of lists 1 to 3 make the mode of GLL and VTG "D", but the status of GLL "V",
// and RMC stays as it is. The hint promises more than this; these assignments are the required ones.
void chkDifferential_Click(frmPosition& W) {
    const bool On = W.chkDifferential.Value();
    W.cmbQuality.Set_List_Index(On ? Differential_GPS : GPS);
    for (const int List : {1, 2, 3}) W.cmbGLLRMVVTG_Mode[List].Set_List_Index(On ? 1 : 0);
}

// A station that is out of range is told and all the same stored, which is required.
void txtStnID_LostFocus(Simulator& Sim, frmPosition& W) {
    const std::int32_t Station = Station_Shown(W);
    if (Station > Highest_Station)
        Sim.Windows.Boxes.Show("Station ID not within accepted interval, has to be 0000-1023.");
    W.GGA_Record.Station_ID = W.GNS_Record.Station_ID = Station;
    W.txtStnID.Set_Text(std::to_string(Station));
}

} // namespace brinewright
