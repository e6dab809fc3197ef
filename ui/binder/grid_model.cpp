#include "ui/binder/grid_model.hpp"

#include "ui/binder/form_view.hpp"

namespace brinewright {

Grid_Model::Grid_Model(const std::shared_ptr<Form>& Its_Owner, const Grid& Shown, const Theme& Its_Theme,
                       QObject* Parent)
    : QAbstractTableModel(Parent), Owner(Its_Owner), Source(Shown), Colours(Its_Theme) {}

void Grid_Model::Follow() {
    const int Now = Source.Rows();
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
}

int Grid_Model::rowCount(const QModelIndex& Above) const { return Above.isValid() ? 0 : Row_Count; }

int Grid_Model::columnCount(const QModelIndex& Above) const {
    return Above.isValid() || Owner.expired() ? 0 : static_cast<int>(Source.Columns.size());
}

QVariant Grid_Model::data(const QModelIndex& Place, int Role) const {
    if (Owner.expired() || Place.row() >= Source.Rows()) return {};
    if (Role != Qt::DisplayRole && Role != Qt::ForegroundRole && Role != Qt::ToolTipRole) return {};
    const Grid::Cell Cell = Source.At(Place.row(), Place.column());
    if (Role != Qt::ForegroundRole) return To_Screen(Cell.Text);
    switch (Cell.Colour) {
    case Ink::Red: return Colours.Colour(Token::Bad);
    case Ink::Green: return Colours.Colour(Token::Good);
    case Ink::Black:
    case Ink::Normal: break;
    }
    return Colours.Colour(Token::Text);
}

QVariant Grid_Model::headerData(int Section, Qt::Orientation Direction, int Role) const {
    if (Owner.expired() || Direction != Qt::Horizontal || Role != Qt::DisplayRole) return {};
    return To_Screen(Source.Columns[static_cast<std::size_t>(Section)]);
}

} // namespace brinewright
