#include "gnss/gnss_records.hpp"

#include "gnss/frm_position.hpp"
#include "shell/simulator_state.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr std::int16_t Quality_GPS = 1;
constexpr std::int16_t Fix_3D = 3;
constexpr float Start_HDOP = 1.4F;
constexpr float Start_PDOP = 2.6F;
constexpr float Start_VDOP = 2.2F;
constexpr float Start_Age_s = 5;
constexpr std::int32_t Start_Station = 100;

void Preset_DOP(GSA_Record& R) {
    R.PDOP = Start_PDOP;
    R.HDOP = Start_HDOP;
    R.VDOP = Start_VDOP;
}

} // namespace

void Preset_Records(const Simulator_State& State, frmPosition& W) {
    W.GGA_Record.Quality = Quality_GPS;
    W.GGA_Record.HDOP = Start_HDOP;
    W.GGA_Record.Age = Start_Age_s;
    W.GGA_Record.Station_ID = Start_Station;
    // GNS starts without the station of GGA: "0" beside "0100" is the required start state.
    W.GNS_Record.HDOP = Start_HDOP;
    W.GNS_Record.Age = Start_Age_s;
    W.GNS_Record.Status = 'S';
    W.GSA_Record.Mode = 'A';
    W.GSA_Record.Fix = Fix_3D;
    Preset_DOP(W.GSA_Record);
    W.GSA2_Record.Talker = "GL";
    Preset_DOP(W.GSA2_Record);
    W.GLL_Record.Status = 'A';
    W.GLL_Record.Mode = 'A';
    W.VTG_Record.Mode = 'A';
    W.RMC_Record.Status = "A";
    W.RMC_Record.Mode = 'A';
    W.RMC_Record.Nav_Status = 'S';
    W.RMC_Record.Mag_Var = std::abs(State.Magnetic_Variation);
    W.RMC_Record.Mag_Dir = State.Magnetic_Variation < 0 ? 'W' : 'E';
    Set_Talker(W, State.GNSS_Talker[W.Instance]);
}

void Set_Talker(frmPosition& W, const std::string& Talker) {
    for (std::string* Field :
         {&W.GGA_Record.Talker, &W.GLL_Record.Talker, &W.RMC_Record.Talker, &W.VTG_Record.Talker,
          &W.ZDA_Record.Talker, &W.GNS_Record.Talker, &W.DTM_Record.Talker, &W.GSA_Record.Talker,
          &W.GSV_Record.Talker, &W.GST_Record.Talker})
        *Field = Talker;
}

} // namespace brinewright
