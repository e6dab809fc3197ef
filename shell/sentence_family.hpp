#pragma once

#include "platform/controls.hpp"
#include "platform/table.hpp"
#include "platform/timer_queue.hpp"
#include "shell/state/message_state.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace brinewright {

struct Simulator;
struct Sensor_Form;

// The sentences of a sensor window: each has a check box, a list of intervals beside it and a timer. What
// they do is the same in every window and stands here; how the sentences of a window differ is the columns of
// its table. A new sentence is a composer, a tick and a row, and no oddity of one is ever an "if" on its
// name.

// The entries of an interval list. They are texts for the eye, blanks included; the period is the number that
// a text starts with, in seconds.
struct Interval_Choices {
    std::span<const char* const> Entries;
    int Default_List_Index = 0;
};

template <class Window>
struct Sentence_Row {
    const char* Type;    // "GGA"
    const char* Content; // what it reports, for tool tips
    Check_Box Window::*Box;
    Combo_Box Window::*Interval_List;
    Timer Window::*Clock;
    const Interval_Choices* Choices;
    float Stagger_s; // wait before its start while the window opens
    void (*Tick)(Simulator&, Window&);
    int Start_Place; // its turn when START is pressed, counted from 1; 0: START leaves it alone
    bool Stopped_By_Pause;
    void (*After_Check)(Simulator&, Window&); // what else follows a click on its box; may be null
    Per_Instance<bool> Message_State::*Enabled;
    Per_Instance<std::int16_t> Message_State::*Interval;
    // What else follows the choice of an interval, before its timer restarts.
    void (*After_Interval)(Simulator&, Window&) = nullptr;
};

// A row at work in an open window.
struct Sentence_Line {
    const char* Type = nullptr;
    const char* Content = nullptr;
    Check_Box* Box = nullptr;
    Combo_Box* Interval_List = nullptr;
    Timer* Clock = nullptr;
    const Interval_Choices* Choices = nullptr;
    float Stagger_s = 0;
    int Start_Place = 0;
    bool Stopped_By_Pause = false;
    Handler After_Check;
    Handler After_Interval;
    bool* Enabled = nullptr; // the instance's elements of the public tables
    std::int16_t* Interval = nullptr;
};

struct Sentence_Family {
    explicit Sentence_Family(Timer_Queue& Queue) : Timers(Queue) {}
    Sentence_Family(const Sentence_Family&) = delete;
    Sentence_Family& operator=(const Sentence_Family&) = delete;

    Timer_Queue& Timers;
    bool Is_Loading = false;          // true while the window opens
    std::int16_t Timers_Started = 0;  // sentence timers started so far by check boxes
    std::vector<Sentence_Line> Lines; // in the order in which opening starts them; fixed once they are wired
};

// Connects the check boxes and lists of Family.Lines and fills the lists. Their choice comes from
// Restore_Intervals.
void Wire_Lines(Sentence_Family& Family);

// Makes the lines of a window whose sentences exist once per instance. Called once, before anything is
// restored.
template <class Window>
void Wire_Sentences(Sentence_Family& Family, std::span<const Sentence_Row<Window>> Rows, Simulator& Sim,
                    Message_State& Settings, Window& W, int Instance) {
    Family.Lines.reserve(Rows.size());
    for (const Sentence_Row<Window>& Row : Rows) {
        Sentence_Line& Line = Family.Lines.emplace_back();
        Line.Type = Row.Type;
        Line.Content = Row.Content;
        Line.Box = &(W.*Row.Box);
        Line.Interval_List = &(W.*Row.Interval_List);
        Line.Clock = &(W.*Row.Clock);
        Line.Choices = Row.Choices;
        Line.Stagger_s = Row.Stagger_s;
        Line.Start_Place = Row.Start_Place;
        Line.Stopped_By_Pause = Row.Stopped_By_Pause;
        if (Row.After_Check) Line.After_Check = [&Row, &Sim, &W] { Row.After_Check(Sim, W); };
        if (Row.After_Interval) Line.After_Interval = [&Row, &Sim, &W] { Row.After_Interval(Sim, W); };
        Line.Enabled = &(Settings.*Row.Enabled)[Instance];
        Line.Interval = &(Settings.*Row.Interval)[Instance];
        Line.Clock->Tick = [&Row, &Sim, &W] { Row.Tick(Sim, W); };
    }
    Wire_Lines(Family);
}

// Gives every list its stored interval. One that the list does not have (a setup file can hold anything)
// becomes the list's default, in the stored setting as well: what the list shows always is what the sentence
// runs at.
void Restore_Intervals(Sentence_Family& Family);

// Ticks the box of every sentence that is enabled, in the order of the table. Each but the first waits its
// stagger, without giving the event loop a turn, so that the sentences of a sensor do not fall due together
// for ever after.
void Start_Enabled_Sentences(Sentence_Family& Family);

// START: the sentences that it starts and whose box is ticked get their period anew, which restarts their
// phase.
void Start_Sentences(Sentence_Family& Family);

// PAUSE: stops the sentences that it stops.
void Pause_Sentences(Sentence_Family& Family);

double Interval_Period_ms(const Combo_Box& Interval_List);

// Whether sentences are to be composed without checksum now.
bool No_Checksum(const Simulator& Sim);

// The way of a composed sentence out of a sensor window: tag block when it is on, then the transmit path with
// the port of the window's slot. Line of Lines is its place in a series, 1 of 1 when it stands alone.
void Send_Sentence(Simulator& Sim, std::string Text, Sensor_Form& Window, std::int16_t Line = 1,
                   std::int16_t Lines = 1);

} // namespace brinewright
