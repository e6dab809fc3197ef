#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

#include <memory>
#include <vector>

namespace brinewright {

struct Simulator;

// The dialog of the IEC 61162-450 framing.
struct frmIEC61162 : Form {
    static constexpr const char* Class_Name = "frmIEC61162";

    explicit frmIEC61162(Desktop& Windows);

    Check_Box chkIEC61162_450{*this, "chkIEC61162_450", "IEC 61162-450 On"};
    Check_Box chkUdpbc{*this, "chkUdpbc", "UdPbC header On"};
    std::vector<std::unique_ptr<Check_Box>> chkIEC61162; // 0 to 6, one for each tag
    Text_Box txtSourceId{*this, "txtSourceId"};
    Control_Array<Text_Box, 0, 1> txtDestinationId{*this, "txtDestinationId", ""};
    Text_Box txtTextString{*this, "txtTextString"};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

Layout Lay_Out_IEC61162(Simulator& Sim, Form& Shown);

extern const Window_Class IEC61162_Window;

} // namespace brinewright
