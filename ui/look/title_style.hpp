#pragma once

#include <QProxyStyle>

namespace brinewright {

// Title bars of the child windows in the colours of the palette. The toolkit's own paint white or black on
// them whatever the palette says.
class Title_Style : public QProxyStyle {
    Q_OBJECT
  public:
    Title_Style();
    void drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter,
                       const QWidget* Widget) const override;
    void drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option, QPainter* Painter,
                            const QWidget* Widget) const override;
};

} // namespace brinewright
