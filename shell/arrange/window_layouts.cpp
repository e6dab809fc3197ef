#include "shell/arrange/window_layouts.hpp"

#include "platform/trimmed.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr const char* Bench_Windows[] = {"frmTraffic", "frmPosition", "frmGyro", "frmLog"};
constexpr const char* Conning_Windows[] = {"frmShip", "frmGyro", "frmLog", "frmEchosounder", "frmWind"};

bool May_Stand(const Simulator& Sim, const Window_Class& Class) {
    return !Class.Entry.In_Ship_Mode_Only || Sim.State.Of<Shell_State>().Mode == "Ship";
}

// The first of each of these windows, sensors in their small form.
template <std::size_t Count>
Window_Layout First_Of(const Simulator& Sim, const char* Name, const char* const (&Class_Names)[Count]) {
    Window_Layout New{Name, {}};
    for (const char* Class_Name : Class_Names) {
        const Window_Class* Class = Find_Class(Sim, Class_Name);
        if (Class && May_Stand(Sim, *Class))
            New.Windows.push_back({Class->Name, Class->Count == 0 ? 0 : 1, !Class->Sentences.empty(), {}});
    }
    return New;
}

Window_Layout All_Sensors(const Simulator& Sim) {
    Window_Layout New{"All sensors", {}};
    for (const Window_Class* Class : Sim.Window_Table)
        for (int I = 1; !Class->Sentences.empty() && I <= Class->Count; ++I)
            New.Windows.push_back({Class->Name, I, true, {}});
    return New;
}

// In the settings a layout is its name and its windows, each "frmGyro 1 0 0.25 0.5 0.25 0.5": class, number,
// whether it is small, and its shares; all parted by bars.
constexpr char Part_End = '|';
constexpr double Steps_In_Share = 10'000;

std::string Settings_Key(int Number) { return "Layout " + std::to_string(Number); }

std::vector<std::string> Parted(const std::string& Text, char End) {
    std::vector<std::string> Parts;
    std::size_t From = 0;
    while (From <= Text.size()) {
        const std::size_t To = std::min(Text.find(End, From), Text.size());
        Parts.push_back(Text.substr(From, To - From));
        From = To + 1;
    }
    return Parts;
}

std::string Written(const Window_Layout& Layout) {
    std::string Text = Layout.Name;
    for (const Layout_Window& W : Layout.Windows) {
        Text += Part_End + W.Class_Name + " " + std::to_string(W.Instance) + (W.Small ? " 1" : " 0");
        for (const float Share : {W.Share.Left, W.Share.Top, W.Share.Width, W.Share.Height})
            Text += " " + std::to_string(std::lround(Share * Steps_In_Share));
    }
    return Text;
}

// Settings are the user's file: what cannot be read is left out.
Window_Layout Read_Layout(const std::string& Text) {
    std::vector<std::string> Parts = Parted(Text, Part_End);
    Window_Layout New{Parts.front(), {}};
    for (std::size_t I = 1; I < Parts.size(); ++I) {
        const std::vector<std::string> Words = Parted(Parts[I], ' ');
        if (Words.size() != 7) continue;
        float Shares[4];
        for (std::size_t J = 0; J < 4; ++J)
            Shares[J] = static_cast<float>(std::clamp(Val(Words[J + 3]) / Steps_In_Share, 0.0, 1.0));
        New.Windows.push_back({Words[0],
                               static_cast<int>(std::clamp(Val(Words[1]), 0.0, 100.0)),
                               Words[2] == "1",
                               {Shares[0], Shares[1], Shares[2], Shares[3]}});
    }
    return New;
}

std::vector<Window_Layout> Own_Layouts(const Simulator& Sim) {
    std::vector<Window_Layout> Own;
    for (int I = 1; I <= Most_Layouts - Fitted_Layouts; ++I) {
        const std::string Text = Sim.Services.Settings().Get(Settings_Key(I), "");
        if (!Text.empty()) Own.push_back(Read_Layout(Text));
    }
    return Own;
}

void Keep_Own(Simulator& Sim, const std::vector<Window_Layout>& Own) {
    for (int I = 1; I <= Most_Layouts - Fitted_Layouts; ++I) {
        const auto At = static_cast<std::size_t>(I - 1);
        Sim.Services.Settings().Set(Settings_Key(I), At < Own.size() ? Written(Own[At]) : "");
    }
    Sim.Told.Switched.Tell();
}

bool Is_Fitted(const Simulator& Sim, const std::string& Name) {
    const std::vector<Window_Layout> All = All_Layouts(Sim);
    return std::any_of(All.begin(), All.begin() + Fitted_Layouts,
                       [&](const Window_Layout& L) { return L.Name == Name; });
}

std::vector<Form*> Open_All(Simulator& Sim, const Window_Layout& Layout) {
    std::vector<Form*> Opened;
    for (const Layout_Window& W : Layout.Windows) {
        const Window_Class* Class = Find_Class(Sim, W.Class_Name);
        if (!Class || !May_Stand(Sim, *Class)) continue;
        // An event of its own: a window that fails to open is told in a box, and the others open.
        if (!Open_Form(Sim, W.Class_Name, W.Instance))
            Sim.Windows.Event([&] { Open_Window(Sim, *Class, W.Instance); });
        Form* const Window = Open_Form(Sim, W.Class_Name, W.Instance);
        if (!Window) continue;
        Window->Set_State(Window_State::Normal);
        Window->Set_Small(W.Small);
        Opened.push_back(Window);
    }
    return Opened;
}

void Put_In_Place(Simulator& Sim, const Window_Layout& Layout) {
    const Extent Room = Room_Of(Sim);
    bool Fitted = false;
    for (const Layout_Window& W : Layout.Windows) {
        Form* const Window = Open_Form(Sim, W.Class_Name, W.Instance);
        Fitted = Fitted || W.Share.Width == 0;
        if (Window && W.Share.Width > 0)
            Window->Set_Place(W.Share.Left * Room.Width, W.Share.Top * Room.Height,
                              W.Share.Width * Room.Width, W.Share.Height * Room.Height);
    }
    if (Fitted) Tile(Sim, Lack::Overlap);
}

} // namespace

std::vector<Window_Layout> All_Layouts(const Simulator& Sim) {
    std::vector<Window_Layout> All{First_Of(Sim, "Bench", Bench_Windows),
                                   First_Of(Sim, "Conning", Conning_Windows), All_Sensors(Sim)};
    for (Window_Layout& Own : Own_Layouts(Sim)) All.push_back(std::move(Own));
    return All;
}

void Show_Layout(Simulator& Sim, int Number) {
    const std::vector<Window_Layout> All = All_Layouts(Sim);
    if (Number < 1 || Number > static_cast<int>(All.size())) return;
    const Window_Layout& Layout = All[static_cast<std::size_t>(Number - 1)];
    const std::vector<Form*> Opened = Open_All(Sim, Layout);
    if (!Opened.empty()) Sim.Windows.Activate(*Opened.back()); // none that is minimised below
    for (Form* Window : Standing_Windows(Sim))
        if (std::find(Opened.begin(), Opened.end(), Window) == Opened.end())
            Window->Set_State(Window_State::Minimised);
    Put_In_Place(Sim, Layout);
    // Once more when the sizes of the windows that have just opened are known.
    Sim.Windows.When_Measured = [&Sim, Layout] { Put_In_Place(Sim, Layout); };
}

std::string Save_Layout(Simulator& Sim, const std::string& Name) {
    std::string Kept(Trimmed(Name));
    std::erase(Kept, Part_End);
    if (Kept.empty()) return "A layout needs a name.";
    if (Is_Fitted(Sim, Kept)) return Kept + " comes with the program and stays as it is.";
    const Extent Room = Room_Of(Sim);
    Window_Layout New{Kept, {}};
    for (const Form* Window : Standing_Windows(Sim))
        New.Windows.push_back({Window->Name,
                               Window->Instance,
                               Window->Small,
                               {Window->Left / Room.Width, Window->Top / Room.Height,
                                Window->Width / Room.Width, Window->Height / Room.Height}});
    if (New.Windows.empty()) return "No window stands that a layout could keep.";
    std::vector<Window_Layout> Own = Own_Layouts(Sim);
    const auto Same =
        std::find_if(Own.begin(), Own.end(), [&](const Window_Layout& L) { return L.Name == Kept; });
    if (Same != Own.end())
        *Same = std::move(New);
    else if (static_cast<int>(Own.size()) == Most_Layouts - Fitted_Layouts)
        return "There is room for" + Number_Text(Most_Layouts - Fitted_Layouts) +
               " layouts of your own: delete one first.";
    else
        Own.push_back(std::move(New));
    Keep_Own(Sim, Own);
    return {};
}

std::string Delete_Layout(Simulator& Sim, const std::string& Name) {
    if (Is_Fitted(Sim, Name)) return Name + " comes with the program and stays as it is.";
    std::vector<Window_Layout> Own = Own_Layouts(Sim);
    if (std::erase_if(Own, [&](const Window_Layout& L) { return L.Name == Name; }) == 0)
        return "There is no layout of that name.";
    Keep_Own(Sim, Own);
    return {};
}

} // namespace brinewright
