#pragma once

#include "links/port_list.hpp"
#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "platform/table.hpp"
#include "shell/state/window_class.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace brinewright {

struct Simulator;

inline constexpr int UDP_Link_Count = port_number::Last - port_number::First_UDP + 1;

// "Port settings - Available COM ports": which links there are and how they are set. Arrays run over port
// numbers, of the UDP links over 1 to 11. The frame of a port that is not there is hidden.
struct frmSetup : Form {
    static constexpr const char* Class_Name = "frmSetup";

    explicit frmSetup(Desktop& Windows);

    Control_Array<Frame, 1, port_number::Last> frameCOMport{*this, "frameCOMport"};
    const std::function<Stand(int)> In_Frame = [this](int Port) { return Stand(frameCOMport[Port]); };
    Control_Array<Check_Box, 1, port_number::Last> chkEnable{In_Frame, "chkEnable", "Enable for use",
                                                             "Uses this link after OK"};
    Control_Array<Label, 1, port_number::Last> lblAvailable{In_Frame, "lblAvailable"};
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbBaudRate{In_Frame, "cmbBaudRate", "",
                                                                      "Baud rate, bits per second"};
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbDataBits{In_Frame, "cmbDataBits", "",
                                                                      "Data bits of a character"};
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbParity{In_Frame, "cmbParity", "", "Parity"};
    Control_Array<Combo_Box, 1, port_number::Last_Serial> cmbStopBits{In_Frame, "cmbStopBits", "",
                                                                      "Stop bits of a character"};
    Label lblIP{frameCOMport[port_number::TCP], "lblIP"};
    Text_Box txtPort{frameCOMport[port_number::TCP], "txtPort", "",
                     "Port that the server listens on, 1024 to 65535"};
    Control_Array<Text_Box, 1, UDP_Link_Count> txtUDP_port{
        [this](int K) { return Stand(frameCOMport[port_number::TCP + K]); }, "txtUDP_port", "",
        "Port that the datagrams go to, 1 to 65535"};
    Option_Group optUDPMode{*this,
                            "optUDPMode",
                            {{"Broadcast", "All UDP links send to 255.255.255.255"},
                             {"Unicast", "All UDP links send to the address beside it"}}};
    Text_Box txtUDP_RemoteHost{*this, "txtUDP_RemoteHost", "",
                               "Address that all UDP links send to in Unicast, 1.0.0.1 to 255.255.255.255"};
    Button cmdOK{*this, "cmdOK", "OK", "Takes the settings over and opens the links anew"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", "Leaves the links as they were"};
    Button cmdReset{*this, "cmdReset", "Reset", "Forgets the ports and looks for them again"};
    Button cmdComInfo{*this, "cmdComInfo", "Info", "Tells about ports above COM 16"};
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

    // What has to be good before OK takes it over: each says what is wrong, and goes there.
    std::vector<std::function<bool()>> Checks;
    bool Went_Back = false; // the box that was just left was not valid and has the focus again

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
    Button cmdOK{*this, "cmdOK", "OK", "Closes this note"};
};

Layout Lay_Out_Setup(Simulator& Sim, Form& Shown);

Layout Lay_Out_Comport_Info(Simulator& Sim, Form& Shown);
extern const Window_Class Port_Setup_Window, Comport_Info_Window;

// Shows or hides the frame of serial port Port.
void Show_Port(Simulator& Sim, frmSetup& F, int Port, bool Shown);

} // namespace brinewright
