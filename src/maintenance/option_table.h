#pragma once

#include <span>
#include <string_view>

#include "forms/frmOptions.h"

namespace pantrigo {

/// An option button and the text of the stored value that it stands for.
struct OptionChoice {
  OptionButton FrmOptions::*button;
  std::string_view value;
};

/// A key of `System`, and what shows it: one check box, or one of several option buttons.
struct OptionRow {
  std::string_view key;
  /// Null for a key with choices.
  CheckBox FrmOptions::*box;
  std::span<const OptionChoice> choices;
  /// The choice that any other stored value counts as.
  std::size_t otherwise;
};

/// A size of the kitchen's measures: its key, its box, and what is said when the box holds no number.
struct OptionSize {
  std::string_view key;
  TextBox FrmOptions::*box;
  std::string_view refusal;
};

/// What comes with a measurement system: the sizes of its cup and its tablespoon, and what its cup is counted in.
struct MeasurementStandard {
  OptionButton FrmOptions::*button;
  std::string_view cup;
  std::string_view tablespoon;
  std::string_view cupUnit;
};

/// The keys in the order in which they are stored; the sizes follow them.
[[nodiscard]] std::span<const OptionRow> optionRows();
[[nodiscard]] std::span<const OptionSize> optionSizes();
[[nodiscard]] std::span<const MeasurementStandard> measurementStandards();

}  // namespace pantrigo
