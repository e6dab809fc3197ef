#pragma once

#include <cstdint>
#include <optional>

namespace brinewright {

// Where a game controller stands. Axes run from 0 (left, pushed forward) to 65535.
struct Joystick_Reading {
    std::int32_t X = 32768;
    std::int32_t Y = 32768;
    std::uint32_t Buttons = 0; // bit 0 is button 1
    bool operator==(const Joystick_Reading&) const = default;
};

// The first game controller. It is polled; it may come and go.
class Joystick {
  public:
    virtual ~Joystick() = default;
    virtual std::optional<Joystick_Reading> Read() = 0; // empty: there is none
};

// None at all.
class No_Joystick final : public Joystick {
  public:
    std::optional<Joystick_Reading> Read() override { return {}; }
};

} // namespace brinewright
