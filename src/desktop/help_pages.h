#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <vector>

namespace pantrigo {

/// A page of the help.
struct HelpPage {
  /// Where the page lies among the program's resources.
  QUrl source;
  QString title;
  /// What a reader sees, without marks.
  QString text;
  /// The help contexts that show the page, and the windows whose page it is, by their forms' names.
  std::vector<int> contexts;
  QStringList windows;
};

/// The words of a search: the text's words without regard to case, each once.
[[nodiscard]] QStringList searchWords(const QString& text);

/// All pages of the help, in the order in which they are listed. They are part of the program, written in Markdown; an
/// index names them with their contexts and windows.
class HelpPages {
 public:
  HelpPages();

  [[nodiscard]] const std::vector<HelpPage>& all() const { return pages_; }
  /// The first page, which leads to the others.
  [[nodiscard]] const HelpPage& contents() const { return pages_.front(); }
  /// The page of a help context, or of a form's window; the contents where there is none.
  [[nodiscard]] const HelpPage& ofContext(int context) const;
  [[nodiscard]] const HelpPage& ofWindow(const QString& form) const;
  /// The page that lies there; null for another place.
  [[nodiscard]] const HelpPage* at(const QUrl& source) const;

  /// The pages that hold every one of the words, in any place; those with one in the title come first. All pages when
  /// there are no words.
  [[nodiscard]] std::vector<const HelpPage*> holding(const QStringList& words) const;

 private:
  std::vector<HelpPage> pages_;
};

}  // namespace pantrigo
