#include <QLayout>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "desktop/binding.h"
#include "desktop/look.h"
#include "desktop/pointer_filter.h"
#include "desktop/text_conversion.h"
#include "platform/controls/form.h"

namespace pantrigo {

namespace {

/// Height of the band at the top of a frame that its caption stands in, in twips at design size: that of a label, which
/// may stand beside it.
constexpr double captionBand = 225;
constexpr double cornerRadius = 6;

/// A group of controls: a light card with its caption in the top left corner.
class CardWidget : public QWidget {
 public:
  explicit CardWidget(QWidget* parent) : QWidget(parent) {}

  void setCaption(const QString& caption) {
    caption_ = caption;
    update();
  }
  /// Distance of the caption from the left and height of its band, in pixels.
  void setCaptionPlace(int indent, int band) {
    indent_ = indent;
    band_ = band;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hue::line);
    painter.setBrush(hue::panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), cornerRadius, cornerRadius);
    if (caption_.isEmpty()) return;
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    painter.setPen(isEnabled() ? hue::text : hue::disabledText);
    const QFontMetrics metrics(bold);
    const QRect band(indent(), 0, width() - 2 * indent(), std::max(bandHeight(), metrics.height()));
    painter.drawText(band, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(caption_, Qt::ElideRight, band.width()));
  }

 private:
  // In a layout the caption stands in the top margin, flush with the contents.
  [[nodiscard]] int indent() const { return layout() == nullptr ? indent_ : layout()->contentsMargins().left(); }
  [[nodiscard]] int bandHeight() const { return layout() == nullptr ? band_ : layout()->contentsMargins().top(); }

  QString caption_;
  int indent_ = 0;
  int band_ = 0;
};

class FrameBinding : public Binding {
 public:
  FrameBinding(Frame& frame, QWidget& parent, UserEvents& userEvents)
      : Binding(frame, userEvents), frame_(frame), card_(new CardWidget(&parent)) {
    new PointerFilter(*card_, frame, userEvents);
  }

  [[nodiscard]] QWidget& widget() const override { return *card_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Caption);
  }

  /// The caption stands flush with the controls below it.
  void placed(double pixelsPerTwip) override {
    double left = frame_.Width();
    for (const Control* control : frame_.form().controls()) {
      if (control->container() == &frame_) left = std::min(left, control->Left());
    }
    const int indent = static_cast<int>(std::lround(left * card_->width() / std::max(frame_.Width(), 1.0)));
    card_->setCaptionPlace(indent, static_cast<int>(std::lround(captionBand * pixelsPerTwip)));
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Caption) card_->setCaption(plainCaption(frame_.Caption()));
  }

 private:
  Frame& frame_;
  CardWidget* card_;
};

}  // namespace

std::unique_ptr<Binding> bindFrame(Frame& frame, QWidget& parent, UserEvents& events) {
  return std::make_unique<FrameBinding>(frame, parent, events);
}

}  // namespace pantrigo
