#pragma once

#include "platform/controls.hpp"
#include "platform/link_objects.hpp"
#include "platform/table.hpp"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace brinewright {

// States of a socket element as its users test them.
namespace socket_state {
inline constexpr int Closed = 0, Listening = 2, Connected = 7, Closing = 8;
} // namespace socket_state

// One element of WinsockArray: the one that listens, a client, or a client that has gone. Elements are not
// used again before their numbers are used up. There is one listening socket in truth; which element listens
// is bookkeeping.
struct TCP_Element {
    int State = socket_state::Closed;
    std::string Tag;
    std::string Remote_Host_IP;
    std::unique_ptr<TCP_Connection> Connection;
};

// How much each link had sent at a moment.
struct Sent_Until {
    std::int64_t At_us = 0; // on the wide clock
    Table<std::uint64_t, 1, 28> Sent;
};

// Looks at the links once a second.
struct Link_Watch {
    Timer_Queue::Entry Each_Second;
    std::deque<Sent_Until> Past; // the oldest first
    int Seconds = 0;             // since links that are closed were tried again
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
    int Next_Reused = 0; // where the search for an element begins when their numbers are used up
    std::unique_ptr<TCP_Connection> Gone_Connection; // the last one that went, see its closing
    Table<std::unique_ptr<UDP_Socket>, 0, 10> WinsockUDP;
    std::unique_ptr<UDP_Socket> WinsockQuillon; // the control input, when it is on
    std::unique_ptr<Virtual_Port> vCom;         // nobody makes one, see SendVirtualData
    bool Control_Input_Warned = false;          // it has told that it needs Ship mode
    bool Control_Input_Ignored = false;         // it has told of a number that no instrument gives
    std::string Rx_Buffer; // received text without its line feed yet; one for all serial ports
    Link_Watch Watch;
};

} // namespace brinewright
