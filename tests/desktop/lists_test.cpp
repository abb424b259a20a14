#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

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

}  // namespace

}  // namespace pantrigo
