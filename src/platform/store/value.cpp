#include "platform/store/value.h"

#include <cmath>
#include <limits>

#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

constexpr int overflow = 6;
constexpr int typeMismatch = 13;
constexpr int invalidUseOfNull = 94;

double convertText(const std::string& text) {
  const std::optional<double> number = toNumber(text);
  if (!number) throw RuntimeError(typeMismatch);
  return *number;
}

bool truthOfText(const std::string& text) {
  const std::string word = LCase(text);
  if (word == "true") return true;
  if (word == "false") return false;
  return convertText(text) != 0;
}

}  // namespace

Value::Value(float number) : content_(shortest(number)) {}

std::string Value::text() const {
  if (const auto* text = std::get_if<std::string>(&content_)) return *text;
  if (const auto* number = std::get_if<double>(&content_)) return plainText(*number);
  if (const auto* truth = std::get_if<bool>(&content_)) return *truth ? "True" : "False";
  return {};
}

double Value::number() const {
  if (const auto* number = std::get_if<double>(&content_)) return *number;
  if (const auto* truth = std::get_if<bool>(&content_)) return *truth ? -1 : 0;
  if (const auto* text = std::get_if<std::string>(&content_)) return convertText(*text);
  throw RuntimeError(invalidUseOfNull);
}

std::int64_t Value::whole() const {
  // The default rounding of the floating-point unit takes halves to even.
  const double rounded = std::nearbyint(number());
  using Limits = std::numeric_limits<std::int32_t>;
  if (!(rounded >= Limits::min() && rounded <= Limits::max())) throw RuntimeError(overflow);
  return static_cast<std::int64_t>(rounded);
}

bool Value::truth() const {
  if (const auto* truth = std::get_if<bool>(&content_)) return *truth;
  if (const auto* number = std::get_if<double>(&content_)) return *number != 0;
  if (const auto* text = std::get_if<std::string>(&content_)) return truthOfText(*text);
  return false;
}

}  // namespace pantrigo
