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

    void Follow(); // the grid has changed

    int rowCount(const QModelIndex& Above = {}) const override;
    int columnCount(const QModelIndex& Above = {}) const override;
    QVariant data(const QModelIndex& Place, int Role) const override;
    QVariant headerData(int Section, Qt::Orientation Direction, int Role) const override;

  private:
    std::weak_ptr<Form> Owner;
    const Grid& Source;
    const Theme& Colours;
    int Row_Count = 0; // as told to the table
};

} // namespace brinewright
