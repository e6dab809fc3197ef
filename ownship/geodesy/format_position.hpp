#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// Angles and times as text. South and west are negative. Kind is "LAT", "LON" or any other, compared after
// upper-casing. Purpose "FILE" gives a file text, with character code 248 as degree sign; any other a screen
// text. Nothing here fails: a value that is not finite counts as 0, and one of 32768 degrees or more as
// 32767.

// 62<deg> 35.5000' N. Kinds other than "LAT" and "LON" have neither hemisphere nor sign. 0 to 6 decimals of
// the minutes; any other number prints 6.
std::string Format_DM(double Degrees, std::string_view Kind, std::string_view Purpose, std::int16_t Decimals);

// 62<deg>35'30.000"N. Kinds other than "LAT" are longitudes. 0 to 4 decimals of the seconds; any other number
// leaves the seconds out.
std::string Format_DMS(double Degrees, std::string_view Kind, std::string_view Purpose,
                       std::int16_t Decimals);

// 62<deg> 35' 30.000" N. Kinds other than "LAT" and "LON" have no hemisphere but a sign at the degrees. 0 to
// 3 decimals of the seconds; any other number prints 4.
std::string Format_DMS_Wide(double Degrees, std::string_view Kind, std::string_view Purpose,
                            std::int16_t Decimals);

// hh:mm:ss with 1 to 4 decimals of the seconds; any other number prints none. Seconds that round up to 60
// print as 60, and more than 99 hours print in full.
std::string Format_HMS(double Time_s, std::int16_t Decimals);

// hh:mm, the minutes rounded: 59.6 minutes print as 60.
std::string Format_HM(double Time_s);

} // namespace brinewright
