#pragma once

#include "platform/clock.hpp"
#include "sentences/utc_state.hpp"

namespace brinewright {

// What a composer needs to print times: the machine's clock, read at the moment of composing, and the
// offsets.
struct Sentence_Time {
    Clock& Machine_Clock;
    const UTC_State& UTC;
};

} // namespace brinewright
