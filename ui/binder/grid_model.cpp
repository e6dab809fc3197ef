#include "ui/binder/grid_model.hpp"

#include "ui/binder/form_view.hpp"

#include <algorithm>

namespace brinewright {

namespace {

Token Token_Of(Ink Colour) {
    switch (Colour) {
    case Ink::Red: return Token::Bad;
    case Ink::Green: return Token::Good;
    case Ink::Amber: return Token::Warn;
    case Ink::Black:
    case Ink::Normal: break;
    }
    return Token::Text;
}

} // namespace

Grid_Model::Grid_Model(const std::shared_ptr<Form>& Its_Owner, const Grid& Shown, const Theme& Its_Theme,
                       QObject* Parent)
    : QAbstractTableModel(Parent), Owner(Its_Owner), Source(Shown), Colours(Its_Theme),
      Gone_Seen(Shown.Gone) {}

int Grid_Model::Follow() {
    const int Now = Source.Rows();
    const int Gone = Gone_Here();
    Gone_Seen = Source.Gone;
    if (Gone > 0) {
        beginRemoveRows({}, 0, Gone - 1);
        Row_Count -= Gone;
        endRemoveRows();
    }
    if (Now > Row_Count) {
        beginInsertRows({}, Row_Count, Now - 1);
        Row_Count = Now;
        endInsertRows();
    } else if (Now < Row_Count) {
        beginRemoveRows({}, Now, Row_Count - 1);
        Row_Count = Now;
        endRemoveRows();
    }
    if (Row_Count > 0) Q_EMIT dataChanged(index(0, 0), index(Row_Count - 1, columnCount() - 1));
    return Gone;
}

int Grid_Model::Gone_Here() const {
    return static_cast<int>(
        std::min<std::uint64_t>(Source.Gone - Gone_Seen, static_cast<std::uint64_t>(Row_Count)));
}

int Grid_Model::Row_In_Source(int Row) const { return std::max(Row - Gone_Here(), -1); }

int Grid_Model::rowCount(const QModelIndex& Above) const { return Above.isValid() ? 0 : Row_Count; }

int Grid_Model::columnCount(const QModelIndex& Above) const {
    return Above.isValid() || Owner.expired() ? 0 : static_cast<int>(Source.Columns.size());
}

QVariant Grid_Model::data(const QModelIndex& Place, int Role) const {
    if (Owner.expired() || Place.row() >= Source.Rows()) return {};
    if (Role == Qt::BackgroundRole && Source.Row_Colour)
        return Row_Background(Source.Row_Colour(Place.row()));
    if (Role != Qt::DisplayRole && Role != Qt::ForegroundRole && Role != Qt::ToolTipRole) return {};
    const Grid::Cell Cell = Source.At(Place.row(), Place.column());
    if (Role != Qt::ForegroundRole) return To_Screen(Cell.Text);
    return Colours.Colour(Token_Of(Cell.Colour));
}

// A tint, on which text of all colours can be read.
QVariant Grid_Model::Row_Background(Ink Its_Ink) const {
    if (Token_Of(Its_Ink) == Token::Text) return {};
    constexpr float Share = 0.2F;
    const QColor From = Colours.Colour(Token::Field), To = Colours.Colour(Token_Of(Its_Ink));
    const auto Mixed = [](float A, float B) { return A + (B - A) * Share; };
    return QColor::fromRgbF(Mixed(From.redF(), To.redF()), Mixed(From.greenF(), To.greenF()),
                            Mixed(From.blueF(), To.blueF()));
}

QVariant Grid_Model::headerData(int Section, Qt::Orientation Direction, int Role) const {
    if (Owner.expired() || Direction != Qt::Horizontal || Role != Qt::DisplayRole) return {};
    return To_Screen(Source.Columns[static_cast<std::size_t>(Section)]);
}

} // namespace brinewright
