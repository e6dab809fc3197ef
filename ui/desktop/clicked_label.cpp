#include "ui/desktop/clicked_label.hpp"

#include "ui/binder/form_view.hpp"

#include <QMouseEvent>

namespace brinewright {

Clicked_Label::Clicked_Label(Simulator& Its_Simulator, Label& Its_Source, QWidget* Parent)
    : QLabel(Parent), Sim(Its_Simulator), Source(Its_Source) {
    setObjectName(To_Screen(Source.Path()));
    if (Source.Mouse_Down) setCursor(Qt::PointingHandCursor);
}

void Clicked_Label::mouseReleaseEvent(QMouseEvent* Released) {
    if (Released->button() != Qt::LeftButton || !rect().contains(Released->position().toPoint())) return;
    Sim.Windows.Event([this] {
        if (Sim.Windows.Usable(Source)) Sim.Windows.User_Click(Source);
    });
    Q_EMIT Acted();
}

} // namespace brinewright
