#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

struct Simulator;

// Puts the IEC 61162-450 tag block, and the UdPbC datagram header when it is on, in front of Sentence:
//
//   UdPbC\0\s:Brinewright,n:12,g:1-3-7,c:1767225600*hh\$GPGSV,...
//
// Port (1 to 28) chooses the counters of n: and g:. Line of Lines, both from 1, is the sentence's place in a
// group; a sentence that stands alone has 1 and 1. Called only while IEC450_Enabled.
void Make_UdPbC_Header(Simulator& Sim, std::string& Sentence, std::int16_t Port, std::int16_t Line,
                       std::int16_t Lines);

} // namespace brinewright
