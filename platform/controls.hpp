#pragma once

#include "platform/control.hpp"
#include "platform/timer_queue.hpp"

#include <concepts>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brinewright {

using Handler = std::function<void()>;

struct Frame;

// Where a control stands: in its window, or in a frame of it; and which of its array it is. Made from a form
// or from a frame as a control is declared: Label lblHDG{frmHeading, "lblHDG", "Heading"}.
struct Stand {
    Stand(Form& Its_Form) : Owner(Its_Form) {}
    Stand(const Frame& Its_Frame);
    Stand Element(int I) const; // the same place for one of like controls of one name

    Form& Owner;
    const Frame* In = nullptr;
    int Index = Control::No_Index;
};

// What one of like controls says: its caption and its tool tip.
struct Wording {
    constexpr Wording(const char* Its_Caption, const char* Its_Tip = "")
        : Caption(Its_Caption), Tip(Its_Tip) {}
    const char* Caption;
    const char* Tip;
};

// What the visible kinds have in common. Widths are in twentieths of a point; 0 leaves the width to the view.
struct Visible_Control : Control {
    Visible_Control(Stand At, Control_Kind K, std::string N, std::string Text, std::string Tip);

    const Frame* const In; // null: it stands in the window itself
    bool Shown() const;    // itself, and every frame around it
    Property<bool> Enabled{*this, true};
    Property<bool> Visible{*this, true};
    Property<std::string> Caption{*this};
    Property<std::string> Tool_Tip{*this}; // unit and range, or what it does
    Property<Ink> Fore_Colour{*this, Ink::Normal};
    Property<int> Width{*this, 0};
};

struct Button : Visible_Control {
    Button(Stand At, std::string N, std::string Text = {}, std::string Tip = {});
    Handler Click;
    bool Confirms = false; // takes what is typed in its window: not while that has just been refused
    void User_Click(Mouse_Button) override;
    bool Can_Focus() const override { return true; }
};

struct Label : Visible_Control {
    Label(Stand At, std::string N, std::string Text = {}, std::string Tip = {});
    std::function<void(Mouse_Button)> Mouse_Down;
    void User_Click(Mouse_Button B) override;
    Control_Value Current() const override { return *Caption; }
};

// Grouping with a title. What stands in it is hidden together with it.
struct Frame : Visible_Control {
    Frame(Stand At, std::string N, std::string Text = {}, std::string Tip = {});
};

// Setting the value from code runs Click like a hand would, but only on a change.
struct Check_Box : Visible_Control {
    Check_Box(Stand At, std::string N, std::string Text = {}, std::string Tip = {});
    Handler Click;
    bool Value() const { return Checked; }
    void Set_Value(bool New);
    void User_Click(Mouse_Button) override { Set_Value(!Checked); }
    void Check(const Control_Value& V) const override;
    void User_Set(const Control_Value& V) override;
    Control_Value Current() const override { return Checked; }
    bool Can_Focus() const override { return true; }

  private:
    bool Checked = false;
};

// What is typed in. While it has the focus no tick overwrites it: what the tick writes waits, and stands when
// the control is left without anything typed.
struct Typed_Control : Visible_Control {
    Typed_Control(Stand At, Control_Kind K, std::string N, std::string Text, std::string Tip);
    ~Typed_Control() override;
    Handler Got_Focus;
    Handler Lost_Focus;
    Property<std::string> Refusal{*this}; // why what was typed does not stand; for a while

    const std::string& Text() const { return Content; }
    bool Half_Typed() const { return Typing; } // typed in and neither left nor confirmed since
    const std::string& Text_Before() const { return Before; } // as it was when the control was entered
    void Refuse(std::string Why);              // counts on the desktop, so that OK does not close over it
    void Warn(std::string Why);                // tells what was made of it
    // What stood when the typing began stands again.
    void Restore();
    virtual void Confirm() {} // Enter, before the control is left and entered again

    void Gain_Focus() override;
    void Lose_Focus() override;
    bool Can_Focus() const override { return true; }

  protected:
    bool Must_Wait() const; // a tick writes, and the user is in it
    void Note_Typing(bool Is_Half = true); // a hand is at it: what was refused before is past
    virtual void Put_Back() = 0;
    std::string Content, Before;
    std::optional<std::string> Waiting;

  private:
    bool Entered = false, Typing = false;
    Timer_Queue::Entry Refusal_Ends;
};

// A list to choose from. Choosing runs Click, also when the entry is chosen that stands chosen already. With
// Free_Text the user may type; typing runs Change.
struct Combo_Box : Typed_Control {
    struct Item {
        std::string Text;
        std::int32_t Data = 0;
    };

    Combo_Box(Stand At, std::string N, std::string Text = {}, std::string Tip = {});
    Handler Click;
    Handler Change;
    bool Free_Text = false;

    const std::vector<Item>& Items() const { return Entries; }
    int List_Index() const { return Chosen; } // -1 = none
    std::int32_t Item_Data() const; // of the chosen entry, 0 when none is

    void Add_Item(std::string Text, std::int32_t Data = 0);
    void Set_Item(int Which, std::string Text);
    void Clear(); // runs nothing; afterwards nothing is chosen
    // -1 chooses nothing and runs nothing. Outside the list: Run_Time_Error "Invalid property value".
    void Set_List_Index(int New);
    void Choose_Data(std::int32_t Data); // the first entry with this item data; none leaves nothing chosen
    void Set_Text(std::string New);      // only with Free_Text; runs Change when the text changes

    void Check(const Control_Value& V) const override;
    void User_Set(
        const Control_Value& V) override; // number of the entry, or its text (blanks around it count not)
    void User_Type(std::string Typed);    // key by key: what is half typed chooses no entry
    Control_Value Current() const override { return Content; }
    void Gain_Focus() override;
    void Confirm() override; // what is typed counts once more, as if it were typed now

  private:
    int Find_Entry(const std::string& Wanted) const;
    void Store_Text(std::string New);
    void Put_Back() override;
    std::vector<Item> Entries;
    int Chosen = -1;
    int Chosen_Before = -1;
};

// Setting the text from code runs Change, but only on a change.
struct Text_Box : Typed_Control {
    Text_Box(Stand At, std::string N, std::string Text = {}, std::string Tip = {});
    Handler Change;
    std::function<bool(int Key_Code)> Key_Down; // true = the key is used up
    bool Read_Only = false;
    Property<std::uint32_t> Select_All_Count{*this, 0}; // grows each time the whole text is to be selected

    void Set_Text(std::string New);
    void Append_Text(std::string_view More); // as Set_Text of both; cheap for monitors
    void Select_All() { Select_All_Count = *Select_All_Count + 1; }

    void Check(const Control_Value& V) const override;
    void User_Set(const Control_Value& V) override;
    Control_Value Current() const override { return Content; }

  private:
    void Store_Text(std::string New);
    void Put_Back() override;
};

// Value always lies between Min and Max, whichever of them is the greater: Min stands at the top or left.
// Setting the value from code runs Change, but only on a change.
struct Scroll_Bar : Visible_Control {
    Scroll_Bar(Stand At, std::string N, int At_Min, int At_Max, int Large = 10, std::string Tip = {});
    Handler Change;
    Property<int> Min;
    Property<int> Max;
    int Small_Change = 1;
    int Large_Change;

    int Value() const { return Position; }
    void Set_Value(std::int64_t New); // outside the range: Run_Time_Error "Invalid property value"
    void Check(const Control_Value& V) const override;
    void User_Set(const Control_Value& V) override; // held within the range, as a dragged thumb is
    Control_Value Current() const override { return static_cast<std::int64_t>(Position); }
    bool Can_Focus() const override { return true; }

  protected:
    std::int64_t Limited(std::int64_t Wanted) const;

  private:
    int Position = 0;
};

// A scroll bar with a scale that holds what code gives it within its range too.
struct Slider : Scroll_Bar {
    Slider(Stand At, std::string N, int At_Min, int At_Max, int Its_Tick_Step, std::string Tip = {});
    int Tick_Step; // of the scale
    void Set_Value(std::int64_t New) { Scroll_Bar::Set_Value(Limited(New)); }
    void Set_Range(int At_Min, int At_Max); // moves the value into it, which runs Change
};

struct Option_Group;

// One button of a group. Selecting it clears the others.
struct Option_Button : Visible_Control {
    Option_Button(Stand At, Option_Group& Its_Group, std::string N, std::string Text, std::string Tip);
    bool Value() const;
    void User_Click(Mouse_Button) override;
    void Check(const Control_Value& V) const override;
    void User_Set(const Control_Value& V) override; // true selects it
    Control_Value Current() const override { return Value(); }
    bool Can_Focus() const override { return true; }
    Option_Group& Group;
};

// Buttons of one name and indices from 0, one of which at most is selected. Selecting from code runs Click,
// but only on a change.
struct Option_Group {
    Option_Group(Stand At, const std::string& Name, std::initializer_list<Wording> Choices);
    std::function<void(int)> Click;
    int Selected() const { return Chosen; } // -1 = none
    void Select(int Which);
    void Set_Enabled(bool On);
    std::vector<std::unique_ptr<Option_Button>> Buttons;

  private:
    void Add(Stand At, const std::string& Name, std::string Caption, std::string Tip);
    int Chosen = -1;
};

// Setting the check from code runs nothing.
struct Menu_Item : Visible_Control {
    Menu_Item(Stand At, std::string N, std::string Text, std::string Its_Menu, std::string Tip = {});
    Handler Click;
    Property<bool> Checked{*this, false};
    std::string Menu; // the title of the menu that it stands in
    void User_Click(Mouse_Button) override;
    Control_Value Current() const override { return *Checked; }
};

// A table of texts; rows and columns count from 0. It holds its cells itself or, for a table that is long or
// changes all the time, asks a source for those that are looked at. A row can be chosen: by code and hand
// alike this runs Row_Chosen, also for the row that stands chosen already.
struct Grid : Visible_Control {
    struct Cell {
        std::string Text;
        Ink Colour = Ink::Normal;
        bool operator==(const Cell&) const = default;
    };

    Grid(Stand At, std::string N, std::vector<std::string> Column_Titles, std::string Tip = {});
    std::vector<std::string> Columns;
    Handler Row_Chosen;
    int Rows() const { return Row_Count; }
    void Set_Rows(int Count); // keeps what stays inside; a chosen row that does not is chosen no more
    Cell At(int Row, int Column) const;
    void Set_Cell(int Row, int Column, std::string Text, Ink Colour = Ink::Normal); // not with a source

    using Cell_Source = std::function<Cell(int Row, int Column)>;
    void Set_Source(int Count, Cell_Source Its_Source); // an empty one: the grid holds its cells again
    bool Has_Source() const { return static_cast<bool>(Source); }
    // The source has other cells now, and the chosen row stands elsewhere in it: runs nothing.
    void Source_Moved(int Count, int New_Chosen);

    int Selected_Row() const { return Chosen; } // -1 = none
    // -1 chooses nothing and runs nothing. Outside the table: Run_Time_Error "Invalid property value".
    void Select_Row(int Row);

    void Check(const Control_Value& V) const override;
    void User_Set(const Control_Value& V) override; // the number of a row
    Control_Value Current() const override;
    bool Can_Focus() const override { return true; }

  private:
    std::size_t Place(int Row, int Column) const;
    int Row_Count = 0;
    int Chosen = -1;
    std::vector<Cell> Cells;
    Cell_Source Source;
};

// Ticks every Interval milliseconds; 0 = stopped. Every setting of the interval restarts the phase.
struct Timer : Control {
    Timer(Form& F, std::string N, int I = No_Index);
    ~Timer() override;
    void Set_Interval(double Interval_ms); // to a whole microsecond
    double Interval_ms() const { return static_cast<double>(Entry.Period_us) / 1000.0; }
    double Until_Tick_ms() const; // of no meaning while it is stopped
    Handler Tick;
    Control_Value Current() const override { return Interval_ms(); }

  private:
    Timer_Queue::Entry Entry;
};

// Like controls of one name with indices First to Last.
template <class T, int First, int Last>
struct Control_Array {
    // All alike, with these arguments behind the name.
    template <class... More>
    Control_Array(Stand At, const std::string& Name, const More&... Arguments)
        : Control_Array([&At](int) { return At; }, Name, Arguments...) {}
    // Each where it says: Control_Array<...> chkEnable{[this](int I) { return Stand(framePort[I]); },
    // "chkEnable"}.
    template <std::invocable<int> Where, class... More>
    Control_Array(const Where& Stand_Of, const std::string& Name, const More&... Arguments) {
        for (int I = First; I <= Last; ++I)
            Elements.push_back(std::make_unique<T>(Stand_Of(I).Element(I), Name, Arguments...));
    }
    // Each with its own caption and tool tip.
    Control_Array(Stand At, const std::string& Name, const Wording (&Each)[Last - First + 1]) {
        for (int I = First; I <= Last; ++I)
            Elements.push_back(
                std::make_unique<T>(At.Element(I), Name, Each[I - First].Caption, Each[I - First].Tip));
    }
    T& operator[](int I) const {
        if (I < First || I > Last) throw Run_Time_Error(error_text::Subscript);
        return *Elements[static_cast<std::size_t>(I - First)];
    }
    auto begin() const { return Elements.begin(); }
    auto end() const { return Elements.end(); }

    std::vector<std::unique_ptr<T>> Elements;
};

} // namespace brinewright
