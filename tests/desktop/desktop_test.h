#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <string>

#include "desktop/desktop.h"
#include "desktop/dialog_answers.h"
#include "desktop/small_store.h"
#include "desktop/text_conversion.h"

class QListView;

namespace pantrigo {

/// A run of the program over the small store in a folder of its own, with its windows on no display.
class DesktopTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    makeSmallStore(path());
  }

  /// Starts the program and waits for its main window.
  void start() {
    desktop_ = std::make_unique<Desktop>(path());
    desktop_->start();
    ASSERT_FALSE(desktop_->program().ended());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window(run().frmBrowse)));
  }

  [[nodiscard]] std::filesystem::path path() const { return folder_.path().toStdString(); }
  [[nodiscard]] Desktop& desktop() { return *desktop_; }
  [[nodiscard]] pantrigo::Run& run() { return desktop_->program().run(); }
  [[nodiscard]] FormView& window(const Form& form) { return *desktop_->toolkit().view(form); }

  /// The widget of a control.
  template <class Widget>
  [[nodiscard]] Widget& widget(const Control& control) {
    return dynamic_cast<Widget&>(*window(control.form()).widgetOf(control));
  }

  /// The menu entry's action.
  [[nodiscard]] QAction& action(const MenuEntry& entry) {
    return *window(entry.form()).findChild<QAction*>(toQt(entry.Name()));
  }

  /// Presses a key on whatever has the focus in the form's window.
  void press(const Form& form, Qt::Key key) {
    FormView& view = window(form);
    QTest::keyClick(view.focusWidget() != nullptr ? view.focusWidget() : &view, key);
  }
  void type(const Form& form, const char* text) {
    QTest::keyClicks(window(form).focusWidget(), QString::fromUtf8(text));
  }

  /// Clicks or double-clicks a row of a list.
  void clickRow(const ListBox& list, int row);
  void doubleClickRow(const ListBox& list, int row);

  /// Opens the recipe of that row of the title list by a double click.
  void open(int row) {
    doubleClickRow(run().frmBrowse.lstTitles, row);
    ASSERT_TRUE(run().frmDetail.Visible());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window(run().frmDetail)));
  }

  DialogAnswers dialogs;

 private:
  QTemporaryDir folder_;
  std::unique_ptr<Desktop> desktop_;
};

}  // namespace pantrigo
