#pragma once

#include <QIcon>

namespace pantrigo {

/// A picture of a button that fades while the button is held down by the program.
[[nodiscard]] QIcon sunkenIcon(const QIcon& icon);

}  // namespace pantrigo
