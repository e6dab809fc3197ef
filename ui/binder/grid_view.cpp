// Tables as seen.

#include "ui/binder/form_view.hpp"
#include "ui/binder/grid_model.hpp"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

constexpr int Cell_Margin = 14;

// Its last column is as wide as the longest text in it, and takes the room that is left.
class Grid_Table : public QTableView {
  public:
    Grid_Table(const std::shared_ptr<Form>& Its_Owner, const Grid& Its_Source, QWidget* Parent)
        : QTableView(Parent), Owner(Its_Owner), Source(Its_Source) {}

    void Fit_Last_Column() {
        QHeaderView& Head = *horizontalHeader();
        if (Owner.expired() || *Source.Last_Column_Size == 0) return;
        Head.setStretchLastSection(false);
        setTextElideMode(Qt::ElideNone);
        const int Last = Head.count() - 1, Others = Head.length() - Head.sectionSize(Last);
        const int Text_Width =
            fontMetrics().horizontalAdvance(QString(*Source.Last_Column_Size, QLatin1Char('0'))) +
            Cell_Margin;
        Head.resizeSection(Last, std::max(viewport()->width() - Others, Text_Width));
    }

  protected:
    void resizeEvent(QResizeEvent* New) override {
        QTableView::resizeEvent(New);
        Fit_Last_Column();
    }
    // A table makes its first row current when it gets the focus. Nobody has chosen that.
    void focusInEvent(QFocusEvent* Entered) override {
        const QSignalBlocker Quiet(selectionModel());
        const bool Had_None = !currentIndex().isValid();
        QTableView::focusInEvent(Entered);
        if (Had_None) selectionModel()->clear();
    }

  private:
    std::weak_ptr<Form> Owner;
    const Grid& Source;
};

// What has been shown of what grows in a grid.
struct Seen_Of_Grid {
    std::uint32_t Choices = 0;
    std::uint32_t Heads = 0;
    int Last_Column_Size = 0;
};

void Show_Grid(const Grid& C, Grid_Table& W, Grid_Model& Model, Seen_Of_Grid& Seen) {
    const QSignalBlocker Quiet(W.selectionModel()); // what moves here is nothing the user did
    QScrollBar& Bar = *W.verticalScrollBar();
    const bool At_End = Bar.value() == Bar.maximum();
    if (const int Gone = Model.Follow(); Gone > 0) Bar.setValue(Bar.value() - Gone); // what is read stays
    if (std::exchange(Seen.Last_Column_Size, *C.Last_Column_Size) != *C.Last_Column_Size) W.Fit_Last_Column();
    const int Row = C.Selected_Row();
    if (Row < 0)
        W.selectionModel()->clear();
    else if (W.currentIndex().row() != Row || !W.selectionModel()->isSelected(W.currentIndex()))
        W.selectRow(Row);
    if (std::exchange(Seen.Heads, *C.Head_Count) != *C.Head_Count) W.scrollToTop();
    if (std::exchange(Seen.Choices, C.Choice_Count) != C.Choice_Count && Row >= 0)
        W.scrollTo(Model.index(Row, std::max(W.columnAt(0), 0)));
    else if (C.Follows_End && At_End && Row < 0)
        W.scrollToBottom();
    W.viewport()->update();
}

} // namespace

QTableView* Form_View::Make(Grid& C) {
    auto* W = new Grid_Table(Source.lock(), C, this);
    auto* Model = new Grid_Model(Source.lock(), C, Colours, W);
    W->setModel(Model);
    W->verticalHeader()->hide();
    W->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    W->verticalHeader()->setDefaultSectionSize(W->fontMetrics().height() + 6);
    W->setEditTriggers(QAbstractItemView::NoEditTriggers);
    W->setSelectionBehavior(QAbstractItemView::SelectRows);
    W->setSelectionMode(QAbstractItemView::SingleSelection);
    W->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    W->setWordWrap(false);
    W->setTabKeyNavigation(false);
    W->horizontalHeader()->setHighlightSections(false);
    Bind(C, W, [&C, W, Model, Seen = Seen_Of_Grid()]() mutable { Show_Grid(C, *W, *Model, Seen); });
    connect(W->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, &C, Model](const QModelIndex& Now) {
                if (!Now.isValid()) return;
                if (const int Row = Model->Row_In_Source(Now.row()); Row >= 0)
                    Act([&C, Row](Desktop& D) { D.User_Set(C, static_cast<std::int64_t>(Row)); });
            });
    return W;
}

} // namespace brinewright
