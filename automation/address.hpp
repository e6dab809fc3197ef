#pragma once

#include "automation/automation.hpp"
#include "automation/properties.hpp"
#include "automation/state_reader.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace brinewright {

enum class Address_Kind { State, Boxes, Form, Control };

// What a path leads to: state.GNSS_Lat[1], boxes, frmMain, frmMain.Left, frmPosition[1].chkGGA,
// frmPosition[1].cmbGGAInterval.ListIndex. A control is good as long as Window is held and loaded.
struct Address {
    Address_Kind Kind = Address_Kind::State;
    State_Place State;
    std::weak_ptr<Form> Window;
    Control* Part = nullptr;
    const Control_Property* Of_Control = nullptr; // null: what the control holds
    const Form_Property* Of_Form = nullptr;       // null: the whole form
};

// Path is 8-bit text. Throws Rpc_Error: Unknown_Path, or Closed for a window that exists but is not open.
Address Find_Address(const Automation_Target& Target, std::string_view Path);

// The open window of that path; the same errors.
Form& Find_Window(const Automation_Target& Target, std::string_view Path);

// Null when its window has been closed since.
Json Address_Json(const Automation_Target& Target, const Address& Of);

// The message boxes and file dialogs that stand.
Json Boxes_Json(const Desktop& Windows);

} // namespace brinewright
