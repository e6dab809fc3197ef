#include "gnss/gnss_sky.hpp"
#include "links/control_input.hpp"
#include "links/frm_setup.hpp"
#include "links/serial_ports.hpp"
#include "links/setup_file.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "ownship/ship/joystick.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/file_menu.hpp"
#include "shell/frm_main.hpp"
#include "shell/simulator.hpp"
#include "shell/talker_defaults.hpp"

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
        if (Sim.State.Comport_Count > 0) Init_Comports(Sim, Sim.State.Comport_Count);
        return;
    }
    Sim.Windows.Boxes.Show("No setupfile exist. Default data loaded and no comports initialized ! ");
    Load_Default_Data(Sim.State);
    mnuSetupPort_Click(Sim);
}

// Labels of the setup file only. On purpose they do not follow the order of the form indices from slot 5 on.
void Name_Sensor_Slots(Simulator& Sim) {
    constexpr std::array<const char*, 8> Names{"GNSS1", "GNSS2",       "Gyro1", "Gyro2",
                                               "Log",   "Echosounder", "ARPA",  "Wind Gauge"};
    for (std::size_t I = 0; I < Names.size(); ++I)
        Sim.State.Sensor_Table[static_cast<int>(I) + 1].Name = Names[I];
}

std::string Main_Caption(const Simulator& Sim) {
    const std::int16_t Instance = Sim.State.Instance_Number;
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
    for (int I = 1; I <= Sim.State.Open_Form_Count; ++I) {
        const std::int16_t Index = Sim.State.Open_Form_List[I].Index;
        if (Index != 0) Sim.Timers.Spin_us(Window_Stagger_us);
        // An event of its own: a window that fails to open is told in a box, and the others open.
        Sim.Windows.Event([&] { Open_Kept_Window(Sim, Index); });
    }
    Sim.State.Open_Form_Count = 0;
}

void MDIForm_Unload(Simulator& Sim) {
    // Child windows go first, each adding itself to the list of open windows: in the order in which they lie
    // upon each other, so that they lie so again. One that fails to (the list is full) is told in a box, and
    // the end goes on.
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
    frmMain& Main = *Sim.Main;
    S.Instance_Number = Sim.Options.Instance_Number;
    S.Data_Folder = Sim.Options.Data_Folder;
    S.Control_Input_Enabled = Sim.Options.Control_Input;
    // Without the folder the program still starts: the setup may stand elsewhere, and its save must not be of
    // nothing.
    Sim.Windows.Event([&] { Sim.Services.Disk().Make_Folder(S.Data_Folder); });
    Load_First_Setup(Sim);
    Name_Sensor_Slots(Sim);
    Repair_Talkers(Sim.State);
    Init_Sky(Sim);
    Main.timer_Sky.Tick = [&Sim] { timer_Sky_Tick(Sim); };
    Main.timer_Sky.Set_Interval(Sky_Period_ms);
    Main.Set_Caption(Main_Caption(Sim));
    Place_Main_Window(Sim);
    Show_Mode(Sim);
    if (S.Mode == "Ship") Sim.Windows.Event([&] { mnuShip_Click(Sim); }); // before the sensors that it drives
    Open_Saved_Windows(Sim);
    if (Sim.Ship) Start_Joystick(Sim, *Sim.Ship); // once more: it may have come while the windows opened
    Main.mnuSetupStartOption.Checked = S.Start_With_Last_Navdata;
    Main.mnuOptionIEC450.Checked = S.IEC450_Enabled;
    if (S.Control_Input_Enabled) Start_Control_Input(Sim);
}

Simulator::Simulator(Platform& Its_Platform, Start_Options Its_Options)
    : Services(Its_Platform), Options(std::move(Its_Options)), Timers(Its_Platform.Time()), Windows(Timers),
      Main(std::make_shared<frmMain>(Windows)) {
    Main->On_Unload = [this] { MDIForm_Unload(*this); };
    Wire_Menus(*this);
    Windows.Show(Main);
}

// The windows hold timers of the queue and handlers on the simulator, so they go while both still stand.
Simulator::~Simulator() {
    for (const auto& Window : Windows.Forms) Window->On_Unload = nullptr;
    while (!Windows.Forms.empty()) Windows.Event([this] { Windows.Unload(*Windows.Forms.back()); });
}

} // namespace brinewright
