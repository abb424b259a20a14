#pragma once

#include "platform/controls/toolkit.h"

namespace pantrigo::bench {

class QuietPrinter : public Printer {
 public:
  void setFontSize(double) override {}
  void setFontBold(bool) override {}
  void tab(int) override {}
  void space(int) override {}
  void print(std::string_view) override {}
  void endLine() override {}
  [[nodiscard]] double currentY() const override { return 0; }
  void setCurrentY(double) override {}
  void NewPage() override {}
  void EndDoc() override {}
};

/// A toolkit without windows: the program's logic alone.
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
  [[nodiscard]] Printer& printer() override { return printer_; }
  [[nodiscard]] PictureFile LoadPicture(const Files&, std::string_view) override { return {}; }

 private:
  QuietPrinter printer_;
};

}  // namespace pantrigo::bench
