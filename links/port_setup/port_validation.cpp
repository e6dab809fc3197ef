#include "links/port_setup/port_validation.hpp"

#include "extra/extra_state.hpp"
#include "links/port_setup/frm_setup.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

namespace brinewright {

namespace {

constexpr std::int32_t First_TCP_Port = 1024, First_UDP_Port = 1, Last_Port = 65535;
constexpr std::size_t Longest_Address = 15;

// Gives the message for an invalid text, or nothing; a valid text may be put into its plain form.
using Rule = std::function<std::string(std::string& Text)>;

// The whole number that Text is, with a comma counting as a point: "5000" and "5000,0", not "4800,5" or
// "50x". Nothing when it is none, or not First to Last.
std::optional<std::int32_t> Parse_Port_Number(std::string_view Text, std::int32_t First, std::int32_t Last) {
    while (!Text.empty() && Text.front() == ' ') Text.remove_prefix(1);
    while (!Text.empty() && Text.back() == ' ') Text.remove_suffix(1);
    const bool Is_Number =
        Text.find_first_not_of("0123456789.,") == std::string_view::npos &&
        std::count_if(Text.begin(), Text.end(), [](char C) { return C == '.' || C == ','; }) <= 1;
    const double Value = Val_Dot(Text);
    if (!Is_Number || Value != std::floor(Value) || Value < First || Value > Last) return std::nullopt;
    return static_cast<std::int32_t>(Value);
}

// Takes a group of at most three digits off the head of Text; nothing when there is none.
std::optional<int> Take_Group(std::string_view& Text) {
    const auto End = std::min(Text.find('.'), Text.size());
    const std::string_view Group = Text.substr(0, End);
    if (Group.empty() || Group.size() > 3) return std::nullopt;
    int Value = 0;
    for (const char C : Group) {
        if (C < '0' || C > '9') return std::nullopt;
        Value = Value * 10 + (C - '0');
    }
    Text.remove_prefix(End);
    return Value;
}

// Four groups of digits parted by ".", the first and the fourth 1 to 255, the others 0 to 255; at most 15
// characters.
bool Is_Host_Address(std::string_view Text) {
    if (Text.size() > Longest_Address) return false;
    for (int Which = 1; Which <= 4; ++Which) {
        const auto Group = Take_Group(Text);
        const int Least = Which == 1 || Which == 4 ? 1 : 0;
        if (!Group || *Group < Least || *Group > 255) return false;
        if (Text.starts_with('.') != (Which < 4)) return false;
        if (Which < 4) Text.remove_prefix(1);
    }
    return Text.empty();
}

template <class Records>
bool Any_Has_Port(const Records& All, std::int32_t Port) {
    return std::any_of(All.begin(), All.end(), [&](const auto& R) { return R.UDP_Port == Port; });
}

// What to say of the number typed for a UDP link when an additional GNSS or gyro has it; empty when it is
// free.
std::string UDP_Port_Conflict(const Extra_State& Extra, std::int32_t Port) {
    const char* Owner = Any_Has_Port(Extra.Extra_GNSS, Port)   ? "GNSS"
                        : Any_Has_Port(Extra.Extra_Gyro, Port) ? "Gyro"
                                                               : nullptr;
    if (!Owner) return {};
    return "Port " + Number_Text(Port) + " is already in use for Additional " + Owner + ". Select another.";
}

std::string Check_TCP_Port(std::string& Text) {
    const auto Port = Parse_Port_Number(Text, First_TCP_Port, Last_Port);
    if (!Port)
        return Text + " is not a valid port number! Has to be an integer value in the range 1024-65535";
    Text = std::to_string(*Port);
    return {};
}

std::string Check_UDP_Port(const Extra_State& Extra, std::string& Text) {
    // A link without a port shows a blank box, so a blank one takes the port away.
    if (Text.find_first_not_of(' ') == std::string::npos) {
        Text.clear();
        return {};
    }
    const auto Port = Parse_Port_Number(Text, First_UDP_Port, Last_Port);
    if (!Port) return Text + " is not a valid port number! Has to be an integer value in the range 1-65535";
    std::string Conflict = UDP_Port_Conflict(Extra, *Port);
    if (Conflict.empty()) Text = std::to_string(*Port);
    return Conflict;
}

std::string Check_Remote_Host(std::string& Text) {
    if (Is_Host_Address(Text)) return {};
    return Text + " is not a valid IP address! Has to be in the range 1.0.0.1 to 255.255.255.255";
}

// Says what is wrong with Text, if anything.
bool Accept(Simulator& Sim, const Rule& Its_Rule, std::string& Text) {
    const std::string Message = Its_Rule(Text);
    if (!Message.empty()) Sim.Windows.Boxes.Show(Message, "", Box_Icon::Stop);
    return Message.empty();
}

void Check_When_Left(Simulator& Sim, frmSetup& F, Text_Box& Box, std::string& Valid, const Rule& Its_Rule) {
    Valid = Box.Text();
    Box.Got_Focus = [&Box] { Box.Select_All(); };
    Box.Lost_Focus = [&Sim, &F, &Box, &Valid, Its_Rule] {
        F.Went_Back = false;
        if (Box.Text() == Valid) return;
        std::string Text = Box.Text();
        F.Went_Back = !Accept(Sim, Its_Rule, Text);
        if (!F.Went_Back) Valid = Text;
        Box.Set_Text(Valid);
        if (F.Went_Back) Sim.Windows.Set_Focus(&Box);
    };
}

// A setup file may hold anything, which nobody has entered and left.
void Check_At_OK(Simulator& Sim, frmSetup& F, Text_Box& Box, const Rule& Its_Rule,
                 const std::function<bool()>& Counts) {
    F.Checks.push_back([&Sim, &Box, Its_Rule, Counts] {
        std::string Text = Box.Text();
        if (!Counts() || Accept(Sim, Its_Rule, Text)) return true;
        if (*Box.Enabled) Sim.Windows.Set_Focus(&Box);
        return false;
    });
}

std::string No_Port_Number(int K) {
    return "UDP Port" + Number_Text(K) +
           " has no port number. Type one in the range 1-65535 first, or leave the link unticked.";
}

// Ticked, it would have nowhere to send to.
void Require_Port_Number(Simulator& Sim, frmSetup& F, int K) {
    Check_Box& Box = F.chkEnable[port_number::TCP + K];
    Box.Click = [&Sim, &F, &Box, K] {
        if (!Box.Value() || !F.txtUDP_port[K].Text().empty()) return;
        Box.Set_Value(false);
        if (!F.Went_Back) Sim.Windows.Boxes.Show(No_Port_Number(K), "", Box_Icon::Stop);
    };
}

} // namespace

void Wire_Validation(Simulator& Sim, frmSetup& F) {
    const auto Wire = [&](Text_Box& Box, std::string& Valid, const Rule& Its_Rule,
                          const std::function<bool()>& Counts) {
        Check_When_Left(Sim, F, Box, Valid, Its_Rule);
        Check_At_OK(Sim, F, Box, Its_Rule, Counts);
    };
    Wire(F.txtPort, F.Valid_Port, Check_TCP_Port, [] { return true; });
    for (int K = 1; K <= UDP_Link_Count; ++K) {
        Wire(
            F.txtUDP_port[K], F.Valid_UDP_Port[K],
            [&Sim, &F, K](std::string& Text) {
                const bool Ticked = F.chkEnable[port_number::TCP + K].Value();
                std::string Message = Check_UDP_Port(Sim.State.Of<Extra_State>(), Text);
                return Text.empty() && Ticked ? No_Port_Number(K) : Message;
            },
            [] { return true; });
        Require_Port_Number(Sim, F, K);
    }
    // A broadcast does not use it, however it reads.
    Wire(F.txtUDP_RemoteHost, F.Valid_Remote_Host, Check_Remote_Host, [&F] {
        const bool Sends = std::any_of(F.chkEnable.begin() + port_number::TCP, F.chkEnable.end(),
                                       [](const auto& Box) { return Box->Value(); });
        return F.optUDPMode.Selected() != 0 && (Sends || !F.txtUDP_RemoteHost.Text().empty());
    });
}

bool All_Is_Valid(frmSetup& F) {
    if (std::exchange(F.Went_Back, false)) return false; // that has been told
    return std::all_of(F.Checks.begin(), F.Checks.end(), [](const auto& Check) { return Check(); });
}

} // namespace brinewright
