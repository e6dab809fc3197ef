#include "platform/controls.hpp"

#include "platform/desktop.hpp"
#include "platform/trimmed.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace brinewright {

namespace {

void Run(const Handler& H) {
    if (H) H();
}

[[noreturn]] void Refuse_Value() { throw Run_Time_Error(error_text::Property_Value); }

bool As_Bool(const Control_Value& V) {
    if (const bool* B = std::get_if<bool>(&V)) return *B;
    if (const auto* I = std::get_if<std::int64_t>(&V); I && (*I == 0 || *I == 1)) return *I == 1;
    throw Value_Refusal("true or false is wanted");
}

double As_Number(const Control_Value& V) {
    double Number = std::numeric_limits<double>::quiet_NaN();
    if (const auto* I = std::get_if<std::int64_t>(&V)) Number = static_cast<double>(*I);
    if (const double* D = std::get_if<double>(&V)) Number = *D;
    if (!std::isfinite(Number)) throw Value_Refusal("A number is wanted");
    return Number;
}

const std::string& As_Text(const Control_Value& V) {
    const std::string* Text = std::get_if<std::string>(&V);
    if (!Text) throw Value_Refusal("A text is wanted");
    return *Text;
}

} // namespace

Stand::Stand(const Frame& Its_Frame) : Owner(Its_Frame.Owner), In(&Its_Frame) {}
Stand Stand::Element(int I) const {
    Stand One = *this;
    One.Index = I;
    return One;
}

Visible_Control::Visible_Control(Stand At, Control_Kind K, std::string N, std::string Text, std::string Tip)
    : Control(At.Owner, K, std::move(N), At.Index), In(At.In) {
    Caption = std::move(Text);
    Tool_Tip = std::move(Tip);
}
bool Visible_Control::Shown() const { return *Visible && (!In || In->Shown()); }

Button::Button(Stand At, std::string N, std::string Text, std::string Tip)
    : Visible_Control(At, Control_Kind::Button, std::move(N), std::move(Text), std::move(Tip)) {}
void Button::User_Click(Mouse_Button) { Run(Click); }

Label::Label(Stand At, std::string N, std::string Text, std::string Tip)
    : Visible_Control(At, Control_Kind::Label, std::move(N), std::move(Text), std::move(Tip)) {}
void Label::User_Click(Mouse_Button B) {
    if (Mouse_Down) Mouse_Down(B);
}

Frame::Frame(Stand At, std::string N, std::string Text, std::string Tip)
    : Visible_Control(At, Control_Kind::Frame, std::move(N), std::move(Text), std::move(Tip)) {}

Check_Box::Check_Box(Stand At, std::string N, std::string Text, std::string Tip)
    : Visible_Control(At, Control_Kind::Check_Box, std::move(N), std::move(Text), std::move(Tip)) {}
void Check_Box::Set_Value(bool New) {
    if (New == Checked) return;
    Checked = New;
    Touch();
    Run(Click);
}
void Check_Box::Check(const Control_Value& V) const { As_Bool(V); }
void Check_Box::User_Set(const Control_Value& V) { Set_Value(As_Bool(V)); }

Combo_Box::Combo_Box(Stand At, std::string N, std::string Text, std::string Tip)
    : Typed_Control(At, Control_Kind::Combo_Box, std::move(N), std::move(Text), std::move(Tip)) {}

std::int32_t Combo_Box::Item_Data() const {
    return Chosen < 0 ? 0 : Entries[static_cast<std::size_t>(Chosen)].Data;
}
void Combo_Box::Add_Item(std::string Text, std::int32_t Data) {
    Entries.push_back({std::move(Text), Data});
    Touch();
}
void Combo_Box::Set_Item(int Which, std::string Text) {
    if (Which < 0 || Which >= static_cast<int>(Entries.size())) Refuse_Value();
    Entries[static_cast<std::size_t>(Which)].Text = std::move(Text);
    if (Which == Chosen) Content = Entries[static_cast<std::size_t>(Which)].Text;
    Touch();
}
void Combo_Box::Clear() {
    Entries.clear();
    Chosen = -1;
    Content.clear();
    Touch();
}
void Combo_Box::Set_List_Index(int New) {
    if (New < -1 || New >= static_cast<int>(Entries.size())) Refuse_Value();
    Chosen = New;
    Content = New < 0 ? std::string() : Entries[static_cast<std::size_t>(New)].Text;
    Touch();
    if (New >= 0) Run(Click);
}
void Combo_Box::Choose_Data(std::int32_t Data) {
    const auto Found =
        std::find_if(Entries.begin(), Entries.end(), [&](const Item& I) { return I.Data == Data; });
    Set_List_Index(Found == Entries.end() ? -1 : static_cast<int>(Found - Entries.begin()));
}
void Combo_Box::Set_Text(std::string New) {
    if (!Free_Text) Refuse_Value();
    if (Must_Wait())
        Waiting = std::move(New);
    else
        Store_Text(std::move(New));
}
void Combo_Box::Store_Text(std::string New) {
    if (New == Content) return;
    Content = std::move(New);
    Chosen = -1;
    Touch();
    Run(Change);
}
void Combo_Box::Gain_Focus() {
    Chosen_Before = Chosen;
    Typed_Control::Gain_Focus();
}
void Combo_Box::Confirm() {
    if (Half_Typed() && Chosen < 0) Run(Change);
}
// What was typed has counted already, so that what stood before has to count again.
void Combo_Box::Put_Back() {
    if (Chosen_Before >= 0 && Chosen_Before < static_cast<int>(Entries.size()))
        Set_List_Index(Chosen_Before);
    else
        Store_Text(Before);
}
// As it stands, or but for the blanks around it; -1 for none.
int Combo_Box::Find_Entry(const std::string& Wanted) const {
    auto Found =
        std::find_if(Entries.begin(), Entries.end(), [&](const Item& I) { return I.Text == Wanted; });
    if (Found == Entries.end())
        Found = std::find_if(Entries.begin(), Entries.end(),
                             [&](const Item& I) { return Trimmed(I.Text) == Trimmed(Wanted); });
    return Found == Entries.end() ? -1 : static_cast<int>(Found - Entries.begin());
}
void Combo_Box::Check(const Control_Value& V) const {
    if (const auto* Number = std::get_if<std::int64_t>(&V)) {
        const auto Count = static_cast<std::int64_t>(Entries.size());
        if (*Number >= 0 && *Number < Count) return;
        throw Value_Refusal("The list has " + std::to_string(Count) + " entries, the first is number 0");
    }
    const auto* Text = std::get_if<std::string>(&V);
    if (!Text) throw Value_Refusal("The number or the text of an entry is wanted");
    if (!Free_Text && Find_Entry(*Text) < 0) throw Value_Refusal("The list has no such entry");
}
void Combo_Box::User_Set(const Control_Value& V) {
    Check(V);
    const auto* Number = std::get_if<std::int64_t>(&V);
    const int Entry = Number ? static_cast<int>(*Number) : Find_Entry(std::get<std::string>(V));
    if (Entry < 0) return User_Type(std::get<std::string>(V));
    Note_Typing(false);
    Set_List_Index(Entry);
}
void Combo_Box::User_Type(std::string Typed) {
    Note_Typing();
    Store_Text(std::move(Typed));
}

Text_Box::Text_Box(Stand At, std::string N, std::string Text, std::string Tip)
    : Typed_Control(At, Control_Kind::Text_Box, std::move(N), std::move(Text), std::move(Tip)) {}
void Text_Box::Set_Text(std::string New) {
    if (Must_Wait() && !Read_Only)
        Waiting = std::move(New);
    else
        Store_Text(std::move(New));
}
void Text_Box::Put_Back() { Store_Text(Waiting.value_or(Before)); }
void Text_Box::Store_Text(std::string New) {
    if (New == Content) return;
    Content = std::move(New);
    Touch();
    Run(Change);
}
void Text_Box::Append_Text(std::string_view More) {
    if (More.empty()) return;
    Content += More;
    Touch();
    Run(Change);
}
void Text_Box::Check(const Control_Value& V) const {
    if (Read_Only) throw User_Refusal("This text is read only");
    As_Text(V);
}
void Text_Box::User_Set(const Control_Value& V) {
    Check(V);
    Note_Typing();
    Store_Text(As_Text(V));
}

Scroll_Bar::Scroll_Bar(Stand At, std::string N, int At_Min, int At_Max, int Large, std::string Tip)
    : Visible_Control(At, Control_Kind::Scroll_Bar, std::move(N), {}, std::move(Tip)), Min(*this, At_Min),
      Max(*this, At_Max), Large_Change(Large),
      Position(std::clamp(0, std::min(At_Min, At_Max), std::max(At_Min, At_Max))) {}
void Scroll_Bar::Set_Value(std::int64_t New) {
    if (New < std::min<int>(*Min, *Max) || New > std::max<int>(*Min, *Max)) Refuse_Value();
    if (New == Position) return;
    Position = static_cast<int>(New);
    Touch();
    Run(Change);
}
void Scroll_Bar::Check(const Control_Value& V) const {
    const double Wanted = As_Number(V);
    const int Least = std::min<int>(*Min, *Max), Greatest = std::max<int>(*Min, *Max);
    if (Wanted < Least || Wanted > Greatest)
        throw Value_Refusal("The range is " + std::to_string(Least) + " to " + std::to_string(Greatest));
}
void Scroll_Bar::User_Set(const Control_Value& V) {
    Set_Value(std::llround(std::clamp(As_Number(V), static_cast<double>(std::min<int>(*Min, *Max)),
                                      static_cast<double>(std::max<int>(*Min, *Max)))));
}

std::int64_t Scroll_Bar::Limited(std::int64_t Wanted) const {
    return std::clamp<std::int64_t>(Wanted, std::min<int>(*Min, *Max), std::max<int>(*Min, *Max));
}

Slider::Slider(Stand At, std::string N, int At_Min, int At_Max, int Its_Tick_Step, std::string Tip)
    : Scroll_Bar(At, std::move(N), At_Min, At_Max, 10, std::move(Tip)), Tick_Step(Its_Tick_Step) {}
void Slider::Set_Range(int At_Min, int At_Max) {
    Min = At_Min;
    Max = At_Max;
    Set_Value(Value());
}

Option_Button::Option_Button(Stand At, Option_Group& Its_Group, std::string N, std::string Text,
                             std::string Tip)
    : Visible_Control(At, Control_Kind::Option_Button, std::move(N), std::move(Text), std::move(Tip)),
      Group(Its_Group) {}
bool Option_Button::Value() const { return Group.Selected() == Index; }
void Option_Button::User_Click(Mouse_Button) { Group.Select(Index); }
void Option_Button::Check(const Control_Value& V) const {
    const bool* Truth = std::get_if<bool>(&V);
    if (!Truth || !*Truth)
        throw Value_Refusal("Only true is possible: select another button of the group instead");
}
void Option_Button::User_Set(const Control_Value& V) {
    Check(V);
    Group.Select(Index);
}

Option_Group::Option_Group(Stand At, const std::string& Name, std::initializer_list<Wording> Choices) {
    for (const Wording& Choice : Choices) Add(At, Name, Choice.Caption, Choice.Tip);
}
void Option_Group::Add(Stand At, const std::string& Name, std::string Caption, std::string Tip) {
    const int Index = static_cast<int>(Buttons.size());
    Buttons.push_back(
        std::make_unique<Option_Button>(At.Element(Index), *this, Name, std::move(Caption), std::move(Tip)));
}
void Option_Group::Select(int Which) {
    if (Which < 0 || Which >= static_cast<int>(Buttons.size())) Refuse_Value();
    if (Which == Chosen) return;
    Chosen = Which;
    for (const auto& B : Buttons) B->Touch();
    if (Click) Click(Which);
}
void Option_Group::Set_Enabled(bool On) {
    for (const auto& B : Buttons) B->Enabled = On;
}

Menu_Item::Menu_Item(Stand At, std::string N, std::string Text, std::string Its_Menu, std::string Tip)
    : Visible_Control(At, Control_Kind::Menu_Item, std::move(N), std::move(Text), std::move(Tip)),
      Menu(std::move(Its_Menu)) {}
void Menu_Item::User_Click(Mouse_Button) { Run(Click); }

Grid::Grid(Stand At, std::string N, std::vector<std::string> Column_Titles, std::string Tip)
    : Visible_Control(At, Control_Kind::Grid, std::move(N), {}, std::move(Tip)),
      Columns(std::move(Column_Titles)) {}
void Grid::Set_Rows(int Count) {
    if (Count < 0) Refuse_Value();
    if (Count == Row_Count) return;
    Row_Count = Count;
    if (Chosen >= Count) Chosen = -1;
    if (!Source) Cells.resize(static_cast<std::size_t>(Count) * Columns.size());
    Touch();
}
std::size_t Grid::Place(int Row, int Column) const {
    if (Row < 0 || Row >= Row_Count || Column < 0 || Column >= static_cast<int>(Columns.size()))
        throw Run_Time_Error(error_text::Subscript);
    return static_cast<std::size_t>(Row) * Columns.size() + static_cast<std::size_t>(Column);
}
Grid::Cell Grid::At(int Row, int Column) const {
    const std::size_t Where = Place(Row, Column);
    return Source ? Source(Row, Column) : Cells[Where];
}
void Grid::Set_Cell(int Row, int Column, std::string Text, Ink Colour) {
    if (Source) Refuse_Value();
    Cell New{std::move(Text), Colour};
    Cell& Old = Cells[Place(Row, Column)];
    if (Old == New) return;
    Old = std::move(New);
    Touch();
}
void Grid::Set_Source(int Count, Cell_Source Its_Source) {
    if (Count < 0) Refuse_Value();
    Source = std::move(Its_Source);
    Row_Count = Count;
    Chosen = -1;
    Cells.clear();
    if (!Source) Cells.resize(static_cast<std::size_t>(Count) * Columns.size());
    Touch();
}
void Grid::Source_Moved(int Count, int New_Chosen, int Gone_At_Head) {
    if (!Source || Count < 0 || New_Chosen < -1 || New_Chosen >= Count || Gone_At_Head < 0) Refuse_Value();
    Row_Count = Count;
    Gone += static_cast<std::uint64_t>(Gone_At_Head);
    Chosen = New_Chosen;
    Touch();
}
void Grid::Select_Row(int Row) {
    if (Row < -1 || Row >= Row_Count) Refuse_Value();
    Chosen = Row;
    ++Choice_Count;
    Touch();
    if (Row >= 0) Run(Row_Chosen);
}
void Grid::Check(const Control_Value& V) const {
    const auto* Row = std::get_if<std::int64_t>(&V);
    if (!Row) throw Value_Refusal("The number of a row is wanted");
    if (*Row < 0 || *Row >= Row_Count)
        throw Value_Refusal("The table has " + std::to_string(Row_Count) + " rows, the first is number 0");
}
void Grid::User_Set(const Control_Value& V) {
    Check(V);
    Select_Row(static_cast<int>(std::get<std::int64_t>(V)));
}
Control_Value Grid::Current() const {
    std::string All;
    for (int Row = 0; Row < Row_Count; ++Row) {
        for (int Column = 0; Column < static_cast<int>(Columns.size()); ++Column) {
            if (Column > 0) All += '\t';
            All += At(Row, Column).Text;
        }
        All += '\n';
    }
    return All;
}

Timer::Timer(Form& F, std::string N, int I) : Control(F, Control_Kind::Timer, std::move(N), I) {
    Entry.Tick = [this] { Run(Tick); };
}
double Timer::Until_Tick_ms() const {
    return static_cast<double>(Entry.Due_us - Owner.Windows.Timers.Time.Wide_us()) / 1000.0;
}
Timer::~Timer() { Owner.Windows.Timers.Stop(Entry); }
void Timer::Set_Interval(double Interval_ms) {
    constexpr double Longest_ms = 1e12; // beyond any use, and far from overflow in microseconds
    const double Kept_ms = std::isfinite(Interval_ms) ? std::clamp(Interval_ms, 0.0, Longest_ms) : 0.0;
    Owner.Windows.Timers.Start(Entry, std::llround(Kept_ms * 1000.0));
    Touch();
}

} // namespace brinewright
