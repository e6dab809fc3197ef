#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// What the transmit path, the monitors and the tag blocks remember from sentence to sentence. Nothing of it
// is kept over a restart.
struct Transmit_Record {
    // Element n - 1 is for port n; element 16 is the TCP server. Seconds since midnight, 0 = never.
    Table<float, 0, 17> Last_Tx_Time;
    Table<bool, 0, 17> Error_Shown;                // element n - 1: the failing write of port n has been told
    std::string Split_Remainder;                   // tail of the last split sentence; one for all ports
    float Last_Send_Time = 0;                      // seconds since midnight; at most 0 = never
    Table<std::int32_t, 0, 27> Monitor_Line_Count; // element n - 1: sentences in the pane of port n
    std::int32_t Extended_Tx_Line_Count = 0;
    std::int32_t Extended_Rx_Line_Count = 0;
    Table<std::int16_t, 0, 28> UdPbC_Sequence; // by port number: last n: value, 1 to 999
    Table<std::int16_t, 0, 28> UdPbC_Group;    // by port number: last g: group number, 1 to 99
};

} // namespace brinewright
