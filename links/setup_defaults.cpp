#include "links/setup_file.hpp"

namespace brinewright {

namespace {

struct Default_Interval {
    Per_Instance<std::int16_t> Message_State::*Interval;
    std::int16_t List_Index;
};

constexpr Default_Interval Default_Intervals[] = {
    {&Message_State::GGA_Interval, 2},   {&Message_State::GLL_Interval, 0}, {&Message_State::VTG_Interval, 2},
    {&Message_State::RMC_Interval, 2},   {&Message_State::ZDA_Interval, 5}, {&Message_State::GNS_Interval, 2},
    {&Message_State::DTM_Interval, 5},   {&Message_State::GSA_Interval, 5}, {&Message_State::GSV_Interval, 5},
    {&Message_State::GST_Interval, 7},   {&Message_State::HDT_Interval, 5}, {&Message_State::THS_Interval, 5},
    {&Message_State::ROT_Interval, 5},   {&Message_State::HDM_Interval, 5}, {&Message_State::ATT_Interval, 5},
    {&Message_State::PRDID_Interval, 5}, {&Message_State::VHW_Interval, 0}, {&Message_State::VBW_Interval, 0},
    {&Message_State::VDR_Interval, 0},   {&Message_State::VLW_Interval, 0}, {&Message_State::DBT_Interval, 2},
    {&Message_State::DPT_Interval, 2},   {&Message_State::MWV_Interval, 2}, {&Message_State::MWD_Interval, 0},
};

void Fill(Per_Instance<std::string>& Talkers, const std::string& Text) { Talkers[1] = Talkers[2] = Text; }

void Load_Default_Intervals(Message_State& S) {
    for (const Default_Interval& Default : Default_Intervals)
        for (std::int16_t& Interval : S.*Default.Interval) Interval = Default.List_Index;
    S.TTM_Interval = 0;
    S.TTD_Interval = 0;
    S.TLB_Interval = 0;
}

void Load_Default_Talkers(Talker_State& S) {
    Fill(S.GNSS_Talker, "GP");
    Fill(S.Gyro_Talker, "HE");
    Fill(S.Log_Talker, "VW");
    Fill(S.Echo_Talker, "SD");
    Fill(S.Wind_Talker, "WI");
    S.ARPA_Talker = std::string("RA");
}

void Load_Default_Configuration(GNSS_State& S) {
    for (int Slot = 1; Slot <= 6; ++Slot) {
        S.GNSS_System_Mode[1][Slot] = 1;
        S.GNS_Mode_Indicator[Slot] = std::string("A");
        S.GNSS_Systems_Text[Slot] = std::string("GPS");
        S.GNS_Talker[Slot] = std::string("GP");
    }
}

} // namespace

void Load_Default_Data(Simulator_State& State) {
    State.Max_Speed_Ahead = 40;
    State.Max_Speed_Astern = 5;
    State.Max_Rudder = 30;
    State.Nav_Lat = 30.0 / 60 / 60 + 35.0 / 60 + 62; // 62 35 30N
    State.Nav_Lon = 0.0 / 60 / 60 + 10.0 / 60 + 6;   // 006 10 00E
    State.TCP_Port = 8040;
    Load_Default_Intervals(State);
    for (int I = 1; I <= 2; ++I) {
        State.GNSS_Decimals_Position[I] = 4;
        State.Gyro_Decimals[I] = 1;
    }
    Load_Default_Talkers(State);
    State.Mode = std::string("Ship");
    Load_Default_Configuration(State);
}

} // namespace brinewright
