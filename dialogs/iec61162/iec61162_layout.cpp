#include "dialogs/iec61162/frm_iec61162.hpp"
#include "shell/kit/layout.hpp"

namespace brinewright {

Layout Lay_Out_IEC61162(Simulator&, Form& Shown) {
    auto& W = static_cast<frmIEC61162&>(Shown);
    std::vector<Layout> Tags;
    for (const auto& Tag : W.chkIEC61162) Tags.push_back(At(Tag->Index, 0, *Tag));
    // The text of a tag stands beside its box.
    const std::pair<int, Text_Box*> Texts[] = {
        {0, &W.txtSourceId}, {1, &W.txtDestinationId[0]}, {2, &W.txtDestinationId[1]}, {6, &W.txtTextString}};
    for (const auto& [Tag, Typed] : Texts) Tags.push_back(At(Tag, 1, Place(*Typed).Least_Width(220)));
    return Dialog({W.chkIEC61162_450, W.chkUdpbc,
                   Box("Tag block", Cells(std::move(Tags), {.Across = rhythm::Margin, .Down = rhythm::Gap})),
                   Buttons({W.cmdOK, W.cmdCancel})});
}

} // namespace brinewright
