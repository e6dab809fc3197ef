#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// What a link truly does, whatever the setup wants of it. Everybody who says something of a link reads this.
struct Link_Record {
    std::string Name;              // "COM3", "TCP 8040", "UDP 239.192.0.1:60001"
    bool Wanted = false;           // the setup uses it
    bool Open = false;             // what is sent on it leaves
    std::string Why_Not;           // it is not open, in a few words; empty while it is, or is not wanted
    std::int32_t Clients = 0;      // of the TCP server, connected now
    double Sentences_Per_s = 0;    // that it took, over the last three seconds
    std::int64_t Last_Sent_us = 0; // local time in microseconds since 1970; 0 = never
    std::uint64_t Sent = 0;        // sentences that the link took
    std::uint64_t Refused = 0;     // sentences that met a closed or failing link
    std::uint64_t Skipped = 0;     // sentences that a slow line or a slow client missed, one for each client
};

// Nothing of it is kept over a restart.
struct Link_Record_State {
    Table<Link_Record, 1, 28> Link;      // by port number
    bool Links_Opened = false;           // since the start; the setup decides, see Open_Links_At_Start
    std::uint64_t Sent_Without_Link = 0; // sentences of sensors that have no link
    std::uint64_t Dropped_By_Box = 0;    // sentences that met a standing message box
};

} // namespace brinewright
