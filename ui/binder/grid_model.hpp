#pragma once

#include "platform/controls.hpp"
#include "ui/look/theme.hpp"

#include <QAbstractTableModel>

#include <memory>

namespace brinewright {

// A grid as the toolkit's tables read it: only the cells that are looked at are asked for.
class Grid_Model : public QAbstractTableModel {
    Q_OBJECT
  public:
    Grid_Model(const std::shared_ptr<Form>& Owner, const Grid& Shown, const Theme& Colours, QObject* Parent);

    int Follow();                     // the grid has changed; so many rows have gone at its head
    int Row_In_Source(int Row) const; // of one that is shown now; -1 when it has gone meanwhile

    int rowCount(const QModelIndex& Above = {}) const override;
    int columnCount(const QModelIndex& Above = {}) const override;
    QVariant data(const QModelIndex& Place, int Role) const override;
    QVariant headerData(int Section, Qt::Orientation Direction, int Role) const override;

  private:
    int Gone_Here() const; // rows that the table still shows
    QVariant Row_Background(Ink Its_Ink) const;

    std::weak_ptr<Form> Owner;
    const Grid& Source;
    const Theme& Colours;
    int Row_Count = 0; // as told to the table
    std::uint64_t Gone_Seen;
};

} // namespace brinewright
