#include "shell/state/windows.hpp"

#include "platform/run_time_error.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/kept_places.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <string>

namespace brinewright {

namespace {

// What is chosen is to be seen.
void Focus_Open(Simulator& Sim, const Window_Class& Class, Form& Window) {
    Form* const Chosen =
        Class.Focused_Instead ? Open_Form(Sim, Class.Focused_Instead, Window.Instance) : &Window;
    if (!Chosen) return;
    if (Chosen->State == Window_State::Minimised) Chosen->Set_State(Window_State::Normal);
    Sim.Windows.Activate(*Chosen);
}

std::string Open_Key(const Window_Class& Class) { return std::string("Open ") + Class.Name; }

std::string Numbered(std::string_view Pattern, int Instance) {
    std::string Text;
    for (const char C : Pattern) Text += C == '#' ? Number_Text(Instance) : std::string(1, C);
    return Text;
}

// Keeping the place comes last, since it fails when the list of places is full.
void Watch_Closing(Simulator& Sim, Form& Window, bool Keeps_Place) {
    Window.On_Unload = [&Sim, &Window, Keeps_Place, Own = std::move(Window.On_Unload)] {
        if (Own) Own();
        if (Window.Kind == Form_Kind::Child) Keep_Manner(Sim, Window);
        Sim.Told.Windows.Tell();
        if (Keeps_Place) Keep_Place(Sim, Window);
    };
}

} // namespace

void Open_Window(Simulator& Sim, const Window_Class& Class, int Instance) {
    if (Instance != std::clamp(Instance, Class.Count == 0 ? 0 : 1, Class.Count))
        throw Run_Time_Error(error_text::Subscript);
    if (Class.May_Open && !Class.May_Open(Sim)) return;
    if (Form* Window = Open_Form(Sim, Class.Name, Instance)) return Focus_Open(Sim, Class, *Window);
    const std::shared_ptr<Form> Window = Class.Make(Sim.Windows, Instance);
    if (Class.Load) Class.Load(Sim, *Window);
    const bool Keeps_Place = Class.First_Form_Index != form_index::None;
    if (Keeps_Place) Restore_Place(Sim, *Window);
    if (Window->Kind == Form_Kind::Child) Restore_Manner(Sim, *Window);
    Watch_Closing(Sim, *Window, Keeps_Place);
    if (Class.Comes_Back) {
        Sim.Services.Settings().Set(Open_Key(Class), "1");
        // Closed by the end of the program it comes back, closed by hand it does not.
        Window->On_Gone.push_back([&Sim, Key = Open_Key(Class)] {
            if (Sim.Main->Loaded) Sim.Services.Settings().Set(Key, "0");
        });
    }
    Sim.Windows.Show(Window, Class.With_Focus);
    if (Class.Caption) Window->Set_Caption(Numbered(Class.Caption, Instance));
    if (Class.Width > 0) Window->Resize(Class.Width, Window->Height);
    Sim.Told.Windows.Tell();
    if (Class.Shown) Class.Shown(Sim, *Window);
}

void Open_Window(Simulator& Sim, std::string_view Class_Name, int Instance) {
    if (const Window_Class* Class = Find_Class(Sim, Class_Name)) Open_Window(Sim, *Class, Instance);
}

void Open_Window_Of_Index(Simulator& Sim, std::int16_t Form_Index) {
    const Window_Class* Class = Class_Of_Index(Sim, Form_Index);
    if (!Class) return;
    if (Form_Index != form_index::Ship) Sim.State.Of<Shell_State>().Open_Form_Index = Form_Index;
    Open_Window(Sim, *Class, Instance_Of_Index(*Class, Form_Index));
}

void Look_Anew(Simulator& Sim) {
    const std::uint64_t Now = ++Sim.Windows.Revision;
    for (const auto& F : Sim.Windows.Forms) F->Revision = Now;
}

const Window_Class* Find_Class(const Simulator& Sim, std::string_view Class_Name) {
    for (const Window_Class* Class : Sim.Window_Table)
        if (Class->Name == Class_Name) return Class;
    return nullptr;
}

const Window_Class* Class_Of_Index(const Simulator& Sim, std::int16_t Form_Index) {
    for (const Window_Class* Class : Sim.Window_Table)
        if (Class->First_Form_Index != form_index::None && Form_Index >= Class->First_Form_Index &&
            Form_Index < Class->First_Form_Index + std::max(Class->Count, 1))
            return Class;
    return nullptr;
}

int Instance_Of_Index(const Window_Class& Class, std::int16_t Form_Index) {
    return Class.Count == 0 ? 0 : Form_Index - Class.First_Form_Index + 1;
}

void Open_Those_That_Come_Back(Simulator& Sim) {
    for (const Window_Class* Class : Sim.Window_Table)
        if (Class->Comes_Back && Sim.Services.Settings().Get(Open_Key(*Class), "") == "1")
            Sim.Windows.Event([&] { Open_Window(Sim, *Class); });
}

Form* Open_Form(const Simulator& Sim, std::string_view Class_Name, int Instance) {
    for (const auto& F : Sim.Windows.Forms)
        if (F->Loaded && F->Instance == Instance && F->Name == Class_Name) return F.get();
    return nullptr;
}

Form* Open_Form_Of_Index(const Simulator& Sim, std::int16_t Form_Index) {
    const Window_Class* Class = Class_Of_Index(Sim, Form_Index);
    return Class ? Open_Form(Sim, Class->Name, Instance_Of_Index(*Class, Form_Index)) : nullptr;
}

std::string Entry_Text(const Window_Class& Class, int Instance) {
    if (!Class.Entry.Text) return {};
    return Class.Entry.Text + (Class.Count == 0 ? std::string() : Number_Text(Instance));
}

} // namespace brinewright
