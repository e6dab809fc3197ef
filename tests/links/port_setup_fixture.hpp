#pragma once

#include "links/port_setup/frm_setup.hpp"
#include "links/port_setup/port_detection.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {

inline constexpr const char* Detecting =
    "The Brinewright will automatic detect available comports. It might take e "
    "few seconds. Please be pasient!";
inline constexpr const char* None_Found = "No comports available on your PC";

// Ports 1 to 16 are not there unless a test says otherwise.
struct Port_Setup : testing::Test, Virtual_Simulator {
    Port_Setup() {
        for (int Port = 1; Port <= 16; ++Port) Answer(Port, "No such file or directory");
        Link().TCP_Port = 8040;
    }
    void Answer(int Port, const char* Failure) {
        World.Failures["COM " + std::to_string(Port) + " open"] = Failure;
    }
    void Is_There(int Port) { World.Failures.erase("COM " + std::to_string(Port) + " open"); }
    frmSetup& Open() {
        Choose_Menu("mnuSetupPort");
        return *Open_One<frmSetup>(Sim);
    }
    frmSetup& Detect() {
        Open();
        Run_s(1);
        return *Open_One<frmSetup>(Sim);
    }
    std::vector<int> Shown() const {
        std::vector<int> Ports;
        for (int Port = 1; Port <= 16; ++Port)
            if (*Open_One<frmSetup>(Sim)->frameCOMport[Port].Visible) Ports.push_back(Port);
        return Ports;
    }
};

} // namespace brinewright
