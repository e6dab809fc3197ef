#pragma once

#include "gnss/position/frm_position.hpp"
#include "gnss/satellites/gnss_sky.hpp"
#include "sensors/echosounder/frm_echosounder.hpp"
#include "sensors/gyro/frm_gyro.hpp"
#include "sensors/log/frm_log.hpp"
#include "sensors/wind/frm_wind.hpp"
#include "tests/support/virtual_simulator.hpp"

#include <sstream>

namespace brinewright {

// A simulator in Sensor mode with the sensors 1 to 10 on UDP links 0 to 9, usually from midnight on, where
// the 32-bit time of day is finest. Draws start from seed 0.
struct Sentence_Bench : Virtual_Simulator {
    struct Sentence {
        std::int64_t Time_us = 0;
        std::string Text; // without line end
        int Port = 0;
    };

    explicit Sentence_Bench(double Time_Of_Day = 0) : Virtual_Simulator(Time_Of_Day) {
        Sim.State = Default_Setup();
        for (int Slot = 1; Slot <= 10; ++Slot)
            Link().Sensor_Table[Slot].Port = static_cast<std::int16_t>(17 + Slot);
        Use({18, 19, 20, 21, 22, 23, 24, 25, 26, 27});
        Sim.Told.Sent.Add(this, [this](const Sent_Sentence& One) {
            if (!One.Link_Took_It) return;
            EXPECT_TRUE(One.Text.ends_with("\r\n")) << One.Text;
            Sent.push_back({Now_us(), std::string(One.Text.substr(0, One.Text.size() - 2)), One.Port});
        });
    }

    template <class Window>
    Window& Open(int Instance = 1) {
        Sim.Windows.Event([&] { Open_Window(Sim, Window::Class_Name, Instance); });
        return *Open_One<Window>(Sim, Instance);
    }
    void Choose(Combo_Box& List, std::int64_t Entry) { Set(List, Entry); }
    void Run_To(double Time_s) { Run_s(Time_s - static_cast<double>(Now_us()) / 1e6); }

    // One tick of a sentence, as it goes out.
    std::string Tick(Sensor_Form& Window, const char* Type) {
        Sent.clear();
        Sim.Windows.Event([&] { Window.Sentences[Type].Clock.Tick(); });
        return Sent.size() == 1 ? Sent[0].Text : std::to_string(Sent.size()) + " sentences";
    }
    // The text of the last box that was shown.
    std::string Last_Box() const { return Told.empty() ? "" : Told.back().Text; }

    std::vector<Sentence> Sent;
};

inline Texts Fields_Of(const std::string& Sentence) {
    Texts Found;
    std::istringstream Rest(Sentence.substr(0, Sentence.find('*')) + ",");
    for (std::string Field; std::getline(Rest, Field, ',');) Found.push_back(Field);
    return Found;
}

} // namespace brinewright
