#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace pantrigo {

enum class Lines { One, Many };
enum class Alignment { Left, Right };

/// A box that is typed into. Setting its text by code raises `Change` when the text differs, and never cuts it;
/// `MaxLength` (characters, 0 for no limit) bounds what is typed or pasted.
class TextBox : public Control {
 public:
  TextBox(Holder holder, std::string_view name, Box box, std::size_t maxLength = 0, Lines lines = Lines::One,
          Alignment alignment = Alignment::Left);

  [[nodiscard]] const std::string& Text() const { return text_; }
  void setText(std::string_view text);
  /// Takes a text as a keystroke left it: raises `Change` also when it is the same as before.
  void typeText(std::string_view text);

  [[nodiscard]] std::size_t MaxLength() const { return maxLength_; }
  void setMaxLength(std::size_t characters);
  /// Text colour, a number of the sixteen-entry colour table.
  [[nodiscard]] int ForeColor() const { return foreColor_; }
  void setForeColor(int colour);
  [[nodiscard]] Lines lines() const { return lines_; }
  [[nodiscard]] Alignment alignment() const { return alignment_; }

  [[nodiscard]] bool takesFocus() const override { return true; }
  void reset() override;
  void sealDesign() override;

  Event<> Change;

 private:
  std::string text_;
  std::string designText_;
  std::size_t maxLength_;
  std::size_t designMaxLength_;
  int foreColor_ = 0;
  Lines lines_;
  Alignment alignment_;
};

/// A combo box that takes a typed text as well as a pick from its rows. A text set by code raises `Change` when it
/// differs; a row picked, also by code, puts its text into the box and raises `Click`.
class ComboBox : public Control {
 public:
  ComboBox(Holder holder, std::string_view name, Box box, std::size_t maxLength = 0);

  [[nodiscard]] const std::string& Text() const { return text_; }
  void setText(std::string_view text);
  /// Takes a text as a keystroke left it: raises `Change` also when it is the same as before, and no row stays picked.
  void typeText(std::string_view text);
  [[nodiscard]] std::size_t MaxLength() const { return maxLength_; }

  [[nodiscard]] int ListCount() const { return static_cast<int>(rows_.size()); }
  /// The text of a row, empty out of range.
  [[nodiscard]] std::string List(int row) const;
  /// The picked row, -1 for none.
  [[nodiscard]] int ListIndex() const { return listIndex_; }
  void setListIndex(int row);
  void AddItem(std::string_view text);
  /// Removes a row; the box's text changes, to empty, only when the removed row was the picked one.
  void RemoveItem(int row);
  void Clear();
  [[nodiscard]] const std::vector<std::string>& rows() const { return rows_; }

  [[nodiscard]] bool takesFocus() const override { return true; }
  void reset() override;

  Event<> Change;

 private:
  std::string text_;
  std::vector<std::string> rows_;
  int listIndex_ = -1;
  std::size_t maxLength_;
};

}  // namespace pantrigo
