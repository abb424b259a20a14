#include <QGridLayout>
#include <QLabel>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/widgets.h"
#include "desktop/look.h"

namespace pantrigo {

void layOutAbout(const FormView& view, QWidget& canvas) {
  constexpr int signSide = 80;
  constexpr double titleSize = 2.2;
  const Widgets widget(view);
  widget("picAbout")->setProperty(signProperty, QStringLiteral("pantrigo"));
  widget("picAbout")->setFixedSize(signSide, signSide);

  QFont large = canvas.font();
  large.setPixelSize(static_cast<int>(large.pixelSize() * titleSize));
  large.setWeight(QFont::DemiBold);
  auto* title = static_cast<QLabel*>(widget("lblTitle"));
  title->setProperty(textSizeProperty, titleSize);
  title->setFixedSize(QFontMetrics(large).size(0, title->text()) + QSize(dialogMargin, 4));

  auto* grid = new QGridLayout(&canvas);
  grid->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
  grid->setHorizontalSpacing(dialogMargin);
  grid->setVerticalSpacing(2);
  grid->addWidget(widget("picAbout"), 0, 0, 2, 1);
  grid->addWidget(title, 0, 1, Qt::AlignBottom);
  grid->addWidget(widget("lblVersion"), 1, 1, Qt::AlignTop);
  grid->addWidget(widget("cmdOK"), 2, 0, 1, 2, Qt::AlignRight);
  grid->setRowMinimumHeight(0, signSide / 2);
}

}  // namespace pantrigo
