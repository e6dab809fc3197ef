#pragma once

#include "shell/layout.hpp"

#include <string_view>

namespace brinewright {

// The layout of a form's class; null when there is none. Each stands beside the source of its window.
Layout_Function Find_Layout(std::string_view Form_Name);

Layout Lay_Out_Position(Simulator& Sim, Form& Shown);
Layout Lay_Out_GNSS_Configuration(Simulator& Sim, Form& Shown);
Layout Lay_Out_Monitor(Simulator& Sim, Form& Shown);
Layout Lay_Out_Extended_Monitor(Simulator& Sim, Form& Shown);
Layout Lay_Out_Traffic(Simulator& Sim, Form& Shown);
Layout Lay_Out_TCPIP(Simulator& Sim, Form& Shown);
Layout Lay_Out_IEC61162(Simulator& Sim, Form& Shown);
Layout Lay_Out_Geo_Format(Simulator& Sim, Form& Shown);
Layout Lay_Out_Setup(Simulator& Sim, Form& Shown);
Layout Lay_Out_Progress(Simulator& Sim, Form& Shown);
Layout Lay_Out_Comport_Info(Simulator& Sim, Form& Shown);
Layout Lay_Out_Gyro(Simulator& Sim, Form& Shown);
Layout Lay_Out_Log(Simulator& Sim, Form& Shown);
Layout Lay_Out_Echosounder(Simulator& Sim, Form& Shown);
Layout Lay_Out_Wind(Simulator& Sim, Form& Shown);
Layout Lay_Out_Ship(Simulator& Sim, Form& Shown);
Layout Lay_Out_Ship_Setup(Simulator& Sim, Form& Shown);
Layout Lay_Out_Set_SOG(Simulator& Sim, Form& Shown);

} // namespace brinewright
