#pragma once

#include <filesystem>

#include "core/global.h"
#include "forms/frmAbout.h"
#include "forms/frmBrowse.h"
#include "forms/frmCategory.h"
#include "forms/frmDetail.h"
#include "forms/frmIngredient.h"
#include "forms/frmNutrition.h"
#include "forms/frmOptions.h"
#include "forms/frmOven.h"
#include "forms/frmSettings.h"
#include "forms/frmSource.h"
#include "forms/frmView.h"
#include "platform/controls/event_loop.h"
#include "platform/controls/windows.h"
#include "platform/files/files.h"

namespace pantrigo {

/// What every routine is handed: the platform, the shared state and the forms of one run of the program. Two runs can
/// live in one process.
struct Run {
  /// `folder` is the current folder of the run, where the store lies.
  Run(Toolkit& kit, std::filesystem::path folder) : toolkit(kit), loop(kit), windows(loop), files(std::move(folder)) {}

  Toolkit& toolkit;
  EventLoop loop;
  Windows windows;
  Files files;

  Global GLOBAL;

  FrmBrowse frmBrowse;
  FrmDetail frmDetail;
  FrmAbout frmAbout;
  FrmOven frmOven;
  FrmIngredient frmIngredient;
  FrmNutrition frmNutrition;
  FrmSettings frmSettings;
  FrmSource frmSource;
  FrmCategory frmCategory;
  FrmOptions frmOptions;
  FrmView frmView;

  /// All forms, for what goes over every one of them.
  [[nodiscard]] std::vector<Form*> forms() {
    return {&frmBrowse,   &frmDetail, &frmAbout,    &frmOven,    &frmIngredient, &frmNutrition,
            &frmSettings, &frmSource, &frmCategory, &frmOptions, &frmView};
  }
};

}  // namespace pantrigo
