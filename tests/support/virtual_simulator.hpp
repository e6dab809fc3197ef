#pragma once

#include "gnss/position/frm_position.hpp"
#include "links/port_list.hpp"
#include "links/serial_ports.hpp"
#include "links/setup_file/setup_file.hpp"
#include "links/tcp_server.hpp"
#include "links/udp_links.hpp"
#include "shell/main/file_menu.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/main/window_table.hpp"
#include "shell/monitors/extended_monitor/frm_extended_monitor.hpp"
#include "shell/monitors/monitor/frm_monitor.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"
#include "shell/transmit/send_nmea.hpp"
#include "tests/support/areas.hpp"
#include "tests/support/played_platform.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace brinewright {

namespace form_index {
inline constexpr std::int16_t GNSS_1 = 1, Gyro_1 = 3, Log_1 = 5, Echosounder_1 = 7, Wind_1 = 9;
}

// Files and settings that refuse what they are told to.
struct Faulty_Files : Memory_Files {
    bool Refuse_Folder = false;
    bool Refuse_Writing = false;
    void Make_Folder(const std::string& Path) override {
        if (Refuse_Folder) throw Run_Time_Error("Path/File access error");
        Memory_Files::Make_Folder(Path);
    }
    void Replace(const std::string& Path, std::string_view Bytes) override {
        if (Refuse_Writing) throw Run_Time_Error("Disk full");
        Memory_Files::Replace(Path, Bytes);
    }
};
struct Faulty_Settings : Memory_Settings {
    bool Refuse_Writing = false;
    void Set(const std::string& Key, const std::string& Value) override {
        if (Refuse_Writing) throw Run_Time_Error("Disk full");
        Memory_Settings::Set(Key, Value);
    }
};

inline constexpr std::int64_t Day_us = 1'767'225'600 * us_Per_Second; // 2026-01-01 00:00:00
inline constexpr const char* Setup_Name = "/data/Brinewright.ini";

inline Simulator_State Default_Setup(const std::string& Mode = "Sensor") {
    Simulator_State S;
    Load_Default_Data(S, All_Windows());
    S.Of<Shell_State>().Mode = Mode;
    return S;
}

// A window that a start on this state opens.
inline void Add_Window(Simulator_State& S, const Open_Form_Entry& Entry) {
    S.Of<Shell_State>().Open_Form_List[++S.Of<Shell_State>().Open_Form_Count] = Entry;
}

// Body with "$" in front and its checksum behind, summed here on its own.
inline std::string Framed(const std::string& Body) {
    unsigned Sum = 0;
    for (const char C : Body) Sum ^= static_cast<unsigned char>(C);
    constexpr const char* Digits = "0123456789ABCDEF";
    return "$" + Body + "*" + Digits[Sum / 16] + Digits[Sum % 16];
}

using Texts = std::vector<std::string>;

inline Texts Entries(const Combo_Box& List) {
    Texts All;
    for (const auto& Item : List.Items()) All.push_back(Item.Text);
    return All;
}

// A whole simulator in virtual time, from a time of day of 2026-01-01 on. Message boxes are kept in Told and
// answered at once, unless Hold_Boxes is set.
struct Virtual_Simulator : Areas<Virtual_Simulator> {
    explicit Virtual_Simulator(double Time_Of_Day = 36000, Start_Options Options = {})
        : World(Disk, Settings, Day_us + std::llround(Time_Of_Day * 1e6)),
          Made(Make_Simulator(World, With_Folder(Options))), Sim(*Made) {
        Sim.Windows.Boxes.On_Show = [this](const Message_Box& Box) {
            Told.push_back(Box);
            if (!Hold_Boxes) Sim.Windows.Boxes.Answer(Box.Id);
        };
        Sim.Told.Sent.Add(this, [this](const Sent_Sentence& S) {
            if (S.Link_Took_It) Left.emplace_back(S.Port, S.Text);
        });
    }

    // The timers of TCP clients stand in the main window, so it goes first.
    ~Virtual_Simulator() {
        Sim.Main->On_Unload = nullptr;
        if (Sim.Main->Loaded) Sim.Windows.Event([this] { Sim.Windows.Unload(*Sim.Main); });
    }

    // Loads the main window on a setup file with this state, or on what the disk holds.
    void Start() {
        Sim.Windows.Event([this] { MDIForm_Load(Sim); });
    }
    void Start(const Simulator_State& Setup) {
        Disk.Content[Setup_Name] = Write_Setup(Setup, All_Windows());
        Start();
    }
    void Stop() { Click(Main_Window(Sim).Item("mnuFileExit")); }
    Simulator_State Saved(const std::string& File = Setup_Name) const {
        Simulator_State State;
        Read_Setup(Disk.Content.at(File), State, All_Windows());
        return State;
    }

    // Makes these links ready: serial ports on 4800,n,8,1, UDP link k on port 60001 + k.
    void Use(std::initializer_list<int> Ports) {
        for (const int Port : Ports) Set_Up_Link(Sim.State, Port);
        Init();
    }
    void Init(std::int16_t Count = 1) {
        Sim.Windows.Event([&] { Init_Comports(Sim, Count); });
    }
    static void Set_Up_Link(Simulator_State& S, int Port) {
        S.Of<Link_State>().Port_Table[Port] = {true, true, 4800, 8, "none", 1};
        if (Port >= 18) S.Of<Link_State>().UDP_Port_Number[Port - 18] = 60001 + Port - 18;
        if (Port == 17) S.Of<Link_State>().TCP_Port = 8040;
    }

    // The text as it is after Send_NMEA, which changes it.
    std::string Send(std::string Text, int Port) {
        Sim.Windows.Event([&] { Send_NMEA(Sim, Text, static_cast<std::int16_t>(Port)); });
        return Text;
    }
    Texts Sent_On(const std::string& Link) const {
        Texts All;
        for (const auto& [Name, Text] : World.Sent)
            if (Name == Link) All.push_back(Text);
        return All;
    }

    void Click(Control& Target) {
        Sim.Windows.Event([&] { Sim.Windows.User_Click(Target); });
    }
    void Choose_Menu(const char* Name, int Element = Control::No_Index) {
        Click(Main_Window(Sim).Item(Name, Element));
    }
    void Set(Control& Target, const Control_Value& New) {
        Sim.Windows.Event([&] { Sim.Windows.User_Set(Target, New); });
    }
    // Types or chooses and leaves the control, as a user does.
    void Type(Control& Target, const std::string& Text) {
        Set(Target, Text);
        Sim.Windows.Event([&] { Sim.Windows.Set_Focus(nullptr); });
    }
    void Open_Form(std::int16_t Index) {
        Sim.Windows.Event([&] { Open_Window_Of_Index(Sim, Index); });
    }
    void Close(Form& Window) {
        Sim.Windows.Event([&] { Sim.Windows.User_Close(Window); });
    }
    void Answer_File(const std::string& Path) {
        ASSERT_EQ(Sim.Windows.File_Dialogs.size(), 1u);
        Sim.Windows.Event([&] { Sim.Windows.Answer_File(Sim.Windows.File_Dialogs[0].Id, Path); });
    }
    // The texts of the boxes since the last call.
    Texts Take_Boxes() {
        Texts All;
        for (const Message_Box& Box : Told) All.push_back(Box.Text);
        Told.clear();
        return All;
    }

    std::int64_t Now_us() { return World.Machine_Clock.Wide_us(); }
    void Pass_us(std::int64_t Duration_us) { World.Machine_Clock.Advance_To(Now_us() + Duration_us); }
    void Run_s(double Duration_s) { World.Run_Until(Sim.Timers, Now_us() + std::llround(Duration_s * 1e6)); }
    // Sets the local clock without letting time pass.
    void Set_Time_Of_Day(double Time_s) {
        World.Machine_Clock.Local_Start_us = Day_us + std::llround(Time_s * 1e6) - Now_us();
    }

    static Start_Options With_Folder(Start_Options Options) {
        Options.Data_Folder = "/data/";
        return Options;
    }

    Faulty_Files Disk;
    Faulty_Settings Settings;
    Played_Platform World;
    std::vector<Message_Box> Told;
    bool Hold_Boxes = false;
    std::vector<std::pair<int, std::string>> Left; // port and text of what a link took
    std::unique_ptr<Simulator> Made;
    Simulator& Sim;
};

} // namespace brinewright
