#include "ui/desktop/menu_bar.hpp"

#include "platform/controls.hpp"
#include "ui/binder/form_view.hpp"

#include <QActionGroup>

namespace brinewright {

namespace {

constexpr const char* Palette_Key = "Palette";

} // namespace

Menu_Bar::Menu_Bar(Simulator& Its_Simulator, Theme& Its_Theme, QMenuBar& Its_Bar)
    : QObject(&Its_Bar), Sim(Its_Simulator), Colours(Its_Theme), Bar(Its_Bar) {
    std::map<std::string, QMenu*> Menus;
    for (Control* C : Sim.Main->Controls) {
        if (C->Kind != Control_Kind::Menu_Item) continue;
        auto& Item = static_cast<Menu_Item&>(*C);
        QMenu*& Menu = Menus[Item.Menu];
        if (!Menu) {
            Menu = Bar.addMenu("&" + To_Screen(Item.Menu));
            Menu->setToolTipsVisible(true);
            if (Item.Menu == "View") Add_Palettes(*Menu);
        }
        QAction* Action = Menu->addAction(To_Screen(*Item.Caption));
        Action->setObjectName(To_Screen(Item.Path()));
        connect(Action, &QAction::triggered, this, [this, &Item, Action] {
            Action->setChecked(*Item.Checked); // the model decides
            Sim.Windows.Event([&] { Sim.Windows.User_Click(Item); });
            Q_EMIT Acted();
        });
        Actions[&Item] = Action;
    }
}

void Menu_Bar::Follow() {
    for (const auto& [Item, Action] : Actions) {
        Action->setText(To_Screen(*Item->Caption));
        Action->setEnabled(*Item->Enabled);
        Action->setVisible(*Item->Visible);
        if (*Item->Checked) Action->setCheckable(true);
        Action->setChecked(*Item->Checked);
        if (!*Item->Checked) Action->setCheckable(false);
    }
}

// They concern only what is seen.
void Menu_Bar::Add_Palettes(QMenu& Menu) {
    auto* Group = new QActionGroup(this);
    const std::string Kept = Sim.Services.Settings().Get(Palette_Key, Palette_Names[0]);
    for (std::size_t I = 0; I < Palette_Names.size(); ++I) {
        QAction* Action = Menu.addAction(QString::fromLatin1(Palette_Names[I]));
        Action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(I + 1)));
        Action->setCheckable(true);
        Group->addAction(Action);
        const auto Kind = static_cast<Palette_Kind>(I);
        connect(Action, &QAction::triggered, this, [this, Kind, I] {
            Colours.Choose(Kind);
            Sim.Services.Settings().Set(Palette_Key, Palette_Names[I]);
        });
        if (Kept == Palette_Names[I]) {
            Action->setChecked(true);
            if (Colours.Chosen() != Kind) Colours.Choose(Kind);
        }
    }
    Menu.addSeparator();
}

} // namespace brinewright
