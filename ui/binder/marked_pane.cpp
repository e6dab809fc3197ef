// A text to be read, with a part marked.

#include "platform/marked_text.hpp"
#include "ui/binder/form_view.hpp"

#include <QSignalBlocker>
#include <QTextCursor>

namespace brinewright {

namespace {

void Show_Mark(const Marked_Text& C, QPlainTextEdit& W, const Theme& Colours) {
    const int First = C.Mark_First, End = First + C.Mark_Length;
    QTextEdit::ExtraSelection Mark;
    Mark.cursor = W.textCursor();
    Mark.cursor.setPosition(First);
    Mark.cursor.setPosition(End, QTextCursor::KeepAnchor);
    Mark.format.setBackground(Colours.Colour(Token::Accent));
    Mark.format.setForeground(Colours.Colour(Token::Field));
    W.setExtraSelections({Mark});
    // The keys go on from there.
    if (const int Now = W.textCursor().position(); Now < First || Now > End) {
        QTextCursor There = W.textCursor();
        There.setPosition(First);
        W.setTextCursor(There);
    }
}

} // namespace

QPlainTextEdit* Form_View::Make(Marked_Text& C) {
    auto* W = new QPlainTextEdit(this);
    W->setReadOnly(true);
    W->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    W->setTabChangesFocus(true);
    W->setFont(Sentence_Font());
    W->setWordWrapMode(QTextOption::WrapAnywhere);
    Bind(C, W, [this, &C, W] {
        W->setPlaceholderText(To_Screen(*C.Caption));
        if (W->toPlainText() != To_Screen(C.Text())) W->setPlainText(To_Screen(C.Text()));
        Show_Mark(C, *W, Colours);
    });
    connect(&Colours, &Theme::Changed, W, [this, &C, W] {
        if (const auto F = Source.lock()) Show_Mark(C, *W, Colours);
    });
    connect(W, &QPlainTextEdit::cursorPositionChanged, this, [this, &C, W] {
        Act([&C, Place = static_cast<std::int64_t>(W->textCursor().position())](Desktop& D) {
            D.User_Focus(C);
            C.User_Set(Place);
        });
    });
    return W;
}

} // namespace brinewright
