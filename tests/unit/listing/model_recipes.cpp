#include "unit/listing/model_recipes.h"

#include "core/start_up.h"
#include "newstore/make_store.h"
#include "unit/listing/naive_text.h"

namespace pantrigo {

namespace {

constexpr std::array<std::string_view, 24> words{
    "pie",       "Pie",   "apple",  "APPLE",         "Crème", "CREME", "O'Brien", "100%",
    "a_b",       "[x]",   "9 eggs", "salt & pepper", "σοφός", "ΣΟΦΌΣ", "straße",  "10 \u212Aelvin",
    "Mi\u017Fo", "ñandú", "x-y",    "Übrig",         "50*",   "who?",  "#3",      "🍎 fruit"};

/// Words of titles: only characters whose place in the order of titles is known to the naive order.
constexpr std::array<std::string_view, 14> titleWords{"pie", "Pie", "apple", "Crème", "creme", "O'Brien", "100%",
                                                      "a_b", "9",   "x-y",   "stew",  "Beef",  "soup",    "Ñame"};

constexpr std::array<double, 12> numbers{0, 0.5, 1, 4, 5, 10, 13, 30, 54.4284, 60, 125.604, 1046.7};

template <class List>
const auto& anyOf(Random& random, const List& list) {
  return list[std::uniform_int_distribution<std::size_t>(0, list.size() - 1)(random)];
}

bool oneIn(Random& random, int chances) {
  return std::uniform_int_distribution<int>(1, chances)(random) == 1;
}

std::string someWords(Random& random, int most) {
  std::string text;
  for (int count = std::uniform_int_distribution<int>(0, most)(random); count > 0; --count) {
    if (!text.empty()) text += oneIn(random, 4) ? "\r\n" : " ";
    text += anyOf(random, words);
  }
  return text;
}

std::string anyTitle(Random& random) {
  std::string title(anyOf(random, titleWords));
  for (int count = std::uniform_int_distribution<int>(1, 3)(random); count > 0; --count) {
    title += " ";
    title += anyOf(random, titleWords);
  }
  return title;
}

long anyCategory(Random& random) {
  return std::uniform_int_distribution<long>(1, categories.size())(random);
}

ModelRecipe anyRecipe(Random& random) {
  ModelRecipe recipe;
  recipe.title = anyTitle(random);
  recipe.ingredients = someWords(random, 8);
  recipe.source = someWords(random, 2);
  recipe.comment = someWords(random, 4);
  recipe.method = someWords(random, 8);
  recipe.meal = oneIn(random, 6);
  for (std::optional<long>& category : recipe.category) {
    if (!oneIn(random, 4)) category = anyCategory(random);
  }
  for (std::set<long>& chosen : recipe.categorySet) {
    for (int count = std::uniform_int_distribution<int>(0, 4)(random); count > 0; --count) {
      chosen.insert(anyCategory(random));
    }
  }
  for (std::optional<double>& number : recipe.numbers) {
    if (!oneIn(random, 5)) number = anyOf(random, numbers);
  }
  return recipe;
}

void writeCategories(Database& database) {
  for (const auto& kinds :
       {std::vector(singleKinds.begin(), singleKinds.end()), std::vector(listKinds.begin(), listKinds.end())}) {
    for (const std::string_view kind : kinds) {
      Recordset rows = database.OpenRecordset(kind);
      long id = 0;
      for (const std::string_view description : categories) {
        rows.AddNew();
        rows.Set(std::string(kind) + "Id", ++id);
        rows.Set("Description", std::string(description));
        rows.Update();
      }
    }
  }
}

void writeRecipe(Recordset& rows, const ModelRecipe& recipe) {
  rows.AddNew();
  rows.Set("RecipeId", recipe.id);
  rows.Set("Title", recipe.title);
  rows.Set("Ingredients", recipe.ingredients);
  rows.Set("Source", recipe.source);
  rows.Set("Comment", recipe.comment);
  rows.Set("Method", recipe.method);
  rows.Set("Meal", recipe.meal);
  for (std::size_t kind = 0; kind < singleKinds.size(); ++kind) {
    if (recipe.category[kind]) rows.Set(singleKinds[kind], *recipe.category[kind]);
  }
  for (std::size_t field = 0; field < numberFields.size(); ++field) {
    if (recipe.numbers[field]) rows.Set(numberFields[field], *recipe.numbers[field]);
  }
  rows.Update();
}

void writeLinks(Database& database, const std::vector<ModelRecipe>& recipes, std::size_t kind) {
  Recordset rows = database.OpenRecordset("Recipe" + std::string(listKinds[kind]));
  for (const ModelRecipe& recipe : recipes) {
    for (const long id : recipe.categorySet[kind]) {
      rows.AddNew();
      rows.Set("RecipeId", recipe.id);
      rows.Set(std::string(listKinds[kind]) + "Id", id);
      rows.Update();
    }
  }
}

}  // namespace

std::string anyWord(Random& random) {
  return std::string(anyOf(random, words));
}

std::vector<ModelRecipe> makeModel(Random& random, int count) {
  const auto before = [](const std::string& left, const std::string& right) { return naiveOrder(left, right) < 0; };
  std::set<std::string, decltype(before)> titles(before);
  std::vector<ModelRecipe> recipes;
  while (static_cast<int>(recipes.size()) < count) {
    ModelRecipe recipe = anyRecipe(random);
    if (!titles.insert(recipe.title).second) continue;
    recipe.id = static_cast<long>(recipes.size()) + 1;
    recipes.push_back(std::move(recipe));
  }
  return recipes;
}

void writeModel(const std::vector<ModelRecipe>& recipes, const std::filesystem::path& folder) {
  makeStore({folder / storeName, {}, {}});
  Database database = Database::OpenDatabase(folder / storeName);
  writeCategories(database);
  {
    Recordset rows = database.OpenRecordset("Recipe");
    for (const ModelRecipe& recipe : recipes) writeRecipe(rows, recipe);
  }
  for (std::size_t kind = 0; kind < listKinds.size(); ++kind) writeLinks(database, recipes, kind);
  database.Close();
}

}  // namespace pantrigo
