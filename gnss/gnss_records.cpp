#include "gnss/gnss_records.hpp"

#include "gnss/fix_quality.hpp"
#include "gnss/frm_position.hpp"
#include "shell/simulator_state.hpp"

#include <cmath>

namespace brinewright {

void Read_Records(const Simulator_State& State, frmPosition& W) {
    Read_Fix_Boxes(W);
    W.GSA2_Record.Talker = "GL";
    W.GSA2_Record.PDOP = W.GSA_Record.PDOP;
    W.GSA2_Record.HDOP = W.GSA_Record.HDOP;
    W.GSA2_Record.VDOP = W.GSA_Record.VDOP;
    const char Status = W.GGA_Record.Quality == 0 ? 'V' : 'A';
    W.RMC_Record.Status = Status;
    W.GLL_Record.Status = Status;
    W.RMC_Record.Mag_Var = std::abs(State.Magnetic_Variation);
    W.RMC_Record.Mag_Dir = State.Magnetic_Variation < 0 ? 'W' : 'E';
}

void Set_Talker(frmPosition& W, const std::string& Talker) {
    for (std::string* Field :
         {&W.GGA_Record.Talker, &W.GLL_Record.Talker, &W.RMC_Record.Talker, &W.VTG_Record.Talker,
          &W.ZDA_Record.Talker, &W.GNS_Record.Talker, &W.DTM_Record.Talker, &W.GSA_Record.Talker,
          &W.GSV_Record.Talker, &W.GST_Record.Talker})
        *Field = Talker;
}

} // namespace brinewright
