#pragma once

#include "automation/address.hpp"

#include <string>

namespace brinewright {

// What a user can do, each as one event of the desktop. A refusal throws Rpc_Error, and then nothing has
// changed, not even the focus; any other failure of a handler is told in a box, as for a user.

void Click_By_User(const Automation_Target& Target, const Address& Where, Mouse_Button Which);
// A text box: typed into and left. A list: by number or text. A place of a window: moved or sized.
void Set_By_User(const Automation_Target& Target, const Address& Where, const Json& Value);
void Type_By_User(const Automation_Target& Target, const Address& Where, const std::string& Text);
void Focus_By_User(const Automation_Target& Target, const Address& Where);
void Leave_By_User(const Automation_Target& Target);
void Key_By_User(const Automation_Target& Target, Form& Window, int Key_Code, Key_Modifiers Held);
void Close_By_User(const Automation_Target& Target, Form& Window);
// Box or dialog Id. File_Path only counts for a dialog, where an empty one says that none was chosen; Button
// only for a box: its caption or its number from 0, null for the default.
void Answer_By_User(const Automation_Target& Target, std::int64_t Id, const std::string& File_Path,
                    const Json& Button);

} // namespace brinewright
