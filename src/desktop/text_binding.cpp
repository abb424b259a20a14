#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "desktop/binding.h"
#include "desktop/look.h"
#include "desktop/text_conversion.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// The text colour of a box, kept readable; a marked title keeps its own colour, as the box shows it large and in bold.
void showTextColour(QWidget& widget, const TextBox& box) {
  constexpr int plainBlack = 0;
  QColor colour = tableColour(box.ForeColor());
  if (box.ForeColor() == plainBlack) {
    colour = hue::text;
  } else if (!isMarkColour(box.ForeColor())) {
    colour = readableOn(colour, hue::field);
  }
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Active, QPalette::Text, colour);
  palette.setColor(QPalette::Inactive, QPalette::Text, colour);
  widget.setPalette(palette);
}

class LineBoxBinding : public Binding {
 public:
  LineBoxBinding(TextBox& box, QWidget& parent, UserEvents& userEvents)
      : Binding(box, userEvents), box_(box), edit_(new QLineEdit(&parent)) {
    if (box.alignment() == Alignment::Right) edit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QObject::connect(edit_, &QLineEdit::textEdited, edit_, [this] { edited(); });
  }

  [[nodiscard]] QWidget& widget() const override { return *edit_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Text);
    show(Aspect::Colour);
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Text) showText();
    if (aspect == Aspect::Colour) showTextColour(*edit_, box_);
  }

 private:
  void showText() {
    const QString text = toQt(box_.Text());
    if (edit_->text() == text) return;
    edit_->setText(text);
    edit_->setCursorPosition(0);
  }

  void edited() {
    cutToLimit(*edit_, box_.MaxLength(), pointCount(toQt(box_.Text())));
    events().dispatch([this](Windows& windows) { userEdits(windows, box_, fromQt(edit_->text())); });
  }

  TextBox& box_;
  QLineEdit* edit_;
};

/// A box of several lines. What the document gives back can differ from the text that was put in (a lone line feed
/// comes back as CR LF), so a change is only what differs from the document as it was shown.
class MultiLineBoxBinding : public Binding {
 public:
  MultiLineBoxBinding(TextBox& box, QWidget& parent, UserEvents& userEvents)
      : Binding(box, userEvents), box_(box), edit_(new QPlainTextEdit(&parent)) {
    edit_->setTabChangesFocus(true);
    edit_->document()->setDocumentMargin(3);
    QObject::connect(edit_, &QPlainTextEdit::textChanged, edit_, [this] { edited(); });
  }

  [[nodiscard]] QWidget& widget() const override { return *edit_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Text);
    show(Aspect::Colour);
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Text) showText();
    if (aspect == Aspect::Colour) showTextColour(*edit_, box_);
  }

 private:
  void showText() {
    if (box_.Text() == written_) return;
    written_ = box_.Text();
    const QSignalBlocker blocker(edit_);
    edit_->setPlainText(shownLines(written_));
    shown_ = documentText(*edit_->document());
  }

  void edited() {
    cutToLimit(*edit_, box_.MaxLength(), pointCount(toQt(box_.Text())));
    const std::string text = documentText(*edit_->document());
    if (text == shown_) return;
    shown_ = text;
    written_ = text;
    events().dispatch([&](Windows& windows) { userEdits(windows, box_, text); });
  }

  TextBox& box_;
  QPlainTextEdit* edit_;
  /// The box's text that the document stands for, and what the document gave back when it was last looked at.
  std::string written_;
  std::string shown_;
};

}  // namespace

std::unique_ptr<Binding> bindLineBox(TextBox& box, QWidget& parent, UserEvents& events) {
  return std::make_unique<LineBoxBinding>(box, parent, events);
}

std::unique_ptr<Binding> bindMultiLineBox(TextBox& box, QWidget& parent, UserEvents& events) {
  return std::make_unique<MultiLineBoxBinding>(box, parent, events);
}

}  // namespace pantrigo
