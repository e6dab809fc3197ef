#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

struct frmTraffic;
struct Simulator;

// A sentence without line end and where it goes.
struct Own_Sentence {
    std::string Text;
    std::int16_t Port = 0;
    bool Whole = true; // the log keeps only so much of one
};

// What the Traffic window sends.
struct Sending {
    Own_Sentence Repeated;
    std::uint64_t Count = 0; // of what has left since the button was pressed
    bool Left = false;       // the last one did
};

// Why a text cannot be sent as a sentence; empty when it can.
std::string Refusal_Of(std::string_view Text);

// With the checksum behind it, when it has none.
std::string With_Checksum(std::string_view Sentence);

// Connects the controls of the Traffic window by which a sentence is sent once more, or one of one's own once
// or repeatedly.
void Wire_Sending(Simulator& Sim, frmTraffic& F);

void Show_Links_To_Send_On(Simulator& Sim, frmTraffic& F); // they may have changed

} // namespace brinewright
