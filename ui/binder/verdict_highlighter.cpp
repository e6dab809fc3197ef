#include "ui/binder/verdict_highlighter.hpp"

#include "sentences/checksum_verdict.hpp"
#include "ui/binder/form_view.hpp"

namespace brinewright {

Verdict_Highlighter::Verdict_Highlighter(QTextDocument* Document, const Theme& Its_Colours)
    : QSyntaxHighlighter(Document), Colours(Its_Colours) {
    connect(&Colours, &Theme::Changed, this, &QSyntaxHighlighter::rehighlight);
}

void Verdict_Highlighter::highlightBlock(const QString& Line) {
    const Checksum_Verdict Verdict = Verdict_Of(From_Screen(Line));
    const Token Meaning = Verdict == Checksum_Verdict::Ok      ? Token::Good
                          : Verdict == Checksum_Verdict::Wrong ? Token::Bad
                                                               : Token::Text;
    // The sentence keeps the colour of text; its checksum carries the verdict, a wrong one the whole line.
    const auto Star = Line.lastIndexOf(QLatin1Char('*'));
    const int First = Verdict == Checksum_Verdict::Ok && Star >= 0 ? static_cast<int>(Star) : 0;
    setFormat(First, static_cast<int>(Line.size()) - First, Colours.Colour(Meaning));
}

} // namespace brinewright
