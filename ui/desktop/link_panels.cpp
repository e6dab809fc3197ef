#include "ui/desktop/link_panels.hpp"

#include "shell/main/frm_main.hpp"
#include "ui/binder/form_view.hpp"

namespace brinewright {

namespace {

constexpr int Said_For_ms = 10'000;

} // namespace

Link_Panels::Link_Panels(Simulator& Its_Simulator, QStatusBar& Bar)
    : QObject(&Bar), Sim(Its_Simulator), Said(new QLabel(&Bar)) {
    Bar.setSizeGripEnabled(false);
    for (int Port = 1; Port <= 16; ++Port) {
        auto* Panel = new QLabel(&Bar);
        Panel->setObjectName(To_Screen(Main_Window(Sim).sbStatusBar[Port].Path()));
        Bar.addWidget(Panel);
        Panels[Port] = Panel;
    }
    Said->setObjectName(QStringLiteral("said"));
    Bar.addPermanentWidget(Said);
    Said_Long_Enough.setSingleShot(true);
    connect(&Said_Long_Enough, &QTimer::timeout, Said, &QLabel::clear);
    Sim.Told.Said.Add(this, [this](const std::string& Text) {
        Said->setText(To_Screen(Text));
        Said_Long_Enough.start(Said_For_ms);
    });
}

Link_Panels::~Link_Panels() { Sim.Told.Said.Drop(this); }

void Link_Panels::Follow() {
    for (const auto& [Port, Panel] : Panels) {
        Panel->setText(To_Screen(*Main_Window(Sim).sbStatusBar[Port].Caption));
        Panel->setVisible(*Main_Window(Sim).sbStatusBar[Port].Visible);
    }
}

} // namespace brinewright
