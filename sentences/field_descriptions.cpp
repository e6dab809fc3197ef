#include "sentences/field_descriptions.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr Field_Description Time{"Time", "hhmmss.ss"};
constexpr Field_Description Latitude{"Latitude", "ddmm.mmmm"};
constexpr Field_Description North_South{"North or south", "N, S"};
constexpr Field_Description Longitude{"Longitude", "dddmm.mmmm"};
constexpr Field_Description East_West{"East or west", "E, W"};
constexpr Field_Description Mode{"Mode indicator", "A, D, E, F, M, N, P, R, S"};
constexpr Field_Description Status{"Status", "A valid, V warning"};
constexpr Field_Description Nav_Status{"Navigational status", "S, C, U, V"};
constexpr Field_Description Satellites_Used{"Satellites in use"};
constexpr Field_Description HDOP{"Horizontal dilution of precision"};
constexpr Field_Description Altitude{"Antenna above mean sea level", "m"};
constexpr Field_Description Separation{"Geoidal separation", "m"};
constexpr Field_Description Age{"Age of differential corrections", "s"};
constexpr Field_Description Station{"Differential reference station"};

constexpr Field_Description DTM[] = {
    {"Local datum"},
    {"Datum sub-division"},
    {"Latitude offset", "min"},
    North_South,
    {"Longitude offset", "min"},
    East_West,
    {"Altitude offset", "m"},
    {"Reference datum"},
};

constexpr Field_Description GGA[] = {
    Time,
    Latitude,
    North_South,
    Longitude,
    East_West,
    {"Quality", "0 no fix to 8"},
    Satellites_Used,
    HDOP,
    Altitude,
    {"Unit of the altitude"},
    Separation,
    {"Unit of the separation"},
    Age,
    Station,
};

constexpr Field_Description GLL[] = {Latitude, North_South, Longitude, East_West, Time, Status, Mode};

constexpr Field_Description GNS[] = {
    Time,
    Latitude,
    North_South,
    Longitude,
    East_West,
    {"Mode indicators", "one letter a constellation"},
    Satellites_Used,
    HDOP,
    Altitude,
    Separation,
    Age,
    Station,
    Nav_Status,
};

constexpr Field_Description GSA[] = {
    {"Choice of 2D and 3D", "A automatic, M manual"},
    {"Fix", "1 none, 2 2D, 3 3D"},
    {"Satellite"},
    {"Position dilution of precision"},
    HDOP,
    {"Vertical dilution of precision"},
};

constexpr Field_Description GST[] = {
    Time,
    {"RMS of the range deviations", "m"},
    {"Deviation of the semi-major axis", "m"},
    {"Deviation of the semi-minor axis", "m"},
    {"Orientation of the semi-major axis", "deg true"},
    {"Deviation of the latitude", "m"},
    {"Deviation of the longitude", "m"},
    {"Deviation of the altitude", "m"},
};

constexpr Field_Description GSV[] = {
    {"Sentences in the series"}, {"Number of this sentence"}, {"Satellites in view"}, {"Satellite"},
    {"Elevation", "deg"},        {"Azimuth", "deg true"},     {"SNR", "dB"},
};

constexpr Field_Description RMC[] = {
    Time,
    Status,
    Latitude,
    North_South,
    Longitude,
    East_West,
    {"Speed over ground", "kn"},
    {"Course over ground", "deg true"},
    {"Date", "ddmmyy"},
    {"Magnetic variation", "deg"},
    East_West,
    Mode,
    Nav_Status,
};

constexpr Field_Description VTG[] = {
    {"Course over ground", "deg true"},
    {"True"},
    {"Course over ground", "deg magnetic"},
    {"Magnetic"},
    {"Speed over ground", "kn"},
    {"Unit of the speed"},
    {"Speed over ground", "km/h"},
    {"Unit of the speed"},
    Mode,
};

constexpr Field_Description ZDA[] = {
    Time, {"Day", "dd"}, {"Month", "mm"}, {"Year", "yyyy"}, {"Local zone", "h"}, {"Local zone", "min"},
};

constexpr Sentence_Description Descriptions[] = {
    {"DTM", "datum reference", DTM},
    {"GGA", "fix data", GGA},
    {"GLL", "position", GLL},
    {"GNS", "fix data of several constellations", GNS},
    {"GSA", "satellites in use", GSA, 2, 1, 12},
    {"GST", "statistics of the position's errors", GST},
    {"GSV", "satellites in view", GSV, 3, 4, 4},
    {"RMC", "recommended minimum data", RMC},
    {"VTG", "course and speed over ground", VTG},
    {"ZDA", "time and date", ZDA},
};

struct Place {
    std::size_t Field;
    std::size_t Turn; // of the group, from 1; 0 outside
};

Place Find_Place(const Sentence_Description& D, std::size_t Which) {
    if (D.Group_Size == 0 || Which < D.Group_Start) return {Which, 0};
    const std::size_t Behind = Which - D.Group_Start;
    const std::size_t Turn = Behind / D.Group_Size;
    if (Turn >= D.Group_Count) return {Which - D.Group_Size * (D.Group_Count - 1), 0};
    return {D.Group_Start + Behind % D.Group_Size, Turn + 1};
}

} // namespace

std::string Sentence_Description::Name(std::size_t Which) const {
    const Place Found = Find_Place(*this, Which);
    const std::string Text = Fields[Found.Field].Name;
    return Found.Turn == 0 ? Text : Text + " " + std::to_string(Found.Turn);
}

const char* Sentence_Description::Unit(std::size_t Which) const {
    return Fields[Find_Place(*this, Which).Field].Unit;
}

std::span<const Sentence_Description> Sentence_Descriptions() { return Descriptions; }

const Sentence_Description* Find_Description(std::string_view Type) {
    const auto Found = std::find_if(std::begin(Descriptions), std::end(Descriptions),
                                    [&](const Sentence_Description& D) { return D.Type == Type; });
    return Found == std::end(Descriptions) ? nullptr : &*Found;
}

} // namespace brinewright
