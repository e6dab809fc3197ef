#include "gnss/position/frm_position.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/position_parts.hpp"
#include "ownship/geodesy/format_position.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 1;
// Lengths in twentieths of a point.
constexpr int GGA_Width = 11400;
constexpr int GSA_Width = 4800;
constexpr int GSV_Width = 3750;
constexpr int GST_Width = 150;    // it stands below GSV
constexpr int Alone_Margin = 300; // right of frmGGA when it stands alone
constexpr int Margin = 200;       // right of the last frame otherwise
constexpr float Sensor_Height = 9330;
constexpr float Simulator_Height = 3495;
constexpr float Simulator_Control_Height = 975;

constexpr int First_Position_Decimals = 3;
constexpr const char* Position_Decimals[] = {" 3", " 4", " 5", " 6"};
constexpr int Default_Position_Decimals = 1; // ListIndex
constexpr const char* Time_Decimals[] = {" 0", " 1", " 2"};

// In Ship mode the ship model moves the sensor: the window is its sentences alone. The messages move up by
// themselves where the frames have left.
void Apply_Mode(const Simulator& Sim, frmPosition& W) {
    const bool Ship_Mode = Sim.State.Of<Shell_State>().Mode == "Ship";
    W.lblShipControl.Visible = Ship_Mode;
    W.frmSimulator.Visible = W.frmSimulatorControl.Visible = !Ship_Mode;
    W.Resize(W.Width,
             Ship_Mode ? Sensor_Height - Simulator_Height - Simulator_Control_Height : Sensor_Height);
}

void Keep_Decimals(GNSS_State& S, frmPosition& W) {
    std::int16_t& Stored = S.GNSS_Decimals_Position[W.Instance];
    Add_Items(W.cmbDecimals, Position_Decimals);
    W.cmbDecimals.Click = [&W, &Stored] {
        Stored = static_cast<std::int16_t>(W.cmbDecimals.List_Index() + First_Position_Decimals);
    };
    Restore_Choice(W.cmbDecimals, Stored - First_Position_Decimals, Default_Position_Decimals);
    Add_Items(W.cmbDecimalsTime, Time_Decimals);
    Keep(W.cmbDecimalsTime, S.GNSS_Decimals_Time[W.Instance], 0);
}

// The configuration in effect, which a dialog of its own sets.
void Show_Configuration(const GNSS_State& S, frmPosition& W) {
    W.lblGNS_ModeIndicator.Caption = S.GNS_Mode_Indicator[W.Instance];
    W.lblGNSS.Caption = S.GNSS_Systems_Text[W.Instance];
    W.lblGNS_Talker.Caption = S.GNS_Talker[W.Instance];
}

void Wire_Configuration(Simulator& Sim, frmPosition& W) {
    GNSS_State& S = Sim.State.Of<GNSS_State>();
    W.cmdGNSS.Click = [&Sim, &S, &W] {
        S.GNSS_Config_Index = static_cast<std::int16_t>(W.Instance);
        Open_Window(Sim, "frmGNSS", W.Instance);
    };
    Sim.Told.Switched.Add(W, [&S, &W] { Show_Configuration(S, W); });
    Show_Configuration(S, W);
}

// The magnetic variation enters RMC, and the DOP values the second GSA, here and never again: a later change
// counts when the window is opened anew.
void Fill_Records(const Simulator_State& State, frmPosition& W) {
    const float Variation = State.Of<Navdata_State>().Magnetic_Variation;
    W.RMC_Record.Mag_Var = std::abs(Variation);
    W.RMC_Record.Mag_Dir = Variation < 0 ? 'W' : 'E';
    W.GSA2_Record.Talker = "GL";
    W.GSA2_Record.PDOP = W.GSA_Record.PDOP;
    W.GSA2_Record.HDOP = W.GSA_Record.HDOP;
    W.GSA2_Record.VDOP = W.GSA_Record.VDOP;
}

void Form_Load(Simulator& Sim, frmPosition& W) {
    GNSS_State& S = Sim.State.Of<GNSS_State>();
    Wire_Routing(Sim, W, S.GNSS_Talker[W.Instance]);
    Wire_Sentences(Sim, W);
    Fit_Width(Sim, W);
    Apply_Mode(Sim, W);
    Open_Motion(Sim, W);
    Keep_Decimals(S, W);
    Open_Fix(Sim, W);
    Open_Satellites(Sim, W);
    Open_GST(W);
    Wire_Configuration(Sim, W);
    Fill_Records(Sim.State, W);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

std::string Value_Now(const Simulator_State& S, int Instance) {
    return Format_DM(S.Of<GNSS_State>().GNSS_Lat[Instance], "LAT", "Form", 1) + " " +
           Format_DM(S.Of<GNSS_State>().GNSS_Lon[Instance], "LON", "Form", 1);
}

} // namespace

frmPosition::frmPosition(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "GP",
                  "Talker of all sentences but GNS, two characters") {
    frmGGA.Width = GGA_Width;
    frmGSA.Width = GSA_Width;
    frmGSV.Width = GSV_Width;
    frmGST.Width = GST_Width;
    lblArrows.Visible = false;
    txtDummy.Visible = false;
    lblGSAWarning.Visible = false;
    cmdPause.Enabled = false;
}

const Window_Class GNSS_Windows{
    .Name = frmPosition::Class_Name,
    .Count = 2,
    .First_Form_Index = First_Form_Index,
    .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "GNSS", .Place = 2},
    .Caption = "GNSS #    (Global Nav Sat System#)",
    .Make = Make_Instance<frmPosition>,
    .Load = Load_Sensor<frmPosition, Form_Load>,
    .Lay_Out = Lay_Out_Position,
    .Lay_Out_Small = Lay_Out_Small_Position,
    .Value_Now = Value_Now,
    .Sentences = GNSS_Sentences()};

void Fit_Width(Simulator& Sim, frmPosition& W) {
    const GNSS_State& S = Sim.State.Of<GNSS_State>();
    const struct {
        const Frame& Place;
        bool Enabled;
    } Frames[] = {{W.frmGSA, S.GSA_Enabled[W.Instance]},
                  {W.frmGSV, S.GSV_Enabled[W.Instance]},
                  {W.frmGST, S.GST_Enabled[W.Instance]}};
    int Sum = W.frmGGA.Width;
    int Fitting = Sum + Alone_Margin;
    for (const auto& F : Frames) {
        Sum += F.Place.Width;
        if (F.Enabled) Fitting = Sum + Margin;
    }
    W.Resize(static_cast<float>(Fitting), W.Height);
}

} // namespace brinewright
