// Loaded before a program, this takes its sleeps away: each ends at once, and what waits for a deadline spins
// up to it. So the program that sleeps and the one that burns differ in nothing else.

#include <ctime>

extern "C" int clock_nanosleep(clockid_t, int, const timespec*, timespec*) { return 0; }
