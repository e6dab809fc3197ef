#include "dialogs/iec61162/frm_iec61162.hpp"

#include "shell/state/iec450_state.hpp"
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
    Text_Box& (*Box)(frmIEC61162&);
    std::string IEC450_State::*Value;
    const char* Default_Text; // shown while the value is empty
};

const std::array<Text_Row, 4> Text_Rows{{
    {[](frmIEC61162& F) -> Text_Box& { return F.txtSourceId; }, &IEC450_State::s_Tag, "Brinewright"},
    {[](frmIEC61162& F) -> Text_Box& { return F.txtDestinationId[0]; }, &IEC450_State::d_Tag, "Listener 1"},
    {[](frmIEC61162& F) -> Text_Box& { return F.txtDestinationId[1]; }, &IEC450_State::d2_Tag, "Listener 2"},
    {[](frmIEC61162& F) -> Text_Box& { return F.txtTextString; }, &IEC450_State::t_Tag,
     "Type your text string here"},
}};

void cmdOK_Click(Simulator& Sim, frmIEC61162& F) {
    const bool On = F.chkIEC61162_450.Value();
    Sim.Windows.Boxes.Show(On ? "IEC 61162-450 option enabled." : "IEC 61162-450 option disabled.");
    Sim.State.Of<IEC450_State>().IEC450_Enabled = On;
    Sim.Told.Switched.Tell();
    Sim.State.Of<IEC450_State>().UdPbC_Header_Enabled = F.chkUdpbc.Value();
    for (std::size_t I = 0; I < Tag_Rows.size(); ++I) Sim.State->*Tag_Rows[I].Use = F.chkIEC61162[I]->Value();
    for (const Text_Row& Row : Text_Rows) Sim.State->*Row.Value = Row.Box(F).Text();
    Sim.Windows.Unload(F);
}

void frmIEC61162_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmIEC61162&>(Opened);
    const Simulator_State& S = Sim.State;
    F.chkIEC61162_450.Set_Value(S.Of<IEC450_State>().IEC450_Enabled);
    F.chkUdpbc.Set_Value(S.Of<IEC450_State>().UdPbC_Header_Enabled);
    F.chkIEC61162_450.Tool_Tip = std::string("Puts a tag block in front of every sentence on every link");
    F.chkUdpbc.Tool_Tip = std::string("Puts the UdPbC datagram header in front of the tag block");
    F.cmdOK.Tool_Tip = std::string("Takes the settings over for the next sentence");
    F.cmdCancel.Tool_Tip = std::string("Leaves the settings as they were");
    for (std::size_t I = 0; I < Tag_Rows.size(); ++I) {
        F.chkIEC61162[I]->Set_Value(S->*Tag_Rows[I].Use);
        F.chkIEC61162[I]->Tool_Tip = std::string(Tag_Rows[I].Tip);
    }
    for (const Text_Row& Row : Text_Rows) {
        Text_Box& Box = Row.Box(F);
        const std::string& Value = S->*Row.Value;
        Box.Set_Text(Value.empty() ? Row.Default_Text : Value);
        Box.Tool_Tip = std::string("Text of the tag beside it, sent as it stands");
        Box.Got_Focus = [&Box] { Box.Select_All(); };
    }
    F.cmdOK.Click = [&Sim, &F] { cmdOK_Click(Sim, F); };
    F.cmdCancel.Click = [&Sim, &F] { Sim.Windows.Unload(F); };
}

} // namespace

frmIEC61162::frmIEC61162(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "IEC 61162-450 Multiple talkers and listeners";
    for (const Tag_Row& Row : Tag_Rows)
        chkIEC61162.push_back(std::make_unique<Check_Box>(
            Stand(*this).Element(static_cast<int>(chkIEC61162.size())), "chkIEC61162", Row.Caption));
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
