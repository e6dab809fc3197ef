#include "shell/sources/frm_sources.hpp"

#include "links/link_record.hpp"
#include "shell/kit/sentence_family.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

namespace brinewright {

namespace {

constexpr double Look_ms = 500; // figures that change faster cannot be read

struct State_Text {
    std::string Text;
    Ink Colour = Ink::Normal;
};

State_Text State_Of(const Simulator& Sim, std::int16_t Form_Index, bool Any_Sentence) {
    const Link_State& Links = Sim.State.Of<Link_State>();
    if (!Open_Form_Of_Index(Sim, Form_Index)) return {"window closed"};
    if (Links.Silenced[Form_Index]) return {"silenced", Ink::Red};
    const std::int16_t Port = Links.Sensor_Table[Form_Index].Port;
    const std::string Why_Not = Why_Nothing_Leaves(Sim, Port);
    if (!Why_Not.empty()) return {Why_Not, Any_Sentence ? Ink::Red : Ink::Normal};
    const std::string Name = "to " + Record_Of(Sim, Port).Name;
    return {Name, Any_Sentence ? Ink::Green : Ink::Normal};
}

std::string Chosen_Sentences(Simulator& Sim, const Window_Class& Class, int Instance) {
    std::string Text;
    for (const Sentence_Row& Row : Class.Sentences)
        if (Row.Setting && Row.Setting(Sim.State, Instance).Enabled)
            Text += (Text.empty() ? "" : " ") + std::string(Row.Type);
    return Text;
}

void Show_Sources(Simulator& Sim, const frmSources& F) {
    for (std::int16_t Index = form_index::Ship + 1; Index <= form_index::Last; ++Index) {
        const Window_Class* Class = Class_Of_Index(Sim, Index);
        F.frmSource[Index].Visible = Class != nullptr;
        if (!Class) continue;
        const int Instance = Instance_Of_Index(*Class, Index);
        const std::string Sentences = Chosen_Sentences(Sim, *Class, Instance);
        const State_Text State = State_Of(Sim, Index, !Sentences.empty());
        F.cmdOpen[Index].Caption = Entry_Text(*Class, Instance);
        F.lblValue[Index].Caption = Class->Value_Now ? Class->Value_Now(Sim.State, Instance) : "";
        F.lblSentences[Index].Caption = Sentences.empty() ? "no sentence is on" : Sentences;
        F.lblState[Index].Caption = State.Text;
        F.lblState[Index].Fore_Colour = State.Colour;
        F.chkSends[Index].Set_Value(Open_Form_Of_Index(Sim, Index) &&
                                    !Sim.State.Of<Link_State>().Silenced[Index]);
    }
}

void Let_Send(Simulator& Sim, const frmSources& F, std::int16_t Index) {
    const bool Wanted = F.chkSends[Index].Value();
    Sim.State.Of<Link_State>().Silenced[Index] = !Wanted;
    if (Wanted && !Open_Form_Of_Index(Sim, Index)) Open_Window_Of_Index(Sim, Index);
}

void frmSources_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmSources&>(Opened);
    Show_Sources(Sim, F); // before there is a handler: what is shown is no order
    for (std::int16_t Index = form_index::Ship + 1; Index <= form_index::Last; ++Index) {
        F.chkSends[Index].Click = [&Sim, &F, Index] {
            const bool Shown = Open_Form_Of_Index(Sim, Index) && !Sim.State.Of<Link_State>().Silenced[Index];
            if (F.chkSends[Index].Value() != Shown) Let_Send(Sim, F, Index);
            Show_Sources(Sim, F);
        };
        F.cmdOpen[Index].Click = [&Sim, Index] { Open_Window_Of_Index(Sim, Index); };
    }
    F.timerLook.Tick = [&] { Show_Sources(Sim, F); };
    F.timerLook.Set_Interval(Look_ms);
    Sim.Told.Windows.Add(F, [&] { Show_Sources(Sim, F); });
}

} // namespace

frmSources::frmSources(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Side) {
    Caption = "Sources";
}

const Window_Class Sources_Window{
    .Name = frmSources::Class_Name,
    .Entry = {.Name = "mnuViewSources", .Menu = "View", .Text = "&Sources", .Place = 1},
    .Make = Make_Single<frmSources>,
    .Load = frmSources_Load,
    .Lay_Out = Lay_Out_Sources,
    .Comes_Back = true,
    .Closes_When_Chosen = true,
    .With_Focus = false};

} // namespace brinewright
