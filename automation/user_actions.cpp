#include "automation/user_actions.hpp"

#include "automation/rpc_error.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>
#include <variant>

namespace brinewright {

namespace {

// Far outside any screen, and far inside of what a float counts exactly; in twentieths of a point.
constexpr double Farthest_Place = 500'000;

[[noreturn]] void Refuse(const std::string& Why) { throw Rpc_Error{rpc_code::Refused, Why}; }
[[noreturn]] void Refuse_Value(const std::string& Why) { throw Rpc_Error{rpc_code::Value_Refused, Why}; }

template <class F>
void As_User(const Automation_Target& Target, F&& Action) {
    std::optional<std::string> Refusal;
    Target.Windows.Event([&] {
        try {
            Action();
        } catch (const User_Refusal& Told) {
            Refusal = Told.what();
        }
    });
    if (Refusal) Refuse(*Refusal);
}

Control& Usable_Control(const Automation_Target& Target, const Address& Where) {
    if (Where.Kind != Address_Kind::Control) Refuse("This is no control");
    std::string Why;
    if (!Target.Windows.Usable(*Where.Part, &Why)) Refuse(Why);
    return *Where.Part;
}

// Before anything moves: would the control take this value from a hand?
void Check_Value(const Control& Of, const Control_Value& Value) {
    if (Of.Kind == Control_Kind::Button || Of.Kind == Control_Kind::Menu_Item)
        Refuse("This takes clicks, not values");
    try {
        Of.Check(Value);
    } catch (const Value_Refusal& Told) {
        Refuse_Value(Told.what());
    } catch (const User_Refusal& Told) {
        Refuse(Told.what());
    }
}

// The value of Json as the control and the property want it. A number for a text box is typed as it stands.
Control_Value Wanted_Value(const Control& Of, Settable How, const Json& Value) {
    if (Of.Kind == Control_Kind::Text_Box && Value.is_number()) return Json_Line(Value);
    Control_Value Wanted = To_Control_Value(Value);
    if (How == Settable::By_Number && !std::holds_alternative<std::int64_t>(Wanted))
        Refuse_Value("The number of an entry is wanted");
    if (How == Settable::By_Text && !std::holds_alternative<std::string>(Wanted))
        Refuse_Value("A text is wanted");
    return Wanted;
}

void Set_Control(const Automation_Target& Target, const Address& Where, const Json& Value) {
    const Settable How = Where.Of_Control ? Where.Of_Control->Set : Settable::Value;
    if (How == Settable::Never)
        throw Rpc_Error{rpc_code::Read_Only, "Only the program itself sets this property"};
    Control& Part = Usable_Control(Target, Where);
    const Control_Value Wanted = Wanted_Value(Part, How, Value);
    Check_Value(Part, Wanted);
    As_User(Target, [&] { Target.Windows.User_Set(Part, Wanted); });
}

// By caption or by number from 0; null is the default one.
std::optional<Box_Button> Wanted_Button(const Message_Box& Box, const Json& Button) {
    if (Button.is_null()) return std::nullopt;
    const auto Buttons = Buttons_Of(Box.Buttons);
    for (std::size_t I = 0; I < Buttons.size(); ++I)
        if (Button == I || Button == Caption_Of(Buttons[I])) return Buttons[I];
    Refuse_Value("The box has no such button");
}

void Set_Place(const Automation_Target& Target, const Address& Where, const Json& Value) {
    const std::shared_ptr<Form> Window = Where.Window.lock();
    if (!Where.Of_Form || !Where.Of_Form->Set || !Window)
        throw Rpc_Error{rpc_code::Read_Only, "Of a window only Left, Top, Width and Height can be set"};
    if (!Value.is_number()) Refuse_Value("A number is wanted");
    const std::string_view Name = Where.Of_Form->Name;
    const double Least = Name == "Width" || Name == "Height" ? 0 : -Farthest_Place;
    const double Number = Value.get<double>();
    if (!(Number >= Least && Number <= Farthest_Place)) Refuse_Value("The number is out of range");
    As_User(Target, [&] { Where.Of_Form->Set(*Window, static_cast<float>(Number)); });
}

} // namespace

void Click_By_User(const Automation_Target& Target, const Address& Where, Mouse_Button Which) {
    Control& Part = Usable_Control(Target, Where);
    if (Part.Kind == Control_Kind::Frame || Part.Kind == Control_Kind::Grid) Refuse("This takes no clicks");
    if (Which == Mouse_Button::Right && Part.Kind != Control_Kind::Label)
        Refuse("This takes no right clicks");
    As_User(Target, [&] { Target.Windows.User_Click(Part, Which); });
}

void Set_By_User(const Automation_Target& Target, const Address& Where, const Json& Value) {
    switch (Where.Kind) {
    case Address_Kind::State: throw Rpc_Error{rpc_code::Read_Only, "State is set through the windows"};
    case Address_Kind::Boxes: throw Rpc_Error{rpc_code::Read_Only, "Boxes are answered, not set"};
    case Address_Kind::Form: return Set_Place(Target, Where, Value);
    case Address_Kind::Control: return Set_Control(Target, Where, Value);
    }
}

void Type_By_User(const Automation_Target& Target, const Address& Where, const std::string& Text) {
    Control& Part = Usable_Control(Target, Where);
    const bool Free_List =
        Part.Kind == Control_Kind::Combo_Box && static_cast<const Combo_Box&>(Part).Free_Text;
    if (Part.Kind != Control_Kind::Text_Box && !Free_List) Refuse("This takes no typing");
    Check_Value(Part, Text);
    As_User(Target, [&] { Target.Windows.User_Type(Part, Text); });
}

void Focus_By_User(const Automation_Target& Target, const Address& Where) {
    Control& Part = Usable_Control(Target, Where);
    if (!Part.Can_Focus()) Refuse("This cannot have the focus");
    As_User(Target, [&] { Target.Windows.User_Focus(Part); });
}

void Leave_By_User(const Automation_Target& Target) {
    As_User(Target, [&] { Target.Windows.Set_Focus(nullptr); });
}

void Key_By_User(const Automation_Target& Target, Form& Window, int Key_Code, Key_Modifiers Held) {
    As_User(Target, [&] { Target.Windows.User_Key(Window, Key_Code, Held); });
}

void Close_By_User(const Automation_Target& Target, Form& Window) {
    As_User(Target, [&] { Target.Windows.User_Close(Window); });
}

void Answer_By_User(const Automation_Target& Target, std::int64_t Id, const std::string& File_Path,
                    const Json& Button) {
    Desktop& Windows = Target.Windows;
    const auto Has_Id = [&](const auto& Box) { return Box.Id == Id; };
    const auto& Standing = Windows.Boxes.Standing;
    const auto Box = std::find_if(Standing.begin(), Standing.end(), Has_Id);
    if (Box != Standing.end()) {
        const auto Pressed = Wanted_Button(*Box, Button);
        return As_User(Target, [&] { Windows.Boxes.Answer(Id, Pressed); });
    }
    if (!Button.is_null()) Refuse_Value("Only a message box has buttons to choose from");
    if (std::none_of(Windows.File_Dialogs.begin(), Windows.File_Dialogs.end(), Has_Id))
        throw Rpc_Error{rpc_code::Unknown_Box, "No box with this id stands"};
    As_User(Target, [&] { Windows.Answer_File(Id, File_Path); });
}

} // namespace brinewright
