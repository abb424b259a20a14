// A dialog of the program, filled, against an empty one of the toolkit's with the same widgets: from the event that
// opens it until it is painted.

#include <benchmark/benchmark.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <memory>

#include "desktop/desktop.h"
#include "platform/controls/input.h"
#include "platform/text/numbers.h"
#include "support/scratch_folder.h"

namespace pantrigo::bench {
namespace {

constexpr int repetitions = 5;
constexpr long unitCount = 500;
constexpr long rowCount = 500;

/// A store with so many unit words, and one recipe with so many rows.
void makeStore(const std::filesystem::path& folder) {
  const std::filesystem::path file = folder / "PANTRIGO.MDB";
  Database::createStore(file);
  Database store = Database::OpenDatabase(file);
  Recordset system = store.OpenRecordset("System");
  system.Edit();
  system.Set("Measurement", "m");
  system.Set("ShowRecipes", true);
  system.Set("Cup", 250);
  system.Set("Tablespoon", 4);
  system.Update();
  Recordset units = store.OpenRecordset("Unit");
  for (long number = 0; number < unitCount; ++number) {
    units.AddNew();
    units.Set("Type", "a");
    units.Set("Description", "unit word " + plainText(number));
    units.Update();
  }
  std::string rows;
  for (long number = 0; number < rowCount; ++number)
    rows += "2~cup~ingredient " + plainText(number) + "~chopped~2~cup~";
  Recordset recipes = store.OpenRecordset("Recipe");
  recipes.AddNew();
  recipes.Set("RecipeId", 1);
  recipes.Set("Title", "Feast");
  recipes.Set("Ingredients", rows);
  recipes.Update();
  store.Close();
}

/// Paints a window once it has been shown, and tells the time from its making to then.
class ShownClock : public QObject {
 public:
  explicit ShownClock(QString window) : window_(std::move(window)) { qApp->installEventFilter(this); }

  /// Seconds from the start of the opening, which returns when the window has been left.
  double measure(const std::function<void()>& opening, const std::function<void()>& leaving) {
    leaving_ = leaving;
    seconds_ = -1;
    start_ = std::chrono::steady_clock::now();
    opening();
    if (seconds_ < 0) std::abort();
    return seconds_;
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && watched->isWidgetType() && watched->objectName() == window_) {
      auto* shown = static_cast<QWidget*>(watched);
      QTimer::singleShot(0, shown, [this, shown] {
        shown->repaint();
        seconds_ = std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
        leaving_();
      });
    }
    return false;
  }

 private:
  QString window_;
  std::function<void()> leaving_;
  std::chrono::steady_clock::time_point start_;
  double seconds_ = -1;
};

void OpenIngredient(benchmark::State& state) {
  const ScratchFolder folder;
  makeStore(folder.path());
  Desktop desktop(folder.path());
  desktop.start();
  Run& run = desktop.program().run();
  ShownClock clock(QStringLiteral("frmIngredient"));
  QtToolkit& toolkit = desktop.toolkit();
  toolkit.dispatch([&](Windows& windows) { userPicks(windows, run.frmBrowse.lstTitles, 0); });
  toolkit.dispatch([&](Windows& windows) { userDoubleClicks(windows, run.frmBrowse.lstTitles); });
  QCoreApplication::processEvents();
  if (run.frmDetail.lstIngredient.ListCount() != rowCount) std::abort();
  for (auto round : state) {
    state.SetIterationTime(clock.measure(
        [&] {
          toolkit.dispatch([&](Windows& windows) { userPicks(windows, run.frmDetail.lstIngredient, rowCount / 2); });
        },
        [&] {
          if (run.frmIngredient.cmbUnit.ListCount() != unitCount) std::abort();
          toolkit.dispatch([&](Windows& windows) { userClicks(windows, run.frmIngredient.cmdCancel); });
        }));
    QCoreApplication::processEvents();
  }
  desktop.close();
}
BENCHMARK(OpenIngredient)
    ->UseManualTime()
    ->Repetitions(repetitions)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

/// The same widgets, with nothing in them and nothing behind them.
void fillPlainDialog(QDialog& dialog) {
  auto* grid = new QGridLayout(&dialog);
  int column = 0;
  for (const char* heading : {"Quantity", "Unit", "Description", "Preparation"}) {
    grid->addWidget(new QLabel(QLatin1String(heading)), 0, column++);
  }
  auto* combo = new QComboBox;
  combo->setEditable(true);
  grid->addWidget(new QLineEdit, 1, 0);
  grid->addWidget(combo, 1, 1);
  grid->addWidget(new QLineEdit, 1, 2);
  grid->addWidget(new QLineEdit, 1, 3);
  grid->addWidget(new QCheckBox(QStringLiteral("Convert cups/spoons")), 2, 0, 1, 4);
  grid->addWidget(new QLabel, 3, 0, 1, 4);
  auto* buttons = new QHBoxLayout;
  for (const char* caption : {"<", ">", "&Add", "&Update", "&Delete", "C&lear", "&Cancel", "&Help"}) {
    buttons->addWidget(new QPushButton(QLatin1String(caption)));
  }
  grid->addLayout(buttons, 4, 0, 1, 4);
}

void OpenPlainDialog(benchmark::State& state) {
  ShownClock clock(QStringLiteral("plain"));
  for (auto round : state) {
    std::unique_ptr<QDialog> dialog;
    state.SetIterationTime(clock.measure(
        [&] {
          dialog = std::make_unique<QDialog>();
          dialog->setObjectName(QStringLiteral("plain"));
          fillPlainDialog(*dialog);
          dialog->exec();
        },
        [&] { dialog->reject(); }));
  }
}
BENCHMARK(OpenPlainDialog)
    ->UseManualTime()
    ->Repetitions(repetitions)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pantrigo::bench
