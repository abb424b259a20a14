#include "desktop/dialogs/dialog_layouts.h"

#include "desktop/form_view.h"

namespace pantrigo {

namespace {

struct DialogLayout {
  std::string_view form;
  void (*layOut)(const FormView& view, QWidget& canvas);
};

constexpr DialogLayout layouts[] = {
    {"frmAbout", layOutAbout},         {"frmCategory", layOutCategory}, {"frmIngredient", layOutIngredient},
    {"frmNutrition", layOutNutrition}, {"frmOptions", layOutOptions},   {"frmOven", layOutOven},
    {"frmSettings", layOutSettings},   {"frmSource", layOutSource},     {"frmView", layOutView},
};

}  // namespace

bool layOutDialog(const FormView& view, QWidget& canvas) {
  for (const DialogLayout& layout : layouts) {
    if (layout.form != view.form().Name()) continue;
    layout.layOut(view, canvas);
    return true;
  }
  return false;
}

}  // namespace pantrigo
