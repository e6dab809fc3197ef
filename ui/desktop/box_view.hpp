#pragma once

#include "shell/state/simulator.hpp"

#include <QPointer>
#include <QWidget>

#include <cstdint>

class QFileDialog;
class QMessageBox;

namespace brinewright {

// The message boxes and file dialogs that stand, one at a time, the oldest. None stops the event loop.
class Box_View : public QObject {
    Q_OBJECT
  public:
    Box_View(Simulator& Its_Simulator, QWidget& Its_Window);

    void Follow();
    void Take_Answered_Away(); // at once, and not with the next look

  Q_SIGNALS:
    void Acted(); // the user has answered

  private:
    void Follow_Boxes();
    void Follow_File_Dialogs();

    Simulator& Sim;
    QWidget& Window;
    QPointer<QMessageBox> Box; // goes with the dialog that it stands over
    std::int64_t Box_Id = 0;
    QPointer<QFileDialog> Asking;
    std::int64_t Asked_Id = 0;
};

} // namespace brinewright
