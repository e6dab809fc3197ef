#include "links/port_setup/port_detection.hpp"

#include "links/port_setup/frm_setup.hpp"
#include "links/serial_ports.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr double Turn_ms = 5;

enum class Port_Answer { There, Busy, Refused, Not_There };

Port_Answer Try_Port(Simulator& Sim, int Port) {
    Serial_Port& Line = Comport_Object(Sim, Port);
    // Open because sensors send on it: that says enough, and trying it would cut off what it sends.
    if (Line.Is_Open()) return Port_Answer::There;
    try {
        Line.Try();
        return Port_Answer::There;
    } catch (const Device_Busy&) {
        return Port_Answer::Busy;
    } catch (const Access_Refused&) {
        return Port_Answer::Refused;
    } catch (const Run_Time_Error&) {
        return Port_Answer::Not_There;
    }
}

void Look_At_Port(Simulator& Sim, frmSetup& F, int Port) {
    for (Combo_Box* List :
         {&F.cmbBaudRate[Port], &F.cmbDataBits[Port], &F.cmbParity[Port], &F.cmbStopBits[Port]})
        List->Set_List_Index(0);
    switch (Try_Port(Sim, Port)) {
    case Port_Answer::There:
        ++F.Found_Ports;
        Show_Port(Sim, F, Port, true);
        break;
    case Port_Answer::Busy:
        F.lblAvailable[Port].Caption = std::string("Port is busy");
        F.chkEnable[Port].Enabled = false;
        Show_Port(Sim, F, Port, true);
        break;
    case Port_Answer::Refused: ++F.Refused_Ports; break; // counts as not there
    case Port_Answer::Not_There: break;
    }
}

void Show_Progress(Simulator& Sim, const frmSetup& F) {
    auto* const Progress = Open_One<frmProgress>(Sim);
    if (!Progress) return; // the user has closed it
    const double Percent = 100.0 * F.Tried_Ports / port_number::Last_Serial;
    const std::int64_t Passed_us = Sim.Services.Time().Wide_us() - F.Detection_Start_us;
    Progress->lblPercent.Caption = std::to_string(std::lrint(Percent)) + " %";
    Progress->lblTime.Caption = std::to_string(Passed_us / us_Per_Second) + " sec";
}

void Tell_Result(Simulator& Sim, const frmSetup& F) {
    std::string Text = F.Found_Ports == 0 ? "No comports available on your PC" : "";
    if (F.Refused_Ports > 0) {
        if (!Text.empty()) Text += ". ";
        Text += std::to_string(F.Refused_Ports) + (F.Refused_Ports == 1 ? " port was" : " ports were") +
                " refused for lack of rights. Add your user to the group dialout (sudo usermod -aG dialout "
                "YOUR_NAME), log in again and press Reset.";
    }
    if (!Text.empty()) Sim.Windows.Boxes.Show(Text);
}

void Hold_Decisions(frmSetup& F, bool Held) {
    F.cmdOK.Enabled = !Held;
    F.cmdReset.Enabled = !Held;
}

void timer_Detection_Tick(Simulator& Sim, frmSetup& F) {
    Look_At_Port(Sim, F, ++F.Tried_Ports);
    Show_Progress(Sim, F);
    if (F.Tried_Ports < port_number::Last_Serial) return;
    F.timer_Detection.Set_Interval(0);
    Hold_Decisions(F, false);
    if (Form* const Progress = Open_Form(Sim, frmProgress::Class_Name)) Sim.Windows.Unload(*Progress);
    Tell_Result(Sim, F);
}

} // namespace

const Window_Class Progress_Window{.Name = frmProgress::Class_Name,
                                   .Make = Make_Single<frmProgress>,
                                   .Lay_Out = Lay_Out_Progress,
                                   .With_Focus = false};

frmProgress::frmProgress(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Tool) {
    Caption = "Detecting comports";
}

void Start_Detection(Simulator& Sim, frmSetup& F) {
    Sim.Windows.Boxes.Show(
        "The Brinewright will automatic detect available comports. It might take e few seconds. "
        "Please be pasient!");
    Open_Window(Sim, frmProgress::Class_Name);
    Hold_Decisions(F, true);
    F.Detection_Start_us = Sim.Services.Time().Wide_us();
    F.timer_Detection.Tick = [&Sim, &F] { timer_Detection_Tick(Sim, F); };
    F.timer_Detection.Set_Interval(Turn_ms);
}

} // namespace brinewright
