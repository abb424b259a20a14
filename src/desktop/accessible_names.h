#pragma once

#include <QString>

#include "platform/controls/form.h"

namespace pantrigo {

/// What a screen reader calls a control: its own caption, or the captions of the frame it stands in and of the labels
/// on the same line before it, else of the nearest label above it.
[[nodiscard]] QString spokenName(const Control& control);

}  // namespace pantrigo
