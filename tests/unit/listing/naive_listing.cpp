#include "unit/listing/naive_listing.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "unit/listing/naive_text.h"

namespace pantrigo {

namespace {

constexpr std::size_t energy = 2;
constexpr std::size_t health = 0;
constexpr double kilojoulesPerCalorie = 4.1868;

/// The number of a box: sign, digits, point and exponent, with blanks around.
double readNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" +"), text.size()));
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// Seven digits are what the limit of energy keeps.
double toSevenDigits(double number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), number, std::chars_format::scientific, 6).ptr;
  return readNumber({digits.data(), end});
}

double limitOf(const FilterRecord& filters, std::size_t field, bool kilojoules) {
  const double typed = readNumber(filters.limits[field]);
  if (field != energy) return typed;
  const double whole = std::copysign(std::floor(std::fabs(typed) + 0.5), typed);
  return kilojoules ? whole : toSevenDigits(whole * kilojoulesPerCalorie);
}

bool contains(const std::string& text, const std::string& piece) {
  return piece.empty() || naiveLike(text, "*" + piece + "*");
}

bool within(const ModelRecipe& recipe, const FilterRecord& filters, bool kilojoules) {
  for (std::size_t field = 0; field < numberFields.size(); ++field) {
    if (filters.limits[field].empty()) continue;
    if (recipe.numbers[field].value_or(0) == 0) return false;
    const double limit = limitOf(filters, field, kilojoules);
    if (filters.atLeast[field] ? *recipe.numbers[field] < limit : *recipe.numbers[field] > limit) return false;
  }
  return true;
}

bool isOfKind(const ModelRecipe& recipe, std::size_t kind, const std::string& text) {
  const auto id = recipe.category[kind];
  return id && naiveEqual(categories[static_cast<std::size_t>(*id - 1)], text);
}

bool hasCategories(const ModelRecipe& recipe, const FilterRecord& filters) {
  for (std::size_t kind = 0; kind < singleKinds.size(); ++kind) {
    if (!filters.category[kind].empty() && !isOfKind(recipe, kind, filters.category[kind])) return false;
  }
  for (std::size_t kind = 0; kind < listKinds.size(); ++kind) {
    const std::set<int>& rows = filters.selected[kind];
    const auto held = [&](int row) { return recipe.categorySet[kind].contains(row + 1); };
    if (rows.empty()) continue;
    if (kind == health ? !std::ranges::all_of(rows, held) : !std::ranges::any_of(rows, held)) return false;
  }
  return true;
}

/// All filters but the meal, which no text asks for.
bool fitsAll(const ModelRecipe& recipe, const FilterRecord& filters, bool kilojoules) {
  return contains(recipe.title, filters.title) && contains(recipe.ingredients, filters.ingredient) &&
         contains(recipe.source, filters.source) && contains(recipe.comment, filters.comments) &&
         contains(recipe.method, filters.method) && hasCategories(recipe, filters) &&
         within(recipe, filters, kilojoules);
}

std::size_t categoryCount(const FilterRecord& filters) {
  const auto set = std::ranges::count_if(filters.category, [](const std::string& text) { return !text.empty(); });
  return static_cast<std::size_t>(set) + filters.selected[0].size() + filters.selected[1].size() +
         (filters.mealOnly ? 1 : 0);
}

/// A single category stands alone: the other filters are not looked at. A row with an apostrophe is looked for with the
/// apostrophe doubled, and not found.
bool fitsOnlyCategory(const ModelRecipe& recipe, const FilterRecord& filters) {
  if (filters.mealOnly) return recipe.meal;
  const auto doubled = [](int row) {
    return categories[static_cast<std::size_t>(row)].find('\'') != std::string::npos;
  };
  for (const std::set<int>& rows : filters.selected) {
    if (std::ranges::any_of(rows, doubled)) return false;
  }
  return hasCategories(recipe, filters);
}

}  // namespace

std::vector<std::string> naiveTitles(const std::vector<ModelRecipe>& recipes, const FilterRecord& filters,
                                     bool kilojoules) {
  const bool one = categoryCount(filters) == 1;
  std::vector<std::string> titles;
  for (const ModelRecipe& recipe : recipes) {
    if (one ? fitsOnlyCategory(recipe, filters) : fitsAll(recipe, filters, kilojoules)) titles.push_back(recipe.title);
  }
  std::ranges::sort(titles, [](const auto& left, const auto& right) { return naiveOrder(left, right) < 0; });
  return titles;
}

}  // namespace pantrigo
