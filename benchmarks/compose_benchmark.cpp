// Composing a sentence against one snprintf that prints the same fields. Both take turns in rounds of a few
// hundred sentences, so that a change of the machine's pace meets both, and the ratio is that of neighbours.
// The snprintf has the easier part: its time is split already, it writes into a fixed buffer, and it adds no
// checksum.

#include "benchmarks/verdict.hpp"
#include "sentences/compose_gga.hpp"
#include "sentences/compose_gsv.hpp"
#include "sentences/compose_vtg.hpp"
#include "sentences/sentence_clock.hpp"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>

namespace brinewright {
namespace {

constexpr std::size_t Sentences = 512; // of one round, all different
using Line_Buffer = std::array<char, 160>;

// Stands still, for the time of reading a clock is not that of composing.
class Fixed_Clock final : public Clock {
  public:
    std::int64_t Wide_us() override { return 0; }
    std::int64_t Local_us() override { return 1'767'225'296'000'000; }
    void Spin_us(std::int64_t) override {}
};

struct Fields {
    GGA_Record GGA;
    VTG_Record VTG;
    GSV_Record GSV;
};

std::vector<Fields> Random_Fields() {
    std::mt19937 Source(1);
    const auto Draw = [&](double Most) { return std::uniform_real_distribution(0.0, Most)(Source); };
    const auto Whole = [&](int Least, int Most) {
        return static_cast<std::int16_t>(std::uniform_int_distribution(Least, Most)(Source));
    };
    std::vector<Fields> All(Sentences);
    for (Fields& F : All) {
        F.GGA.Lat = Draw(180) - 90;
        F.GGA.Lon = Draw(360) - 180;
        F.GGA.Quality = Whole(0, 8);
        F.GGA.Sats = Whole(4, 12);
        F.GGA.HDOP = static_cast<float>(Draw(3));
        F.GGA.Alt = static_cast<float>(Draw(60));
        F.GGA.Geoid_Sep = static_cast<float>(Draw(60));
        F.VTG.COG_True = static_cast<float>(Draw(360));
        F.VTG.COG_Magnetic = static_cast<float>(Draw(360));
        F.VTG.SOG_Knots = static_cast<float>(Draw(30));
        F.VTG.SOG_Kmh = static_cast<float>(Draw(55));
        F.GSV.Total = 3;
        F.GSV.Number = Whole(1, 3);
        F.GSV.In_View = 12;
        for (int I = 1; I <= 4; ++I) {
            F.GSV.PRN[I] = Whole(1, 32);
            F.GSV.Elevation[I] = Whole(5, 90);
            F.GSV.Azimuth[I] = Whole(0, 359);
            F.GSV.SNR[I] = Whole(0, 50);
        }
    }
    return All;
}

template <class F>
double Round_ns(const std::vector<Fields>& All, F&& Make) {
    const auto Start = std::chrono::steady_clock::now();
    for (const Fields& One : All) Make(One);
    const std::chrono::duration<double, std::nano> Passed = std::chrono::steady_clock::now() - Start;
    return Passed.count() / static_cast<double>(All.size());
}

template <class Ours, class Yardstick>
void Compare(benchmark::State& State, Ours&& Compose, Yardstick&& Print) {
    const std::vector<Fields> All = Random_Fields();
    std::vector<double> Compose_ns, Print_ns, Ratios;
    for (auto _ : State) {
        Compose_ns.push_back(Round_ns(All, Compose));
        Print_ns.push_back(Round_ns(All, Print));
        Ratios.push_back(Print_ns.back() / Compose_ns.back());
        State.SetIterationTime(Compose_ns.back() * 1e-9);
    }
    State.counters["snprintf_ns"] = Median(Print_ns);
    State.counters["compose_ns"] = Median(Compose_ns);
    constexpr double Least_Ratio = 1;
    Judge(State, {{"times_as_fast", Median(Ratios), Least_Ratio, true}});
}

struct Angle {
    int Degrees;
    double Minutes;
};

Angle Split_Angle(double Degrees) {
    const double Magnitude = std::abs(Degrees);
    const double Whole = std::floor(Magnitude);
    return {static_cast<int>(Whole), (Magnitude - Whole) * 60};
}

void Print_GGA(const GGA_Record& R, const Calendar_Time& Now, Line_Buffer& Out) {
    const Angle Lat = Split_Angle(R.Lat), Lon = Split_Angle(R.Lon);
    std::snprintf(Out.data(), Out.size(),
                  "$%sGGA,%02d%02d%02d,%02d%07.4f,%c,%03d%07.4f,%c,%d,%d,%.1f,%.1f,%c,%.1f,%c,%.1f,%04d",
                  R.Talker.c_str(), Now.Hour, Now.Minute, Now.Second, Lat.Degrees, Lat.Minutes,
                  R.Lat < 0 ? 'S' : 'N', Lon.Degrees, Lon.Minutes, R.Lon < 0 ? 'W' : 'E', R.Quality, R.Sats,
                  static_cast<double>(R.HDOP), static_cast<double>(R.Alt), R.Alt_Unit,
                  static_cast<double>(R.Geoid_Sep), R.Geoid_Unit, static_cast<double>(R.Age),
                  static_cast<int>(R.Station_ID));
    benchmark::DoNotOptimize(Out);
}

void Print_VTG(const VTG_Record& R, Line_Buffer& Out) {
    std::snprintf(Out.data(), Out.size(), "$%sVTG,%06.2f,T,%06.2f,M,%.2f,N,%06.2f,K,%c", R.Talker.c_str(),
                  static_cast<double>(R.COG_True), static_cast<double>(R.COG_Magnetic),
                  static_cast<double>(R.SOG_Knots), static_cast<double>(R.SOG_Kmh), R.Mode);
    benchmark::DoNotOptimize(Out);
}

void Print_GSV(const GSV_Record& R, Line_Buffer& Out) {
    std::snprintf(Out.data(), Out.size(), "$%sGSV,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d",
                  R.Talker.c_str(), R.Total, R.Number, R.In_View, R.PRN[1], R.Elevation[1], R.Azimuth[1],
                  R.SNR[1], R.PRN[2], R.Elevation[2], R.Azimuth[2], R.SNR[2], R.PRN[3], R.Elevation[3],
                  R.Azimuth[3], R.SNR[3], R.PRN[4], R.Elevation[4], R.Azimuth[4], R.SNR[4]);
    benchmark::DoNotOptimize(Out);
}

void GGA(benchmark::State& State) {
    Fixed_Clock Machine_Clock;
    const UTC_State UTC;
    const Calendar_Time Now = Split_Time(Machine_Clock.Local_us());
    Line_Buffer Out{};
    Compare(
        State,
        [&](const Fields& F) {
            benchmark::DoNotOptimize(Compose_GGA({Machine_Clock, UTC}, F.GGA, 4, 0, 1, false));
        },
        [&](const Fields& F) { Print_GGA(F.GGA, Now, Out); });
}
BENCHMARK(GGA)->UseManualTime()->Iterations(2000);

void VTG(benchmark::State& State) {
    Line_Buffer Out{};
    Compare(
        State, [](const Fields& F) { benchmark::DoNotOptimize(Compose_VTG(F.VTG, false)); },
        [&](const Fields& F) { Print_VTG(F.VTG, Out); });
}
BENCHMARK(VTG)->UseManualTime()->Iterations(2000);

void GSV(benchmark::State& State) {
    Line_Buffer Out{};
    Compare(
        State, [](const Fields& F) { benchmark::DoNotOptimize(Compose_GSV(F.GSV, false)); },
        [&](const Fields& F) { Print_GSV(F.GSV, Out); });
}
BENCHMARK(GSV)->UseManualTime()->Iterations(2000);

} // namespace
} // namespace brinewright
