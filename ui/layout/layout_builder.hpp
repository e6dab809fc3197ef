#pragma once

#include "shell/kit/layout.hpp"
#include "ui/binder/form_view.hpp"

#include <QLayout>

namespace brinewright {

// Gives View its widgets and their places, by the layout of its window's class. A window without one is a
// fault that a test finds.
void Lay_Out(Form_View& View, Form& Shown);

// The same for its small form.
bool Has_Small_Form(const Form_View& View, const Form& Shown);
void Lay_Out_Small(Form_View& View, Form& Shown);

// Turns a layout into the widgets of a view and their places.
void Build_Layout(Form_View& View, const Layout& Whole);

// What became of a node: a widget, or a layout with what stands in it. Main is the widget that sizes and the
// like are meant for.
struct Built {
    Built(QWidget* W) : Widget(W), Main(W) {}
    Built(QLayout* L, QWidget* Its_Main = nullptr) : Inside(L), Main(Its_Main) {}
    QWidget* Widget = nullptr;
    QLayout* Inside = nullptr;
    QWidget* Main = nullptr;
};

// One for each kind of node.
Built Make(Form_View& View, const Layout& Node, const layout::Control& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Line& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Raster& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Framed& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Split& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Room& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Words& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Ticker& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Pane& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Marked& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Listing& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Key_Catcher& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Scaled& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Label_Scale& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Countdown& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Instrument& Kind);
Built Make(Form_View& View, const Layout& Node, const layout::Progress& Kind);

// Makes a node and gives it the manner in which it stands.
Built Make(Form_View& View, const Layout& Node);

// The name by which the style knows a role.
const char* Style_Name(Role As);

// Gives W a property that the style knows, "role" or "state".
void Show_Role(QWidget* W, const char* Property, Role As);

} // namespace brinewright
