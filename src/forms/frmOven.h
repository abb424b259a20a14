#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The oven temperature chart: twelve rows of centigrade, gas mark and fahrenheit. The centigrade column keeps the
/// chart's own round figures and is not the arithmetic conversion.
struct FrmOven : Form {
  FrmOven();

  static constexpr std::size_t rowCount = 12;
  static constexpr std::size_t columnCount = 3;

  Frame fmeOven{*this, "fmeOven", "", {120, 60, 4260, 3660}};
  Label Label37{fmeOven, "Label37", "    Centigrade            Gas           Fahrenheit", {240, 240, 3900, 255}};
  /// `Label1` to `Label36`, three to a row from left to right.
  std::array<std::unique_ptr<Label>, rowCount * columnCount> labels;
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {1650, 3840, 1215, 375}};
};

}  // namespace pantrigo
