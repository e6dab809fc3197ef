#include "links/tcp_status/frm_tcpip.hpp"
#include "shell/monitors/extended_monitor/frm_extended_monitor.hpp"
#include "shell/monitors/monitor/frm_monitor.hpp"
#include "ui/layouts/layout_parts.hpp"
#include "ui/verdict_highlighter.hpp"

#include <QFontMetrics>

namespace brinewright {

namespace {

// Wide enough for the longest sentence of 82 characters, in the fixed-width face.
int Sentence_Width() {
    return QFontMetrics(Sentence_Font()).horizontalAdvance(QString(84, QLatin1Char('0')));
}

QPlainTextEdit* Sentence_Pane(Form_View& View, Text_Box& Pane, int Lines) {
    QPlainTextEdit* W = View.Make_Pane(Pane);
    new Verdict_Highlighter(W->document(), View.Colours);
    W->setMinimumWidth(Sentence_Width() / 2);
    W->setMinimumHeight(QFontMetrics(Sentence_Font()).lineSpacing() * Lines + 12);
    return W;
}

} // namespace

void Lay_Out_Monitor(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmMonitor&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    auto* Hint = new QLabel(QStringLiteral("No link is in use: Setup > Com setup"));
    Hint->setProperty("role", "dim");
    Column->addWidget(Hint);
    for (int Port = 1; Port <= 28; ++Port) {
        QHBoxLayout* Head = Row();
        Head->addWidget(View.Make(F.lblComport[Port], "dim"));
        Head->addStretch(1);
        Head->addWidget(View.Make(F.cmdFreeze[Port]));
        Head->addWidget(View.Make(F.cmdClear[Port]));
        Column->addLayout(Head);
        Column->addWidget(Sentence_Pane(View, F.txtCom[Port], 4), 1);
    }
    View.When_Shown([&F, Hint] {
        bool Any = false;
        for (int Port = 1; Port <= 28; ++Port) Any = Any || *F.txtCom[Port].Visible;
        Hint->setVisible(!Any);
    });
    Column->addStretch(0);
}

void Lay_Out_Extended_Monitor(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmExtendedMonitor&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    QHBoxLayout* Head = Row();
    Head->addWidget(View.Make(F.lblSystem, "dim"));
    QComboBox* Links = View.Make(F.cmbComPort);
    Links->setMinimumWidth(160);
    Head->addWidget(Links);
    Head->addStretch(1);
    Head->addWidget(View.Make(F.cmdFreeze));
    Head->addWidget(View.Make(F.cmdClear));
    Column->addLayout(Head);
    Column->addWidget(View.Make(F.lblOutput, "dim"));
    Column->addWidget(Sentence_Pane(View, F.txtOutput, 5), 1);
    Column->addWidget(View.Make(F.lblInput, "dim"));
    Column->addWidget(Sentence_Pane(View, F.txtInput, 5), 1);
}

void Lay_Out_TCPIP(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmTCPIP&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    QHBoxLayout* Status = Row();
    Status->addWidget(View.Make(F.lblStatus), 1);
    Status->addWidget(Caption(QStringLiteral("Address")));
    Status->addWidget(View.Make(F.lblIP));
    Status->addWidget(Caption(QStringLiteral("Port")));
    Status->addWidget(View.Make(F.lblPort));
    Column->addLayout(Status);
    Column->addWidget(View.Make(F.lblTX, "dim"));
    Column->addWidget(View.Make(F.cmbConnections));
    Column->addStretch(1);
}

} // namespace brinewright
