#include "gnss/satellites/gnss_sky.hpp"
#include "links/links_at_start.hpp"
#include "links/setup_file/setup_file.hpp"
#include "ownship/ship/control_input.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "ownship/ship/joystick.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/main/file_menu.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/main/window_table.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/version.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <array>

namespace brinewright {

namespace {

constexpr const char* Application_Title = "Brinewright";
constexpr std::int64_t Window_Stagger_us = 350'000; // spreads the sentence timers of the windows over time
constexpr double Sky_Period_ms = 10'000;

struct Place_Setting {
    const char* Key;
    const char* Default;
    float Form::*Value;
};

constexpr std::array<Place_Setting, 4> Main_Place{{
    {"MainLeft", "1000", &Form::Left},
    {"MainTop", "1000", &Form::Top},
    {"MainWidth", "6500", &Form::Width},
    {"MainHeight", "6500", &Form::Height},
}};

void Load_First_Setup(Simulator& Sim) {
    const std::string File = Setup_File_Name(Sim);
    if (Sim.Services.Disk().Exists(File)) {
        Load_Setup(Sim, File);
        Open_Links_Of_Setup(Sim);
        return;
    }
    Sim.Windows.Boxes.Show("No setupfile exist. Default data loaded and no comports initialized ! ");
    Load_Default_Data(Sim.State, Sim.Window_Table);
    Sim.Setup_File = File;
    Open_Window(Sim, "frmSetup");
}

// Labels of the setup file only. On purpose they do not follow the order of the form indices from slot 5 on.
void Name_Sensor_Slots(Simulator& Sim) {
    constexpr std::array<const char*, 8> Names{"GNSS1", "GNSS2",       "Gyro1", "Gyro2",
                                               "Log",   "Echosounder", "ARPA",  "Wind Gauge"};
    for (std::size_t I = 0; I < Names.size(); ++I)
        Sim.State.Of<Link_State>().Sensor_Table[static_cast<int>(I) + 1].Name = Names[I];
}

std::string Main_Caption(const Simulator& Sim) {
    const std::int16_t Instance = Sim.State.Of<Shell_State>().Instance_Number;
    const char* Copy = Instance == 2 ? "-2" : Instance == 3 ? "-3" : "";
    return std::string(Application_Title) + "  " + Copy + " - Version : " + Version_Text;
}

void Place_Main_Window(Simulator& Sim) {
    for (const Place_Setting& P : Main_Place)
        (*Sim.Main).*P.Value = static_cast<float>(Val(Sim.Services.Settings().Get(P.Key, P.Default)));
}

void Keep_Main_Place(Simulator& Sim) {
    if (Sim.Main->State == Window_State::Minimised) return;
    for (const Place_Setting& P : Main_Place)
        Sim.Services.Settings().Set(P.Key, Format_Dot((*Sim.Main).*P.Value, ""));
}

void Open_Saved_Windows(Simulator& Sim) {
    for (int I = 1; I <= Sim.State.Of<Shell_State>().Open_Form_Count; ++I) {
        const std::int16_t Index = Sim.State.Of<Shell_State>().Open_Form_List[I].Index;
        if (Index != 0) Sim.Timers.Spin_us(Window_Stagger_us);
        // An event of its own: a window that fails to open is told in a box, and the others open.
        Sim.Windows.Event([&] { Open_Window_Of_Index(Sim, Index); });
    }
    Sim.State.Of<Shell_State>().Open_Form_Count = 0;
}

void MDIForm_Unload(Simulator& Sim) {
    Sim.Windows.Event([&] { Sim.Windows.Set_Focus(nullptr); }); // what is half typed is kept too
    // Child windows go first, each adding itself to the list of open windows: in the order in which they lie
    // upon each other, so that they lie so again. One that fails to is told in a box, and
    // the end goes on. Those that were closed before do not come back: the list begins anew.
    Sim.State.Of<Shell_State>().Open_Form_Count = 0;
    auto Open_Now = Sim.Windows.Forms;
    std::stable_sort(Open_Now.begin(), Open_Now.end(),
                     [](const auto& A, const auto& B) { return A->Last_Active < B->Last_Active; });
    for (const auto& Window : Open_Now)
        if (Window != Sim.Main) Sim.Windows.Event([&] { Sim.Windows.Unload(*Window); });
    // Whatever fails from here on, the program ends.
    Sim.Windows.Event([&] { Keep_Main_Place(Sim); });
    Sim.Windows.Event([&] { Save_Setup_At_End(Sim); });
    Sim.Ended = true;
    Sim.Services.Quit();
}

} // namespace

void MDIForm_Load(Simulator& Sim) {
    Simulator_State& S = Sim.State;
    frmMain& Main = Main_Window(Sim);
    S.Of<Shell_State>().Instance_Number = Sim.Options.Instance_Number;
    S.Of<Shell_State>().Data_Folder = Sim.Options.Data_Folder;
    S.Of<Link_State>().Control_Input_Enabled = Sim.Options.Control_Input;
    // Without the folder the program still starts: the setup may stand elsewhere, and its save must not be of
    // nothing.
    Sim.Windows.Event([&] { Sim.Services.Disk().Make_Folder(S.Of<Shell_State>().Data_Folder); });
    Load_First_Setup(Sim);
    Name_Sensor_Slots(Sim);
    Repair_Talkers(Sim.State);
    Init_Sky(Sim);
    Main.timer_Sky.Tick = [&Sim] { timer_Sky_Tick(Sim); };
    Main.timer_Sky.Set_Interval(Sky_Period_ms);
    Main.Set_Caption(Main_Caption(Sim));
    Place_Main_Window(Sim);
    Sim.Told.Switched.Tell();
    if (S.Of<Shell_State>().Mode == "Ship")
        Sim.Windows.Event(
            [&] { Open_Window_Of_Index(Sim, form_index::Ship); }); // before the sensors that it drives
    Open_Saved_Windows(Sim);
    Open_Those_That_Come_Back(Sim);
    if (auto* const Ship = Open_One<frmShip>(Sim))
        Start_Joystick(Sim, *Ship); // once more: it may have come while the windows opened
    if (S.Of<Link_State>().Control_Input_Enabled) Start_Control_Input(Sim);
    Settle_Setup(Sim);
}

std::unique_ptr<Simulator> Make_Simulator(Platform& Its_Platform, Start_Options Its_Options) {
    auto Made = std::make_unique<Simulator>(Its_Platform, std::move(Its_Options), All_Windows());
    Simulator& Sim = *Made;
    Sim.Main = std::make_shared<frmMain>(Sim.Windows, Sim.Window_Table);
    Sim.Main->On_Unload = [&Sim] { MDIForm_Unload(Sim); };
    Wire_Main(Sim);
    Sim.Windows.Show(Sim.Main);
    return Made;
}

} // namespace brinewright
