// The controls of a window, and texts that are none.

#include "platform/marked_text.hpp"
#include "ui/binder/verdict_highlighter.hpp"
#include "ui/layout/layout_builder.hpp"

#include <QFontMetrics>
#include <QGraphicsOpacityEffect>
#include <QHeaderView>
#include <QStyle>

#include <stdexcept>

namespace brinewright {

namespace {

constexpr int Cell_Margins = 18;

// By the kind of the control, which says its type.
QWidget* Widget_Of(Form_View& View, Visible_Control& C, const char* Style_Role) {
    switch (C.Kind) {
    case Control_Kind::Button: return View.Make(static_cast<Button&>(C));
    case Control_Kind::Check_Box: return View.Make(static_cast<Check_Box&>(C));
    case Control_Kind::Combo_Box: return View.Make(static_cast<Combo_Box&>(C));
    case Control_Kind::Text_Box: return View.Make(static_cast<Text_Box&>(C));
    case Control_Kind::Scroll_Bar: return View.Make(static_cast<Scroll_Bar&>(C), Qt::Horizontal);
    case Control_Kind::Option_Button: return View.Make(static_cast<Option_Button&>(C));
    case Control_Kind::Label: return View.Make(static_cast<Label&>(C), Style_Role);
    case Control_Kind::Grid: return View.Make(static_cast<Grid&>(C));
    case Control_Kind::Frame:
    case Control_Kind::Menu_Item:
    case Control_Kind::Timer: break;
    }
    throw std::logic_error(C.Path() + " has no place of its own in a window");
}

QLabel* Plain_Label() {
    auto* New = new QLabel;
    New->setTextFormat(Qt::PlainText);
    return New;
}

} // namespace

const char* Style_Name(Role As) {
    constexpr const char* Names[] = {"", "dim", "readout", "good", "warn", "bad"};
    return Names[static_cast<std::size_t>(As)];
}

void Show_Role(QWidget* W, const char* Property, Role As) {
    const auto Name = QLatin1String(Style_Name(As));
    if (W->property(Property).toString() == Name) return;
    W->setProperty(Property, QString(Name));
    W->style()->unpolish(W);
    W->style()->polish(W);
}

Built Make(Form_View& View, const Layout& Node, const layout::Control&) {
    QWidget* New = Widget_Of(View, *Node.Part, Style_Name(Node.How.As));
    if (Node.How.Figure_Pixels > 0) New->setFont(Readout_Font(Node.How.Figure_Pixels));
    if (auto* Text = qobject_cast<QLabel*>(New)) {
        if (Node.How.Flush_Right) Text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (Node.How.Wraps) Text->setWordWrap(true);
    }
    return New;
}

Built Make(Form_View& View, const Layout&, const layout::Words& Kind) {
    QLabel* New = Plain_Label();
    New->setText(To_Screen(Kind.Now.Text));
    New->setProperty("role", QString::fromLatin1(Style_Name(Kind.Now.As)));
    if (Kind.Read) {
        New->setMinimumWidth(1); // one that grows is cut and does not widen the window
        View.When_Shown([New, Read = Kind.Read] {
            const layout::Said Now = Read();
            New->setText(To_Screen(Now.Text));
            New->setToolTip(New->text());
            Show_Role(New, "role", Now.As);
        });
    }
    return New;
}

Built Make(Form_View& View, const Layout&, const layout::Ticker& Kind) {
    QLabel* New = Plain_Label();
    New->setObjectName(QStringLiteral("ticker"));
    New->setAttribute(Qt::WA_OpaquePaintEvent); // its style fills it
    New->setFont(Sentence_Font());
    New->setTextInteractionFlags(Qt::TextSelectableByMouse);
    New->setFocusPolicy(Qt::NoFocus); // it is selected in, and the keyboard stays with a control
    New->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    New->setToolTip(QStringLiteral("The last sentence of this sensor, as it left"));
    View.When_Shown([New, Read = Kind.Read] { New->setText(To_Screen(Read()).simplified()); });
    return New;
}

// Half as wide at least as the longest sentence of 82 characters, in the fixed-width face.
Built Make(Form_View& View, const Layout& Node, const layout::Pane& Kind) {
    QPlainTextEdit* New = View.Make_Pane(static_cast<Text_Box&>(*Node.Part));
    new Verdict_Highlighter(New->document(), View.Colours);
    const QFontMetrics Face(Sentence_Font());
    New->setMinimumWidth(Face.horizontalAdvance(QString(84, QLatin1Char('0'))) / 2);
    New->setMinimumHeight(Face.lineSpacing() * Kind.Lines + 12);
    return New;
}

Built Make(Form_View& View, const Layout& Node, const layout::Marked& Kind) {
    QPlainTextEdit* New = View.Make(static_cast<Marked_Text&>(*Node.Part));
    New->setFixedHeight(QFontMetrics(Sentence_Font()).lineSpacing() * Kind.Lines + 12);
    return New;
}

Built Make(Form_View& View, const Layout& Node, const layout::Listing& Kind) {
    QTableView* New = View.Make(static_cast<Grid&>(*Node.Part));
    if (Node.How.Sentence_Face) New->setFont(Sentence_Font());
    if (Kind.Widest.empty()) {
        New->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        New->verticalHeader()->setDefaultSectionSize(20);
        New->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        return New;
    }
    int Column_Number = 0;
    for (const std::string& Text : Kind.Widest)
        New->setColumnWidth(Column_Number++,
                            New->fontMetrics().horizontalAdvance(To_Screen(Text)) + Cell_Margins);
    New->horizontalHeader()->setStretchLastSection(true);
    New->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return New;
}

// What has no size cannot have the focus, so it is one pixel.
Built Make(Form_View& View, const Layout& Node, const layout::Key_Catcher&) {
    QLineEdit* New = View.Make(static_cast<Text_Box&>(*Node.Part));
    New->setFixedSize(1, 1);
    auto* Unseen = new QGraphicsOpacityEffect(New);
    Unseen->setOpacity(0);
    New->setGraphicsEffect(Unseen);
    return New;
}

} // namespace brinewright
