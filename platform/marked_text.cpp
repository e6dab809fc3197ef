#include "platform/marked_text.hpp"

#include <utility>

namespace brinewright {

Marked_Text::Marked_Text(Stand At, std::string N, std::string Tip)
    : Text_Box(At, std::move(N), {}, std::move(Tip)) {
    Read_Only = true;
}

void Marked_Text::Set_Text(std::string New) {
    Mark(0, 0);
    Text_Box::Set_Text(std::move(New));
}

void Marked_Text::Mark(int First, int Length) {
    Mark_First = First;
    Mark_Length = Length;
}

void Marked_Text::Check(const Control_Value& V) const {
    const auto* Place = std::get_if<std::int64_t>(&V);
    if (!Place) throw User_Refusal("This text is read only; the number of a character chooses one");
    const auto Size = static_cast<std::int64_t>(Text().size());
    if (*Place < 0 || *Place > Size)
        throw Value_Refusal("The text has " + std::to_string(Size) + " characters, the first is number 0");
}

void Marked_Text::User_Set(const Control_Value& V) {
    Check(V);
    if (Character_Chosen) Character_Chosen(static_cast<int>(std::get<std::int64_t>(V)));
}

} // namespace brinewright
