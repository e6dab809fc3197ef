#pragma once

#include "platform/link_objects.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// What a driver has counted of each kind of line error.
struct Line_Error_Counts {
    std::uint32_t Break = 0;
    std::uint32_t Framing = 0;
    std::uint32_t Parity = 0;
    std::uint32_t Overrun = 0;
    std::uint32_t Buffer_Overrun = 0;
};

// Later less Earlier; counters wrap around.
Line_Error_Counts Counted_Since(const Line_Error_Counts& Later, const Line_Error_Counts& Earlier);

// One thing that came over the line. Data belongs to Comm_Event::Receive only, and there it is not empty.
struct Line_Item {
    Comm_Event Event = Comm_Event::Receive;
    std::string Data;
};

// Takes the marks of a terminal driver (PARMRK) out of received bytes:
//
//     377 377      a byte of value 377
//     377 000 000  a break, or a damaged byte 0
//     377 000 x    a byte x with a parity or framing error
//
// The marks do not tell parity from framing errors. The driver's counters do, where it keeps any; without
// them an error is one of parity when the line has a parity bit. Damaged bytes are dropped. State is kept
// between chunks.
struct Serial_Line_Filter {
    bool Parity_Checked = false;

    enum class Place { Plain, After_377, After_377_000 };
    Place At = Place::Plain;
    Line_Error_Counts Unmarked; // counted by the driver, with the mark still to come
};

// The items of the next bytes in their order. Counted_New is what the driver has counted since the last call;
// it runs ahead of the bytes, never behind. Overruns leave no mark: they follow the items of the chunk they
// were counted in.
std::vector<Line_Item> Filter_Line(Serial_Line_Filter& Filter, std::string_view Chunk,
                                   const Line_Error_Counts& Counted_New);

} // namespace brinewright
