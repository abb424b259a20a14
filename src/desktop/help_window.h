#pragma once

#include <QWidget>

#include "desktop/help_pages.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace pantrigo {

class HelpBrowser;
struct ScreenArea;

/// The window of the help: at the left the pages, or those that hold the words of the search, at the right the page on
/// show. It belongs to no form, and stays usable while a dialog of the program waits.
///
/// Keys: F1 the contents, Ctrl+F the search, Enter in the search and F3 the next place of its words (Shift+F3 the one
/// before), Alt+Left the page before, Esc closes.
class HelpWindow : public QWidget {
 public:
  explicit HelpWindow(const ScreenArea& area);

  /// Come to the front with the page of a help context, of a form's window, or with the cursor in the search.
  void showContext(int context);
  void showPageOfWindow(const QString& form);
  void showSearch();

  /// Stands over a dialog that blocks every window but those that belong to it; over nothing when null.
  void standOver(QWidget* dialog);

  /// The page on show.
  [[nodiscard]] const HelpPage& page() const;

 private:
  void layOut();
  void addKeys();
  void open(const HelpPage& page);
  /// Shows a page without any search.
  void comeUpWith(const HelpPage& page);
  void comeToFront();
  void search();
  /// Goes to the next place of the words, on this page or on the next one that holds them.
  void goToNext(bool backwards = false);
  void listPages();
  void selectPage();

  HelpPages pages_;
  QStringList words_;
  /// The pages that are listed.
  std::vector<const HelpPage*> listed_;

  QLineEdit* searchBox_;
  QLabel* result_;
  QListWidget* list_;
  QPushButton* back_;
  QPushButton* contents_;
  HelpBrowser* browser_;
};

}  // namespace pantrigo
