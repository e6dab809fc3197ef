#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "platform/message_box.hpp"
#include "platform/timer_queue.hpp"

#include <exception>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// Codes of the keys that handlers look at.
namespace key {
inline constexpr int Enter = 13, Escape = 27, Page_Up = 33, Page_Down = 34, Left = 37, Up = 38, Right = 39,
                     Down = 40;
} // namespace key

// A question for a file name. The answer may come much later; timers and output go on meanwhile.
struct File_Dialog {
    std::int64_t Id = 0; // shares its counting with the message boxes
    bool Save = false;
    std::string Title;
    std::string Filter; // "Brinewright setup files (*.ini)|*.ini"
    std::string Default_Extension;
    std::string Folder;
    std::function<void(const std::string& Path)> Answer; // an empty path: none was chosen
};

// The windows that are open, the focus, the message boxes, and the one door through which everything comes
// in.
class Desktop {
  public:
    explicit Desktop(Timer_Queue& Queue);

    // Runs Work as one event: what it throws is told in a box and the program goes on. Windows that it
    // unloaded are freed when the outermost event is over, so that a window may unload itself.
    template <class F>
    void Event(F&& Work) noexcept {
        ++Depth;
        try {
            Work();
        } catch (const std::exception& Failure) {
            Tell_Failure(Failure.what());
        } catch (...) {
            Tell_Failure("Unknown error");
        }
        if (--Depth == 0) Settle();
    }

    void Show(std::shared_ptr<Form> Window, bool With_Focus = true); // adds it to the open ones
    // The box that has the focus is left before. One that takes the focus back keeps its window active.
    void Activate(Form& Window);
    // Runs On_Unload once; a second call does nothing. What On_Unload throws comes out after the window is
    // gone.
    void Unload(Form& Window);
    Form* Find_Form(std::string_view Form_Path) const;
    Control* Find_Control(std::string_view Full_Path) const; // frmPosition[1].chkGGA

    // What a user does. Disabled or hidden controls refuse with User_Refusal; a click first moves the focus,
    // so that the box that is left runs its Lost_Focus before.
    void User_Click(Control& Target, Mouse_Button Which = Mouse_Button::Left);
    void User_Focus(Control& Target);
    void User_Set(Control& Target, const Control_Value& New); // a text box: types and leaves it
    void User_Type(Control& Target, const std::string& Text); // types and stays
    // To the form with Key_Preview, then to the focus, where Enter takes what is typed and Escape takes it
    // back.
    void User_Key(Form& Window, int Key_Code, Key_Modifiers Held = {});
    void User_Close(Form& Window);
    bool Usable(const Control& Target, std::string* Why = nullptr) const;

    // Runs Lost_Focus of the old and Got_Focus of the new, once each. What is hidden or disabled gets none.
    void Set_Focus(Control* Target);
    Control* Focus = nullptr;
    // Takes or refuses what is half typed, as leaving the box does, and stays in it.
    void Take_Half_Typed();
    std::uint64_t Refusals = 0; // of what was typed, counted since the start
    bool Ticking = false;       // a timer is at work, and not a user

    void Ask_File(File_Dialog Question);
    bool Answer_File(std::int64_t Id, const std::string& Path);

    Timer_Queue& Timers;
    Message_Boxes Boxes;
    std::vector<File_Dialog> File_Dialogs;
    std::vector<std::shared_ptr<Form>> Forms; // open ones, in opening order
    Form* Active_Form = nullptr;
    // The room for child windows, which a view measures: at first that of a small display.
    // Runs once when views have measured the windows that opened in the same event.
    Handler When_Measured;
    float Room_Width = 20'100, Room_Height = 10'200;
    std::uint64_t Revision = 0;      // grows with every change that views show
    std::vector<Handler> On_Settled; // after each outermost event: views, watches

  private:
    struct By_User; // while it lives, what happens is the user's doing
    void Leave_Unusable_Focus();
    void Enter_Anew();
    void Tell_Failure(const char* What) noexcept;
    void Settle() noexcept;

    int Depth = 0;
    bool Focus_Entered = false;
    bool Settling = false;
    std::uint64_t Boxes_Seen = 0;
    std::vector<std::shared_ptr<Form>> Unloaded;
};

} // namespace brinewright
