#pragma once

#include "dialogs/frm_geo_format.hpp"
#include "gnss/frm_gnss.hpp"
#include "links/frm_iec61162.hpp"
#include "links/frm_setup.hpp"
#include "links/port_detection.hpp"
#include "ownship/ship/frm_set_sog.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "ownship/ship/frm_ship_setup.hpp"
#include "sensors/frm_echosounder.hpp"
#include "sensors/frm_gyro.hpp"
#include "sensors/frm_log.hpp"
#include "sensors/frm_wind.hpp"
#include "shell/frm_traffic.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {

// A simulator of which every window can be opened.
struct All_Windows : Virtual_Simulator {
    // Both GNSS windows on TCP with all their sentences, so that all their frames are shown. The other
    // sensors send something each when their windows open; the ship of Ship mode makes way.
    static Simulator_State Full_Setup(const char* Mode = "Sensor") {
        Simulator_State S;
        Load_Default_Data(S);
        S.Mode = Mode;
        S.Comport_Count = 1;
        Set_Up_Link(S, port_number::TCP);
        for (int I = form_index::GNSS_1; I < form_index::ARPA; ++I) S.Sensor_Table[I].Port = port_number::TCP;
        S.Start_With_Last_Navdata = true;
        S.Nav_SOG = 12.5F;
        S.Nav_HDG = 123.4F;
        S.Nav_Rudder = -15;
        for (const int I : {1, 2}) {
            S.HDT_Enabled[I] = S.PRDID_Enabled[I] = S.VHW_Enabled[I] = S.DBT_Enabled[I] = true;
            S.MWV_Enabled[I] = S.MWD_Enabled[I] = true;
            S.Wind_Speed[I] = 14.5F;
            S.GGA_Enabled[I] = S.GSA_Enabled[I] = S.GSV_Enabled[I] = S.GST_Enabled[I] = true;
            S.Open_Form_List[++S.Open_Form_Count] = {"frmPosition", static_cast<std::int16_t>(I), 0, 0, 9330,
                                                     20150};
        }
        return S;
    }

    // Opens what is not open yet, as a user would, up to a detection of ports that stands just before its end
    // with all ports found but the last.
    void Open_All_Windows() {
        frmMain& M = *Sim.Main;
        for (Menu_Item* Item : {&M.mnuMonitor, &M.mnuExtendedMonitor, &M.mnuTraffic, &M.mnuOptionIEC450,
                                &M.mnuSetupLatLonFormat})
            if (!*Item->Checked) Click(*Item);
        for (const int I : {1, 2}) Click(Sim.frmPosition_Instance[I]->cmdGNSS);
        for (int I = form_index::Gyro_1; I < form_index::ARPA; ++I) Click(*M.mnuOpenForm(I));
        if (Sim.State.Mode == "Ship") {
            if (!Sim.Ship) Click(M.mnuShip);
            Click(Sim.Ship->cmdSetSOG);
            Click(M.mnuSetupShip);
        }
        Run_s(2); // something to show
        Sim.State.Ports_Initialised = false;
        Click(M.mnuSetupPort);
        Click(Sim.Setup->cmdComInfo);
        Run_s(0.0775);
    }
};

} // namespace brinewright
