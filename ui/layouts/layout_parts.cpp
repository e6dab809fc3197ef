#include "ui/layouts/layout_parts.hpp"

#include <QStyle>

namespace brinewright {

QVBoxLayout* Column_In(QWidget* Parent, int Margin) {
    auto* Column = Parent ? new QVBoxLayout(Parent) : new QVBoxLayout;
    Column->setContentsMargins(Margin, Margin, Margin, Margin);
    Column->setSpacing(rhythm::Gap);
    return Column;
}

QHBoxLayout* Row() {
    auto* New = new QHBoxLayout;
    New->setSpacing(rhythm::Gap);
    return New;
}

QLabel* Caption(const QString& Text) {
    auto* New = new QLabel(Text);
    New->setProperty("role", "dim");
    return New;
}

Field_Grid::Field_Grid(int Its_Pairs) : Grid(new QGridLayout), Pairs(Its_Pairs) {
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(rhythm::Base + 2);
}

void Field_Grid::Add(QWidget* Caption_Widget, QWidget* Field, QWidget* Unit) {
    const int Line = Count / Pairs;
    const int First = Count % Pairs * 4; // caption, field, unit, and a gap before the next pair
    ++Count;
    if (Caption_Widget) Grid->addWidget(Caption_Widget, Line, First, Qt::AlignRight | Qt::AlignVCenter);
    Grid->addWidget(Field, Line, First + 1, 1, Unit ? 1 : 2);
    if (Unit) Grid->addWidget(Unit, Line, First + 2, Qt::AlignLeft | Qt::AlignVCenter);
    if (First > 0) Grid->setColumnMinimumWidth(First - 1, rhythm::Gap);
}

void Field_Grid::Add(const QString& Text, QWidget* Field, const QString& Unit_Text) {
    Add(Caption(Text), Field, Unit_Text.isEmpty() ? nullptr : Caption(Unit_Text));
}

QGroupBox* Boxed(QGroupBox* Box, QLayout* Contents, int Side_Margin) {
    Contents->setContentsMargins(Side_Margin, rhythm::Gap, Side_Margin, Side_Margin);
    Box->setLayout(Contents);
    return Box;
}

QGroupBox* Boxed(const QString& Title, QLayout* Contents) { return Boxed(new QGroupBox(Title), Contents); }

void Show_State(QWidget* W, const char* Property, const char* Value) {
    if (!W || W->property(Property).toString() == QLatin1String(Value)) return;
    W->setProperty(Property, QString::fromLatin1(Value));
    W->style()->unpolish(W);
    W->style()->polish(W);
}

QHBoxLayout* Buttons_Row(std::initializer_list<QPushButton*> Buttons) {
    QHBoxLayout* New = Row();
    New->addStretch(1);
    for (QPushButton* B : Buttons) {
        B->setMinimumWidth(88);
        New->addWidget(B);
    }
    return New;
}

} // namespace brinewright
