#pragma once

namespace brinewright {

// What the windows of the echo sounder and the wind gauge share.

// The leading blank of the entries from one second on belongs to them.
inline constexpr const char* Depth_Wind_Intervals[] = {"0.1 sec", "0.5 sec", " 1 sec", " 2 sec",
                                                       " 3 sec",  " 4 sec",  " 5 sec"};

inline constexpr int Last_Noise_Choice = 20; // of the lists of the largest noise: whole numbers from 0

} // namespace brinewright
