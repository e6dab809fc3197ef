#pragma once

#include "all_state.hpp"

namespace brinewright {

// The areas of the state by short names, for a bench with a simulator Sim.
template <class Bench>
struct Areas {
    auto& Shell() const { return Of<Shell_State>(); }
    auto& Link() const { return Of<Link_State>(); }
    auto& IEC450() const { return Of<IEC450_State>(); }
    auto& Fault() const { return Of<Fault_State>(); }
    auto& UTC() const { return Of<UTC_State>(); }
    auto& Nav() const { return Of<Navdata_State>(); }
    auto& GNSS() const { return Of<GNSS_State>(); }
    auto& Gyro() const { return Of<Gyro_State>(); }
    auto& Log() const { return Of<Log_State>(); }
    auto& Echo() const { return Of<Echo_State>(); }
    auto& Wind() const { return Of<Wind_State>(); }

  private:
    template <class Area>
    Area& Of() const {
        return static_cast<const Bench&>(*this).Sim.State.template Of<Area>();
    }
};

} // namespace brinewright
