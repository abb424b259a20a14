#include "platform/controls/text_controls.h"

namespace pantrigo {

TextBox::TextBox(Holder holder, std::string_view name, Box box, std::size_t maxLength, Lines lines, Alignment alignment)
    : Control(holder, ControlKind::TextBox, name, box),
      maxLength_(maxLength),
      designMaxLength_(maxLength),
      lines_(lines),
      alignment_(alignment) {}

void TextBox::setText(std::string_view text) {
  if (text_ != text) typeText(text);
}

void TextBox::typeText(std::string_view text) {
  text_ = text;
  changed(Aspect::Text);
  Change();
}

void TextBox::setMaxLength(std::size_t characters) {
  maxLength_ = characters;
  changed(Aspect::State);
}

void TextBox::setForeColor(int colour) {
  if (foreColor_ == colour) return;
  foreColor_ = colour;
  changed(Aspect::Colour);
}

void TextBox::reset() {
  Control::reset();
  text_ = designText_;
  maxLength_ = designMaxLength_;
  foreColor_ = 0;
}

void TextBox::sealDesign() {
  Control::sealDesign();
  designText_ = text_;
}

ComboBox::ComboBox(Holder holder, std::string_view name, Box box, std::size_t maxLength)
    : Control(holder, ControlKind::ComboBox, name, box), maxLength_(maxLength) {}

void ComboBox::setText(std::string_view text) {
  // A text from elsewhere is no pick, also when a picked row reads the same.
  listIndex_ = -1;
  if (text_ != text) typeText(text);
}

void ComboBox::typeText(std::string_view text) {
  listIndex_ = -1;
  text_ = text;
  changed(Aspect::Text);
  Change();
}

std::string ComboBox::List(int row) const {
  return row >= 0 && row < ListCount() ? rows_[static_cast<std::size_t>(row)] : std::string();
}

void ComboBox::setListIndex(int row) {
  if (row < 0 || row >= ListCount()) row = -1;
  if (row == listIndex_) return;
  listIndex_ = row;
  text_ = List(row);
  changed(Aspect::Text);
  if (row >= 0) Click();
}

void ComboBox::AddItem(std::string_view text) {
  rows_.emplace_back(text);
  changed(Aspect::Rows);
}

void ComboBox::RemoveItem(int row) {
  if (row < 0 || row >= ListCount()) return;
  rows_.erase(rows_.begin() + row);
  if (row == listIndex_) {
    listIndex_ = -1;
    text_.clear();
    changed(Aspect::Text);
  } else if (row < listIndex_) {
    --listIndex_;
  }
  changed(Aspect::Rows);
}

void ComboBox::Clear() {
  rows_.clear();
  listIndex_ = -1;
  changed(Aspect::Rows);
  setText("");
}

void ComboBox::reset() {
  Control::reset();
  text_.clear();
  rows_.clear();
  listIndex_ = -1;
}

}  // namespace pantrigo
