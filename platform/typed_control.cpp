#include "platform/controls.hpp"
#include "platform/desktop.hpp"

#include <utility>

namespace brinewright {

Typed_Control::Typed_Control(Stand At, Control_Kind K, std::string N, std::string Text, std::string Tip)
    : Visible_Control(At, K, std::move(N), {}, std::move(Tip)), Content(std::move(Text)) {
    Refusal_Ends.Tick = [this] {
        Owner.Windows.Timers.Stop(Refusal_Ends);
        Refusal = std::string();
    };
}
Typed_Control::~Typed_Control() { Owner.Windows.Timers.Stop(Refusal_Ends); }
void Typed_Control::Refuse(std::string Why) {
    ++Owner.Windows.Refusals;
    Warn(std::move(Why));
}
void Typed_Control::Warn(std::string Why) {
    constexpr std::int64_t Shown_us = 10'000'000; // long enough to be read, and it goes by itself
    Refusal = std::move(Why);
    Owner.Windows.Timers.Start(Refusal_Ends, Shown_us);
}
bool Typed_Control::Must_Wait() const { return Entered && Owner.Windows.Ticking; }
void Typed_Control::Note_Typing(bool Is_Half) {
    Typing = Is_Half && Entered;
    Owner.Windows.Timers.Stop(Refusal_Ends);
    Refusal = std::string();
}
void Typed_Control::Restore() {
    if (!std::exchange(Typing, false)) return;
    Put_Back();
    Owner.Windows.Timers.Stop(Refusal_Ends);
    Refusal = std::string();
}
void Typed_Control::Gain_Focus() {
    Entered = true;
    Before = Content;
    if (Got_Focus) Got_Focus();
}
void Typed_Control::Lose_Focus() {
    Entered = false;
    const bool Typed = std::exchange(Typing, false);
    const std::optional<std::string> Written = std::exchange(Waiting, std::nullopt);
    if (!Typed && Written && *Written != Content) {
        Content = *Written;
        Touch();
    }
    if (Lost_Focus) Lost_Focus();
}

} // namespace brinewright
