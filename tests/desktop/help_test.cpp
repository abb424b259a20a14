#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>
#include <QWindow>

#include "core/messages.h"
#include "desktop/desktop_test.h"
#include "desktop/help_window.h"

namespace pantrigo {

namespace {

// The pages.

/// Where the links of a page lead, as the page has them.
QStringList linksOf(const HelpPage& page) {
  QTextDocument document;
  QFile file(QLatin1Char(':') + page.source.path());
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  document.setMarkdown(QString::fromUtf8(file.readAll()));
  QStringList links;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextCharFormat format = piece.fragment().charFormat();
      if (format.isAnchor()) links.append(format.anchorHref());
    }
  }
  return links;
}

TEST(HelpPages, EveryPageHasATitleOfItsOwnAndAText) {
  const HelpPages pages;
  QStringList titles;
  for (const HelpPage& page : pages.all()) {
    EXPECT_FALSE(page.title.isEmpty()) << page.source.path().toStdString();
    EXPECT_GT(page.text.size(), 2 * page.title.size()) << page.source.path().toStdString();
    EXPECT_FALSE(titles.contains(page.title)) << page.title.toStdString();
    titles.append(page.title);
  }
  EXPECT_GT(titles.size(), 10);
}

TEST(HelpPages, EveryContextOfTheProgramHasItsPage) {
  const HelpPages pages;
  for (const int context : {helpContents, helpBrowse, helpOptions, helpView, helpSettings, helpCategory, helpDetail,
                            helpIngredient, helpNutrition, helpSource}) {
    const std::vector<int>& contexts = pages.ofContext(context).contexts;
    EXPECT_EQ(std::count(contexts.begin(), contexts.end(), context), 1) << context;
  }
  EXPECT_EQ(pages.ofContext(helpIngredient).title, "Entering ingredients");
}

TEST(HelpPages, AContextWithoutAPageShowsTheContents) {
  const HelpPages pages;
  constexpr int unknown = 9999;
  EXPECT_EQ(&pages.ofContext(unknown), &pages.contents());
  EXPECT_EQ(&pages.ofWindow("frmNowhere"), &pages.contents());
  EXPECT_EQ(pages.contents().contexts, std::vector<int>{helpContents});
}

TEST(HelpPages, EveryLinkLeadsToAPageAndEveryPageIsLinked) {
  const HelpPages pages;
  QStringList reached{pages.contents().source.toString()};
  for (const HelpPage& page : pages.all()) {
    for (const QString& link : linksOf(page)) {
      const HelpPage* target = pages.at(page.source.resolved(QUrl(link)));
      EXPECT_NE(target, nullptr) << page.title.toStdString() << ": " << link.toStdString();
      EXPECT_NE(target, &page) << page.title.toStdString();
      if (target != nullptr) reached.append(target->source.toString());
    }
  }
  for (const HelpPage& page : pages.all())
    EXPECT_TRUE(reached.contains(page.source.toString())) << page.title.toStdString();
}

TEST(HelpPages, ThePagesNameNoMarksThatAReaderWouldSee) {
  const HelpPages pages;
  for (const HelpPage& page : pages.all()) {
    EXPECT_FALSE(page.text.contains("**")) << page.title.toStdString();
    EXPECT_FALSE(page.text.contains("](")) << page.title.toStdString();
    EXPECT_FALSE(page.text.contains(QRegularExpression("^#", QRegularExpression::MultilineOption)));
  }
}

TEST(HelpPages, TheSearchWantsAllWordsAndPutsTitlesFirst) {
  const HelpPages pages;
  const auto titles = [&](const char* text) {
    QStringList found;
    for (const HelpPage* page : pages.holding(searchWords(text))) found.append(page->title);
    return found;
  };
  EXPECT_EQ(titles("FAHRENHEIT"), QStringList{"Oven temperatures"});
  EXPECT_EQ(titles("fahrenheit backup"), QStringList());
  EXPECT_EQ(titles("nutrition").first(), "Nutrition");
  EXPECT_GT(titles("nutrition").size(), 3);
  EXPECT_EQ(titles("  "), titles(""));
  EXPECT_EQ(titles("").size(), static_cast<qsizetype>(pages.all().size()));
}

TEST(HelpPages, WordsCountOnceWhateverTheirCase) {
  EXPECT_EQ(searchWords("  Cup spoon  CUP "), (QStringList{"cup", "spoon"}));
  EXPECT_EQ(searchWords(""), QStringList());
}

// The window.

class HelpTest : public DesktopTest {
 protected:
  [[nodiscard]] HelpWindow& help() { return *desktop().toolkit().helpWindow(); }
  [[nodiscard]] QString title() { return help().page().title; }
  [[nodiscard]] QLineEdit& box() { return *help().findChild<QLineEdit*>("helpSearch"); }
  [[nodiscard]] QListWidget& list() { return *help().findChild<QListWidget*>("helpPages"); }
  [[nodiscard]] QTextBrowser& browser() { return *help().findChild<QTextBrowser*>("helpPage"); }
  /// The title of the page that the list has selected.
  [[nodiscard]] std::string listed() {
    return list().currentItem() == nullptr ? "" : fromQt(list().currentItem()->text());
  }
  /// The place that a search has come to.
  [[nodiscard]] QString marked() { return browser().textCursor().selectedText(); }

  void pressF1(const Form& form) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window(form); }));
    press(form, Qt::Key_F1);
    ASSERT_NE(desktop().toolkit().helpWindow(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &help(); }));
  }
  /// Clicks into the search through the window, as the system does, which a dialog would keep off a blocked window.
  void clickBox() {
    EXPECT_NE(help().focusWidget(), &box());
    const QPoint place = box().mapTo(&help(), QPoint(box().width() / 2, box().height() / 2));
    QTest::mouseClick(help().windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_EQ(help().focusWidget(), &box());
  }
  void openSearch() {
    action(run().frmBrowse.mnuSearch).trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&help()));
  }
};

TEST_F(HelpTest, EveryWindowHasAPage) {
  start();
  const HelpPages pages;
  for (const Form* form : run().forms()) {
    EXPECT_TRUE(pages.ofWindow(toQt(form->Name())).windows.contains(toQt(form->Name()))) << form->Name();
  }
}

TEST_F(HelpTest, TheMenuAndTheToolBarOpenTheirPages) {
  start();
  action(run().frmBrowse.mnuContents).trigger();
  EXPECT_TRUE(help().isVisible());
  EXPECT_EQ(title(), "Welcome to Pantrigo");
  EXPECT_EQ(list().count(), static_cast<int>(HelpPages().all().size()));
  EXPECT_EQ(listed(), "Welcome to Pantrigo");
  QTest::mouseClick(window(run().frmBrowse).findChild<QWidget*>("Help"), Qt::LeftButton);
  EXPECT_EQ(title(), "The list of recipes");
  EXPECT_EQ(listed(), "The list of recipes");
}

TEST_F(HelpTest, F1OpensThePageOfTheWindow) {
  start();
  pressF1(run().frmBrowse);
  EXPECT_EQ(title(), "The list of recipes");
  window(run().frmBrowse).activateWindow();
  open(0);
  pressF1(run().frmDetail);
  EXPECT_EQ(title(), "The recipe");
  EXPECT_TRUE(browser().toPlainText().contains("Changes") || browser().toPlainText().contains("changes"));
}

TEST_F(HelpTest, F1InABoxThatTakesKeysOpensThePage) {
  start();
  open(0);
  auto& method = widget<QWidget>(run().frmDetail.txtMethod);
  method.setFocus();
  QTest::keyClick(&method, Qt::Key_F1);
  ASSERT_NE(desktop().toolkit().helpWindow(), nullptr);
  EXPECT_EQ(title(), "The recipe");
}

TEST_F(HelpTest, TheHelpWorksOverADialogThatIsModal) {
  start();
  bool wasShown = false;
  dialogs.whenShown("frmSettings", [&] {
    wasShown = true;
    pressF1(run().frmSettings);
    EXPECT_EQ(title(), "How many people?");
    EXPECT_EQ(help().windowHandle()->transientParent(), window(run().frmSettings).windowHandle());
    clickBox();
    QTest::keyClicks(&box(), "oven");
    EXPECT_EQ(box().text(), "oven");
    QTest::keyClick(&help(), Qt::Key_Escape);
    EXPECT_FALSE(help().isVisible());
    EXPECT_TRUE(run().frmSettings.Visible());
    press(run().frmSettings, Qt::Key_Escape);
  });
  action(run().frmBrowse.mnuSettings).trigger();
  EXPECT_TRUE(wasShown);
  EXPECT_FALSE(run().frmSettings.Loaded());
}

TEST_F(HelpTest, AnOpenHelpStaysUsableWhenADialogComesAndGoes) {
  start();
  pressF1(run().frmBrowse);
  QWindow* const none = nullptr;
  EXPECT_EQ(help().windowHandle()->transientParent(), none);
  dialogs.whenShown("frmSettings", [&] {
    EXPECT_EQ(help().windowHandle()->transientParent(), window(run().frmSettings).windowHandle());
    clickBox();
    press(run().frmSettings, Qt::Key_Escape);
  });
  action(run().frmBrowse.mnuSettings).trigger();
  EXPECT_TRUE(help().isVisible());
  EXPECT_EQ(help().windowHandle()->transientParent(), none);
}

TEST_F(HelpTest, LookingAtTheHelpActivatesNoWindowOfTheProgram) {
  start();
  open(0);
  run().frmDetail.txtServes.setText("9");
  pressF1(run().frmDetail);
  QTest::keyClick(&help(), Qt::Key_Escape);
  window(run().frmDetail).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window(run().frmDetail)));
  EXPECT_EQ(run().frmDetail.txtServes.Text(), "9");
  EXPECT_EQ(run().windows.active(), &run().frmDetail);
}

TEST_F(HelpTest, AClickInTheListShowsThePageAndAltLeftGoesBack) {
  start();
  pressF1(run().frmBrowse);
  auto& back = *help().findChild<QPushButton*>("helpBack");
  EXPECT_FALSE(back.isEnabled());
  QListWidgetItem* keys = list().findItems("Keys", Qt::MatchExactly).first();
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualItemRect(keys).center());
  EXPECT_EQ(title(), "Keys");
  EXPECT_TRUE(back.isEnabled());
  QTest::keyClick(&help(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(title(), "The list of recipes");
  EXPECT_EQ(listed(), "The list of recipes");
  QTest::keyClick(&help(), Qt::Key_F1);
  EXPECT_EQ(title(), "Welcome to Pantrigo");
}

TEST_F(HelpTest, ALinkLeadsOnByTheKeyboard) {
  start();
  action(run().frmBrowse.mnuContents).trigger();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help()));
  QTest::keyClick(&browser(), Qt::Key_Tab);
  QTest::keyClick(&browser(), Qt::Key_Return);
  EXPECT_EQ(title(), "The list of recipes");
}

TEST_F(HelpTest, TheSearchListsThePagesThatHaveTheWord) {
  start();
  openSearch();
  EXPECT_TRUE(box().hasFocus());
  QTest::keyClicks(&box(), "fahrenheit");
  ASSERT_EQ(list().count(), 1);
  auto& result = *help().findChild<QLabel*>("helpResult");
  EXPECT_TRUE(result.isVisible());
  EXPECT_EQ(result.text().toStdString(), "1 page has that.");
  EXPECT_EQ(list().item(0)->text().toStdString(), "Oven temperatures");
  EXPECT_EQ(title(), "Welcome to Pantrigo");
  QTest::keyClick(&box(), Qt::Key_Return);
  EXPECT_EQ(title(), "Oven temperatures");
  EXPECT_EQ(marked(), "Fahrenheit");
  box().setText("oven gallon");
  EXPECT_EQ(result.text().toStdString(), "No pages have that.");
  box().clear();
  EXPECT_FALSE(result.isVisible());
  EXPECT_EQ(list().count(), static_cast<int>(HelpPages().all().size()));
}

TEST_F(HelpTest, APageThatIsAskedForEndsTheSearch) {
  start();
  openSearch();
  QTest::keyClicks(&box(), "fahrenheit");
  action(run().frmBrowse.mnuContents).trigger();
  EXPECT_EQ(box().text(), QString());
  EXPECT_EQ(listed(), "Welcome to Pantrigo");
}

TEST_F(HelpTest, EnterAndF3GoFromPlaceToPlaceAndFromPageToPage) {
  start();
  openSearch();
  QTest::keyClicks(&box(), "gallon");
  EXPECT_EQ(list().count(), 0);
  QTest::keyClick(&box(), Qt::Key_Return);
  EXPECT_EQ(title(), "Welcome to Pantrigo");
  box().setText("oven");
  QStringList pages;
  for (int row = 0; row < list().count(); ++row) pages.append(list().item(row)->text());
  ASSERT_GT(pages.size(), 2);
  EXPECT_EQ(pages.first(), "Oven temperatures");
  QStringList seen;
  constexpr int enough = 200;
  for (int step = 0; step < enough && !(seen.size() > 1 && seen.last() == seen.first()); ++step) {
    QTest::keyClick(&help(), Qt::Key_F3);
    EXPECT_EQ(marked().toLower(), "oven");
    if (seen.isEmpty() || seen.last() != title()) seen.append(title());
  }
  EXPECT_EQ(seen.size(), pages.size() + 1);
  const int place = browser().textCursor().position();
  QTest::keyClick(&help(), Qt::Key_F3);
  QTest::keyClick(&help(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(browser().textCursor().position(), place);
}

TEST_F(HelpTest, TheHelpGoesWithTheProgram) {
  start();
  pressF1(run().frmBrowse);
  desktop().close();
  EXPECT_TRUE(desktop().program().ended());
}

}  // namespace

}  // namespace pantrigo
