#include <QEnterEvent>
#include <QLabel>

#include "desktop/binding.h"
#include "desktop/look.h"
#include "desktop/pointer_filter.h"
#include "desktop/text_conversion.h"

namespace pantrigo {

namespace {

/// Smallest share of its size that a label's text shrinks to before it is cut.
constexpr double smallestShare = 0.7;

/// A label that ends this close to the top of a frame without a caption, in twips, stands for the caption.
constexpr double headingTop = 30;

bool isHeading(const Label& label) {
  const Control* frame = label.container();
  return frame != nullptr && frame->kind() == ControlKind::Frame &&
         static_cast<const Frame*>(frame)->Caption().empty() && label.Top() < headingTop;
}

/// A label whose text always fits: it wraps where there is room for a second line, and shrinks a little where there is
/// not.
class FittingLabel : public QLabel {
 public:
  explicit FittingLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }

  /// Fits the text to the present size, from the parent's text size on.
  void fit() {
    QFont font = parentWidget()->font();
    if (const QVariant size = property(textSizeProperty); size.isValid()) {
      font.setPixelSize(static_cast<int>(font.pixelSize() * size.toDouble()));
      font.setWeight(QFont::DemiBold);
    }
    setWordWrap(height() >= 2 * QFontMetrics(font).height());
    if (wordWrap()) setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const int whole = font.pixelSize();
    const QString shown = plainCaption(fromQt(text()));
    while (font.pixelSize() > whole * smallestShare && !fits(shown, font)) font.setPixelSize(font.pixelSize() - 1);
    font.setUnderline(hovered_);
    setFont(font);
  }

  void setClickable(bool clickable) {
    clickable_ = clickable;
    QPalette palette = this->palette();
    palette.setColor(QPalette::Active, QPalette::WindowText, clickable ? hue::accent : hue::text);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, clickable ? hue::accent : hue::text);
    setPalette(palette);
    if (clickable && !testAttribute(Qt::WA_SetCursor)) setCursor(Qt::PointingHandCursor);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    fit();
  }
  void enterEvent(QEnterEvent* event) override {
    hovered_ = clickable_;
    fit();
    QLabel::enterEvent(event);
  }
  void leaveEvent(QEvent* event) override {
    hovered_ = false;
    fit();
    QLabel::leaveEvent(event);
  }

 private:
  [[nodiscard]] bool fits(const QString& shown, const QFont& font) const {
    const QRect needed =
        QFontMetrics(font).boundingRect(QRect(0, 0, width(), height()), wordWrap() ? Qt::TextWordWrap : 0, shown);
    return needed.width() <= width() && (!wordWrap() || needed.height() <= height());
  }

  bool clickable_ = false;
  bool hovered_ = false;
};

class LabelBinding : public Binding {
 public:
  LabelBinding(Label& label, QWidget& parent, UserEvents& userEvents)
      : Binding(label, userEvents), label_(label), view_(new FittingLabel(&parent)) {
    if (isHeading(label)) view_->setProperty(textSizeProperty, 1.0);
    new PointerFilter(*view_, label, userEvents);
  }

  [[nodiscard]] QWidget& widget() const override { return *view_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Caption);
  }

  void placed(double) override { view_->fit(); }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Caption) {
      view_->setText(hasAccessKey(label_.Caption()) ? toQt(label_.Caption()) : plainCaption(label_.Caption()));
      view_->fit();
    }
    if (aspect == Aspect::Pointer) view_->setClickable(label_.Click.isWired());
  }

 private:
  Label& label_;
  FittingLabel* view_;
};

}  // namespace

std::unique_ptr<Binding> bindLabel(Label& label, QWidget& parent, UserEvents& events) {
  return std::make_unique<LabelBinding>(label, parent, events);
}

}  // namespace pantrigo
