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

// Where the sentences of one sensor window go.
struct Sensor_Slot {
    std::string Name;      // a label of the setup file only
    std::int16_t Port = 0; // port number; 0 = no output
};

// The panel of a serial port in the status bar.
struct Link_Panel_Record {
    std::string Text;
    bool Visible = false;
};

// The links. Port numbers: 0 none, 1 to 16 serial, 17 the TCP server, 18 + k the UDP link k (0 to 10).
struct Link_State {
    Table<Port_Setting, 1, 28> Port_Table;  // by port number
    Table<Sensor_Slot, 1, 11> Sensor_Table; // by form index
    // Nothing of the sensor leaves, by form index: the user has silenced it. Not kept over a restart.
    Table<bool, 1, 11> Silenced;
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
    bool Extended_Monitor_Open = false;      // only then its port is read
    bool Extended_Monitor_Frozen = false;
    bool Virtual_Port_Option = false;
    bool Virtual_Port_Active = false;
    std::int16_t Virtual_Port_Number = 0;
    bool Control_Input_Enabled = false;
    std::int32_t Control_Input_Port = 0;        // UDP port: the 16-bit pattern of 0 to 65535
    Table<Link_Panel_Record, 1, 16> Link_Panel; // by port number
    Transmit_Record Transmit;
};

} // namespace brinewright
