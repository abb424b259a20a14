#include "detail/detail_layout.h"

#include "core/layout.h"

namespace pantrigo {

namespace {

constexpr std::string_view pictureHint =
    "Double click mouse here to display a scanned image with this recipe. Note, the image must be in Windows Bitmap "
    "format and the file name must have a .bmp extension, e.g. satay.bmp.";

enum class Arrangement { WithPicture, WithoutPicture };

/// What the frames below the tool bar move up by, and the lists grow by, when it is off, in twips at design size.
double roomGained(Run& run) {
  return toolBarsShown(run) ? 0 : toolBarHeight;
}

void place(Control& control, Box box, double scale) {
  control.setBox({box.left * scale, box.top * scale, box.width * scale, box.height * scale});
}

/// The method box gains 600 and not 640 without the tool bar: the difference is meant.
constexpr double methodBoxGain = 600;

void placeCommonFrames(Run& run, double gained) {
  FrmDetail& form = run.frmDetail;
  const double scale = run.GLOBAL.gScale;
  form.fmeTitle.setTop((toolBarHeight - gained) * scale);
  form.fmeCategories.setTop((1200 - gained) * scale);
  for (Frame* frame : {&form.fmeIngredients, &form.fmeMethod}) {
    frame->setTop((4485 - gained) * scale);
    frame->setHeight((2130 + gained) * scale);
  }
  form.lstIngredient.setHeight((1785 + gained) * scale);
  form.txtMethod.setHeight((1785 + (gained > 0 ? methodBoxGain : 0)) * scale);
}

/// Place of a frame in the two arrangements, with the tool bar.
struct FramePlace {
  Frame FrmDetail::*frame;
  Box withPicture;
  Box withoutPicture;
};

constexpr FramePlace framePlaces[] = {
    {&FrmDetail::fmePicture, {6750, 1200, 2805, 3270}, {6750, 1390 + toolBarHeight, 2805, 1600}},
    {&FrmDetail::fmeGeneral, {0, 3630, 2400, 840}, {6750, 550 + toolBarHeight, 2805, 840}},
    {&FrmDetail::fmeComments, {2430, 3630, 4305, 840}, {0, 2990 + toolBarHeight, 9555, 840}},
};

constexpr double labelHeight = 225;
constexpr double boxHeight = 285;

/// Place of a control inside its frame; only the left, and of the comments the width, differ between the arrangements.
struct InnerPlace {
  Control& control;
  double leftWithPicture;
  double leftWithoutPicture;
  double top;
  double widthWithPicture;
  double widthWithoutPicture;
  double height;
};

void placeInner(Run& run, Arrangement arrangement) {
  FrmDetail& form = run.frmDetail;
  const InnerPlace places[] = {
      {form.lblTime, 1280, 1465, 105, 790, 790, labelHeight},
      {form.lblServes, 80, 265, 285, 675, 675, labelHeight},
      {form.lblPrepare, 1035, 1210, 285, 720, 720, labelHeight},
      {form.lblCook, 1800, 1980, 285, 510, 510, labelHeight},
      {form.txtServes, 80, 265, 495, 390, 390, boxHeight},
      {form.lblSettings, 500, 685, 540, 480, 480, labelHeight},
      {form.txtPrepareTime, 1010, 1195, 495, 620, 620, boxHeight},
      {form.txtCookTime, 1730, 1915, 495, 620, 620, boxHeight},
      {form.txtComments, 90, 90, 225, 4125, 9390, 540},
      {form.lblPicture, 135, 135, 335, 2490, 2490, 1005},
  };
  const bool withPicture = arrangement == Arrangement::WithPicture;
  for (const InnerPlace& inner : places) {
    const double left = withPicture ? inner.leftWithPicture : inner.leftWithoutPicture;
    const double width = withPicture ? inner.widthWithPicture : inner.widthWithoutPicture;
    place(inner.control, {left, inner.top, width, inner.height}, run.GLOBAL.gScale);
  }
}

void arrange(Run& run, Arrangement arrangement) {
  const double gained = roomGained(run);
  placeCommonFrames(run, gained);
  for (const FramePlace& frame : framePlaces) {
    Box box = arrangement == Arrangement::WithPicture ? frame.withPicture : frame.withoutPicture;
    box.top -= gained;
    place(run.frmDetail.*frame.frame, box, run.GLOBAL.gScale);
  }
  placeInner(run, arrangement);
}

}  // namespace

void showMovedGroups(Run& run) {
  FrmDetail& form = run.frmDetail;
  Control* const moved[] = {&form.lblTime,    &form.lblServes,   &form.lblPrepare,     &form.lblCook,
                            &form.txtServes,  &form.lblSettings, &form.txtPrepareTime, &form.txtCookTime,
                            &form.fmeGeneral, &form.fmeComments};
  for (Control* control : moved) control->setVisible(true);
}

// The groups are moved while they are visible: the view paints only when the event is over, so that nobody sees an
// intermediate state, and a focused box of theirs keeps the focus.

void layoutWithPicture(Run& run) {
  arrange(run, Arrangement::WithPicture);
  showMovedGroups(run);
}

void subLayoutNoPicture(Run& run) {
  FrmDetail& form = run.frmDetail;
  arrange(run, Arrangement::WithoutPicture);
  form.fmePicture.sendToBack();
  form.fmeGeneral.sendToBack();
  form.lblPicture.bringToFront();
  form.imgPhoto.setVisible(false);
  form.lblPicture.setVisible(false);
  showMovedGroups(run);
}

void offerPicture(Run& run) {
  subLayoutNoPicture(run);
  run.frmDetail.lblPicture.setCaption(pictureHint);
  run.frmDetail.lblPicture.setVisible(true);
}

}  // namespace pantrigo
