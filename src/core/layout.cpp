#include "core/layout.h"

namespace pantrigo {

bool toolBarsShown(Run& run) {
  return run.GLOBAL.gSystem.Field("ShowToolBars").truth();
}

void applyToolBarLayout(Run& run) {
  FrmBrowse& browse = run.frmBrowse;
  const bool shown = toolBarsShown(run);
  const double scale = run.GLOBAL.gScale;
  const double gained = shown ? 0 : toolBarHeight;
  run.frmDetail.tbDetail.setVisible(shown);
  browse.tbBrowse.setVisible(shown);
  for (Frame* frame : {&browse.fmeList, &browse.fmeFilters}) {
    frame->setTop((toolBarHeight - gained) * scale);
    frame->setHeight((5955 + gained) * scale);
  }
  browse.lstTitles.setHeight((5550 + gained) * scale);
  browse.chkMeal.setTop((5535 + gained) * scale);
  browse.lstOther.setHeight((810 + gained) * scale);
}

void sizeToolBar(Run& run, ToolBar& toolBar, const ImageList& small, const ImageList& large) {
  const bool designSize = run.GLOBAL.gScale == 1;
  toolBar.setButtonWidth(designSize ? smallButtonWidth : largeButtonWidth);
  toolBar.setImageList(designSize ? small : large);
  int number = 0;
  for (std::size_t place = 0; place < toolBar.buttons().size(); ++place) {
    if (!toolBar.buttons()[place].key.empty()) toolBar.setButtonImage(place, ++number);
  }
  toolBar.setSpacerVisible(0, !designSize);
  toolBar.setSpacerVisible(1, !designSize);
}

void placeForm(Run& run, Form& form, double scale) {
  const ScreenSize screen = run.toolkit.screen();
  const double width = form.Width() * scale;
  const double height = form.Height() * scale;
  form.setBox({(screen.width - width) / 2, (screen.height - height) / 3, width, height});
}

}  // namespace pantrigo
