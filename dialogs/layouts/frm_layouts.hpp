#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Layouts_Window;

// The named layouts: shows one, keeps what stands now as one of the user's own, deletes one of these.
struct frmLayouts : Form {
    static constexpr const char* Class_Name = "frmLayouts";

    explicit frmLayouts(Desktop& Windows);

    Label lblLayout{*this, "lblLayout", "Layout"};
    Combo_Box cmbLayout{*this, "cmbLayout", "", "A layout of the list, or the name of a new one"};
    Button cmdShow{*this, "cmdShow", "Show",
                   "Opens, places and sizes its windows; the others go on sending, minimised"};
    Button cmdSave{*this, "cmdSave", "Save",
                   "Keeps the windows that stand now, with their places and sizes, under this name"};
    Button cmdDelete{*this, "cmdDelete", "Delete", "Forgets a layout of your own"};
    Button cmdOK{*this, "cmdOK", "Close", "Closes this window"};
    Label lblResult{*this, "lblResult"};
};

Layout Lay_Out_Layouts(Simulator& Sim, Form& Shown);

} // namespace brinewright
