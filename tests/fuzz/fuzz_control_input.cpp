// The control input on any bytes: the port file, then the datagrams, parted by the byte 30. The ship sails a
// little after each. Whatever comes, nothing is told, the sliders stay within their ends, and every number of
// the state is finite.

#include "all_state.hpp"
#include "links/setup_file/setup_file.hpp"
#include "ownship/ship/control_input.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/main/window_table.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"
#include "tests/fuzz/require.hpp"
#include "tests/support/played_platform.hpp"

#include <concepts>

using namespace brinewright;

namespace {

constexpr char Next_Part = 30;
constexpr std::int64_t Sailing_us = 2'000'000;

struct Require_Finite {
    template <class T>
    void operator()(const char*, T& Value) const {
        if constexpr (std::floating_point<T>)
            Require(std::isfinite(Value));
        else if constexpr (requires { T::First_Index; })
            for (auto& Element : Value) (*this)("", Element);
        else if constexpr (requires { Visit_Record(Value, *this); })
            Visit_Record(Value, *this);
    }
};

void Require_In_Range(const Slider& Moved) {
    Require(Moved.Value() >= Moved.Min && Moved.Value() <= Moved.Max);
}

std::string Cut_Part(std::string_view& Rest) {
    const std::string_view Part = Rest.substr(0, Rest.find(Next_Part));
    Rest.remove_prefix(std::min(Part.size() + 1, Rest.size()));
    return std::string(Part);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    std::string_view Rest(reinterpret_cast<const char*>(Data), Size);
    Memory_Files Disk;
    Memory_Settings Settings;
    Played_Platform World(Disk, Settings);
    const std::unique_ptr<Simulator> Made = Make_Simulator(World, {});
    Simulator& Sim = *Made;
    Load_Default_Data(Sim.State, All_Windows());
    Sim.Windows.Event([&] { Open_Window(Sim, "frmShip"); });

    const std::string Port_File = "Quillon_UDP_port.txt";
    Disk.Content[Port_File] = Cut_Part(Rest);
    Sim.Windows.Event([&] { Start_Control_Input(Sim); });
    Require(Sim.Windows.Boxes.Standing.size() == 1); // it is open, or why not
    if (World.Sockets.empty()) {
        Disk.Content[Port_File] = "5050";
        Sim.Windows.Event([&] { Start_Control_Input(Sim); });
    }
    Require(Sim.State.Of<Link_State>().Control_Input_Port >= 1 &&
            Sim.State.Of<Link_State>().Control_Input_Port <= 65535);
    Sim.Windows.Boxes.Standing.clear();

    while (!Rest.empty()) {
        World.Sockets.front()->Arrive(Cut_Part(Rest));
        World.Run_Until(Sim.Timers, World.Time().Wide_us() + Sailing_us);
        Require_In_Range(Open_One<frmShip>(Sim)->sldThrottle);
        Require_In_Range(Open_One<frmShip>(Sim)->sldRudder);
        Visit_State(Sim.State, Require_Finite{});
    }
    Require(Sim.Windows.Boxes.Standing.empty());
    return 0;
}
