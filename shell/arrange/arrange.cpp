#include "shell/arrange/arrange.hpp"

#include "platform/form.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace brinewright {

namespace {

constexpr float Cascade_Step = 420; // a title's height to the right and down

std::vector<Window_Place> In_Equal_Parts(std::size_t Count, Extent Room) {
    // Windows are about four wide to three high.
    constexpr float Shape = 4.0F / 3.0F;
    const auto All = static_cast<float>(Count);
    const float Across = std::max(1.0F, std::round(std::sqrt(All * Room.Width / Room.Height / Shape)));
    const float Down = std::ceil(All / Across);
    const Extent Part{std::floor(Room.Width / Across), std::floor(Room.Height / Down)};
    std::vector<Window_Place> Places;
    for (std::size_t I = 0; I < Count; ++I) {
        const auto Row = std::floor(static_cast<float>(I) / Across);
        const float Column = static_cast<float>(I) - Row * Across;
        Places.push_back({Column * Part.Width, Row * Part.Height, Part.Width, Part.Height});
    }
    return Places;
}

float Shared(const Window_Place& A, const Window_Place& B) {
    const float Across = std::min(A.Left + A.Width, B.Left + B.Width) - std::max(A.Left, B.Left);
    const float Down = std::min(A.Top + A.Height, B.Top + B.Height) - std::max(A.Top, B.Top);
    return Across > 0 && Down > 0 ? Across * Down : 0;
}

float Hidden_By(const Window_Place& Here, std::span<const Window_Place> Taken) {
    float Hidden = 0;
    for (const Window_Place& T : Taken) Hidden += Shared(Here, T);
    return Hidden;
}

float Area(Extent Size) { return Size.Width * Size.Height; }

bool Sticks_Out(const Window_Place& P, Extent Room) {
    return P.Left + P.Width > Room.Width || P.Top + P.Height > Room.Height;
}

void Put(Form& Window, const Window_Place& There) {
    Window.Set_State(Window_State::Normal);
    Window.Set_Place(There.Left, There.Top, There.Width, There.Height);
}

} // namespace

std::vector<Window_Place> Beside_Each_Other(std::span<const Extent> Sizes, Extent Room, Lack In_Need) {
    // The large ones first: small ones find room beside them.
    std::vector<std::size_t> Order(Sizes.size());
    std::iota(Order.begin(), Order.end(), std::size_t{0});
    std::stable_sort(Order.begin(), Order.end(),
                     [&](std::size_t A, std::size_t B) { return Area(Sizes[A]) > Area(Sizes[B]); });
    std::vector<Window_Place> Taken, Places(Sizes.size());
    for (const std::size_t I : Order) {
        const Window_Place New = Free_Place(Sizes[I], Taken, Room);
        const bool Fits = !Sticks_Out(New, Room) && Hidden_By(New, Taken) == 0;
        if (!Fits && In_Need == Lack::Equal_Parts) return In_Equal_Parts(Sizes.size(), Room);
        Taken.push_back(New);
        Places[I] = New;
    }
    return Places;
}

Window_Place Free_Place(Extent Size, std::span<const Window_Place> Taken, Extent Room) {
    std::vector<float> Lefts{0}, Tops{0};
    for (const Window_Place& T : Taken) {
        Lefts.push_back(T.Left + T.Width);
        Tops.push_back(T.Top + T.Height);
    }
    // Also flush with the far edges, where what is left is too small for a window behind another.
    Lefts.push_back(std::max(0.0F, Room.Width - Size.Width));
    Tops.push_back(std::max(0.0F, Room.Height - Size.Height));
    std::sort(Lefts.begin(), Lefts.end());
    std::sort(Tops.begin(), Tops.end());
    Window_Place Best{0, 0, Size.Width, Size.Height};
    float Least_Hidden = -1;
    for (const float Top : Tops)
        for (const float Left : Lefts) {
            const Window_Place Here{Left, Top, Size.Width, Size.Height};
            const bool Origin = Left == 0 && Top == 0;
            if (!Origin && Sticks_Out(Here, Room)) continue;
            float Hidden = Hidden_By(Here, Taken);
            // Never exactly upon another, whose title would not be seen.
            for (const Window_Place& T : Taken)
                if (T.Left == Left && T.Top == Top) Hidden += Area(Room);
            if (Least_Hidden >= 0 && Hidden >= Least_Hidden) continue;
            Least_Hidden = Hidden;
            Best = Here;
            if (Hidden == 0) return Best;
        }
    return Best;
}

std::vector<Form*> Standing_Windows(const Simulator& Sim) {
    std::vector<Form*> Standing;
    for (const auto& F : Sim.Windows.Forms)
        if (F->Loaded && F->Kind == Form_Kind::Child && F->State != Window_State::Minimised)
            Standing.push_back(F.get());
    return Standing;
}

Extent Size_Of(const Form& Window) {
    if (Window.Needs_Width > 0) return {Window.Needs_Width, Window.Needs_Height};
    return {Window.Width, Window.Height};
}

Extent Room_Of(const Simulator& Sim) { return {Sim.Windows.Room_Width, Sim.Windows.Room_Height}; }

void Place_Free(const Simulator& Sim, Form& Window) {
    std::vector<Window_Place> Taken;
    for (const Form* Other : Standing_Windows(Sim)) {
        if (Other == &Window || Other->Unplaced) continue;
        const Extent Size = Size_Of(*Other);
        Taken.push_back({Other->Left, Other->Top, Size.Width, Size.Height});
    }
    const Window_Place Free = Free_Place(Size_Of(Window), Taken, Room_Of(Sim));
    Window.Left = Free.Left;
    Window.Top = Free.Top;
    Window.Unplaced = false;
}

namespace {

// False when not all stand in their sizes.
bool Tile_Now(Simulator& Sim, Lack In_Need) {
    const std::vector<Form*> Windows = Standing_Windows(Sim);
    std::vector<Extent> Sizes;
    Sizes.reserve(Windows.size());
    for (const Form* Window : Windows) Sizes.push_back(Size_Of(*Window));
    const std::vector<Window_Place> Places = Beside_Each_Other(Sizes, Room_Of(Sim), In_Need);
    bool All_Fit = true;
    for (std::size_t I = 0; I < Windows.size(); ++I) {
        All_Fit = All_Fit && Places[I].Width >= Sizes[I].Width && Places[I].Height >= Sizes[I].Height;
        Put(*Windows[I], Places[I]);
    }
    return All_Fit;
}

} // namespace

void Tile(Simulator& Sim, Lack In_Need) {
    if (Tile_Now(Sim, In_Need)) return;
    bool Smaller = false;
    for (Form* Window : Standing_Windows(Sim)) {
        const Window_Class* Class = Find_Class(Sim, Window->Name);
        if (Window->Small || !Class || !Class->Lay_Out_Small) continue;
        Window->Set_Small(true);
        Smaller = true;
    }
    // Their sizes are known when they have been measured.
    if (Smaller) Sim.Windows.When_Measured = [&Sim, In_Need] { Tile_Now(Sim, In_Need); };
}

void Cascade(Simulator& Sim) {
    const Extent Room = Room_Of(Sim);
    float Offset = 0;
    for (Form* Window : Standing_Windows(Sim)) {
        const Extent Size = Size_Of(*Window);
        const bool Runs_Out = Offset + Size.Width > Room.Width || Offset + Size.Height > Room.Height;
        if (Runs_Out && Offset > Room.Height / 2) Offset = 0;
        Put(*Window, {Offset, Offset, Size.Width, Size.Height});
        Sim.Windows.Activate(*Window); // each above the one before it
        Offset += Cascade_Step;
    }
}

void Close_All(Simulator& Sim) {
    const auto Open = Sim.Windows.Forms;
    for (const auto& F : Open)
        if (F->Loaded && F->Kind == Form_Kind::Child) Sim.Windows.Event([&] { Sim.Windows.Unload(*F); });
}

} // namespace brinewright
