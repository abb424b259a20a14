#pragma once

#include <QString>

#include "desktop/desktop.h"

namespace pantrigo {

/// Opens the first recipe of the list and writes pictures of the windows as PNG files into the folder, which is made
/// when it is missing. Gives whether all could be written.
bool writePictures(Desktop& desktop, const QString& folder);

}  // namespace pantrigo
