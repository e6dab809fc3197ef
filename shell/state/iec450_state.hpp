#pragma once

#include <string>

namespace brinewright {

// IEC 61162-450 framing: which parts of the tag block are wanted, and the texts they carry.
struct IEC450_State {
    bool IEC450_Enabled = false;
    bool UdPbC_Header_Enabled = false;
    bool Use_s_Tag = false;
    bool Use_d_Tag = false;
    bool Use_d2_Tag = false;
    bool Use_n_Tag = false;
    bool Use_g_Tag = false;
    bool Use_c_Tag = false;
    bool Use_t_Tag = false;
    std::string s_Tag;  // source
    std::string d_Tag;  // destination 1
    std::string d2_Tag; // destination 2
    std::string t_Tag;  // free text
};

template <class Visitor>
void Visit_State(IEC450_State& S, Visitor&& Visit) {
    Visit("IEC450_Enabled", S.IEC450_Enabled);
    Visit("UdPbC_Header_Enabled", S.UdPbC_Header_Enabled);
    Visit("Use_s_Tag", S.Use_s_Tag);
    Visit("Use_d_Tag", S.Use_d_Tag);
    Visit("Use_d2_Tag", S.Use_d2_Tag);
    Visit("Use_n_Tag", S.Use_n_Tag);
    Visit("Use_g_Tag", S.Use_g_Tag);
    Visit("Use_c_Tag", S.Use_c_Tag);
    Visit("Use_t_Tag", S.Use_t_Tag);
    Visit("s_Tag", S.s_Tag);
    Visit("d_Tag", S.d_Tag);
    Visit("d2_Tag", S.d2_Tag);
    Visit("t_Tag", S.t_Tag);
}

} // namespace brinewright
