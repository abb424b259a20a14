#include "platform/text/format.h"

#include <algorithm>
#include <array>

#include "platform/text/decimal.h"
#include "platform/text/errors.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// A number pattern taken apart.
struct Pattern {
  std::size_t wholeDigits = 0;  // least digits in front of the point: its "0" placeholders
  std::size_t decimals = 0;     // most digits behind the point
  std::size_t leastDecimals = 0;
  bool point = false;
  bool grouped = false;
};

Pattern readPattern(std::string_view text) {
  Pattern pattern;
  for (const char character : text) {
    if (character == '.') {
      pattern.point = true;
    } else if (character == ',') {
      pattern.grouped = true;
    } else if (pattern.point) {
      ++pattern.decimals;
      if (character == '0') pattern.leastDecimals = pattern.decimals;
    } else if (character == '0') {
      ++pattern.wholeDigits;
    }
  }
  return pattern;
}

/// The digits in front of the point and behind it, without leading and trailing zeros.
struct Parts {
  std::string whole;
  std::string fraction;
};

Parts split(const Decimal& number) {
  if (number.isZero()) return {};
  if (number.exponent < 0)
    return {"", std::string(static_cast<std::size_t>(-number.exponent - 1), '0') + number.digits};
  const auto whole = static_cast<std::size_t>(number.exponent) + 1;
  if (number.digits.size() <= whole) return {number.digits + std::string(whole - number.digits.size(), '0'), ""};
  return {number.digits.substr(0, whole), number.digits.substr(whole)};
}

/// Rounds half away from zero on the decimal digits.
void roundTo(Parts& parts, std::size_t decimals) {
  if (parts.fraction.size() <= decimals) return;
  const bool up = parts.fraction[decimals] >= '5';
  parts.fraction.resize(decimals);
  if (!up) return;
  std::string digits = "0" + parts.whole + parts.fraction;
  auto digit = digits.rbegin();
  for (; *digit == '9'; ++digit) *digit = '0';
  ++*digit;
  const std::size_t wholeLength = digits.size() - decimals;
  parts.whole = digits.substr(0, wholeLength);
  parts.fraction = digits.substr(wholeLength);
  parts.whole.erase(0, std::min(parts.whole.find_first_not_of('0'), parts.whole.size()));
}

std::string grouped(const std::string& whole) {
  std::string text;
  for (std::size_t place = 0; place < whole.size(); ++place) {
    if (place > 0 && (whole.size() - place) % 3 == 0) text += ',';
    text += whole[place];
  }
  return text;
}

std::string formatDecimal(const Decimal& number, std::string_view patternText) {
  const Pattern pattern = readPattern(patternText);
  Parts parts = split(number);
  roundTo(parts, pattern.decimals);
  if (parts.whole.size() < pattern.wholeDigits) parts.whole.insert(0, pattern.wholeDigits - parts.whole.size(), '0');
  while (parts.fraction.size() > pattern.leastDecimals && parts.fraction.ends_with('0')) parts.fraction.pop_back();
  if (parts.fraction.size() < pattern.leastDecimals)
    parts.fraction.append(pattern.leastDecimals - parts.fraction.size(), '0');
  std::string text = pattern.grouped ? grouped(parts.whole) : parts.whole;
  if (pattern.point) text += "." + parts.fraction;
  return number.negative ? "-" + text : text;
}

constexpr std::array<std::string_view, 12> monthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string dateText(const LocalTime& time) {
  return plainText(static_cast<long>(time.day)) + "-" +
         std::string(monthNames.at(static_cast<std::size_t>(time.month - 1))) + "-" +
         Format(static_cast<long>(time.year), "0000");
}

std::string timeOfDayText(const LocalTime& time) {
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return plainText(static_cast<long>(hour)) + ":" + Format(static_cast<long>(time.minute), "00") +
         (time.hour < 12 ? " AM" : " PM");
}

}  // namespace

std::string Format(double value, std::string_view pattern) {
  return formatDecimal(toDecimal(value, doubleDigits), pattern);
}
std::string Format(float value, std::string_view pattern) {
  return formatDecimal(toDecimal(value, singleDigits), pattern);
}
std::string Format(long value, std::string_view pattern) {
  return Format(static_cast<double>(value), pattern);
}

std::string Format(std::string_view text, std::string_view pattern) {
  const std::optional<double> number = toNumber(text);
  return number ? Format(*number, pattern) : std::string(text);
}

std::string Format(const LocalTime& time, std::string_view pattern) {
  if (pattern == "d-mmm-yyyy") return dateText(time);
  if (pattern == "h:mm AMPM") return timeOfDayText(time);
  throw RuntimeError(5);
}

}  // namespace pantrigo
