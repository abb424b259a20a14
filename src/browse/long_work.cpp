#include "browse/long_work.h"

#include <utility>

#include "core/start_up.h"

namespace pantrigo {

namespace {

/// Rows between two turns of the event pump.
constexpr long rowsBetweenTurns = 100;

/// Whether Stop stands in the place that it shares with Filter.
void showStop(ToolBar& toolBar, bool stop) {
  const std::string_view hidden = stop ? "Filter" : "Stop";
  const std::string_view shown = stop ? "Stop" : "Filter";
  toolBar.setButtonVisible(hidden, false);
  toolBar.setButtonEnabled(hidden, false);
  toolBar.setButtonVisible(shown, true);
  toolBar.setButtonEnabled(shown, true);
}

}  // namespace

void subStopOn(Run& run) {
  ToolBar& toolBar = run.frmBrowse.tbBrowse;
  toolBar.setAllValues(1);
  toolBar.setButtonValue("Stop", 0);
  run.frmBrowse.mbBusy = true;
  showStop(toolBar, true);
}

void subStopOff(Run& run) {
  run.frmBrowse.tbBrowse.setAllValues(0);
  run.frmBrowse.mbBusy = false;
  showStop(run.frmBrowse.tbBrowse, false);
}

bool funListTick(Run& run, long& rowCount) {
  ++rowCount;
  if (rowCount % rowsBetweenTurns == 0) {
    run.frmBrowse.fmeList.setCaption(listCountCaption(run));
    // The turn paints the caption.
    run.loop.DoEvents();
  }
  return std::exchange(run.frmBrowse.mbStop, false);
}

}  // namespace pantrigo
