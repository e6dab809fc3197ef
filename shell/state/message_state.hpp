#pragma once

#include "platform/table.hpp"

#include <cstdint>

namespace brinewright {

// Which sentences are sent and how often. An interval is the ListIndex of the sentence's interval list, not a
// time; as it may come from a file it can be anything.
struct Message_State {
    Per_Instance<bool> GGA_Enabled; // GNSS
    Per_Instance<std::int16_t> GGA_Interval;
    Per_Instance<bool> GLL_Enabled;
    Per_Instance<std::int16_t> GLL_Interval;
    Per_Instance<bool> VTG_Enabled;
    Per_Instance<std::int16_t> VTG_Interval;
    Per_Instance<bool> RMC_Enabled;
    Per_Instance<std::int16_t> RMC_Interval;
    Per_Instance<bool> ZDA_Enabled;
    Per_Instance<std::int16_t> ZDA_Interval;
    Per_Instance<bool> GNS_Enabled;
    Per_Instance<std::int16_t> GNS_Interval;
    Per_Instance<bool> DTM_Enabled;
    Per_Instance<std::int16_t> DTM_Interval;
    Per_Instance<bool> GSA_Enabled;
    Per_Instance<std::int16_t> GSA_Interval;
    Per_Instance<bool> GSV_Enabled;
    Per_Instance<std::int16_t> GSV_Interval;
    Per_Instance<bool> GST_Enabled;
    Per_Instance<std::int16_t> GST_Interval;
    Per_Instance<bool> HDT_Enabled; // gyro
    Per_Instance<std::int16_t> HDT_Interval;
    Per_Instance<bool> THS_Enabled;
    Per_Instance<std::int16_t> THS_Interval;
    Per_Instance<bool> ROT_Enabled;
    Per_Instance<std::int16_t> ROT_Interval;
    Per_Instance<bool> HDM_Enabled;
    Per_Instance<std::int16_t> HDM_Interval;
    Per_Instance<bool> ATT_Enabled;
    Per_Instance<std::int16_t> ATT_Interval;
    Per_Instance<bool> PRDID_Enabled;
    Per_Instance<std::int16_t> PRDID_Interval;
    Per_Instance<bool> VHW_Enabled; // log
    Per_Instance<std::int16_t> VHW_Interval;
    Per_Instance<bool> VBW_Enabled;
    Per_Instance<std::int16_t> VBW_Interval;
    Per_Instance<bool> VDR_Enabled;
    Per_Instance<std::int16_t> VDR_Interval;
    Per_Instance<bool> VLW_Enabled;
    Per_Instance<std::int16_t> VLW_Interval;
    Per_Instance<bool> DBT_Enabled; // echo sounder
    Per_Instance<std::int16_t> DBT_Interval;
    Per_Instance<bool> DPT_Enabled;
    Per_Instance<std::int16_t> DPT_Interval;
    Per_Instance<bool> MWV_Enabled; // wind gauge
    Per_Instance<std::int16_t> MWV_Interval;
    Per_Instance<bool> MWD_Enabled;
    Per_Instance<std::int16_t> MWD_Interval;
    bool TTM_Enabled = false; // radar: there is one
    std::int16_t TTM_Interval = 0;
    bool TTD_Enabled = false;
    std::int16_t TTD_Interval = 0;
    bool TLB_Enabled = false;
    std::int16_t TLB_Interval = 0;
};

template <class Visitor>
void Visit_State(Message_State& S, Visitor&& Visit) {
    Visit("GGA_Enabled", S.GGA_Enabled);
    Visit("GGA_Interval", S.GGA_Interval);
    Visit("GLL_Enabled", S.GLL_Enabled);
    Visit("GLL_Interval", S.GLL_Interval);
    Visit("VTG_Enabled", S.VTG_Enabled);
    Visit("VTG_Interval", S.VTG_Interval);
    Visit("RMC_Enabled", S.RMC_Enabled);
    Visit("RMC_Interval", S.RMC_Interval);
    Visit("ZDA_Enabled", S.ZDA_Enabled);
    Visit("ZDA_Interval", S.ZDA_Interval);
    Visit("GNS_Enabled", S.GNS_Enabled);
    Visit("GNS_Interval", S.GNS_Interval);
    Visit("DTM_Enabled", S.DTM_Enabled);
    Visit("DTM_Interval", S.DTM_Interval);
    Visit("GSA_Enabled", S.GSA_Enabled);
    Visit("GSA_Interval", S.GSA_Interval);
    Visit("GSV_Enabled", S.GSV_Enabled);
    Visit("GSV_Interval", S.GSV_Interval);
    Visit("GST_Enabled", S.GST_Enabled);
    Visit("GST_Interval", S.GST_Interval);
    Visit("HDT_Enabled", S.HDT_Enabled);
    Visit("HDT_Interval", S.HDT_Interval);
    Visit("THS_Enabled", S.THS_Enabled);
    Visit("THS_Interval", S.THS_Interval);
    Visit("ROT_Enabled", S.ROT_Enabled);
    Visit("ROT_Interval", S.ROT_Interval);
    Visit("HDM_Enabled", S.HDM_Enabled);
    Visit("HDM_Interval", S.HDM_Interval);
    Visit("ATT_Enabled", S.ATT_Enabled);
    Visit("ATT_Interval", S.ATT_Interval);
    Visit("PRDID_Enabled", S.PRDID_Enabled);
    Visit("PRDID_Interval", S.PRDID_Interval);
    Visit("VHW_Enabled", S.VHW_Enabled);
    Visit("VHW_Interval", S.VHW_Interval);
    Visit("VBW_Enabled", S.VBW_Enabled);
    Visit("VBW_Interval", S.VBW_Interval);
    Visit("VDR_Enabled", S.VDR_Enabled);
    Visit("VDR_Interval", S.VDR_Interval);
    Visit("VLW_Enabled", S.VLW_Enabled);
    Visit("VLW_Interval", S.VLW_Interval);
    Visit("DBT_Enabled", S.DBT_Enabled);
    Visit("DBT_Interval", S.DBT_Interval);
    Visit("DPT_Enabled", S.DPT_Enabled);
    Visit("DPT_Interval", S.DPT_Interval);
    Visit("MWV_Enabled", S.MWV_Enabled);
    Visit("MWV_Interval", S.MWV_Interval);
    Visit("MWD_Enabled", S.MWD_Enabled);
    Visit("MWD_Interval", S.MWD_Interval);
    Visit("TTM_Enabled", S.TTM_Enabled);
    Visit("TTM_Interval", S.TTM_Interval);
    Visit("TTD_Enabled", S.TTD_Enabled);
    Visit("TTD_Interval", S.TTD_Interval);
    Visit("TLB_Enabled", S.TLB_Enabled);
    Visit("TLB_Interval", S.TLB_Interval);
}

} // namespace brinewright
