#include "shell/kit/sentence_family.hpp"

#include "links/link_record.hpp"
#include "links/port_list.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/transmit/send_nmea.hpp"
#include "shell/transmit/sending_as.hpp"
#include "shell/transmit/tag_block.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace brinewright {

namespace {

constexpr double ms_Per_Second = 1000;

float Time_Of_Day_s(Timer_Queue& Timers) { return brinewright::Time_Of_Day_s(Timers.Time.Local_us()); }

// The wait ends when the clock of seconds since midnight, a 32-bit float, has moved by more than the
// stagger; the absolute difference ends it at midnight too. That float moves in steps of up to 1/128 s, so
// the wait is mostly one spin of the stagger and then a few small ones until the float shows it.
void Wait_Stagger(Timer_Queue& Timers, float Stagger_s) {
    constexpr std::int64_t Small_Spin_us = 1000;
    const float Start_s = Time_Of_Day_s(Timers);
    Timers.Spin_us(std::llround(static_cast<double>(Stagger_s) * us_Per_Second));
    while (std::abs(Time_Of_Day_s(Timers) - Start_s) <= Stagger_s) Timers.Spin_us(Small_Spin_us);
}

void Restart(Sentence_Line& Line) { Line.Clock.Set_Interval(Interval_Period_ms(Line.Interval_List)); }

void Check_Box_Click(Simulator& Sim, Sensor_Form& W, Sentence_Line& Line) {
    Sentence_Family& Family = W.Sentences;
    *Line.Enabled = Line.Box.Value();
    if (!*Line.Enabled) {
        Line.Clock.Set_Interval(0);
    } else {
        if (Family.Is_Loading && Family.Timers_Started >= 1) Wait_Stagger(Family.Timers, Line.Row.Stagger_s);
        if (Family.Timers_Started < std::numeric_limits<std::int16_t>::max()) ++Family.Timers_Started;
        Restart(Line);
    }
    if (Line.Row.After_Check) Line.Row.After_Check(Sim, W);
}

void Interval_List_Click(Simulator& Sim, Sensor_Form& W, Sentence_Line& Line) {
    *Line.Interval = static_cast<std::int16_t>(Line.Interval_List.List_Index());
    if (Line.Row.After_Interval) Line.Row.After_Interval(Sim, W);
    if (Line.Box.Value()) Restart(Line);
}

std::string Interval_Tip(const Sentence_Row& Row) {
    const auto& Entries = Row.Choices->Entries;
    return std::string("Time between two ") + Row.Type + " sentences, " +
           Format_Dot(Val_Dot(Entries.front()), "") + " to " + Format_Dot(Val_Dot(Entries.back()), "") + " s";
}

} // namespace

Sentence_Line::Sentence_Line(Form& W, const Sentence_Row& Its_Row)
    : Row(Its_Row), Box(W, std::string("chk") + Row.Type, Row.Type),
      Note(Row.Note ? std::optional<Label>(std::in_place, W, std::string("lbl") + Row.Type, Row.Note)
                    : std::nullopt),
      Interval_List(W, std::string("cmb") + Row.Type + "Interval"),
      Clock(W, std::string("timer_") + Row.Type) {
    for (const char* Entry : Row.Choices->Entries) Interval_List.Add_Item(Entry);
    Interval_List.Tool_Tip = Interval_Tip(Row);
    Box.Tool_Tip = std::string("Sends ") + Row.Type + ", " + Row.Content;
    if (Note) Note->Tool_Tip = std::string(Row.Type) + " is the sentence of one maker";
}

const Sentence_Line& Sentence_Family::operator[](std::string_view Type) const {
    const auto Found =
        std::find_if(Lines.begin(), Lines.end(), [&](const Sentence_Line& L) { return L.Row.Type == Type; });
    if (Found == Lines.end()) throw std::out_of_range(std::string(Type) + " is no sentence of this window");
    return *Found;
}

Sentence_Line& Sentence_Family::operator[](std::string_view Type) {
    return const_cast<Sentence_Line&>(std::as_const(*this)[Type]);
}

Sentence_Lines::Sentence_Lines(Sensor_Form& W, std::span<const Sentence_Row> Rows) {
    for (const Sentence_Row& Row : Rows) W.Sentences.Lines.emplace_back(W, Row);
}

void Wire_Sentences(Simulator& Sim, Sensor_Form& W) {
    for (Sentence_Line& Line : W.Sentences.Lines) {
        const Sentence_Setting Kept = Line.Row.Setting(Sim.State, W.Instance);
        Line.Enabled = &Kept.Enabled;
        Line.Interval = &Kept.Interval;
        Line.Interval_List.Click = [&Sim, &W, &Line] { Interval_List_Click(Sim, W, Line); };
        Line.Box.Click = [&Sim, &W, &Line] { Check_Box_Click(Sim, W, Line); };
        Line.Clock.Tick = [&Sim, &W, &Line] {
            if (Line.Row.Tick) Line.Row.Tick(Sim, W);
        };
    }
}

void Restore_Intervals(Sentence_Family& Family) {
    for (Sentence_Line& Line : Family.Lines) {
        const int Count = static_cast<int>(Line.Row.Choices->Entries.size());
        const int Stored = *Line.Interval;
        Line.Interval_List.Set_List_Index(
            Stored >= 0 && Stored < Count ? Stored : Line.Row.Choices->Default_List_Index);
    }
}

void Start_Enabled_Sentences(Sentence_Family& Family) {
    for (Sentence_Line& Line : Family.Lines)
        if (*Line.Enabled) Line.Box.Set_Value(true);
}

void Start_Sentences(Sentence_Family& Family) {
    std::vector<Sentence_Line*> Lines;
    for (Sentence_Line& Line : Family.Lines)
        if (Line.Row.Start_Place > 0 && Line.Box.Value()) Lines.push_back(&Line);
    std::sort(Lines.begin(), Lines.end(), [](const Sentence_Line* A, const Sentence_Line* B) {
        return A->Row.Start_Place < B->Row.Start_Place;
    });
    for (Sentence_Line* Line : Lines) Restart(*Line);
}

void Pause_Sentences(Sentence_Family& Family) {
    for (Sentence_Line& Line : Family.Lines)
        if (Line.Row.Stopped_By_Pause) Line.Clock.Set_Interval(0);
}

double Interval_Period_ms(const Combo_Box& Interval_List) {
    return Val_Dot(Interval_List.Text()) * ms_Per_Second;
}

bool No_Checksum(const Simulator& Sim) { return Sim.State.Of<Fault_State>().Fault_No_Checksum; }

void Send_Sentence(Simulator& Sim, std::string Text, Sensor_Form& Window, std::int16_t Line,
                   std::int16_t Lines) {
    if (Sim.State.Of<Link_State>().Silenced[Window.Form_Index]) return;
    const std::int16_t Port = Sim.State.Of<Link_State>().Sensor_Table[Window.Form_Index].Port;
    // A setup file can name a port that does not exist. It has no counters for a tag block, and nothing
    // leaves there.
    const bool Exists = Port >= port_number::None && Port <= port_number::Last;
    if (Sim.State.Of<IEC450_State>().IEC450_Enabled && Exists)
        Make_UdPbC_Header(Sim, Text, Port, Line, Lines);
    const auto Taken = [&] { return Exists && Port != port_number::None ? Record_Of(Sim, Port).Sent : 0; };
    const std::uint64_t Taken_Before = Taken();
    const Sending_As Mark(Sim, static_cast<std::int16_t>(Window.Form_Index));
    Send_NMEA(Sim, Text, Port);
    if (Taken() == Taken_Before) return;
    Sim.Last_Sentence[Window.Form_Index] = std::move(Text);
    Window.Revision = ++Sim.Windows.Revision;
}

} // namespace brinewright
