#pragma once

#include "platform/table.hpp"
#include "shell/state/transmit_state.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// The setup of one port. Ports above 16 use only Present and Enabled; a link is in use when both are true.
struct Port_Setting {
    bool Present = false; // exists on this machine
    bool Enabled = false; // the user ticked it
    std::int32_t BaudRate = 0;
    std::int16_t DataBits = 0;
    std::string Parity; // "none", "even" or "odd"
    std::int16_t StopBits = 0;
};

template <class Visitor>
void Visit_Record(Port_Setting& R, Visitor&& Visit) {
    Visit("Present", R.Present);
    Visit("Enabled", R.Enabled);
    Visit("BaudRate", R.BaudRate);
    Visit("DataBits", R.DataBits);
    Visit("Parity", R.Parity);
    Visit("StopBits", R.StopBits);
}

// Where the sentences of one sensor window go.
struct Sensor_Slot {
    std::string Name;      // a label of the setup file only
    std::int16_t Port = 0; // port number; 0 = no output
};

template <class Visitor>
void Visit_Record(Sensor_Slot& R, Visitor&& Visit) {
    Visit("Name", R.Name);
    Visit("Port", R.Port);
}

// The links. Port numbers: 0 none, 1 to 16 serial, 17 the TCP server, 18 + k the UDP link k (0 to 10).
struct Link_State {
    Table<Port_Setting, 1, 28> Port_Table;      // by port number
    Table<Sensor_Slot, 1, 11> Sensor_Table;     // by form index
    std::int16_t Comport_Count = 0;             // ports found present; above 0 opens the links at start
    std::int16_t Present_Port_Count = 0;        // the same while the port setup confirms
    bool Ports_Initialised = false;             // Init_Comports has run once
    std::int32_t TCP_Port = 0;                  // listening port of the server
    Table<std::int32_t, 0, 10> UDP_Port_Number; // by UDP link: the remote port
    std::int16_t UDP_Mode = 0;                  // 0 broadcast, else to UDP_Remote_Host
    std::string UDP_Remote_Host;
    std::int16_t TCP_Client_Max_Index = 0; // highest element of WinsockArray that exists
    std::int16_t TCP_Client_Count = 0;     // clients connected now
    std::int16_t frmTCPIP_Left = 0;
    std::int16_t frmTCPIP_Top = 0;
    std::int16_t Extended_Monitor_Port = 0;  // port number that frmExtendedMonitor shows
    std::int16_t Extended_Monitor_Lines = 0; // messages kept there before it is emptied
    bool Virtual_Port_Option = false;
    bool Virtual_Port_Active = false;
    std::int16_t Virtual_Port_Number = 0;
    bool Control_Input_Enabled = false;
    std::int32_t Control_Input_Port = 0; // UDP port: the 16-bit pattern of 0 to 65535
    Transmit_State Transmit;
};

template <class Visitor>
void Visit_State(Link_State& S, Visitor&& Visit) {
    Visit("Port_Table", S.Port_Table);
    Visit("Sensor_Table", S.Sensor_Table);
    Visit("Comport_Count", S.Comport_Count);
    Visit("Present_Port_Count", S.Present_Port_Count);
    Visit("Ports_Initialised", S.Ports_Initialised);
    Visit("TCP_Port", S.TCP_Port);
    Visit("UDP_Port_Number", S.UDP_Port_Number);
    Visit("UDP_Mode", S.UDP_Mode);
    Visit("UDP_Remote_Host", S.UDP_Remote_Host);
    Visit("TCP_Client_Max_Index", S.TCP_Client_Max_Index);
    Visit("TCP_Client_Count", S.TCP_Client_Count);
    Visit("frmTCPIP_Left", S.frmTCPIP_Left);
    Visit("frmTCPIP_Top", S.frmTCPIP_Top);
    Visit("Extended_Monitor_Port", S.Extended_Monitor_Port);
    Visit("Extended_Monitor_Lines", S.Extended_Monitor_Lines);
    Visit("Virtual_Port_Option", S.Virtual_Port_Option);
    Visit("Virtual_Port_Active", S.Virtual_Port_Active);
    Visit("Virtual_Port_Number", S.Virtual_Port_Number);
    Visit("Control_Input_Enabled", S.Control_Input_Enabled);
    Visit("Control_Input_Port", S.Control_Input_Port);
    Visit("Transmit", S.Transmit);
}

} // namespace brinewright
