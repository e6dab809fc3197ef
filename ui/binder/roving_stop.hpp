#pragma once

#include <QObject>
#include <QWidget>

#include <vector>

namespace brinewright {

// Many widgets that are one stop of Tab, the one among them that had the keyboard last; arrows walk them.
class Roving_Stop : public QObject {
    Q_OBJECT
  public:
    Roving_Stop(std::vector<QWidget*> Its_Members, QObject* Parent);
    void Follow(); // the stop is one that can be operated

  protected:
    bool eventFilter(QObject* Watched, QEvent* Happened) override;

  private:
    void Stop_At(QWidget* W);
    QWidget* Next(const QWidget& From, int Key) const;

    std::vector<QWidget*> Members;
    QWidget* Stop = nullptr;
};

} // namespace brinewright
