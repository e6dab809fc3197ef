#pragma once

#include "shell/state/simulator.hpp"

#include <QLabel>
#include <QMenuBar>

#include <vector>

namespace brinewright {

// What the user must not overlook while it holds: injected faults, and output that is held or paused. It
// stands in the free room beside the menus, so that nothing moves when it comes.
class Status_Strip : public QWidget {
    Q_OBJECT
  public:
    Status_Strip(Simulator& Its_Simulator, QMenuBar& Its_Bar);

    void Follow();

  Q_SIGNALS:
    void Acted(); // the user has clicked one

  protected:
    bool eventFilter(QObject* Watched, QEvent* Happened) override;

  private:
    struct Notice {
        const Label* Source;
        QLabel* Shown;
    };
    void Place();

    Simulator& Sim;
    QMenuBar& Bar;
    std::vector<Notice> Notices; // the one that is cut first when room is short comes last
};

} // namespace brinewright
