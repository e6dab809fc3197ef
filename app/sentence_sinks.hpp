#pragma once

#include "platform/timer_queue.hpp"
#include "shell/state/simulator.hpp"
#include "shell/transmit/record_format.hpp"

#include <cstdio>
#include <memory>
#include <string>

namespace brinewright {

// Writes every sentence, as it left, to stdout or to a recording. In real time what is written is there for a
// reader at once (stdout) or within a second (recording); in virtual time it is written in large pieces.
class Sentence_Sink {
  public:
    enum class Form { Plain, Record };

    // Throws Run_Time_Error when File cannot be opened. An empty File is stdout.
    Sentence_Sink(Simulator& Sim, const std::string& File, Form How, bool At_Once);
    ~Sentence_Sink();
    Sentence_Sink(const Sentence_Sink&) = delete;
    Sentence_Sink& operator=(const Sentence_Sink&) = delete;

    void Flush();

  private:
    void Take(std::string_view Text, int Port);

    Simulator& Its_Simulator;
    std::string Name;
    Form How;
    bool At_Once;
    std::FILE* Out;
    std::string Waiting;
    Record_Writer Records;
    Timer_Queue::Entry Each_Second;
    bool Failed = false; // the reader is gone or the disk is full; told once
};

} // namespace brinewright
