#pragma once

#include "sensors/echosounder/frm_echosounder.hpp"
#include "sensors/gyro/frm_gyro.hpp"
#include "sensors/log/frm_log.hpp"
#include "sensors/wind/frm_wind.hpp"
#include "tests/support/virtual_simulator.hpp"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace brinewright {

// A simulator in virtual time with the sensors 3 to 10 on UDP links 0 to 7, from midnight on, where the
// 32-bit time of day is finest. Draws start from seed 0.
struct Sensor_Bench : Virtual_Simulator {
    struct Sentence {
        std::int64_t Time_us = 0;
        std::string Text; // without line end
        int Port = 0;
    };

    explicit Sensor_Bench(const std::string& Mode = "Sensor") : Virtual_Simulator(0) {
        Load_Default_Data(S, All_Windows());
        S.Of<Shell_State>().Mode = Mode;
        for (int Link = 0; Link < 8; ++Link)
            S.Of<Link_State>().Sensor_Table[form_index::Gyro_1 + Link].Port =
                static_cast<std::int16_t>(18 + Link);
        Use({18, 19, 20, 21, 22, 23, 24, 25});
        Sim.Told.Sent.Add(this, [this](const Sent_Sentence& One) {
            if (!One.Link_Took_It) return;
            EXPECT_TRUE(One.Text.ends_with("\r\n")) << One.Text;
            Sent.push_back({Now_us(), std::string(One.Text.substr(0, One.Text.size() - 2)), One.Port});
        });
    }

    frmGyro& Open_Gyro(int Instance = 1) { return Open<frmGyro>(Instance); }
    frmLog& Open_Log(int Instance = 1) { return Open<frmLog>(Instance); }
    frmEchosounder& Open_Echo(int Instance = 1) { return Open<frmEchosounder>(Instance); }
    frmWind& Open_Wind(int Instance = 1) { return Open<frmWind>(Instance); }
    template <class Window>
    Window& Open(int Instance) {
        Sim.Windows.Event([&] { Open_Window(Sim, Window::Class_Name, Instance); });
        return *Open_One<Window>(Sim, Instance);
    }

    void Set(Control& Target, const Control_Value& Value) {
        Sim.Windows.Event([&] { Sim.Windows.User_Set(Target, Value); });
    }
    // Types or chooses and leaves the control, as a user does.
    void Type(Control& Target, const std::string& Text) {
        Sim.Windows.Event([&] {
            Sim.Windows.User_Set(Target, Text);
            Sim.Windows.Set_Focus(nullptr);
        });
    }

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

    Simulator_State& S{Sim.State};
    std::vector<Sentence> Sent;
};

// Body with "$" in front and its checksum behind, summed here on its own.
inline std::string Framed(const std::string& Body) {
    unsigned Sum = 0;
    for (const char C : Body) Sum ^= static_cast<unsigned char>(C);
    constexpr const char* Digits = "0123456789ABCDEF";
    return "$" + Body + "*" + Digits[Sum / 16] + Digits[Sum % 16];
}

inline Texts Entries(const Combo_Box& List) {
    Texts Told;
    for (const Combo_Box::Item& Entry : List.Items()) Told.push_back(Entry.Text);
    return Told;
}

} // namespace brinewright
