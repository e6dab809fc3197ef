#include "shell/kit/layout.hpp"
#include "shell/monitors/monitor/frm_monitor.hpp"

#include <algorithm>

namespace brinewright {

Layout Lay_Out_Monitor(Simulator&, Form& Shown) {
    auto& W = static_cast<frmMonitor&>(Shown);
    const auto None = [&W] {
        return std::none_of(W.txtCom.begin(), W.txtCom.end(), [](const auto& Pane) { return Pane->Shown(); });
    };
    Layout All = Dialog({Text("No link is in use: Setup > Com setup").Shown_When(None)});
    for (int Port = 1; Port <= 28; ++Port)
        All.Then(Row({Dim(W.lblComport[Port]), Stretch(), W.cmdFreeze[Port], W.cmdClear[Port]}))
            .Then(Pane(W.txtCom[Port], 4).Wide());
    return All.Then(Stretch(0));
}

} // namespace brinewright
