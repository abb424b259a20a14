#pragma once

#include "core/run.h"

namespace pantrigo {

/// The caption that names the measurement system of the options; another value leaves it.
void showMeasurement(Run& run);

/// The number of people catered for, in brackets, where ingredients are scaled to it; else empty and hidden.
void showSettings(Run& run);

}  // namespace pantrigo
