#include "sentences/position_block.hpp"

#include "sentences/sentence_frame.hpp"

#include <array>
#include <cmath>
#include <cstddef>

namespace brinewright {
namespace {

struct Minutes_Form {
    double Limit;
    Number_Pattern Pattern;
};

constexpr std::int16_t First_Decimals = 3;
constexpr std::array<Minutes_Form, 4> Minutes_Forms = {{{59.999, "00.000"_Pattern},
                                                        {59.9999, "00.0000"_Pattern},
                                                        {59.99999, "00.00000"_Pattern},
                                                        {59.999999, "00.000000"_Pattern}}};

const Minutes_Form* Find_Form(std::int16_t Decimals) {
    const int Row = Decimals - First_Decimals;
    if (Row < 0 || Row >= static_cast<int>(Minutes_Forms.size())) return nullptr;
    return &Minutes_Forms[static_cast<std::size_t>(Row)];
}

// Whole degrees directly followed by the minutes, then the hemisphere.
void Add_Angle(std::string& Out, double Degrees, const Number_Pattern& Degrees_Pattern, std::int16_t Decimals,
               const Number_Pattern& Minutes_Pattern, char Hemisphere) {
    const double Magnitude = std::abs(Degrees);
    const double Whole = std::floor(Magnitude);
    double Minutes = (Magnitude - Whole) * 60;
    if (Minutes > 59.999) Limit_Minutes(Minutes, Decimals);
    Add_Number(Out, Whole, Degrees_Pattern);
    Append_Field(Out, Minutes, Minutes_Pattern);
    Add_Letter(Out, Hemisphere);
}

} // namespace

void Limit_Minutes(double& Minutes, std::int16_t Decimals) {
    const Minutes_Form* const Form = Find_Form(Decimals);
    if (Form != nullptr && Minutes > Form->Limit) Minutes = Form->Limit;
}

void Add_Position(std::string& Out, double Lat, double Lon, std::int16_t Decimals) {
    const Minutes_Form* const Form = Find_Form(Decimals);
    if (Form == nullptr) return;
    Add_Angle(Out, Lat, "00"_Pattern, Decimals, Form->Pattern, Lat < 0 ? 'S' : 'N');
    Add_Angle(Out, Lon, "000"_Pattern, Decimals, Form->Pattern, Lon < 0 ? 'W' : 'E');
}

} // namespace brinewright
