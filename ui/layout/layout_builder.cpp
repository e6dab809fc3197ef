// Rows, columns, grids and boxes: how the parts of a window stand in each other.

#include "ui/layout/layout_builder.hpp"

#include "shell/state/windows.hpp"
#include "ui/binder/roving_stop.hpp"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QSplitter>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace brinewright {

namespace {

Qt::Alignment Alignment_Of(const layout::Manner& How) {
    constexpr Qt::AlignmentFlag Across[] = {Qt::AlignmentFlag{}, Qt::AlignLeft, Qt::AlignHCenter,
                                            Qt::AlignRight};
    constexpr Qt::AlignmentFlag Upright[] = {Qt::AlignmentFlag{}, Qt::AlignTop, Qt::AlignVCenter,
                                             Qt::AlignBottom};
    return Across[static_cast<std::size_t>(How.Across)] | Upright[static_cast<std::size_t>(How.Upright)];
}

int Pixels(const layout::Measure& Size, const QWidget& W) {
    const int Text_Width = Size.Text.empty() ? 0 : W.fontMetrics().horizontalAdvance(To_Screen(Size.Text));
    return Text_Width + Size.Pixels;
}

void Give_Sizes(const layout::Manner& How, QWidget& W) {
    if (How.Least_Width) W.setMinimumWidth(Pixels(*How.Least_Width, W));
    if (How.Width) W.setFixedWidth(Pixels(*How.Width, W));
    if (How.Least_Height > 0) W.setMinimumHeight(How.Least_Height);
    if (How.Keeps_Room) {
        QSizePolicy Kept = W.sizePolicy();
        Kept.setRetainSizeWhenHidden(true);
        W.setSizePolicy(Kept);
    }
}

// What changes with every look at the form.
void Follow(Form_View& View, const layout::Manner& How, QWidget* W) {
    if (How.Shown) View.When_Shown([W, Shown = How.Shown] { W->setVisible(Shown()); });
    if (How.Lit) View.When_Shown([W, Lit = How.Lit] { Show_Role(W, "state", Lit()); });
}

void Add(QBoxLayout& Line, Form_View& View, const Layout& Node) {
    if (std::holds_alternative<layout::Room>(Node.What)) return Line.addStretch(Node.How.Share);
    const Built Part = Make(View, Node);
    if (Part.Widget)
        Line.addWidget(Part.Widget, Node.How.Share, Alignment_Of(Node.How));
    else
        Line.addLayout(Part.Inside, Node.How.Share);
}

void Add(QGridLayout& Grid, const Built& Part, const layout::Spot& Cell, Qt::Alignment Side) {
    if (Part.Widget)
        Grid.addWidget(Part.Widget, Cell.Row, Cell.Column, Cell.Rows, Cell.Columns, Side);
    else
        Grid.addLayout(Part.Inside, Cell.Row, Cell.Column, Cell.Rows, Cell.Columns, Side);
}

// What is not to be seen leaves its place to what comes there.
void Follow_Place(Form_View& View, QGridLayout* Grid, QWidget* W, const Layout& Node) {
    View.When_Shown([Grid, W, Part = Node.Part, Moves_To = Node.How.Moves_To] {
        Grid->removeWidget(W);
        if (Part->Shown()) Add(*Grid, W, Moves_To(), {});
    });
}

// Of a grid line by line, of everything else as it stands there.
void Order_Stops(const Form_View& View, const Layout& Tree, QWidget*& Before) {
    QWidget* const W = Tree.Part ? View.Widget_Of(*Tree.Part) : nullptr;
    if (W && W->focusPolicy() != Qt::NoFocus) {
        if (Before) QWidget::setTabOrder(Before, W);
        Before = W;
    }
    std::vector<const Layout*> Parts;
    for (const Layout& Part : Tree.Inside) Parts.push_back(&Part);
    if (std::holds_alternative<layout::Raster>(Tree.What))
        std::stable_sort(Parts.begin(), Parts.end(), [](const Layout* A, const Layout* B) {
            const layout::Spot &First = A->How.Cell, &Second = B->How.Cell;
            return std::pair(First.Row, First.Column) < std::pair(Second.Row, Second.Column);
        });
    for (const Layout* Part : Parts) Order_Stops(View, *Part, Before);
}

void Make_One_Stop(Form_View& View, const Layout& Tree) {
    std::vector<QWidget*> Boxes;
    For_Each_Placed(Tree, [&](const Visible_Control& C) {
        if (C.Kind == Control_Kind::Check_Box) Boxes.push_back(View.Widget_Of(C));
    });
    auto* Stop = new Roving_Stop(std::move(Boxes), &View);
    View.When_Shown([Stop] { Stop->Follow(); });
}

// A group box takes its margins from the style when it is made, before it says what the style is to know.
void Make_Bare(QGroupBox* Box) {
    Box->setProperty("bare", true);
    Box->ensurePolished();
    QEvent Named(QEvent::StyleChange);
    QCoreApplication::sendEvent(Box, &Named);
}

} // namespace

Built Make(Form_View& View, const Layout& Node, const layout::Line& Kind) {
    auto* New = new QBoxLayout(Kind.Lies ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    if (Kind.Spacing != rhythm::Toolkit) New->setSpacing(Kind.Spacing);
    if (const auto& M = Kind.Margins) New->setContentsMargins((*M)[0], (*M)[1], (*M)[2], (*M)[3]);
    for (const Layout& Part : Node.Inside) Add(*New, View, Part);
    return New;
}

Built Make(Form_View& View, const Layout& Node, const layout::Raster& Kind) {
    auto* New = new QGridLayout;
    if (Kind.Across != rhythm::Toolkit) New->setHorizontalSpacing(Kind.Across);
    if (Kind.Down != rhythm::Toolkit) New->setVerticalSpacing(Kind.Down);
    for (const Layout& Part : Node.Inside) {
        const Built Cell = Make(View, Part);
        if (Part.How.Moves_To)
            Follow_Place(View, New, Cell.Widget, Part);
        else
            Add(*New, Cell, Part.How.Cell, Alignment_Of(Part.How));
    }
    if (Kind.Wide_Column >= 0) New->setColumnStretch(Kind.Wide_Column, 1);
    if (Kind.High_Row >= 0) New->setRowStretch(Kind.High_Row, 1);
    for (const int Gap : Kind.Gap_Columns) New->setColumnMinimumWidth(Gap, rhythm::Gap);
    return New;
}

// Boxes belong to the view from the start: the keyboard goes through the controls in the order in which they
// are made, and would lose it if a box took them out of the view and back.
Built Make(Form_View& View, const Layout& Node, const layout::Framed& Kind) {
    const auto Its_Box = [&] {
        return Node.Part ? View.Make(static_cast<Frame&>(*Node.Part))
                         : new QGroupBox(To_Screen(Kind.Title), &View);
    };
    // What is made first is shown first, and a box that is shown measures what it holds. So a box is made
    // after its lists, which have their entries then; the bare one before them, which gives them their usual
    // width.
    QGroupBox* Box = Kind.Bare ? Its_Box() : nullptr;
    if (Kind.Bare) Make_Bare(Box);
    const Built Contents = Make(View, Node.Inside.at(0));
    if (!Box) Box = Its_Box();
    if (Contents.Widget) (new QVBoxLayout(Box))->addWidget(Contents.Widget);
    if (Contents.Inside) Box->setLayout(Contents.Inside);
    const int Side = Kind.Side_Margin;
    Box->layout()->setContentsMargins(Side, Kind.Bare ? 0 : rhythm::Gap, Side, Side);
    return Box;
}

Built Make(Form_View& View, const Layout& Node, const layout::Split&) {
    auto* New = new QSplitter(Qt::Vertical, &View);
    New->setChildrenCollapsible(false);
    for (const Layout& Part : Node.Inside) {
        const Built Half = Make(View, Part);
        QWidget* W = Half.Widget;
        if (!W) {
            W = new QWidget(New); // within the window already, for the order of the keyboard
            W->setLayout(Half.Inside);
            Half.Inside->setContentsMargins(0, 0, 0, 0);
        }
        New->addWidget(W);
        New->setStretchFactor(New->count() - 1, Part.How.Share);
    }
    return New;
}

Built Make(Form_View&, const Layout&, const layout::Room&) {
    throw std::logic_error("room that is left is for rows and columns only");
}

Built Make(Form_View& View, const Layout& Node) {
    const Built New = std::visit([&](const auto& Kind) { return Make(View, Node, Kind); }, Node.What);
    if (Node.How.One_Stop) Make_One_Stop(View, Node);
    if (New.Main) {
        Give_Sizes(Node.How, *New.Main);
        Follow(View, Node.How, New.Main);
    }
    return New;
}

void Build_Layout(Form_View& View, const Layout& Whole) {
    View.setLayout(Make(View, Whole).Inside);
    QWidget* Before = nullptr;
    Order_Stops(View, Whole, Before);
    Give_Sizes(Whole.How, View);
}

void Lay_Out(Form_View& View, Form& Shown) {
    const Window_Class* Class = Find_Class(View.Sim, Shown.Name);
    if (!Class || !Class->Lay_Out) throw std::logic_error("no layout for " + Shown.Name);
    Build_Layout(View, Class->Lay_Out(View.Sim, Shown));
    View.Refresh();
}

bool Has_Small_Form(const Form_View& View, const Form& Shown) {
    const Window_Class* Class = Find_Class(View.Sim, Shown.Name);
    return Class && Class->Lay_Out_Small;
}

void Lay_Out_Small(Form_View& View, Form& Shown) {
    Build_Layout(View, Find_Class(View.Sim, Shown.Name)->Lay_Out_Small(View.Sim, Shown));
    // The name of a control is the name of its widget in the whole window.
    for (Control* C : Shown.Controls)
        if (QWidget* W = View.Widget_Of(*C)) W->setObjectName("small " + W->objectName());
}

} // namespace brinewright
