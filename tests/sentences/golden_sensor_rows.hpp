#pragma once

#include "golden_rows.hpp"

// The readers of the rows of gyro, log, echo sounder and wind gauge, by the name of the file.
std::map<std::string, Golden_Reader> Sensor_Readers();
