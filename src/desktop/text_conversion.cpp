#include "desktop/text_conversion.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace pantrigo {

namespace {

/// How many code points are too many after an edit.
std::size_t excess(std::size_t now, std::size_t limit, std::size_t before) {
  if (limit == 0) return 0;
  const std::size_t allowed = std::max(limit, before);
  return now > allowed ? now - allowed : 0;
}

/// Length in UTF-16 units of the given number of code points that end at `position`.
int unitsBefore(const QString& text, int position, std::size_t points) {
  int start = position;
  while (points > 0 && start > 0) {
    --start;
    if (text.at(start).isLowSurrogate() && start > 0 && text.at(start - 1).isHighSurrogate()) --start;
    --points;
  }
  return position - start;
}

bool marksKey(std::string_view caption, std::size_t place) {
  return caption[place] == '&' && place + 1 < caption.size() && caption[place + 1] != ' ';
}

}  // namespace

QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string fromQt(const QString& text) {
  return text.toStdString();
}

QString shownLines(std::string_view text) {
  QString lines = toQt(text);
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return lines;
}

std::string documentText(const QTextDocument& document) {
  QString text = document.toRawText();
  text.replace(QChar::ParagraphSeparator, QLatin1String("\r\n"));
  text.replace(QChar::LineSeparator, QLatin1String("\r\n"));
  return fromQt(text);
}

std::size_t pointCount(const QString& text) {
  const auto trailing = std::count_if(text.begin(), text.end(), [](QChar unit) { return unit.isLowSurrogate(); });
  return static_cast<std::size_t>(text.size() - trailing);
}

QString plainCaption(std::string_view caption) {
  std::string plain;
  for (std::size_t place = 0; place < caption.size(); ++place) {
    if (marksKey(caption, place)) ++place;
    plain += caption[place];
  }
  return toQt(plain);
}

bool hasAccessKey(std::string_view caption) {
  for (std::size_t place = 0; place < caption.size(); ++place) {
    if (!marksKey(caption, place)) continue;
    if (caption[place + 1] != '&') return true;
    ++place;
  }
  return false;
}

QStringList columnHeadings(std::string_view caption) {
  static const QRegularExpression gap(QStringLiteral(" {2,}"));
  return plainCaption(caption).split(gap, Qt::SkipEmptyParts);
}

void cutToLimit(QLineEdit& box, std::size_t limit, std::size_t before) {
  const std::size_t tooMany = excess(pointCount(box.text()), limit, before);
  if (tooMany == 0) return;
  const QSignalBlocker blocker(box);
  const int units = unitsBefore(box.text(), box.cursorPosition(), tooMany);
  box.setSelection(box.cursorPosition() - units, units);
  box.del();
}

void cutToLimit(QPlainTextEdit& box, std::size_t limit, std::size_t before) {
  const QString text = box.document()->toRawText();
  const std::size_t tooMany = excess(pointCount(text), limit, before);
  if (tooMany == 0) return;
  const QSignalBlocker blocker(box);
  QTextCursor cursor = box.textCursor();
  const int end = cursor.position();
  cursor.setPosition(end - unitsBefore(text, end, tooMany));
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
}

}  // namespace pantrigo
