#pragma once

#include "ui/look/theme.hpp"

#include <QSyntaxHighlighter>

namespace brinewright {

// Colours each line of a pane of sentences by its checksum: valid, wrong, or without one.
class Verdict_Highlighter : public QSyntaxHighlighter {
    Q_OBJECT
  public:
    Verdict_Highlighter(QTextDocument* Document, const Theme& Colours);

  protected:
    void highlightBlock(const QString& Line) override;

  private:
    const Theme& Colours;
};

} // namespace brinewright
