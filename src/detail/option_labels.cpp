#include "detail/option_labels.h"

namespace pantrigo {

namespace {

struct MeasurementCaption {
  std::string_view measurement;
  std::string_view caption;
};

constexpr MeasurementCaption measurementCaptions[] = {
    {"m", "(metric)"}, {"i", "(UK imperial)"}, {"u", "(US imperial)"}};

}  // namespace

void showMeasurement(Run& run) {
  const std::string measurement = run.GLOBAL.gSystem.Field("Measurement").text();
  for (const MeasurementCaption& row : measurementCaptions) {
    if (row.measurement == measurement) run.frmDetail.lblMeasurement.setCaption(row.caption);
  }
}

void showSettings(Run& run) {
  const Recordset& system = run.GLOBAL.gSystem;
  const Value settings = system.Field("Settings");
  const bool shown = !settings.isNull() && settings.text() != " " && system.Field("SettingsIngredients").truth();
  run.frmDetail.lblSettings.setCaption(shown ? "(" + settings.text() + ")" : "");
  run.frmDetail.lblSettings.setVisible(shown);
}

}  // namespace pantrigo
