#pragma once

#include "gnss/position/frm_position.hpp"
#include "gnss/satellites/gnss_sky.hpp"
#include "links/setup_file/setup_file.hpp"
#include "platform/virtual_platform.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/main/window_table.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include "tests/support/areas.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace brinewright {

// A simulator in Sensor mode and in virtual time, with GNSS 1 on UDP link 0 and GNSS 2 on UDP link 1. The
// local time starts at midnight of 1970-01-01, where the 32-bit time of day is finest.
struct GNSS_Bench : Areas<GNSS_Bench> {
    struct Sentence {
        std::int64_t Time_us = 0;
        std::string Text; // without line end
        int Port = 0;
    };

    explicit GNSS_Bench(std::int64_t Start_Local_us = 0)
        : Platform(Disk, Settings, Start_Local_us), Made(Make_Simulator(Platform, {})), Sim(*Made) {
        Load_Default_Data(Sim.State, All_Windows());
        Shell().Mode = "Sensor";
        for (const int K : {0, 1}) {
            Link().Port_Table[18 + K].Present = Link().Port_Table[18 + K].Enabled = true;
            Link().UDP_Port_Number[K] = 60001 + K;
            Link().Sensor_Table[1 + K].Port = static_cast<std::int16_t>(18 + K);
            Sim.Links.WinsockUDP[K] = Platform.Make_UDP_Socket();
            Sim.Links.WinsockUDP[K]->Open("239.192.0.1", 60001 + K);
        }
        Sim.Told.Sent.Add(this, [this](const Sent_Sentence& S) {
            if (!S.Link_Took_It) return;
            EXPECT_TRUE(S.Text.ends_with("\r\n")) << S.Text;
            Sent.push_back({Now_us(), std::string(S.Text.substr(0, S.Text.size() - 2)), S.Port});
        });
    }

    frmPosition& Open(std::int16_t Index = 1) {
        Sim.Windows.Event([&] { Open_Window_Of_Index(Sim, Index); });
        return Window(Index);
    }
    frmPosition& Window(int Index = 1) { return *Open_One<frmPosition>(Sim, Index); }
    void Close(std::int16_t Index = 1) {
        Sim.Windows.Event([&] { Sim.Windows.User_Close(Window(Index)); });
    }

    std::int64_t Now_us() { return Platform.Machine_Clock.Wide_us(); }
    void Run_To(double Time_s) { Platform.Run_Until(Sim.Timers, static_cast<std::int64_t>(Time_s * 1e6)); }
    void Run_For(double Duration_s) { Run_To(static_cast<double>(Now_us()) / 1e6 + Duration_s); }

    void Click(Control& Target) { Sim.Windows.User_Click(Target); }
    // Types and leaves the box, as a user does.
    void Type(Control& Target, const std::string& Text) { Sim.Windows.User_Set(Target, Text); }

    // The sentences sent, those of one type, and their times.
    std::vector<std::string> Texts(const std::string& Type = "") const {
        std::vector<std::string> Found;
        for (const Sentence& S : Sent)
            if (Type.empty() || S.Text.substr(3, 3) == Type) Found.push_back(S.Text);
        return Found;
    }
    std::string Last_Box() const {
        return Sim.Windows.Boxes.Standing.empty() ? "" : Sim.Windows.Boxes.Standing.back().Text;
    }
    std::size_t Box_Count() const { return Sim.Windows.Boxes.Standing.size(); }

    Memory_Files Disk;
    Memory_Settings Settings;
    Virtual_Platform Platform;
    std::unique_ptr<Simulator> Made;
    Simulator& Sim;
    std::vector<Sentence> Sent;
};

// Body with "$" in front and its checksum behind, summed here on its own.
inline std::string Framed(const std::string& Body) {
    unsigned Sum = 0;
    for (const char C : Body) Sum ^= static_cast<unsigned char>(C);
    constexpr const char* Digits = "0123456789ABCDEF";
    return "$" + Body + "*" + Digits[Sum / 16] + Digits[Sum % 16];
}

} // namespace brinewright
