#include "platform/form.hpp"

#include "platform/desktop.hpp"

#include <charconv>

namespace brinewright {

Form::Form(Desktop& Its_Desktop, std::string Class_Name, int Its_Instance, Form_Kind Its_Kind)
    : Windows(Its_Desktop), Name(std::move(Class_Name)), Instance(Its_Instance), Kind(Its_Kind) {}

std::string Form::Path() const { return Instance == 0 ? Name : Name + "[" + std::to_string(Instance) + "]"; }

Control* Form::Find(std::string_view Control_Path) const {
    std::string_view Wanted_Name = Control_Path;
    int Wanted_Index = Control::No_Index;
    if (const auto Open = Control_Path.find('('); Open != std::string_view::npos) {
        Wanted_Name = Control_Path.substr(0, Open);
        const char* First = Control_Path.data() + Open + 1;
        const char* Last = Control_Path.data() + Control_Path.size();
        const auto [End, Failure] = std::from_chars(First, Last, Wanted_Index);
        if (Failure != std::errc() || End + 1 != Last || *End != ')') return nullptr;
    }
    for (Control* C : Controls)
        if (C->Index == Wanted_Index && C->Name == Wanted_Name) return C;
    return nullptr;
}

void Form::Set_Caption(std::string New) {
    Caption = std::move(New);
    Revision = ++Windows.Revision;
}

void Form::Set_Place(float New_Left, float New_Top, float New_Width, float New_Height) {
    Left = New_Left;
    Top = New_Top;
    Unplaced = false;
    Resize(New_Width, New_Height);
}

void Form::Set_State(Window_State New) {
    State = New;
    Revision = ++Windows.Revision;
}

void Form::Set_Small(bool New) {
    Small = New;
    Revision = ++Windows.Revision;
}

void Form::Resize(float New_Width, float New_Height) {
    Width = New_Width;
    Height = New_Height;
    Revision = ++Windows.Revision;
    if (On_Resize) On_Resize();
}

} // namespace brinewright
