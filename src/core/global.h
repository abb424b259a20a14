#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/store/database.h"

namespace pantrigo {

/// One ingredient row. Columns, counted from 1: base quantity, base unit, description, preparation note, quantity as
/// entered, unit as entered.
class IngredientRow {
 public:
  static constexpr int columnCount = 6;
  [[nodiscard]] std::string& operator[](int column) { return columns_[static_cast<std::size_t>(column - 1)]; }
  [[nodiscard]] const std::string& operator[](int column) const {
    return columns_[static_cast<std::size_t>(column - 1)];
  }
  friend bool operator==(const IngredientRow&, const IngredientRow&) = default;

 private:
  std::array<std::string, columnCount> columns_;
};

/// The state that the forms share. It belongs to one run and lives as long as it.
struct Global {
  Database gDatabase;
  Recordset gRecipe;
  Recordset gNationality;
  Recordset gCourse;
  Recordset gCooking;
  Recordset gEase;
  Recordset gHealth;
  Recordset gOther;
  Recordset gSystem;
  /// Opened when the ingredient dialog loads.
  Recordset gUnit;
  /// Opened anew by each routine that needs them.
  Recordset gRecipeHealth;
  Recordset gRecipeOther;

  /// The current folder at start-up.
  std::string gStartDir;
  /// Screen scale: layout numbers are multiplied by it; 1 is the design width of 9600 twips.
  float gScale = 1;
  /// The SQL text being built.
  std::string gSqlText;

  /// The title that the detail window is to show; empty shows nothing.
  std::string gSelectedTitle;
  /// The title as it stood in the detail window's box before the last recipe was shown.
  std::string gTitleBeforeEdit;
  /// Index of the current entry of the title list.
  long gListIndex = 0;
  /// True: the next activation of the detail window only clears this flag. False: it reloads the recipe.
  bool gKeepDetailOnActivate = false;

  bool gDetailChanged = false;
  bool gIngredientsChanged = false;
  bool gMethodChanged = false;
  bool gCommentsChanged = false;
  bool gHealthChanged = false;
  bool gOtherChanged = false;

  /// The ingredient rows of the open recipe, from row 0 on.
  std::vector<IngredientRow> gIngredientRows;
  /// Highest row index in use; -1 for none.
  long gIngredientLast = 0;
  /// "1" when the open recipe's cups and spoons are converted, "0" when not; empty before any recipe was shown.
  std::string gConvertCupSpoon;

  // Working fields of the display pipeline.
  float gWorkQuantity = 0;
  std::string gWorkUnit;
  std::string gSavedUnit;
  std::string gRowQuantity;
  std::string gRowUnit;
  std::string gQuantityText;
  std::string gPartFraction;
  long gBracketOpen = 0;
  long gBracketClose = 0;
  std::string gBracketAmount;
  std::string gBracketUnit;

  // Nutrition values of the open recipe: energy in kilojoules, then grams and milligrams as the store has them.
  float gEnergy = 0;
  float gProtein = 0;
  float gCholesterol = 0;
  float gCarbohydrates = 0;
  float gSodium = 0;
  float gFibre = 0;
  float gCalcium = 0;
  float gFat = 0;
  float gIron = 0;

  std::string gSource;
  std::string gSourceEntered;
  std::string gCategoryTable;
  std::string gCategoryCaller;
  long gImageRecipeId = 0;
  std::string gExportFile;
  std::string gExportDir;
  std::string gExportSuffix;
  std::string gImportFile;
  std::string gImportIngredients;
};

}  // namespace pantrigo
