#include "ui/look/title_style.hpp"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace brinewright {

namespace {

constexpr double Sign_Size = 4; // from the middle of a button to the ends of its sign

void Paint_Sign(QPainter& Painter, QStyle::SubControl Which, const QPointF& Middle) {
    const double S = Sign_Size;
    switch (Which) {
    case QStyle::SC_TitleBarCloseButton:
        Painter.drawLine(Middle + QPointF(-S, -S), Middle + QPointF(S, S));
        Painter.drawLine(Middle + QPointF(-S, S), Middle + QPointF(S, -S));
        break;
    case QStyle::SC_TitleBarMinButton:
        Painter.drawLine(Middle + QPointF(-S, S), Middle + QPointF(S, S));
        break;
    case QStyle::SC_TitleBarMaxButton:
        Painter.drawRect(QRectF(Middle.x() - S, Middle.y() - S, 2 * S, 2 * S));
        break;
    default: // back to the normal size
        Painter.drawRect(QRectF(Middle.x() - S, Middle.y() - S / 2, 1.5 * S, 1.5 * S));
        Painter.drawLine(Middle + QPointF(-S / 2, -S), Middle + QPointF(S, -S));
        Painter.drawLine(Middle + QPointF(S, -S), Middle + QPointF(S, S / 2));
        break;
    }
}

// A tick, and a frame that is heavier where the keyboard is. The palette holds the tokens.
void Paint_Check_Box(const QStyleOption& Option, QPainter& Painter) {
    const QPalette& P = Option.palette;
    const bool Enabled = Option.state & QStyle::State_Enabled, On = Option.state & QStyle::State_On;
    const bool Focused = Option.state & QStyle::State_HasFocus;
    const QColor Accent = P.color(QPalette::Highlight), Line = P.color(QPalette::Mid);
    const QColor Frame = !Enabled ? Line : Focused || On ? Accent : P.color(QPalette::PlaceholderText);
    const double Weight = Focused ? 2 : 1;
    const double Half = Weight / 2;
    const QRectF Box = QRectF(Option.rect).adjusted(Half, Half, -Half, -Half);
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(Frame, Weight));
    Painter.setBrush(P.color(Enabled ? QPalette::Base : QPalette::Button));
    Painter.drawRoundedRect(Box, 3, 3);
    if (On) {
        const auto Place = [&](double Across, double Down) {
            return QPointF(Box.left() + Across * Box.width(), Box.top() + Down * Box.height());
        };
        Painter.setPen(QPen(Enabled ? Accent : Line, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        Painter.drawPolyline(QPolygonF{Place(0.22, 0.52), Place(0.42, 0.74), Place(0.8, 0.26)});
    }
    Painter.restore();
}

} // namespace

Title_Style::Title_Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Title_Style::drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter,
                                const QWidget* Widget) const {
    if (Element == PE_IndicatorCheckBox)
        Paint_Check_Box(*Option, *Painter);
    else
        QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
}

void Title_Style::drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option,
                                     QPainter* Painter, const QWidget* Widget) const {
    const auto* Title = qstyleoption_cast<const QStyleOptionTitleBar*>(Option);
    if (Control != CC_TitleBar || !Title)
        return QProxyStyle::drawComplexControl(Control, Option, Painter, Widget);
    const bool Active = Title->titleBarState & Qt::WindowActive;
    const QPalette& P = Title->palette;
    Painter->save();
    Painter->fillRect(Title->rect, P.color(Active ? QPalette::Mid : QPalette::Button));
    Painter->setPen(Active ? P.color(QPalette::Active, QPalette::WindowText)
                           : P.color(QPalette::PlaceholderText));
    const QRect Place = proxy()->subControlRect(CC_TitleBar, Title, SC_TitleBarLabel, Widget);
    Painter->drawText(Place, Qt::AlignVCenter | Qt::AlignLeft,
                      Title->fontMetrics.elidedText(Title->text, Qt::ElideRight, Place.width()));
    Painter->setRenderHint(QPainter::Antialiasing);
    const bool Small = Title->titleBarState & (Qt::WindowMaximized | Qt::WindowMinimized);
    const SubControl Buttons[] = {
        SC_TitleBarMinButton, Small ? SC_TitleBarNormalButton : SC_TitleBarMaxButton, SC_TitleBarCloseButton};
    for (const SubControl Which : Buttons) {
        const QRect Button = proxy()->subControlRect(CC_TitleBar, Title, Which, Widget);
        if (!Button.isValid()) continue;
        if (Title->activeSubControls & Which && Title->state & State_MouseOver)
            Painter->fillRect(Button, P.color(QPalette::Base));
        Paint_Sign(*Painter, Which, QRectF(Button).center());
    }
    Painter->restore();
}

} // namespace brinewright
