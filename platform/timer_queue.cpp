#include "platform/timer_queue.hpp"

#include <algorithm>

namespace brinewright {

void Timer_Queue::Start(Entry& Timer, std::int64_t Period_us) {
    Stop(Timer);
    if (Period_us <= 0) return;
    Timer.Period_us = Period_us;
    Timer.Due_us = Time.Wide_us() + Period_us;
    Timer.Start_Order = ++Last_Order;
    Running.insert(&Timer);
    if (On_Next_Due) On_Next_Due();
}

void Timer_Queue::Stop(Entry& Timer) {
    if (Timer.Period_us == 0) return;
    Running.erase(&Timer);
    Timer.Period_us = 0;
}

std::optional<std::int64_t> Timer_Queue::Next_Due_us() const {
    if (Running.empty()) return std::nullopt;
    return (*Running.begin())->Due_us;
}

bool Timer_Queue::Fire_One() {
    if (Running.empty()) return false;
    const std::int64_t Now_us = Time.Wide_us();
    Entry& Timer = **Running.begin();
    if (Timer.Due_us > Now_us) return false;

    const std::int64_t Late_us = Now_us - Timer.Due_us;
    Lateness.Add(Late_us);
    Own_Lateness.Add(std::max<std::int64_t>(0, Late_us - Spun_Since_us(Timer.Due_us)));

    // The node is taken out and put back under its new key, without a new allocation for each tick. The next
    // due time is the first of the old phase that lies ahead.
    auto Node = Running.extract(Running.begin());
    Timer.Due_us += Timer.Period_us * (Late_us / Timer.Period_us + 1);
    Running.insert(std::move(Node));

    Dispatch(Timer);
    return true;
}

void Timer_Queue::Spin_us(std::int64_t Duration_us) {
    if (Before_Spin) Before_Spin(Duration_us);
    const std::int64_t Start_us = Time.Wide_us();
    Time.Spin_us(Duration_us);
    Recent_Spins[Spin_Count++ % Recent_Spins.size()] = {Start_us, Time.Wide_us()};
}

std::int64_t Timer_Queue::Spun_Since_us(std::int64_t From_us) const {
    std::int64_t Sum_us = 0;
    const std::size_t Kept = std::min(Spin_Count, Recent_Spins.size());
    for (std::size_t Back = 1; Back <= Kept; ++Back) {
        const Spin& S = Recent_Spins[(Spin_Count - Back) % Recent_Spins.size()];
        if (S.End_us <= From_us) break;
        Sum_us += S.End_us - std::max(S.Start_us, From_us);
    }
    return Sum_us;
}

} // namespace brinewright
