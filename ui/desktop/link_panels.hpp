#pragma once

#include "shell/state/simulator.hpp"
#include "ui/desktop/clicked_label.hpp"

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include <vector>

namespace brinewright {

// As many panels as there is room for, side by side; the links that are closed come first, and how many are
// left stands at the end.
class Panel_Row : public QWidget {
    Q_OBJECT
  public:
    Panel_Row(Simulator& Its_Simulator, QWidget* Parent);

    void Follow();

  Q_SIGNALS:
    void Acted(); // the user has clicked one

  protected:
    void resizeEvent(QResizeEvent*) override { Arrange(); }

  private:
    struct Panel {
        const Label* Source;
        Clicked_Label* Shown;
    };
    void Add(Label& Source);
    void Arrange();

    Simulator& Sim;
    std::vector<Panel> Panels; // in their order
    QLabel* Left_Over;
};

// The status bar: a panel for each serial port and each link, and at the right, for some seconds, what the
// program said.
class Link_Panels : public QObject {
    Q_OBJECT
  public:
    Link_Panels(Simulator& Its_Simulator, QStatusBar& Bar);

    ~Link_Panels() override;

    void Follow() { Row->Follow(); }

  Q_SIGNALS:
    void Acted(); // the user has clicked a panel

  private:
    Simulator& Sim;
    Panel_Row* Row;
    QLabel* Said;
    QTimer Said_Long_Enough;
};

} // namespace brinewright
