#include "shell/sentence_family.hpp"

#include "links/port_list.hpp"
#include "links/tag_block.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/frm_main.hpp"
#include "shell/send_nmea.hpp"
#include "shell/sensor_form.hpp"
#include "shell/simulator.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brinewright {

namespace {

constexpr double ms_Per_Second = 1000;

float Time_Of_Day_s(Timer_Queue& Timers) { return brinewright::Time_Of_Day_s(Timers.Time.Local_us()); }

// The told wait ends when the clock of seconds since midnight, a 32-bit float, has moved by more than the
// stagger; the absolute difference ends it at midnight too. That float moves in steps of up to 1/128 s, so
// the wait is mostly one spin of the stagger and then a few small ones until the float shows it.
void Wait_Stagger(Timer_Queue& Timers, float Stagger_s) {
    constexpr std::int64_t Small_Spin_us = 1000;
    const float Start_s = Time_Of_Day_s(Timers);
    Timers.Spin_us(std::llround(static_cast<double>(Stagger_s) * us_Per_Second));
    while (std::abs(Time_Of_Day_s(Timers) - Start_s) <= Stagger_s) Timers.Spin_us(Small_Spin_us);
}

void Restart(Sentence_Line& Line) { Line.Clock->Set_Interval(Interval_Period_ms(*Line.Interval_List)); }

void Check_Box_Click(Sentence_Family& Family, Sentence_Line& Line) {
    *Line.Enabled = Line.Box->Value();
    if (!*Line.Enabled) {
        Line.Clock->Set_Interval(0);
    } else {
        if (Family.Is_Loading && Family.Timers_Started >= 1) Wait_Stagger(Family.Timers, Line.Stagger_s);
        if (Family.Timers_Started < std::numeric_limits<std::int16_t>::max()) ++Family.Timers_Started;
        Restart(Line);
    }
    if (Line.After_Check) Line.After_Check();
}

void Interval_List_Click(Sentence_Line& Line) {
    *Line.Interval = static_cast<std::int16_t>(Line.Interval_List->List_Index());
    if (Line.After_Interval) Line.After_Interval();
    if (Line.Box->Value()) Restart(Line);
}

std::string Interval_Tip(const Sentence_Line& Line) {
    const auto& Entries = Line.Choices->Entries;
    return std::string("Time between two ") + Line.Type + " sentences, " +
           Format_Dot(Val_Dot(Entries.front()), "") + " to " + Format_Dot(Val_Dot(Entries.back()), "") + " s";
}

} // namespace

void Wire_Lines(Sentence_Family& Family) {
    for (Sentence_Line& Line : Family.Lines) {
        for (const char* Entry : Line.Choices->Entries) Line.Interval_List->Add_Item(Entry);
        Line.Interval_List->Tool_Tip = Interval_Tip(Line);
        Line.Interval_List->Click = [&Line] { Interval_List_Click(Line); };
        Line.Box->Tool_Tip = std::string("Sends ") + Line.Type + ", " + Line.Content;
        Line.Box->Click = [&Family, &Line] { Check_Box_Click(Family, Line); };
    }
}

void Restore_Intervals(Sentence_Family& Family) {
    for (const Sentence_Line& Line : Family.Lines) {
        const int Count = static_cast<int>(Line.Choices->Entries.size());
        const int Stored = *Line.Interval;
        Line.Interval_List->Set_List_Index(Stored >= 0 && Stored < Count ? Stored
                                                                         : Line.Choices->Default_List_Index);
    }
}

void Start_Enabled_Sentences(Sentence_Family& Family) {
    for (const Sentence_Line& Line : Family.Lines)
        if (*Line.Enabled) Line.Box->Set_Value(true);
}

void Start_Sentences(Sentence_Family& Family) {
    std::vector<Sentence_Line*> Lines;
    for (Sentence_Line& Line : Family.Lines)
        if (Line.Start_Place > 0 && Line.Box->Value()) Lines.push_back(&Line);
    std::sort(Lines.begin(), Lines.end(),
              [](const Sentence_Line* A, const Sentence_Line* B) { return A->Start_Place < B->Start_Place; });
    for (Sentence_Line* Line : Lines) Restart(*Line);
}

void Pause_Sentences(Sentence_Family& Family) {
    for (Sentence_Line& Line : Family.Lines)
        if (Line.Stopped_By_Pause) Line.Clock->Set_Interval(0);
}

double Interval_Period_ms(const Combo_Box& Interval_List) {
    return Val_Dot(Interval_List.Text()) * ms_Per_Second;
}

bool No_Checksum(const Simulator& Sim) { return Sim.Main && *Sim.Main->mnuOptionsChecksumDisabled.Checked; }

void Send_Sentence(Simulator& Sim, std::string Text, Sensor_Form& Window, std::int16_t Line,
                   std::int16_t Lines) {
    const std::int16_t Port = Sim.State.Sensor_Table[Window.Form_Index].Port;
    // A setup file can name a port that does not exist. It has no counters for a tag block, and nothing
    // leaves there.
    const bool Exists = Port >= port_number::None && Port <= port_number::Last;
    if (Sim.State.IEC450_Enabled && Exists) Make_UdPbC_Header(Sim, Text, Port, Line, Lines);
    Send_NMEA(Sim, Text, Port);
    Sim.Last_Sentence[Window.Form_Index] = std::move(Text);
    Window.Revision = ++Sim.Windows.Revision;
}

} // namespace brinewright
