#include "desktop/screen_area.h"

#include <algorithm>
#include <cmath>

namespace pantrigo {

namespace {

/// The design: a screen of 640 by 480 pixels, and the client area of a main window on it, 442 pixels high.
constexpr double designWidth = 640;
constexpr double designHeight = 480;
constexpr double designClientHeight = 442;

constexpr WindowAllowance allowance;

}  // namespace

ScreenArea screenArea(const QRect& workArea) {
  const double across = (workArea.width() - allowance.sides) / designWidth;
  const double down = workArea.height() / designHeight;
  const double client = (workArea.height() - allowance.title - allowance.menu) / designClientHeight;
  const double scale = std::max(0.5, std::min({across, down, client}));
  const int width = static_cast<int>(std::floor(designWidth * scale));
  const int height = static_cast<int>(std::floor(width * designHeight / designWidth));
  QRect area(0, 0, width, height);
  area.moveCenter(workArea.center());
  return {area, width / designWidth, workArea};
}

QPoint ScreenArea::fitted(QPoint wanted, QSize client) const {
  const int right = work.right() + 1 - client.width() - allowance.sides;
  const int bottom = work.bottom() + 1 - client.height() - allowance.title - allowance.menu;
  return {std::max(work.left(), std::min(wanted.x(), right)), std::max(work.top(), std::min(wanted.y(), bottom))};
}

QPoint ScreenArea::centred(QSize client, double shareAbove) const {
  const double above = (area.height() - client.height()) * shareAbove;
  return area.topLeft() + QPoint((area.width() - client.width()) / 2, static_cast<int>(above));
}

}  // namespace pantrigo
