#include "links/port_setup/frm_setup.hpp"
#include "links/port_setup/port_detection.hpp"
#include "ui/layouts/layout_parts.hpp"

#include <QProgressBar>

namespace brinewright {

namespace {

QGroupBox* Serial_Frame(Form_View& View, frmSetup& F, int Port) {
    auto* Grid = new QGridLayout;
    Grid->setHorizontalSpacing(rhythm::Gap);
    Grid->setVerticalSpacing(rhythm::Base);
    Grid->addWidget(View.Make(F.chkEnable[Port]), 0, 0, 1, 2);
    Grid->addWidget(View.Make(F.lblAvailable[Port], "warn"), 0, 2, 1, 2);
    QComboBox* const Lists[] = {View.Make(F.cmbBaudRate[Port]), View.Make(F.cmbDataBits[Port]),
                                View.Make(F.cmbParity[Port]), View.Make(F.cmbStopBits[Port])};
    for (int I = 0; I < 4; ++I) Grid->addWidget(Lists[I], 1, I);
    return Boxed(View.Make(F.frameCOMport[Port]), Grid);
}

QGroupBox* TCP_Frame(Form_View& View, frmSetup& F) {
    QHBoxLayout* Line = Row();
    Line->addWidget(View.Make(F.chkEnable[port_number::TCP]));
    Line->addWidget(View.Make(F.lblAvailable[port_number::TCP], "dim"));
    QLineEdit* Port = View.Make(F.txtPort);
    Port->setFixedWidth(72);
    Line->addWidget(Port);
    Line->addWidget(View.Make(F.lblIP, "dim"));
    Line->addStretch(1);
    return Boxed(View.Make(F.frameCOMport[port_number::TCP]), Line);
}

QLayout* UDP_Frames(Form_View& View, frmSetup& F) {
    auto* Grid = new QGridLayout;
    Grid->setSpacing(rhythm::Base);
    for (int Link = 1; Link <= UDP_Link_Count; ++Link) {
        const int Port = port_number::TCP + Link;
        QHBoxLayout* Line = Row();
        Line->addWidget(View.Make(F.chkEnable[Port]));
        Line->addStretch(1);
        Line->addWidget(View.Make(F.lblAvailable[Port], "dim"));
        QLineEdit* Number = View.Make(F.txtUDP_port[Link]);
        Number->setFixedWidth(64);
        Line->addWidget(Number);
        Grid->addWidget(Boxed(View.Make(F.frameCOMport[Port]), Line), (Link - 1) / 2, (Link - 1) % 2);
    }
    return Grid;
}

QGroupBox* Destination_Box(Form_View& View, frmSetup& F) {
    QHBoxLayout* Line = Row();
    for (const auto& B : F.optUDPMode.Buttons) Line->addWidget(View.Make(*B));
    Line->addWidget(Caption(QStringLiteral("to")));
    Line->addWidget(View.Make(F.txtUDP_RemoteHost), 1);
    return Boxed(QStringLiteral("Destination of all UDP links"), Line);
}

} // namespace

void Lay_Out_Setup(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmSetup&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    QHBoxLayout* Halves = Row();
    auto* Serial = new QGridLayout;
    Serial->setSpacing(rhythm::Base);
    auto* None = new QLabel(QStringLiteral("No serial port is there"));
    None->setProperty("role", "dim");
    Serial->addWidget(None, 8, 0);
    std::vector<QGroupBox*> Frames;
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port)
        Frames.push_back(Serial_Frame(View, F, Port));
    Halves->addLayout(Serial);
    auto* Network = new QVBoxLayout;
    Network->setSpacing(rhythm::Base);
    Network->addWidget(TCP_Frame(View, F));
    Network->addLayout(UDP_Frames(View, F));
    Network->addWidget(Destination_Box(View, F));
    Network->addStretch(1);
    Halves->addLayout(Network, 1);
    Column->addLayout(Halves);
    Column->addLayout(Buttons_Row(
        {View.Make(F.cmdComInfo), View.Make(F.cmdReset), View.Make(F.cmdOK), View.Make(F.cmdCancel)}));
    // Those that are there fill a column of eight, then the one to its right.
    View.When_Shown([&F, Serial, None, Frames] {
        bool Any = false;
        for (int Port = 1; Port <= port_number::Last_Serial; ++Port) {
            QGroupBox* Frame_Box = Frames[static_cast<std::size_t>(Port - 1)];
            Serial->removeWidget(Frame_Box);
            if (!*F.frameCOMport[Port].Visible) continue;
            Serial->addWidget(Frame_Box, F.Places[Port].Row, F.Places[Port].Column);
            Any = true;
        }
        None->setVisible(!Any);
    });
}

void Lay_Out_Progress(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmProgress&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    Column->addWidget(new QLabel(QStringLiteral("Looking for serial ports")));
    auto* Bar = new QProgressBar;
    Bar->setRange(0, 100);
    Bar->setTextVisible(false);
    Column->addWidget(Bar);
    QHBoxLayout* Line = Row();
    Line->addWidget(View.Make(F.lblPercent));
    Line->addStretch(1);
    Line->addWidget(View.Make(F.lblTime, "dim"));
    Column->addLayout(Line);
    View.setMinimumWidth(280);
    View.When_Shown([&F, Bar] {
        Bar->setValue(To_Screen(*F.lblPercent.Caption).section(QLatin1Char(' '), 0, 0).toInt());
    });
}

void Lay_Out_Comport_Info(Form_View& View, Form& Shown) {
    auto& F = static_cast<frmComportInfo&>(Shown);
    QVBoxLayout* Column = Column_In(&View);
    QLabel* Text = View.Make(F.lblInfo);
    Text->setWordWrap(true);
    Text->setMinimumWidth(320);
    Column->addWidget(Text);
    Column->addLayout(Buttons_Row({View.Make(F.cmdOK)}));
}

} // namespace brinewright
