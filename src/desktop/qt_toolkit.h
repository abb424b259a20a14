#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "desktop/form_view.h"
#include "desktop/help_window.h"
#include "desktop/qt_printer.h"
#include "platform/controls/toolkit.h"

class QDialog;

namespace pantrigo {

/// The toolkit over real windows: one view a form, message boxes and system dialogs, the event loop, the printer. All
/// that a person does enters the program through `dispatch`.
class QtToolkit : public Toolkit, private ViewHost {
 public:
  QtToolkit();
  ~QtToolkit() override;

  /// Names the windows of the run that the events of the views go to. To be called once, before anything is shown.
  void attach(Windows& windows) { windows_ = &windows; }

  /// Called when the run has ended and nothing of it is running any more.
  std::function<void()> whenEnded;

  /// Nobody is there to answer from now on: the text of a box goes to the standard error stream, and a question is
  /// answered with No.
  void setUnattended() { unattended_ = true; }

  /// One event of a person's, or of the system's in a person's place.
  void dispatch(const std::function<void(Windows&)>& event) override;

  /// Lets all views go at once; the forms may go after it.
  void dropAllViews();

  /// The window of the help; null before it was asked for.
  [[nodiscard]] HelpWindow* helpWindow() const { return help_.get(); }

  /// The view of a form; null when it has none.
  [[nodiscard]] FormView* view(const Form& form) const;

  void showView(Form& form, Modality modality) override;
  void hideView(Form& form) override;
  void dropView(Form& form) override;
  void activateView(Form& form) override;
  void waitModal(Form& form, const std::function<bool()>& over) override;
  BoxAnswer showBox(const MessageBox& box) override;
  void pumpEvents() override;
  void Beep() override;
  [[nodiscard]] LocalTime Now() const override;
  [[nodiscard]] ScreenSize screen() const override;
  [[nodiscard]] std::vector<std::string> drives() const override;
  void setScreenPointer(int pointer) override;
  void showHelp(const HelpCall& call) override;
  void setUpPrinter(int flags) override;
  [[nodiscard]] Printer& printer() override { return printer_; }
  [[nodiscard]] PictureFile LoadPicture(const Files& files, std::string_view name) override;

 private:
  [[nodiscard]] ScreenArea area() const override;
  void windowActivated(Form& form) override;
  void helpWanted(const Form& form) override;
  void expect(const Form* form);

  /// After an event: ends what the end of the run has made pointless, and lets dropped views go.
  void settle();
  /// Shows a dialog of the system's over the active window and waits for its result.
  int run(QDialog& dialog);
  [[nodiscard]] QWidget* activeWindow() const;
  /// The window of the help, made when it is first asked for.
  [[nodiscard]] HelpWindow& help();
  /// Puts the help over the active window where that is a dialog, which would block it otherwise.
  void freeHelp();
  void tellWhereThePrintWent(const QString& file);

  Windows* windows_ = nullptr;
  QtPrinter printer_;
  std::map<const Form*, std::unique_ptr<FormView>> views_;
  /// Views that are dropped while some event still runs, and those that go with the next turn of the event loop.
  std::vector<std::unique_ptr<FormView>> dropped_;
  std::vector<QPointer<FormView>> going_;
  std::vector<QDialog*> dialogs_;
  std::unique_ptr<HelpWindow> help_;
  bool screenPointerSet_ = false;
  bool unattended_ = false;
  /// The form whose window the program has asked to become active, until the system has done so; what the system makes
  /// active on the way there is no doing of a person's.
  const Form* expected_ = nullptr;
  QElapsedTimer expectedSince_;
  QElapsedTimer sincePump_;
};

}  // namespace pantrigo
