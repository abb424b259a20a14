#include "desktop/help_pages.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace pantrigo {

namespace {

QString contentOf(const QString& name) {
  QFile file(QStringLiteral(":/help/") + name);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// A line of the index: the page's file, then its contexts (numbers) and windows (names of forms).
HelpPage readPage(const QStringList& line) {
  HelpPage page;
  page.source = QUrl(QStringLiteral("qrc:/help/") + line.front());
  for (const QString& word : line.sliced(1)) {
    bool isNumber = false;
    const int context = word.toInt(&isNumber);
    if (isNumber) {
      page.contexts.push_back(context);
    } else {
      page.windows.append(word);
    }
  }
  QTextDocument document;
  document.setMarkdown(contentOf(line.front()));
  page.title = document.firstBlock().text();
  page.text = document.toPlainText();
  return page;
}

bool holdsAll(const HelpPage& page, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return page.text.contains(word, Qt::CaseInsensitive); });
}

bool titleHoldsOne(const HelpPage& page, const QStringList& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](const QString& word) { return page.title.contains(word, Qt::CaseInsensitive); });
}

}  // namespace

QStringList searchWords(const QString& text) {
  QStringList words = text.toLower().simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  words.removeDuplicates();
  return words;
}

HelpPages::HelpPages() {
  static const QRegularExpression blanks(QStringLiteral("\\s+"));
  for (const QString& line : contentOf(QStringLiteral("index.txt")).split(QLatin1Char('\n'))) {
    const QStringList words = line.split(blanks, Qt::SkipEmptyParts);
    if (!words.isEmpty() && !words.front().startsWith(QLatin1Char('#'))) pages_.push_back(readPage(words));
  }
}

const HelpPage& HelpPages::ofContext(int context) const {
  const auto found = std::find_if(pages_.begin(), pages_.end(), [&](const HelpPage& page) {
    return std::find(page.contexts.begin(), page.contexts.end(), context) != page.contexts.end();
  });
  return found == pages_.end() ? contents() : *found;
}

const HelpPage& HelpPages::ofWindow(const QString& form) const {
  const auto found =
      std::find_if(pages_.begin(), pages_.end(), [&](const HelpPage& page) { return page.windows.contains(form); });
  return found == pages_.end() ? contents() : *found;
}

const HelpPage* HelpPages::at(const QUrl& source) const {
  const auto found =
      std::find_if(pages_.begin(), pages_.end(), [&](const HelpPage& page) { return page.source == source; });
  return found == pages_.end() ? nullptr : &*found;
}

std::vector<const HelpPage*> HelpPages::holding(const QStringList& words) const {
  std::vector<const HelpPage*> found;
  for (const HelpPage& page : pages_) {
    if (holdsAll(page, words)) found.push_back(&page);
  }
  std::stable_partition(found.begin(), found.end(), [&](const HelpPage* page) { return titleHoldsOne(*page, words); });
  return found;
}

}  // namespace pantrigo
