#include "app/sentence_sinks.hpp"

#include "platform/run_time_error.hpp"
#include "platform_qt/event_loop.hpp"

#include <iostream>
#include <utility>

namespace brinewright {

namespace {

constexpr std::size_t Piece_Bytes = 64 * 1024;
constexpr std::size_t Real_Time_Limit_Bytes = 1024 * 1024;
constexpr std::size_t Virtual_Limit_Bytes = 64 * 1024 * 1024; // a day of a ship under way
constexpr int Last_Wait_ms = 2000;                            // for a reader that takes nothing at the end

std::size_t Limit_Of(Sentence_Sink::Pace When) {
    return When == Sentence_Sink::Pace::Real_Time ? Real_Time_Limit_Bytes : Virtual_Limit_Bytes;
}

Output_Stream Opened(const std::string& File, std::size_t Limit_Bytes) try {
    return {File, Limit_Bytes};
} catch (const Run_Time_Error& Failure) {
    throw Run_Time_Error((File.empty() ? "stdout" : File) + ": " + Failure.what());
}

} // namespace

Sentence_Sink::Sentence_Sink(Simulator& Sim, const std::string& File, Form Its_Form, Pace Its_Pace,
                             const Termination_Signals& Its_Signals, Tell Its_Tell)
    : Its_Simulator(Sim), Signals(Its_Signals), Told(std::move(Its_Tell)),
      Name(File.empty() ? "stdout" : File), How(Its_Form), When(Its_Pace),
      Out(Opened(File, Limit_Of(Its_Pace))) {
    Sim.Told.Sent.Add(this, [this](const Sent_Sentence& Sent) {
        if (Sent.Link_Took_It) Take(Sent.Text, Sent.Port);
    });
    Each_Second.Tick = [this] { Flush(); };
    if (When == Pace::Real_Time && How == Form::Record) Sim.Timers.Start(Each_Second, us_Per_Second);
    if (When != Pace::Real_Time) Next_Write_Bytes = Piece_Bytes;
}

Sentence_Sink::~Sentence_Sink() {
    Its_Simulator.Told.Sent.Drop(this);
    Its_Simulator.Timers.Stop(Each_Second);
}

void Sentence_Sink::Take(std::string_view Text, int Port) {
    if (Failed) return;
    if (How == Form::Record) {
        Line.clear();
        Records.Append(Line, Its_Simulator.Services.Time().Local_us(), Port, Text);
        Text = Line;
    }
    if (!Out.Put(Text) && ++Dropped == 1)
        Told(Name + ": nobody reads it; sentences are left out until somebody does");
    const bool Waits_For_Second = When == Pace::Real_Time && How == Form::Record;
    if (Out.Waiting_Bytes() < Next_Write_Bytes || (Waits_For_Second && Out.Waiting_Bytes() < Piece_Bytes))
        return;
    if (When == Pace::Batch)
        Write({-1, Signals.Fd()});
    else
        Write({});
    // Not again with each sentence while the reader sleeps.
    if (When != Pace::Real_Time) Next_Write_Bytes = Out.Waiting_Bytes() + Piece_Bytes;
}

void Sentence_Sink::Flush() {
    Write({});
    Watch_Reader();
}

bool Sentence_Sink::Close() {
    Its_Simulator.Told.Sent.Drop(this);
    Reader_Is_Ready.reset();
    Write(When == Pace::Batch && !Signals.Came() ? Output_Stream::Patience{-1, Signals.Fd()}
                                                 : Output_Stream::Patience{Last_Wait_ms, -1});
    Dropped += Out.Waiting_Texts();
    try {
        Out.Close();
    } catch (const Run_Time_Error& Failure) {
        Fail(Failure.what());
    }
    if (Dropped > 0) std::cerr << Name << ": " << Dropped << " sentences dropped" << std::endl;
    return How == Form::Plain || (!Failed && Dropped == 0);
}

void Sentence_Sink::Write(Output_Stream::Patience For_Reader) {
    if (Failed) return;
    try {
        Out.Write(For_Reader);
    } catch (const Run_Time_Error& Failure) {
        Fail(Failure.what());
    }
    if (When == Pace::Real_Time) Watch_Reader();
}

void Sentence_Sink::Watch_Reader() {
    if (Out.Waiting_Bytes() == 0)
        Reader_Is_Ready.reset();
    else if (!Reader_Is_Ready)
        Reader_Is_Ready = Watch_Fd(Out.Fd(), QSocketNotifier::Write, [this] { Flush(); });
}

void Sentence_Sink::Fail(const std::string& Why) {
    if (!std::exchange(Failed, true)) Told(Name + ": " + Why + "; nothing more is written to it");
}

} // namespace brinewright
