#include "ui/desktop/menu_bar.hpp"

#include "platform/controls.hpp"
#include "ui/binder/form_view.hpp"
#include "ui/binder/mnemonic.hpp"

#include <QActionGroup>

#include <utility>

namespace brinewright {

namespace {

constexpr const char* Palette_Key = "Palette";

constexpr std::pair<const char*, const char*> Shortcuts[] = {{"mnuFileOpen", "Ctrl+O"},
                                                             {"mnuFileSave", "Ctrl+S"},
                                                             {"mnuFileExit", "Ctrl+Q"},
                                                             {"mnuViewSources", "Ctrl+0"}};

} // namespace

Menu_Bar::Menu_Bar(Simulator& Its_Simulator, Theme& Its_Theme, QMenuBar& Its_Bar)
    : QObject(&Its_Bar), Sim(Its_Simulator), Colours(Its_Theme), Bar(Its_Bar) {
    Choose_Letters();
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
        QAction* Action = Menu->addAction(Text_Of(Item));
        Action->setObjectName(To_Screen(Item.Path()));
        for (const auto& [Name, Keys] : Shortcuts)
            if (Item.Name == Name) Action->setShortcut(QKeySequence(QLatin1String(Keys)));
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
        Action->setText(Text_Of(*Item));
        Action->setEnabled(*Item->Enabled);
        Action->setVisible(*Item->Visible);
        if (*Item->Checked) Action->setCheckable(true);
        Action->setChecked(*Item->Checked);
        if (!*Item->Checked) Action->setCheckable(false);
    }
}

// Those that mark a letter come first in each menu, then the others in their order.
void Menu_Bar::Choose_Letters() {
    std::map<std::string, QString> Taken;
    for (const bool Marked : {true, false})
        for (const Control* C : Sim.Main->Controls) {
            if (C->Kind != Control_Kind::Menu_Item) continue;
            const auto& Item = static_cast<const Menu_Item&>(*C);
            const QString Caption = To_Screen(*Item.Caption);
            if (Caption.contains(QLatin1Char('&')) != Marked) continue;
            if (Marked)
                Taken[Item.Menu] += Caption.section(QLatin1Char('&'), 1).left(1).toUpper();
            else
                Letters[&Item] = Choose_Mnemonic(Caption, Taken[Item.Menu]);
        }
}

QString Menu_Bar::Text_Of(const Menu_Item& Item) const {
    const auto Own = Letters.find(&Item);
    const QString Caption = To_Screen(*Item.Caption);
    return Own == Letters.end() ? Caption : With_Mnemonic(Caption, Own->second);
}

// They concern only what is seen.
void Menu_Bar::Add_Palettes(QMenu& Menu) {
    auto* Group = new QActionGroup(this);
    QString Taken;
    const std::string Kept = Sim.Services.Settings().Get(Palette_Key, Palette_Names[0]);
    for (std::size_t I = 0; I < Palette_Names.size(); ++I) {
        const QString Name = QString::fromLatin1(Palette_Names[I]);
        QAction* Action = Menu.addAction(With_Mnemonic(Name, Choose_Mnemonic(Name, Taken)));
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
