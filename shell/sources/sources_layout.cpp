#include "shell/kit/layout.hpp"
#include "shell/sources/frm_sources.hpp"

namespace brinewright {

Layout Lay_Out_Sources(Simulator&, Form& Shown) {
    auto& W = static_cast<frmSources&>(Shown);
    std::vector<Layout> Sources;
    for (int I = 1; I <= 11; ++I)
        Sources.push_back(Bare(
            W.frmSource[I],
            Cells({At(0, 0, W.chkSends[I]), At(0, 1, Place(W.cmdOpen[I]).Least_Width({"Echosounder 2", 12})),
                   At(0, 2, Place(W.lblValue[I], Role::Readout)), At(1, 1, Dim(W.lblSentences[I]), 1, 2),
                   At(2, 1, W.lblState[I], 1, 2)},
                  {.Across = rhythm::Base, .Down = 0, .Wide_Column = 2})));
    return Window({Column(std::move(Sources)).Spaced(rhythm::Base), Stretch()});
}

} // namespace brinewright
