#pragma once

#include "platform/controls.hpp"
#include "platform/table.hpp"
#include "platform/timer_queue.hpp"
#include "shell/state/simulator_state.hpp"

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace brinewright {

struct Sensor_Form;
struct Simulator;

// The sentences of a sensor window: each has a check box, a list of intervals beside it and a timer. What
// they do is the same in every window and stands here; how the sentences of a window differ is the columns of
// its table. A new sentence is a composer and a row, and no oddity of one is ever an "if" on its name.

// The entries of an interval list. They are texts for the eye, blanks included; the period is the number that
// a text starts with, in seconds.
struct Interval_Choices {
    std::span<const char* const> Entries;
    int Default_List_Index = 0; // in place of a stored one that the list does not have
};

// Where the setup file keeps the choice of one instance: a line of a section, by its place among the lines of
// sentences there. A section that nobody else has is written behind all others.
struct Setup_Place {
    const char* Section = nullptr; // "REM Active messages"; null: there is no such instance
    int Line = 1;
};

// The variables of the state that hold what is chosen for a sentence.
struct Sentence_Setting {
    bool& Enabled;
    std::int16_t& Interval; // ListIndex
};

struct Sentence_Row {
    const char* Type = nullptr;    // "GGA"; its controls are chkGGA, cmbGGAInterval and timer_GGA
    const char* Content = nullptr; // what it reports, for tool tips
    const char* Note = nullptr;    // a label behind the check box, lblGGA, of a sentence that one maker has
    // Refreshes the record, composes it and sends; null: nothing leaves.
    void (*Tick)(Simulator&, Sensor_Form&) = nullptr;
    std::string& (*Talker)(Sensor_Form&) = nullptr; // of its record; null: it has none
    Sentence_Setting (*Setting)(Simulator_State&, int Instance) = nullptr;
    Setup_Place Kept[2] = {}; // of instance 1 and 2
    const Interval_Choices* Choices = nullptr;
    std::int16_t New_Setup_Interval = 0; // ListIndex that a new setup starts with
    float Stagger_s = 0;                 // wait before its start while the window opens
    int Start_Place = 0; // its turn when START is pressed, counted from 1; 0: START leaves it alone
    bool Stopped_By_Pause = false;
    void (*After_Check)(Simulator&, Sensor_Form&) = nullptr; // what else follows a click on its box
    // What else follows the choice of an interval, before its timer restarts.
    void (*After_Interval)(Simulator&, Sensor_Form&) = nullptr;
};

// The columns of a row that come from the members of its window and its state.
template <auto Operation>
struct On_Window;
template <class Window, void (*Operation)(Simulator&, Window&)>
struct On_Window<Operation> {
    static void Run(Simulator& Sim, Sensor_Form& W) { Operation(Sim, static_cast<Window&>(W)); }
};
template <auto Record>
struct Talker_In;
template <class Window, class Its_Record, Its_Record Window::*Record>
struct Talker_In<Record> {
    static std::string& Of(Sensor_Form& W) { return (static_cast<Window&>(W).*Record).Talker; }
};
template <auto Enabled, auto Interval>
struct Setting_In;
template <class Area, Per_Instance<bool> Area::*Enabled, Per_Instance<std::int16_t> Area::*Interval>
struct Setting_In<Enabled, Interval> {
    static Sentence_Setting Of(Simulator_State& S, int Instance) {
        Area& A = S.Of<Area>();
        return {(A.*Enabled)[Instance], (A.*Interval)[Instance]};
    }
};

// A row from the members of its window and of its state, the rest as in Common. Send refreshes the record,
// composes it and sends. First is the line of instance 1 in the setup file, that of instance 2 follows it.
template <auto Enabled, auto Interval>
constexpr Sentence_Row Row(Sentence_Row Common, const char* Type, const char* Content, int Start_Place,
                           Setup_Place First, const char* Note = nullptr) {
    Common.Type = Type;
    Common.Content = Content;
    Common.Note = Note;
    Common.Setting = Setting_In<Enabled, Interval>::Of;
    Common.Kept[0] = First;
    Common.Kept[1] = {First.Section, First.Line + 1};
    Common.Start_Place = Start_Place;
    return Common;
}
template <auto Record, auto Enabled, auto Interval, auto Send>
constexpr Sentence_Row Row(const Sentence_Row& Common, const char* Type, const char* Content, int Start_Place,
                           Setup_Place First, const char* Note = nullptr) {
    Sentence_Row New = Row<Enabled, Interval>(Common, Type, Content, Start_Place, First, Note);
    New.Tick = On_Window<Send>::Run;
    New.Talker = Talker_In<Record>::Of;
    return New;
}

// The row of a sentence of which the setup file keeps the choice of instance 2 elsewhere than on the line
// behind that of instance 1.
constexpr Sentence_Row Kept_Apart(Sentence_Row Of, Setup_Place Second) {
    Of.Kept[1] = Second;
    return Of;
}

// A row at work in an open window: its controls, and what of the state they show.
struct Sentence_Line {
    Sentence_Line(Form& W, const Sentence_Row& Its_Row);
    const Sentence_Row& Row;
    Check_Box Box;
    std::optional<Label> Note;
    Combo_Box Interval_List;
    Timer Clock;
    bool* Enabled = nullptr;
    std::int16_t* Interval = nullptr;
};

struct Sentence_Family {
    explicit Sentence_Family(Timer_Queue& Queue) : Timers(Queue) {}
    Sentence_Family(const Sentence_Family&) = delete;
    Sentence_Family& operator=(const Sentence_Family&) = delete;

    // Throws std::out_of_range for a sentence that it has not.
    Sentence_Line& operator[](std::string_view Type);
    const Sentence_Line& operator[](std::string_view Type) const;

    Timer_Queue& Timers;
    bool Is_Loading = false;         // true while the window opens
    std::int16_t Timers_Started = 0; // sentence timers started so far by check boxes
    std::deque<Sentence_Line> Lines; // in the order in which opening starts them
};

// Makes the controls of Rows where it stands among the controls of a window.
struct Sentence_Lines {
    Sentence_Lines(Sensor_Form& W, std::span<const Sentence_Row> Rows);
};

// Connects the controls of all lines with the state and with their ticks, and fills the lists. Called once,
// before anything is restored.
void Wire_Sentences(Simulator& Sim, Sensor_Form& W);

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
