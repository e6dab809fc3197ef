#include "ui/layouts.hpp"

#include "shell/state/windows.hpp"
#include "ui/layout_builder.hpp"
#include "ui/layouts/layout_parts.hpp"

#include <stdexcept>

namespace brinewright {

namespace {

struct Layout_Row {
    const char* Form_Name;
    void (*Lay_Out)(Form_View&, Form&);
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
    {"frmLog", Lay_Out_Log},
    {"frmEchosounder", Lay_Out_Echosounder},
    {"frmWind", Lay_Out_Wind},
    {"frmShip", Lay_Out_Ship},
    {"frmShipSetup", Lay_Out_Ship_Setup},
    {"frmSetSOG", Lay_Out_Set_SOG},
};

const Layout_Row* Find_Old_Layout(const std::string& Form_Name) {
    for (const Layout_Row& Row : Layouts)
        if (Form_Name == Row.Form_Name) return &Row;
    return nullptr;
}

} // namespace

void Lay_Out(Form_View& View, Form& Shown) {
    const Window_Class* Class = Find_Class(View.Sim, Shown.Name);
    if (Class && Class->Lay_Out) {
        Build_Layout(View, Class->Lay_Out(View.Sim, Shown));
    } else {
        const Layout_Row* Old = Find_Old_Layout(Shown.Name);
        if (!Old) throw std::logic_error("no layout for " + Shown.Name);
        Old->Lay_Out(View, Shown);
    }
    View.Refresh();
}

} // namespace brinewright
