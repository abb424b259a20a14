#pragma once

#include <QWidget>
#include <map>
#include <memory>

#include "desktop/binding.h"
#include "desktop/menu_tree.h"
#include "desktop/screen_area.h"
#include "platform/controls/form.h"
#include "platform/controls/toolkit.h"

namespace pantrigo {

/// What a form's window asks of the desktop.
class ViewHost : public UserEvents {
 public:
  [[nodiscard]] virtual ScreenArea area() const = 0;
  /// The system made this form's window the active one.
  virtual void windowActivated(Form& form) = 0;
  /// The person asks for the help of this form's window.
  virtual void helpWanted(const Form& form) = 0;
};

/// The window of one form: its menu bar, and its controls at their places in twips, multiplied by the window's present
/// scale; or in a layout of its own, where the form has one. It listens to the form for as long as it lives.
class FormView : public QWidget, private FormListener {
 public:
  FormView(Form& form, ViewHost& host);
  ~FormView() override;

  /// Puts the window on the screen; a modal one over the given window.
  void present(Modality modality, QWidget* over);
  /// Brings the window to the front and gives it the keyboard.
  void activate();

  [[nodiscard]] Form& form() const { return form_; }
  /// The widget of a control; null for a menu entry.
  [[nodiscard]] QWidget* widgetOf(const Control& control) const;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void controlChanged(Control& control, Aspect aspect) override;
  void formChanged(Aspect aspect) override;
  void focusChanged() override;
  void refresh() override;

  void buildControls();
  void buildMenu();
  void connectLabels();
  void orderTabs();
  void nameControls();
  void setUpMainWindow();
  void setDialogFont();
  void setUpDialog();

  [[nodiscard]] bool isMainWindow() const { return menu_ != nullptr; }
  [[nodiscard]] QSize designSize() const;
  void arrange();
  void place(const Control& control);
  /// The scale that the window has now, 1 at the design's size.
  [[nodiscard]] double presentScale() const;
  void showPointer();
  void showFocus();
  void takeFocus(const Binding& binding, const QFocusEvent& event);
  /// Gives whether the key has been used up.
  bool takeKey(const QKeyEvent& event);

  Form& form_;
  ViewHost& host_;
  QWidget* canvas_;
  std::unique_ptr<MenuTree> menu_;
  std::map<const Control*, std::unique_ptr<Binding>> bindings_;
  std::map<const QObject*, Binding*> focusWidgets_;
  bool laidOut_ = false;
  /// While the program does what belongs to the window's being minimised; nothing brings the window back then.
  bool minimising_ = false;
  /// Above 0 while the window is being changed by the program, so that what the toolkit does about the focus then is
  /// not taken for a person's doing.
  int changing_ = 0;
};

}  // namespace pantrigo
