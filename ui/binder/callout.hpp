#pragma once

#include <QLabel>
#include <QPointer>

namespace brinewright {

// Says in red, beside a field, why what was typed in it does not stand. It lies over the window, so that
// nothing in it moves.
class Callout : public QLabel {
    Q_OBJECT
  public:
    explicit Callout(QWidget* View);
    void Say(const QString& Why, const QWidget& Beside); // nothing: it goes

  private:
    void Stand_Beside(const QWidget& Field);
    QPointer<const QWidget> Its_Field;
};

} // namespace brinewright
