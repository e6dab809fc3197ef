#include "links/setup_file/setup_file.hpp"
#include "links/setup_file/setup_sentences.hpp"
#include "platform/run_time_error.hpp"
#include "shell/main/window_table.hpp"
#include "tests/fuzz/require.hpp"
#include "tests/fuzz/some_inputs.hpp"

using namespace brinewright;

namespace {

bool Reads(std::string_view Bytes, Simulator_State& State, const auto& With, Setup_Reading& Reading) {
    try {
        Reading = Read_Setup(Bytes, State, With);
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
        if (!Reads(Saved, State, All_Windows(), Again) || Write_Setup(State, All_Windows()) != Saved)
            std::abort();
    }
    if (!Repair_Values(State, {}, All_Windows()).empty()) std::abort();
}

} // namespace

// Whatever the bytes are, reading ends in a state or in a told failure. One state takes them all: what one
// input leaves in it is what the next one may meet, as when a user opens one setup after another.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const std::string_view Bytes(reinterpret_cast<const char*>(Data), Size);
    static Simulator_State State;
    static const auto Sentences = Kept_Sentences(State, All_Windows());
    Setup_Reading Reading;
    Reads(Bytes, State, Sentences, Reading);
    if (!Is_One_Of_Some(Data, Size)) return 0;
    Simulator_State Fresh; // what is found here can be found again by this input alone
    Reads(Bytes, Fresh, All_Windows(), Reading);
    Check_State(Fresh, Reading);
    return 0;
}
