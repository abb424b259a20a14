// Pictures of every dialog and message box for whoever changes one, empty and filled to the brim.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <fstream>
#include <functional>
#include <vector>

#include "core/messages.h"
#include "desktop/desktop_test.h"
#include "desktop/help_window.h"
#include "desktop/kept_pictures.h"

namespace pantrigo {

namespace {

class DialogPicturesTest : public DesktopTest {
 protected:
  /// Opens the dialog, keeps pictures of it as it comes up, emptied and filled, and leaves it by Esc.
  void keepStates(const Form& form, const std::function<void()>& opening,
                  const std::vector<std::pair<const char*, std::function<void()>>>& states) {
    bool shown = false;
    dialogs.whenShown(form.Name(), [&] {
      shown = true;
      for (const auto& [state, work] : states) {
        work();
        QCoreApplication::processEvents();
        keepPicture(window(form), toQt(form.Name()) + QLatin1Char('-') + QLatin1String(state));
      }
      press(form, Qt::Key_Escape);
    });
    opening();
    EXPECT_TRUE(shown) << form.Name();
    EXPECT_FALSE(form.Loaded()) << form.Name();
  }
  [[nodiscard]] std::function<void()> entry(const MenuEntry& picked) {
    return [&] { action(picked).trigger(); };
  }
  void click(const Control& button) { QTest::mouseClick(&widget<QWidget>(button), Qt::LeftButton); }
  /// Types more than each box takes.
  void fill(const std::vector<const TextBox*>& boxes) {
    for (const TextBox* box : boxes) {
      auto& line = widget<QLineEdit>(*box);
      line.setFocus(Qt::TabFocusReason);
      line.selectAll();
      QTest::keyClicks(&line, QStringLiteral("8888888888"));
    }
  }
};

const std::function<void()> nothing = [] {};

TEST_F(DialogPicturesTest, OfTheDialogsWithBoxes) {
  start();
  open(0);
  FrmNutrition& nutrition = run().frmNutrition;
  keepStates(nutrition, entry(run().frmDetail.mnuNutrition),
             {{"empty", [&] { click(nutrition.cmdClear); }},
              {"filled", [&] {
                 fill({&nutrition.txtEnergy, &nutrition.txtProtein, &nutrition.txtCholesterol,
                       &nutrition.txtCarbohydrates, &nutrition.txtSodium, &nutrition.txtFibre, &nutrition.txtCalcium,
                       &nutrition.txtFat, &nutrition.txtIron});
                 EXPECT_EQ(nutrition.txtEnergy.Text(), "888888");
               }}});
  FrmSettings& settings = run().frmSettings;
  keepStates(settings, entry(run().frmDetail.mnuSettings),
             {{"empty", nothing}, {"filled", [&] { fill({&settings.txtSettings}); }}});
  FrmSource& source = run().frmSource;
  keepStates(source, entry(run().frmDetail.mnuSource), {{"empty", nothing}, {"filled", [&] {
                                                                               type(source,
                                                                                    "A little book of puddings, handed "
                                                                                    "down by an aunt.");
                                                                             }}});
  FrmCategory& category = run().frmCategory;
  keepStates(category, entry(run().frmDetail.mnuCategoriesCoarse),
             {{"filled", [&] { EXPECT_EQ(category.txtCategory.Text(), "Dessert"); }},
              {"empty", [&] { click(category.cmdClear); }}});
}

TEST_F(DialogPicturesTest, OfTheIngredientDialog) {
  start();
  open(0);
  FrmIngredient& form = run().frmIngredient;
  keepStates(form, [&] { clickRow(run().frmDetail.lstIngredient, 0); },
             {{"filled", [&] { EXPECT_EQ(form.txtDescription.Text(), "flour"); }},
              {"unit",
               [&] {
                 widget<QComboBox>(form.cmbUnit).setFocus(Qt::TabFocusReason);
                 EXPECT_FALSE(form.lblMessage.Caption().empty());
               }},
              {"empty", [&] { click(form.cmdClear); }}});
}

TEST_F(DialogPicturesTest, OfTheDialogsThatShow) {
  {
    std::ofstream log(path() / "IMPORT.LOG", std::ios::binary);
    for (int line = 1; line <= 60; ++line) log << "Line " << line << " of what was imported.\r\n";
  }
  start();
  keepStates(run().frmView, entry(run().frmBrowse.mnuViewImportLog),
             {{"filled", [&] { EXPECT_EQ(run().frmView.lstView.ListCount(), 60); }}});
  open(0);
  keepStates(run().frmOven, entry(run().frmDetail.mnuOven), {{"filled", nothing}});
  keepStates(run().frmAbout, entry(run().frmDetail.mnuAbout), {{"filled", nothing}});
  keepStates(run().frmOptions, entry(run().frmBrowse.mnuOptions),
             {{"filled", nothing},
              {"imperial", [&] { click(run().frmOptions.optUKImperial); }},
              {"empty", [&] {
                 for (const TextBox* box : {&run().frmOptions.txtCup, &run().frmOptions.txtTablespoon}) {
                   widget<QLineEdit>(*box).clear();
                 }
               }}});
  action(run().frmDetail.mnuContents).trigger();
  keepPicture(*desktop().toolkit().helpWindow(), "help-contents");
  action(run().frmDetail.mnuSearch).trigger();
  QTest::keyClicks(desktop().toolkit().helpWindow()->focusWidget(), "ingredient");
  keepPicture(*desktop().toolkit().helpWindow(), "help-search");
}

/// Each text that a box shows somewhere.
struct BoxText {
  const char* name;
  const char* text;
  int style;
};

constexpr BoxText boxTexts[] = {
    {"people", "Settings must be greater than 0.", boxStop},
    {"title-exists", "A recipe with this title already exists.", boxStop},
    {"changes", "Any changes made will be lost. Proceed with request?", boxQuestion},
    {"unit", "Unit of measure must not be greater than 15 characters.", boxStop},
    {"quantity", "Quantity must be numeric and only selected fractions are allowed.", boxStop},
    {"no-category",
     "Nationality category does not exist.  Please select from existing list or add new category, then try again.",
     boxStop},
    {"title", "Invalid characters in recipe title.", boxStop},
    {"source", "Recipe source cannot be altered.", boxStop},
    {"cup", "Invalid cup details.", boxStop},
    {"category-exists", "A category with this title already exists.", boxStop},
    {"category-gone", "Cannot update/delete as that category does not exist.", boxExclamation},
    {"category-used",
     "That category is being used by at least one recipe.  Please update all recipes to another category, then you can "
     "proceed with delete.",
     boxExclamation},
    {"delete-category", "Are you sure you want to delete this category?", boxQuestion},
    {"delete-recipe", "Are you sure you want to delete this recipe?", boxQuestion},
    {"no-recipe", "No recipe with this title exists. You may need to add the recipe first.", boxExclamation},
    {"number", "Value entered must be numeric.", boxStop},
    {"no-log", "No errors or warnings found for last import.", boxInformation},
    {"no-import", "No recipe details found for last import.", boxInformation},
    {"select", "Please select a recipe to perform this function.", boxStop}};

TEST_F(DialogPicturesTest, OfTheMessageBoxes) {
  start();
  open(0);
  for (const BoxText& box : boxTexts) {
    bool shown = false;
    dialogs.whenBoxShown([&] {
      auto& window = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
      shown = QTest::qWaitForWindowExposed(&window);
      keepPicture(window, QStringLiteral("box-") + QLatin1String(box.name));
      EXPECT_FALSE(window.iconPixmap().isNull());
      const auto& label = *window.findChild<QLabel*>("qt_msgbox_label");
      EXPECT_GE(label.height(), label.heightForWidth(label.width())) << box.name;
      EXPECT_TRUE(window.rect().contains(label.geometry())) << box.name;
      for (const QAbstractButton* button : window.buttons()) {
        EXPECT_GE(button->width(), button->minimumSizeHint().width()) << box.name;
      }
      QTest::keyClick(&window, Qt::Key_Escape);
    });
    desktop().toolkit().dispatch([&](Windows& windows) { windows.loop().MsgBox(box.text, box.style, captionError); });
    EXPECT_TRUE(shown) << box.name;
  }
}

}  // namespace

}  // namespace pantrigo
