#pragma once

#include <QStringList>
#include <QTextBrowser>

namespace pantrigo {

/// Shows one page of the help, in the program's look, with the words that are searched for marked.
class HelpBrowser : public QTextBrowser {
 public:
  explicit HelpBrowser(QWidget* parent);

  /// The words to be marked on this page and on those that follow it.
  void setWords(const QStringList& words);

  /// Selects the next place of a word behind the present one, or the last before it, and brings it into sight. Gives
  /// false, and changes nothing, when the page has no further one.
  bool goToNextPlace(bool backwards = false);
  /// The next search begins at the start of the page, or at its end.
  void leavePlace(bool toEnd = false);

 private:
  void dress();
  void dressBlocks();
  void dressTables();
  void markWords();

  QStringList words_;
};

}  // namespace pantrigo
