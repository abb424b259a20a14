#include "core/start_up.h"

#include "core/category_kinds.h"
#include "core/layout.h"
#include "core/title_rows.h"

namespace pantrigo {

namespace {

void showSplash(Run& run) {
  run.windows.Load(run.frmAbout);
  run.frmAbout.cmdOK.setVisible(false);
  run.windows.Show(run.frmAbout);
  run.frmAbout.Refresh();
  run.frmAbout.setMousePointer(pointerHourglass);
}

void openCategories(Run& run) {
  for (const CategoryKind& kind : categoryKinds()) {
    Recordset& categories = run.GLOBAL.*kind.cursor;
    categories = run.GLOBAL.gDatabase.OpenRecordset(kind.name);
    for (; !categories.Eof(); categories.MoveNext()) {
      addToBrowse(run, kind, categories.Field("Description").text());
    }
  }
}

void listAllTitles(Run& run) {
  Recordset& recipes = run.GLOBAL.gRecipe;
  for (; !recipes.Eof(); recipes.MoveNext()) {
    subAddListRow(run, recipes.Field("Title").text(), recipes.Field("Meal").truth(),
                  run.frmBrowse.lstTitles.ListCount());
  }
}

void openRecipes(Run& run) {
  Global& global = run.GLOBAL;
  global.gSystem = global.gDatabase.OpenRecordset("System");
  global.gRecipe = global.gDatabase.OpenRecordset("Recipe");
  global.gRecipe.Index("RecipeIdxTitle");
  global.gRecipe.Seek(">", "");
  if (global.gSystem.Field("ShowRecipes").truth()) listAllTitles(run);
}

}  // namespace

void subOpenStore(Run& run) {
  run.toolkit.setScreenPointer(pointerHourglass);
  run.GLOBAL.gStartDir = run.files.currentFolder().string();
  showSplash(run);
  run.GLOBAL.gDatabase = Database::OpenDatabase(run.files.resolve(storeName));
  run.windows.Load(run.frmBrowse);
  openCategories(run);
  openRecipes(run);
  run.windows.Load(run.frmDetail);
  applyToolBarLayout(run);
  run.toolkit.setScreenPointer(pointerDefault);
  run.frmBrowse.fmeList.setCaption(listCountCaption(run));
  run.windows.Unload(run.frmAbout);
  run.windows.Show(run.frmBrowse);
}

void closeStore(Run& run) {
  Global& global = run.GLOBAL;
  for (Recordset* recordset :
       {&global.gRecipe, &global.gNationality, &global.gCourse, &global.gCooking, &global.gEase, &global.gHealth,
        &global.gOther, &global.gUnit, &global.gRecipeHealth, &global.gRecipeOther, &global.gSystem}) {
    guarded([&] { recordset->Close(); });
  }
  guarded([&] { global.gDatabase.Close(); });
}

std::string listCountCaption(const Run& run) {
  return Format(static_cast<long>(run.frmBrowse.lstTitles.ListCount()), "#,###,##0") + " recipe(s) displayed";
}

}  // namespace pantrigo
