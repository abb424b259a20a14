#pragma once

#include <string>
#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// Captions of the message boxes: refused input, refused operation, question, information.
inline constexpr std::string_view captionError = "Error";
inline constexpr std::string_view captionSorry = "Sorry";
inline constexpr std::string_view captionConfirmation = "Confirmation";
inline constexpr std::string_view captionInformation = "Information";

/// The text with each apostrophe written twice. Every value that enters SQL text goes through it.
[[nodiscard]] std::string funEscapeQuote(std::string_view text);

/// Asks whether the recipe is to be deleted; gives the button pressed.
[[nodiscard]] BoxAnswer funConfirmDelete(Run& run);

/// No recipe with the title exists.
void subNoSuchRecipe(Run& run);

/// The value entered must be numeric.
void subNotNumeric(Run& run);

/// A recipe must be selected first.
void subSelectRecipe(Run& run);

/// Shows the help page of a context, by the dialog of the main window.
void subShowHelp(Run& run, int context);

/// Help contexts by the place they are asked from.
enum HelpContext : int {
  helpContents = 0,
  helpBrowse = 300,
  helpOptions = 360,
  helpView = 375,
  helpSettings = 380,
  helpCategory = 390,
  helpDetail = 400,
  helpIngredient = 410,
  helpNutrition = 440,
  helpSource = 450
};

/// Shows the search of the help by a word, by a form's own dialog.
void showHelpSearch(CommonDialog& dialog);

}  // namespace pantrigo
