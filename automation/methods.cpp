#include "automation/methods.hpp"

#include "automation/rpc_error.hpp"
#include "automation/statistics.hpp"
#include "automation/user_actions.hpp"
#include "automation/watch_list.hpp"

#include <algorithm>
#include <iterator>

namespace brinewright {

namespace {

constexpr double Longest_Advance_s = 366.0 * 86400.0;

[[noreturn]] void Wrong_Parameter(const std::string& Why) { throw Rpc_Error{rpc_code::Params, Why}; }

std::string Text_Parameter(const Json& Bound, const char* Name) {
    const auto Found = Bound.find(Name);
    if (Found == Bound.end()) return {};
    if (!Found->is_string()) Wrong_Parameter(std::string(Name) + " must be a text");
    return To_Latin1(Found->get_ref<const std::string&>());
}

Address Path_Parameter(const Automation_Core& Core, const Json& Bound) {
    return Find_Address(Core.Target, Text_Parameter(Bound, "path"));
}

Json Get(Automation_Core& Core, const Json& Bound) {
    return Address_Json(Core.Target, Path_Parameter(Core, Bound));
}

Json Set(Automation_Core& Core, const Json& Bound) {
    Set_By_User(Core.Target, Path_Parameter(Core, Bound), Bound.at("value"));
    return true;
}

Json Click(Automation_Core& Core, const Json& Bound) {
    const std::string Button = Text_Parameter(Bound, "button");
    if (!Button.empty() && Button != "left" && Button != "right")
        Wrong_Parameter("button must be left or right");
    Click_By_User(Core.Target, Path_Parameter(Core, Bound),
                  Button == "right" ? Mouse_Button::Right : Mouse_Button::Left);
    return true;
}

Json Type(Automation_Core& Core, const Json& Bound) {
    const Address Where = Path_Parameter(Core, Bound);
    Type_By_User(Core.Target, Where, Text_Parameter(Bound, "text"));
    return true;
}

Json Focus(Automation_Core& Core, const Json& Bound) {
    Focus_By_User(Core.Target, Path_Parameter(Core, Bound));
    return true;
}

Json Leave(Automation_Core& Core, const Json&) {
    Leave_By_User(Core.Target);
    return true;
}

int Key_Code(const Json& Code) {
    struct Named_Key {
        std::string_view Name;
        int Code;
    };
    constexpr std::array Keys{Named_Key{"Enter", key::Enter},
                              Named_Key{"Escape", key::Escape},
                              Named_Key{"Left", key::Left},
                              Named_Key{"Up", key::Up},
                              Named_Key{"Right", key::Right},
                              Named_Key{"Down", key::Down},
                              Named_Key{"Page_Up", key::Page_Up},
                              Named_Key{"Page_Down", key::Page_Down}};
    if (Code.is_number_unsigned() && Code.get<std::uint64_t>() >= 1 && Code.get<std::uint64_t>() <= 255)
        return Code.get<int>();
    for (const Named_Key& Key : Keys)
        if (Code == Key.Name) return Key.Code;
    Wrong_Parameter("code must be 1 to 255, Left, Up, Right, Down, Page_Up, Page_Down, Enter or Escape");
}

Key_Modifiers Held_Keys(const Json& Names) {
    Key_Modifiers Held;
    const struct {
        std::string_view Name;
        bool& Flag;
    } Keys[] = {{"Shift", Held.Shift}, {"Ctrl", Held.Ctrl}, {"Alt", Held.Alt}};
    if (Names.is_null()) return Held;
    if (!Names.is_array()) Wrong_Parameter("held must be a list of Shift, Ctrl and Alt");
    for (const Json& Name : Names) {
        const auto* Found =
            std::find_if(std::begin(Keys), std::end(Keys), [&](const auto& Key) { return Name == Key.Name; });
        if (Found == std::end(Keys)) Wrong_Parameter("held must be a list of Shift, Ctrl and Alt");
        Found->Flag = true;
    }
    return Held;
}

Json Key(Automation_Core& Core, const Json& Bound) {
    const int Code = Key_Code(Bound.at("code"));
    Key_By_User(Core.Target, Find_Window(Core.Target, Text_Parameter(Bound, "path")), Code,
                Held_Keys(Bound.value("held", Json())));
    return true;
}

Json Close(Automation_Core& Core, const Json& Bound) {
    Close_By_User(Core.Target, Find_Window(Core.Target, Text_Parameter(Bound, "path")));
    return true;
}

// Every window that there is, open or not, with the menu item that opens it.
Json Window_List(const Automation_Target& Target) {
    Json Rows = Json::array();
    for (const Window_Class* Class : Target.Window_Table)
        for (int I = Class->Count == 0 ? 0 : 1; I <= Class->Count; ++I) {
            const std::string Name = Class->Name;
            Json Row{{"path", I == 0 ? Name : Name + "[" + std::to_string(I) + "]"}};
            if (Class->Entry.Name)
                Row["menu"] = std::string("frmMain.") + Class->Entry.Name +
                              (I == 0 ? "" : "(" + std::to_string(Class->First_Form_Index + I - 1) + ")");
            Rows.push_back(std::move(Row));
        }
    return Rows;
}

Json List(Automation_Core& Core, const Json& Bound) {
    const std::string Path = Text_Parameter(Bound, "path");
    if (Path == "state") return State_List(Core.Target.State);
    if (Path == "windows") return Window_List(Core.Target);
    Json Rows = Json::array();
    if (Path.empty()) {
        for (const auto& Window : Core.Target.Windows.Forms) Rows.push_back(Form_Json(*Window));
        return Rows;
    }
    const Address Where = Find_Address(Core.Target, Path);
    if (Where.Kind == Address_Kind::Control && !Where.Of_Control) return Control_Json(*Where.Part, true);
    if (Where.Kind != Address_Kind::Form || Where.Of_Form)
        throw Rpc_Error{rpc_code::Unknown_Path,
                        Path + ": only windows, controls and the words state and windows can be listed"};
    const std::shared_ptr<Form> Window = Where.Window.lock();
    for (const Control* Part : Window->Controls) Rows.push_back(Control_Json(*Part, false));
    return Rows;
}

Json Watch_Path(Automation_Core& Core, const Json& Bound) {
    return Add_Watch(Core, Text_Parameter(Bound, "path"));
}

Json Unwatch_Path(Automation_Core& Core, const Json& Bound) {
    Remove_Watch(Core, Text_Parameter(Bound, "path"));
    return true;
}

Json Boxes(Automation_Core& Core, const Json&) { return Boxes_Json(Core.Target.Windows); }

Json Answer(Automation_Core& Core, const Json& Bound) {
    const Json& Id = Bound.at("id");
    if (!Id.is_number_unsigned()) Wrong_Parameter("id must be the number of a box");
    Answer_By_User(Core.Target, Id.get<std::int64_t>(), Text_Parameter(Bound, "path"),
                   Bound.value("button", Json()));
    return true;
}

Json Advance(Automation_Core& Core, const Json& Bound) {
    if (!Core.Hooks.Advance)
        throw Rpc_Error{rpc_code::Not_Virtual, "The program does not run in virtual time"};
    const Json& Seconds = Bound.at("seconds");
    if (!Seconds.is_number()) Wrong_Parameter("seconds must be a number");
    const double Duration_s = Seconds.get<double>();
    if (!(Duration_s >= 0 && Duration_s <= Longest_Advance_s))
        throw Rpc_Error{rpc_code::Value_Refused, "seconds must be 0 to 31622400"};
    Core.Hooks.Advance(Duration_s);
    return {{"uptime_s", Uptime_s(Core.Target, Core.Hooks)}, {"local_time", Local_Time_Text(Core.Target)}};
}

Json Grab(Automation_Core& Core, const Json& Bound) {
    const Form& Window = Find_Window(Core.Target, Text_Parameter(Bound, "path"));
    const std::string File = Text_Parameter(Bound, "file");
    if (!Core.Hooks.Grab)
        throw Rpc_Error{rpc_code::Not_Available,
                        "This program shows no windows, so there is no picture to take"};
    const std::string Failure = Core.Hooks.Grab(Window.Path(), File);
    if (!Failure.empty()) throw Rpc_Error{rpc_code::Not_Available, Failure};
    return true;
}

Json Stats(Automation_Core& Core, const Json&) { return Statistics_Json(Core.Target, Core.Hooks); }

Json Ping(Automation_Core&, const Json&) { return "pong"; }

Json Version(Automation_Core& Core, const Json&) {
    constexpr int Protocol = 1; // grows when a script of today would fail tomorrow
    return {{"name", "Brinewright"}, {"version", To_UTF8(Core.Hooks.Version)}, {"protocol", Protocol}};
}

constexpr bool Needed = true;
constexpr std::array Methods{
    Rpc_Method{"get", {{{"path", Needed}}}, Get},
    Rpc_Method{"set", {{{"path", Needed}, {"value", Needed}}}, Set},
    Rpc_Method{"click", {{{"path", Needed}, {"button"}}}, Click},
    Rpc_Method{"type", {{{"path", Needed}, {"text", Needed}}}, Type},
    Rpc_Method{"focus", {{{"path", Needed}}}, Focus},
    Rpc_Method{"leave", {}, Leave},
    Rpc_Method{"key", {{{"path", Needed}, {"code", Needed}, {"held"}}}, Key},
    Rpc_Method{"close", {{{"path", Needed}}}, Close},
    Rpc_Method{"list", {{{"path"}}}, List},
    Rpc_Method{"watch", {{{"path", Needed}}}, Watch_Path},
    Rpc_Method{"unwatch", {{{"path"}}}, Unwatch_Path},
    Rpc_Method{"boxes", {}, Boxes},
    Rpc_Method{"answer", {{{"id", Needed}, {"path"}, {"button"}}}, Answer},
    Rpc_Method{"advance", {{{"seconds", Needed}}}, Advance},
    Rpc_Method{"grab", {{{"path", Needed}, {"file", Needed}}}, Grab},
    Rpc_Method{"stats", {}, Stats},
    Rpc_Method{"ping", {}, Ping},
    Rpc_Method{"version", {}, Version},
};

const Rpc_Parameter* Find_Parameter(const Rpc_Method& Method, std::string_view Name) {
    for (const Rpc_Parameter& P : Method.Parameters)
        if (P.Name && P.Name == Name) return &P;
    return nullptr;
}

} // namespace

const Rpc_Method& Find_Method(std::string_view Name) {
    const auto Found =
        std::find_if(Methods.begin(), Methods.end(), [&](const Rpc_Method& M) { return M.Name == Name; });
    if (Found == Methods.end()) throw Rpc_Error{rpc_code::Unknown_Method, "Method not found"};
    return *Found;
}

Json Bind_Parameters(const Rpc_Method& Method, const Json& Request) {
    Json Bound = Json::object();
    if (const auto Given = Request.find("params"); Given != Request.end()) {
        if (Given->is_object()) {
            for (const auto& [Name, Value] : Given->items())
                if (!Find_Parameter(Method, Name))
                    Wrong_Parameter("There is no parameter of one of these names");
            Bound = *Given;
        } else {
            std::size_t Place = 0;
            for (const Json& Value : *Given) {
                if (Place >= Method.Parameters.size() || !Method.Parameters[Place].Name)
                    Wrong_Parameter("There are too many parameters");
                Bound[Method.Parameters[Place++].Name] = Value;
            }
        }
    }
    for (const Rpc_Parameter& P : Method.Parameters)
        if (P.Name && P.Required && !Bound.contains(P.Name))
            Wrong_Parameter("The parameter " + std::string(P.Name) + " is missing");
    return Bound;
}

} // namespace brinewright
