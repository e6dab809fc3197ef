#pragma once

#include "shell/state/simulator.hpp"

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

namespace brinewright {

// Shown while the windows of the setup open: the sentences and windows start staggered, on purpose, and the
// program gives the event loop no turn meanwhile. It therefore paints itself at each of these waits.
class Opening_Progress : public QWidget {
    Q_OBJECT
  public:
    explicit Opening_Progress(Simulator& Its_Simulator);
    ~Opening_Progress() override;

  private:
    void Look();

    Simulator& Sim;
    QLabel* Text;
    QProgressBar* Bar;
};

} // namespace brinewright
