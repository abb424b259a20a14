#include "exchange/view_file.h"

#include <utility>

#include "core/layout.h"
#include "platform/text/format.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// Rows of a preview; what a file has beyond is not read.
constexpr int previewRows = 2001;

/// Print column, counted from 1, at which every line of the log begins.
constexpr int logColumn = 15;
constexpr double headingSize = 12;
constexpr double bodySize = 10;

void addRow(ListBox& list, const std::string& line) {
  if (!line.empty()) list.AddItem(line);
}

void showPreview(Run& run) {
  FrmView& form = run.frmView;
  form.setCaption("Preview Import File");
  form.fmeView.setCaption("");
  form.cmdPrint.setEnabled(false);
  TextReader file(run.files, run.GLOBAL.gImportFile);
  while (!file.Eof() && form.lstView.ListCount() < previewRows) addRow(form.lstView, file.LineInput());
}

void showLog(Run& run) {
  FrmView& form = run.frmView;
  form.setCaption("View / Print Import Log");
  std::optional<TextReader> log = std::exchange(form.log, std::nullopt);
  while (log.has_value() && !log->Eof()) addRow(form.lstView, log->LineInput());
  form.fmeView.setCaption(Str(static_cast<double>(form.lstView.ListCount())) + " error(s) / warning(s) displayed");
}

void printLine(Printer& printer, std::string_view line, int blanks = 0) {
  guarded([&] {
    printer.tab(logColumn);
    printer.space(blanks);
    printer.print(line);
    printer.endLine();
  });
}

void setFont(Printer& printer, double size, bool bold) {
  guarded([&] { printer.setFontSize(size); });
  guarded([&] { printer.setFontBold(bold); });
}

void printHeading(Run& run, Printer& printer) {
  const LocalTime now = run.toolkit.Now();
  setFont(printer, headingSize, true);
  guarded([&] {
    printer.print(" ");
    printer.endLine();
  });
  printLine(printer, "Import Log - printed: " + Format(now, "d-mmm-yyyy") + " at " + Format(now, "h:mm AMPM"));
  setFont(printer, headingSize, false);
  guarded([&] { printer.endLine(); });
  setFont(printer, bodySize, false);
}

}  // namespace

void frmView_Load(Run& run) {
  constexpr double middle = 2;
  const ScreenSize screen = run.toolkit.screen();
  FrmView& form = run.frmView;
  form.setBox(
      {(screen.width - form.Width()) / middle, (screen.height - form.Height()) / middle, form.Width(), form.Height()});
  if (run.GLOBAL.gImportFile.empty()) {
    showLog(run);
  } else {
    showPreview(run);
  }
}

void printImportLog(Run& run) {
  constexpr int indent = 2;
  TextReader log(run.files, Files::join(run.GLOBAL.gStartDir, "import.log"));
  Printer& printer = run.toolkit.printer();
  printHeading(run, printer);
  int count = 0;
  while (!log.Eof()) {
    const std::string line = log.LineInput();
    if (line.empty()) continue;
    printLine(printer, line, indent);
    ++count;
  }
  guarded([&] { printer.endLine(); });
  printLine(printer, Str(static_cast<double>(count)) + " error(s) / warning(s) printed.");
  guarded([&] { printer.EndDoc(); });
}

}  // namespace pantrigo
