#include "gnss/position/frm_position.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/datum_controls.hpp"
#include "gnss/position/fix_quality.hpp"
#include "gnss/position/gnss_records.hpp"
#include "gnss/position/gnss_ticks.hpp"
#include "gnss/position/gst_controls.hpp"
#include "gnss/position/mode_lists.hpp"
#include "gnss/position/motion_controls.hpp"
#include "gnss/position/position_simulator.hpp"
#include "gnss/position/position_tips.hpp"
#include "gnss/position/satellite_controls.hpp"
#include "ownship/geodesy/position_text.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

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

constexpr double Simulator_Period_ms = 1000;

constexpr int First_Position_Decimals = 3;
constexpr const char* Position_Decimals[] = {" 3", " 4", " 5", " 6"};
constexpr int Default_Position_Decimals = 1; // ListIndex
constexpr const char* Time_Decimals[] = {" 0", " 1", " 2"};

// The configuration in effect, which a dialog of its own sets.
void Show_GNSS_Configuration(const Simulator_State& State, frmPosition& W) {
    W.lblGNS_ModeIndicator.Caption = State.Of<GNSS_State>().GNS_Mode_Indicator[W.Instance];
    W.lblGNSS.Caption = State.Of<GNSS_State>().GNSS_Systems_Text[W.Instance];
    W.lblGNS_Talker.Caption = State.Of<GNSS_State>().GNS_Talker[W.Instance];
}

// Everything in frmSimulator and frmSimulatorControl.
std::vector<Visible_Control*> Simulator_Controls(frmPosition& W) {
    return {&W.frmSimulator,
            &W.lblStartLat,
            &W.txtLat,
            &W.lblStartLon,
            &W.txtLon,
            &W.chkFixOffset,
            &W.lblLatitude,
            &W.lblLat,
            &W.lblLongitude,
            &W.lblLon,
            &W.frmSOG,
            &W.scrSOG,
            &W.lblSOG,
            &W.txtSOG,
            &W.lblSOGUnit,
            &W.frmCOG,
            &W.scrCOG,
            &W.lblCOG,
            &W.txtCOG,
            &W.lblCOGUnit,
            &W.chkNoise,
            &W.lblMaxNoise,
            &W.cmbNoise,
            W.optAccumulatedNoise.Buttons[0].get(),
            W.optAccumulatedNoise.Buttons[1].get(),
            &W.frmSimulatorControl,
            &W.cmdStart,
            &W.cmdPause,
            &W.cmdArrows};
}

// In Ship mode the ship model moves the sensor: the window is its sentences alone. What stands in the hidden
// frames is hidden one by one, so that nobody can press START from outside either. The messages move up by
// themselves where the frames have left.
void Apply_Mode(const Simulator& Sim, frmPosition& W) {
    const bool Ship_Mode = Sim.State.Of<Shell_State>().Mode == "Ship";
    W.lblShipControl.Visible = Ship_Mode;
    if (Ship_Mode)
        for (Visible_Control* Part : Simulator_Controls(W)) Part->Visible = false;
    W.Resize(W.Width,
             Ship_Mode ? Sensor_Height - Simulator_Height - Simulator_Control_Height : Sensor_Height);
}

void Fill_Lists(frmPosition& W) {
    Fill_Fix_Quality(W);
    Fill_Mode_Lists(W);
    Fill_Datum_Lists(W);
    Add_Items(W.cmbDecimals, Position_Decimals);
    Add_Items(W.cmbDecimalsTime, Time_Decimals);
    Fill_Noise_List(W.cmbNoise);
    Fill_Satellite_Lists(W);
}

// Selecting runs the click operations, so that what depends on a choice fills itself.
void Restore_Settings(Simulator& Sim, frmPosition& W) {
    const Simulator_State& S = Sim.State;
    const int I = W.Instance;
    Restore_Choice(W.cmbDecimals, S.Of<GNSS_State>().GNSS_Decimals_Position[I] - First_Position_Decimals,
                   Default_Position_Decimals);
    Restore_Choice(W.cmbDecimalsTime, S.Of<GNSS_State>().GNSS_Decimals_Time[I], 0);
    Restore_Choice(W.cmbNoise, S.Of<GNSS_State>().GNSS_Noise_Index[I], 0);
    W.optAccumulatedNoise.Select(S.Of<GNSS_State>().GNSS_Noise_Accumulated[I] ? 1 : 0);
    W.chkNoise.Set_Value(S.Of<GNSS_State>().GNSS_Noise_Enabled[I]);
    chkNoise_Click(Sim, W); // an unchecked box has not clicked: its controls are disabled from the start
    Restore_Fix_Quality(W);
    W.cmbModeIndicator.Set_List_Index(0);
    Restore_Datum(W);
    Restore_Satellites(Sim, W);
    Show_GNSS_Configuration(S, W);
    Restore_Intervals(W.Sentences);
}

void Wire_Controls(Simulator& Sim, frmPosition& W) {
    W.cmdStart.Click = [&] { cmdStart_Click(Sim, W); };
    W.cmdPause.Click = [&] { cmdPause_Click(Sim, W); };
    W.cmbDecimals.Click = [&] { cmbDecimals_Click(Sim, W); };
    W.cmbDecimalsTime.Click = [&] { cmbDecimalsTime_Click(Sim, W); };
    Wire_Routing(Sim, W, Sim.State.Of<GNSS_State>().GNSS_Talker[W.Instance]);
    Wire_Position_Simulator(Sim, W);
    Wire_Motion_Controls(Sim, W);
    Wire_Fix_Quality(Sim, W);
    Wire_Mode_Lists(W);
    Wire_Datum_Controls(W);
    W.cmdGNSS.Click = [&] {
        Sim.State.Of<GNSS_State>().GNSS_Config_Index = static_cast<std::int16_t>(W.Instance);
        Open_Window(Sim, "frmGNSS", W.Instance);
    };
    Sim.Told.Switched.Add(W, [&] { Show_GNSS_Configuration(Sim.State, W); });
    Wire_Satellite_Controls(Sim, W);
    Wire_GST_Controls(W);
    Wire_Sentences(Sim, W);
}

void Form_Load(Simulator& Sim, frmPosition& W) {
    W.chkFixOffset.Visible = W.Instance == 2;
    Show_Motion(Sim.State, W); // before the wiring: showing the speed and course must not write them
    Wire_Controls(Sim, W);
    Fit_Width(Sim, W);
    Apply_Mode(Sim, W);
    Show_Start_Position(Sim.State, W);
    Show_Reported_Position(Sim.State, W);
    Fill_Lists(W);
    Restore_Settings(Sim, W);
    Read_Records(Sim.State, W);
    Start_Enabled_Sentences(W.Sentences);
    W.cmbInView.Set_List_Index(W.cmbInView.List_Index()); // builds the table
    Reset_Mode_Lists(W);
}

} // namespace

frmPosition::frmPosition(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "GP",
                  "Talker of all sentences but GNS, two characters") {
    frmGGA.Width = GGA_Width;
    frmGSA.Width = GSA_Width;
    frmGSV.Width = GSV_Width;
    frmGST.Width = GST_Width;
    lblShipControl.Visible = false;
    lblArrows.Visible = false;
    txtDummy.Visible = false;
    cmdPause.Enabled = false;
    Preset_Satellite_Boxes(*this);
    Preset_GST_Controls(*this);
    Set_Tool_Tips(*this);
    Set_Fix_Tool_Tips(*this);
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
    .Sentences = GNSS_Sentences()};

void Fit_Width(Simulator& Sim, frmPosition& W) {
    const struct {
        const Frame& Place;
        bool Enabled;
    } Frames[] = {{W.frmGSA, Sim.State.Of<GNSS_State>().GSA_Enabled[W.Instance]},
                  {W.frmGSV, Sim.State.Of<GNSS_State>().GSV_Enabled[W.Instance]},
                  {W.frmGST, Sim.State.Of<GNSS_State>().GST_Enabled[W.Instance]}};
    int Sum = W.frmGGA.Width;
    int Fitting = Sum + Alone_Margin;
    for (const auto& F : Frames) {
        Sum += F.Place.Width;
        if (F.Enabled) Fitting = Sum + Margin;
    }
    W.Resize(static_cast<float>(Fitting), W.Height);
}

// The caption stays: it becomes "Continue" by a pause and "START" again by another position.
void cmdStart_Click(Simulator&, frmPosition& W) {
    W.cmdPause.Enabled = true;
    W.txtLat.Enabled = false;
    W.txtLon.Enabled = false;
    W.timer_Simulator.Set_Interval(Simulator_Period_ms);
    Start_Sentences(W.Sentences);
}

void cmdPause_Click(Simulator&, frmPosition& W) {
    W.txtLat.Enabled = true;
    W.txtLon.Enabled = true;
    W.cmdStart.Caption = std::string("Continue");
    W.timer_Simulator.Set_Interval(0);
    Pause_Sentences(W.Sentences);
}

void cmbDecimals_Click(Simulator& Sim, frmPosition& W) {
    Sim.State.Of<GNSS_State>().GNSS_Decimals_Position[W.Instance] =
        static_cast<std::int16_t>(W.cmbDecimals.List_Index() + First_Position_Decimals);
}

void cmbDecimalsTime_Click(Simulator& Sim, frmPosition& W) {
    Sim.State.Of<GNSS_State>().GNSS_Decimals_Time[W.Instance] =
        static_cast<std::int16_t>(W.cmbDecimalsTime.List_Index());
}

} // namespace brinewright
