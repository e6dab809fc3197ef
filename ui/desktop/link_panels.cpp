#include "ui/desktop/link_panels.hpp"

#include "shell/main/frm_main.hpp"
#include "ui/binder/form_view.hpp"
#include "ui/layout/layout_builder.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr int Said_For_ms = 10'000;

} // namespace

Panel_Row::Panel_Row(Simulator& Its_Simulator, QWidget* Parent)
    : QWidget(Parent), Sim(Its_Simulator), Left_Over(new QLabel(this)) {
    frmMain& Main = Main_Window(Sim);
    Add(Main.sbLinksClosed);
    for (const auto& Source : Main.sbStatusBar) Add(*Source);
    for (const auto& Source : Main.sbLink) Add(*Source);
    Left_Over->hide();
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(Left_Over->fontMetrics().height() + 4);
}

void Panel_Row::Add(Label& Source) {
    auto* const Shown = new Clicked_Label(Sim, Source, this);
    connect(Shown, &Clicked_Label::Acted, this, &Panel_Row::Acted);
    Panels.push_back({&Source, Shown});
}

void Panel_Row::Follow() {
    for (const Panel& Each : Panels) {
        Each.Shown->setText(To_Screen(*Each.Source->Caption));
        Each.Shown->setToolTip(To_Screen(*Each.Source->Tool_Tip));
        Show_Role(Each.Shown, "role", *Each.Source->Fore_Colour == Ink::Red ? Role::Bad : Role::Plain);
    }
    Arrange();
}

void Panel_Row::Arrange() {
    std::vector<const Panel*> Wanted;
    for (const Panel& Each : Panels) {
        if (*Each.Source->Visible)
            Wanted.push_back(&Each);
        else
            Each.Shown->hide();
    }
    std::stable_partition(Wanted.begin(), Wanted.end(),
                          [](const Panel* P) { return *P->Source->Fore_Colour == Ink::Red; });
    const int Note_Width = Left_Over->fontMetrics().horizontalAdvance(QStringLiteral("28 more")) + 20;
    int Place = 0, Hidden = 0;
    for (const Panel* Each : Wanted) {
        const int Wide = Each->Shown->sizeHint().width();
        const bool Is_Last = Each == Wanted.back();
        const bool Has_Room = Hidden == 0 && Place + Wide + (Is_Last ? 0 : Note_Width) <= width();
        Each->Shown->setVisible(Has_Room);
        Hidden += Has_Room ? 0 : 1;
        if (!Has_Room) continue;
        Each->Shown->setGeometry(Place, 0, Wide, height());
        Place += Wide;
    }
    Left_Over->setVisible(Hidden > 0);
    Left_Over->setText(QStringLiteral("%1 more").arg(Hidden));
    Left_Over->setGeometry(Place, 0, Note_Width, height());
}

Link_Panels::Link_Panels(Simulator& Its_Simulator, QStatusBar& Bar)
    : QObject(&Bar), Sim(Its_Simulator), Row(new Panel_Row(Its_Simulator, &Bar)), Said(new QLabel(&Bar)) {
    Bar.setSizeGripEnabled(false);
    Bar.addWidget(Row, 1);
    connect(Row, &Panel_Row::Acted, this, &Link_Panels::Acted);
    Said->setObjectName(QStringLiteral("said"));
    Said->setMinimumWidth(1); // a long one is cut and does not widen the window
    Bar.addPermanentWidget(Said);
    Said_Long_Enough.setSingleShot(true);
    connect(&Said_Long_Enough, &QTimer::timeout, Said, [this] {
        Said->clear();
        Said->setToolTip(QString());
    });
    Sim.Told.Said.Add(this, [this](const std::string& Text) {
        Said->setText(To_Screen(Text));
        Said->setToolTip(To_Screen(Text));
        Said_Long_Enough.start(Said_For_ms);
    });
}

Link_Panels::~Link_Panels() { Sim.Told.Said.Drop(this); }

} // namespace brinewright
