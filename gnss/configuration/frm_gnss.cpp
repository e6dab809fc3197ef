#include "gnss/configuration/frm_gnss.hpp"

#include "gnss/gnss_state.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

namespace brinewright {

namespace {

struct GNSS_System {
    const char* Name;
    const char* Label;
    const char* Talker; // when it is the only one
};
constexpr GNSS_System Known_Systems[] = {
    {"GPS", "1 - GPS", "GP"}, {"GLONASS", "2 - GLONASS", "GL"}, {"Galileo", "3 - Galileo", "GA"},
    {"BDS", "4 - BDS", "GB"}, {"QZSS", "5 - QZSS", "GQ"},       {"NavIC(IRNSS)", "6 - NavIC (IRNSS)", "GI"}};
constexpr const char* Combined_Talker = "GN";

constexpr const char* Modes[] = {"N - Not used or not valid",
                                 "A - Autonomous.(Non-differential mode)",
                                 "D - Differential",
                                 "P - Precise(PPS or other precision mode)",
                                 "R - RTK, fixed integers",
                                 "F - RTK, floating integers",
                                 "E - Estimated (Dead reckoning)",
                                 "M - Manual Input",
                                 "S - Simulator mode"};
constexpr int Not_Used = 0;

// In twentieths of a point.
constexpr float Dialog_Width = 5955, Dialog_Height = 3420;
constexpr float Place_Step = 1000; // right of and below the window

std::string Name_Of(const Stand& At) { return Known_Systems[At.Index].Name; }

std::deque<GNSS_System_Row> System_Rows(Form& F) {
    std::deque<GNSS_System_Row> Rows;
    for (int Element = 0; Element < static_cast<int>(std::size(Known_Systems)); ++Element)
        Rows.emplace_back(Stand(F).Element(Element));
    return Rows;
}

char Mode_Letter(const GNSS_System_Row& Row) { return Row.cmbMode.Text().front(); }

std::string Mode_Indicator(const frmGNSS& F) {
    // The first system gives its letter whether it is used or not; unchecking has made it "N".
    std::string Letters(1, Mode_Letter(F.Systems[0]));
    std::size_t Kept = 1; // as far as the last system in use
    for (std::size_t I = 1; I < F.Systems.size(); ++I) {
        const bool Used = F.Systems[I].chkUse.Value();
        Letters += Used ? Mode_Letter(F.Systems[I]) : 'N';
        if (Used) Kept = I + 1;
    }
    return Letters.substr(0, Kept);
}

void chkUse_Click(frmGNSS& F, GNSS_System_Row& Row) {
    Row.cmbMode.Enabled = Row.chkUse.Value();
    if (!Row.chkUse.Value()) Row.cmbMode.Set_List_Index(Not_Used);
    ReArrange(F);
}

// A stored mode that the list does not have, as a setup file may hold, counts as not used.
void Show_Stored(const GNSS_State& S, frmGNSS& F) {
    F.lblGNSModeIndicator.Caption = S.GNS_Mode_Indicator[F.Instance];
    for (GNSS_System_Row& Row : F.Systems) {
        Row.chkUse.Click = [&] { chkUse_Click(F, Row); };
        Row.cmbMode.Click = [&] { ReArrange(F); };
        const int System = Row.chkUse.Index + 1;
        const int Stored = S.GNSS_System_Mode[System][F.Instance];
        const int Mode = Stored >= 0 && Stored < static_cast<int>(std::size(Modes)) ? Stored : Not_Used;
        Row.chkUse.Set_Value(S.GNSS_System_Used[System][F.Instance] || Mode > Not_Used);
        Row.cmbMode.Set_List_Index(Mode);
    }
}

void cmdOK_Click(Simulator& Sim, frmGNSS& F) {
    GNSS_State& S = Sim.State.Of<GNSS_State>();
    const int Slot = F.Instance;
    S.GNSS_Config_Index = static_cast<std::int16_t>(Slot); // the dialog of the other window may stand too
    S.GNS_Mode_Indicator[Slot] = *F.lblGNSModeIndicator.Caption;
    S.GNSS_Systems_Text[Slot] = *F.lblGNSS_Config.Caption;
    S.GNS_Talker[Slot] = *F.lblGNSTalker.Caption;
    for (const GNSS_System_Row& Row : F.Systems) {
        const int System = Row.chkUse.Index + 1;
        S.GNSS_System_Used[System][Slot] = Row.chkUse.Value();
        S.GNSS_System_Mode[System][Slot] = static_cast<std::int16_t>(Row.cmbMode.List_Index());
    }
    Sim.Told.Switched.Tell();
    Sim.Windows.Unload(F);
}

void frmGNSS_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmGNSS&>(Opened);
    GNSS_State& S = Sim.State.Of<GNSS_State>();
    const Form* const Below = Open_Form(Sim, "frmPosition", F.Instance); // the window that it belongs to
    F.Set_Place((Below ? Below->Left : 0) + Place_Step, (Below ? Below->Top : 0) + Place_Step, Dialog_Width,
                Dialog_Height);
    S.GNSS_Config_Index = static_cast<std::int16_t>(F.Instance);
    Show_Stored(S, F);
    F.cmdOK.Click = [&] { cmdOK_Click(Sim, F); };
    F.cmdCancel.Click = [&] { Sim.Windows.Unload(F); };
}

} // namespace

// The mode field needs every list to have a choice.
GNSS_System_Row::GNSS_System_Row(Stand At)
    : lblGNSS_System(At, "lblGNSS_System", Known_Systems[At.Index].Label, "Mode and use of " + Name_Of(At)),
      chkUse(At, "chkUse", "Use", Name_Of(At) + " is behind the fix"),
      cmbMode(At, "cmbMode", "", "Mode of " + Name_Of(At) + ", a letter of the mode field of GNS") {
    Add_Items(cmbMode, Modes);
    cmbMode.Set_List_Index(Not_Used);
    cmbMode.Enabled = false;
}

frmGNSS::frmGNSS(Desktop& Its_Windows, int Slot)
    : Form(Its_Windows, Class_Name, Slot, Form_Kind::Dialog), Systems(System_Rows(*this)) {}

const Window_Class GNSS_Configuration_Windows{.Name = frmGNSS::Class_Name,
                                              .Count = 2,
                                              .Caption = "GNSS# Configuration",
                                              .Make = Make_Instance<frmGNSS>,
                                              .Load = frmGNSS_Load,
                                              .Lay_Out = Lay_Out_GNSS_Configuration};

void ReArrange(frmGNSS& F) {
    F.lblGNSModeIndicator.Caption = Mode_Indicator(F);
    std::string Names;
    const char* Talker = Combined_Talker;
    int Count = 0;
    for (const GNSS_System_Row& Row : F.Systems) {
        if (!Row.chkUse.Value()) continue;
        const GNSS_System& System = Known_Systems[Row.chkUse.Index];
        Names += (Count == 0 ? "" : "-") + std::string(System.Name);
        Talker = ++Count == 1 ? System.Talker : Combined_Talker;
    }
    F.lblGNSS_Config.Caption = Names;
    F.lblGNSTalker.Caption = std::string(Talker);
}

} // namespace brinewright
