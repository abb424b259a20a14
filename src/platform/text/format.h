#pragma once

#include <string>
#include <string_view>

namespace pantrigo {

/// A date and time of day as the platform's clock gives it; month 1 to 12, hour 0 to 23.
struct LocalTime {
  int year = 2000;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
};

/// Formats a number with a number pattern made of "0", "#", "," and ".". Rounds half away from zero on the decimal
/// digits of the value's own text (7 digits for a single, 15 for a double).
[[nodiscard]] std::string Format(double value, std::string_view pattern);
[[nodiscard]] std::string Format(float value, std::string_view pattern);
[[nodiscard]] std::string Format(long value, std::string_view pattern);

/// A text that reads as a number is formatted as that number; any other text, the empty one too, comes back unchanged.
[[nodiscard]] std::string Format(std::string_view text, std::string_view pattern);

/// The date patterns "d-mmm-yyyy" (5-Mar-2001) and "h:mm AMPM" (3:07 PM), always in English. Error 5 for another
/// pattern.
[[nodiscard]] std::string Format(const LocalTime& time, std::string_view pattern);

}  // namespace pantrigo
