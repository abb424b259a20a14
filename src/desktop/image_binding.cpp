#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "desktop/binding.h"
#include "desktop/look.h"
#include "desktop/pointer_filter.h"
#include "desktop/text_conversion.h"

namespace pantrigo {

namespace {

/// A picture, as large as its place allows, in its own proportions. Without one it shows the icon that its property
/// `signProperty` names.
class PictureWidget : public QWidget {
 public:
  explicit PictureWidget(QWidget* parent) : QWidget(parent) {}

  void setPicture(const PictureFile& picture) {
    pixmap_ = QPixmap();
    if (picture.bytes)
      pixmap_.loadFromData(reinterpret_cast<const uchar*>(picture.bytes->data()),
                           static_cast<uint>(picture.bytes->size()));
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (pixmap_.isNull()) {
      iconNamed(property(signProperty).toString()).paint(&painter, rect());
      return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect place(QPoint(0, 0), pixmap_.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    painter.drawPixmap(place, pixmap_);
  }

 private:
  QPixmap pixmap_;
};

class ImageBinding : public Binding {
 public:
  ImageBinding(Image& image, QWidget& parent, UserEvents& userEvents)
      : Binding(image, userEvents), image_(image), picture_(new PictureWidget(&parent)) {
    new PointerFilter(*picture_, image, userEvents);
  }

  [[nodiscard]] QWidget& widget() const override { return *picture_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Picture);
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect != Aspect::Picture) return;
    picture_->setPicture(image_.Picture());
    picture_->setAccessibleDescription(toQt(image_.Picture().name));
  }

 private:
  Image& image_;
  PictureWidget* picture_;
};

}  // namespace

std::unique_ptr<Binding> bindImage(Image& image, QWidget& parent, UserEvents& events) {
  return std::make_unique<ImageBinding>(image, parent, events);
}

}  // namespace pantrigo
