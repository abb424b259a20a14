#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace pantrigo {

/// Whether the picture shows more than one colour.
[[nodiscard]] bool showsSomething(const QImage& picture);

/// Keeps a picture of the window under that name in the build folder, for whoever changes a window; in a folder that is
/// named after the screen: its size, and how many of its pixels are one of ours. Expects that it shows something and
/// that the window is no larger than the screen.
void keepPicture(QWidget& window, const QString& name);

}  // namespace pantrigo
