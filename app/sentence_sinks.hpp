#pragma once

#include "platform/timer_queue.hpp"
#include "platform_linux/output_stream.hpp"
#include "platform_qt/termination_signals.hpp"
#include "shell/state/simulator.hpp"
#include "shell/transmit/record_format.hpp"

#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <string>

namespace brinewright {

// Writes every sentence, as it left, to stdout or to a recording. It never holds up the program: of a reader
// that does not read, whole sentences are left out and counted.
class Sentence_Sink {
  public:
    enum class Form { Plain, Record };
    enum class Pace {
        Real_Time, // at once (stdout) or within a second (recording)
        On_Demand, // virtual time under somebody's hand: in large pieces, and all of it when Flush is called
        Batch,     // virtual time that passes by itself: in large pieces, and it waits for its reader
    };
    using Tell = std::function<void(const std::string&)>;

    // Throws Run_Time_Error when File cannot be opened. An empty File is stdout.
    Sentence_Sink(Simulator& Sim, const std::string& File, Form How, Pace When,
                  const Termination_Signals& Signals, Tell Its_Tell);
    ~Sentence_Sink();
    Sentence_Sink(const Sentence_Sink&) = delete;
    Sentence_Sink& operator=(const Sentence_Sink&) = delete;

    void Flush();
    // The end, told with what was left out. False for a recording that is not whole.
    bool Close();

  private:
    void Take(std::string_view Text, int Port);
    void Write(Output_Stream::Patience For_Reader);
    void Watch_Reader();
    void Fail(const std::string& Why);

    Simulator& Its_Simulator;
    const Termination_Signals& Signals;
    Tell Told;
    std::string Name;
    Form How;
    Pace When;
    Output_Stream Out;
    Record_Writer Records;
    std::string Line;
    Timer_Queue::Entry Each_Second;
    std::unique_ptr<QSocketNotifier> Reader_Is_Ready; // while something waits for it
    std::size_t Next_Write_Bytes = 0;
    std::uint64_t Dropped = 0;
    bool Failed = false; // the reader is gone or the disk is full; told once
};

} // namespace brinewright
