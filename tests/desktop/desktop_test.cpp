#include "desktop/desktop_test.h"

#include <QListView>

namespace pantrigo {

void DesktopTest::clickRow(const ListBox& list, int row) {
  auto& view = widget<QListView>(list);
  const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
}

void DesktopTest::doubleClickRow(const ListBox& list, int row) {
  auto& view = widget<QListView>(list);
  const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

}  // namespace pantrigo
