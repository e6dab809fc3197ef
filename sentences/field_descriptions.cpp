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
constexpr Field_Description Heading{"Heading", "deg true"};
constexpr Field_Description Heading_Magnetic{"Heading", "deg magnetic"};
constexpr Field_Description Pitch{"Pitch", "deg"};
constexpr Field_Description Roll{"Roll", "deg"};
constexpr Field_Description True{"True"};
constexpr Field_Description Magnetic{"Magnetic"};
constexpr Field_Description Speed_Unit{"Unit of the speed"};
constexpr Field_Description Depth_Unit{"Unit of the depth"};
constexpr Field_Description Distance_Unit{"Unit of the distance"};

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
    True,
    {"Course over ground", "deg magnetic"},
    Magnetic,
    {"Speed over ground", "kn"},
    Speed_Unit,
    {"Speed over ground", "km/h"},
    Speed_Unit,
    Mode,
};

constexpr Field_Description ZDA[] = {
    Time, {"Day", "dd"}, {"Month", "mm"}, {"Year", "yyyy"}, {"Local zone", "h"}, {"Local zone", "min"},
};

constexpr Field_Description HDT[] = {Heading, True};

constexpr Field_Description THS[] = {Heading, {"Mode", "A, E, M, S, V not valid"}};

constexpr Field_Description ROT[] = {{"Rate of turn", "deg/min, negative to port"}, Status};

constexpr Field_Description PFEC[] = {{"Talker and type", "--att"}, Heading, Pitch, Roll};

constexpr Field_Description PRDID[] = {Pitch, Roll, Heading};

constexpr Field_Description VHW[] = {
    Heading,
    True,
    Heading_Magnetic,
    Magnetic,
    {"Speed through the water", "kn"},
    Speed_Unit,
    {"Speed through the water", "km/h"},
    Speed_Unit,
};

constexpr Field_Description VBW[] = {
    {"Speed through the water, along", "kn"},
    {"Speed through the water, across", "kn"},
    {"Status of the speed through the water", Status.Unit},
    {"Speed over ground, along", "kn"},
    {"Speed over ground, across", "kn"},
    {"Status of the speed over ground", Status.Unit},
    {"Speed through the water, across at the stern", "kn"},
    {"Status at the stern, water", Status.Unit},
    {"Speed over ground, across at the stern", "kn"},
    {"Status at the stern, ground", Status.Unit},
};

constexpr Field_Description VDR[] = {
    {"Set of the current", "deg true"}, True,       {"Set of the current", "deg magnetic"}, Magnetic,
    {"Drift of the current", "kn"},     Speed_Unit,
};

constexpr Field_Description VLW[] = {
    {"Total distance through the water", "NM"},
    Distance_Unit,
    {"Trip through the water", "NM"},
    Distance_Unit,
    {"Total distance over ground", "NM"},
    Distance_Unit,
    {"Trip over ground", "NM"},
    Distance_Unit,
    {"Empty"},
};

constexpr Field_Description DBT[] = {
    {"Depth below the transducer", "ft"},      Depth_Unit, {"Depth below the transducer", "m"}, Depth_Unit,
    {"Depth below the transducer", "fathoms"}, Depth_Unit,
};

constexpr Field_Description DPT[] = {
    {"Depth below the transducer", "m"},
    {"Offset of the transducer", "m"},
    {"Range of the scale", "m"},
};

constexpr Field_Description MWV[] = {
    {"Wind angle", "deg"},
    {"Reference", "R relative, T true"},
    {"Wind speed", "in the unit that follows"},
    {"Unit of the speed", "N kn, M m/s, K km/h"},
    Status,
};

constexpr Field_Description MWD[] = {
    {"Wind direction", "deg true"},
    True,
    {"Wind direction", "deg magnetic"},
    Magnetic,
    {"Wind speed", "kn"},
    Speed_Unit,
    {"Wind speed", "m/s"},
    Speed_Unit,
};

// Found by the type, which of a maker's own sentence is its whole address.
constexpr Sentence_Description Descriptions[] = {
    {"DBT", "depth below the transducer", DBT},
    {"DPT", "depth", DPT},
    {"DTM", "datum reference", DTM},
    {"GGA", "fix data", GGA},
    {"GLL", "position", GLL},
    {"GNS", "fix data of several constellations", GNS},
    {"GSA", "satellites in use", GSA, 2, 1, 12},
    {"GST", "statistics of the position's errors", GST},
    {"GSV", "satellites in view", GSV, 3, 4, 4},
    {"HDT", "true heading", HDT},
    {"MWD", "direction and speed of the true wind", MWD},
    {"MWV", "wind speed and angle", MWV},
    {"PFEC", "heading and attitude", PFEC},
    {"PRDID", "attitude and heading", PRDID},
    {"RMC", "recommended minimum data", RMC},
    {"ROT", "rate of turn", ROT},
    {"THS", "true heading and status", THS},
    {"VBW", "speed over ground and through the water", VBW},
    {"VDR", "set and drift of the current", VDR},
    {"VHW", "heading and speed through the water", VHW},
    {"VLW", "distances through the water and over ground", VLW},
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
