#include "app/sentence_sinks.hpp"

#include "platform/run_time_error.hpp"

#include <cerrno>
#include <cstring>
#include <iostream>

namespace brinewright {

namespace {
constexpr std::size_t Piece_Bytes = 64 * 1024;
}

Sentence_Sink::Sentence_Sink(Simulator& Sim, const std::string& File, Form Its_Form, bool Is_At_Once)
    : Its_Simulator(Sim), Name(File.empty() ? "stdout" : File), How(Its_Form), At_Once(Is_At_Once),
      Out(File.empty() ? stdout : std::fopen(File.c_str(), "we")) {
    if (!Out) throw Run_Time_Error(Name + ": " + std::strerror(errno));
    Sim.Told.Sent.Add(this, [this](const Sent_Sentence& Sent) {
        if (Sent.Link_Took_It) Take(Sent.Text, Sent.Port);
    });
    Each_Second.Tick = [this] { Flush(); };
    if (At_Once && How == Form::Record) Sim.Timers.Start(Each_Second, us_Per_Second);
}

Sentence_Sink::~Sentence_Sink() {
    Its_Simulator.Told.Sent.Drop(this);
    Its_Simulator.Timers.Stop(Each_Second);
    Flush();
    if (Out != stdout) std::fclose(Out);
}

void Sentence_Sink::Take(std::string_view Text, int Port) {
    if (How == Form::Record)
        Records.Append(Waiting, Its_Simulator.Services.Time().Local_us(), Port, Text);
    else
        Waiting += Text;
    if (Waiting.size() >= Piece_Bytes || (At_Once && How == Form::Plain)) Flush();
}

void Sentence_Sink::Flush() {
    if (Waiting.empty() || Failed) {
        Waiting.clear();
        return;
    }
    const bool Written =
        std::fwrite(Waiting.data(), 1, Waiting.size(), Out) == Waiting.size() && std::fflush(Out) == 0;
    Waiting.clear();
    if (Written) return;
    Failed = true;
    std::cerr << Name << ": " << std::strerror(errno) << "; nothing more is written to it\n";
}

} // namespace brinewright
