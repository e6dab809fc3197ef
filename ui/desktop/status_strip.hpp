#pragma once

#include "shell/state/simulator.hpp"

#include <QLabel>

namespace brinewright {

// What the user must not overlook while it holds: the faults that are injected.
class Status_Strip : public QLabel {
    Q_OBJECT
  public:
    explicit Status_Strip(Simulator& Its_Simulator);

    void Follow();

  private:
    Simulator& Sim;
};

} // namespace brinewright
