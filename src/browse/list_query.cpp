#include "browse/list_query.h"

#include "browse/filters.h"
#include "browse/long_work.h"
#include "browse/query_text.h"
#include "core/category_kinds.h"
#include "core/pointer.h"
#include "core/start_up.h"
#include "core/title_rows.h"

namespace pantrigo {

namespace {

void listRecipe(Run& run, const Recordset& recipe, long rowCount) {
  subAddListRow(run, recipe.Field("Title").text(), recipe.Field("Meal").truth(), rowCount);
}

/// Lists every row from where the recordset stands to its end.
void listToEnd(Run& run, Recordset recipes) {
  long rowCount = 0;
  while (!recipes.Eof()) {
    listRecipe(run, recipes, rowCount);
    recipes.MoveNext();
    if (funListTick(run, rowCount)) return;
  }
}

/// Lists the rows of an index from where the recordset stands, for as long as the field has the key's value. `list`
/// puts the current row into the list.
template <class List>
void listWhile(Run& run, Recordset walked, std::string_view field, const Value& key, List list) {
  if (walked.NoMatch()) return;
  long rowCount = 0;
  while (walked.Field(field) == key) {
    list(walked, rowCount);
    walked.MoveNext();
    if (walked.Eof() || funListTick(run, rowCount)) return;
  }
}

Recordset openIndexed(Run& run, std::string_view table, std::string_view index) {
  Recordset opened = run.GLOBAL.gDatabase.OpenRecordset(table);
  opened.Index(index);
  return opened;
}

void walkMeal(Run& run) {
  Recordset recipes = openIndexed(run, "Recipe", "RecipeIdxMeal");
  recipes.Seek("=", true);
  listWhile(run, recipes, "Meal", true,
            [&](const Recordset& recipe, long rowCount) { listRecipe(run, recipe, rowCount); });
}

/// The recipes with a value of a category of their own.
void walkCategory(Run& run, const CategoryKind& kind, const Value& id) {
  Recordset recipes = openIndexed(run, "Recipe", kind.useIndex);
  recipes.Seek("=", id);
  listWhile(run, recipes, kind.name, id,
            [&](const Recordset& recipe, long rowCount) { listRecipe(run, recipe, rowCount); });
}

/// The recipes that the links of a category lead to. A link to a recipe that is gone is not passed over.
void walkLinks(Run& run, const CategoryKind& kind, const Value& id) {
  Recordset links = openIndexed(run, kind.linkTable, kind.useIndex);
  links.Seek("=", id);
  listWhile(run, links, kind.idField, id, [&](const Recordset& link, long rowCount) {
    Recordset recipe = openIndexed(run, "Recipe", "RecipeIdxRecipeId");
    recipe.Seek("=", link.Field("RecipeId"));
    listRecipe(run, recipe, rowCount);
  });
}

void walkIndex(Run& run, const ListQuery& query) {
  if (query.categoryKind == ListQuery::mealKind) {
    walkMeal(run);
    return;
  }
  const CategoryKind& kind = categoryKinds()[static_cast<std::size_t>(query.categoryKind - 1)];
  Recordset categories = openIndexed(run, kind.name, kind.descriptionIndex);
  // A row of a list is sought as it is written in the text, so one with an apostrophe is not found.
  categories.Seek("=", kind.isLinked() ? query.escapedSelection : (run.frmBrowse.*kind.browseCombo).Text());
  if (categories.NoMatch()) return;
  const Value id = categories.Field(kind.idField);
  if (kind.isLinked()) {
    walkLinks(run, kind, id);
  } else {
    walkCategory(run, kind, id);
  }
}

void walkTitles(Run& run) {
  Recordset recipes = openIndexed(run, "Recipe", "RecipeIdxTitle");
  recipes.Seek(">", "");
  listToEnd(run, recipes);
}

void fillList(Run& run, const ListQuery& query) {
  if (query.walk()) {
    walkIndex(run, query);
  } else if (query.whereUsed || run.frmBrowse.chkMeal.Value()) {
    listToEnd(run, run.GLOBAL.gDatabase.OpenRecordset(run.GLOBAL.gSqlText));
  } else {
    walkTitles(run);
  }
}

bool takesFocus(const Control& control) {
  return control.Enabled() && control.Visible();
}

/// The first row is selected; an empty list sends the user to the first box of the page on show.
void goToResult(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  if (form.lstTitles.ListCount() > 0) {
    form.lstTitles.setRow(0);
    form.lstTitles.setListIndex(0);
    run.windows.SetFocus(form.lstTitles);
  } else if (takesFocus(form.txtTitle)) {
    run.windows.SetFocus(form.txtTitle);
  } else if (takesFocus(form.txtSource)) {
    run.windows.SetFocus(form.txtSource);
  } else {
    run.windows.SetFocus(form.lstTitles);
  }
}

void buildList(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  form.fmeList.setCaption("Please wait, list being built");
  form.lstTitles.Clear();
  form.Refresh();
  const ListQuery query = buildListQuery(run);
  run.GLOBAL.gSqlText = query.text;
  // A walk delivers rows in the order of another key.
  form.lstTitles.setSorted(query.walk() ? 1 : 0);
  form.mbStop = false;
  subStopOn(run);
  fillList(run, query);
  subStopOff(run);
  form.mbStop = false;
  form.fmeList.setCaption(listCountCaption(run));
  goToResult(run);
}

}  // namespace

void subBuildList(Run& run) {
  if (!funValidFiltersContinued(run)) return;
  withHourglass(run.frmBrowse, [&] { buildList(run); });
}

}  // namespace pantrigo
