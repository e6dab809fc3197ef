#include "links/links_at_start.hpp"
#include "sentences/number_text.hpp"
#include "shell/arrange/window_layouts.hpp"
#include "shell/main/file_menu.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/say.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace brinewright {

namespace {

bool In_Ship_Mode(const Simulator& Sim) { return Sim.State.Of<Shell_State>().Mode == "Ship"; }

void Switch(Simulator& Sim, bool& Order, const char* Text_When_On, const char* Text_When_Off = nullptr) {
    Order = !Order;
    Sim.Told.Switched.Tell();
    const char* Text = Order ? Text_When_On : Text_When_Off;
    if (Text) Sim.Windows.Boxes.Show(Text);
}

template <bool Fault_State::*Fault>
bool Is_On(const Simulator& Sim) {
    return Sim.State.Of<Fault_State>().*Fault;
}

void mnuSetupStartOption_Click(Simulator& Sim) {
    Switch(Sim, Sim.State.Of<Shell_State>().Start_With_Last_Navdata,
           "At restart the program will start with pos, speed, course etc. from last session");
}

void mnuSetupOpenLinks_Click(Simulator& Sim) {
    Set_Opens_Network_Links(Sim, !Opens_Network_Links(Sim));
    Sim.Told.Switched.Tell();
}

void mnuHelp_Click(Simulator& Sim) {
    Say(Sim, "Unable to display Help Contents. There is no Help associated with this project.");
}

// An entry that opens no window.
struct Command {
    const char* Name;
    const char* Menu;
    const char* Text;
    int Index;
    int Place; // among all entries of the menu, from the top
    void (*Click)(Simulator&);
    bool (*Checked)(const Simulator&) = nullptr;
};

constexpr int Alone = Control::No_Index;
constexpr const char* Menu_Order[] = {"File", "Mode", "Setup", "View", "Window", "Options", "Help"};

constexpr Command Commands[] = {
    {"mnuFileOpen", "File", "&Open", Alone, 1, mnuFileOpen_Click},
    {"mnuFileSave", "File", "&Save", Alone, 2, mnuFileSave_Click},
    {"mnuFileSaveAs", "File", "Save &As", Alone, 3, mnuFileSaveAs_Click},
    {"mnuFileExit", "File", "E&xit", Alone, 4, [](Simulator& Sim) { Sim.Windows.Unload(*Sim.Main); }},
    {"mnuMode", "Mode", "&Ship simulator", 1, 1, [](Simulator& Sim) { mnuMode_Click(Sim, 1); }, In_Ship_Mode},
    {"mnuMode", "Mode", "S&ensor", 2, 2, [](Simulator& Sim) { mnuMode_Click(Sim, 2); },
     [](const Simulator& Sim) { return !In_Ship_Mode(Sim); }},
    {"mnuSetupStartOption", "Setup", "Start with navdata from last session", Alone, 2,
     mnuSetupStartOption_Click,
     [](const Simulator& Sim) { return Sim.State.Of<Shell_State>().Start_With_Last_Navdata; }},
    {"mnuSetupOpenLinks", "Setup", "Open network links at start", Alone, 5, mnuSetupOpenLinks_Click,
     Opens_Network_Links},
    {"mnuWindowTile", "Window", "&Tile", Alone, 20, [](Simulator& Sim) { Tile(Sim, Lack::Equal_Parts); }},
    {"mnuWindowCascade", "Window", "C&ascade", Alone, 21, Cascade},
    {"mnuWindowCloseAll", "Window", "Close a&ll", Alone, 22, Close_All},
    {"mnuOptionsChecksumDisabled", "Options", "Checksum disabled", Alone, 2,
     [](Simulator& Sim) {
         Switch(Sim, Sim.State.Of<Fault_State>().Fault_No_Checksum,
                "Checksum disabled. All simulated NMEA messages will be without checksum",
                "Checksum enabled again. All simulated NMEA messages will be with checksum");
     },
     Is_On<&Fault_State::Fault_No_Checksum>},
    {"mnuOptionsFaultyChecksum", "Options", "Simulate faulty checksum", Alone, 3,
     [](Simulator& Sim) {
         Switch(
             Sim, Sim.State.Of<Fault_State>().Fault_Faulty_Checksum,
             "Faulty checksum enabled. All simulated NMEA messages will be simulated with faulty checksum");
     },
     Is_On<&Fault_State::Fault_Faulty_Checksum>},
    {"mnuOptionsCrLfDisabled", "Options", "Simulate merged msgs (No CarriageReturn/LineFeed)", Alone, 4,
     [](Simulator& Sim) {
         Switch(Sim, Sim.State.Of<Fault_State>().Fault_Merged,
                "Merged messages will be simulated. All simulated NMEA messages will be without Carriage "
                "return/Line Feed");
     },
     Is_On<&Fault_State::Fault_Merged>},
    {"mnuOptionCuttedMsg", "Options", "Simulate cutted messages", Alone, 5,
     [](Simulator& Sim) {
         Switch(Sim, Sim.State.Of<Fault_State>().Fault_Cut,
                "Cutted messages will be simulated. All simulated NMEA messages will be cutted at a random "
                "character");
     },
     Is_On<&Fault_State::Fault_Cut>},
    {"mnuOptionSplittedMsg", "Options", "Simulate splitted messages", Alone, 6,
     [](Simulator& Sim) {
         Switch(Sim, Sim.State.Of<Fault_State>().Fault_Split,
                "Splitted messages will be simulated. All simulated NMEA messages will be cutted at a random "
                "character and remaining characters will start next message");
     },
     Is_On<&Fault_State::Fault_Split>},
    {"mnuHelpContents", "Help", "&Contents", Alone, 1, mnuHelp_Click},
    {"mnuHelpSearch", "Help", "&Search For Help On...", Alone, 2, mnuHelp_Click},
};

constexpr const char* Layout_Name = "mnuViewLayout";
constexpr int First_Layout_Place = 10;

// One entry of a menu, whatever stands behind it: a command, a window or a named layout.
struct Entry {
    const Command* Its_Command = nullptr;
    const Window_Class* Class = nullptr;
    int Instance = 0; // or the number of the layout

    const char* Menu() const { return Its_Command ? Its_Command->Menu : Class ? Class->Entry.Menu : "View"; }
    int Place() const {
        if (Its_Command) return Its_Command->Place;
        return Class ? Class->Entry.Place : First_Layout_Place + Instance;
    }
    const char* Name() const {
        return Its_Command ? Its_Command->Name : Class ? Class->Entry.Name : Layout_Name;
    }
    int Index() const {
        if (Its_Command) return Its_Command->Index;
        if (!Class) return Instance;
        return Class->Count == 0 ? Alone : Class->First_Form_Index + Instance - 1;
    }
    std::string Text() const {
        if (Its_Command) return Its_Command->Text;
        return Class ? Entry_Text(*Class, Instance) : std::string();
    }
};

// In the order of the menus, in each by place.
std::vector<Entry> All_Entries(std::span<const Window_Class* const> Window_Table) {
    std::vector<Entry> Entries;
    for (const Command& C : Commands) Entries.push_back({&C});
    for (const Window_Class* Class : Window_Table)
        for (int I = Class->Count == 0 ? 0 : 1; Class->Entry.Name && I <= Class->Count; ++I)
            Entries.push_back({nullptr, Class, I});
    for (int I = 1; I <= Most_Layouts; ++I) Entries.push_back({nullptr, nullptr, I});
    const auto Order = [](const Entry& E) {
        const auto* Menu = std::find_if(std::begin(Menu_Order), std::end(Menu_Order),
                                        [&](const char* M) { return std::strcmp(M, E.Menu()) == 0; });
        return std::pair(Menu - Menu_Order, E.Place());
    };
    std::stable_sort(Entries.begin(), Entries.end(),
                     [&](const Entry& A, const Entry& B) { return Order(A) < Order(B); });
    return Entries;
}

std::vector<std::unique_ptr<Menu_Item>> Make_Items(frmMain& F,
                                                   std::span<const Window_Class* const> Window_Table) {
    std::vector<std::unique_ptr<Menu_Item>> Items;
    for (const Entry& E : All_Entries(Window_Table))
        Items.push_back(
            std::make_unique<Menu_Item>(Stand(F).Element(E.Index()), E.Name(), E.Text(), E.Menu()));
    return Items;
}

void Show_Orders(Simulator& Sim) {
    const frmMain& Main = Main_Window(Sim);
    for (const Command& C : Commands)
        if (C.Checked) Main.Item(C.Name, C.Index).Checked = C.Checked(Sim);
    for (const Window_Class* Class : Sim.Window_Table) {
        const Window_Entry& E = Class->Entry;
        if (E.In_Ship_Mode_Only) Main.Item(E.Name).Enabled = In_Ship_Mode(Sim);
        if (E.Checked) Main.Item(E.Name).Checked = E.Checked(Sim);
    }
}

// The user's own come and go.
void Show_Layout_Names(Simulator& Sim) {
    const std::vector<Window_Layout> All = All_Layouts(Sim);
    for (int I = 1; I <= Most_Layouts; ++I) {
        Menu_Item& Item = Main_Window(Sim).Item(Layout_Name, I);
        Item.Visible = I <= static_cast<int>(All.size());
        if (*Item.Visible) Item.Caption = "Layout: " + All[static_cast<std::size_t>(I - 1)].Name;
    }
}

void Show_Open_Windows(Simulator& Sim) {
    const frmMain& Main = Main_Window(Sim);
    for (const Entry& E : All_Entries(Sim.Window_Table))
        if (E.Class && E.Class->Entry.Checked_While_Open)
            Main.Item(E.Name(), E.Index()).Checked = Open_Form(Sim, E.Class->Name, E.Instance) != nullptr;
}

void Show_Panel(Simulator& Sim, int Port) {
    const Link_Panel_Record& Panel = Sim.State.Of<Link_State>().Link_Panel[Port];
    Label& Shown = Main_Window(Sim).sbStatusBar[Port];
    Shown.Caption = Panel.Text;
    Shown.Visible = Panel.Visible;
}

} // namespace

frmMain::frmMain(Desktop& Its_Windows, std::span<const Window_Class* const> Window_Table)
    : Form(Its_Windows, Class_Name, 0, Form_Kind::Main), Menu_Items(Make_Items(*this, Window_Table)),
      sbStatusBar(*this, "sbStatusBar", ""),
      sbLink(*this, "sbLink", "", "Click to open the port setup, or the link when it is closed") {}

Menu_Item& frmMain::Item(const char* Item_Name, int Index) const {
    for (const auto& I : Menu_Items)
        if (I->Name == Item_Name && I->Index == Index) return *I;
    throw std::logic_error(std::string("no menu item ") + Item_Name);
}

frmMain& Main_Window(const Simulator& Sim) { return static_cast<frmMain&>(*Sim.Main); }

void Wire_Main(Simulator& Sim) {
    for (const Entry& E : All_Entries(Sim.Window_Table))
        Main_Window(Sim).Item(E.Name(), E.Index()).Click = [&Sim, E] {
            if (E.Its_Command)
                E.Its_Command->Click(Sim);
            else if (!E.Class)
                Show_Layout(Sim, E.Instance);
            else if (Form* Open = Open_Form(Sim, E.Class->Name, E.Instance);
                     Open && E.Class->Closes_When_Chosen)
                Sim.Windows.Unload(*Open);
            else if (E.Class->Count != 0)
                Open_Window_Of_Index(Sim, static_cast<std::int16_t>(E.Index()));
            else
                Open_Window(Sim, *E.Class);
        };
    auto& Panels = Sim.State.Of<Link_State>().Link_Panel;
    for (int Port = 1; Port <= Panels.Last_Index; ++Port) Panels[Port] = {"COM" + Number_Text(Port), false};
    Panels[1] = {"No comports enabled", true};
    for (int Port = 1; Port <= Panels.Last_Index; ++Port) Show_Panel(Sim, Port);
    Sim.Told.Panel.Add(&Sim, [&Sim](int Port) { Show_Panel(Sim, Port); });
    Wire_Link_Panels(Sim);
    Wire_Output_Strip(Sim);
    Sim.Told.Windows.Add(&Sim, [&Sim] { Show_Open_Windows(Sim); });
    Show_Layout_Names(Sim);
    Sim.Told.Switched.Add(&Sim, [&Sim] {
        Show_Orders(Sim);
        Show_Layout_Names(Sim);
    });
}

} // namespace brinewright
