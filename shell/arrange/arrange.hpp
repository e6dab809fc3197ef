#pragma once

#include <span>
#include <vector>

namespace brinewright {

struct Form;
struct Simulator;

// A place in the room for child windows, in twentieths of a point.
struct Window_Place {
    float Left = 0, Top = 0, Width = 0, Height = 0;
};
struct Extent {
    float Width = 0, Height = 0;
};

// Where there is too little room for windows in their sizes.
enum class Lack { Equal_Parts, Overlap };

// Places for windows of these sizes, none upon another, from the top left. Where they do not fit in the room
// in their sizes, all get equal parts of it, or hide as little of each other as can be.
std::vector<Window_Place> Beside_Each_Other(std::span<const Extent> Sizes, Extent Room,
                                            Lack In_Need = Lack::Equal_Parts);

// Where a window of this size stands upon no other, as far to the top left as can be; where there is no such
// place, the one where it hides least.
Window_Place Free_Place(Extent Size, std::span<const Window_Place> Taken, Extent Room);

// The child windows that stand in the room, in opening order: neither minimised nor dialogs.
std::vector<Form*> Standing_Windows(const Simulator& Sim);
// What a window takes: what its contents need where a view has measured them.
Extent Size_Of(const Form& Window);
Extent Room_Of(const Simulator& Sim);

// A free place for one that has none of its own.
void Place_Free(const Simulator& Sim, Form& Window);

// Those that have a small form take it where the windows do not fit in their sizes.
void Tile(Simulator& Sim, Lack In_Need);
void Cascade(Simulator& Sim);
void Close_All(Simulator& Sim); // each as if by hand

} // namespace brinewright
