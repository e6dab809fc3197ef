#pragma once

namespace brinewright {

// The damage that every sentence takes on purpose.
struct Fault_State {
    bool Fault_No_Checksum = false;
    bool Fault_Faulty_Checksum = false;
    bool Fault_Merged = false; // no line ends
    bool Fault_Cut = false;
    bool Fault_Split = false; // the rest of a sentence goes out at the head of the next one
};

} // namespace brinewright
