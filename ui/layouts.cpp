#include "ui/layouts.hpp"

#include "shell/layouts.hpp"
#include "ui/layout_builder.hpp"

#include <stdexcept>

namespace brinewright {

void Lay_Out(Form_View& View, Form& Shown) {
    const Layout_Function Its_Layout = Find_Layout(Shown.Name);
    if (!Its_Layout) throw std::logic_error("no layout for " + Shown.Name);
    Build_Layout(View, Its_Layout(View.Sim, Shown));
    View.Refresh();
}

} // namespace brinewright
