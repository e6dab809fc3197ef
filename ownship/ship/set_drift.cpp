#include "ownship/ship/set_drift.hpp"

#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/state/simulator_state.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace brinewright {

namespace {

void Along_One_Line(Simulator_State& S) {
    Navdata_State& N = S.Of<Navdata_State>();
    const double Gain_kn =
        static_cast<double>(N.Nav_SOG) - static_cast<double>(S.Of<Log_State>().Log_Speed[1]);
    N.Current_Drift = Record_Number(std::abs(Gain_kn));
    const double Heading_deg = S.Of<Gyro_State>().Gyro_HDG[1];
    N.Current_Set = static_cast<float>(Gain_kn == 0  ? 0
                                       : Gain_kn > 0 ? Heading_deg
                                                     : Reverse_Degrees(Heading_deg));
}

} // namespace

// The angle comes from the sine rule, which gives an acute one. The comparison of the two speeds that decides
// when it stands for an obtuse one is required as it is, although it takes a wide triangle with two sides of
// nearly one length for the wrong one.
void Compute_Set_Drift(Simulator_State& S) {
    constexpr std::int16_t Clockwise = 2;
    Navdata_State& N = S.Of<Navdata_State>();
    const double Heading_deg = S.Of<Gyro_State>().Gyro_HDG[1];
    if (static_cast<float>(N.Nav_COG) == S.Of<Gyro_State>().Gyro_HDG[1]) return Along_One_Line(S);

    float Angle_deg = 0;
    std::int16_t Side = 0;
    Angle_Between(Heading_deg, N.Nav_COG, Angle_deg, Side);
    const double SOG_kn = N.Nav_SOG, Log_kn = S.Of<Log_State>().Log_Speed[1];
    const double P = Side == Clockwise ? SOG_kn : Log_kn;
    const double Q = Side == Clockwise ? Log_kn : SOG_kn;
    const double Angle_rad = static_cast<double>(Angle_deg) * Degrees_To_Radians;
    // Rounding may make the square of a closed triangle a little negative.
    const double C = std::sqrt(std::max(P * P + Q * Q - 2 * P * Q * std::cos(Angle_rad), 0.0));
    if (C == 0) {
        N.Current_Set = 0;
        return;
    }
    double Sine = std::sin(Angle_rad) / C * P;
    const double A_deg = Arc_Sin(Sine) * Radians_To_Degrees;
    N.Current_Drift = Record_Number(C);
    const double Set_deg = Side == Clockwise
                               ? Add_Degrees(Heading_deg, SOG_kn >= Log_kn ? A_deg : 180 - A_deg)
                               : Add_Degrees(N.Nav_COG, SOG_kn < Log_kn ? A_deg + 180 : -A_deg);
    N.Current_Set = static_cast<float>(Set_deg);
}

} // namespace brinewright
