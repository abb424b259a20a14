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

/// What the two kinds of text boxes share. What a widget gives back can differ from the text that was put in (a lone
/// line feed comes back as CR LF), so a change is only what differs from what it gave back when it was last looked at.
template <class Edit>
class TextBinding : public Binding {
 public:
  [[nodiscard]] QWidget& widget() const override { return *edit_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Text);
    show(Aspect::Colour);
  }

 protected:
  TextBinding(TextBox& box, QWidget& parent, UserEvents& userEvents)
      : Binding(box, userEvents), box_(box), edit_(new Edit(&parent)) {}

  void show(Aspect aspect) override {
    if (aspect == Aspect::Text) showText();
    if (aspect == Aspect::Colour) showTextColour(*edit_, box_);
  }

  /// Puts a text into the widget, with the cursor in front of it and nothing to undo.
  virtual void put(const std::string& text) = 0;
  /// The text as the widget gives it back.
  [[nodiscard]] virtual std::string given() const = 0;

  void edited() {
    cutToLimit(*edit_, box_.MaxLength(), pointCount(toQt(box_.Text())));
    const std::string text = given();
    if (text == given_) return;
    given_ = text;
    written_ = text;
    events().dispatch([&](Windows& windows) { userEdits(windows, box_, text); });
  }

  [[nodiscard]] Edit& edit() const { return *edit_; }

 private:
  void showText() {
    if (box_.Text() == written_) return;
    written_ = box_.Text();
    const QSignalBlocker blocker(edit_);
    put(written_);
    given_ = given();
  }

  TextBox& box_;
  Edit* edit_;
  /// The box's text that the widget stands for, and what the widget gave back for it.
  std::string written_;
  std::string given_;
};

class LineBoxBinding : public TextBinding<QLineEdit> {
 public:
  LineBoxBinding(TextBox& box, QWidget& parent, UserEvents& userEvents) : TextBinding(box, parent, userEvents) {
    if (box.alignment() == Alignment::Right) edit().setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QObject::connect(&edit(), &QLineEdit::textEdited, &edit(), [this] { edited(); });
  }

 protected:
  void put(const std::string& text) override {
    edit().setText(toQt(text));
    edit().setCursorPosition(0);
  }
  [[nodiscard]] std::string given() const override { return fromQt(edit().text()); }
};

class MultiLineBoxBinding : public TextBinding<QPlainTextEdit> {
 public:
  MultiLineBoxBinding(TextBox& box, QWidget& parent, UserEvents& userEvents) : TextBinding(box, parent, userEvents) {
    edit().setTabChangesFocus(true);
    edit().document()->setDocumentMargin(3);
    QObject::connect(&edit(), &QPlainTextEdit::textChanged, &edit(), [this] { edited(); });
  }

 protected:
  void put(const std::string& text) override { edit().setPlainText(shownLines(text)); }
  [[nodiscard]] std::string given() const override { return documentText(*edit().document()); }
};

}  // namespace

std::unique_ptr<Binding> bindLineBox(TextBox& box, QWidget& parent, UserEvents& events) {
  return std::make_unique<LineBoxBinding>(box, parent, events);
}

std::unique_ptr<Binding> bindMultiLineBox(TextBox& box, QWidget& parent, UserEvents& events) {
  return std::make_unique<MultiLineBoxBinding>(box, parent, events);
}

}  // namespace pantrigo
