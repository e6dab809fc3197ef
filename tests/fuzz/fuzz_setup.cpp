#include "links/setup_file/setup_file.hpp"
#include "platform/run_time_error.hpp"
#include "shell/main/window_table.hpp"
#include "tests/fuzz/require.hpp"

using namespace brinewright;

namespace {

bool Reads(std::string_view Bytes, Simulator_State& State) {
    try {
        Read_Setup(Bytes, State, All_Windows());
        return true;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

} // namespace

// Whatever the bytes are, reading ends in a state or in a told failure; and in both cases the state can be
// saved, and what was saved reads back to a state that is saved the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    Simulator_State State;
    Reads({reinterpret_cast<const char*>(Data), Size}, State);
    const std::string Saved = Write_Setup(State, All_Windows());
    Require(!(!Reads(Saved, State)));
    Require(!(Write_Setup(State, All_Windows()) != Saved));
    return 0;
}
