#include "browse/last_import.h"

#include <optional>
#include <utility>

#include "core/messages.h"

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

}  // namespace

void showImportLog(Run& run) {
  std::optional<TextReader> log =
      openResult(run, Files::join(run.GLOBAL.gStartDir, "import.log"), "No errors or warnings found for last import.");
  if (!log.has_value()) return;
  run.GLOBAL.gImportFile.clear();
  run.frmView.log = std::move(log);
  run.windows.ShowModal(run.frmView);
}

}  // namespace pantrigo
