#include "platform_linux/serial_line_filter.hpp"

#include <limits>

namespace brinewright {

namespace {

constexpr char Mark = '\377';

void Add(std::uint32_t& Sum, std::uint32_t More) {
    Sum = More > std::numeric_limits<std::uint32_t>::max() - Sum ? std::numeric_limits<std::uint32_t>::max()
                                                                 : Sum + More;
}

bool Take(std::uint32_t& Count) {
    if (Count == 0) return false;
    --Count;
    return true;
}

Comm_Event Marked_Event(Serial_Line_Filter& Filter, char Damaged) {
    Line_Error_Counts& Counted = Filter.Unmarked;
    if (Damaged == '\0' && Take(Counted.Break)) return Comm_Event::Break;
    if (Take(Counted.Framing)) return Comm_Event::Framing;
    if (Take(Counted.Parity)) return Comm_Event::Parity;
    if (Damaged == '\0') return Comm_Event::Break;
    return Filter.Parity_Checked ? Comm_Event::Parity : Comm_Event::Framing;
}

void Append_Data(std::vector<Line_Item>& Items, char Byte) {
    if (Items.empty() || Items.back().Event != Comm_Event::Receive) Items.push_back({});
    Items.back().Data += Byte;
}

void Filter_Byte(Serial_Line_Filter& Filter, char Byte, std::vector<Line_Item>& Items) {
    using Place = Serial_Line_Filter::Place;
    switch (Filter.At) {
    case Place::Plain:
        if (Byte == Mark) {
            Filter.At = Place::After_377;
        } else {
            Append_Data(Items, Byte);
        }
        return;
    case Place::After_377:
        Filter.At = Byte == '\0' ? Place::After_377_000 : Place::Plain;
        if (Byte == '\0') return;
        // No driver sends 377 and anything else; should one do, nothing is lost.
        if (Byte != Mark) Append_Data(Items, Mark);
        Append_Data(Items, Byte);
        return;
    case Place::After_377_000:
        Filter.At = Place::Plain;
        Items.push_back({Marked_Event(Filter, Byte), {}});
        return;
    }
}

} // namespace

Line_Error_Counts Counted_Since(const Line_Error_Counts& Later, const Line_Error_Counts& Earlier) {
    return {Later.Break - Earlier.Break, Later.Framing - Earlier.Framing, Later.Parity - Earlier.Parity,
            Later.Overrun - Earlier.Overrun, Later.Buffer_Overrun - Earlier.Buffer_Overrun};
}

std::vector<Line_Item> Filter_Line(Serial_Line_Filter& Filter, std::string_view Chunk,
                                   const Line_Error_Counts& Counted_New) {
    Add(Filter.Unmarked.Break, Counted_New.Break);
    Add(Filter.Unmarked.Framing, Counted_New.Framing);
    Add(Filter.Unmarked.Parity, Counted_New.Parity);
    std::vector<Line_Item> Items;
    for (const char Byte : Chunk) Filter_Byte(Filter, Byte, Items);
    if (Counted_New.Overrun != 0) Items.push_back({Comm_Event::Overrun, {}});
    if (Counted_New.Buffer_Overrun != 0) Items.push_back({Comm_Event::Receive_Overflow, {}});
    return Items;
}

} // namespace brinewright
