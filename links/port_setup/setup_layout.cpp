#include "links/port_setup/frm_setup.hpp"
#include "links/port_setup/port_detection.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/layout.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr int Serial_Rows = 8;

Layout Serial_Frame(frmSetup& W, int Port) {
    return Box(W.frameCOMport[Port], Cells({At(0, 0, W.chkEnable[Port], 1, 2),
                                            At(0, 2, Place(W.lblAvailable[Port], Role::Warn), 1, 2),
                                            At(1, 0, W.cmbBaudRate[Port]), At(1, 1, W.cmbDataBits[Port]),
                                            At(1, 2, W.cmbParity[Port]), At(1, 3, W.cmbStopBits[Port])},
                                           {.Across = rhythm::Gap, .Down = rhythm::Base}));
}

// Those that are there fill a column of eight, then the one to its right.
Layout Serial_Frames(frmSetup& W) {
    const auto None = [&W] {
        return std::none_of(W.frameCOMport.begin(), W.frameCOMport.begin() + port_number::Last_Serial,
                            [](const auto& Around) { return Around->Shown(); });
    };
    std::vector<Layout> Parts{At(Serial_Rows, 0, Text("No serial port is there").Shown_When(None))};
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port)
        Parts.push_back(Serial_Frame(W, Port).Moves_To([&Place = W.Places[Port]] {
            return layout::Spot{Place.Row, Place.Column};
        }));
    return Cells(std::move(Parts), {.Across = rhythm::Base, .Down = rhythm::Base});
}

Layout TCP_Frame(frmSetup& W) {
    constexpr int Port = port_number::TCP;
    return Box(W.frameCOMport[Port], Row({W.chkEnable[Port], Dim(W.lblAvailable[Port]),
                                          Place(W.txtPort).Width(72), Dim(W.lblIP), Stretch()}));
}

Layout UDP_Frames(frmSetup& W) {
    std::vector<Layout> Parts;
    for (int Link = 1; Link <= UDP_Link_Count; ++Link) {
        const int Port = port_number::TCP + Link;
        Parts.push_back(
            At((Link - 1) / 2, (Link - 1) % 2,
               Box(W.frameCOMport[Port], Row({W.chkEnable[Port], Stretch(), Dim(W.lblAvailable[Port]),
                                              Place(W.txtUDP_port[Link]).Width(64)}))));
    }
    return Cells(std::move(Parts), {.Across = rhythm::Base, .Down = rhythm::Base});
}

Layout Destination_Box(frmSetup& W) {
    return Box("Destination of all UDP links",
               Row(Each(W.optUDPMode.Buttons)).Then(Text("to")).Then(Place(W.txtUDP_RemoteHost).Wide()));
}

} // namespace

Layout Lay_Out_Setup(Simulator&, Form& Shown) {
    auto& W = static_cast<frmSetup&>(Shown);
    return Dialog(
        {Row({Serial_Frames(W), Column({TCP_Frame(W), UDP_Frames(W), Destination_Box(W), Stretch()}).Wide()}),
         Buttons({W.cmdComInfo, W.cmdReset, W.cmdOK, W.cmdCancel})});
}

Layout Lay_Out_Progress(Simulator&, Form& Shown) {
    auto& W = static_cast<frmProgress&>(Shown);
    return Dialog({Text("Looking for serial ports", Role::Plain),
                   Progress([&W] { return static_cast<int>(Val(*W.lblPercent.Caption)); }),
                   Row({W.lblPercent, Stretch(), Dim(W.lblTime)})})
        .Least_Width(280);
}

Layout Lay_Out_Comport_Info(Simulator&, Form& Shown) {
    auto& W = static_cast<frmComportInfo&>(Shown);
    return Dialog({Place(W.lblInfo).Wrapped().Least_Width(320), Buttons({W.cmdOK})});
}

} // namespace brinewright
