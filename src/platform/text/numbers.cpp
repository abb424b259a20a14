#include "platform/text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/text/decimal.h"
#include "platform/text/letters.h"

namespace pantrigo {

namespace {

/// Digits that are taken from the binary value before the decimal rounding: enough to tell a half from its neighbours,
/// so that rounding twice does no harm.
constexpr int exactDigits = 21;

/// Keeps the first digits, halves away from zero, and drops trailing zeros.
void roundDigits(Decimal& decimal, std::size_t keep) {
  const bool up = decimal.digits[keep] >= '5';
  decimal.digits.resize(keep);
  if (up) {
    decimal.digits.erase(decimal.digits.find_last_not_of('9') + 1);
    if (decimal.digits.empty()) {
      decimal.digits = "1";
      ++decimal.exponent;
    } else {
      ++decimal.digits.back();
    }
  }
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
}

}  // namespace

Decimal toDecimal(double value, int significantDigits) {
  Decimal decimal;
  if (value == 0 || !std::isfinite(value)) return decimal;
  decimal.negative = value < 0;
  std::array<char, 64> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                     std::chars_format::scientific, exactDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
  const std::size_t mark = text.find('e');
  decimal.digits = text.substr(0, 1);
  decimal.digits += text.substr(2, mark - 2);
  const std::string_view exponent = text.substr(text[mark + 1] == '+' ? mark + 2 : mark + 1);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
  roundDigits(decimal, static_cast<std::size_t>(significantDigits));
  return decimal;
}

namespace {

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

/// One digit, a point, the rest, and the exponent with its sign and at least two digits.
std::string scientificText(const Decimal& number) {
  std::string text = number.digits.substr(0, 1);
  if (number.digits.size() > 1) text += "." + number.digits.substr(1);
  text += number.exponent < 0 ? "E-" : "E+";
  const int exponent = std::abs(number.exponent);
  if (exponent < 10) text += '0';
  std::array<char, 8> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), exponent);
  return text.append(buffer.data(), written.ptr);
}

std::string plainDigits(const Decimal& number, int significantDigits) {
  const int digitCount = static_cast<int>(number.digits.size());
  if (number.exponent >= significantDigits) return scientificText(number);
  if (number.exponent < 0) {
    const int decimals = digitCount - 1 - number.exponent;
    if (decimals > significantDigits) return scientificText(number);
    return "0." + std::string(static_cast<std::size_t>(-number.exponent - 1), '0') + number.digits;
  }
  const int whole = number.exponent + 1;
  if (digitCount <= whole) return number.digits + std::string(static_cast<std::size_t>(whole - digitCount), '0');
  return number.digits.substr(0, static_cast<std::size_t>(whole)) + "." +
         number.digits.substr(static_cast<std::size_t>(whole));
}

std::string plain(double value, int significantDigits) {
  const Decimal number = toDecimal(value, significantDigits);
  const std::string text = plainDigits(number, significantDigits);
  return number.negative ? "-" + text : text;
}

std::string strForm(std::string text) {
  const bool negative = text.starts_with('-');
  if (negative) text.erase(0, 1);
  if (text.starts_with("0.")) text.erase(0, 1);
  return (negative ? "-" : " ") + text;
}

/// Whether a number text that no double holds is too large, not too small: by the power of ten of its first digit that
/// is not 0.
bool isTooLarge(std::string_view text) {
  const std::size_t mark = text.find('e');
  const std::string_view mantissa = text.substr(0, mark);
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  auto power = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size())) - static_cast<long long>(first);
  if (mark != std::string_view::npos) {
    const std::string_view digits = text.substr(text[mark + 1] == '+' ? mark + 2 : mark + 1);
    long long exponent = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) return !digits.starts_with('-');
    power += exponent;
  }
  return power > 0;
}

double fromText(const std::string& text) {
  double value = 0;
  const char* start = text.data() + (text.starts_with('+') ? 1 : 0);
  const auto read = std::from_chars(start, text.data() + text.size(), value);
  if (read.ec != std::errc::result_out_of_range) return value;
  if (!isTooLarge(text)) return 0;
  return text.starts_with('-') ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
}

int digitOfBase(char character, int base) {
  const char lower = static_cast<char>(lowerCase(static_cast<unsigned char>(character)));
  const int digit = isDigit(lower) ? lower - '0' : lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : base;
  return digit < base ? digit : -1;
}

/// Reads what follows "&H" or "&O"; values wrap as whole numbers of 16 bits, and of 32 where they need more.
std::optional<double> readBased(std::string_view text, bool wholeText) {
  if (text.size() < 2 || text[0] != '&') return std::nullopt;
  const char kind = static_cast<char>(lowerCase(static_cast<unsigned char>(text[1])));
  const int base = kind == 'h' ? 16 : kind == 'o' ? 8 : 0;
  if (base == 0) return std::nullopt;
  std::uint64_t value = 0;
  std::size_t place = 2;
  for (; place < text.size() && digitOfBase(text[place], base) >= 0 && value <= 0xFFFFFFFFULL; ++place) {
    value = value * static_cast<std::uint64_t>(base) + static_cast<std::uint64_t>(digitOfBase(text[place], base));
  }
  if (place == 2 || (wholeText && place != text.size()) || value > 0xFFFFFFFFULL) return std::nullopt;
  return value <= 0xFFFF ? static_cast<std::int16_t>(value) : static_cast<std::int32_t>(value);
}

bool isExponentMark(char character) {
  return character == 'e' || character == 'E' || character == 'd' || character == 'D';
}

/// Reads digits, marks and an exponent of a text; keeps what a number is made of.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  [[nodiscard]] bool atEnd() const { return place_ >= text_.size(); }
  [[nodiscard]] char peek() const { return atEnd() ? '\0' : text_[place_]; }
  void skip() { ++place_; }

  void skipWhiteSpace() {
    while (true) {
      if (text_.substr(place_, 2) == "\xC2\xA0") {
        place_ += 2;
      } else if (!atEnd() && std::string_view(" \t\r\n").find(peek()) != std::string_view::npos) {
        ++place_;
      } else {
        return;
      }
    }
  }

  /// Digits with thousands marks (not in front) and one point; false when there is no digit.
  bool readMantissa(std::string& number) {
    bool digitSeen = false;
    bool pointSeen = false;
    for (; !atEnd(); ++place_) {
      if (isDigit(peek())) {
        digitSeen = true;
        number += peek();
      } else if (peek() == '.' && !pointSeen) {
        pointSeen = true;
        number += '.';
      } else if (!(peek() == ',' && digitSeen && !pointSeen)) {
        break;
      }
    }
    return digitSeen;
  }

  /// An exponent with at least one digit, if there is one.
  void readExponent(std::string& number) {
    if (!isExponentMark(peek())) return;
    std::size_t ahead = place_ + 1;
    std::string exponent = "e";
    if (ahead < text_.size() && (text_[ahead] == '+' || text_[ahead] == '-')) exponent += text_[ahead++];
    const std::size_t firstDigit = ahead;
    while (ahead < text_.size() && isDigit(text_[ahead])) exponent += text_[ahead++];
    if (ahead == firstDigit) return;
    number += exponent;
    place_ = ahead;
  }

 private:
  std::string_view text_;
  std::size_t place_ = 0;
};

std::string_view withoutOuterWhiteSpace(std::string_view text) {
  constexpr std::string_view noBreakBlank = "\xC2\xA0";
  const auto isWhite = [](char character) {
    return std::string_view(" \t\r\n").find(character) != std::string_view::npos;
  };
  while (!text.empty()) {
    if (isWhite(text.front())) {
      text.remove_prefix(1);
    } else if (isWhite(text.back())) {
      text.remove_suffix(1);
    } else if (text.starts_with(noBreakBlank)) {
      text.remove_prefix(noBreakBlank.size());
    } else if (text.ends_with(noBreakBlank)) {
      text.remove_suffix(noBreakBlank.size());
    } else {
      break;
    }
  }
  return text;
}

/// The marks around the digits: each stands at most once.
struct Marks {
  bool sign = false;
  bool currency = false;
  bool bracket = false;
  bool negative = false;

  /// Takes a sign or currency sign; false for anything else.
  bool take(char character) {
    if ((character == '+' || character == '-') && !sign && !bracket) {
      sign = true;
      negative = character == '-';
      return true;
    }
    if (character == '$' && !currency) return currency = true;
    return false;
  }
};

bool readLeadingMarks(Scanner& scanner, Marks& marks) {
  while (true) {
    scanner.skipWhiteSpace();
    if (marks.take(scanner.peek())) {
      scanner.skip();
    } else if (scanner.peek() == '(' && !marks.bracket && !marks.sign) {
      marks.bracket = marks.negative = true;
      scanner.skip();
    } else {
      return isDigit(scanner.peek()) || scanner.peek() == '.';
    }
  }
}

bool readTrailingMarks(Scanner& scanner, Marks& marks) {
  bool open = marks.bracket;
  while (true) {
    scanner.skipWhiteSpace();
    if (scanner.atEnd()) return !open;
    if (open && scanner.peek() == ')') {
      open = false;
    } else if (!marks.take(scanner.peek())) {
      return false;
    }
    scanner.skip();
  }
}

}  // namespace

double Val(std::string_view text) {
  std::string packed;
  packed.reserve(text.size());
  for (const char character : text) {
    if (character != ' ' && character != '\t' && character != '\n') packed += character;
  }
  const std::size_t first = text.find_first_not_of(" \t\n");
  if (first != std::string_view::npos && text[first] == '&') return readBased(text.substr(first), false).value_or(0);
  std::string number;
  std::size_t place = 0;
  if (place < packed.size() && (packed[place] == '-' || packed[place] == '+')) number += packed[place++];
  // A thousands mark ends the reading here, so only what stands in front of it is scanned.
  Scanner scanner(std::string_view(packed).substr(place, packed.find(',', place) - place));
  if (!scanner.readMantissa(number)) return 0;
  scanner.readExponent(number);
  const double value = fromText(number);
  return std::isfinite(value) ? value : std::copysign(std::numeric_limits<double>::max(), value);
}

std::optional<double> toNumber(std::string_view text) {
  Scanner scanner(text);
  scanner.skipWhiteSpace();
  if (scanner.peek() == '&') return readBased(withoutOuterWhiteSpace(text), true);
  Marks marks;
  std::string number;
  if (!readLeadingMarks(scanner, marks) || !scanner.readMantissa(number)) return std::nullopt;
  scanner.readExponent(number);
  if (!readTrailingMarks(scanner, marks)) return std::nullopt;
  const double value = fromText(number);
  if (!std::isfinite(value)) return std::nullopt;
  return marks.negative ? -value : value;
}

bool IsNumeric(std::string_view text) {
  return toNumber(text).has_value();
}

bool isQueryNumber(std::string_view text) {
  const std::string trimmed = Trim(text);
  Scanner scanner(trimmed);
  std::string number;
  if (scanner.peek() == '-' || scanner.peek() == '+') scanner.skip();
  if (trimmed.find_first_of(",dD") != std::string::npos || !scanner.readMantissa(number)) return false;
  scanner.readExponent(number);
  return scanner.atEnd() && fromText(number) <= static_cast<double>(std::numeric_limits<float>::max());
}

std::string plainText(float value) {
  // Most amounts are whole numbers, which need no rounding.
  constexpr float limit = 1e7F;
  if (std::fabs(value) < limit && std::trunc(value) == value) return plainText(static_cast<long>(value));
  return plain(value, singleDigits);
}

std::string plainText(double value) {
  constexpr double limit = 1e15;
  if (std::fabs(value) < limit && std::trunc(value) == value) return plainText(static_cast<long>(value));
  return plain(value, doubleDigits);
}

std::string plainText(long value) {
  std::array<char, 24> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), written.ptr};
}

std::string Str(float value) {
  return strForm(plainText(value));
}
std::string Str(double value) {
  return strForm(plainText(value));
}

double shortest(float value) {
  return Val(plainText(value));
}

double Int(double value) {
  return std::floor(value);
}

}  // namespace pantrigo
