#include "dialogs/iec61162/frm_iec61162.hpp"

#include "shell/state/iec450_state.hpp"
#include "shell/state/say.hpp"
#include "shell/state/simulator.hpp"

#include <array>

namespace brinewright {

namespace {

struct Tag_Row {
    const char* Caption;
    const char* Tip;
    bool IEC450_State::*Use;
};

constexpr std::array<Tag_Row, 7> Tag_Rows{{
    {"s: Source Identification", "Names the sender in every tag block", &IEC450_State::Use_s_Tag},
    {"d: Destination Identification 1", "Names a receiver in every tag block", &IEC450_State::Use_d_Tag},
    {"d: Destination Identification 2", "Names a second receiver in every tag block",
     &IEC450_State::Use_d2_Tag},
    {"n: Line-count parameter", "Counts the sentences, in every tag block", &IEC450_State::Use_n_Tag},
    {"g: Grouping control", "Tells which sentences belong together, in every tag block",
     &IEC450_State::Use_g_Tag},
    {"c: Time, sec since 1 Jan 1970", "Adds the time to every tag block, seconds since 1 Jan 1970",
     &IEC450_State::Use_c_Tag},
    {"t:Text string", "Adds a text of your own to every tag block", &IEC450_State::Use_t_Tag},
}};

struct Text_Row {
    Text_Box& Box;
    std::string& Stored;
    const char* Default_Text; // shown while nothing is stored
};

std::array<Text_Row, 4> Text_Rows(IEC450_State& S, frmIEC61162& F) {
    return {{{F.txtSourceId, S.s_Tag, "Brinewright"},
             {F.txtDestinationId[0], S.d_Tag, "Listener 1"},
             {F.txtDestinationId[1], S.d2_Tag, "Listener 2"},
             {F.txtTextString, S.t_Tag, "Type your text string here"}}};
}

void cmdOK_Click(Simulator& Sim, frmIEC61162& F) {
    IEC450_State& S = Sim.State.Of<IEC450_State>();
    const bool On = F.chkIEC61162_450.Value();
    Say(Sim, On ? "IEC 61162-450 option enabled." : "IEC 61162-450 option disabled.");
    S.IEC450_Enabled = On;
    Sim.Told.Switched.Tell();
    S.UdPbC_Header_Enabled = F.chkUdpbc.Value();
    for (std::size_t I = 0; I < Tag_Rows.size(); ++I) S.*Tag_Rows[I].Use = F.chkIEC61162[I]->Value();
    for (const Text_Row& Row : Text_Rows(S, F)) Row.Stored = Row.Box.Text();
    Sim.Windows.Unload(F);
}

void frmIEC61162_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmIEC61162&>(Opened);
    IEC450_State& S = Sim.State.Of<IEC450_State>();
    F.chkIEC61162_450.Set_Value(S.IEC450_Enabled);
    F.chkUdpbc.Set_Value(S.UdPbC_Header_Enabled);
    for (std::size_t I = 0; I < Tag_Rows.size(); ++I) F.chkIEC61162[I]->Set_Value(S.*Tag_Rows[I].Use);
    for (const Text_Row& Row : Text_Rows(S, F)) {
        Row.Box.Set_Text(Row.Stored.empty() ? Row.Default_Text : Row.Stored);
        Row.Box.Got_Focus = [&Box = Row.Box] { Box.Select_All(); };
    }
    F.cmdOK.Click = [&] { cmdOK_Click(Sim, F); };
    F.cmdCancel.Click = [&] { Sim.Windows.Unload(F); };
}

} // namespace

frmIEC61162::frmIEC61162(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "IEC 61162-450 Multiple talkers and listeners";
    for (const Tag_Row& Row : Tag_Rows)
        chkIEC61162.push_back(std::make_unique<Check_Box>(
            Stand(*this).Element(static_cast<int>(chkIEC61162.size())), "chkIEC61162", Row.Caption, Row.Tip));
}

const Window_Class IEC61162_Window{
    .Name = frmIEC61162::Class_Name,
    .Entry = {.Name = "mnuOptionIEC450",
              .Menu = "Options",
              .Text = "IEC 61162-450 enabled",
              .Place = 1,
              .Checked_While_Open = false,
              .Checked = [](const Simulator& Sim) { return Sim.State.Of<IEC450_State>().IEC450_Enabled; }},
    .Make = Make_Single<frmIEC61162>,
    .Load = frmIEC61162_Load,
    .Lay_Out = Lay_Out_IEC61162};

} // namespace brinewright
