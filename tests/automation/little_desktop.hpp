#pragma once

#include "automation/automation.hpp"
#include "platform/virtual_platform.hpp"
#include "shell/main/window_table.hpp"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brinewright {

// A window with one control of each kind, and a record of what their handlers did.
struct Little_Form : Form {
    Little_Form(Desktop& Its_Desktop, int Its_Instance)
        : Form(Its_Desktop, "frmPosition", Its_Instance, Form_Kind::Child) {
        for (const char* Period : {"0.1", "1", " 10"}) cmbGGAInterval.Add_Item(Period, 7);
        cmbFree.Free_Text = true;
        txtTold.Read_Only = true;
        chkHidden.Visible = false;
        cmdDisabled.Enabled = false;
        Sky.Set_Rows(1);
        Sky.Set_Cell(0, 1, "45");
        cmdStart.Click = [this] { Done.emplace_back("start"); };
        cmdDisabled.Click = [this] { Done.emplace_back("never"); };
        cmdFail.Click = [] { throw Run_Time_Error("Overflow"); };
        cmdRefuse.Click = [] { throw User_Refusal("Not now"); };
        cmdClose.Click = [this] { Windows.Unload(*this); };
        lblTip.Mouse_Down = [this](Mouse_Button B) {
            Done.emplace_back(B == Mouse_Button::Right ? "right" : "left");
        };
        txtLat.Got_Focus = [this] { Done.emplace_back("enter"); };
        txtLat.Lost_Focus = [this] { Done.emplace_back("leave"); };
        txtLat.Key_Down = [this](int Code) { return Done.push_back("key " + std::to_string(Code)), true; };
        timer_GGA.Tick = [this] { lblCount.Caption = std::to_string(++Ticks); };
        Caption = "GNSS  1";
        Set_Place(10, 20, 300, 400);
    }

    Check_Box chkGGA{*this, "chkGGA", "GGA"};
    Check_Box chkHidden{*this, "chkHidden"};
    Combo_Box cmbGGAInterval{*this, "cmbGGAInterval"};
    Combo_Box cmbFree{*this, "cmbFree"};
    Text_Box txtLat{*this, "txtLat", "53 00.000 N"};
    Text_Box txtTold{*this, "txtTold", "told"};
    Scroll_Bar scrSOG{*this, "scrSOG", 100, -20};
    Option_Group optUnit{*this, "optUnit", {"knots", "km/h"}};
    Button cmdStart{*this, "cmdStart", "START"};
    Button cmdDisabled{*this, "cmdDisabled"};
    Button cmdFail{*this, "cmdFail"};
    Button cmdRefuse{*this, "cmdRefuse"};
    Button cmdClose{*this, "cmdClose"};
    Label lblTip{*this, "lblTip", "5\xB0"};
    Label lblCount{*this, "lblCount"};
    Frame fraAll{*this, "fraAll", "All"};
    Check_Box chkInFrame{fraAll, "chkInFrame"};
    Menu_Item mnuOpen{Stand(*this).Element(3), "mnuOpen", "Open", "Window"};
    Grid Sky{*this, "grdSky", {"SV", "Elevation"}};
    Timer timer_GGA{*this, "timer_GGA"};

    int Ticks = 0;
    std::vector<std::string> Done;
};

// A desktop with that window in virtual time, and a session that operates it.
struct Little_Desktop {
    Memory_Files Disk;
    Memory_Settings Settings;
    Virtual_Platform Services{Disk, Settings, 1'767'225'600'000'000}; // 2026-01-01 00:00:00
    Timer_Queue Timers{Services.Time()};
    Simulator_State State;
    Link_Table Links;
    Desktop Windows{Timers};
    std::shared_ptr<Little_Form> Window = Open();
    std::vector<std::string> Pushed;
    double Hooks_Limit_s = 1e9; // of one advance
    Automation_Session Session{Target(), Hooks()};

    Little_Desktop() {
        Session.Push = [this](std::string Line) { Pushed.push_back(std::move(Line)); };
    }
    std::shared_ptr<Little_Form> Open() {
        auto Made = std::make_shared<Little_Form>(Windows, 1);
        Windows.Event([&] { Windows.Show(Made); });
        return Made;
    }
    Automation_Target Target() { return {Windows, State, Links, All_Windows()}; }
    Automation_Hooks Hooks() {
        Automation_Hooks Lent;
        Lent.Advance = [this](double Seconds) { Advance(std::min(Seconds, Hooks_Limit_s)); };
        return Lent;
    }
    void Advance(double Seconds) {
        Services.Run_Until(Timers, Timers.Time.Wide_us() + static_cast<std::int64_t>(Seconds * 1e6));
    }
};

} // namespace brinewright
