#include "ownship/ship/ship_motion.hpp"

#include "gnss/gnss_state.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"
#include "ownship/geodesy/rhumb.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "shell/kit/shown_number.hpp"
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
    Navdata_State& N = S.Of<Navdata_State>();
    const double Distance_m = std::abs(static_cast<double>(SOG_kn)) * m_Per_Nautical_Mile / 60 / 60;
    const double Distance_NM = Distance_m * Nautical_Miles_Per_m;
    const double Lat_rad = N.Nav_Lat * Degrees_To_Radians;
    const double Lon_rad = N.Nav_Lon * Degrees_To_Radians;
    double New_Lat_rad = Lat_rad, New_Lon_rad = Lon_rad;
    Rhumb_Direct(Lat_rad, Lon_rad, Distance_NM, N.Nav_COG * Degrees_To_Radians, New_Lat_rad, New_Lon_rad,
                 true);
    // The way to radians and back would let a ship creep that lies still or stands at the pole.
    if (New_Lat_rad == Lat_rad && New_Lon_rad == Lon_rad) return;
    N.Nav_Lat = New_Lat_rad * Radians_To_Degrees;
    N.Nav_Lon = New_Lon_rad * Radians_To_Degrees;
}

} // namespace

void Normalise_Navdata(Simulator_State& S) {
    Navdata_State& N = S.Of<Navdata_State>();
    N.Nav_Lat = Within_Poles(N.Nav_Lat);
    N.Nav_Lon = Within_Circle(N.Nav_Lon);
    N.Nav_HDG = Add_Degrees(N.Nav_HDG, 0);
    N.Nav_COG = Add_Degrees(N.Nav_COG, 0);
}

void Move_Ship(Simulator_State& S, float SOG_kn, float ROT) {
    Navdata_State& N = S.Of<Navdata_State>();
    const double Turn_deg = static_cast<double>(ROT) / Steps_Per_Minute;
    const bool Astern = SOG_kn < 0;
    N.Nav_HDG = Add_Degrees(N.Nav_HDG, Astern ? -Turn_deg : Turn_deg);
    N.Nav_COG = Astern ? Add_Degrees(N.Nav_HDG, 180) : N.Nav_HDG;
    Step_Along_Course(S, SOG_kn);
    N.Nav_Lon = Within_Circle(N.Nav_Lon);
}

void Feed_Sensors(Simulator_State& S, float SOG_kn, float ROT) {
    const Navdata_State& N = S.Of<Navdata_State>();
    GNSS_State& GNSS = S.Of<GNSS_State>();
    Gyro_State& Gyro = S.Of<Gyro_State>();
    Log_State& Log = S.Of<Log_State>();
    for (int I = 1; I <= 2; ++I) {
        GNSS.GNSS_Lat[I] = N.Nav_Lat;
        GNSS.GNSS_Lon[I] = N.Nav_Lon;
        GNSS.GNSS_SOG[I] = SOG_kn;
        GNSS.GNSS_COG[I] = static_cast<float>(N.Nav_COG);
        Gyro.Gyro_HDG[I] = static_cast<float>(Add_Degrees(N.Nav_HDG, Gyro.Gyro_Offset[I]));
        Gyro.Gyro_ROT[I] = ROT;
        Log.Log_Speed[I] =
            Record_Number(static_cast<double>(N.Nav_SOG) + static_cast<double>(Log.Log_Offset[I]));
    }
    const double East_Scale = std::cos(N.Nav_Lat * Degrees_To_Radians);
    GNSS.GNSS_Lat[2] = Within_Poles(GNSS.GNSS_Lat[2] + N.Lat_Offset / m_Per_Nautical_Mile / 60);
    GNSS.GNSS_Lon[2] = Within_Circle(GNSS.GNSS_Lon[2] + N.Lon_Offset / m_Per_Nautical_Mile / 60 / East_Scale);
}

} // namespace brinewright
