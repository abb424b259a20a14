#include "desktop/pictures.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QWindow>

#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// Longest wait for a window to be on the screen and painted, in milliseconds.
constexpr int paintTime = 500;

void waitForPaint(const QWidget& window) {
  QElapsedTimer waited;
  waited.start();
  while (waited.elapsed() < paintTime && (window.windowHandle() == nullptr || !window.windowHandle()->isExposed())) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  QCoreApplication::processEvents();
}

bool writePicture(Desktop& desktop, const Form& form, const QString& folder) {
  FormView* window = desktop.toolkit().view(form);
  if (window == nullptr) return false;
  waitForPaint(*window);
  return window->grab().save(QDir(folder).filePath(window->objectName() + QStringLiteral(".png")));
}

}  // namespace

bool writePictures(Desktop& desktop, const QString& folder) {
  if (!QDir().mkpath(folder)) return false;
  Run& run = desktop.program().run();
  ListBox& titles = run.frmBrowse.lstTitles;
  if (titles.ListCount() > 0) desktop.toolkit().dispatch([&](Windows& windows) { userPicks(windows, titles, 0); });
  bool written = writePicture(desktop, run.frmBrowse, folder);
  desktop.toolkit().dispatch([&](Windows& windows) { userDoubleClicks(windows, titles); });
  written = writePicture(desktop, run.frmDetail, folder) && written;
  return written;
}

}  // namespace pantrigo
