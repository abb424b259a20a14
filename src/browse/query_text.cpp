#include "browse/query_text.h"

#include "core/category_kinds.h"
#include "core/messages.h"
#include "measures/quantity.h"
#include "platform/text/format.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

constexpr double kilojoulesInCalorie = 4.1868;

/// A filter on a text that a field contains.
struct TextFilter {
  TextBox FrmBrowse::*box;
  std::string_view field;
};

// The conditions stand in the order of the form: these, the categories, the source, the numbers, and these.
constexpr TextFilter leadingTexts[] = {
    {&FrmBrowse::txtTitle, "Recipe.Title"},
    {&FrmBrowse::txtIngredient, "Recipe!Ingredients"},
};
constexpr TextFilter sourceText{&FrmBrowse::txtSource, "Recipe.Source"};
constexpr TextFilter trailingTexts[] = {
    {&FrmBrowse::txtComments, "Recipe.Comment"},
    {&FrmBrowse::txtMethod, "Recipe.Method"},
};

/// Appends the pieces of the text in their order.
class QueryBuilder {
 public:
  explicit QueryBuilder(Run& run) : run_(run), form_(run.frmBrowse) {}

  [[nodiscard]] ListQuery build() {
    query_.text = " SELECT Distinct Recipe.Title, Recipe.Meal ";
    query_.text += " FROM Recipe ";
    addTables();
    for (const TextFilter& filter : leadingTexts) addText(filter);
    for (const CategoryKind& kind : categoryKinds()) {
      if (!kind.isLinked()) addCategory(kind);
    }
    addHealth(form_.lstHealth);
    addOther(form_.lstOther);
    addText(sourceText);
    for (const NumericFilter& filter : numericFilters) addLimit(filter);
    for (const TextFilter& filter : trailingTexts) addText(filter);
    return query_;
  }

 private:
  void countCategory(int kind) {
    ++query_.categoryCount;
    query_.categoryKind = kind;
  }

  void addTables() {
    int number = 0;
    for (const CategoryKind& kind : categoryKinds()) {
      ++number;
      if (kind.isLinked() || (form_.*kind.browseCombo).Text().empty()) continue;
      query_.text += " ," + std::string(kind.name) + " ";
      countCategory(number);
    }
    if (form_.lstOther.SelCount() > 0) query_.text += " ,Other,RecipeOther ";
    if (form_.chkMeal.Value()) countCategory(ListQuery::mealKind);
  }

  /// Begins a condition, the first one or a further one.
  void begin() {
    query_.text += query_.whereUsed ? " AND " : " WHERE ";
    query_.whereUsed = true;
  }

  void addText(const TextFilter& filter) {
    const std::string& text = (form_.*filter.box).Text();
    if (text.empty()) return;
    begin();
    query_.text += std::string(filter.field) + " like '*" + funEscapeQuote(text) + "*'";
  }

  void addCategory(const CategoryKind& kind) {
    const std::string& text = (form_.*kind.browseCombo).Text();
    if (text.empty()) return;
    const std::string name(kind.name);
    begin();
    query_.text += name + ".Description = '" + funEscapeQuote(text) + "'";
    query_.text += " AND Recipe." + name + " = " + name + "." + std::string(kind.idField) + " ";
  }

  /// A recipe has all of the selected rows of Health.
  void addHealth(const ListBox& list) {
    bool listStarted = false;
    for (int row = 0; row < list.ListCount(); ++row) {
      if (!list.Selected(row)) continue;
      query_.escapedSelection = funEscapeQuote(list.List(row));
      begin();
      query_.text += (listStarted ? "('" : "(('") + query_.escapedSelection +
                     "' in (Select Health.Description from Health,RecipeHealth Where RecipeHealth!HealthId = "
                     "Health!HealthId and RecipeHealth!RecipeId = Recipe!RecipeId))";
      listStarted = true;
      countCategory(ListQuery::healthKind);
    }
    if (listStarted) query_.text += ")";
  }

  /// A recipe has any of the selected rows of Other.
  void addOther(const ListBox& list) {
    bool listStarted = false;
    for (int row = 0; row < list.ListCount(); ++row) {
      if (!list.Selected(row)) continue;
      query_.escapedSelection = funEscapeQuote(list.List(row));
      if (listStarted) {
        query_.text += " OR  ";
      } else {
        begin();
        query_.text += "(";
      }
      query_.text += "Other.Description = '" + query_.escapedSelection + "'";
      listStarted = true;
      countCategory(ListQuery::otherKind);
    }
    if (!listStarted) return;
    query_.text += " ) AND RecipeOther.RecipeId = Recipe.RecipeId ";
    query_.text += " AND RecipeOther.OtherId = Other.OtherId ";
  }

  /// The limit of energy in kilojoules, as the store has it: a whole number of what is typed. An empty box gives 0.
  [[nodiscard]] float energyValue() const {
    double value = Val(Format(form_.txtEnergy.Text(), "#####"));
    if (!run_.GLOBAL.gSystem.Field("Kilojoules").truth()) value *= kilojoulesInCalorie;
    return toSingle(value);
  }

  /// In the store 0 stands for a value that was not given, which no limit takes in.
  void addLimit(const NumericFilter& filter) {
    const TextBox& box = form_.*filter.box;
    if (box.Text().empty()) return;
    const std::string field = "Recipe." + std::string(filter.field);
    const std::string limit = &box == &form_.txtEnergy ? plainText(energyValue()) : box.Text();
    begin();
    query_.text += "(" + field + " " + (form_.*filter.sign).Caption() + " " + limit + " AND " + field + " <> 0)";
  }

  Run& run_;
  const FrmBrowse& form_;
  ListQuery query_;
};

}  // namespace

ListQuery buildListQuery(Run& run) {
  return QueryBuilder(run).build();
}

}  // namespace pantrigo
