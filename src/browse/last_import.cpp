#include "browse/last_import.h"

#include <optional>
#include <utility>

#include "browse/filters.h"
#include "browse/long_work.h"
#include "core/messages.h"
#include "core/start_up.h"
#include "core/title_rows.h"

namespace pantrigo {

namespace {

/// Opens a file that the last import wrote. Nothing when it is empty or can't be opened; the given text is then shown.
std::optional<TextReader> openResult(Run& run, std::string_view file, std::string_view whenEmpty) {
  std::optional<TextReader> opened;
  guarded([&] { opened.emplace(run.files, file); });
  if (opened.has_value() && !opened->Eof()) return opened;
  run.loop.MsgBox(whenEmpty, boxInformation, captionInformation);
  return std::nullopt;
}

void listTitles(Run& run, TextReader titles) {
  Recordset recipe = run.GLOBAL.gDatabase.OpenRecordset("Recipe");
  recipe.Index("RecipeIdxTitle");
  long rowCount = 0;
  while (!titles.Eof()) {
    const std::string title = titles.LineInput();
    if (title.empty()) continue;
    recipe.Seek("=", title);
    if (recipe.NoMatch()) continue;
    subAddListRow(run, recipe.Field("Title").text(), recipe.Field("Meal").truth(), rowCount);
    if (funListTick(run, rowCount)) return;
  }
}

}  // namespace

void showImportLog(Run& run) {
  std::optional<TextReader> log =
      openResult(run, Files::join(run.GLOBAL.gStartDir, "import.log"), "No errors or warnings found for last import.");
  if (!log.has_value()) return;
  run.GLOBAL.gImportFile.clear();
  run.frmView.log = std::move(log);
  run.windows.ShowModal(run.frmView);
}

void subListLastImported(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  if (form.mbBusy) return;
  std::optional<TextReader> titles = openResult(run, "import.lst", "No recipe details found for last import.");
  if (!titles.has_value()) return;
  subClearFilters(run);
  form.lstTitles.Clear();
  form.lstTitles.setSorted(1);
  form.mbStop = false;
  subStopOn(run);
  listTitles(run, *std::move(titles));
  form.fmeList.setCaption(listCountCaption(run));
  subStopOff(run);
  run.toolkit.setScreenPointer(pointerDefault);
}

}  // namespace pantrigo
