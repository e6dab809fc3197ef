#include "platform/desktop.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

Desktop::Desktop(Timer_Queue& Queue) : Timers(Queue) {
    Timers.Dispatch = [this](Timer_Queue::Entry& Due) {
        Ticking = true;
        Event([&Due] { Due.Tick(); });
        Ticking = false;
    };
}

struct Desktop::By_User {
    explicit By_User(Desktop& Its_Windows) : Windows(Its_Windows) {}
    ~By_User() { Windows.Ticking = Was_Ticking; }
    By_User(const By_User&) = delete;
    By_User& operator=(const By_User&) = delete;
    Desktop& Windows;
    const bool Was_Ticking = std::exchange(Windows.Ticking, false); // a script plays a user in a tick
};

void Desktop::Show(std::shared_ptr<Form> Window, bool With_Focus) {
    Form& Shown = *Window;
    Shown.Loaded = true;
    Shown.Revision = ++Revision;
    Forms.push_back(std::move(Window));
    if (With_Focus || !Active_Form) Activate(Shown);
}

void Desktop::Activate(Form& Window) {
    if (Focus && &Focus->Owner != &Window) Set_Focus(nullptr);
    if (Focus && &Focus->Owner != &Window) {
        ++Revision; // a view that shows another one as active comes back
        return;
    }
    Active_Form = &Window;
    Window.Revision = Window.Last_Active = ++Revision;
    if (Window.On_Got_Focus) Window.On_Got_Focus();
}

void Desktop::Unload(Form& Window) {
    if (!Window.Loaded) return;
    Window.Loaded = false;
    std::exception_ptr Failure;
    try {
        if (Window.On_Unload) Window.On_Unload();
    } catch (...) {
        Failure = std::current_exception();
    }
    for (const auto& Leave : Window.On_Gone) Leave();
    // The box that has the focus is not left: closing a window throws away what is half typed in it.
    if (Focus && &Focus->Owner == &Window) {
        Focus = nullptr;
        Focus_Entered = false;
    }
    for (Control* C : Window.Controls)
        if (C->Kind == Control_Kind::Timer) static_cast<Timer*>(C)->Set_Interval(0);
    const auto Place =
        std::find_if(Forms.begin(), Forms.end(), [&](const auto& F) { return F.get() == &Window; });
    if (Place != Forms.end()) {
        Unloaded.push_back(std::move(*Place));
        Forms.erase(Place);
    }
    if (Active_Form == &Window) {
        // The one that was active before it; the revision grows with every choice.
        const auto Before = std::max_element(Forms.begin(), Forms.end(), [](const auto& A, const auto& B) {
            return A->Last_Active < B->Last_Active;
        });
        Active_Form = Before == Forms.end() ? nullptr : Before->get();
    }
    ++Revision;
    if (Failure) std::rethrow_exception(Failure);
}

Form* Desktop::Find_Form(std::string_view Form_Path) const {
    for (const auto& F : Forms)
        if (F->Path() == Form_Path) return F.get();
    return nullptr;
}

Control* Desktop::Find_Control(std::string_view Full_Path) const {
    const auto Dot = Full_Path.find('.');
    if (Dot == std::string_view::npos) return nullptr;
    const Form* Window = Find_Form(Full_Path.substr(0, Dot));
    return Window ? Window->Find(Full_Path.substr(Dot + 1)) : nullptr;
}

bool Desktop::Usable(const Control& Target, std::string* Why) const {
    const auto Refuse = [&](const char* Reason) {
        if (Why) *Why = Target.Owner.Path() + "." + Target.Path() + Reason;
        return false;
    };
    if (!Target.Owner.Loaded) return Refuse(" is in a window that is closed");
    if (Target.Kind == Control_Kind::Timer) return Refuse(" is a timer and cannot be operated");
    const auto& Seen = static_cast<const Visible_Control&>(Target);
    if (!Seen.Shown()) return Refuse(" is hidden");
    if (!*Seen.Enabled) return Refuse(" is disabled");
    return true;
}

namespace {

void Require_Usable(const Desktop& Windows, const Control& Target) {
    std::string Why;
    if (!Windows.Usable(Target, &Why)) throw User_Refusal(Why);
}

} // namespace

void Desktop::User_Focus(Control& Target) {
    const By_User Now(*this);
    Require_Usable(*this, Target);
    if (!Target.Can_Focus()) return Take_Half_Typed(); // menus and labels leave the focus where it is
    Set_Focus(&Target);
    if (Focus == &Target && Active_Form != &Target.Owner) Activate(Target.Owner);
}

void Desktop::User_Click(Control& Target, Mouse_Button Which) {
    const By_User Now(*this);
    const std::uint64_t Refused_Before = Refusals;
    User_Focus(Target);
    const bool Confirms = Target.Kind == Control_Kind::Button && static_cast<const Button&>(Target).Confirms;
    if (Confirms && Refusals != Refused_Before) return;
    // The box that was left may have changed the world: the control can be gone or disabled by now.
    if (Usable(Target)) Target.User_Click(Which);
}

void Desktop::User_Type(Control& Target, const std::string& Text) {
    const By_User Now(*this);
    User_Focus(Target);
    Target.User_Set(Text);
}

void Desktop::User_Set(Control& Target, const Control_Value& New) {
    const By_User Now(*this);
    User_Focus(Target);
    Require_Usable(*this, Target); // the box that was left may have changed the world
    Target.User_Set(New);
    // A list in which a text was typed is left like a box, so that it follows again what it shows.
    const bool Typed = Target.Kind == Control_Kind::Text_Box ||
                       (Target.Kind == Control_Kind::Combo_Box && std::holds_alternative<std::string>(New) &&
                        static_cast<const Combo_Box&>(Target).Free_Text);
    if (Typed && Focus == &Target) Set_Focus(nullptr);
}

void Desktop::User_Key(Form& Window, int Key_Code, Key_Modifiers Held) {
    const By_User Now(*this);
    if (!Window.Loaded) throw User_Refusal(Window.Path() + " is closed");
    if (Window.Key_Preview && Window.On_Key_Down && Window.On_Key_Down(Key_Code, Held)) return;
    if (!Focus || &Focus->Owner != &Window) return;
    const bool Is_Box = Focus->Kind == Control_Kind::Text_Box;
    if (!Is_Box && Focus->Kind != Control_Kind::Combo_Box) return;
    auto& Typed = static_cast<Typed_Control&>(*Focus);
    if (Is_Box) {
        const auto& Box = static_cast<Text_Box&>(Typed);
        if (Box.Key_Down && Box.Key_Down(Key_Code)) return;
    }
    if (Key_Code == key::Escape) Typed.Restore();
    if (Key_Code == key::Enter) {
        Typed.Confirm();
        Enter_Anew();
    }
}

void Desktop::Enter_Anew() {
    Control* const Held = Focus;
    Set_Focus(nullptr);
    // Leaving it may have closed its window, or sent the focus elsewhere.
    if (!Focus && Held && Held->Owner.Loaded) Set_Focus(Held);
}

void Desktop::Take_Half_Typed() {
    if (!Focus || (Focus->Kind != Control_Kind::Text_Box && Focus->Kind != Control_Kind::Combo_Box)) return;
    if (static_cast<const Typed_Control&>(*Focus).Half_Typed()) Enter_Anew();
}

void Desktop::User_Close(Form& Window) { Unload(Window); }

void Desktop::Set_Focus(Control* Target) {
    if (Target == Focus || (Target && !Usable(*Target))) return;
    Control* Left = Focus;
    const bool Was_Entered = Focus_Entered;
    Focus = Target;
    Focus_Entered = false;
    if (Left && Was_Entered) Left->Lose_Focus();
    // A handler that puts the focus back has entered its control already.
    if (Focus != Target || Focus_Entered) return;
    Focus_Entered = Target != nullptr;
    if (Target) Target->Gain_Focus();
}

void Desktop::Ask_File(File_Dialog Question) {
    Question.Id = ++Boxes.Last_Id;
    File_Dialogs.push_back(std::move(Question));
    ++Revision;
}

bool Desktop::Answer_File(std::int64_t Id, const std::string& Path) {
    const auto Found = std::find_if(File_Dialogs.begin(), File_Dialogs.end(),
                                    [&](const File_Dialog& D) { return D.Id == Id; });
    if (Found == File_Dialogs.end()) return false;
    const File_Dialog Question = std::move(*Found);
    File_Dialogs.erase(Found);
    ++Revision;
    if (Question.Answer) Question.Answer(Path);
    return true;
}

void Desktop::Tell_Failure(const char* What) noexcept {
    try {
        // A failure that comes back with every tick is told once as long as its box stands.
        for (const Message_Box& B : Boxes.Standing)
            if (B.Text == What) return;
        Boxes.Show(What, "", Box_Icon::Stop);
    } catch (...) {
        // Nothing is left to tell it with; going on is still better than ending.
    }
}

// What is hidden or disabled while it has the focus is left.
void Desktop::Leave_Unusable_Focus() {
    if (Focus && !Usable(*Focus)) Set_Focus(nullptr);
}

void Desktop::Settle() noexcept {
    if (Settling) return;
    Settling = true;
    try {
        Leave_Unusable_Focus();
        if (std::exchange(Boxes_Seen, Boxes.Revision) != Boxes.Revision) ++Revision;
        Unloaded.clear();
        for (const Handler& Look : On_Settled) Look();
    } catch (const std::exception& Failure) {
        Tell_Failure(Failure.what());
    }
    Settling = false;
}

} // namespace brinewright
