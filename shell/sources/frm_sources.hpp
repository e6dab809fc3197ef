#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Sources_Window;

// Every sensor that there is, at the side of the main window: what it measures now, what it sends and where
// to, and whether that leaves. Elements count by form index.
struct frmSources : Form {
    static constexpr const char* Class_Name = "frmSources";

    explicit frmSources(Desktop& Windows);

    Control_Array<Frame, 1, 11> frmSource{*this, "frmSource", ""};
    Control_Array<Check_Box, 1, 11> chkSends{[this](int I) { return Stand(frmSource[I]); }, "chkSends", "",
                                             "Lets its sentences leave; opens its window when it is closed"};
    Control_Array<Button, 1, 11> cmdOpen{[this](int I) { return Stand(frmSource[I]); }, "cmdOpen", "",
                                         "Opens its window, or brings it to the front"};
    Control_Array<Label, 1, 11> lblValue{[this](int I) { return Stand(frmSource[I]); }, "lblValue", "",
                                         "What it measures now"};
    Control_Array<Label, 1, 11> lblSentences{[this](int I) { return Stand(frmSource[I]); }, "lblSentences",
                                             "", "The sentences that are chosen in its window"};
    Control_Array<Label, 1, 11> lblState{[this](int I) { return Stand(frmSource[I]); }, "lblState", "",
                                         "Where its sentences leave, or why they do not"};
    Timer timerLook{*this, "timerLook"};
};

Layout Lay_Out_Sources(Simulator& Sim, Form& Shown);

} // namespace brinewright
