#pragma once

#include "core/run.h"

namespace pantrigo {

/// Blanks the form and the working copy of the recipe.
void subClearDetail(Run& run);

/// The caption that names the measurement system of the options; another value leaves it.
void showMeasurement(Run& run);

/// The number of people catered for, in brackets, where ingredients are scaled to it; else empty and hidden.
void showSettings(Run& run);

/// The nine nutrition values of the open recipe, in the order in which they are stored.
struct NutritionValue {
  std::string_view field;
  float Global::*value;
};
inline constexpr NutritionValue nutritionValues[] = {
    {"Energy", &Global::gEnergy},   {"Protein", &Global::gProtein}, {"Cholesterol", &Global::gCholesterol},
    {"Carbohydrates", &Global::gCarbohydrates}, {"Sodium", &Global::gSodium}, {"Fibre", &Global::gFibre},
    {"Calcium", &Global::gCalcium}, {"Fat", &Global::gFat},         {"Iron", &Global::gIron},
};

}  // namespace pantrigo
