#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <vector>

namespace brinewright {

// What stands behind a row; tools/bench takes the names of the figures that were missed from it.
inline constexpr const char* Within_Limit = "ok";
inline constexpr const char* Limit_Missed = "MISSED";

struct Figure {
    const char* Name; // with its unit
    double Measured = 0;
    double Limit = 0; // the most, or the least with Is_Least
    bool Is_Least = false;
};

inline bool Is_Within(const Figure& F) { return F.Is_Least ? F.Measured >= F.Limit : F.Measured <= F.Limit; }

// Puts each figure beside its limit into the row of State, and "ok" or what was missed behind it.
inline void Judge(benchmark::State& State, const std::vector<Figure>& Figures) {
    std::string Missed;
    for (const Figure& F : Figures) {
        State.counters[F.Name] = F.Measured;
        State.counters[std::string(F.Is_Least ? "least_" : "most_") + F.Name] = F.Limit;
        if (!Is_Within(F)) Missed += std::string(" ") + F.Name;
    }
    State.SetLabel(Missed.empty() ? Within_Limit : Limit_Missed + Missed);
}

// A benchmark that cannot go on tells why, and the others run.
template <void (*Measure)(benchmark::State&)>
void Guarded(benchmark::State& State) {
    try {
        Measure(State);
    } catch (const std::exception& Failure) {
        State.SkipWithError(Failure.what());
    }
}

// Of rounds on a machine that does other work as well the middle one is the steady figure.
inline double Median(std::vector<double> Rounds) {
    if (Rounds.empty()) return 0;
    const auto Middle = Rounds.begin() + static_cast<std::ptrdiff_t>(Rounds.size() / 2);
    std::nth_element(Rounds.begin(), Middle, Rounds.end());
    return *Middle;
}

} // namespace brinewright
