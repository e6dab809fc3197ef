#include "ownship/ship/control_input.hpp"

#include "ownship/navdata_state.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "sentences/instrument_range.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/say.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/version.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

namespace brinewright {

namespace {

constexpr const char* Port_File = "Quillon_UDP_port.txt";
constexpr std::size_t Port_File_Limit_Bytes = 1024;
constexpr float Greatest_Speed_kn = 1000; // what a speed field can carry with a ship in mind

std::string Box_Title() { return std::string("BRINEWRIGHT ") + Version_Text + " - Quillon special option"; }

// At most Most fields; the last of them holds what remains.
template <std::size_t Most>
struct Fields {
    std::array<std::string_view, Most> Text;
    std::size_t Count = 0;
};

template <std::size_t Most>
Fields<Most> Split(std::string_view Sentence) {
    Fields<Most> Cut;
    for (bool At_End = false; !At_End;) {
        const std::size_t Comma = Cut.Count + 1 < Most ? Sentence.find(',') : std::string_view::npos;
        At_End = Comma == std::string_view::npos;
        Cut.Text[Cut.Count++] = Sentence.substr(0, Comma);
        if (!At_End) Sentence.remove_prefix(Comma + 1);
    }
    std::string_view& Last = Cut.Text[Cut.Count - 1];
    Last = Last.substr(0, Last.find('*'));
    return Cut;
}

template <std::size_t Most>
float Number_Field(const Fields<Most>& Cut, std::size_t I) {
    if (I >= Cut.Count) return 0;
    if (Cut.Text[I].empty()) return Empty_Marker;
    return Record_Number(Val(Cut.Text[I]));
}

// Only digits, with blanks and line ends around them.
std::int32_t Read_Port_Number(std::string_view Text) {
    constexpr std::string_view Blanks = " \t\r\n";
    Text.remove_prefix(std::min(Text.find_first_not_of(Blanks), Text.size()));
    Text = Text.substr(0, Text.find_last_not_of(Blanks) + 1);
    std::int32_t Port = 0;
    const auto [End, Failure] = std::from_chars(Text.data(), Text.data() + Text.size(), Port);
    if (Failure != std::errc() || End != Text.data() + Text.size() || Port < 1 || Port > 65535)
        throw Run_Time_Error("it must hold one UDP port number, 1 to 65535, and nothing else");
    return Port;
}

// A number that no instrument gives leaves the ship as it is.
bool Is_Ignored(Simulator& Sim, const char* What, float Number) {
    if (!Beyond_Any_Instrument(Number)) return false;
    // Once: datagrams come ten times a second.
    if (!std::exchange(Sim.Links.Control_Input_Ignored, true))
        Say(Sim, std::string("Control input: a ") + What + " that no instrument gives is ignored");
    return true;
}

void Act_On_VTG(Simulator& Sim, std::string_view Sentence) {
    const float Told_kn = Extract_VTG(Sentence).SOG_Knots;
    if (Is_Ignored(Sim, "speed", Told_kn)) return;
    const float Speed_kn =
        Told_kn == Empty_Marker ? Told_kn : std::clamp(Told_kn, -Greatest_Speed_kn, Greatest_Speed_kn);
    Navdata_State& N = Sim.State.Of<Navdata_State>();
    auto* const Ship = Open_One<frmShip>(Sim);
    if (Ship) {
        // Astern too the throttle is reckoned from the speed ahead, as required; it limits what is too much.
        Slider& Throttle = Ship->sldThrottle;
        Throttle.Set_Value(Bar_Place(Throttle, -Speed_kn / N.Max_Speed_Ahead * 100, 1));
    }
    // The very speed of the sentence, whatever the throttle made of it; of an empty field -9999, as required.
    N.Nav_SOG = Speed_kn;
    if (Ship) Show_SOG(*Ship, Speed_kn, "0.0");
}

void Act_On_ROT(Simulator& Sim, std::string_view Sentence) {
    auto* const Ship = Open_One<frmShip>(Sim);
    if (!Ship) return;
    const float Rate = Extract_ROT(Sentence).Rate;
    if (Is_Ignored(Sim, "rate of turn", Rate)) return;
    Slider& Rudder = Ship->sldRudder;
    Rudder.Set_Value(Bar_Place(Rudder, Rate * 10, 1));
}

void Act_On_Datagram(Simulator& Sim, std::string_view Datagram) {
    const std::string_view Type = Datagram.substr(std::min<std::size_t>(3, Datagram.size()), 3);
    if (Type == "VTG") Act_On_VTG(Sim, Datagram);
    if (Type == "ROT") Act_On_ROT(Sim, Datagram);
}

void Warn_Once(Simulator& Sim) {
    // Noted first: the box may be answered at once.
    if (std::exchange(Sim.Links.Control_Input_Warned, true)) return;
    Sim.Windows.Boxes.Show(
        "Special Quillon option control of SOG and ROT with NMEA input is only relevant in "
        "Ship mode. UDP input ignored! ",
        Box_Title());
}

void DataArrival(Simulator& Sim) {
    // Left unread; the socket keeps only so much of it.
    if (Sim.State.Of<Shell_State>().Mode == "Sensor") return Sim.Windows.Event([&] { Warn_Once(Sim); });
    UDP_Socket& Input = *Sim.Links.WinsockQuillon;
    for (std::string Datagram = Input.Receive(); !Datagram.empty(); Datagram = Input.Receive())
        Sim.Windows.Event([&] { Act_On_Datagram(Sim, Datagram); });
}

void Tell_Failure(Simulator& Sim, const std::string& What, const std::exception& Failure) {
    Sim.Windows.Boxes.Show("The control input is not open. " + What + ": " + Failure.what(), Box_Title(),
                           Box_Icon::Stop);
}

} // namespace

VTG_Record Extract_VTG(std::string_view Sentence) {
    const auto Cut = Split<10>(Sentence);
    const bool Has_Mode = Cut.Count > 9 && !Cut.Text[9].empty();
    return {"",
            Number_Field(Cut, 1),
            Number_Field(Cut, 3),
            Number_Field(Cut, 5),
            Number_Field(Cut, 7),
            Has_Mode ? Cut.Text[9].front() : '\0'};
}

ROT_Record Extract_ROT(std::string_view Sentence) {
    const auto Cut = Split<4>(Sentence);
    const bool Has_Status = Cut.Count > 2 && !Cut.Text[2].empty();
    return {"", Number_Field(Cut, 1), Has_Status ? Cut.Text[2].front() : '\0'};
}

void Start_Control_Input(Simulator& Sim) {
    const std::string File = Sim.State.Of<Shell_State>().Data_Folder + Port_File;
    std::int32_t& Port = Sim.State.Of<Link_State>().Control_Input_Port;
    try {
        Port = Read_Port_Number(Sim.Services.Disk().Read(File, Port_File_Limit_Bytes));
    } catch (const Run_Time_Error& Failure) {
        return Tell_Failure(Sim, File, Failure);
    }
    // The box comes before the port is bound, as required; a failure to do so follows in a box of its own.
    Sim.Windows.Boxes.Show("Dedicated Quillon UDP port " + Number_Text(Port) +
                               " opened for NMEA VTG and ROT input. NB! Only relevant for Ship mode.",
                           Box_Title());
    auto& Input = Sim.Links.WinsockQuillon;
    Input = Sim.Services.Make_UDP_Socket();
    Input->On_Data_Arrival = [&Sim] { DataArrival(Sim); };
    try {
        Input->Bind(Port);
    } catch (const Run_Time_Error& Failure) {
        Tell_Failure(Sim, "UDP port" + Number_Text(Port), Failure);
    }
}

} // namespace brinewright
