#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// What a careful listener makes of the checksum of a text: None has no checksum at all, Wrong has one that is
// not that of the text or has more behind it than a line end.
enum class Checksum_Verdict { Ok, Wrong, None };

// Of a text as it left: one sentence, behind a UdPbC header and a tag block if there are any. With a tag
// block its checksum has to be right as well.
Checksum_Verdict Verdict_Of(std::string_view Wire_Text);

// Of a sentence alone, without its line end, and of what stands between the backslashes of a tag block.
Checksum_Verdict Sentence_Verdict(std::string_view Sentence);
Checksum_Verdict Tag_Block_Verdict(std::string_view Block);

const char* Verdict_Text(Checksum_Verdict Verdict); // "ok", "wrong", "none"

// A line of a monitor pane, without its line end.
struct Shown_Line {
    std::string Text;
    Checksum_Verdict Verdict = Checksum_Verdict::None;
};

// The lines of a pane with the verdict on each. What stands behind the last line end is a line if it is not
// empty.
std::vector<Shown_Line> Lines_With_Verdict(std::string_view Pane_Text);

} // namespace brinewright
