#include "ui/layouts.hpp"

#include "shell/state/windows.hpp"
#include "ui/layout_builder.hpp"

#include <stdexcept>

namespace brinewright {

void Lay_Out(Form_View& View, Form& Shown) {
    const Window_Class* Class = Find_Class(View.Sim, Shown.Name);
    if (!Class || !Class->Lay_Out) throw std::logic_error("no layout for " + Shown.Name);
    Build_Layout(View, Class->Lay_Out(View.Sim, Shown));
    View.Refresh();
}

} // namespace brinewright
