#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QApplication;

namespace pantrigo {

/// The colours of the windows: dark slate on warm white, with one accent.
namespace hue {
inline constexpr QColor ground{250, 246, 239};
inline constexpr QColor panel{255, 253, 249};
inline constexpr QColor field{255, 255, 255};
inline constexpr QColor line{217, 208, 193};
inline constexpr QColor text{45, 57, 68};
inline constexpr QColor quietText{108, 104, 97};
inline constexpr QColor disabledText{160, 154, 145};
inline constexpr QColor accent{184, 82, 32};
inline constexpr QColor tint{248, 230, 216};
}  // namespace hue

/// Pixel size of the text at a scale of the design, where 1 fits a screen 640 pixels wide. It grows with the scale up
/// to the size that reads well at arm's length, and more slowly from there on.
[[nodiscard]] int textPixelSize(double scale);

/// What a dialog, whose design takes no part in the scale, is enlarged by, so that its texts fit as they do in the main
/// windows.
[[nodiscard]] double dialogScale(double screenScale);

/// An entry of the platform's sixteen-colour table; black for a number outside it.
[[nodiscard]] QColor tableColour(int number);

/// Contrast of two colours, 1 (none) to 21 (black on white).
[[nodiscard]] double contrast(const QColor& first, const QColor& second);

/// The colour, darkened or lightened until text in it reads well on the ground (contrast 4.5).
[[nodiscard]] QColor readableOn(QColor text, const QColor& ground);

/// Whether a text in this table colour is marked; marked rows keep their own colour and are set in bold, and are
/// announced by a word.
[[nodiscard]] bool isMarkColour(int number);
[[nodiscard]] QString markWords();

/// The picture of a tool bar button or window by its name, any case; null when there is none.
[[nodiscard]] QIcon iconNamed(const QString& name);

/// Gives the program its style, palette and text size.
void applyLook(QApplication& application, double scale);

}  // namespace pantrigo
