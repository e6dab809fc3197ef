#include "ownship/geodesy/parse_position.hpp"
#include "platform/trimmed.hpp"

#include "ownship/geodesy/format_position.hpp"
#include "ownship/geodesy/latin1.hpp"
#include "platform/run_time_error.hpp"
#include "sentences/number_pattern.hpp"

#include <array>
#include <cmath>
#include <limits>
#include <span>
#include <utility>

namespace brinewright {
namespace {

// An angle as far as it is read. Degrees are whole; so are the minutes when there are seconds.
struct Angle_Reading {
    std::string Kind; // upper case
    std::string Name; // as messages call it
    char Hemisphere = 'E';
    bool Has_Hemisphere = true;
    bool Is_Negative = false; // a leading "-" where there is no hemisphere
    double Degrees = 0;
    double Minutes = 0;
    double Seconds = 0;

    bool Is_Lat() const { return Kind == "LAT"; }
    bool Is_Lon() const { return Kind == "LON"; }
    bool Is_South_Or_West() const { return Has_Hemisphere && (Hemisphere == 'S' || Hemisphere == 'W'); }
    double Value() const { return Seconds / 60 / 60 + Minutes / 60 + Degrees; }
    double Signed_Value() const { return Is_South_Or_West() ? -Value() : Value(); }
};

// How the messages that the two parsers show differently look.
struct Warning_Style {
    std::string_view Title;
    Box_Icon Icon = Box_Icon::None;
};
constexpr Warning_Style Plain_Box{};
constexpr Warning_Style Illegal_Input{"Illegal input", Box_Icon::Warning};

void Show_Warning(Message_Boxes& Boxes, std::string Text, const Warning_Style& Style) {
    Boxes.Show(std::move(Text), std::string(Style.Title), Style.Icon);
}

double To_Int16(double Value) {
    const double Whole = std::nearbyint(Value);
    if (std::abs(Whole) > std::numeric_limits<std::int16_t>::max())
        throw Run_Time_Error(error_text::Overflow);
    return Whole;
}

double To_Float(double Value) {
    if (std::abs(Value) > std::numeric_limits<float>::max()) throw Run_Time_Error(error_text::Overflow);
    return static_cast<double>(static_cast<float>(Value));
}

double To_Double(double Value) {
    // Val gives the largest double for every number beyond it.
    if (std::abs(Value) >= std::numeric_limits<double>::max()) throw Run_Time_Error(error_text::Overflow);
    return Value;
}

// One number of an angle.
struct Number_Stage {
    double Angle_Reading::*Target;
    bool Is_Decimal;           // takes "." and ","
    char Closing;              // may stand as the last character of the text
    double (*Convert)(double); // to the width of Target
};

constexpr std::array<Number_Stage, 3> DMS_Stages = {
    {{&Angle_Reading::Degrees, false, File_Degree_Sign, To_Int16},
     {&Angle_Reading::Minutes, false, Minute_Sign, To_Int16},
     {&Angle_Reading::Seconds, true, Second_Sign, To_Float}}};

// The minute sign does not close the minutes here, so that as the last character it goes to the hemisphere
// test, which finds it wrong. This is required.
constexpr std::array<Number_Stage, 2> DM_Stages = {
    {{&Angle_Reading::Degrees, false, File_Degree_Sign, To_Int16},
     {&Angle_Reading::Minutes, true, Second_Sign, To_Double}}};

bool Is_Number_Part(char Letter, bool Is_Decimal) {
    return (Letter >= '0' && Letter <= '9') || (Is_Decimal && (Letter == '.' || Letter == ','));
}

// Reads the numbers from the front of Text, which is trimmed, and returns what is left for the hemisphere
// test: nothing when the text ends with a number or with its closing character.
std::string_view Read_Numbers(std::string_view Text, std::span<const Number_Stage> Stages,
                              Angle_Reading& Angle) {
    for (const Number_Stage& Stage : Stages) {
        std::size_t End = 0;
        while (End < Text.size() && Is_Number_Part(Text[End], Stage.Is_Decimal)) ++End;
        const std::string_view Number = Text.substr(0, End);
        Angle.*Stage.Target = Stage.Convert(Stage.Is_Decimal ? Val_Dot(Number) : Val(Number));
        if (End == Text.size()) return {};
        if (End + 1 == Text.size()) return Text[End] == Stage.Closing ? std::string_view{} : Text.substr(End);
        Text = Left_Trimmed(Text.substr(End + 1));
    }
    return Text;
}

void Read_Sign(std::string_view& Text, Angle_Reading& Angle) {
    if (!Text.starts_with('-')) return;
    Angle.Hemisphere = Angle.Is_Lat() ? 'S' : 'W';
    Angle.Is_Negative = !Angle.Has_Hemisphere;
    Text = Left_Trimmed(Text.substr(1));
}

std::string Default_Used(const Angle_Reading& Angle) {
    return Angle.Is_Lat() ? "Default, N, used" : "Default, E, used";
}

void Read_Hemisphere(std::string_view Text, Angle_Reading& Angle, Message_Boxes& Boxes,
                     const Warning_Style& Style) {
    if (Text.empty()) return;
    if (Text.size() != 1) {
        Show_Warning(Boxes,
                     std::string(Text) + "!   " + Angle.Name + " CHARACTER FORMAT ERROR. " +
                         Default_Used(Angle),
                     Style);
        return;
    }
    Angle.Hemisphere = Upper_Case(Text[0]);
    if (Angle.Is_Lat()) return;
    if (Angle.Hemisphere == O_Slash) Angle.Hemisphere = 'E';
    if (Angle.Hemisphere == 'V') Angle.Hemisphere = 'W';
}

void Limit_Degrees(Angle_Reading& Angle, Message_Boxes& Boxes, const Warning_Style& Style) {
    if (!Angle.Is_Lat() && !Angle.Is_Lon()) return;
    const int Most_Degrees = Angle.Is_Lat() ? 90 : 180;
    if (Angle.Value() <= Most_Degrees) return;
    Show_Warning(Boxes, Angle.Name + " FORMAT ERROR. Max " + Format_Dot(Most_Degrees, "0") + " deg allowed",
                 Style);
    Angle.Degrees = Most_Degrees;
    Angle.Minutes = Angle.Seconds = 0;
}

// Only the degrees change: minus 10 degrees 30 minutes becomes 350 degrees 30 minutes. This is required.
void Limit_Bearing(Angle_Reading& Angle, Message_Boxes& Boxes) {
    const std::string Adjusted = "Automatic adjustment to range 0-360 deg";
    if (Angle.Is_Negative) {
        Show_Warning(Boxes, Angle.Name + " FORMAT ERROR. Negative values not allowed. " + Adjusted,
                     Illegal_Input);
        Angle.Degrees = -Angle.Degrees;
        do Angle.Degrees += 360;
        while (Angle.Degrees <= 0);
    }
    if (Angle.Degrees >= 360) {
        Show_Warning(Boxes, Angle.Name + " FORMAT ERROR. Max value 360 deg. " + Adjusted, Illegal_Input);
        while (Angle.Degrees >= 360) Angle.Degrees -= 360;
    }
}

// A number of 60 or more becomes one of the next larger unit, whatever it was.
void Limit_To_60(double& Number, double& Larger, const std::string& Message, Message_Boxes& Boxes) {
    if (Number < 60) return;
    Boxes.Show(Message);
    Larger = To_Int16(Larger + 1);
    Number = 0;
}

void Check_Hemisphere(Angle_Reading& Angle, Message_Boxes& Boxes) {
    const std::string_view Allowed = Angle.Is_Lat() ? "NS" : "EW";
    if (!Angle.Is_Lat() && !Angle.Is_Lon()) return;
    if (Allowed.find(Angle.Hemisphere) != std::string_view::npos) return;
    Boxes.Show(Angle.Name + " FORMAT ERROR. " + Default_Used(Angle));
    Angle.Hemisphere = Allowed[0];
}

std::string Canonical_DMS(const Angle_Reading& Angle) {
    return Format_Dot(Angle.Degrees, Angle.Is_Lat() ? "00" : "000") + Degree_Sign +
           Format_Dot(Angle.Minutes, "00") + Minute_Sign +
           Format_Dot(static_cast<float>(Angle.Seconds), "00.0000") + Second_Sign + Angle.Hemisphere;
}

// Angle is what is known before the text is read. Value is set as far as the steps come.
void Run_DMS(std::string& Text, Angle_Reading& Angle, double& Value, Message_Boxes& Boxes) {
    std::string_view Rest = Trimmed(Text);
    Read_Sign(Rest, Angle);
    Read_Hemisphere(Read_Numbers(Rest, DMS_Stages, Angle), Angle, Boxes, Plain_Box);
    Value = Angle.Value();
    Limit_Degrees(Angle, Boxes, Plain_Box);
    Limit_To_60(Angle.Seconds, Angle.Minutes, Angle.Name + " SECOND FORMAT ERROR. Max 59.9999 allowed",
                Boxes);
    Limit_To_60(Angle.Minutes, Angle.Degrees, Angle.Name + " MINUTE FORMAT ERROR. Max 59 allowed", Boxes);
    Check_Hemisphere(Angle, Boxes);
    Text = Canonical_DMS(Angle);
    Value = Angle.Signed_Value();
}

void Run_DM(std::string& Text, Angle_Reading& Angle, std::int16_t Decimals, double& Value,
            Message_Boxes& Boxes) {
    std::string_view Rest = Trimmed(Text);
    Read_Sign(Rest, Angle);
    Read_Hemisphere(Read_Numbers(Rest, DM_Stages, Angle), Angle, Boxes, Illegal_Input);
    Value = Angle.Value();
    Limit_Degrees(Angle, Boxes, Illegal_Input);
    if (Angle.Kind == "BRG") Limit_Bearing(Angle, Boxes);
    Limit_To_60(Angle.Minutes, Angle.Degrees, Angle.Name + " MINUTE FORMAT ERROR. Max 60 allowed", Boxes);
    Check_Hemisphere(Angle, Boxes);
    Value = Angle.Signed_Value();
    Text = Format_DM(Value, Angle.Kind, "FORM", Decimals);
}

Angle_Reading Start_Reading(std::string_view Kind) {
    Angle_Reading Angle;
    Angle.Kind = Upper_Case(Kind);
    Angle.Name = Angle.Is_Lat() ? "LATITUDE" : "LONGITUDE";
    Angle.Hemisphere = Angle.Is_Lat() ? 'N' : 'E';
    return Angle;
}

void Show_Failure(const Angle_Reading& Angle, const Run_Time_Error& Failure, Message_Boxes& Boxes) {
    Boxes.Show(Angle.Name + " FORMAT ERROR. " + Failure.what());
}

} // namespace

double Parse_DMS(std::string& Text, std::string_view Kind, Message_Boxes& Boxes) {
    Angle_Reading Angle = Start_Reading(Kind);
    double Value = 0;
    try {
        Run_DMS(Text, Angle, Value, Boxes);
    } catch (const Run_Time_Error& Failure) {
        Show_Failure(Angle, Failure, Boxes);
    }
    return Value;
}

double Parse_DM(std::string& Text, std::string_view Kind, std::int16_t Decimals, Message_Boxes& Boxes) {
    Angle_Reading Angle = Start_Reading(Kind);
    if (!Angle.Is_Lat() && !Angle.Is_Lon()) {
        Angle.Name = "AZIMUTH";
        Angle.Has_Hemisphere = false;
    }
    double Value = 0;
    try {
        Run_DM(Text, Angle, Decimals, Value, Boxes);
    } catch (const Run_Time_Error& Failure) {
        Show_Failure(Angle, Failure, Boxes);
    }
    return Value;
}

} // namespace brinewright
