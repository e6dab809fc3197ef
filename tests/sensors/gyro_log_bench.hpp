#pragma once

#include "links/setup_file.hpp"
#include "platform/virtual_platform.hpp"
#include "sensors/frm_gyro.hpp"
#include "sensors/frm_log.hpp"
#include "shell/frm_main.hpp"
#include "shell/sentence_family.hpp"
#include "shell/simulator.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace brinewright {

// A simulator in virtual time with Gyro 1 and 2 and Log 1 and 2 on UDP links 0 to 3, from midnight on, where
// the 32-bit time of day is finest. Draws start from seed 0.
struct Gyro_Log_Bench {
    struct Sentence {
        std::int64_t Time_us = 0;
        std::string Text; // without line end
        int Port = 0;
    };

    explicit Gyro_Log_Bench(const std::string& Mode = "Sensor")
        : Platform(Disk, Settings, 0), Sim(Platform, {}), S(Sim.State) {
        Load_Default_Data(S);
        S.Mode = Mode;
        for (const int Link : {0, 1, 2, 3}) {
            S.Port_Table[18 + Link].Present = S.Port_Table[18 + Link].Enabled = true;
            S.UDP_Port_Number[Link] = 60001 + Link;
            S.Sensor_Table[form_index::Gyro_1 + Link].Port = static_cast<std::int16_t>(18 + Link);
            Sim.Links.WinsockUDP[Link] = Platform.Make_UDP_Socket();
            Sim.Links.WinsockUDP[Link]->Open("239.192.0.1", 60001 + Link);
        }
        Sim.On_Sent.push_back([this](std::string_view Text, int Port) {
            EXPECT_TRUE(Text.ends_with("\r\n")) << Text;
            Sent.push_back({Now_us(), std::string(Text.substr(0, Text.size() - 2)), Port});
        });
    }

    frmGyro& Open_Gyro(int Instance = 1) {
        Open(form_index::Gyro_1 + Instance - 1, Load_frmGyro);
        return *Sim.frmGyro_Instance[Instance];
    }
    frmLog& Open_Log(int Instance = 1) {
        Open(form_index::Log_1 + Instance - 1, Load_frmLog);
        return *Sim.frmLog_Instance[Instance];
    }
    void Open(int Form_Index, std::shared_ptr<Sensor_Form> (*Load)(Simulator&)) {
        Sim.Windows.Event([&] {
            S.Open_Form_Index = static_cast<std::int16_t>(Form_Index);
            Sim.Windows.Show(Load(Sim));
        });
    }
    void Close(Form& Window) {
        Sim.Windows.Event([&] { Sim.Windows.User_Close(Window); });
    }

    std::int64_t Now_us() { return Platform.Machine_Clock.Wide_us(); }
    void Run_For(double Duration_s) {
        Platform.Run_Until(Sim.Timers, Now_us() + static_cast<std::int64_t>(Duration_s * 1e6));
    }

    void Click(Control& Target) { Sim.Windows.User_Click(Target); }
    void Set(Control& Target, const Control_Value& Value) { Sim.Windows.User_Set(Target, Value); }
    // Types and leaves the box.
    void Type(Control& Target, const std::string& Text) { Sim.Windows.User_Set(Target, Text); }

    // One tick of a sentence, as it goes out.
    std::string Tick(Timer& Clock) {
        Sent.clear();
        Sim.Windows.Event([&] { Clock.Tick(); });
        return Sent.size() == 1 ? Sent[0].Text : std::to_string(Sent.size()) + " sentences";
    }
    int Count(const std::string& Part) const {
        int Found = 0;
        for (const Sentence& One : Sent) Found += One.Text.find(Part) != std::string::npos;
        return Found;
    }
    // Text of the boxes that stand; takes them away.
    std::string Take_Boxes() {
        std::string All;
        while (!Sim.Windows.Boxes.Standing.empty()) {
            All += Sim.Windows.Boxes.Standing.front().Text;
            Sim.Windows.Boxes.Answer(Sim.Windows.Boxes.Standing.front().Id);
        }
        return All;
    }

    Memory_Files Disk;
    Memory_Settings Settings;
    Virtual_Platform Platform;
    Simulator Sim;
    Simulator_State& S;
    std::vector<Sentence> Sent;
};

// Body with "$" in front and its checksum behind, summed here on its own.
inline std::string Framed(const std::string& Body) {
    unsigned Sum = 0;
    for (const char C : Body) Sum ^= static_cast<unsigned char>(C);
    constexpr const char* Digits = "0123456789ABCDEF";
    return "$" + Body + "*" + Digits[Sum / 16] + Digits[Sum % 16];
}

// Every control that a user sees says its unit and range, or what it does.
inline void Expect_Tool_Tips(const Form& W) {
    for (const Control* C : W.Controls)
        if (C->Kind != Control_Kind::Timer) {
            EXPECT_FALSE(static_cast<const Visible_Control*>(C)->Tool_Tip->empty()) << C->Path();
        }
}

inline std::vector<std::string> Entries(const Combo_Box& List) {
    std::vector<std::string> Texts;
    for (const Combo_Box::Item& Entry : List.Items()) Texts.push_back(Entry.Text);
    return Texts;
}

} // namespace brinewright
