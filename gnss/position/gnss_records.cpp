#include "gnss/position/gnss_records.hpp"

#include "gnss/position/fix_quality.hpp"
#include "gnss/position/frm_position.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/state/simulator_state.hpp"

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
    W.RMC_Record.Mag_Var = std::abs(State.Of<Navdata_State>().Magnetic_Variation);
    W.RMC_Record.Mag_Dir = State.Of<Navdata_State>().Magnetic_Variation < 0 ? 'W' : 'E';
}

} // namespace brinewright
