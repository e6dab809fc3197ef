#include "links/setup_file.hpp"
#include "links/setup_sections.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

constexpr std::string_view UTF8_Mark = "\xEF\xBB\xBF"; // some editors put it in front of what they save

} // namespace

bool Read_Setup(std::string_view Bytes, Simulator_State& State) {
    bool Known = false;
    Setup_Reader Reader{Bytes};
    if (Bytes.starts_with(UTF8_Mark)) Reader.Position = UTF8_Mark.size();
    const auto Sections = Setup_Sections();
    while (!At_End(Reader)) {
        // Whatever is not a known marker is passed over field by field: unknown sections, junk, surplus
        // fields.
        const std::string_view Text = Next_Field(Reader).Text;
        if (!Text.starts_with("REM")) continue;
        const auto Found = std::find_if(Sections.begin(), Sections.end(),
                                        [&](const Setup_Section& Section) { return Section.Marker == Text; });
        if (Found == Sections.end()) continue;
        Found->Read(Reader, State);
        Known = true;
    }
    return Known;
}

std::string Write_Setup(const Simulator_State& State) {
    Setup_Writer Writer;
    for (const Setup_Section& Section : Setup_Sections()) {
        Field(Writer, std::string(Section.Marker));
        End_Line(Writer);
        Section.Write(Writer, State);
    }
    return std::move(Writer.Bytes);
}

} // namespace brinewright
