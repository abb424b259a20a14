#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>

#include "desktop/look.h"
#include "desktop/screen_area.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  pantrigo::applyLook(application, pantrigo::screenArea(QGuiApplication::primaryScreen()->availableGeometry()).scale);
  return RUN_ALL_TESTS();
}
