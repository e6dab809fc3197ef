#pragma once

#include "links/link_table.hpp"
#include "platform/desktop.hpp"
#include "platform/platform.hpp"
#include "platform/table.hpp"
#include "platform/timer_queue.hpp"
#include "shell/simulator_state.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

struct frmMain;
struct frmPosition;
struct frmGNSS;
struct frmMonitor;
struct frmExtendedMonitor;
struct frmTCPIP;
struct frmIEC61162;
struct frmGeoFormat;
struct frmSetup;
struct frmProgress;
struct frmComportInfo;
struct frmTraffic;
struct frmGyro;
struct frmLog;
struct frmEchosounder;
struct frmWind;
struct frmShip;
struct frmShipSetup;
struct frmSetSOG;

// What the user said at the start of the program.
struct Start_Options {
    std::string Setup_File;  // empty: the instance's own file in the data folder
    bool No_Save = false;    // the setup file is left as it is at the end
    std::string Data_Folder; // with its final separator
    std::int16_t Instance_Number = 0;
    bool Control_Input = false; // steered by datagrams, see links/control_input
};

// What has been sent since the start, by port number; element 0 counts sentences without a port.
struct Send_Counts {
    Table<std::uint64_t, 0, 28> Sent;
    Table<std::uint64_t, 0, 28> Failed; // the link refused the sentence
    std::uint64_t Dropped_By_Box = 0;   // a message box stood
};

// What is known of the game controller; ownship/ship/joystick reads it.
struct Joystick_State {
    Joystick_Reading Rest; // where it stood when it was found
    Joystick_Reading Last;
    Table<bool, 0, 15> Buttons; // that are down
};

// The whole simulator: state, windows, links and the platform below them. There is no other place for state,
// so that every test makes a fresh one.
struct Simulator {
    Simulator(Platform& Its_Platform, Start_Options Its_Options);
    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;
    ~Simulator();

    Platform& Services;
    Start_Options Options;
    Simulator_State State;
    Timer_Queue Timers;
    Desktop Windows;
    Link_Table Links;
    Send_Counts Counts;
    // Told of each sentence as it left, with faults and line end, when its link took it.
    std::vector<std::function<void(std::string_view Text, int Port)>> On_Sent;

    // The last sentence of each sensor window, by form index, as it left.
    Table<std::string, 1, 11> Last_Sentence;

    // The windows; null while closed. A window is made afresh at each opening.
    std::shared_ptr<frmMain> Main;
    Per_Instance<std::shared_ptr<frmPosition>> frmPosition_Instance;
    Per_Instance<std::shared_ptr<frmGNSS>> frmGNSS_Instance;
    Per_Instance<std::shared_ptr<frmGyro>> frmGyro_Instance;
    Per_Instance<std::shared_ptr<frmLog>> frmLog_Instance;
    Per_Instance<std::shared_ptr<frmEchosounder>> frmEchosounder_Instance;
    Per_Instance<std::shared_ptr<frmWind>> frmWind_Instance;
    std::shared_ptr<frmShip> Ship;
    std::shared_ptr<frmShipSetup> ShipSetup;
    std::shared_ptr<frmSetSOG> SetSOG;
    std::shared_ptr<frmMonitor> Monitor;
    std::shared_ptr<frmExtendedMonitor> Extended_Monitor;
    std::shared_ptr<frmTCPIP> TCPIP;
    std::shared_ptr<frmIEC61162> IEC61162;
    std::shared_ptr<frmGeoFormat> GeoFormat;
    std::shared_ptr<frmSetup> Setup;
    std::shared_ptr<frmProgress> Progress;
    std::shared_ptr<frmComportInfo> ComportInfo;
    std::shared_ptr<frmTraffic> Traffic;

    std::string Unreadable_Setup; // the setup file that failed to load; the save at the end leaves it alone
    bool Ended = false;           // frmMain has unloaded
    Joystick_State Joystick;
};

} // namespace brinewright
