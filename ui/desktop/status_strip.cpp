#include "ui/desktop/status_strip.hpp"

#include "shell/state/fault_state.hpp"

#include <QStringList>

namespace brinewright {

namespace {

struct Fault_Text {
    bool Fault_State::*Fault;
    const char* Text;
};

constexpr Fault_Text Fault_Texts[] = {
    {&Fault_State::Fault_No_Checksum, "no checksum"},
    {&Fault_State::Fault_Faulty_Checksum, "faulty checksum"},
    {&Fault_State::Fault_Merged, "merged messages"},
    {&Fault_State::Fault_Cut, "cut messages"},
    {&Fault_State::Fault_Split, "split messages"},
};

} // namespace

Status_Strip::Status_Strip(Simulator& Its_Simulator) : Sim(Its_Simulator) {
    setObjectName(QStringLiteral("fault_strip"));
    hide();
}

void Status_Strip::Follow() {
    QStringList Faults;
    for (const Fault_Text& Fault : Fault_Texts)
        if (Sim.State.Of<Fault_State>().*Fault.Fault) Faults << QString::fromLatin1(Fault.Text);
    setText(QStringLiteral("Fault injected: ") + Faults.join(QStringLiteral(", ")));
    setVisible(!Faults.isEmpty());
}

} // namespace brinewright
