#include "core/energy_label.h"

namespace pantrigo {

void showEnergyUnit(Run& run) {
  const bool inKilojoules = run.GLOBAL.gSystem.Field("Kilojoules").truth();
  run.frmBrowse.lblEnergy.setCaption(inKilojoules ? "Energy (kilojoules):" : "Energy (calories):");
}

}  // namespace pantrigo
