#include "desktop/look.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace pantrigo {

namespace {

/// Text size in pixels at scale 1: the longest captions of the design just fit their places.
constexpr double textSizeAtDesign = 9.3;
/// From this scale on text grows by `slowGrowth` pixels a unit of scale.
constexpr double fullGrowthUpTo = 1.6;
constexpr double slowGrowth = 6;
constexpr int smallestText = 8;

constexpr std::array<QRgb, 16> colourTable{
    0xff000000, 0xff000080, 0xff008000, 0xff008080, 0xff800000, 0xff800080, 0xff808000, 0xffc0c0c0,
    0xff808080, 0xff0000ff, 0xff00ff00, 0xff00ffff, 0xffff0000, 0xffff00ff, 0xffffff00, 0xffffffff,
};
constexpr int darkYellow = 6;
constexpr double readableContrast = 4.5;

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance, 0 (black) to 1 (white).
double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double textSize(double scale) {
  const double full = std::min(scale, fullGrowthUpTo);
  return textSizeAtDesign * full + slowGrowth * (scale - full);
}

/// Side of the mark of a check box, in text sizes.
constexpr double markSide = 0.9;

/// Words that begin with "@" stand for colours of ours, and for lengths that go by the text size: "@mark", "@inner"
/// (the mark in a border that is one pixel wider) and "@round" (its half, border included).
constexpr const char* styleSheet = R"(
QToolTip { background: @text; color: @field; border: 1px solid @text; padding: 3px 6px; }
QMenuBar { background: @ground; border-bottom: 1px solid #e6dfd2; padding: 1px 4px; }
QMenuBar::item { background: transparent; padding: 4px 9px; border-radius: 4px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: @tint; }
QMenuBar::item:disabled { color: @disabled; }
QMenu { background: @panel; border: 1px solid #d9d0c1; padding: 4px; }
QMenu::item { padding: 5px 26px 5px 14px; border-radius: 4px; }
QMenu::item:selected { background: @tint; }
QMenu::item:disabled { color: @disabled; background: transparent; }
QMenu::separator { height: 1px; background: #e6dfd2; margin: 4px 8px; }
QLineEdit, QPlainTextEdit, QListView, QComboBox { background: @field; border: 1px solid #cfc5b4; border-radius: 4px; padding: 1px 3px; }
QLineEdit:focus, QPlainTextEdit:focus, QListView:focus, QComboBox:focus { border: 2px solid @accent; padding: 0px 2px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QListView:disabled, QComboBox:disabled { background: #f3efe8; border-color: #e2dace; color: @disabled; }
QListView, QListView:focus { padding-left: 0px; padding-right: 0px; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { border: none; background: transparent; padding: 0px; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { image: url(:/look/arrow_down.svg); width: @inner; height: @inner; }
QComboBox::down-arrow:disabled { image: url(:/look/arrow_down_disabled.svg); }
QComboBox QAbstractItemView { background: @field; border: 1px solid #cfc5b4; padding: 2px; selection-background-color: @tint; selection-color: @text; }
QCheckBox, QRadioButton { spacing: 7px; }
QCheckBox:focus, QRadioButton:focus { color: @accent; }
QCheckBox:disabled, QRadioButton:disabled, QLabel:disabled { color: @disabled; }
QCheckBox::indicator { width: @mark; height: @mark; border: 1px solid #a99f8f; border-radius: 3px; background: @field; }
QCheckBox::indicator:focus { border: 2px solid @accent; width: @inner; height: @inner; }
QCheckBox::indicator:checked { background: @accent; border-color: @accent; image: url(:/look/tick.svg); }
QCheckBox::indicator:disabled { background: #f3efe8; border-color: #ddd5c8; }
QCheckBox::indicator:checked:disabled { background: #d8c9bc; }
QRadioButton::indicator { width: @mark; height: @mark; border: 1px solid #a99f8f; border-radius: @round; background: @field; }
QRadioButton::indicator:focus { border: 2px solid @accent; width: @inner; height: @inner; }
QRadioButton::indicator:checked { background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5, stop:0 @accent, stop:0.55 @accent, stop:0.62 @field, stop:1 @field); border-color: @accent; }
QMessageBox { messagebox-critical-icon: url(:/look/box_stop.svg); messagebox-warning-icon: url(:/look/box_exclamation.svg); messagebox-question-icon: url(:/look/box_question.svg); messagebox-information-icon: url(:/look/box_information.svg); }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { background: @panel; border: 1px solid #c3b8a5; border-radius: 5px; padding: 4px 16px; }
QPushButton:hover { background: @tint; }
QPushButton:pressed { background: #efd3bf; }
QPushButton:focus { border: 2px solid @accent; padding: 3px 15px; }
QPushButton:default { border-color: @accent; color: @accent; }
QPushButton:disabled { color: @disabled; background: #f3efe8; border-color: #e2dace; }
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 6px; padding: 2px; }
QToolButton:hover { background: @tint; border-color: #ecd0bb; }
QToolButton:pressed { background: #efd3bf; border-color: #d9a988; }
QToolButton:checked { background: #f0eadf; border-color: #e2dace; color: @quiet; }
QToolButton:disabled { color: @disabled; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 1px; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 1px; }
QScrollBar::handle { background: #cfc5b4; border-radius: 4px; min-height: 28px; min-width: 28px; margin: 1px; }
QScrollBar::handle:hover { background: #b3a793; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QWidget#frmDetail QLineEdit#txtTitle { background: #ece8e0; font-weight: bold; }
)";

QString filledStyleSheet(double scale) {
  const int mark = static_cast<int>(std::lround(textSize(scale) * markSide));
  const auto pixels = [](int length) { return QString::number(length) + QStringLiteral("px"); };
  const std::pair<const char*, QString> words[] = {
      {"@mark", pixels(mark)},           {"@inner", pixels(mark - 2)},
      {"@round", pixels(mark / 2 + 1)},  {"@accent", hue::accent.name()},
      {"@tint", hue::tint.name()},       {"@panel", hue::panel.name()},
      {"@ground", hue::ground.name()},   {"@disabled", hue::disabledText.name()},
      {"@text", hue::text.name()},       {"@field", hue::field.name()},
      {"@quiet", hue::quietText.name()},
  };
  QString filled = QString::fromLatin1(styleSheet);
  for (const auto& [word, meaning] : words) filled.replace(QLatin1String(word), meaning);
  return filled;
}

QPalette windowPalette() {
  QPalette palette(hue::text, hue::ground);
  palette.setColor(QPalette::Window, hue::ground);
  palette.setColor(QPalette::WindowText, hue::text);
  palette.setColor(QPalette::Base, hue::field);
  palette.setColor(QPalette::AlternateBase, hue::panel);
  palette.setColor(QPalette::Text, hue::text);
  palette.setColor(QPalette::Button, hue::panel);
  palette.setColor(QPalette::ButtonText, hue::text);
  palette.setColor(QPalette::Highlight, hue::accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, hue::accent);
  palette.setColor(QPalette::PlaceholderText, hue::quietText);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, hue::disabledText);
  }
  return palette;
}

}  // namespace

int textPixelSize(double scale) {
  return std::max(smallestText, static_cast<int>(std::lround(textSize(scale))));
}

double dialogScale(double screenScale) {
  return textSize(screenScale) / textSizeAtDesign;
}

QColor tableColour(int number) {
  const bool inTable = number >= 0 && number < static_cast<int>(colourTable.size());
  return QColor::fromRgb(colourTable[inTable ? static_cast<std::size_t>(number) : 0]);
}

double contrast(const QColor& first, const QColor& second) {
  const double a = luminance(first) + 0.05;
  const double b = luminance(second) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

QColor readableOn(QColor text, const QColor& ground) {
  constexpr int steps = 20;
  const QColor goal = luminance(ground) > 0.18 ? QColor(Qt::black) : QColor(Qt::white);
  const QColor start = text;
  for (int step = 1; step <= steps && contrast(text, ground) < readableContrast; ++step) {
    const auto mixed = [&](int from, int to) { return from + (to - from) * step / steps; };
    text = QColor(mixed(start.red(), goal.red()), mixed(start.green(), goal.green()), mixed(start.blue(), goal.blue()));
  }
  return text;
}

bool isMarkColour(int number) {
  return number == darkYellow;
}

QString markWords() {
  return QStringLiteral(", in the meal");
}

QIcon iconNamed(const QString& name) {
  const QString file = QStringLiteral(":/icons/%1.svg").arg(name.toLower());
  return !name.isEmpty() && QFile::exists(file) ? QIcon(file) : QIcon();
}

void applyLook(QApplication& application, double scale) {
  // Text sizes go down from a window to its widgets, also to those that the style sheet has rules for.
  QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setPixelSize(textPixelSize(std::min(scale, fullGrowthUpTo)));
  QApplication::setFont(font);
  QApplication::setPalette(windowPalette());
  application.setStyleSheet(filledStyleSheet(scale));
  QApplication::setWindowIcon(iconNamed(QStringLiteral("pantrigo")));
}

}  // namespace pantrigo
