#include "shell/kit/sensor_layout.hpp"

#include "links/link_record.hpp"
#include "links/port_list.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

std::int16_t Port_Of(const Simulator& Sim, const Sensor_Form& W) {
    return Sim.State.Of<Link_State>().Sensor_Table[W.Form_Index].Port;
}

// What the sensor does, and where it goes or why nothing does.
layout::Said State_Said(const Simulator& Sim, const Sensor_Form& W, const std::string& State, Role As) {
    const std::int16_t Port = Port_Of(Sim, W);
    const std::string Why_Not = Why_Nothing_Leaves(Sim, Port);
    if (Why_Not.empty()) {
        const Link_Record& Link = Record_Of(Sim, Port);
        const bool Nobody = Port == port_number::TCP && Link.Clients == 0;
        return {State + "   to " + Link.Name + (Nobody ? ", no client" : ""), As};
    }
    const bool Link_Fails = Link_Has_Failed(Sim, Port);
    return {State + ", " + Why_Not, Link_Fails ? Role::Bad : As == Role::Dim ? As : Role::Warn};
}

bool Runs(const Timer& Clock) { return Clock.Interval_ms() > 0; }
bool Any_Sentence_Runs(const Sensor_Form& W) {
    return std::any_of(W.Sentences.Lines.begin(), W.Sentences.Lines.end(),
                       [](const Sentence_Line& L) { return Runs(L.Clock); });
}
bool Pauses(const Button& Pause, const Timer& Simulation) { return !Runs(Simulation) && *Pause.Enabled; }

} // namespace

Layout State_Line(const Simulator& Sim, const Sensor_Form& W, const Button& Pause, const Timer& Simulation,
                  const char* Standing) {
    return Text([&Sim, &W, &Pause, &Simulation, Standing] {
        const bool Sends = Any_Sentence_Runs(W) && Output_Leaves(Sim, Port_Of(Sim, W));
        if (Sim.State.Of<Shell_State>().Mode == "Ship")
            return State_Said(Sim, W, "Ship control", Role::Readout);
        if (Runs(Simulation)) return State_Said(Sim, W, "Running", Role::Good);
        if (Pauses(Pause, Simulation))
            return State_Said(Sim, W, Sends ? "Paused, sentences go on" : "Paused", Role::Warn);
        if (Sends) return State_Said(Sim, W, std::string("Sending, ") + Standing, Role::Good);
        return State_Said(Sim, W, "Not started", Role::Dim);
    });
}

Layout State_Line(const Simulator& Sim, const Sensor_Form& W, bool Follows_Ship) {
    return Text([&Sim, &W, Follows_Ship] {
        if (!Any_Sentence_Runs(W)) return State_Said(Sim, W, "No sentence is on", Role::Dim);
        if (Follows_Ship && Sim.State.Of<Shell_State>().Mode == "Ship")
            return State_Said(Sim, W, "Ship control", Role::Readout);
        return State_Said(Sim, W, "Running", Role::Good);
    });
}

Layout Start_And_Pause(Button& Start, Button& Pause, const Timer& Simulation) {
    return Row({Place(Start).Lit([&Simulation] { return Runs(Simulation) ? Role::Good : Role::Plain; }),
                Place(Pause).Lit(
                    [&Pause, &Simulation] { return Pauses(Pause, Simulation) ? Role::Warn : Role::Plain; })});
}

Layout Messages(const Simulator& Sim, Sensor_Form& W, const std::vector<Message_Note>& Notes) {
    std::vector<Layout> Parts;
    int Line_Number = 0;
    const auto Leaves = [&Sim, &W] { return Output_Leaves(Sim, Port_Of(Sim, W)); };
    for (Sentence_Line& Line : W.Sentences.Lines) {
        Parts.push_back(At(Line_Number, 0, Line.Box));
        Parts.push_back(At(Line_Number, 1, Line.Interval_List));
        Parts.push_back(At(Line_Number, 2, Layout(layout::Countdown{&Line.Clock, Leaves})));
        if (Line.Note) Parts.push_back(At(Line_Number, 3, Row({Dim(*Line.Note)})));
        for (const auto& [Beside, Note] : Notes)
            if (Beside == Line.Row.Type) Parts.push_back(At(Line_Number, 3, Note));
        ++Line_Number;
    }
    return Box(W.frameNMEAMessages,
               Cells(std::move(Parts), {.Across = rhythm::Gap, .Down = 3, .Wide_Column = 2}));
}

Layout Bar_And_Box(Scroll_Bar& Bar, layout::Steps Scale, Text_Box& Typed, Layout Unit) {
    return Cells({At(0, 0, Lying(Bar, Scale), 2, 1), At(0, 1, Place(Typed).Width(Typed_Width)),
                  At(1, 1, std::move(Unit))},
                 {.Across = rhythm::Gap, .Down = 0, .Wide_Column = 0});
}

Layout Noise_Row(Check_Box& On, std::vector<Noise_List> Lists) {
    std::vector<Layout> Parts{On, Stretch()};
    for (Noise_List& Noise : Lists) {
        Parts.push_back(Dim(Noise.Title));
        Parts.emplace_back(Noise.List);
        Parts.push_back(std::move(Noise.Unit));
    }
    return Row(std::move(Parts));
}

Layout Routing(Sensor_Form& W, const std::vector<std::pair<Label*, Combo_Box*>>& Lists, Label* Lists_Title) {
    constexpr int Least_Port_Width = 110, Talker_Width = 44;
    Layout Both = Column({Row({Text("Port"), Place(W.cmbComPort).Least_Width(Least_Port_Width).Wide(),
                               Text("Talker"), Place(W.txtTalker).Width(Talker_Width)})});
    if (Lists.empty()) return Both;
    std::vector<Layout> Second;
    if (Lists_Title) Second.push_back(Dim(*Lists_Title));
    Second.push_back(Stretch());
    for (const auto& [Title, List] : Lists) {
        Second.push_back(Dim(*Title));
        Second.emplace_back(*List);
    }
    return Both.Then(Row(std::move(Second)));
}

Layout Ticker(const Simulator& Sim, const Sensor_Form& W) {
    return Layout(layout::Ticker{[&Sim, Index = W.Form_Index] { return Sim.Last_Sentence[Index]; }});
}

Layout Small_Window(const Simulator& Sim, Sensor_Form& W, bool Follows_Ship, std::vector<Layout> Values) {
    constexpr int Boxes_In_Line = 4;
    std::vector<Layout> Boxes;
    for (Sentence_Line& Line : W.Sentences.Lines) Boxes.emplace_back(Line.Box);
    return Window({State_Line(Sim, W, Follows_Ship).Wrapped(), Row(std::move(Values)).Then(Stretch()).Wide(),
                   Cells_By_Lines(Boxes_In_Line, std::move(Boxes), {.Across = rhythm::Gap, .Down = 2})});
}

Layout Small_Value(const char* Title, Label& Value, layout::Measure Widest, const char* Unit) {
    constexpr int Figures = 22;
    return Column({Text(Title), Readout(Value, Figures, std::move(Widest), Text(Unit))}).Spaced(0);
}

Layout Key_Catcher(Text_Box& Box) {
    Layout New = Place(Box);
    New.What = layout::Key_Catcher{};
    return New;
}

} // namespace brinewright
