#include "dialogs/layouts/frm_layouts.hpp"

#include "shell/arrange/window_layouts.hpp"
#include "shell/kit/layout.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

void Fill_List(Simulator& Sim, frmLayouts& F) {
    const std::string Typed = F.cmbLayout.Text();
    F.cmbLayout.Clear();
    for (const Window_Layout& L : All_Layouts(Sim)) F.cmbLayout.Add_Item(L.Name);
    F.cmbLayout.Set_Text(Typed);
}

// What came of it: nothing in the text means that it is done.
void Show_Result(Simulator& Sim, frmLayouts& F, const std::string& Why_Not, const char* Done) {
    F.lblResult.Caption = Why_Not.empty() ? F.cmbLayout.Text() + Done : Why_Not;
    F.lblResult.Fore_Colour = Why_Not.empty() ? Ink::Normal : Ink::Red;
    Fill_List(Sim, F);
}

void frmLayouts_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmLayouts&>(Opened);
    F.cmbLayout.Free_Text = true;
    Fill_List(Sim, F);
    F.cmdShow.Click = [&] {
        int Number = 0;
        for (const Window_Layout& L : All_Layouts(Sim)) {
            ++Number;
            if (L.Name == F.cmbLayout.Text()) return Show_Layout(Sim, Number);
        }
        Show_Result(Sim, F, "There is no layout of that name.", "");
    };
    F.cmdSave.Click = [&] { Show_Result(Sim, F, Save_Layout(Sim, F.cmbLayout.Text()), " is kept."); };
    F.cmdDelete.Click = [&] { Show_Result(Sim, F, Delete_Layout(Sim, F.cmbLayout.Text()), " is deleted."); };
    F.cmdOK.Click = [&] { Sim.Windows.Unload(F); };
}

} // namespace

frmLayouts::frmLayouts(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "Layouts";
}

Layout Lay_Out_Layouts(Simulator&, Form& Shown) {
    auto& W = static_cast<frmLayouts&>(Shown);
    return Dialog({Row({Dim(W.lblLayout), Place(W.cmbLayout).Least_Width(220).Wide()}),
                   Row({W.cmdShow, W.cmdSave, W.cmdDelete, Stretch(), W.cmdOK}), W.lblResult});
}

const Window_Class Layouts_Window{.Name = frmLayouts::Class_Name,
                                  .Entry = {.Name = "mnuViewLayouts",
                                            .Menu = "View",
                                            .Text = "&Layouts...",
                                            .Place = 9,
                                            .Checked_While_Open = false},
                                  .Make = Make_Single<frmLayouts>,
                                  .Load = frmLayouts_Load,
                                  .Lay_Out = Lay_Out_Layouts};

} // namespace brinewright
