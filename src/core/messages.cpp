#include "core/messages.h"

namespace pantrigo {

namespace {

constexpr std::string_view helpFile = "PANTRIGO.HLP";

}  // namespace

std::string funEscapeQuote(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char character : text) {
    escaped += character;
    if (character == '\'') escaped += '\'';
  }
  return escaped;
}

BoxAnswer funConfirmDelete(Run& run) {
  return run.loop.MsgBox("Are you sure you want to delete this recipe?", boxQuestion, captionConfirmation);
}

void subNoSuchRecipe(Run& run) {
  run.loop.MsgBox("No recipe with this title exists. You may need to add the recipe first.", boxExclamation,
                  captionSorry);
}

void subNotNumeric(Run& run) {
  run.loop.MsgBox("Value entered must be numeric.", boxStop, captionError);
}

void subSelectRecipe(Run& run) {
  run.loop.MsgBox("Please select a recipe to perform this function.", boxStop, captionError);
}

void subShowHelp(Run& run, int context) {
  CommonDialog& dialog = run.frmBrowse.CMDialog1;
  dialog.setHelpFile(helpFile);
  dialog.setHelpContext(context);
  dialog.setHelpCommand(helpOfContext);
  dialog.setAction(DialogAction::Help);
}

void showHelpSearch(CommonDialog& dialog) {
  dialog.setHelpFile(helpFile);
  dialog.setHelpCommand(helpPartialKey);
  dialog.setAction(DialogAction::Help);
}

}  // namespace pantrigo
