#include "ui/layouts/sensor_parts.hpp"

#include "links/port_list.hpp"
#include "ui/instruments/countdown_bar.hpp"
#include "ui/layouts/layout_parts.hpp"

#include <QStyle>

namespace brinewright {

namespace {

void Set_Property(QWidget* W, const char* Name, const char* Value) {
    if (W->property(Name).toString() == QLatin1String(Value)) return;
    W->setProperty(Name, QString::fromLatin1(Value));
    W->style()->unpolish(W);
    W->style()->polish(W);
}

QString Port_Text(const Simulator& Sim, int Form_Index) {
    const int Port = Sim.State.Sensor_Table[Form_Index].Port;
    if (!Link_In_Use(Sim, Port)) return QStringLiteral("no link chosen");
    if (Port <= port_number::Last_Serial) return QStringLiteral("COM %1").arg(Port);
    if (Port == port_number::TCP) return QStringLiteral("TCP port %1").arg(Sim.State.TCP_Port);
    return QStringLiteral("UDP port %1").arg(Sim.State.UDP_Port_Number[Port - port_number::First_UDP]);
}

} // namespace

QWidget* State_Line(Form_View& View, Button& Start, Button& Pause, const Timer& Simulation, int Form_Index) {
    auto* Line = new QLabel;
    Line->setTextFormat(Qt::PlainText);
    View.When_Shown([&View, &Start, &Pause, &Simulation, Form_Index, Line] {
        const bool Ship = View.Sim.State.Mode == "Ship";
        const bool Running = Simulation.Interval_ms() > 0;
        const bool Paused = !Running && *Pause.Enabled;
        const char* State = Ship ? "Ship control" : Running ? "Running" : Paused ? "Paused" : "Not started";
        Line->setText(QString::fromLatin1(State) + QStringLiteral("   to ") +
                      Port_Text(View.Sim, Form_Index));
        Set_Property(Line, "role", Ship ? "readout" : Running ? "good" : Paused ? "warn" : "dim");
        if (QWidget* W = View.Widget_Of(Start)) Set_Property(W, "state", Running ? "good" : "");
        if (QWidget* W = View.Widget_Of(Pause)) Set_Property(W, "state", Paused ? "warn" : "");
    });
    return Line;
}

QGroupBox* Messages_Box(Form_View& View, Frame& Box, Sentence_Family& Sentences) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(3);
    int Line_Number = 0;
    for (Sentence_Line& Line : Sentences.Lines) {
        Grid->addWidget(View.Make(*Line.Box), Line_Number, 0);
        Grid->addWidget(View.Make(*Line.Interval_List), Line_Number, 1);
        Grid->addWidget(new Countdown_Bar(View.Colours, View.Shown_Form(), *Line.Clock), Line_Number, 2);
        ++Line_Number;
    }
    Grid->setColumnStretch(2, 1);
    return Boxed(View.Make(Box), Grid);
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

} // namespace brinewright
