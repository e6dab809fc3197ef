#include "shell/transmit/send_nmea.hpp"

#include "links/port_list.hpp"
#include "links/tcp_server.hpp"
#include "links/tx_time_text.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <cmath>

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

// False when the write failed; the box comes once per port and run.
bool Write_Serial(Simulator& Sim, const std::string& Text, std::int16_t Port) {
    Transmit_Record& Transmit = Sim.State.Of<Link_State>().Transmit;
    try {
        if (!Sim.Links.MSComm[Port]) throw Run_Time_Error("Port not open");
        Sim.Links.MSComm[Port]->Output(Text);
    } catch (const Run_Time_Error&) {
        // Set before the box is shown, so that a tick behind the box does not show it again.
        if (!std::exchange(Transmit.Error_Shown[Port - 1], true))
            Sim.Windows.Boxes.Show("Comport error COM" + Number_Text(Port) + ". Check your Comport settings!",
                                   "Comport error", Box_Icon::Stop);
        return false;
    }
    float& Last_Tx_s = Transmit.Last_Tx_Time[Port - 1];
    if (Last_Tx_s != 0) {
        Sim.State.Of<Link_State>().Link_Panel[Port].Text =
            "COM" + Number_Text(Port) + " : TX " + Tx_Time_Text(Sim.Services.Time());
        Sim.Told.Panel.Tell(Port);
    }
    Last_Tx_s = Now_s(Sim);
    return true;
}

// Runtime errors count as nothing here: the statement after a failing one simply goes on. False when it
// failed.
bool Write_UDP(Simulator& Sim, const std::string& Text, std::int16_t Port) {
    try {
        const auto& Link = Sim.Links.WinsockUDP[Port - port_number::First_UDP];
        if (!Link) return false;
        Link->Send(Text);
        return true;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

} // namespace

void Send_NMEA(Simulator& Sim, std::string& Text, std::int16_t Port) {
    if (Sim.State.Of<Shell_State>().Pause_Active) return;
    if (!Sim.Windows.Boxes.Standing.empty()) {
        ++Sim.Counts.Dropped_By_Box;
        return;
    }
    Inject_Faults(Sim, Text);
    Pace(Sim);
    if (Port <= port_number::None) {
        ++Sim.Counts.Sent[0];
        return;
    }
    bool Link_Took_It = true;
    if (Port <= port_number::Last_Serial) {
        if (!Write_Serial(Sim, Text, Port)) {
            ++Sim.Counts.Failed[Port];
            return;
        }
    } else if (Port == port_number::TCP) {
        Write_TCP(Sim, Text);
    } else {
        Link_Took_It = Write_UDP(Sim, Text, Port);
    }
    if (Port <= port_number::Last) ++(Link_Took_It ? Sim.Counts.Sent : Sim.Counts.Failed)[Port];
    Sim.Told.Sent.Tell({Text, Port, Link_Took_It, Sim.Sender});
}

} // namespace brinewright
