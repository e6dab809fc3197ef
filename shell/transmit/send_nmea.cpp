#include "shell/transmit/send_nmea.hpp"

#include "links/link_record.hpp"
#include "links/link_watch.hpp"
#include "links/port_list.hpp"
#include "links/tcp_server.hpp"
#include "links/tx_time_text.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <cmath>
#include <utility>

namespace brinewright {

namespace {

constexpr std::int64_t Pacing_us = 2000;
constexpr float Pacing_s = 0.002F;

float Now_s(Simulator& Sim) { return Time_Of_Day_s(Sim.Services.Time().Local_us()); }

std::size_t Random_Place(Simulator& Sim, std::size_t Length) {
    return static_cast<std::size_t>(std::floor(Sim.Services.Random.Draw() * static_cast<double>(Length)));
}

// The order is part of the behaviour: the checksum is spoilt before the cut, the cut comes before the split,
// and the line end comes last, so that every piece gets one of its own.
void Inject_Faults(Simulator& Sim, std::string& Text) {
    const Fault_State& Faults = Sim.State.Of<Fault_State>();
    if (Faults.Fault_Faulty_Checksum && !Faults.Fault_No_Checksum && !Text.empty())
        Text.back() = Text.back() == 'F' ? 'E' : 'F';
    if (Faults.Fault_Cut) Text.resize(Random_Place(Sim, Text.size()));
    if (Faults.Fault_Split) {
        // One remainder for all ports, on purpose: the tail of one port's sentence goes out at the head of
        // the next sentence on whatever port comes next.
        std::string& Remainder = Sim.State.Of<Link_State>().Transmit.Split_Remainder;
        const std::size_t Place = Random_Place(Sim, Text.size());
        std::string Piece = Remainder + Text.substr(0, Place);
        Remainder = Text.substr(Place);
        Text = std::move(Piece);
    }
    if (!Faults.Fault_Merged) Text += "\r\n";
}

// The comparison is in 32-bit floats, which late in the day move in steps of 1/128 s; the wait runs on the
// wide clock and is a fresh 2 ms from the moment of noticing.
void Pace(Simulator& Sim) {
    float& Last_s = Sim.State.Of<Link_State>().Transmit.Last_Send_Time;
    if (Last_s > 0 && Now_s(Sim) - Last_s < Pacing_s) Sim.Timers.Spin_us(Pacing_us);
    Last_s = Now_s(Sim);
}

enum class Outcome { Taken, Skipped, Refused };

void Show_Sent(Simulator& Sim, std::int16_t Port) {
    float& Last_Tx_s = Sim.State.Of<Link_State>().Transmit.Last_Tx_Time[Port - 1];
    if (Last_Tx_s != 0) {
        Sim.State.Of<Link_State>().Link_Panel[Port].Text =
            "COM" + Number_Text(Port) + " : TX " + Tx_Time_Text(Sim.Services.Time());
        Sim.Told.Panel.Tell(Port);
    }
    Last_Tx_s = Now_s(Sim);
}

// The box comes once per port and run.
Outcome Write_Serial(Simulator& Sim, const std::string& Text, std::int16_t Port) {
    try {
        if (!Sim.Links.MSComm[Port]) throw Run_Time_Error("Port not open");
        if (!Sim.Links.MSComm[Port]->Output(Text)) return Outcome::Skipped;
    } catch (const Run_Time_Error& Failure) {
        Link_Fails(Sim, Port, Failure.what());
        // Set before the box is shown, so that a tick behind the box does not show it again.
        bool& Told = Sim.State.Of<Link_State>().Transmit.Error_Shown[Port - 1];
        if (!std::exchange(Told, true))
            Sim.Windows.Boxes.Show("Comport error COM" + Number_Text(Port) + ". Check your Comport settings!",
                                   "Comport error", Box_Icon::Stop);
        return Outcome::Refused;
    }
    Show_Sent(Sim, Port);
    return Outcome::Taken;
}

// Runtime errors count as nothing here: the statement after a failing one simply goes on.
Outcome Write_UDP(Simulator& Sim, const std::string& Text, std::int16_t Port) {
    const auto& Link = Sim.Links.WinsockUDP[Port - port_number::First_UDP];
    if (!Link || !Link->Is_Open()) return Outcome::Refused;
    try {
        if (!Link->Send(Text)) return Outcome::Skipped;
    } catch (const Run_Time_Error& Failure) {
        Link_Fails(Sim, Port, Failure.what());
        return Outcome::Refused;
    }
    Link_Works(Sim, Port);
    return Outcome::Taken;
}

Outcome Write_To(Simulator& Sim, const std::string& Text, std::int16_t Port) {
    if (Port <= port_number::Last_Serial) return Write_Serial(Sim, Text, Port);
    if (Port > port_number::TCP) return Write_UDP(Sim, Text, Port);
    if (Write_TCP(Sim, Text)) return Outcome::Taken;
    return Record_Of(Sim, Port).Open ? Outcome::Skipped : Outcome::Refused; // its clients are counted there
}

void Count(Simulator& Sim, std::int16_t Port, Outcome What) {
    Link_Record& Record = Sim.State.Of<Link_Record_State>().Link[Port];
    if (What == Outcome::Taken) Note_Sent(Sim, Port);
    if (What == Outcome::Refused) ++Record.Refused;
    if (What == Outcome::Skipped && Port != port_number::TCP) ++Record.Skipped;
}

} // namespace

void Send_NMEA(Simulator& Sim, std::string& Text, std::int16_t Port) {
    Link_Record_State& Records = Sim.State.Of<Link_Record_State>();
    if (Sim.State.Of<Shell_State>().Pause_Active) return;
    if (!Sim.Windows.Boxes.Standing.empty()) {
        ++Records.Dropped_By_Box;
        return;
    }
    Inject_Faults(Sim, Text);
    Pace(Sim);
    if (Port <= port_number::None) {
        ++Records.Sent_Without_Link;
        return;
    }
    Outcome What = Outcome::Refused; // a setup file can name a port that does not exist
    if (Port <= port_number::Last) {
        What = Write_To(Sim, Text, Port);
        Count(Sim, Port, What);
    }
    if (What == Outcome::Refused && Port <= port_number::Last_Serial) return; // the monitors are not told
    Sim.Told.Sent.Tell({Text, Port, What == Outcome::Taken, Sim.Sender});
}

} // namespace brinewright
