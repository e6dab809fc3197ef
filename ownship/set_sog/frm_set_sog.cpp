#include "ownship/set_sog/frm_set_sog.hpp"

#include "ownship/navdata_state.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

namespace brinewright {

namespace {

// In twentieths of a point; the place is below cmdSetSOG, from the corner of the ship window.
constexpr float Form_Height = 2430, Form_Width = 3195;
constexpr float Place_Left = 10600, Place_Top = 7140;

constexpr const char* SOG_Pattern = "0.00";
constexpr const char* COG_Pattern = "000.00";

void Refuse_SOG(Simulator& Sim, const char* Way, float Most_kn) {
    Sim.Windows.Boxes.Show(std::string("SOG ") + Way + " can't be more than Max " + Format_Dot(Most_kn, "0"),
                           "Invalid SOG", Box_Icon::None, Box_Buttons::OK_Cancel);
}

void txtSOG_LostFocus(Simulator& Sim, frmSetSOG& F) {
    const Navdata_State& N = Sim.State.Of<Navdata_State>();
    const auto Typed = Typed_Number(F.txtSOG);
    if (!Typed) return F.txtSOG.Set_Text(F.txtSOG.Text_Before());
    float SOG_kn = Record_Number(*Typed);
    if (SOG_kn > 0 && SOG_kn > N.Max_Speed_Ahead) {
        Refuse_SOG(Sim, "Ahead", N.Max_Speed_Ahead);
        SOG_kn = N.Max_Speed_Ahead;
    } else if (SOG_kn < 0 && SOG_kn < -N.Max_Speed_Astern) {
        Refuse_SOG(Sim, "Astern", N.Max_Speed_Astern);
        SOG_kn = -N.Max_Speed_Astern;
    }
    F.txtSOG.Set_Text(Format_Dot(SOG_kn, SOG_Pattern));
}

void txtCOG_LostFocus(frmSetSOG& F) {
    const auto Typed_deg = Typed_Number(F.txtCOG);
    if (!Typed_deg) return F.txtCOG.Set_Text(F.txtCOG.Text_Before());
    const bool In_Circle = *Typed_deg >= 0 && *Typed_deg < 360;
    if (!In_Circle) F.txtCOG.Warn("A heading is 0 to under 360 degrees: others count as 0");
    F.txtCOG.Set_Text(Format_Dot(In_Circle ? *Typed_deg : 0.0, COG_Pattern));
}

// The speed first and the slider last: where the slider moves, its whole percent replaces what was typed.
// This order is required.
void cmdOK_Click(Simulator& Sim, frmSetSOG& F) {
    Navdata_State& N = Sim.State.Of<Navdata_State>();
    N.Nav_SOG = Number_Shown(F.txtSOG.Text());
    N.Nav_HDG = Val_Dot(F.txtCOG.Text());
    Sim.Told.Ship_Speed.Tell();
    Sim.Windows.Unload(F);
}

void frmSetSOG_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmSetSOG&>(Opened);
    const Form* const Ship = Open_Form(Sim, "frmShip");
    const Navdata_State& N = Sim.State.Of<Navdata_State>();
    F.Set_Place((Ship ? Ship->Left : 0) + Place_Left, (Ship ? Ship->Top : 0) + Place_Top, Form_Width,
                Form_Height);
    F.Under = "frmShip.cmdSetSOG"; // where it is on the screen
    F.txtSOG.Set_Text(Format_Dot(N.Nav_SOG, SOG_Pattern));
    F.txtCOG.Set_Text(Format_Dot(N.Nav_COG, COG_Pattern));
    for (Text_Box* Box : {&F.txtSOG, &F.txtCOG}) Box->Got_Focus = [Box] { Box->Select_All(); };
    F.cmdOK.Confirms = true;
    F.txtSOG.Lost_Focus = [&] { txtSOG_LostFocus(Sim, F); };
    F.txtCOG.Lost_Focus = [&] { txtCOG_LostFocus(F); };
    F.cmdOK.Click = [&] { cmdOK_Click(Sim, F); };
    F.cmdCancel.Click = [&] { Sim.Windows.Unload(F); };
}

} // namespace

frmSetSOG::frmSetSOG(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "Set SOG/COG";
}

const Window_Class Set_SOG_Window{.Name = frmSetSOG::Class_Name,
                                  .Make = Make_Single<frmSetSOG>,
                                  .Load = frmSetSOG_Load,
                                  .Lay_Out = Lay_Out_Set_SOG};

} // namespace brinewright
