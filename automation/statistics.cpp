#include "automation/statistics.hpp"

#include <nlohmann/json.hpp>

#include <chrono>

namespace brinewright {

namespace {

// Ports that have nothing to tell are left out.
Json Port_Counts(const Table<std::uint64_t, 0, 28>& Counts) {
    Json Told = Json::object();
    for (int Port = Counts.First_Index; Port <= Counts.Last_Index; ++Port)
        if (Counts[Port] != 0) Told[std::to_string(Port)] = Counts[Port];
    return Told;
}

Json Skipped_Counts(const Link_Table& Links) {
    Json Told = Json::object();
    for (int Com = Links.MSComm.First_Index; Com <= Links.MSComm.Last_Index; ++Com)
        if (Links.MSComm[Com] && Links.MSComm[Com]->Skipped_Count() != 0)
            Told["COM" + std::to_string(Com)] = Links.MSComm[Com]->Skipped_Count();
    std::uint64_t By_TCP = 0;
    for (const auto& Element : Links.WinsockArray)
        if (Element) By_TCP += Element->Connection ? Element->Connection->Skipped_Count() : Element->Skipped;
    if (By_TCP != 0) Told["TCP"] = By_TCP;
    return Told;
}

Json Client_List(const Link_Table& Links) {
    Json Told = Json::array();
    for (const auto& Element : Links.WinsockArray)
        if (Element && Element->Connection && Element->State == socket_state::Connected)
            Told.push_back({{"address", To_UTF8(Element->Remote_Host_IP)},
                            {"skipped", Element->Connection->Skipped_Count()}});
    return Told;
}

Json Lateness(const Latency_Histogram& Of) {
    return {{"p50", Of.Percentile_us(0.5)}, {"p99", Of.Percentile_us(0.99)}, {"max", Of.Largest_us}};
}

std::string Digits(std::int64_t Value, std::size_t Width) {
    std::string Text = std::to_string(Value);
    return Text.size() < Width ? std::string(Width - Text.size(), '0') + Text : Text;
}

} // namespace

double Uptime_s(const Automation_Target& Target, const Automation_Hooks& Hooks) {
    return static_cast<double>(Target.Windows.Timers.Time.Wide_us() - Hooks.Started_us) / 1e6;
}

std::string Local_Time_Text(const Automation_Target& Target) {
    using namespace std::chrono;
    const sys_time<microseconds> Now{microseconds{Target.Windows.Timers.Time.Local_us()}};
    const auto Day = floor<days>(Now);
    const year_month_day Date{Day};
    const hh_mm_ss<microseconds> Time{Now - Day};
    return Digits(static_cast<int>(Date.year()), 4) + "-" + Digits(static_cast<unsigned>(Date.month()), 2) +
           "-" + Digits(static_cast<unsigned>(Date.day()), 2) + "T" + Digits(Time.hours().count(), 2) + ":" +
           Digits(Time.minutes().count(), 2) + ":" + Digits(Time.seconds().count(), 2) + "." +
           Digits(Time.subseconds().count(), 6);
}

Json Statistics_Json(const Automation_Target& Target, const Automation_Hooks& Hooks) {
    const Timer_Queue& Timers = Target.Windows.Timers;
    return {{"sent", Port_Counts(Target.Counts.Sent)},
            {"failed", Port_Counts(Target.Counts.Failed)},
            {"skipped", Skipped_Counts(Target.Links)},
            {"dropped_by_box", Target.Counts.Dropped_By_Box},
            {"clients", Client_List(Target.Links)},
            {"ticks",
             {{"count", Timers.Lateness.Total},
              {"lateness_us", Lateness(Timers.Lateness)},
              {"own_lateness_us", Lateness(Timers.Own_Lateness)}}},
            {"virtual", static_cast<bool>(Hooks.Advance)},
            {"uptime_s", Uptime_s(Target, Hooks)},
            {"local_time", Local_Time_Text(Target)}};
}

} // namespace brinewright
