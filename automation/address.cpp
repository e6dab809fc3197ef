#include "automation/address.hpp"

#include "automation/rpc_error.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <string>

namespace brinewright {

namespace {

constexpr std::string_view State_Prefix = "state.";

// Whether it may be open, so that a path into a closed window can be told from a wrong one.
bool Is_Known_Window(const Automation_Target& Target, std::string_view Path) {
    if (Path == "frmMain") return true; // the container of all windows stands in no table
    return std::any_of(Target.Window_Table.begin(), Target.Window_Table.end(),
                       [&](const Window_Class* Known) {
                           if (Known->Count == 0) return Path == Known->Name;
                           for (int I = 1; I <= Known->Count; ++I)
                               if (Path == std::string(Known->Name) + "[" + std::to_string(I) + "]")
                                   return true;
                           return false;
                       });
}

[[noreturn]] void Unknown(std::string_view Path, const char* Why) {
    throw Rpc_Error{rpc_code::Unknown_Path, std::string(Path) + ": " + Why};
}

Address Find_In_Window(Form& Window, std::string_view Path, std::string_view Rest) {
    Address Found;
    Found.Window = Window.weak_from_this();
    const auto Dot = Rest.find('.');
    if (Control* Part = Window.Find(Rest.substr(0, Dot))) {
        Found.Kind = Address_Kind::Control;
        Found.Part = Part;
        if (Dot == std::string_view::npos) return Found;
        Found.Of_Control = Find_Property(*Part, Rest.substr(Dot + 1));
        if (!Found.Of_Control) Unknown(Path, "the control has no such property");
        return Found;
    }
    Found.Kind = Address_Kind::Form;
    Found.Of_Form = Find_Property(Rest);
    if (!Found.Of_Form) Unknown(Path, "the window has no such control");
    return Found;
}

} // namespace

Form& Find_Window(const Automation_Target& Target, std::string_view Path) {
    if (Form* Window = Target.Windows.Find_Form(Path)) return *Window;
    if (Is_Known_Window(Target, Path)) throw Rpc_Error{rpc_code::Closed, std::string(Path) + " is not open"};
    Unknown(Path, "there is no such window");
}

Address Find_Address(const Automation_Target& Target, std::string_view Path) {
    if (Path.substr(0, State_Prefix.size()) == State_Prefix) {
        Address Found;
        Found.State = Find_State(Target.State, Path.substr(State_Prefix.size()));
        return Found;
    }
    if (Path == "boxes") {
        Address Found;
        Found.Kind = Address_Kind::Boxes;
        return Found;
    }
    const auto Dot = Path.find('.');
    Form& Window = Find_Window(Target, Path.substr(0, Dot));
    if (Dot != std::string_view::npos) return Find_In_Window(Window, Path, Path.substr(Dot + 1));
    Address Found;
    Found.Kind = Address_Kind::Form;
    Found.Window = Window.weak_from_this();
    return Found;
}

Json Address_Json(const Automation_Target& Target, const Address& Of) {
    if (Of.Kind == Address_Kind::State) return State_Json(Of.State);
    if (Of.Kind == Address_Kind::Boxes) return Boxes_Json(Target.Windows);
    const std::shared_ptr<Form> Window = Of.Window.lock();
    if (!Window || !Window->Loaded) return nullptr;
    if (Of.Kind == Address_Kind::Form) return Of.Of_Form ? Of.Of_Form->Read(*Window) : Form_Json(*Window);
    if (!Of.Of_Control) return Default_Json(*Of.Part);
    return Of.Of_Control->Read(*Of.Part).value_or(nullptr);
}

Json Boxes_Json(const Desktop& Windows) {
    constexpr std::array Icon_Names{"None", "Information", "Warning", "Stop"};
    Json All = Json::array();
    for (const Message_Box& Box : Windows.Boxes.Standing) {
        Json Captions = Json::array();
        for (const Box_Button Button : Buttons_Of(Box.Buttons)) Captions.push_back(Caption_Of(Button));
        All.push_back({{"id", Box.Id},
                       {"kind", "message"},
                       {"title", To_UTF8(Box.Title)},
                       {"text", To_UTF8(Box.Text)},
                       {"icon", Icon_Names.at(static_cast<std::size_t>(Box.Icon))},
                       {"buttons", std::move(Captions)}});
    }
    for (const File_Dialog& Dialog : Windows.File_Dialogs)
        All.push_back({{"id", Dialog.Id},
                       {"kind", Dialog.Save ? "save file" : "open file"},
                       {"title", To_UTF8(Dialog.Title)},
                       {"filter", To_UTF8(Dialog.Filter)},
                       {"extension", To_UTF8(Dialog.Default_Extension)},
                       {"folder", To_UTF8(Dialog.Folder)}});
    return All;
}

} // namespace brinewright
