#pragma once

#include <string_view>

#include "desktop/form_view.h"

namespace pantrigo {

/// Room around a dialog's contents and between its groups, in logical pixels.
inline constexpr int dialogMargin = 20;
inline constexpr int dialogGap = 14;

/// The widgets of a form by the names of their controls.
class Widgets {
 public:
  explicit Widgets(const FormView& view) : view_(view) {}
  [[nodiscard]] QWidget* operator()(std::string_view name) const { return view_.widgetOf(*view_.form().control(name)); }

 private:
  const FormView& view_;
};

}  // namespace pantrigo
