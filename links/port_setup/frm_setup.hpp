#pragma once

#include "links/port_list.hpp"
#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "platform/table.hpp"
#include "shell/state/window_class.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct Simulator;

inline constexpr int UDP_Link_Count = port_number::Last - port_number::First_UDP + 1;

// "Port settings - Available COM ports": which links there are and how they are set. Arrays run over port
// numbers, of the UDP links over 1 to 11. A frame of a port that is not there is hidden with all that stands
// in it.
struct frmSetup : Form {
    static constexpr const char* Class_Name = "frmSetup";

    explicit frmSetup(Desktop& Windows);

    Control_Array<Frame, 1, port_number::Last> frameCOMport;
    Control_Array<Check_Box, 1, port_number::Last> chkEnable;
    Control_Array<Label, 1, port_number::Last> lblAvailable;
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbBaudRate;
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbDataBits;
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbParity;
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbStopBits;
    Label lblIP{*this, "lblIP"};
    Text_Box txtPort{*this, "txtPort"};
    Control_Array<Text_Box, 1, UDP_Link_Count> txtUDP_port;
    Option_Group optUDPMode{*this, "optUDPMode", {"Broadcast", "Unicast"}};
    Text_Box txtUDP_RemoteHost{*this, "txtUDP_RemoteHost"};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
    Button cmdReset{*this, "cmdReset", "Reset"};
    Button cmdComInfo{*this, "cmdComInfo", "Info"};
    Timer timer_Detection{*this, "timer_Detection"};

    // Where the frames of the serial ports stand: those that are shown fill a column of eight, then the one
    // to its right.
    struct Frame_Place {
        int Column = 0, Row = 0; // from 0
    };
    Table<Frame_Place, 1, port_number::Last_Serial> Places;

    // The detection under way.
    int Tried_Ports = 0;
    int Found_Ports = 0;
    int Refused_Ports = 0; // for lack of rights
    std::int64_t Detection_Start_us = 0;

    // What goes back into a box when what is typed there is not valid.
    std::string Valid_Port;
    Table<std::string, 1, UDP_Link_Count> Valid_UDP_Port;
    std::string Valid_Remote_Host;
};

// "Comport Information", a note on the ports above 16.
struct frmComportInfo : Form {
    static constexpr const char* Class_Name = "frmComportInfo";

    explicit frmComportInfo(Desktop& Windows);

    Label lblInfo{
        *this, "lblInfo",
        "Comports above COM 16 can not be used. They are ignored by the setup, however many there are."};
    Button cmdOK{*this, "cmdOK", "OK"};
};

Layout Lay_Out_Setup(Simulator& Sim, Form& Shown);

Layout Lay_Out_Comport_Info(Simulator& Sim, Form& Shown);
extern const Window_Class Port_Setup_Window, Comport_Info_Window;

// Shows or hides the frame of serial port Port with all that stands in it.
void Show_Port(Simulator& Sim, frmSetup& F, int Port, bool Shown);

} // namespace brinewright
