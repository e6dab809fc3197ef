#include "gnss/position/mode_lists.hpp"

#include "gnss/position/frm_position.hpp"
#include "shell/kit/control_text.hpp"

namespace brinewright {

namespace {

constexpr const char* Safety[] = {"S - Safe", "C - Caution", "U - Unsafe", "V - Not valid"};
constexpr const char* GLL_Status[] = {"A - Data valid", "V - Data Invalid"};
constexpr const char* GLL_Mode[] = {"A - Autonomous", "D - Differential", "E - Estimated",
                                    "M - Manual",     "S - Simulator",    "N - Not valid"};
constexpr const char* VTG_Mode[] = {"A - Autonomous", "D - Differential", "E - Estimated", "M - Manual",
                                    "P - Precise",    "S - Simulator",    "N - Not valid"};
constexpr const char* RMC_Mode[] = {"A - Autonomous", "D - Differential", "E - Estimated",
                                    "F - Float RTK",  "M - Manual",       "N - No fix",
                                    "P - Precise",    "R - RTK",          "S - Simulator"};

using P = frmPosition;

struct Mode_List {
    const char* Name;
    std::span<const char* const> Entries;
    char& (*Field)(P&);
};
constexpr Mode_List Mode_Lists[] = {
    {"GNS Status", Safety, [](P& W) -> char& { return W.GNS_Record.Status; }},
    {"GLL Status", GLL_Status, [](P& W) -> char& { return W.GLL_Record.Status; }},
    {"GLL Mode Indicator", GLL_Mode, [](P& W) -> char& { return W.GLL_Record.Mode; }},
    {"VTG Mode Indicator", VTG_Mode, [](P& W) -> char& { return W.VTG_Record.Mode; }},
    {"RMC Mode Indicator", RMC_Mode, [](P& W) -> char& { return W.RMC_Record.Mode; }},
    {"RMC-Nav status", Safety, [](P& W) -> char& { return W.RMC_Record.Nav_Status; }},
};

} // namespace

void Wire_Mode_Lists(frmPosition& W) {
    W.cmbModeIndicator.Click = [&W] { cmbModeIndicator_Click(W); };
    for (const auto& List : W.cmbGLLRMVVTG_Mode)
        List->Click = [&W, I = List->Index] { cmbGLLRMVVTG_Mode_Click(W, I); };
}

void Fill_Mode_Lists(frmPosition& W) {
    for (const auto& List : W.cmbGLLRMVVTG_Mode) {
        W.cmbModeIndicator.Add_Item(Mode_Lists[List->Index].Name);
        Add_Items(*List, Mode_Lists[List->Index].Entries);
    }
}

void Reset_Mode_Lists(frmPosition& W) {
    for (const auto& List : W.cmbGLLRMVVTG_Mode) List->Set_List_Index(0);
}

void cmbModeIndicator_Click(frmPosition& W) {
    const int Chosen = W.cmbModeIndicator.List_Index();
    W.cmbGLLRMVVTG_Mode[Chosen].Set_List_Index(W.Mode_Item[Chosen]);
    for (const auto& List : W.cmbGLLRMVVTG_Mode) List->Visible = List->Index == Chosen;
}

void cmbGLLRMVVTG_Mode_Click(frmPosition& W, int Index) {
    const Combo_Box& List = W.cmbGLLRMVVTG_Mode[Index];
    Mode_Lists[Index].Field(W) = List.Text().front();
    W.Mode_Item[Index] = static_cast<std::int16_t>(List.List_Index());
}

} // namespace brinewright
