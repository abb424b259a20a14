#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSet>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include "desktop/desktop_test.h"
#include "desktop/dialog_checks.h"
#include "desktop/row_delegate.h"

namespace pantrigo {

namespace {

using Texts = std::vector<std::string>;

/// Rows that take several turns of the event pump to list.
constexpr int manyRecipes = 600;

class BrowseKeysTest : public DesktopTest {
 protected:
  [[nodiscard]] FrmBrowse& browse() { return run().frmBrowse; }
  [[nodiscard]] QListView& titles() { return widget<QListView>(browse().lstTitles); }
  [[nodiscard]] QMenuBar& menuBar() { return *window(browse()).findChild<QMenuBar*>(); }
  [[nodiscard]] QToolButton& button(const char* key) { return *window(browse()).findChild<QToolButton*>(key); }

  void goToTitles() { titles().setFocus(Qt::TabFocusReason); }
  void showContinuedPage() { QTest::mouseClick(&widget<QWidget>(browse().lblFilters), Qt::LeftButton); }

  /// The window has the keyboard, which a window manager would give it, also back after a dialog. A window counts as
  /// active already when one above it is, so this asks the program.
  void awaitActive() {
    window(browse()).activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window(browse()); }));
  }

  /// Opens a menu of the bar by its access key, and goes on from menu to entry by theirs.
  void byKeys(Qt::Key menu, const std::vector<Qt::Key>& entries = {}) {
    awaitActive();
    QTest::keyClick(&window(browse()), menu, Qt::AltModifier);
    for (const Qt::Key entry : entries) {
      QWidget* popup = QApplication::activePopupWidget();
      ASSERT_NE(popup, nullptr);
      QTest::keyClick(popup, entry);
    }
  }

  void clickInBar(const MenuEntry& entry) {
    awaitActive();
    QTest::mouseClick(&menuBar(), Qt::LeftButton, {}, menuBar().actionGeometry(&action(entry)).center());
  }

  /// Filters the list, and does something at the first turn of the event pump in that.
  void whileBuilding(const std::function<void()>& work) {
    bool done = false;
    // A pump that has just turned leaves the next turn out.
    QTest::qWait(20);
    QTimer::singleShot(0, &window(browse()), [&] {
      done = true;
      EXPECT_TRUE(browse().mbBusy);
      work();
    });
    QTest::mouseClick(&button("Filter"), Qt::LeftButton);
    EXPECT_TRUE(done);
  }
};

void turnWheel(QWidget& over, int notches) {
  constexpr int notch = 120;
  const QPointF place = over.rect().center();
  QWheelEvent event(place, over.mapToGlobal(place), {}, {0, -notch * notches}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&over, &event);
}

/// All captions of a menu as they are shown, those of a menu inside it behind a mark.
void addCaptions(const QWidget& menu, const std::string& mark, Texts& captions) {
  for (const QAction* action : menu.actions()) {
    captions.push_back(mark + (action->isSeparator() ? "-" : action->text().toStdString()));
    if (action->menu() != nullptr) addCaptions(*action->menu(), mark + "> ", captions);
  }
}

void expectDifferentAccessKeys(const QWidget& menu) {
  QSet<QChar> keys;
  for (const QAction* action : menu.actions()) {
    if (action->menu() != nullptr) expectDifferentAccessKeys(*action->menu());
    if (action->isSeparator()) continue;
    const QString text = action->text();
    const qsizetype sign = text.indexOf(QLatin1Char('&'));
    ASSERT_GE(sign, 0) << text.toStdString();
    const QChar key = text.at(sign + 1).toUpper();
    EXPECT_FALSE(keys.contains(key)) << text.toStdString();
    keys.insert(key);
  }
}

/// Counts how often rows are painted and measured.
class CountingDelegate : public RowDelegate {
 public:
  using RowDelegate::RowDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    ++paints;
    RowDelegate::paint(painter, option, index);
  }
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    ++measures;
    return RowDelegate::sizeHint(option, index);
  }
  mutable int paints = 0;
  mutable int measures = 0;
};

// The tab key.

TEST_F(BrowseKeysTest, TheTabKeyGoesThroughTheFirstPageInReadingOrderAndThenToTheList) {
  start();
  Texts names = tabRound(window(browse()));
  EXPECT_EQ(names, (Texts{"txtTitle", "txtIngredient", "cmbNationality", "cmbCourse", "cmbCooking", "cmbEase",
                          "lstHealth", "lstOther", "chkMeal", "lstTitles"}));
  names.pop_back();
  expectReadingOrder(window(browse()), names);
}

TEST_F(BrowseKeysTest, TheTabKeyGoesThroughTheContinuedPageInReadingOrderAndThenToTheList) {
  start();
  showContinuedPage();
  Texts names = tabRound(window(browse()));
  EXPECT_EQ(names, (Texts{"txtSource", "txtPrepareTime", "txtCookTime", "txtEnergy", "txtProtein", "txtCarbohydrates",
                          "txtFibre", "txtFat", "txtCholesterol", "txtSodium", "txtCalcium", "txtIron", "txtComments",
                          "txtMethod", "lstTitles"}));
  names.pop_back();
  expectReadingOrder(window(browse()), names);
}

TEST_F(BrowseKeysTest, TheTabKeyPassesOverWhatTheTickForTheMealShuts) {
  start();
  widget<QWidget>(browse().chkMeal).setFocus(Qt::TabFocusReason);
  press(browse(), Qt::Key_Space);
  EXPECT_TRUE(browse().chkMeal.Value());
  EXPECT_EQ(tabRound(window(browse())), (Texts{"chkMeal", "lstTitles"}));
}

// The menus.

TEST_F(BrowseKeysTest, TheMenusStandInTheirOrder) {
  start();
  Texts captions;
  addCaptions(menuBar(), "", captions);
  EXPECT_EQ(captions, (Texts{"&File",
                             "> &Options",
                             "> -",
                             "> Printer &Setup",
                             "> &Print",
                             "> -",
                             "> &Import",
                             "> > Master&Cook (TM) Format",
                             "> > &Meal Master (TM) Format",
                             "> > &Pantrigo Format",
                             "> > &View / Print Import Log",
                             "> > &List Last Imported Recipes",
                             "> -",
                             "> E&xit\tEsc",
                             "&Edit",
                             "> &Clear",
                             "> &Filter",
                             "> -",
                             "> &Add",
                             "> &Update",
                             "> &Delete",
                             "&Navigate",
                             "> &First",
                             "> &Previous",
                             "> &Next",
                             "> &Last",
                             "&Settings",
                             "&Categories",
                             "> &Nationality",
                             "> &Course",
                             "> Coo&king",
                             "> &Ease",
                             "> &Health",
                             "> &Other",
                             "&Meal",
                             "&List",
                             "> &Add / Update",
                             "> > &Nationality",
                             "> > &Course",
                             "> > Coo&king",
                             "> > &Ease",
                             "> > &Health",
                             "> > &Other",
                             "> &Delete",
                             "> > &Health",
                             "> > &Other",
                             "> > &Recipes",
                             "> &Export",
                             "> &Include/Exclude From Meal",
                             "> &Last Imported Recipes",
                             "> &Print",
                             "> > &All Recipe Details",
                             "> > &Ingredients/Method Only",
                             "> &Remove Recipe From List",
                             "&Help",
                             "> &Contents",
                             "> &Search",
                             "> &About"}));
  expectDifferentAccessKeys(menuBar());
}

TEST_F(BrowseKeysTest, EntriesArePickedByAccessKeys) {
  start();
  byKeys(Qt::Key_N, {Qt::Key_L});
  EXPECT_EQ(browse().lstTitles.ListIndex(), 2);
  EXPECT_TRUE(titles().hasFocus());
  byKeys(Qt::Key_N, {Qt::Key_P});
  EXPECT_EQ(browse().lstTitles.ListIndex(), 1);
  byKeys(Qt::Key_M);
  EXPECT_EQ(browse().lstTitles.Colours(1).foreColor, 1);
  byKeys(Qt::Key_F, {Qt::Key_I, Qt::Key_V});
  byKeys(Qt::Key_L, {Qt::Key_L});
  const std::vector<SeenBox> boxes = dialogs.boxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text, "No errors or warnings found for last import.");
  EXPECT_EQ(boxes[1].text, "No recipe details found for last import.");
  EXPECT_EQ(boxes[1].caption, "Information");
  byKeys(Qt::Key_F, {Qt::Key_X});
  EXPECT_TRUE(desktop().program().ended());
}

TEST_F(BrowseKeysTest, EscInAMenuClosesTheMenuAlone) {
  start();
  byKeys(Qt::Key_E);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_FALSE(desktop().program().ended());
}

TEST_F(BrowseKeysTest, AnEntryOfTheBarIsNotMarkedWhileItsDialogIsOpen) {
  start();
  int seen = 0;
  const auto expectUnmarked = [&](QWidget& dialog) {
    ++seen;
    // A window manager brings the keyboard here first, and takes it back when the dialog goes.
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
    EXPECT_EQ(menuBar().activeAction(), nullptr) << seen;
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
  };
  dialogs.whenShown("frmSettings", [&] { expectUnmarked(window(run().frmSettings)); });
  clickInBar(browse().mnuSettings);
  dialogs.whenShown("frmSettings", [&] { expectUnmarked(window(run().frmSettings)); });
  byKeys(Qt::Key_S);
  dialogs.whenShown("frmCategory", [&] { expectUnmarked(window(run().frmCategory)); });
  byKeys(Qt::Key_C, {Qt::Key_C});
  dialogs.whenBoxShown([&] { expectUnmarked(*QApplication::activeModalWidget()); });
  clickInBar(browse().mnuMeal);
  dialogs.whenBoxShown([&] { expectUnmarked(*QApplication::activeModalWidget()); });
  byKeys(Qt::Key_M);
  EXPECT_EQ(seen, 5);
}

// The list.

TEST_F(BrowseKeysTest, TheEndsOfTheListAreReachedFromNoSelection) {
  start();
  goToTitles();
  press(browse(), Qt::Key_End);
  EXPECT_EQ(browse().lstTitles.ListIndex(), 2);
  press(browse(), Qt::Key_Home);
  EXPECT_EQ(browse().lstTitles.ListIndex(), 0);
}

TEST_F(BrowseKeysTest, TypedLettersSelectAndPaintATitle) {
  start();
  goToTitles();
  run().frmBrowse.lstTitles.setForeColor(1, 1);
  type(browse(), "BE");
  EXPECT_EQ(browse().lstTitles.ListIndex(), 1);
  EXPECT_EQ(browse().lstTitles.Colours(1).foreColor, 6);
  EXPECT_EQ(browse().lstTitles.Colours(1).selForeColor, 6);
  EXPECT_EQ(titles().currentIndex().row(), 1);
}

TEST_F(BrowseKeysTest, BothEnterKeysOpenTheSelectedRecipe) {
  start();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    goToTitles();
    press(browse(), Qt::Key_End);
    press(browse(), key);
    ASSERT_TRUE(run().frmDetail.Visible());
    EXPECT_EQ(run().frmDetail.txtTitle.Text(), "Carrot Cake");
    press(run().frmDetail, Qt::Key_Escape);
    EXPECT_FALSE(run().frmDetail.Visible());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window(browse())));
  }
}

TEST_F(BrowseKeysTest, TheDeleteKeyAsksUnderTheHourglass) {
  start();
  goToTitles();
  press(browse(), Qt::Key_End);
  dialogs.whenBoxShown([&] {
    EXPECT_EQ(window(browse()).cursor().shape(), Qt::WaitCursor);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  press(browse(), Qt::Key_Delete);
  EXPECT_EQ(browse().lstTitles.ListCount(), 3);
  EXPECT_EQ(window(browse()).cursor().shape(), Qt::ArrowCursor);
  dialogs.answer("Yes");
  press(browse(), Qt::Key_Delete);
  const std::vector<SeenBox> boxes = dialogs.boxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[1].text, "Are you sure you want to delete this recipe?");
  EXPECT_EQ(browse().lstTitles.ListCount(), 2);
  EXPECT_EQ(browse().lstTitles.ListIndex(), 0);
  EXPECT_EQ(browse().fmeList.Caption(), "2 recipe(s) displayed");
  EXPECT_EQ(window(browse()).focusWidget(), &titles());
}

TEST_F(BrowseKeysTest, TheDeleteKeyInABoxDeletesALetter) {
  start();
  clickRow(browse().lstTitles, 0);
  widget<QWidget>(browse().txtTitle).setFocus(Qt::TabFocusReason);
  type(browse(), "pie");
  press(browse(), Qt::Key_Home);
  press(browse(), Qt::Key_Delete);
  EXPECT_EQ(browse().txtTitle.Text(), "ie");
  EXPECT_TRUE(dialogs.boxes().empty());
}

TEST_F(BrowseKeysTest, TheWheelLeavesAComboBoxAloneThatIsNotInUse) {
  start();
  auto& course = widget<QComboBox>(browse().cmbCourse);
  turnWheel(course, 1);
  EXPECT_EQ(browse().cmbCourse.Text(), "");
  course.setFocus(Qt::TabFocusReason);
  turnWheel(course, 1);
  EXPECT_EQ(browse().cmbCourse.Text(), "Dessert");
}

TEST_F(BrowseKeysTest, AHundredThousandRowsArePaintedByTheScreenful) {
  constexpr int rows = 100000;
  start();
  for (int row = 0; row < rows; ++row) browse().lstTitles.AddItem("Title " + std::to_string(row));
  ASSERT_TRUE(QTest::qWaitFor([&] { return titles().model()->rowCount() == rows + 3; }));
  auto* counter = new CountingDelegate(browse().lstTitles, &titles());
  titles().setItemDelegate(counter);
  titles().viewport()->repaint();
  // A row may show a part at each end.
  const int screenful = titles().viewport()->height() / titles().visualRect(titles().model()->index(0, 0)).height() + 2;
  EXPECT_LE(counter->paints, 2 * screenful);
  counter->paints = 0;
  constexpr int turns = 50;
  for (int turn = 0; turn < turns; ++turn) {
    turnWheel(*titles().viewport(), 3);
    titles().viewport()->repaint();
  }
  EXPECT_GT(titles().verticalScrollBar()->value(), 0);
  EXPECT_GT(counter->paints, turns);
  EXPECT_LE(counter->paints, turns * screenful);
  EXPECT_EQ(browse().lstTitles.ListIndex(), -1);
  goToTitles();
  counter->paints = 0;
  press(browse(), Qt::Key_End);
  titles().viewport()->repaint();
  EXPECT_EQ(browse().lstTitles.ListIndex(), rows + 2);
  EXPECT_LE(counter->paints, 3 * screenful);
  EXPECT_LE(counter->measures, 2 * turns);
}

// Long work.

TEST_F(BrowseKeysTest, AFilteredListSaysItsCountAndHasTheFocus) {
  start();
  type(browse(), "pie");
  byKeys(Qt::Key_E, {Qt::Key_F});
  EXPECT_EQ(browse().fmeList.Caption(), "1 recipe(s) displayed");
  EXPECT_EQ(browse().lstTitles.ListIndex(), 0);
  EXPECT_TRUE(titles().hasFocus());
}

TEST_F(BrowseKeysTest, APressOfStopEndsABuild) {
  addRecipes(path(), manyRecipes);
  start();
  EXPECT_EQ(browse().fmeList.Caption(), "603 recipe(s) displayed");
  const QRect place = button("Filter").geometry();
  whileBuilding([&] {
    EXPECT_EQ(window(browse()).cursor().shape(), Qt::WaitCursor);
    EXPECT_FALSE(button("Filter").isVisible());
    EXPECT_TRUE(button("Stop").isVisible());
    EXPECT_TRUE(button("Stop").isEnabled());
    EXPECT_EQ(button("Stop").geometry(), place);
    EXPECT_EQ(browse().fmeList.Caption(), std::to_string(browse().lstTitles.ListCount()) + " recipe(s) displayed");
    QTest::mouseClick(&button("Stop"), Qt::LeftButton);
  });
  EXPECT_EQ(browse().lstTitles.ListCount(), 100);
  EXPECT_EQ(browse().fmeList.Caption(), "100 recipe(s) displayed");
  EXPECT_TRUE(QTest::qWaitFor([&] { return titles().model()->rowCount() == 100; }));
  EXPECT_TRUE(button("Filter").isVisible());
  EXPECT_FALSE(button("Stop").isVisible());
  EXPECT_EQ(window(browse()).cursor().shape(), Qt::ArrowCursor);
  EXPECT_FALSE(browse().mbBusy);
}

TEST_F(BrowseKeysTest, ABuildThatNobodyStopsShutsOutTheCommandsAndListsAll) {
  addRecipes(path(), manyRecipes);
  start();
  whileBuilding([&] {
    QTest::mouseClick(&button("Add"), Qt::LeftButton);
    byKeys(Qt::Key_S);
    goToTitles();
    press(browse(), Qt::Key_Down);
    press(browse(), Qt::Key_Return);
    EXPECT_FALSE(run().frmDetail.Visible());
    EXPECT_FALSE(run().frmSettings.Loaded());
  });
  EXPECT_EQ(browse().lstTitles.ListCount(), manyRecipes + 3);
  EXPECT_EQ(browse().fmeList.Caption(), "603 recipe(s) displayed");
  EXPECT_EQ(browse().lstTitles.ListIndex(), 0);
}

TEST_F(BrowseKeysTest, EscInABuildEndsTheProgram) {
  addRecipes(path(), manyRecipes);
  start();
  whileBuilding([&] { press(browse(), Qt::Key_Escape); });
  EXPECT_TRUE(desktop().program().ended());
  EXPECT_EQ(desktop().program().exitStatus(), 0);
  EXPECT_FALSE(std::filesystem::exists(path() / "PANTRIGO.MDB-wal"));
}

}  // namespace

}  // namespace pantrigo
