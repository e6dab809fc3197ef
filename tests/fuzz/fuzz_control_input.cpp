// The control input on any bytes: the port file, then the datagrams, parted by the byte 30. Whatever comes,
// nothing is told, the sliders stay within their ends, and every number of the ship is finite; after some the
// ship sails a little, and every number of the state is. One ship takes all inputs, back as it was each time.

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
#include "tests/fuzz/some_inputs.hpp"
#include "tests/support/played_platform.hpp"

#include <concepts>

using namespace brinewright;

namespace {

constexpr char Next_Part = 30;
constexpr std::int64_t Sailing_us = 2'000'000;
constexpr const char* Port_File = "Quillon_UDP_port.txt";

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

struct Stage {
    Memory_Files Disk;
    Memory_Settings Settings;
    Played_Platform World{Disk, Settings};
    std::unique_ptr<Simulator> Made = Make_Simulator(World, {});
    Simulator& Sim = *Made;
    Navdata_State At_First;
    int Throttle = 0, Rudder = 0;

    Stage() {
        Load_Default_Data(Sim.State, All_Windows());
        Sim.Windows.Event([&] { Open_Window(Sim, "frmShip"); });
        At_First = Sim.State.Of<Navdata_State>();
        Throttle = Ship().sldThrottle.Value();
        Rudder = Ship().sldRudder.Value();
    }
    frmShip& Ship() { return *Open_One<frmShip>(Sim); }
    void Begin() {
        Ship().sldThrottle.Set_Value(Throttle);
        Ship().sldRudder.Set_Value(Rudder);
        Sim.State.Of<Navdata_State>() = At_First;
        Sim.Links.WinsockQuillon.reset();
        World.Sockets.clear();
        World.Log.clear();
    }
    void Open(const std::string& Port_Text) {
        Disk.Content[Port_File] = Port_Text;
        Sim.Windows.Event([&] { Start_Control_Input(Sim); });
        Require(Sim.Windows.Boxes.Standing.size() == 1); // it is open, or why not
        Sim.Windows.Boxes.Standing.clear();
    }
    void Check_Ship() {
        Require_In_Range(Ship().sldThrottle);
        Require_In_Range(Ship().sldRudder);
        Visit_Record(Sim.State.Of<Navdata_State>(), Require_Finite{});
    }
    void Sail() {
        World.Run_Until(Sim.Timers, World.Time().Wide_us() + Sailing_us);
        Check_Ship();
        Visit_State(Sim.State, Require_Finite{});
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    static Stage On;
    std::string_view Rest(reinterpret_cast<const char*>(Data), Size);
    On.Begin();
    On.Open(Cut_Part(Rest));
    if (On.World.Sockets.empty() && !Rest.empty()) On.Open("5050");
    while (!Rest.empty()) {
        On.World.Sockets.front()->Arrive(Cut_Part(Rest));
        On.Check_Ship();
    }
    if (Is_One_Of_Some(Data, Size)) On.Sail();
    Require(On.Sim.Windows.Boxes.Standing.empty());
    return 0;
}
