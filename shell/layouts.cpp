#include "shell/layouts.hpp"

namespace brinewright {

namespace {

struct Layout_Row {
    const char* Form_Name;
    Layout_Function Lay_Out;
};

constexpr Layout_Row Layouts[] = {
    {"frmPosition", Lay_Out_Position},
    {"frmGNSS", Lay_Out_GNSS_Configuration},
    {"frmMonitor", Lay_Out_Monitor},
    {"frmExtendedMonitor", Lay_Out_Extended_Monitor},
    {"frmTraffic", Lay_Out_Traffic},
    {"frmTCPIP", Lay_Out_TCPIP},
    {"frmIEC61162", Lay_Out_IEC61162},
    {"frmGeoFormat", Lay_Out_Geo_Format},
    {"frmSetup", Lay_Out_Setup},
    {"frmProgress", Lay_Out_Progress},
    {"frmComportInfo", Lay_Out_Comport_Info},
    {"frmGyro", Lay_Out_Gyro},
    {"frmLog", Lay_Out_Log},
    {"frmEchosounder", Lay_Out_Echosounder},
    {"frmWind", Lay_Out_Wind},
    {"frmShip", Lay_Out_Ship},
    {"frmShipSetup", Lay_Out_Ship_Setup},
    {"frmSetSOG", Lay_Out_Set_SOG},
};

} // namespace

Layout_Function Find_Layout(std::string_view Form_Name) {
    for (const Layout_Row& Row : Layouts)
        if (Form_Name == Row.Form_Name) return Row.Lay_Out;
    return nullptr;
}

} // namespace brinewright
