#pragma once

#include "platform/controls.hpp"
#include "shell/kit/instrument_readings.hpp"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace brinewright {

struct Marked_Text;
struct Simulator;

// How a window is laid out, as a plain value: a tree of rows, columns, grids and boxes with the controls of
// the window in them. The function that makes it reads from top to bottom as the window does. One builder in
// ui/ turns it into widgets; without a toolkit a test can see that every control has its place.

// Sizes of the one spacing rhythm, in pixels at 100 %.
namespace rhythm {
inline constexpr int Base = 4, Gap = 8, Margin = 12;
inline constexpr int Toolkit = -1; // what the toolkit puts there
} // namespace rhythm

// What a text or the state of a button means; the style says what it looks like.
enum class Role { Plain, Dim, Readout, Good, Warn, Bad };

struct Layout;

// What a node of the tree is, and how it stands in what is around it.
namespace layout {

enum class Side { Fill, Near, Middle, Far }; // Near: left or top

// As wide as a text in the face of the widget, and so many pixels more.
struct Measure {
    Measure(int Its_Pixels = 0) : Pixels(Its_Pixels) {}
    Measure(std::string Its_Text, int More = 0) : Text(std::move(Its_Text)), Pixels(More) {}
    Measure(const char* Its_Text, int More = 0) : Measure(std::string(Its_Text), More) {}
    std::string Text;
    int Pixels;
};

// A place in a grid.
struct Spot {
    int Row = 0, Column = 0, Rows = 1, Columns = 1;
};

struct Control {}; // the widget that its kind has
struct Line {      // a row or a column
    bool Lies;
    int Spacing;
    std::optional<std::array<int, 4>> Margins; // left, top, right, bottom; the builder has its own otherwise
};
struct Raster {                                           // a grid
    int Across = rhythm::Toolkit, Down = rhythm::Toolkit; // between its cells
    int Wide_Column = -1, High_Row = -1;                  // those that take the room that is left
    std::vector<int> Gap_Columns = {};                    // at least a gap wide
};
struct Framed { // a box with a title, its control's or its own
    std::string Title;
    int Side_Margin = rhythm::Margin;
    bool Bare = false; // neither line nor margins
};
struct Split {}; // one above the other, with a handle between them
struct Room {};  // takes the room that is left
struct Said {
    std::string Text;
    Role As = Role::Dim;
};
struct Words { // a text that is no control; with Read it follows what that gives
    Said Now;
    std::function<Said()> Read;
};
struct Ticker { // the last sentence, in one slim line
    std::function<std::string()> Read;
};
struct Pane { // sentences, so many lines at least
    int Lines;
};
struct Marked { // a text to be read, with a part marked
    int Lines;
};
struct Listing { // a table with columns as wide as these texts; without any they share its width
    std::vector<std::string> Widest;
};
struct Key_Catcher {}; // a text box of no size that has the focus while the keyboard steers
// Steps count as the bar does, figures are written in the unit.
struct Steps {
    int Tick, Figure;
    int Per_Unit = 10;
    bool Unsigned = false; // figures without their sign
};
struct Scaled { // a bar with the scale of its values below it or to its right
    bool Lies;
    Steps Scale;
};
struct Label_Scale { // ticks of a slider with labels at their shares of its way
    const Slider* Of;
    std::vector<double> Shares;
};
struct Countdown { // a thin bar that fills when a timer ticks and empties until its next tick
    const Timer* Watched;
    std::function<bool()> Counts; // otherwise it stands empty, whatever the timer does
};
using Reading =
    std::variant<std::function<Attitude_Reading()>, std::function<Compass_Reading()>,
                 std::function<Turn_Reading()>, std::function<Wind_Reading()>, std::function<Sky_Reading()>>;
struct Instrument { // a picture of what Read gives
    Reading Read;
    int Width, Height;
    std::string Tip;
};
struct Progress { // how far something is, 0 to 100
    std::function<int()> Percent;
};

using Kind = std::variant<Control, Line, Raster, Framed, Split, Room, Words, Ticker, Pane, Marked, Listing,
                          Key_Catcher, Scaled, Label_Scale, Countdown, Instrument, Progress>;

struct Manner {
    int Share = 0; // of the room that is left
    Side Across = Side::Fill, Upright = Side::Fill;
    Spot Cell;
    std::function<Spot()> Moves_To; // its place in the grid changes while the window is open
    std::optional<Measure> Least_Width, Width;
    int Least_Height = 0;
    Role As = Role::Plain;
    int Figure_Pixels = 0; // large figures that do not jump in width
    bool Sentence_Face = false;
    bool Flush_Right = false;
    bool Wraps = false;
    bool Keeps_Room = false;     // also while it is hidden
    bool One_Stop = false;       // of Tab: arrows walk the check boxes in it
    std::function<bool()> Shown; // whatever its control says
    std::function<Role()> Lit;   // of a button, whose colour says a state
};

} // namespace layout

struct Layout {
    Layout(Visible_Control& C) : Part(&C) {} // a control as it usually is
    Layout(layout::Kind Its_Kind, std::vector<Layout> Parts = {})
        : What(std::move(Its_Kind)), Inside(std::move(Parts)) {}

    Layout& Wide(int Share = 1) { return How.Share = Share, *this; }
    Layout& Left() { return How.Across = layout::Side::Near, *this; }
    Layout& Right() { return How.Across = layout::Side::Far, *this; }
    Layout& Top() { return How.Upright = layout::Side::Near, *this; }
    Layout& Middle() { return How.Upright = layout::Side::Middle, *this; }
    Layout& Bottom() { return How.Upright = layout::Side::Far, *this; }
    Layout& Width(layout::Measure Fixed) { return How.Width = std::move(Fixed), *this; }
    Layout& Least_Width(layout::Measure Least) { return How.Least_Width = std::move(Least), *this; }
    Layout& Least_Height(int Least) { return How.Least_Height = Least, *this; }
    Layout& Figures(int Pixels) { return How.Figure_Pixels = Pixels, *this; }
    Layout& Sentence_Face() { return How.Sentence_Face = true, *this; } // of a fixed width
    Layout& Flush_Right() { return How.Flush_Right = true, *this; }
    Layout& Wrapped() { return How.Wraps = true, *this; }
    Layout& Keeps_Room() { return How.Keeps_Room = true, *this; }
    Layout& One_Stop() { return How.One_Stop = true, *this; }
    Layout& Shown_When(std::function<bool()> True) { return How.Shown = std::move(True), *this; }
    Layout& Lit(std::function<Role()> State) { return How.Lit = std::move(State), *this; }
    Layout& Moves_To(std::function<layout::Spot()> Now) { return How.Moves_To = std::move(Now), *this; }
    // Of rows and columns.
    Layout& Spaced(int Spacing);
    Layout& Margins(int Left, int Top, int Right, int Bottom);
    Layout& Then(Layout Next) { return Inside.push_back(std::move(Next)), *this; }

    Visible_Control* Part = nullptr; // null: no control
    layout::Kind What;
    std::vector<Layout> Inside;
    layout::Manner How;
};

// The layout of a window, made once when the window is shown.
using Layout_Function = Layout (*)(Simulator&, Form&);

// Whole windows, a column with margins: close where there is much to show, or with air.
Layout Window(std::vector<Layout> Parts);
Layout Dialog(std::vector<Layout> Parts);

Layout Column(std::vector<Layout> Parts);
Layout Row(std::vector<Layout> Parts);
Layout Stretch(int Share = 1);

Layout At(int Row, int Column, Layout Part, int Rows = 1, int Columns = 1);
Layout Cells(std::vector<Layout> Parts, layout::Raster Manner); // each placed by At
// Line by line, so many side by side.
Layout Cells_By_Lines(int Columns, std::vector<Layout> Parts, layout::Raster Manner);

Layout Box(Frame& Around, Layout Contents, int Side_Margin = rhythm::Margin);
Layout Box(std::string Title, Layout Contents, int Side_Margin = rhythm::Margin);
Layout Bare(Frame& Around, Layout Contents); // no line and no margins

Layout Place(Visible_Control& C, Role As = Role::Plain);
Layout Dim(Label& C); // a title or a unit
Layout Readout(Label& Value, int Pixels, layout::Measure Widest);
Layout Readout(Label& Value, int Pixels, layout::Measure Widest, Layout Unit); // with its unit behind it
Layout Text(std::string Caption, Role As = Role::Dim);                         // a caption that is no control
Layout Text(std::function<layout::Said()> Read);

// Rows of caption, field and unit: captions right-aligned to their fields, units left-aligned behind them. So
// many of them side by side.
struct Field {
    Label& Title;
    Layout Part;
    Label* Unit = nullptr;
};
Layout Fields(std::vector<Field> Rows, int Pairs = 1);

// OK and Cancel and their like, at the right end of a row.
Layout Buttons(std::vector<Layout> Keys);

// One above the other, with a handle between them.
Layout Halves(std::vector<Layout> Parts);

Layout Pane(Text_Box& Sentences, int Lines);
Layout Marked(Marked_Text& Sentence, int Lines);
Layout Listing(Grid& Rows, std::vector<std::string> Widest = {});

Layout Lying(Scroll_Bar& Bar, layout::Steps Scale);
Layout Standing(Scroll_Bar& Bar, layout::Steps Scale);
// A label for each share of the way of a slider.
Layout Label_Scale(const Slider& Of, std::vector<Layout> Labels, std::vector<double> Shares);
Layout Painted(layout::Reading Read, int Width, int Height, std::string Tip);
Layout Progress(std::function<int()> Percent);

// The elements of an array of controls, or the buttons of a group.
template <class Many>
std::vector<Layout> Each(const Many& Elements) {
    std::vector<Layout> All;
    for (const auto& One : Elements) All.emplace_back(*One);
    return All;
}

// Calls Look for every control that has a place in the tree.
void For_Each_Placed(const Layout& Tree, const std::function<void(const Visible_Control&)>& Look);

} // namespace brinewright
