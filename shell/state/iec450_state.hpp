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

} // namespace brinewright
