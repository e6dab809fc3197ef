#include "automation/properties.hpp"

#include "platform/desktop.hpp"

#include <nlohmann/json.hpp>

#include <array>
#include <type_traits>
#include <variant>

namespace brinewright {

namespace {

using Maybe = std::optional<Json>;

constexpr std::array Kind_Names{"Button", "Check_Box", "Combo_Box", "Text_Box", "Scroll_Bar", "Option_Button",
                                "Label",  "Frame",     "Menu_Item", "Grid",     "Timer"};
constexpr std::array Ink_Names{"Normal", "Black", "Red", "Green", "Amber"};
constexpr std::array Form_Kind_Names{"Main", "Child", "Dialog", "Tool", "Side"};
constexpr std::array Window_State_Names{"Normal", "Minimised", "Maximised"};

// The kind of a control says its type: each kind is one struct.
template <class T>
constexpr Control_Kind Kind_Of();
template <>
constexpr Control_Kind Kind_Of<Check_Box>() {
    return Control_Kind::Check_Box;
}
template <>
constexpr Control_Kind Kind_Of<Combo_Box>() {
    return Control_Kind::Combo_Box;
}
template <>
constexpr Control_Kind Kind_Of<Text_Box>() {
    return Control_Kind::Text_Box;
}
template <>
constexpr Control_Kind Kind_Of<Scroll_Bar>() {
    return Control_Kind::Scroll_Bar;
}
template <>
constexpr Control_Kind Kind_Of<Option_Button>() {
    return Control_Kind::Option_Button;
}
template <>
constexpr Control_Kind Kind_Of<Menu_Item>() {
    return Control_Kind::Menu_Item;
}
template <>
constexpr Control_Kind Kind_Of<Grid>() {
    return Control_Kind::Grid;
}
template <>
constexpr Control_Kind Kind_Of<Timer>() {
    return Control_Kind::Timer;
}

template <class T>
const T* As(const Control& Of) {
    if constexpr (std::is_same_v<T, Visible_Control>)
        return Of.Kind == Control_Kind::Timer ? nullptr : static_cast<const T*>(&Of);
    else
        return Of.Kind == Kind_Of<T>() ? static_cast<const T*>(&Of) : nullptr;
}

Json To_Json(bool Value) { return Value; }
Json To_Json(int Value) { return Value; }
Json To_Json(double Value) { return Number_Json(Value); }
Json To_Json(const std::string& Value) { return Text_Json(Value); }
Json To_Json(Ink Value) { return Ink_Names.at(static_cast<std::size_t>(Value)); }
template <class T>
Json To_Json(const Property<T>& Value) {
    return To_Json(*Value);
}

// Reads a member or calls a member function of the controls of type T.
template <class T, auto Member>
Maybe Read(const Control& Of) {
    const T* Typed = As<T>(Of);
    if (!Typed) return std::nullopt;
    if constexpr (std::is_member_function_pointer_v<decltype(Member)>)
        return To_Json((Typed->*Member)());
    else
        return To_Json(Typed->*Member);
}

Maybe Read_Text(const Control& Of) {
    if (const auto* Box = As<Text_Box>(Of)) return Text_Json(Box->Text());
    if (const auto* List = As<Combo_Box>(Of)) return Text_Json(List->Text());
    return std::nullopt;
}

Maybe Read_Refusal(const Control& Of) {
    if (const auto* Box = As<Text_Box>(Of)) return Text_Json(*Box->Refusal);
    if (const auto* List = As<Combo_Box>(Of)) return Text_Json(*List->Refusal);
    return std::nullopt;
}

Maybe Read_Value(const Control& Of) {
    if (As<Check_Box>(Of) || As<Option_Button>(Of) || As<Scroll_Bar>(Of)) return Value_Json(Of.Current());
    return std::nullopt;
}

Maybe Read_Items(const Control& Of) {
    const auto* List = As<Combo_Box>(Of);
    if (!List) return std::nullopt;
    Json Texts = Json::array();
    for (const Combo_Box::Item& Entry : List->Items()) Texts.push_back(Text_Json(Entry.Text));
    return Texts;
}

Maybe Read_Columns(const Control& Of) {
    const auto* Table = As<Grid>(Of);
    if (!Table) return std::nullopt;
    Json Titles = Json::array();
    for (const std::string& Title : Table->Columns) Titles.push_back(Text_Json(Title));
    return Titles;
}

Maybe Read_Rows(const Control& Of) {
    const auto* Table = As<Grid>(Of);
    if (!Table) return std::nullopt;
    Json Rows = Json::array();
    for (int Row = 0; Row < Table->Rows(); ++Row) {
        Json Cells = Json::array();
        for (int Column = 0; Column < static_cast<int>(Table->Columns.size()); ++Column)
            Cells.push_back(Text_Json(Table->At(Row, Column).Text));
        Rows.push_back(std::move(Cells));
    }
    return Rows;
}

Maybe Read_Focus(const Control& Of) {
    if (!Of.Can_Focus()) return std::nullopt;
    return Json(Of.Owner.Windows.Focus == &Of);
}

constexpr bool Listed = true;
using Seen = Visible_Control;

constexpr std::array Control_Properties{
    Control_Property{"Enabled", Read<Seen, &Seen::Enabled>, Settable::Never, Listed},
    Control_Property{"Visible", Read<Seen, &Seen::Shown>, Settable::Never, Listed},
    Control_Property{"Caption", Read<Seen, &Seen::Caption>, Settable::Never, Listed},
    Control_Property{"Text", Read_Text, Settable::By_Text, Listed},
    Control_Property{"Refusal", Read_Refusal},
    Control_Property{"Value", Read_Value, Settable::Value, Listed},
    Control_Property{"Checked", Read<Menu_Item, &Menu_Item::Checked>, Settable::Never, Listed},
    Control_Property{"ListIndex", Read<Combo_Box, &Combo_Box::List_Index>, Settable::By_Number, Listed},
    Control_Property{"Items", Read_Items},
    Control_Property{"ItemData", Read<Combo_Box, &Combo_Box::Item_Data>},
    Control_Property{"Min", Read<Scroll_Bar, &Scroll_Bar::Min>, Settable::Never, Listed},
    Control_Property{"Max", Read<Scroll_Bar, &Scroll_Bar::Max>, Settable::Never, Listed},
    Control_Property{"SmallChange", Read<Scroll_Bar, &Scroll_Bar::Small_Change>},
    Control_Property{"LargeChange", Read<Scroll_Bar, &Scroll_Bar::Large_Change>},
    Control_Property{"Interval", Read<Timer, &Timer::Interval_ms>, Settable::Never, Listed},
    Control_Property{"ReadOnly", Read<Text_Box, &Text_Box::Read_Only>},
    Control_Property{"FreeText", Read<Combo_Box, &Combo_Box::Free_Text>},
    Control_Property{"Menu", Read<Menu_Item, &Menu_Item::Menu>},
    Control_Property{"Columns", Read_Columns},
    Control_Property{"Rows", Read_Rows},
    Control_Property{"RowCount", Read<Grid, &Grid::Rows>},
    Control_Property{"Selected", Read<Grid, &Grid::Selected_Row>, Settable::By_Number, Listed},
    Control_Property{"Focus", Read_Focus},
    Control_Property{"ToolTip", Read<Seen, &Seen::Tool_Tip>},
    Control_Property{"ForeColour", Read<Seen, &Seen::Fore_Colour>},
    Control_Property{"Width", Read<Seen, &Seen::Width>},
};

constexpr std::array Form_Properties{
    Form_Property{"Caption", [](const Form& F) { return Text_Json(F.Caption); }},
    Form_Property{"Tag", [](const Form& F) { return Text_Json(F.Tag); }},
    Form_Property{"Left", [](const Form& F) { return Number_Json(F.Left); },
                  [](Form& F, float New) { F.Set_Place(New, F.Top, F.Width, F.Height); }},
    Form_Property{"Top", [](const Form& F) { return Number_Json(F.Top); },
                  [](Form& F, float New) { F.Set_Place(F.Left, New, F.Width, F.Height); }},
    Form_Property{"Width", [](const Form& F) { return Number_Json(F.Width); },
                  [](Form& F, float New) { F.Set_Place(F.Left, F.Top, New, F.Height); }},
    Form_Property{"Height", [](const Form& F) { return Number_Json(F.Height); },
                  [](Form& F, float New) { F.Set_Place(F.Left, F.Top, F.Width, New); }},
    Form_Property{
        "State",
        [](const Form& F) { return Json(Window_State_Names.at(static_cast<std::size_t>(F.State))); }},
    Form_Property{"Active", [](const Form& F) { return Json(F.Windows.Active_Form == &F); }},
};

} // namespace

const Control_Property* Find_Property(const Control& Of, std::string_view Name) {
    for (const Control_Property& P : Control_Properties)
        if (P.Name == Name) return P.Read(Of) ? &P : nullptr;
    return nullptr;
}

const Form_Property* Find_Property(std::string_view Name) {
    for (const Form_Property& P : Form_Properties)
        if (P.Name == Name) return &P;
    return nullptr;
}

Json Default_Json(const Control& Of) {
    const Control_Value Held = Of.Current();
    const auto* Visible = As<Visible_Control>(Of);
    if (std::holds_alternative<std::monostate>(Held) && Visible) return Text_Json(*Visible->Caption);
    return Value_Json(Held);
}

Json Control_Json(const Control& Of, bool All) {
    Json Row{{"path", To_UTF8(Of.Owner.Path() + "." + Of.Path())},
             {"kind", Kind_Names.at(static_cast<std::size_t>(Of.Kind))}};
    for (const Control_Property& P : Control_Properties) {
        if (!All && !P.In_List) continue;
        if (Maybe Value = P.Read(Of)) Row[P.Name] = std::move(*Value);
    }
    return Row;
}

Json Form_Json(const Form& Of) {
    Json Row{{"path", To_UTF8(Of.Path())}, {"kind", Form_Kind_Names.at(static_cast<std::size_t>(Of.Kind))}};
    for (const Form_Property& P : Form_Properties) Row[P.Name] = P.Read(Of);
    return Row;
}

} // namespace brinewright
