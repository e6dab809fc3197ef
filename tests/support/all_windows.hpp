#pragma once

#include "dialogs/geo_format/frm_geo_format.hpp"
#include "dialogs/iec61162/frm_iec61162.hpp"
#include "gnss/configuration/frm_gnss.hpp"
#include "links/port_setup/frm_setup.hpp"
#include "links/port_setup/port_detection.hpp"
#include "ownship/set_sog/frm_set_sog.hpp"
#include "ownship/setup/frm_ship_setup.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "sensors/echosounder/frm_echosounder.hpp"
#include "sensors/gyro/frm_gyro.hpp"
#include "sensors/log/frm_log.hpp"
#include "sensors/wind/frm_wind.hpp"
#include "shell/monitors/traffic/frm_traffic.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {

// A simulator of which every window can be opened.
struct Every_Window : Virtual_Simulator {
    // Both GNSS windows on TCP with all their sentences, so that all their frames are shown. The other
    // sensors send something each when their windows open; the ship of Ship mode makes way.
    static Simulator_State Full_Setup(const char* Mode = "Sensor") {
        Simulator_State S = Default_Setup(Mode);
        S.Of<Link_State>().Comport_Count = 1;
        Set_Up_Link(S, port_number::TCP);
        for (int I = form_index::GNSS_1; I <= 10; ++I)
            S.Of<Link_State>().Sensor_Table[I].Port = port_number::TCP;
        S.Of<Shell_State>().Start_With_Last_Navdata = true;
        S.Of<Navdata_State>().Nav_SOG = 12.5F;
        S.Of<Navdata_State>().Nav_HDG = 123.4F;
        S.Of<Navdata_State>().Nav_Rudder = -15;
        for (const int I : {1, 2}) {
            S.Of<Gyro_State>().HDT_Enabled[I] = S.Of<Gyro_State>().PRDID_Enabled[I] =
                S.Of<Log_State>().VHW_Enabled[I] = S.Of<Echo_State>().DBT_Enabled[I] = true;
            S.Of<Wind_State>().MWV_Enabled[I] = S.Of<Wind_State>().MWD_Enabled[I] = true;
            S.Of<Wind_State>().Wind_Speed[I] = 14.5F;
            S.Of<GNSS_State>().GGA_Enabled[I] = S.Of<GNSS_State>().GSA_Enabled[I] =
                S.Of<GNSS_State>().GSV_Enabled[I] = S.Of<GNSS_State>().GST_Enabled[I] = true;
            Add_Window(S, {"frmPosition", static_cast<std::int16_t>(I), 0, 0, 9330, 20150});
        }
        return S;
    }

    // Opens what is not open yet, as a user would, up to a detection of ports that stands just before its end
    // with all ports found but the last.
    void Open_Every_Window() {
        const frmMain& M = Main_Window(Sim);
        for (const char* Name :
             {"mnuMonitor", "mnuExtendedMonitor", "mnuTraffic", "mnuOptionIEC450", "mnuSetupLatLonFormat"})
            if (!*M.Item(Name).Checked) Click(M.Item(Name));
        for (const int I : {1, 2}) Click(Open_One<frmPosition>(Sim, I)->cmdGNSS);
        for (int I = form_index::Gyro_1; I <= 10; ++I) Choose_Menu("mnuOpenForm", I);
        if (Sim.State.Of<Shell_State>().Mode == "Ship") {
            if (!Open_One<frmShip>(Sim)) Choose_Menu("mnuShip");
            Click(Open_One<frmShip>(Sim)->cmdSetSOG);
            Choose_Menu("mnuSetupShip");
        }
        Run_s(2); // something to show
        Sim.State.Of<Link_State>().Ports_Initialised = false;
        Choose_Menu("mnuSetupPort");
        Click(Open_One<frmSetup>(Sim)->cmdComInfo);
        Run_s(0.0775);
    }
};

} // namespace brinewright
