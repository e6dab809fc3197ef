#pragma once

#include "gyro_log_bench.hpp"
#include "sensors/frm_echosounder.hpp"
#include "sensors/frm_wind.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {

// A simulator in virtual time with the sensors 7 to 10 on UDP links 0 to 3.
struct Echo_Wind_Bench : Virtual_Simulator {
    Echo_Wind_Bench() {
        Load_Default_Data(Sim.State);
        for (const int Index : {7, 8, 9, 10}) Sim.State.Sensor_Table[Index].Port = Port_Of(Index);
        Use({18, 19, 20, 21});
    }
    static std::int16_t Port_Of(int Form_Index) { return static_cast<std::int16_t>(18 + Form_Index - 7); }

    frmEchosounder& Open_Echo(int Instance = 1) {
        Open(form_index::Echosounder_1 + Instance - 1, Load_frmEchosounder);
        return *Sim.frmEchosounder_Instance[Instance];
    }
    frmWind& Open_Wind(int Instance = 1) {
        Open(form_index::Wind_1 + Instance - 1, Load_frmWind);
        return *Sim.frmWind_Instance[Instance];
    }
    void Open(int Form_Index, std::shared_ptr<Sensor_Form> (*Load)(Simulator&)) {
        Sim.State.Open_Form_Index = static_cast<std::int16_t>(Form_Index);
        Sim.Windows.Event([&] { Sim.Windows.Show(Load(Sim)); });
    }

    // Types or chooses and leaves the control, as a user does.
    void Type(Control& Target, const std::string& Text) {
        Sim.Windows.Event([&] {
            Sim.Windows.User_Set(Target, Text);
            Sim.Windows.Set_Focus(nullptr);
        });
    }
    // The one sentence of a tick, without its line end.
    std::string Tick(Timer& Clock) {
        Left.clear();
        Sim.Windows.Event([&] { Clock.Tick(); });
        EXPECT_EQ(Left.size(), 1U);
        return Left.empty() ? "" : Left[0].second.substr(0, Left[0].second.size() - 2);
    }
};

// A field of a sentence, counted from 1, as a number.
inline double Field(const std::string& Sentence, int Which) {
    std::size_t Place = 0;
    for (int I = 0; I < Which; ++I) Place = Sentence.find(',', Place) + 1;
    return std::stod(Sentence.substr(Place));
}

// No infinity, no not-a-number and no exponent.
inline bool Has_Numbers_Only(const std::string& Sentence) {
    return Sentence.find("inf") == std::string::npos && Sentence.find("nan") == std::string::npos &&
           Sentence.find("e+") == std::string::npos;
}

} // namespace brinewright
