#pragma once

#include "shell/state/simulator.hpp"

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include <map>

namespace brinewright {

// The status bar: a panel for each serial port, and at the right, for some seconds, what the program said.
class Link_Panels : public QObject {
    Q_OBJECT
  public:
    Link_Panels(Simulator& Its_Simulator, QStatusBar& Bar);

    ~Link_Panels() override;

    void Follow();

  private:
    Simulator& Sim;
    std::map<int, QLabel*> Panels; // by port number
    QLabel* Said;
    QTimer Said_Long_Enough;
};

} // namespace brinewright
