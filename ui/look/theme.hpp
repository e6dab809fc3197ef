#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <array>

class QApplication;

namespace brinewright {

// What colours mean. No colour is written anywhere but in the table of theme.cpp.
enum class Token {
    Window,
    Panel,
    Field,
    Line,
    Text,
    Dim_Text,
    Readout,
    Accent,
    Good,
    Warn,
    Bad,
    Port,
    Starboard
};
inline constexpr int Token_Count = 13;

enum class Palette_Kind { Day, Dusk, Night };
inline constexpr std::array<const char*, 3> Palette_Names{"Day", "Dusk", "Night"};

// The palette that is chosen now; tells its painters when another one is.
class Theme : public QObject {
    Q_OBJECT
  public:
    explicit Theme(QApplication& Application);

    void Choose(Palette_Kind Kind); // styles the whole application
    Palette_Kind Chosen() const { return Kind_Now; }
    QColor Colour(Token Meaning) const;
    static QColor Colour_In(Palette_Kind Kind, Token Meaning);

  Q_SIGNALS:
    void Changed();

  private:
    QApplication& Styled;
    Palette_Kind Kind_Now = Palette_Kind::Day;
};

// A fixed-width face for sentences, and figures that do not change their width for readouts.
QFont Sentence_Font();
QFont Readout_Font(int Pixels);

} // namespace brinewright
