#include "platform/store/schema.h"

#include <algorithm>

#include "platform/store/names.h"

namespace pantrigo {

namespace {

using enum FieldType;

constexpr Uniqueness duplicates = Uniqueness::Duplicates;
constexpr Uniqueness unique = Uniqueness::Unique;

/// The memos come last: the engine reads a row from its front, so the short fields cost the same however long the memos
/// are.
constexpr FieldDescription recipeFields[] = {
    {"RecipeId", LongInteger}, {"Title", Text},
    {"Meal", YesNo},           {"Nationality", LongInteger},
    {"Course", LongInteger},   {"Cooking", LongInteger},
    {"Ease", LongInteger},     {"Serves", Number},
    {"Makes", YesNo},          {"PrepareTime", Number},
    {"CookTime", Number},      {"Energy", Number},
    {"Protein", Number},       {"Carbohydrates", Number},
    {"Fibre", Number},         {"Fat", Number},
    {"Cholesterol", Number},   {"Sodium", Number},
    {"Calcium", Number},       {"Iron", Number},
    {"Source", Text},          {"ConvertCupSpoon", YesNo},
    {"Comment", Memo},         {"Ingredients", Memo},
    {"Method", Memo},
};

/// The title list reads nothing but the title and the meal mark of each recipe.
constexpr IndexDescription recipeIndexes[] = {
    {"RecipeIdxTitle", {"Title", ""}, duplicates, "Meal"},
    {"RecipeIdxRecipeId", {"RecipeId", ""}, unique, ""},
    {"RecipeIdxNationality", {"Nationality", ""}, duplicates, ""},
    {"RecipeIdxCourse", {"Course", ""}, duplicates, ""},
    {"RecipeIdxCooking", {"Cooking", ""}, duplicates, ""},
    {"RecipeIdxEase", {"Ease", ""}, duplicates, ""},
    {"RecipeIdxMeal", {"Meal", ""}, duplicates, ""},
};

/// What a list shows of each recipe.
constexpr std::string_view recipeCompanions[] = {"Title", "Meal"};

/// What the six category tables have in common: an id and a description, and an index on each. The category lists read
/// both fields from the index of the descriptions.
struct CategoryTable {
  FieldDescription fields[2];
  IndexDescription indexes[2];
};

constexpr CategoryTable categoryTable(std::string_view idField, std::string_view byDescription, std::string_view byId) {
  return {{{idField, LongInteger}, {"Description", Text}},
          {{byDescription, {"Description", ""}, duplicates, idField}, {byId, {idField, ""}, unique, ""}}};
}

constexpr CategoryTable nationality =
    categoryTable("NationalityId", "NationalityIdxDescription", "NationalityIdxNationalityId");
constexpr CategoryTable course = categoryTable("CourseId", "CourseIdxDescription", "CourseIdxCourseId");
constexpr CategoryTable cooking = categoryTable("CookingId", "CookingIdxDescription", "CookingIdxCookingId");
constexpr CategoryTable ease = categoryTable("EaseId", "EaseIdxDescription", "EaseIdxEaseId");
constexpr CategoryTable health = categoryTable("HealthId", "HealthIdxDescription", "HealthIdxHealthId");
constexpr CategoryTable other = categoryTable("OtherId", "OtherIdxDescription", "OtherIdxOtherId");

constexpr FieldDescription recipeHealthFields[] = {{"RecipeId", LongInteger}, {"HealthId", LongInteger}};
constexpr IndexDescription recipeHealthIndexes[] = {
    {"RecipeHealthIdxRecipeId", {"RecipeId", ""}, duplicates, "HealthId"},
    {"RecipeHealthIdxHealthId", {"HealthId", ""}, duplicates, "RecipeId"},
    {"RecipeHealthIdxRecipeIdHealthId", {"RecipeId", "HealthId"}, unique, ""},
};

constexpr FieldDescription recipeOtherFields[] = {{"RecipeId", LongInteger}, {"OtherId", LongInteger}};
constexpr IndexDescription recipeOtherIndexes[] = {
    {"RecipeOtherIdxRecipeId", {"RecipeId", ""}, duplicates, "OtherId"},
    {"RecipeOtherIdxOtherId", {"OtherId", ""}, duplicates, "RecipeId"},
    {"RecipeOtherIdxRecipeIdOtherId", {"RecipeId", "OtherId"}, unique, ""},
};

constexpr FieldDescription unitFields[] = {{"Type", Text}, {"Description", Text}};
constexpr IndexDescription unitIndexes[] = {{"UnitIdxType", {"Type", ""}, duplicates, "Description"}};

constexpr FieldDescription systemFields[] = {
    {"RecipeId", LongInteger},  {"NationalityId", LongInteger}, {"CourseId", LongInteger}, {"CookingId", LongInteger},
    {"EaseId", LongInteger},    {"HealthId", LongInteger},      {"OtherId", LongInteger},  {"Measurement", Text},
    {"PartialFractions", Text}, {"Fractions", YesNo},           {"UseOriginalUOM", YesNo}, {"Centilitres", YesNo},
    {"Centimetres", YesNo},     {"Centigrams", YesNo},          {"Cup", Number},           {"Tablespoon", Number},
    {"Settings", Number},       {"SettingsIngredients", YesNo}, {"Kilojoules", YesNo},     {"ShowRecipes", YesNo},
    {"ShowToolBars", YesNo},
};

constexpr TableDescription tables[] = {
    {"Recipe", recipeFields, recipeIndexes, recipeCompanions},
    {"Nationality", nationality.fields, nationality.indexes},
    {"Course", course.fields, course.indexes},
    {"Cooking", cooking.fields, cooking.indexes},
    {"Ease", ease.fields, ease.indexes},
    {"Health", health.fields, health.indexes},
    {"Other", other.fields, other.indexes},
    {"RecipeHealth", recipeHealthFields, recipeHealthIndexes},
    {"RecipeOther", recipeOtherFields, recipeOtherIndexes},
    {"Unit", unitFields, unitIndexes},
    {"System", systemFields, {}},
};

}  // namespace

std::span<const TableDescription> storeTables() {
  return tables;
}

const TableDescription* findTable(std::string_view name) {
  const auto* found = std::ranges::find_if(tables, [name](const auto& table) { return isSameName(table.name, name); });
  return found == std::end(tables) ? nullptr : found;
}

}  // namespace pantrigo
