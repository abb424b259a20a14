#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <string>
#include <utility>
#include <vector>

#include "desktop/dialog_answers.h"
#include "desktop/qt_toolkit.h"
#include "desktop/row_list.h"
#include "forms/frmBrowse.h"

namespace pantrigo {

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& watched) { watched.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
  int paints = 0;
};

TEST(RowListPainting, IsBoundToTheDisplayAndNotToTheRows) {
  FrmBrowse browse;
  ListBox& titles = browse.lstTitles;
  titles.setSorted(1);
  RowList view(titles, {}, nullptr);
  view.resize(300, 300);
  view.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
  QTest::qWait(50);
  PaintCounter counter(*view.viewport());
  QElapsedTimer time;
  time.start();
  for (int row = 0; row < 5000; ++row) {
    titles.AddItem("Title " + std::to_string((row * 7919) % 5000));
    view.rowsChanged();
    titles.setForeColor(row, 6);
    view.coloursChanged();
    if (row % 10 == 0) QCoreApplication::processEvents();
  }
  // A frame lasts 16 ms; one more paint may come at each end.
  EXPECT_LE(counter.paints, time.elapsed() / 16 + 2);
  ASSERT_TRUE(QTest::qWaitFor([&] { return view.model()->rowCount() == 5000; }, 1000));
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "Title 0");
  EXPECT_EQ(view.model()->index(4999, 0).data().toString(), "Title 999");
}

TEST(RowListPainting, AColourAloneIsShownToo) {
  FrmBrowse browse;
  browse.lstTitles.AddItem("Apple Pie");
  RowList view(browse.lstTitles, {}, nullptr);
  view.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
  QTest::qWait(50);
  PaintCounter counter(*view.viewport());
  browse.lstTitles.setForeColor(0, 6);
  view.coloursChanged();
  EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > 0; }, 1000));
}

struct ListForm : Form {
  ListForm() : Form("frmLists", "Lists", 6000, 3000) { sealDesign(&txtFirst); }
  TextBox txtFirst{*this, "txtFirst", {0, 0, 2000, 300}};
  ListBox lstRows{*this, "lstRows", {0, 500, 2000, 2000}};
};

struct EditorForm : Form {
  EditorForm() : Form("frmEditor", "Editor", 3000, 1500) {
    setCancelButton(cmdCancel);
    sealDesign();
  }
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel", {100, 100, 1000, 400}};
};

/// A list whose first focus opens a dialog while it is empty, and so does each press.
class ListPressTest : public testing::Test {
 protected:
  void SetUp() override {
    toolkit.attach(windows);
    form.lstRows.GotFocus = [this] {
      log.push_back("GotFocus");
      // The focus comes back when the dialog goes.
      if (form.lstRows.ListCount() == 0 && !std::exchange(offered, true)) windows.ShowModal(editor);
    };
    form.lstRows.MouseDown = [this](int button) {
      log.push_back("MouseDown " + std::to_string(button));
      if (form.lstRows.ListCount() == 0) windows.ShowModal(editor);
    };
    form.lstRows.Click = [this] { log.push_back("Click"); };
    editor.cmdCancel.Click = [this] { windows.Unload(editor); };
    windows.Show(form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(toolkit.view(form)));
  }
  void TearDown() override { toolkit.dropAllViews(); }

  /// What is done each time the dialog has come up.
  void whenShown(const std::function<void()>& action) {
    dialogs.whenShown("frmEditor", [this, action] {
      log.push_back("dialog");
      whenShown(action);
      action();
      QTest::keyClick(toolkit.view(editor)->widgetOf(editor.cmdCancel), Qt::Key_Escape);
    });
  }
  [[nodiscard]] QListView& list() { return dynamic_cast<QListView&>(*toolkit.view(form)->widgetOf(form.lstRows)); }

  DialogAnswers dialogs;
  QtToolkit toolkit;
  EventLoop loop{toolkit};
  Windows windows{loop};
  ListForm form;
  EditorForm editor;
  bool offered = false;
  std::vector<std::string> log;
};

TEST_F(ListPressTest, APressFollowsTheFocusAlsoWhenThatOpenedADialog) {
  whenShown([] {});
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(20, 8));
  EXPECT_EQ(log, (std::vector<std::string>{"GotFocus", "dialog", "GotFocus", "MouseDown 1", "dialog", "GotFocus"}));
  EXPECT_EQ(form.ActiveControl(), &form.lstRows);
}

TEST_F(ListPressTest, ARowThatTheDialogAddedIsNotClicked) {
  whenShown([this] { form.lstRows.AddItem("flour"); });
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(20, 8));
  EXPECT_EQ(log, (std::vector<std::string>{"GotFocus", "dialog", "GotFocus", "MouseDown 1"}));
  EXPECT_EQ(form.lstRows.ListIndex(), -1);
}

TEST_F(ListPressTest, ThePressOfARowIsFocusThenPressThenClick) {
  form.lstRows.AddItem("flour");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(20, 8));
  EXPECT_EQ(log, (std::vector<std::string>{"GotFocus", "MouseDown 1", "Click"}));
  EXPECT_TRUE(list().hasFocus());
}

TEST_F(ListPressTest, TheRightButtonPressesTheListItself) {
  form.lstRows.AddItem("flour");
  QTest::mouseClick(list().viewport(), Qt::RightButton, {}, QPoint(20, 8));
  EXPECT_EQ(log, (std::vector<std::string>{"GotFocus", "MouseDown 2"}));
  EXPECT_EQ(form.lstRows.ListIndex(), -1);
}

}  // namespace

}  // namespace pantrigo
