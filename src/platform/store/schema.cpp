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

constexpr FieldDescription nationalityFields[] = {{"NationalityId", LongInteger}, {"Description", Text}};
constexpr IndexDescription nationalityIndexes[] = {
    {"NationalityIdxDescription", {"Description", ""}, duplicates, "NationalityId"},
    {"NationalityIdxNationalityId", {"NationalityId", ""}, unique, ""},
};

constexpr FieldDescription courseFields[] = {{"CourseId", LongInteger}, {"Description", Text}};
constexpr IndexDescription courseIndexes[] = {
    {"CourseIdxDescription", {"Description", ""}, duplicates, "CourseId"},
    {"CourseIdxCourseId", {"CourseId", ""}, unique, ""},
};

constexpr FieldDescription cookingFields[] = {{"CookingId", LongInteger}, {"Description", Text}};
constexpr IndexDescription cookingIndexes[] = {
    {"CookingIdxDescription", {"Description", ""}, duplicates, "CookingId"},
    {"CookingIdxCookingId", {"CookingId", ""}, unique, ""},
};

constexpr FieldDescription easeFields[] = {{"EaseId", LongInteger}, {"Description", Text}};
constexpr IndexDescription easeIndexes[] = {
    {"EaseIdxDescription", {"Description", ""}, duplicates, "EaseId"},
    {"EaseIdxEaseId", {"EaseId", ""}, unique, ""},
};

constexpr FieldDescription healthFields[] = {{"HealthId", LongInteger}, {"Description", Text}};
constexpr IndexDescription healthIndexes[] = {
    {"HealthIdxDescription", {"Description", ""}, duplicates, "HealthId"},
    {"HealthIdxHealthId", {"HealthId", ""}, unique, ""},
};

constexpr FieldDescription otherFields[] = {{"OtherId", LongInteger}, {"Description", Text}};
constexpr IndexDescription otherIndexes[] = {
    {"OtherIdxDescription", {"Description", ""}, duplicates, "OtherId"},
    {"OtherIdxOtherId", {"OtherId", ""}, unique, ""},
};

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
    {"Recipe", recipeFields, recipeIndexes},
    {"Nationality", nationalityFields, nationalityIndexes},
    {"Course", courseFields, courseIndexes},
    {"Cooking", cookingFields, cookingIndexes},
    {"Ease", easeFields, easeIndexes},
    {"Health", healthFields, healthIndexes},
    {"Other", otherFields, otherIndexes},
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
