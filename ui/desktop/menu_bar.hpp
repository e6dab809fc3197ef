#pragma once

#include "shell/state/simulator.hpp"
#include "ui/look/theme.hpp"

#include <QAction>
#include <QMenuBar>

#include <map>

namespace brinewright {

// The menus of the main window: those of the model, and the palettes.
class Menu_Bar : public QObject {
    Q_OBJECT
  public:
    Menu_Bar(Simulator& Its_Simulator, Theme& Its_Theme, QMenuBar& Its_Bar);

    void Follow();

  Q_SIGNALS:
    void Acted(); // the user has chosen something

  private:
    void Add_Palettes(QMenu& Menu);
    void Choose_Letters();
    QString Text_Of(const Menu_Item& Item) const;

    Simulator& Sim;
    Theme& Colours;
    QMenuBar& Bar;
    std::map<const Menu_Item*, QAction*> Actions;
    std::map<const Menu_Item*, QChar> Letters; // of those whose caption marks none itself
};

} // namespace brinewright
