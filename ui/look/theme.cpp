#include "ui/look/theme.hpp"

#include "ui/look/title_style.hpp"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>

namespace brinewright {

namespace {

struct Colours {
    const char* Of[3]; // day, dusk, night
};

// In the order of Token.
constexpr std::array<Colours, Token_Count> Table{{
    {{"#E7EAED", "#1F262D", "#0A0B0C"}}, // Window: the main surface
    {{"#F6F7F8", "#29323B", "#121416"}}, // Panel: group boxes, child windows
    {{"#FFFFFF", "#182026", "#0D0F10"}}, // Field: inputs, lists, tables
    {{"#A9B1B9", "#4A5763", "#3A4046"}}, // Line: borders, grid lines
    {{"#1B2229", "#D6DEE5", "#A8641E"}}, // Text: captions
    {{"#5B6670", "#95A3AF", "#8A5A28"}}, // Dim_Text: units, hints, disabled
    {{"#0B3A66", "#7FD1FF", "#C8741C"}}, // Readout: large figures
    {{"#0F6FB3", "#3FA7E0", "#A05A1A"}}, // Accent: focus, selection, sliders
    {{"#256B2B", "#5CC46A", "#4F7F3C"}}, // Good: running, valid checksum
    {{"#8F5500", "#E8A33D", "#9A5A10"}}, // Warn: paused, frozen, late
    {{"#B3261E", "#F5857C", "#B8483A"}}, // Bad: invalid, fault injected, failed
    {{"#C62828", "#EF5350", "#7E2420"}}, // Port side
    {{"#2E7D32", "#66BB6A", "#2F5A2B"}}, // Starboard side
}};

// @Name stands for the colour of a token.
constexpr const char* Style_Text = R"(
* { outline: 0; }
QWidget { color: @Text; }
QMainWindow, QMdiArea, QDialog { background: @Window; }
QMenuBar, QStatusBar, QToolBar { background: @Window; color: @Text; }
QMenuBar::item { padding: 4px 8px; background: transparent; }
QMenuBar::item:selected, QMenu::item:selected { background: @Accent; color: @Field; }
QMenu { background: @Panel; border: 1px solid @Line; padding: 4px; }
QMenu::item { padding: 4px 24px; }
QMenu::item:disabled { color: @Dim; }
QMenu::separator { height: 1px; background: @Line; margin: 4px 8px; }
QMdiSubWindow { background: @Panel; }
QWidget#form { background: @Panel; }
QScrollArea, QScrollArea > QWidget > QWidget#form { background: @Panel; border: 0; }
QGroupBox { background: @Panel; border: 1px solid @Line; border-radius: 4px; margin-top: 10px; padding-top: 8px; }
QGroupBox[bare="true"] { border: 0; margin: 0; padding: 0; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: @Dim; }
QLineEdit, QPlainTextEdit, QComboBox, QTableView, QListView, QAbstractSpinBox {
    background: @Field; color: @Text; border: 1px solid @Line; border-radius: 3px; padding: 1px 5px;
    selection-background-color: @Accent; selection-color: @Field; }
QTableView { gridline-color: @Line; padding: 0; alternate-background-color: @Panel; }
QHeaderView::section { background: @Panel; color: @Dim; border: 0; border-bottom: 1px solid @Line; padding: 3px 6px; }
QTableCornerButton::section { background: @Panel; border: 0; }
QLineEdit:focus, QPlainTextEdit:focus, QComboBox:focus, QTableView:focus { border: 1px solid @Accent; }
QLineEdit:disabled, QPlainTextEdit:disabled, QComboBox:disabled { background: @Panel; color: @Dim; }
QLineEdit[refused="true"], QComboBox[refused="true"] { border: 1px solid @Bad; color: @Bad; }
QLabel#refusal { background: @Field; color: @Bad; border: 1px solid @Bad; border-radius: 3px; padding: 2px 6px; }
QComboBox::drop-down { width: 18px; border: 0; }
QComboBox::down-arrow { width: 0; height: 0; border-left: 4px solid @Field; border-right: 4px solid @Field;
    border-top: 5px solid @Text; margin-right: 4px; }
QComboBox::down-arrow:disabled { border-left-color: @Panel; border-right-color: @Panel; border-top-color: @Dim; }
QComboBox QAbstractItemView { background: @Field; color: @Text; border: 1px solid @Line; }
QPushButton { background: @Field; border: 1px solid @Line; border-radius: 4px; padding: 5px 14px; min-height: 16px; }
QPushButton:hover { border-color: @Accent; }
QPushButton:focus { border: 1px solid @Accent; }
QPushButton:pressed { background: @Line; }
QPushButton:disabled { color: @Dim; background: @Panel; }
QPushButton[state="good"] { background: @Good; color: @Field; border-color: @Good; }
QPushButton[state="warn"] { background: @Warn; color: @Field; border-color: @Warn; }
QPushButton[state="good"]:disabled, QPushButton[state="warn"]:disabled { background: @Panel; color: @Dim; }
QCheckBox, QRadioButton { spacing: 4px; }
QCheckBox:disabled, QRadioButton:disabled, QLabel:disabled { color: @Dim; }
QRadioButton::indicator { width: 13px; height: 13px; border: 1px solid @Dim; background: @Field; border-radius: 7px; }
QRadioButton::indicator:checked { background: @Accent; border-color: @Accent; }
QCheckBox:focus, QRadioButton:focus { color: @Readout; }
QRadioButton::indicator:focus { border: 2px solid @Accent; border-radius: 8px; }
QRadioButton::indicator:checked:focus { border: 2px solid @Text; }
QRadioButton::indicator:disabled { border-color: @Line; background: @Panel; }
QRadioButton::indicator:checked:disabled { background: @Line; }
QLabel[role="dim"] { color: @Dim; }
QLabel[role="readout"] { color: @Readout; }
QLabel[role="good"] { color: @Good; }
QLabel[role="warn"] { color: @Warn; }
QLabel[role="bad"] { color: @Bad; }
QLabel[ink="red"] { color: @Port; }
QLabel[ink="green"] { color: @Starboard; }
QLabel[ink="amber"] { color: @Warn; }
QLabel#ticker { background: @Field; color: @Dim; border-top: 1px solid @Line; padding: 3px 8px; }
QLabel[notice] { color: @Field; padding: 0 8px; border-radius: 3px; font-weight: bold; }
QLabel[notice="bad"] { background: @Bad; }
QLabel[notice="warn"] { background: @Warn; }
QSlider::groove:vertical { width: 4px; background: @Line; border-radius: 2px; }
QSlider::groove:horizontal { height: 4px; background: @Line; border-radius: 2px; }
QSlider::handle { background: @Accent; border-radius: 4px; }
QSlider::handle:vertical { height: 14px; margin: 0 -7px; }
QSlider::handle:horizontal { width: 14px; margin: -7px 0; }
QSlider::handle:focus { background: @Readout; border: 2px solid @Text; }
QSlider::handle:disabled { background: @Line; border: 0; }
QScrollBar { background: @Panel; border: 0; }
QScrollBar:vertical { width: 12px; } QScrollBar:horizontal { height: 12px; }
QScrollBar::handle { background: @Line; border-radius: 4px; min-height: 24px; min-width: 24px; }
QScrollBar::handle:hover { background: @Dim; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QProgressBar { background: @Field; border: 1px solid @Line; border-radius: 3px; text-align: center; }
QProgressBar::chunk { background: @Accent; }
QToolTip { background: @Panel; color: @Text; border: 1px solid @Line; padding: 3px; }
QStatusBar QLabel { padding: 0 8px; border-left: 1px solid @Line; }
)";

QString Filled_In(const Theme& T) {
    const std::pair<const char*, Token> Names[] = {
        {"@Window", Token::Window},      {"@Panel", Token::Panel},   {"@Field", Token::Field},
        {"@Line", Token::Line},          {"@Text", Token::Text},     {"@Dim", Token::Dim_Text},
        {"@Readout", Token::Readout},    {"@Accent", Token::Accent}, {"@Good", Token::Good},
        {"@Warn", Token::Warn},          {"@Bad", Token::Bad},       {"@Port", Token::Port},
        {"@Starboard", Token::Starboard}};
    QString Style = QString::fromLatin1(Style_Text);
    for (const auto& [Name, Meaning] : Names) Style.replace(QLatin1String(Name), T.Colour(Meaning).name());
    return Style;
}

QPalette Qt_Palette(const Theme& T) {
    QPalette P;
    P.setColor(QPalette::Window, T.Colour(Token::Window));
    P.setColor(QPalette::Base, T.Colour(Token::Field));
    P.setColor(QPalette::AlternateBase, T.Colour(Token::Panel));
    P.setColor(QPalette::Button, T.Colour(Token::Panel));
    P.setColor(QPalette::Highlight, T.Colour(Token::Accent));
    P.setColor(QPalette::HighlightedText, T.Colour(Token::Field));
    P.setColor(QPalette::ToolTipBase, T.Colour(Token::Panel));
    P.setColor(QPalette::PlaceholderText, T.Colour(Token::Dim_Text));
    for (const auto Role : {QPalette::Light, QPalette::Midlight}) P.setColor(Role, T.Colour(Token::Panel));
    for (const auto Role : {QPalette::Mid, QPalette::Dark}) P.setColor(Role, T.Colour(Token::Line));
    P.setColor(QPalette::Shadow, T.Colour(Token::Window));
    for (const auto Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::BrightText}) {
        P.setColor(Role, T.Colour(Token::Text));
        P.setColor(QPalette::Disabled, Role, T.Colour(Token::Dim_Text));
    }
    return P;
}

} // namespace

Theme::Theme(QApplication& Application) : Styled(Application) {
    Styled.setStyle(new Title_Style);
    QFont Face = QApplication::font();
    Face.setPointSizeF(9);
    Styled.setFont(Face);
    Choose(Palette_Kind::Day);
}

QColor Theme::Colour_In(Palette_Kind Kind, Token Meaning) {
    return QColor(QLatin1String(Table[static_cast<std::size_t>(Meaning)]
                                    .Of[static_cast<std::size_t>(Kind)])); // NOLINT: enums index tables
}

QColor Theme::Colour(Token Meaning) const { return Colour_In(Kind_Now, Meaning); }

void Theme::Choose(Palette_Kind Kind) {
    Kind_Now = Kind;
    Styled.setPalette(Qt_Palette(*this));
    Styled.setStyleSheet(Filled_In(*this));
    Q_EMIT Changed();
}

QFont Sentence_Font() {
    QFont Face = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    Face.setPointSizeF(9);
    Face.setStyleHint(QFont::Monospace);
    return Face;
}

QFont Readout_Font(int Pixels) {
    QFont Face = QApplication::font();
    Face.setPixelSize(Pixels);
    Face.setWeight(QFont::DemiBold);
    return Face;
}

} // namespace brinewright
