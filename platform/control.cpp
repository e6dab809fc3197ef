#include "platform/control.hpp"

#include "platform/desktop.hpp"
#include "platform/form.hpp"

namespace brinewright {

Control::Control(Form& Owner_Form, Control_Kind Kind_Of_Control, std::string Control_Name, int Element)
    : Owner(Owner_Form), Kind(Kind_Of_Control), Name(std::move(Control_Name)), Index(Element) {
    Owner.Controls.push_back(this);
}

std::string Control::Path() const {
    return Index == No_Index ? Name : Name + "(" + std::to_string(Index) + ")";
}

void Control::Touch() {
    Revision = ++Owner.Windows.Revision;
    Owner.Revision = Revision;
}

} // namespace brinewright
