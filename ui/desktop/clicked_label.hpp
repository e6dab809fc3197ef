#pragma once

#include "platform/controls.hpp"
#include "shell/state/simulator.hpp"

#include <QLabel>

namespace brinewright {

// A label of the main window that does something when it is clicked. It has the name of its control.
class Clicked_Label : public QLabel {
    Q_OBJECT
  public:
    Clicked_Label(Simulator& Its_Simulator, Label& Its_Source, QWidget* Parent);

  Q_SIGNALS:
    void Acted(); // the user has clicked it

  protected:
    void mouseReleaseEvent(QMouseEvent* Released) override;

  private:
    Simulator& Sim;
    Label& Source;
};

} // namespace brinewright
