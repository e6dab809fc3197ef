#include "links/setup_file/setup_file.hpp"
#include "platform/run_time_error.hpp"
#include "shell/main/window_table.hpp"
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/some_inputs.hpp"

using namespace brinewright;

namespace {

bool Reads(std::string_view Bytes, Simulator_State& State, Setup_Reading& Reading) {
    try {
        Reading = Read_Setup(Bytes, State, All_Windows());
        return true;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

// The state can be saved, and what was saved reads back to a state that is saved the same; also when what
// cannot be was replaced, of which there is nothing left then.
void Check_State(Simulator_State& State, const Setup_Reading& Reading) {
    Setup_Reading Again;
    for (const bool Repaired : {false, true}) {
        if (Repaired) Repair_Values(State, Reading.Lost, All_Windows());
        const std::string Saved = Write_Setup(State, All_Windows());
        if (!Reads(Saved, State, Again) || Write_Setup(State, All_Windows()) != Saved) std::abort();
    }
    if (!Repair_Values(State, {}, All_Windows()).empty()) std::abort();
}

} // namespace

// Whatever the bytes are, reading ends in a state or in a told failure. One state takes them all: what one
// input leaves in it is what the next one may meet, as when a user opens one setup after another.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    static Simulator_State State;
    Setup_Reading Reading;
    Reads({reinterpret_cast<const char*>(Data), Size}, State, Reading);
    if (!Is_One_Of_Some(Data, Size)) return 0;
    State = {}; // what is found here can be found again by this input alone
    Reads({reinterpret_cast<const char*>(Data), Size}, State, Reading);
    Check_State(State, Reading);
    return 0;
}
