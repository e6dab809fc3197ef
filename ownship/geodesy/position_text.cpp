#include "ownship/geodesy/position_text.hpp"

#include "ownship/geodesy/format_position.hpp"
#include "ownship/geodesy/parse_position.hpp"

namespace brinewright {

namespace {

constexpr std::int16_t Minute_Decimals = 4;
constexpr std::int16_t Second_Decimals = 3;

} // namespace

std::string Position_Text(std::int16_t LatLon_Format, double Degrees, std::string_view Kind) {
    return LatLon_Format != 0 ? Format_DMS(Degrees, Kind, "Form", Second_Decimals)
                              : Format_DM(Degrees, Kind, "Form", Minute_Decimals);
}

double Parse_Position(std::int16_t LatLon_Format, std::string Text, std::string_view Kind,
                      Message_Boxes& Boxes) {
    return LatLon_Format != 0 ? Parse_DMS(Text, Kind, Boxes) : Parse_DM(Text, Kind, Minute_Decimals, Boxes);
}

} // namespace brinewright
