// Any bytes and counts through the serial line filter. How the bytes are cut into chunks must not change what
// comes out, and nothing may come out that did not come in.

#include "platform_linux/serial_line_filter.hpp"
#include "tests/fuzz/require.hpp"

using namespace brinewright;

namespace {

// Joins data that only the cutting has parted.
void Append(std::vector<Line_Item>& All, const std::vector<Line_Item>& More) {
    for (const Line_Item& Item : More) {
        const bool Data = Item.Event == Comm_Event::Receive;
        Require(!(Data == Item.Data.empty()));
        if (Data && !All.empty() && All.back().Event == Comm_Event::Receive) {
            All.back().Data += Item.Data;
        } else {
            All.push_back(Item);
        }
    }
}

bool Same(const std::vector<Line_Item>& A, const std::vector<Line_Item>& B) {
    if (A.size() != B.size()) return false;
    for (std::size_t At = 0; At < A.size(); ++At) {
        if (A[At].Event != B[At].Event || A[At].Data != B[At].Data) return false;
    }
    return true;
}

} // namespace

// Byte 0: parity bit. Bytes 1 to 5: counts. Byte 6: how to cut. The rest came over the line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Bytes, std::size_t Size) {
    if (Size < 7) return 0;
    Serial_Line_Filter Whole, Cut;
    Whole.Parity_Checked = Cut.Parity_Checked = (Bytes[0] & 1) != 0;
    const Line_Error_Counts Counts{Bytes[1], Bytes[2], Bytes[3], Bytes[4], Bytes[5]};
    const std::string_view Line(reinterpret_cast<const char*>(Bytes) + 7, Size - 7);

    std::vector<Line_Item> Once, In_Pieces;
    Append(Once, Filter_Line(Whole, {}, Counts));
    Append(In_Pieces, Filter_Line(Cut, {}, Counts));
    Require(!(Once.size() > 2)); // an overrun and an overflow, however often they were counted
    const std::size_t Without_Mark = Once.size();

    Append(Once, Filter_Line(Whole, Line, {}));
    std::uint32_t Draw = Bytes[6];
    for (std::size_t At = 0; At < Line.size();) {
        Draw = Draw * 1664525u + 1013904223u;
        const std::size_t Length = Bytes[6] == 0 ? 1 : (Draw >> 24) % 7;
        Append(In_Pieces, Filter_Line(Cut, Line.substr(At, Length), {}));
        At += Length;
    }
    Require(!(!Same(Once, In_Pieces) || Whole.At != Cut.At));

    std::size_t Came_Out = 0;
    for (std::size_t At = Without_Mark; At < Once.size(); ++At) {
        Came_Out += Once[At].Event == Comm_Event::Receive ? Once[At].Data.size() : 3;
    }
    Require(!(Came_Out > Line.size()));
    return 0;
}
