#include "desktop/sunken_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace pantrigo {

namespace {

/// How much of the picture is left, 0 to 1.
constexpr double sunkenOpacity = 0.4;

class SunkenIconEngine : public QIconEngine {
 public:
  explicit SunkenIconEngine(QIcon icon) : icon_(std::move(icon)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    painter->save();
    if (state == QIcon::On) painter->setOpacity(painter->opacity() * sunkenOpacity);
    icon_.paint(painter, place, Qt::AlignCenter, mode);
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  [[nodiscard]] QIconEngine* clone() const override { return new SunkenIconEngine(icon_); }

 private:
  QIcon icon_;
};

}  // namespace

QIcon sunkenIcon(const QIcon& icon) {
  return QIcon(new SunkenIconEngine(icon));
}

}  // namespace pantrigo
