#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace brinewright {

// Counts durations in microseconds in buckets about 6 % wide, so that percentiles cost no memory however long
// the program runs.
struct Latency_Histogram {
    static constexpr std::size_t Steps = 16; // buckets for each doubling
    std::array<std::uint64_t, 48 * Steps> Counts{};
    std::uint64_t Total = 0;
    std::int64_t Largest_us = 0;

    static std::size_t Bucket(std::int64_t Duration_us) {
        const auto Value = static_cast<std::uint64_t>(Duration_us < 0 ? 0 : Duration_us);
        if (Value < Steps) return static_cast<std::size_t>(Value);
        const auto Doubling = static_cast<std::size_t>(std::bit_width(Value)) - 4; // from 1
        const std::size_t Step = static_cast<std::size_t>(Value >> (Doubling - 1)) & (Steps - 1);
        const std::size_t Index = Doubling * Steps + Step;
        return Index < std::tuple_size_v<decltype(Counts)> ? Index : std::tuple_size_v<decltype(Counts)> - 1;
    }

    // The least duration that falls into bucket Index.
    static std::int64_t Floor_us(std::size_t Index) {
        if (Index < Steps) return static_cast<std::int64_t>(Index);
        const std::size_t Doubling = Index / Steps;
        return static_cast<std::int64_t>((Steps + Index % Steps) << (Doubling - 1));
    }

    void Add(std::int64_t Duration_us) {
        ++Counts[Bucket(Duration_us)];
        ++Total;
        if (Duration_us > Largest_us) Largest_us = Duration_us;
    }

    // Share in 0 to 1; 0 when nothing has been counted.
    std::int64_t Percentile_us(double Share) const {
        const auto Wanted = static_cast<std::uint64_t>(Share * static_cast<double>(Total));
        std::uint64_t Seen = 0;
        for (std::size_t Index = 0; Index < Counts.size(); ++Index) {
            Seen += Counts[Index];
            if (Counts[Index] != 0 && Seen > Wanted) return Floor_us(Index);
        }
        return Largest_us;
    }
};

} // namespace brinewright
