#include "ui/binder/form_view.hpp"

#include "ui/binder/callout.hpp"
#include "ui/binder/mnemonic.hpp"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace brinewright {

QString To_Screen(const std::string& Text) {
    return QString::fromLatin1(Text.data(), static_cast<qsizetype>(Text.size()));
}

std::string From_Screen(const QString& Text) {
    const QByteArray Bytes = Text.toLatin1();
    return {Bytes.constData(), static_cast<std::size_t>(Bytes.size())};
}

namespace {

// A box for a value, not for prose: it asks for less room than the toolkit's own.
class Value_Edit : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;
    QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(QStringLiteral("00.00000")) + 14,
                QLineEdit::sizeHint().height()};
    }
};

} // namespace

Form_View::Form_View(Simulator& Its_Simulator, const std::shared_ptr<Form>& Shown, const Theme& Its_Colours)
    : Sim(Its_Simulator), Colours(Its_Colours), Source(Shown) {
    setObjectName(QStringLiteral("form"));
    // Windows lie upon each other: what is covered is not painted.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Form_View::Act(const std::function<void(Desktop&)>& Work) {
    const auto F = Source.lock();
    if (!F || !F->Loaded) return;
    Desktop& Windows = F->Windows;
    Windows.Event([&] {
        try {
            Work(Windows);
        } catch (const User_Refusal&) {
            QApplication::beep();
        }
    });
    Follow_Focus(Windows);
    Q_EMIT Acted();
}

// The model owns the focus: a handler may have sent it back to the box that the user wanted to leave.
void Form_View::Follow_Focus(const Desktop& Windows) {
    if (!Windows.Focus) return;
    QWidget* Wanted = Widget_Of(*Windows.Focus);
    if (!Wanted || Wanted->hasFocus()) return;
    Following = true;
    Wanted->setFocus();
    Following = false;
}

namespace {

// Lists and fields have no caption of their own: what they are stands before the first comma of their tip.
// The toolkit does not look whether anything is new, and figures change all the time.
void Show_Meaning(const Visible_Control& C, QWidget* W) {
    const QString Tip = To_Screen(*C.Tool_Tip);
    if (W->toolTip() != Tip) W->setToolTip(Tip);
    if (C.Kind == Control_Kind::Label) return; // it says what it shows
    const QString Caption = To_Screen(*C.Caption).remove(QLatin1Char('&'));
    const QString Name = Caption.isEmpty() ? Tip.section(QLatin1Char(','), 0, 0) : Caption;
    if (W->accessibleName() != Name) W->setAccessibleName(Name);
    if (W->accessibleDescription() != Tip) W->setAccessibleDescription(Tip);
}

} // namespace

void Form_View::Show_Common(const Visible_Control& C, QWidget* W) {
    W->setEnabled(*C.Enabled);
    W->setVisible(C.Shown());
    Show_Meaning(C, W);
    if (C.Kind == Control_Kind::Text_Box || C.Kind == Control_Kind::Combo_Box)
        Show_Refusal(static_cast<const Typed_Control&>(C), W);
}

void Form_View::Show_Refusal(const Typed_Control& C, QWidget* W) {
    const bool Refused = !C.Refusal->empty() && C.Shown();
    if (W->property("refused").toBool() != Refused) {
        W->setProperty("refused", Refused);
        W->style()->polish(W);
    }
    Callout*& Says = Callouts[W];
    if (Refused && !Says) Says = new Callout(this);
    if (Says) Says->Say(Refused ? To_Screen(*C.Refusal) : QString(), *W);
}

void Form_View::Bind(Visible_Control& C, QWidget* W, std::function<void()> Show) {
    W->setObjectName(To_Screen(C.Path()));
    W->installEventFilter(this);
    QWidget* Pressed = W;
    if (const auto* Area = qobject_cast<QAbstractScrollArea*>(W)) Pressed = Area->viewport();
    if (const auto* List = qobject_cast<QComboBox*>(W); List && List->lineEdit()) Pressed = List->lineEdit();
    if (Pressed != W) Pressed->installEventFilter(this);
    Bindings.push_back({&C, W, Pressed, [this, &C, W, Show = std::move(Show)] {
                            const QSignalBlocker Quiet(W);
                            Show();
                            Show_Common(C, W);
                        }});
}

QPushButton* Form_View::Make(Button& C) {
    auto* W = new QPushButton(this);
    const QChar Letter = Choose_Mnemonic(To_Screen(*C.Caption), Letters);
    Bind(C, W, [&C, W, Letter] { W->setText(With_Mnemonic(To_Screen(*C.Caption), Letter)); });
    connect(W, &QPushButton::clicked, this, [this, &C] { Act([&C](Desktop& D) { D.User_Click(C); }); });
    return W;
}

QCheckBox* Form_View::Make(Check_Box& C) {
    auto* W = new QCheckBox(this);
    Bind(C, W, [&C, W] {
        W->setText(To_Screen(*C.Caption));
        W->setChecked(C.Value());
    });
    connect(W, &QCheckBox::clicked, this,
            [this, &C](bool On) { Act([&C, On](Desktop& D) { D.User_Set(C, On); }); });
    return W;
}

QComboBox* Form_View::Make(Combo_Box& C) {
    auto* W = new QComboBox(this);
    W->setEditable(C.Free_Text);
    W->setInsertPolicy(QComboBox::NoInsert);
    if (C.Free_Text) W->setCompleter(nullptr); // what is typed counts, not what it could become
    W->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    Bind(C, W, [&C, W] {
        const auto& Items = C.Items();
        bool Same = W->count() == static_cast<int>(Items.size());
        for (int I = 0; Same && I < W->count(); ++I)
            Same = W->itemText(I) == To_Screen(Items[static_cast<std::size_t>(I)].Text);
        if (!Same) {
            W->clear();
            for (const auto& Item : Items) W->addItem(To_Screen(Item.Text));
        }
        // The cursor stays where it is in what is being typed.
        const int Cursor = W->lineEdit() ? W->lineEdit()->cursorPosition() : 0;
        if (W->currentIndex() != C.List_Index()) W->setCurrentIndex(C.List_Index());
        if (W->isEditable()) {
            if (W->currentText() != To_Screen(C.Text())) W->setEditText(To_Screen(C.Text()));
            if (C.Half_Typed()) W->lineEdit()->setCursorPosition(Cursor);
        } else if (C.List_Index() < 0) {
            W->setPlaceholderText(To_Screen(C.Text()));
        }
    });
    // "activated" comes also when the entry is chosen that stands chosen already.
    connect(W, &QComboBox::activated, this, [this, &C](int Index) {
        Act([&C, Index](Desktop& D) { D.User_Set(C, static_cast<std::int64_t>(Index)); });
    });
    if (W->lineEdit()) {
        W->lineEdit()->setProperty("control", W->objectName());
        connect(W->lineEdit(), &QLineEdit::textEdited, this, [this, &C](const QString& Text) {
            Act([&C, &Text](Desktop& D) {
                D.User_Focus(C);
                C.User_Type(From_Screen(Text));
            });
        });
    }
    return W;
}

QLineEdit* Form_View::Make(Text_Box& C) {
    auto* W = new Value_Edit(this);
    Bind(C, W, [&C, W, Selections = std::uint32_t{0}]() mutable {
        W->setReadOnly(C.Read_Only);
        if (W->text() != To_Screen(C.Text())) W->setText(To_Screen(C.Text()));
        const bool Select = std::exchange(Selections, *C.Select_All_Count) != *C.Select_All_Count;
        if (Select && !C.Half_Typed()) W->selectAll(); // not over what was typed meanwhile
        // The required widths are for a narrower face than ours.
        if (*C.Width != 0) W->setFixedWidth(*C.Width * 4 / 3 / Twips_Per_Pixel);
    });
    connect(W, &QLineEdit::textEdited, this, [this, &C](const QString& Text) {
        Act([&C, &Text](Desktop& D) { D.User_Type(C, From_Screen(Text)); });
    });
    return W;
}

QPlainTextEdit* Form_View::Make_Pane(Text_Box& C) {
    auto* W = new QPlainTextEdit(this);
    W->setReadOnly(true);
    W->setTabChangesFocus(true);
    W->setFont(Sentence_Font());
    W->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    Bind(C, W, [&C, W] {
        if (W->toPlainText() != To_Screen(C.Text())) W->setPlainText(To_Screen(C.Text()));
    });
    return W;
}

QSlider* Form_View::Make(Scroll_Bar& C, Qt::Orientation Direction) {
    auto* W = new QSlider(Direction, this);
    Bind(C, W, [&C, W] {
        // Min stands at the top, whichever end of the numbers it is; lying sliders rise to the right.
        W->setInvertedAppearance(W->orientation() == Qt::Vertical && *C.Min < *C.Max);
        W->setInvertedControls(W->invertedAppearance());
        W->setRange(std::min<int>(C.Min, C.Max), std::max<int>(C.Min, C.Max));
        W->setSingleStep(C.Small_Change);
        W->setPageStep(C.Large_Change);
        W->setValue(C.Value());
    });
    connect(W, &QSlider::valueChanged, this, [this, &C](int Value) {
        Act([&C, Value](Desktop& D) { D.User_Set(C, static_cast<std::int64_t>(Value)); });
    });
    return W;
}

QRadioButton* Form_View::Make(Option_Button& C) {
    auto* W = new QRadioButton(this);
    W->setAutoExclusive(false); // the group in the model is what excludes
    Bind(C, W, [&C, W] {
        W->setText(To_Screen(*C.Caption));
        W->setChecked(C.Value());
    });
    connect(W, &QRadioButton::clicked, this, [this, &C, W] {
        const auto F = Source.lock(); // C lives as long as its form
        if (!F) return;
        Act([&C](Desktop& D) { D.User_Click(C); });
        const QSignalBlocker Quiet(W);
        W->setChecked(C.Value());
    });
    return W;
}

QLabel* Form_View::Make(Label& C, const char* Role) {
    auto* W = new QLabel(this);
    W->setTextFormat(Qt::PlainText);
    W->setProperty("role", QString::fromLatin1(Role));
    // A figure without a meaning as yet is told alike everywhere.
    const QString Nothing = std::string_view(Role) == "readout" ? QStringLiteral("---") : QString();
    Bind(C, W, [&C, W, Nothing] {
        W->setText(C.Caption->empty() ? Nothing : To_Screen(*C.Caption));
        // A palette would do nothing beside the style.
        constexpr const char* Names[] = {"", "", "red", "green", "amber"};
        const auto Name = QLatin1String(Names[static_cast<std::size_t>(*C.Fore_Colour)]);
        if (W->property("ink").toString() == Name) return;
        W->setProperty("ink", QString(Name));
        W->style()->unpolish(W);
        W->style()->polish(W);
    });
    return W;
}

QGroupBox* Form_View::Make(Frame& C) {
    auto* W = new QGroupBox(this);
    Bind(C, W, [&C, W] { W->setTitle(To_Screen(*C.Caption)); });
    return W;
}

void Form_View::Refresh() {
    const auto F = Source.lock();
    if (!F || F->Revision == Seen) return;
    Seen = F->Revision;
    // What is hidden or disabled loses the focus to the toolkit's next widget: that is nothing the user did.
    Following = true;
    Moved_To = nullptr;
    for (Binding& B : Bindings) {
        const bool Shown = B.Source->Shown();
        if (B.Seen == B.Source->Revision && B.Was_Shown == Shown) continue;
        B.Seen = B.Source->Revision;
        B.Was_Shown = Shown;
        B.Show();
    }
    for (const auto& Look : Looks) Look();
    Following = false;
    Desktop& Windows = F->Windows;
    const bool Model_Moved = std::exchange(Focus_Seen, Windows.Focus) != Windows.Focus;
    const bool Has_Place =
        Windows.Focus && &Windows.Focus->Owner == F.get() && Windows.Usable(*Windows.Focus);
    if (Has_Place && (Moved_To || Model_Moved))
        Follow_Focus(Windows);
    else if (Moved_To && Windows.Usable(*Moved_To))
        Act([Target = Moved_To](Desktop& D) { D.User_Focus(*Target); });
}

QWidget* Form_View::Widget_Of(const Control& C) const {
    for (const Binding& B : Bindings)
        if (B.Source == &C) return B.Widget;
    return nullptr;
}

Form_View::Binding* Form_View::Binding_Of(const QObject* W) {
    for (Binding& B : Bindings)
        if (B.Widget == W || B.Pressed == W) return &B;
    return nullptr;
}

void Form_View::Take_Keyboard() {
    QWidget* W = focusWidget();
    for (const Binding& B : Bindings)
        if (!W && B.Source->Can_Focus() && B.Widget->isVisible() && B.Widget->isEnabled()) W = B.Widget;
    if (W) W->setFocus();
}

bool Form_View::Keyboard_Is_At_Focus() const {
    const auto F = Source.lock();
    QWidget* const Has_It = QApplication::focusWidget();
    if (!F || !Has_It || !isAncestorOf(Has_It)) return true;
    const Control* const Focus = F->Windows.Focus;
    return Focus && Widget_Of(*Focus) == Has_It;
}

void Form_View::paintEvent(QPaintEvent* Wanted) {
    QPainter(this).fillRect(Wanted->rect(), Colours.Colour(Token::Panel));
}

} // namespace brinewright
