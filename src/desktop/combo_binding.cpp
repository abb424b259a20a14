#include <QLineEdit>
#include <QSignalBlocker>

#include "desktop/binding.h"
#include "desktop/combo_field.h"
#include "desktop/text_conversion.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// A combo box that is typed into, and that never picks a row by itself.
class TypedComboField : public ComboField {
 public:
  explicit TypedComboField(QWidget* parent) : ComboField(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    // Leaving the box would otherwise pick the row that equals the typed text but for its case.
    QObject::disconnect(lineEdit(), SIGNAL(editingFinished()), this, nullptr);
  }
};

class ComboBinding : public Binding {
 public:
  ComboBinding(ComboBox& combo, QWidget& parent, UserEvents& userEvents)
      : Binding(combo, userEvents), combo_(combo), field_(new TypedComboField(&parent)) {
    QObject::connect(field_->lineEdit(), &QLineEdit::textEdited, field_, [this] { edited(); });
    QObject::connect(field_, &QComboBox::activated, field_, [this](int row) {
      events().dispatch([&](Windows& windows) { userPicks(windows, combo_, row); });
      showText();
    });
  }

  [[nodiscard]] QWidget& widget() const override { return *field_; }

  void showAll() override {
    Binding::showAll();
    showRows();
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Rows) showRows();
    if (aspect == Aspect::Text) showText();
  }

 private:
  void showRows() {
    const QSignalBlocker blocker(field_);
    QStringList rows;
    for (const std::string& row : combo_.rows()) rows += toQt(row);
    const int cursor = field_->lineEdit()->cursorPosition();
    field_->clear();
    field_->addItems(rows);
    field_->setCurrentIndex(combo_.ListIndex());
    field_->setEditText(toQt(combo_.Text()));
    field_->lineEdit()->setCursorPosition(cursor);
  }

  void showText() {
    const QString text = toQt(combo_.Text());
    if (field_->lineEdit()->text() == text) return;
    const QSignalBlocker blocker(field_);
    field_->setCurrentIndex(combo_.ListIndex());
    field_->setEditText(text);
    field_->lineEdit()->setCursorPosition(0);
  }

  void edited() {
    QLineEdit& edit = *field_->lineEdit();
    cutToLimit(edit, combo_.MaxLength(), pointCount(toQt(combo_.Text())));
    events().dispatch([&](Windows& windows) { userEdits(windows, combo_, fromQt(edit.text())); });
  }

  ComboBox& combo_;
  TypedComboField* field_;
};

}  // namespace

std::unique_ptr<Binding> bindComboBox(ComboBox& combo, QWidget& parent, UserEvents& events) {
  return std::make_unique<ComboBinding>(combo, parent, events);
}

}  // namespace pantrigo
