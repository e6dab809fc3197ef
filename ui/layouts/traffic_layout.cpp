#include "shell/monitors/traffic/frm_traffic.hpp"
#include "ui/layouts/layout_parts.hpp"

#include <QFontMetrics>
#include <QHeaderView>
#include <QSplitter>

namespace brinewright {

namespace {

void Set_Column_Widths(QTableView* Table, std::initializer_list<const char*> Widest) {
    int Column = 0;
    const QFontMetrics Metrics(Table->font());
    for (const char* Text : Widest)
        Table->setColumnWidth(Column++, Metrics.horizontalAdvance(QString::fromLatin1(Text)) + 18);
    Table->horizontalHeader()->setStretchLastSection(true);
    Table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

} // namespace

void Lay_Out_Traffic(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmTraffic&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    QHBoxLayout* Filters = Row();
    Filters->addWidget(View.Make(F.cmbPort));
    Filters->addWidget(View.Make(F.cmbType));
    Filters->addWidget(View.Make(F.lblFilter, "dim"));
    Filters->addWidget(View.Make(F.txtFilter), 1);
    Filters->addWidget(View.Make(F.cmdPause));
    Filters->addWidget(View.Make(F.cmdClear));
    Filters->addWidget(View.Make(F.cmdExport));
    Column->addLayout(Filters);

    auto* Halves = new QSplitter(Qt::Vertical);
    Halves->setChildrenCollapsible(false);
    QTableView* Log = View.Make(F.hfgTraffic);
    Log->setFont(Sentence_Font());
    Log->setMinimumSize(640, 180);
    Set_Column_Widths(Log, {"00:00:00.000", "UDP 60004", "PRDID", "Length", "Checksum"});
    Halves->addWidget(Log);
    QTableView* Fields = View.Make(F.hfgFields);
    Fields->setMinimumHeight(150);
    Set_Column_Widths(Fields, {"Age of differential corrections, series", "0000000000000000000000"});
    Halves->addWidget(Fields);
    Halves->setStretchFactor(0, 3);
    Halves->setStretchFactor(1, 2);
    Column->addWidget(Halves, 1);

    QHBoxLayout* Search = Row();
    Search->addWidget(Caption(QStringLiteral("Search")));
    Search->addWidget(View.Make(F.txtSearch), 1);
    Search->addWidget(View.Make(F.cmdFind));
    Search->addStretch(1);
    Search->addWidget(View.Make(F.lblCount, "dim"));
    Column->addLayout(Search);
}

} // namespace brinewright
