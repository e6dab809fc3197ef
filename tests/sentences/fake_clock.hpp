#pragma once

#include "platform/clock.hpp"

// A clock that stands, or goes on by Step_us after each reading.
struct Fake_Clock final : brinewright::Clock {
    std::int64_t Now_us = 0;
    std::int64_t Step_us = 0;

    explicit Fake_Clock(std::int64_t Start_us, std::int64_t Reading_Step_us = 0)
        : Now_us(Start_us), Step_us(Reading_Step_us) {}

    std::int64_t Wide_us() override { return Now_us; }
    std::int64_t Local_us() override {
        const std::int64_t Reading_us = Now_us;
        Now_us += Step_us;
        return Reading_us;
    }
    void Spin_us(std::int64_t Duration_us) override { Now_us += Duration_us + 1; }
};
