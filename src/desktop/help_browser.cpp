#include "desktop/help_browser.h"

#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>
#include <cmath>

#include "desktop/look.h"

namespace pantrigo {

namespace {

/// Sizes of headings and room, in sizes of the running text. A heading's level counts from 1; 0 is no heading.
constexpr double headingSizes[] = {1, 1.7, 1.25, 1.1};
constexpr double roomAboveHeading = 1.1;
constexpr double roomBelow = 0.55;
constexpr double roomBelowItem = 0.2;
constexpr int lineHeight = 128;
constexpr int pageMargin = 24;
constexpr int cellPadding = 6;

int headingLevel(const QTextBlock& block) {
  constexpr int deepest = static_cast<int>(std::size(headingSizes)) - 1;
  return std::min(block.blockFormat().headingLevel(), deepest);
}

bool inTable(const QTextBlock& block) {
  return QTextCursor(block).currentTable() != nullptr;
}

void dressHeading(QTextCursor& cursor, int level, int textSize) {
  cursor.select(QTextCursor::BlockUnderCursor);
  QTextCharFormat format = cursor.charFormat();
  // The size in steps that comes with the markup would come on top.
  format.clearProperty(QTextFormat::FontSizeAdjustment);
  format.setProperty(QTextFormat::FontPixelSize, static_cast<int>(std::lround(textSize * headingSizes[level])));
  format.setFontWeight(QFont::DemiBold);
  format.setForeground(level == 1 ? hue::accent : hue::text);
  cursor.setCharFormat(format);
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setObjectName(QStringLiteral("helpPage"));
  setAccessibleName(QStringLiteral("Help page"));
  setStyleSheet(QStringLiteral("QTextBrowser { background: %1; border: 1px solid %2; border-radius: 4px; }")
                    .arg(hue::field.name(), hue::line.name()));
  document()->setDocumentMargin(pageMargin);
  connect(this, &QTextBrowser::sourceChanged, this, [this] { dress(); });
}

void HelpBrowser::dress() {
  dressBlocks();
  dressTables();
  leavePlace();
  markWords();
}

void HelpBrowser::dressBlocks() {
  const int size = fontInfo().pixelSize();
  const auto room = [size](double share) { return size * share; };
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    QTextCursor cursor(block);
    QTextBlockFormat format = block.blockFormat();
    const int level = headingLevel(block);
    if (!inTable(block)) {
      format.setTopMargin(level > 1 ? room(roomAboveHeading) : 0);
      format.setBottomMargin(room(block.textList() == nullptr ? roomBelow : roomBelowItem));
    }
    format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    cursor.setBlockFormat(format);
    if (level > 0) dressHeading(cursor, level, size);
  }
}

void HelpBrowser::dressTables() {
  for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(hue::line);
    format.setBorderCollapse(true);
    format.setCellPadding(cellPadding);
    format.setCellSpacing(0);
    format.setBottomMargin(fontInfo().pixelSize());
    table->setFormat(format);
  }
}

void HelpBrowser::setWords(const QStringList& words) {
  if (words == words_) return;
  words_ = words;
  leavePlace();
  markWords();
}

void HelpBrowser::markWords() {
  QList<ExtraSelection> marks;
  for (const QString& word : words_) {
    for (QTextCursor found = document()->find(word); !found.isNull(); found = document()->find(word, found)) {
      ExtraSelection mark;
      mark.cursor = found;
      mark.format.setBackground(hue::tint);
      marks.append(mark);
    }
  }
  setExtraSelections(marks);
}

bool HelpBrowser::goToNextPlace(bool backwards) {
  const QTextDocument::FindFlags flags = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  QTextCursor nearest;
  for (const QString& word : words_) {
    const QTextCursor found = document()->find(word, textCursor(), flags);
    if (found.isNull()) continue;
    const bool nearer = nearest.isNull() || (found.selectionStart() < nearest.selectionStart()) != backwards;
    if (nearer) nearest = found;
  }
  if (nearest.isNull()) return false;
  setTextCursor(nearest);
  return true;
}

void HelpBrowser::leavePlace(bool toEnd) {
  QTextCursor cursor = textCursor();
  cursor.movePosition(toEnd ? QTextCursor::End : QTextCursor::Start);
  setTextCursor(cursor);
}

}  // namespace pantrigo
