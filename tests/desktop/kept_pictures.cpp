#include "desktop/kept_pictures.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace pantrigo {

namespace {

QString pictureFolder() {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  return QStringLiteral("%1/%2x%3@%4")
      .arg(QStringLiteral(PANTRIGO_PICTURE_FOLDER))
      .arg(screen.size().width())
      .arg(screen.size().height())
      .arg(screen.devicePixelRatio());
}

}  // namespace

bool showsSomething(const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != picture.pixel(0, 0)) return true;
    }
  }
  return false;
}

void keepPicture(QWidget& window, const QString& name) {
  ASSERT_TRUE(QDir().mkpath(pictureFolder()));
  const QPixmap picture = window.grab();
  EXPECT_TRUE(showsSomething(picture.toImage())) << name.toStdString();
  EXPECT_TRUE(picture.save(QDir(pictureFolder()).filePath(name + QStringLiteral(".png"))));
  const QRect screen = window.screen()->availableGeometry();
  EXPECT_LE(window.width(), screen.width()) << name.toStdString();
  EXPECT_LE(window.height(), screen.height()) << name.toStdString();
}

}  // namespace pantrigo
