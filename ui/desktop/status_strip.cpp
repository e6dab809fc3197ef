#include "ui/desktop/status_strip.hpp"

#include "shell/main/frm_main.hpp"
#include "ui/binder/form_view.hpp"
#include "ui/desktop/clicked_label.hpp"

#include <QEvent>

#include <algorithm>

namespace brinewright {

namespace {

constexpr int Gap = 4, Air = 18; // between the notices, and of one beside its text

} // namespace

Status_Strip::Status_Strip(Simulator& Its_Simulator, QMenuBar& Its_Bar)
    : QWidget(&Its_Bar), Sim(Its_Simulator), Bar(Its_Bar) {
    frmMain& Main = Main_Window(Sim);
    for (Label* Source : {&Main.lblOutputHeld, &Main.lblOutputPaused, &Main.lblFaults}) {
        auto* const Shown = new Clicked_Label(Sim, *Source, this);
        Shown->setProperty("notice", Source == &Main.lblFaults ? "bad" : "warn");
        Shown->setAlignment(Qt::AlignCenter);
        connect(Shown, &Clicked_Label::Acted, this, &Status_Strip::Acted);
        Notices.push_back({Source, Shown});
    }
    Bar.installEventFilter(this);
}

void Status_Strip::Follow() {
    for (const Notice& Each : Notices) {
        Each.Shown->setVisible(*Each.Source->Visible);
        Each.Shown->setToolTip(To_Screen(*Each.Source->Caption + ". " + *Each.Source->Tool_Tip));
    }
    Place();
}

// From the right end of the bar, as far as the menus leave room.
void Status_Strip::Place() {
    int Menus_End = 0;
    for (const QAction* Menu : Bar.actions())
        Menus_End = std::max(Menus_End, Bar.actionGeometry(const_cast<QAction*>(Menu)).right());
    setGeometry(Menus_End + Air, 0, std::max(Bar.width() - Menus_End - Air, 0), Bar.height());
    int End = width() - Gap;
    for (const Notice& Each : Notices) {
        if (!*Each.Source->Visible) continue;
        Each.Shown->ensurePolished(); // the face is of the style
        const QString Whole = To_Screen(*Each.Source->Caption);
        const QFontMetrics Face = Each.Shown->fontMetrics();
        const int Wide = std::clamp(Face.horizontalAdvance(Whole) + Air, 0, std::max(End, 0));
        Each.Shown->setText(Face.elidedText(Whole, Qt::ElideRight, Wide - Air + 2));
        Each.Shown->setGeometry(End - Wide, 2, Wide, height() - 4);
        End -= Wide + Gap;
    }
    setVisible(
        std::any_of(Notices.begin(), Notices.end(), [](const Notice& N) { return *N.Source->Visible; }));
}

bool Status_Strip::eventFilter(QObject* Watched, QEvent* Happened) {
    const auto Kind = Happened->type();
    if (Kind == QEvent::Resize || Kind == QEvent::ActionAdded || Kind == QEvent::FontChange) Place();
    return QWidget::eventFilter(Watched, Happened);
}

} // namespace brinewright
