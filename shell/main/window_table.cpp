#include "shell/main/window_table.hpp"

namespace brinewright {

// A window stands in its own folder; this is the one place that names it.
extern const Window_Class GNSS_Windows, Gyro_Windows, Log_Windows, Echosounder_Windows, Wind_Windows,
    Ship_Window, Ship_Setup_Window, Set_SOG_Window, Monitor_Window, Extended_Monitor_Window, Traffic_Window,
    TCP_Status_Window, IEC61162_Window, Geo_Format_Window, GNSS_Configuration_Windows, Port_Setup_Window,
    Layouts_Window, Sources_Window, Progress_Window, Comport_Info_Window, Virtual_Port_Window;

std::span<const Window_Class* const> All_Windows() {
    static constexpr const Window_Class* Table[] = {
        &GNSS_Windows,
        &Gyro_Windows,
        &Log_Windows,
        &Echosounder_Windows,
        &Wind_Windows,
        &Ship_Window,
        &Ship_Setup_Window,
        &Set_SOG_Window,
        &Monitor_Window,
        &Extended_Monitor_Window,
        &Traffic_Window,
        &TCP_Status_Window,
        &IEC61162_Window,
        &Geo_Format_Window,
        &GNSS_Configuration_Windows,
        &Port_Setup_Window,
        &Layouts_Window,
        &Sources_Window,
        &Progress_Window,
        &Comport_Info_Window,
        &Virtual_Port_Window,
    };
    return Table;
}

} // namespace brinewright
