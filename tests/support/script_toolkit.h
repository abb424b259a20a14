#pragma once

#include <string>
#include <vector>

#include "platform/controls/toolkit.h"
#include "support/recording_printer.h"

namespace pantrigo {

/// What the program waits for from the person in front of it.
class Person {
 public:
  virtual ~Person() = default;
  /// A form is up modally: does what there is to do, until `over` gives true.
  virtual void attend(Form& form, const std::function<bool()>& over) = 0;
  /// Presses a button of a message box.
  virtual BoxAnswer answer(const MessageBox& box) = 0;
  /// A turn of the event pump.
  virtual void turn() = 0;
};

struct ShownBox {
  MessageBox box;
  BoxAnswer answer = BoxAnswer::OK;
};

/// A toolkit without windows: it keeps what the program shows, and a person of a script's making answers it.
class ScriptToolkit : public Toolkit {
 public:
  explicit ScriptToolkit(Person& person) : person_(person) {}

  void showView(Form&, Modality) override {}
  void hideView(Form&) override {}
  void dropView(Form&) override {}
  void activateView(Form&) override {}

  void waitModal(Form& form, const std::function<bool()>& over) override;
  BoxAnswer showBox(const MessageBox& box) override;
  void pumpEvents() override { person_.turn(); }

  void Beep() override { ++beeps_; }
  [[nodiscard]] LocalTime Now() const override { return now_; }
  [[nodiscard]] ScreenSize screen() const override { return screen_; }
  void setScreenPointer(int pointer) override { pointer_ = pointer; }

  void showHelp(const HelpCall& call) override;
  void setUpPrinter(int) override { ++setUps_; }
  [[nodiscard]] Printer& printer() override { return recorder_; }
  [[nodiscard]] PictureFile LoadPicture(const Files& files, std::string_view name) override;

  /// Called at the start of a run: the screen that was asked for is on the desk from now on, with its plain pointer.
  void beginRun();
  /// The screen of the next run, in pixels.
  void setNextScreen(double width, double height);
  void setClock(const LocalTime& now) { now_ = now; }

  // What was shown since the last call.
  [[nodiscard]] std::vector<ShownBox> takeBoxes();
  [[nodiscard]] int takeBeeps();
  [[nodiscard]] int takeSetUps();
  /// The contexts whose help page was shown; the search by a word has none.
  [[nodiscard]] std::vector<int> takeHelps();

  [[nodiscard]] int pointer() const { return pointer_; }
  [[nodiscard]] RecordingPrinter& recorder() { return recorder_; }

 private:
  Person& person_;
  RecordingPrinter recorder_;
  ScreenSize screen_;
  ScreenSize nextScreen_;
  LocalTime now_{2001, 3, 5, 15, 7};
  int pointer_ = pointerDefault;
  std::vector<ShownBox> boxes_;
  std::vector<int> helps_;
  int beeps_ = 0;
  int setUps_ = 0;
};

/// Whether a message box has the buttons Yes and No.
[[nodiscard]] bool asksYesNo(int style);

}  // namespace pantrigo
