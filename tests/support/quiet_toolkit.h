#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/toolkit.h"
#include "platform/text/errors.h"

namespace pantrigo {

/// A printer that keeps its ended lines as texts: a tab fills the line with blanks up to its column.
class LineKeeper : public Printer {
 public:
  void setFontSize(double) override {}
  void setFontBold(bool) override {}
  void tab(int column) override {
    const auto width = static_cast<std::size_t>(std::max(column, 1) - 1);
    if (line_.size() < width) line_.resize(width, ' ');
  }
  void space(int count) override { line_.append(static_cast<std::size_t>(std::max(count, 0)), ' '); }
  void print(std::string_view text) override {
    if (refused_ > 0) {
      --refused_;
      line_.clear();
      throw RuntimeError(printerError);
    }
    line_ += text;
  }
  void endLine() override { lines.push_back(std::exchange(line_, {})); }
  [[nodiscard]] double currentY() const override { return 0; }
  void setCurrentY(double) override {}
  void PaintPicture(const PrintPicture& picture, const PrintArea&) override { pictures.push_back(picture.file); }
  void NewPage() override {}
  void EndDoc() override {}

  /// Lets the next texts fail with error 482, that of a printer that is off.
  void refuse(int texts) { refused_ = texts; }

  std::vector<std::string> lines;
  /// The names of the files of drawn pictures.
  std::vector<std::string> pictures;

 private:
  static constexpr int printerError = 482;

  std::string line_;
  int refused_ = 0;
};

/// A toolkit without windows, for the logic alone. What is printed stands in `paper`.
class QuietToolkit : public Toolkit {
 public:
  void showView(Form&, Modality) override {}
  void hideView(Form&) override {}
  void dropView(Form&) override {}
  void activateView(Form&) override {}
  void waitModal(Form&, const std::function<bool()>&) override {}
  BoxAnswer showBox(const MessageBox&) override { return BoxAnswer::OK; }
  void pumpEvents() override {}
  void Beep() override {}
  [[nodiscard]] LocalTime Now() const override { return {}; }
  [[nodiscard]] ScreenSize screen() const override { return {}; }
  void setScreenPointer(int) override {}
  void showHelp(const HelpCall&) override {}
  void setUpPrinter(int) override {}
  [[nodiscard]] Printer& printer() override { return paper; }
  [[nodiscard]] PictureFile LoadPicture(const Files&, std::string_view) override { return {}; }

  LineKeeper paper;
};

}  // namespace pantrigo
