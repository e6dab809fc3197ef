#include "ownship/ship/ship_motion.hpp"

#include "gnss/gnss_state.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"
#include "ownship/geodesy/rhumb.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/state/simulator_state.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr double Steps_Per_Minute = 60;

// Close to a pole a step or an offset to the east can be more than a full circle.
double Within_Circle(double Lon_deg) {
    const double Lon = Finite_Or_Zero(Lon_deg);
    return std::abs(Lon) > 180 ? std::remainder(Lon, 360.0) : Lon;
}

double Within_Poles(double Lat_deg) { return std::clamp(Finite_Or_Zero(Lat_deg), -90.0, 90.0); }

void Step_Along_Course(Simulator_State& S, float SOG_kn) {
    const double Distance_m = std::abs(static_cast<double>(SOG_kn)) * m_Per_Nautical_Mile / 60 / 60;
    const double Distance_NM = Distance_m * Nautical_Miles_Per_m;
    const double Lat_rad = S.Of<Navdata_State>().Nav_Lat * Degrees_To_Radians;
    const double Lon_rad = S.Of<Navdata_State>().Nav_Lon * Degrees_To_Radians;
    double New_Lat_rad = Lat_rad, New_Lon_rad = Lon_rad;
    Rhumb_Direct(Lat_rad, Lon_rad, Distance_NM, S.Of<Navdata_State>().Nav_COG * Degrees_To_Radians,
                 New_Lat_rad, New_Lon_rad, true);
    // The way to radians and back would let a ship creep that lies still or stands at the pole.
    if (New_Lat_rad == Lat_rad && New_Lon_rad == Lon_rad) return;
    S.Of<Navdata_State>().Nav_Lat = New_Lat_rad * Radians_To_Degrees;
    S.Of<Navdata_State>().Nav_Lon = New_Lon_rad * Radians_To_Degrees;
}

} // namespace

void Normalise_Navdata(Simulator_State& S) {
    S.Of<Navdata_State>().Nav_Lat = Within_Poles(S.Of<Navdata_State>().Nav_Lat);
    S.Of<Navdata_State>().Nav_Lon = Within_Circle(S.Of<Navdata_State>().Nav_Lon);
    S.Of<Navdata_State>().Nav_HDG = Add_Degrees(S.Of<Navdata_State>().Nav_HDG, 0);
    S.Of<Navdata_State>().Nav_COG = Add_Degrees(S.Of<Navdata_State>().Nav_COG, 0);
}

void Move_Ship(Simulator_State& S, float SOG_kn, float ROT) {
    const double Turn_deg = static_cast<double>(ROT) / Steps_Per_Minute;
    const bool Astern = SOG_kn < 0;
    S.Of<Navdata_State>().Nav_HDG = Add_Degrees(S.Of<Navdata_State>().Nav_HDG, Astern ? -Turn_deg : Turn_deg);
    S.Of<Navdata_State>().Nav_COG =
        Astern ? Add_Degrees(S.Of<Navdata_State>().Nav_HDG, 180) : S.Of<Navdata_State>().Nav_HDG;
    Step_Along_Course(S, SOG_kn);
    S.Of<Navdata_State>().Nav_Lon = Within_Circle(S.Of<Navdata_State>().Nav_Lon);
}

void Feed_Sensors(Simulator_State& S, float SOG_kn, float ROT) {
    for (int I = 1; I <= 2; ++I) {
        S.Of<GNSS_State>().GNSS_Lat[I] = S.Of<Navdata_State>().Nav_Lat;
        S.Of<GNSS_State>().GNSS_Lon[I] = S.Of<Navdata_State>().Nav_Lon;
        S.Of<GNSS_State>().GNSS_SOG[I] = SOG_kn;
        S.Of<GNSS_State>().GNSS_COG[I] = static_cast<float>(S.Of<Navdata_State>().Nav_COG);
        S.Of<Gyro_State>().Gyro_HDG[I] =
            static_cast<float>(Add_Degrees(S.Of<Navdata_State>().Nav_HDG, S.Of<Gyro_State>().Gyro_Offset[I]));
        S.Of<Gyro_State>().Gyro_ROT[I] = ROT;
        S.Of<Log_State>().Log_Speed[I] = Record_Number(static_cast<double>(S.Of<Navdata_State>().Nav_SOG) +
                                                       static_cast<double>(S.Of<Log_State>().Log_Offset[I]));
    }
    const double East_Scale = std::cos(S.Of<Navdata_State>().Nav_Lat * Degrees_To_Radians);
    S.Of<GNSS_State>().GNSS_Lat[2] = Within_Poles(
        S.Of<GNSS_State>().GNSS_Lat[2] + S.Of<Navdata_State>().Lat_Offset / m_Per_Nautical_Mile / 60);
    S.Of<GNSS_State>().GNSS_Lon[2] =
        Within_Circle(S.Of<GNSS_State>().GNSS_Lon[2] +
                      S.Of<Navdata_State>().Lon_Offset / m_Per_Nautical_Mile / 60 / East_Scale);
}

} // namespace brinewright
