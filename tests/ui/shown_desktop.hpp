#pragma once

#include "tests/support/all_windows.hpp"
#include "ui/desktop/desktop_view.hpp"

#include <QApplication>
#include <QScrollArea>
#include <QtTest/QTest>

#include <optional>

namespace brinewright {

// The desktop over a simulator in virtual time. It looks when Settle is called and not by its clock.
struct Shown_Desktop : Every_Window {
    Shown_Desktop() : Colours(*qApp) { View.emplace(Sim, Colours); }

    void Open(const Simulator_State& Setup = Full_Setup()) {
        Start(Setup);
        View->Open();
        View->activateWindow();
        Settle();
    }

    void Settle() {
        View->Follow();
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void Open_Every_Window() {
        Every_Window::Open_Every_Window();
        Settle();
    }

    // Null unless exactly one widget has the name of the control.
    QWidget* Widget_Of(const Control& C) {
        QWidget* Window = View->Window_Of(C.Owner.Path());
        if (!Window) return nullptr;
        const auto Found = Window->findChildren<QWidget*>(To_Screen(C.Path()));
        return Found.size() == 1 ? Found.front() : nullptr;
    }
    template <class Widget>
    Widget& Shown_As(const Control& C) {
        auto* W = qobject_cast<Widget*>(Widget_Of(C));
        if (!W) throw std::logic_error(C.Owner.Path() + "." + C.Path() + " has no such widget");
        return *W;
    }
    template <class Widget>
    Widget* Top_Level() {
        for (QWidget* W : QApplication::topLevelWidgets())
            if (auto* Found = qobject_cast<Widget*>(W); Found && Found->isVisible()) return Found;
        return nullptr;
    }

    // Without the mark of a letter for the keyboard.
    static QString Unmarked(QString Text) {
        return Text.replace(QStringLiteral("&&"), QStringLiteral("\x01"))
            .remove(QLatin1Char('&'))
            .replace(QLatin1Char('\x01'), QLatin1Char('&'));
    }

    Theme Colours;
    std::optional<Desktop_View> View;
};

} // namespace brinewright
