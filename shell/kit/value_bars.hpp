#pragma once

#include "platform/controls.hpp"
#include "shell/kit/typed_number.hpp"

#include <functional>
#include <optional>
#include <string>

namespace brinewright {

struct Simulator;

// What the windows of gyro, log, echo sounder and wind gauge have in common beyond their sentences.

inline constexpr int Bar_Steps = 10; // of a degree, knot or metre on every bar of these windows

// The next draw, -1 to under 1: times the largest noise it is the noise to either side.
double Signed_Draw(Simulator& Sim);

// The place on a bar of Steps to the unit that is nearest to Value, ties to even; held within the bar.
int Bar_Place(const Scroll_Bar& Bar, double Value, int Steps);

// A bar of a direction in tenths of a degree runs from -1 to 3600; both ends are the wrap and no places to
// stand on. Called first in the bar's handler: at an end it sets the bar to the other side, which runs the
// handler anew, and returns true, whereupon the handler is to return.
bool Wrap_Direction_Bar(Scroll_Bar& Bar);

// Where a bar of a direction shows an angle, whatever circle it is in: nearest tenth, 0 to 3599.
int Direction_Place(const Scroll_Bar& Bar, double Angle_deg);

// A bar's value in its unit.
float Bar_Value(const Scroll_Bar& Bar);

// What the box beside such a bar shows: what the bar shows.
std::string Direction_Shown(const Scroll_Bar& Bar);

// Brings a bar to a place within its range and runs its handler, also when it stands there already.
void Move_Bar(Scroll_Bar& Bar, int Place);

// A box in which a value is typed that its bar has to reach.
struct Box_Of_Bar {
    Scroll_Bar& Bar;
    Text_Box& Box;
    const char* Refusal; // the text of the box when the bar does not reach it
    std::string Shown;   // what the box shows while nobody types
};

// The box is left: brings the bar to the nearest tenth, which runs its handler, or refuses what is typed;
// then the value before stays and shows again. A value that stands beyond the bar, as the ship can leave it
// behind, may be passed by: it is refused only when it is typed.
void Leave_Box(Simulator& Sim, const Form& W, const Box_Of_Bar& B);

// A bar and the box beside it in which its value may be typed.
struct Typed_Bar {
    Scroll_Bar& Bar;
    Text_Box& Box;
    const char* Refusal;                // as in Box_Of_Bar
    Handler Take;                       // the bar has moved: its value is to be taken
    std::function<std::string()> Shown; // what the box shows
    bool Full_Circle = false;           // both ends of the bar lead past north
};

// Shows the value in the box, and connects the two. The bar stands where it should already.
void Wire_Typed_Bar(Simulator& Sim, const Form& W, const Typed_Bar& B);

// The size of the number typed in a box that may go beyond its bar, which is brought as near as it gets.
// Since the bar's handler runs in here, the caller takes the typed value last, so that it stays in effect
// where the bar cannot follow: beyond its end, and between two tenths. This order is required. Nothing, and
// the bar stays, when what is typed is not to be taken.
std::optional<float> Typed_Size(Scroll_Bar& Bar, Text_Box& Box, const Number_Rule& Rule = {});

// A speed or depth beside its bar: the label shows it and the box copies the label.
void Show_Size(Label& Shown, Text_Box& Box, float Value);

// A bar of sizes, 0 and above, the label that shows the size and the box in which it may be typed.
struct Size_Bar {
    Scroll_Bar& Bar;
    Label& Shown;
    Text_Box& Box;
};

// Shows Value, wherever it lies, without writing it; from then on what bar or box is set to goes into Value,
// and Taken runs after it. Value is a member of the window or outlives it.
void Wire_Size_Bar(const Size_Bar& B, float& Value, Handler Taken = nullptr);

} // namespace brinewright
