#include "automation/statistics.hpp"

#include "links/link_record_state.hpp"
#include "links/port_list.hpp"

#include <nlohmann/json.hpp>

#include <chrono>

namespace brinewright {

namespace {

std::string By_Number(int Port, const Link_Record&) { return std::to_string(Port); }
std::string By_Kind(int Port, const Link_Record& R) {
    return Port == port_number::TCP ? "TCP" : To_UTF8(R.Name);
}

// Of one count of the records; links that have nothing to tell are left out.
Json Counts(const Link_Record_State& Records, std::uint64_t Link_Record::*Count,
            std::string (*Key)(int Port, const Link_Record&) = By_Number) {
    Json Told = Json::object();
    for (int Port = Records.Link.First_Index; Port <= Records.Link.Last_Index; ++Port)
        if (const std::uint64_t Value = Records.Link[Port].*Count)
            Told[Key(Port, Records.Link[Port])] = Value;
    return Told;
}

Json Sent_Counts(const Link_Record_State& Records) {
    Json Told = Counts(Records, &Link_Record::Sent);
    if (Records.Sent_Without_Link != 0) Told["0"] = Records.Sent_Without_Link;
    return Told;
}

// The links of the setup.
Json Link_List(const Link_Record_State& Records) {
    Json Told = Json::array();
    for (int Port = Records.Link.First_Index; Port <= Records.Link.Last_Index; ++Port) {
        const Link_Record& R = Records.Link[Port];
        if (!R.Wanted) continue;
        Json Row{{"port", Port}, {"name", To_UTF8(R.Name)}, {"open", R.Open}};
        if (!R.Open) Row["why_not"] = To_UTF8(R.Why_Not);
        Row["sentences_per_s"] = R.Sentences_Per_s;
        Told.push_back(std::move(Row));
    }
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
    const auto& Records = Target.State.Of<Link_Record_State>();
    return {{"links", Link_List(Records)},
            {"sent", Sent_Counts(Records)},
            {"failed", Counts(Records, &Link_Record::Refused)},
            {"skipped", Counts(Records, &Link_Record::Skipped, By_Kind)},
            {"dropped_by_box", Records.Dropped_By_Box},
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
