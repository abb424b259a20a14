#pragma once

#include <QRect>

#include "platform/controls/toolkit.h"

namespace pantrigo {

/// Twips to the logical pixel of the screen.
inline constexpr double twipsPerPixel = 15;

/// What a window needs besides its client area, in logical pixels: the system's frame and our menu bar.
struct WindowAllowance {
  int sides = 4;
  int title = 30;
  int menu = 32;
};

/// The part of the screen that the program lays its windows out for: the largest area of shape 4 to 3 in the work area
/// in which a main window still fits with its frame and menu.
struct ScreenArea {
  /// In logical pixels.
  QRect area;
  /// The area's width in units of the design's width.
  double scale = 1;
  QRect work;

  /// Its size in twips.
  [[nodiscard]] ScreenSize size() const { return {area.width() * twipsPerPixel, area.height() * twipsPerPixel}; }

  /// Where a window of this client size (logical pixels, menu not counted) goes, so that all of it is in the work area.
  [[nodiscard]] QPoint fitted(QPoint wanted, QSize client) const;
  /// Centred across, with that share of the free height above.
  [[nodiscard]] QPoint centred(QSize client, double shareAbove) const;
};

[[nodiscard]] ScreenArea screenArea(const QRect& workArea);

}  // namespace pantrigo
