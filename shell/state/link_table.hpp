#pragma once

#include "platform/controls.hpp"
#include "platform/link_objects.hpp"
#include "platform/table.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace brinewright {

// States of a socket element as its users test them.
namespace socket_state {
inline constexpr int Closed = 0, Listening = 2, Connected = 7, Closing = 8;
} // namespace socket_state

// One element of WinsockArray: the one that listens, a client, or a client that has gone. Elements are never
// used again. There is one listening socket in truth; which element listens is bookkeeping.
struct TCP_Element {
    int State = socket_state::Closed;
    std::string Tag;
    std::string Remote_Host_IP;
    std::unique_ptr<TCP_Connection> Connection;
    std::uint64_t Skipped = 0; // texts that the client did not read in time, kept when it has gone
};

// The link objects of the main window. Serial ports and UDP sockets are made when they are first opened.
struct Link_Table {
    Table<std::unique_ptr<Serial_Port>, 1, 16> MSComm;
    std::unique_ptr<TCP_Listener> Listener;
    std::vector<std::unique_ptr<TCP_Element>> WinsockArray;
    std::vector<int> Connected;                  // the elements that hold a client
    std::vector<std::string> Connection_History; // what frmTCPIP lists
    // timerTCPIP_StateCheck of the main window, one for each element that had a client.
    std::vector<std::unique_ptr<Timer>> State_Checks;
    std::unique_ptr<TCP_Connection> Gone_Connection; // the last one that went, see its closing
    Table<std::unique_ptr<UDP_Socket>, 0, 10> WinsockUDP;
    std::unique_ptr<UDP_Socket> WinsockQuillon; // the control input, when it is on
    bool Control_Input_Warned = false;          // it has told that it needs Ship mode
    bool Control_Input_Ignored = false;         // it has told of a number that no instrument gives
    std::string Rx_Buffer; // received text without its line feed yet; one for all serial ports
};

} // namespace brinewright
