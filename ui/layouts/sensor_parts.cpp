#include "ui/layouts/sensor_parts.hpp"

#include "links/port_list.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "ui/instruments/countdown_bar.hpp"
#include "ui/instruments/slider_scale.hpp"
#include "ui/layouts/layout_parts.hpp"

#include <QFontMetrics>
#include <QGraphicsOpacityEffect>

#include <algorithm>
#include <cstdlib>

namespace brinewright {

namespace {

QString Port_Text(const Simulator& Sim, int Form_Index) {
    const int Port = Sim.State.Of<Link_State>().Sensor_Table[Form_Index].Port;
    if (!Link_In_Use(Sim, Port)) return QStringLiteral("no link chosen");
    if (Port <= port_number::Last_Serial) return QStringLiteral("COM %1").arg(Port);
    if (Port == port_number::TCP)
        return QStringLiteral("TCP port %1").arg(Sim.State.Of<Link_State>().TCP_Port);
    return QStringLiteral("UDP port %1")
        .arg(Sim.State.Of<Link_State>().UDP_Port_Number[Port - port_number::First_UDP]);
}

QString State_Text(const Form_View& View, const char* State, int Form_Index) {
    return QString::fromLatin1(State) + QStringLiteral("   to ") + Port_Text(View.Sim, Form_Index);
}

} // namespace

QWidget* State_Line(Form_View& View, Button& Start, Button& Pause, const Timer& Simulation, int Form_Index) {
    auto* Line = new QLabel;
    Line->setTextFormat(Qt::PlainText);
    View.When_Shown([&View, &Start, &Pause, &Simulation, Form_Index, Line] {
        const bool Ship = View.Sim.State.Of<Shell_State>().Mode == "Ship";
        const bool Running = Simulation.Interval_ms() > 0;
        const bool Paused = !Running && *Pause.Enabled;
        const char* State = Ship ? "Ship control" : Running ? "Running" : Paused ? "Paused" : "Not started";
        Line->setText(State_Text(View, State, Form_Index));
        Show_State(Line, "role", Ship ? "readout" : Running ? "good" : Paused ? "warn" : "dim");
        Show_State(View.Widget_Of(Start), "state", Running ? "good" : "");
        Show_State(View.Widget_Of(Pause), "state", Paused ? "warn" : "");
    });
    return Line;
}

QWidget* State_Line(Form_View& View, const Sentence_Family& Sentences, bool Follows_Ship, int Form_Index) {
    auto* Line = new QLabel;
    Line->setTextFormat(Qt::PlainText);
    View.When_Shown([&View, &Sentences, Follows_Ship, Form_Index, Line] {
        const bool Ship = Follows_Ship && View.Sim.State.Of<Shell_State>().Mode == "Ship";
        const bool Running = std::any_of(Sentences.Lines.begin(), Sentences.Lines.end(),
                                         [](const auto& L) { return L.Clock.Interval_ms() > 0; });
        const char* State = !Running ? "No sentence is on" : Ship ? "Ship control" : "Running";
        Line->setText(State_Text(View, State, Form_Index));
        Show_State(Line, "role", !Running ? "dim" : Ship ? "readout" : "good");
    });
    return Line;
}

QGroupBox* Messages_Box(Form_View& View, Frame& Box, Sentence_Family& Sentences,
                        const std::vector<Row_Note>& Notes) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(3);
    int Line_Number = 0;
    for (Sentence_Line& Line : Sentences.Lines) {
        Grid->addWidget(View.Make(Line.Box), Line_Number, 0);
        Grid->addWidget(View.Make(Line.Interval_List), Line_Number, 1);
        Grid->addWidget(new Countdown_Bar(View.Colours, View.Shown_Form(), Line.Clock), Line_Number, 2);
        for (const auto& [Beside, Note] : Notes)
            if (Beside == &Line.Box) Grid->addLayout(Note(), Line_Number, 3);
        ++Line_Number;
    }
    Grid->setColumnStretch(2, 1);
    return Boxed(View.Make(Box), Grid);
}

QLabel* Readout(Form_View& View, Label& Value, int Pixels, const char* Widest) {
    QLabel* W = View.Make(Value, "readout");
    W->setFont(Readout_Font(Pixels));
    W->setMinimumWidth(QFontMetrics(W->font()).horizontalAdvance(QString::fromLatin1(Widest)));
    return W;
}

QHBoxLayout* Readout_Row(Form_View& View, Label& Value, int Pixels, const char* Widest, QWidget* Unit) {
    QHBoxLayout* Line = Row();
    QLabel* Figures = Readout(View, Value, Pixels, Widest);
    Figures->setAlignment(Qt::AlignRight | Qt::AlignVCenter); // beside the unit, however many they are
    Line->addWidget(Figures);
    Line->addWidget(Unit, 0, Qt::AlignLeft | Qt::AlignBottom);
    Line->addStretch(1);
    return Line;
}

QLayout* Scaled(Form_View& View, Scroll_Bar& Bar, Qt::Orientation Direction, const Scale_Steps& Steps) {
    const bool Lies = Direction == Qt::Horizontal;
    const auto Read = [&Bar, Lies, Direction, Steps] {
        // Bars that lie rise to the right; those that stand have their Min at the top.
        const int Least = std::min<int>(Bar.Min, Bar.Max), Most = std::max<int>(Bar.Min, Bar.Max);
        const int First = Lies ? Least : *Bar.Min, Last = Lies ? Most : *Bar.Max;
        const auto Share = [&](int Value) { return static_cast<double>(Value - First) / (Last - First); };
        Slider_Scale_Reading Scale{Direction, static_cast<double>(Steps.Tick) / (Most - Least), Share(0), {}};
        for (int Value = Least; Value <= Most; ++Value)
            if (Value % Steps.Figure == 0)
                Scale.Figures.push_back(
                    {Share(Value),
                     QString::number((Steps.Unsigned ? std::abs(Value) : Value) / Steps.Per_Unit)});
        std::sort(Scale.Figures.begin(), Scale.Figures.end(),
                  [](const auto& A, const auto& B) { return A.Share < B.Share; });
        return Scale;
    };
    auto* Both = new QBoxLayout(Lies ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    Both->setSpacing(0);
    Both->addWidget(View.Make(Bar, Direction));
    auto* Scale = new Slider_Scale(View.Colours, Direction, Lies ? 22 : 34, Read);
    Both->addWidget(Scale);
    View.When_Shown([Scale] { Scale->Look(); });
    return Both;
}

QHBoxLayout* Noise_Row(Form_View& View, Check_Box& On, const std::vector<Noise_List>& Lists) {
    QHBoxLayout* Line = Row();
    Line->addWidget(View.Make(On));
    Line->addStretch(1);
    for (const Noise_List& Noise : Lists) {
        Line->addWidget(View.Make(*Noise.Title, "dim"));
        Line->addWidget(View.Make(*Noise.List));
        Line->addWidget(Noise.Unit);
    }
    return Line;
}

QLayout* Routing_Row(Form_View& View, Combo_Box& Ports, Text_Box& Talker,
                     const std::vector<std::pair<Label*, Combo_Box*>>& Lists, Label* Lists_Title) {
    auto* Column = new QVBoxLayout;
    Column->setSpacing(rhythm::Base);
    QHBoxLayout* First = Row();
    First->addWidget(Caption(QStringLiteral("Port")));
    QComboBox* Port_List = View.Make(Ports);
    Port_List->setMinimumWidth(110);
    First->addWidget(Port_List, 1);
    First->addWidget(Caption(QStringLiteral("Talker")));
    QLineEdit* Talker_Box = View.Make(Talker);
    Talker_Box->setFixedWidth(44);
    First->addWidget(Talker_Box);
    Column->addLayout(First);
    if (Lists.empty()) return Column;
    QHBoxLayout* Second = Row();
    if (Lists_Title) Second->addWidget(View.Make(*Lists_Title, "dim"));
    Second->addStretch(1);
    for (const auto& [Title, List] : Lists) {
        Second->addWidget(View.Make(*Title, "dim"));
        Second->addWidget(View.Make(*List));
    }
    Column->addLayout(Second);
    return Column;
}

QWidget* Ticker(Form_View& View, int Form_Index) {
    auto* Line = new QLabel;
    Line->setObjectName(QStringLiteral("ticker"));
    Line->setAttribute(Qt::WA_OpaquePaintEvent); // its style fills it
    Line->setTextFormat(Qt::PlainText);
    Line->setFont(Sentence_Font());
    Line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    Line->setToolTip(QStringLiteral("The last sentence of this sensor, as it left"));
    View.When_Shown([&View, Form_Index, Line] {
        Line->setText(To_Screen(View.Sim.Last_Sentence[Form_Index]).simplified());
    });
    return Line;
}

QWidget* Key_Catcher(Form_View& View, Text_Box& Box) {
    QLineEdit* Catcher = View.Make(Box);
    Catcher->setFixedSize(1, 1);
    auto* Unseen = new QGraphicsOpacityEffect(Catcher);
    Unseen->setOpacity(0);
    Catcher->setGraphicsEffect(Unseen);
    return Catcher;
}

} // namespace brinewright
