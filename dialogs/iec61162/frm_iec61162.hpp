#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

#include <memory>
#include <vector>

namespace brinewright {

extern const Window_Class IEC61162_Window;

// The dialog of the IEC 61162-450 framing. What it shows holds from OK on.
struct frmIEC61162 : Form {
    static constexpr const char* Class_Name = "frmIEC61162";

    explicit frmIEC61162(Desktop& Windows);

    Check_Box chkIEC61162_450{*this, "chkIEC61162_450", "IEC 61162-450 On",
                              "Puts a tag block in front of every sentence on every link"};
    Check_Box chkUdpbc{*this, "chkUdpbc", "UdPbC header On",
                       "Puts the UdPbC datagram header in front of the tag block"};
    static constexpr const char* Text_Tip = "Text of the tag beside it, sent as it stands";
    Text_Box txtSourceId{*this, "txtSourceId", "", Text_Tip};
    Control_Array<Text_Box, 0, 1> txtDestinationId{*this, "txtDestinationId", "", Text_Tip};
    Text_Box txtTextString{*this, "txtTextString", "", Text_Tip};
    Button cmdOK{*this, "cmdOK", "OK", "Takes the settings over for the next sentence"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", "Leaves the settings as they were"};
    std::vector<std::unique_ptr<Check_Box>> chkIEC61162; // 0 to 6, one for each tag
};

Layout Lay_Out_IEC61162(Simulator& Sim, Form& Shown);

} // namespace brinewright
