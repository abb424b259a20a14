#include "measures/quantity.h"

#include <cmath>
#include <limits>
#include <span>

#include "platform/text/errors.h"
#include "platform/text/format.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

constexpr int overflow = 6;

/// A fraction that can be typed, and the decimal text that it turns into.
struct Fraction {
  std::string_view text;
  std::string_view decimal;
};

/// The search goes in this order, and the first fraction that is found anywhere counts. The decimals are the program's
/// own: thirds are cut to two places, and eighths stand at a near tenth.
constexpr Fraction fractions[] = {
    {"1/2", ".5"},  {"1/4", ".25"}, {"1/3", ".33"}, {"2/3", ".66"}, {"3/4", ".75"}, {"1/10", ".1"},
    {"1/5", ".2"},  {"3/10", ".3"}, {"2/5", ".4"},  {"3/5", ".6"},  {"7/10", ".7"}, {"4/5", ".8"},
    {"9/10", ".9"}, {"1/8", ".1"},  {"3/8", ".4"},  {"5/8", ".6"},  {"7/8", ".9"},
};

/// A band of the part behind the whole number, in ten-thousandths, closed at both ends, and how the step above it is
/// written.
struct Band {
  long from;
  long to;
  std::string_view text;
};

constexpr Band tenthFractions[] = {
    {1, 1000, "1/10"},   {1001, 2000, "1/5"},  {2001, 3000, "3/10"}, {3001, 4000, "2/5"},  {4001, 5000, "1/2"},
    {5001, 6000, "3/5"}, {6001, 7000, "7/10"}, {7001, 8000, "4/5"},  {8001, 9000, "9/10"}, {9001, 10000, "1"},
};
constexpr Band tenthDecimals[] = {
    {1, 1000, "0.1"},    {1001, 2000, "0.2"}, {2001, 3000, "0.3"}, {3001, 4000, "0.4"}, {4001, 5000, "0.5"},
    {5001, 6000, "0.6"}, {6001, 7000, "0.7"}, {7001, 8000, "0.8"}, {8001, 9000, "0.9"}, {9001, 10000, "1"},
};
constexpr Band quarterFractions[] = {{1, 2500, "1/4"}, {2501, 5000, "1/2"}, {5001, 7500, "3/4"}, {7501, 10000, "1"}};
constexpr Band quarterDecimals[] = {{1, 2500, "0.25"}, {2501, 5000, "0.5"}, {5001, 7500, "0.75"}, {7501, 10000, "1"}};
/// The second band of the thirds as fractions ends at 666666 wholes, so that every part above a third shows as two
/// thirds and never rounds up to the next whole number.
constexpr Band thirdFractions[] = {{1, 3333, "1/3"}, {3334, 6666660000, "2/3"}};
constexpr Band thirdDecimals[] = {{1, 3333, "0.3333"}, {3334, 6666, "0.6666"}, {6667, 10000, "1"}};
/// In halves a whole amount counts as having a part of 1, and is written as the next whole number.
constexpr Band halfFractions[] = {{0, 0, "1"}, {1, 5000, "1/2"}, {5001, 10000, "1"}};
constexpr Band halfDecimals[] = {{0, 0, "1"}, {1, 5000, "0.5"}, {5001, 10000, "1"}};

struct Step {
  std::string_view option;
  std::span<const Band> asFraction;
  std::span<const Band> asDecimal;
};

/// The steps by the value of the option; any other value means halves.
constexpr Step steps[] = {
    {"1", tenthFractions, tenthDecimals},
    {"4", quarterFractions, quarterDecimals},
    {"3", thirdFractions, thirdDecimals},
};
constexpr Step halves{"2", halfFractions, halfDecimals};

const Step& chosenStep(Run& run) {
  const Value& option = run.GLOBAL.gSystem.Field("PartialFractions");
  for (const Step& step : steps) {
    if (!option.isNull() && option.text() == step.option) return step;
  }
  return halves;
}

/// The part behind the whole number, rounded to four places by the text form of a single, in ten-thousandths.
long partInTenThousandths(float amount) {
  const auto part = static_cast<float>(amount - Int(amount));
  return std::lround(Val(Format(part, ".0000")) * 10000);
}

std::string bandText(std::span<const Band> bands, long part) {
  for (const Band& band : bands) {
    if (part >= band.from && part <= band.to) return std::string(band.text);
  }
  return "0";
}

std::string asFraction(Run& run, float amount, float whole) {
  run.GLOBAL.gPartFraction = funPartFraction(run, amount);
  const std::string& part = run.GLOBAL.gPartFraction;
  if (part == "0") return Str(whole);
  if (part == "1") return Str(whole + 1);
  return whole == 0 ? part : Str(whole) + " " + part;
}

std::string asDecimal(Run& run, float amount, float whole) {
  std::string text = funPartDecimal(run, amount);
  if (whole != 0) text = toNumber(text) == 1 ? Str(whole + 1) : Str(whole) + Format(std::string_view(text), ".##");
  text = Format(std::string_view(text), "#######0.00");
  if (text.ends_with("00")) return Format(std::string_view(text), "######0");
  return Format(std::string_view(text), text.ends_with("0") ? "######0.0" : "######0.00");
}

}  // namespace

std::string funFractionToDecimal(std::string_view text) {
  if (text.find('/') == std::string_view::npos) return std::string(text);
  for (const Fraction& fraction : fractions) {
    const std::size_t place = text.find(fraction.text);
    if (place != std::string_view::npos) return Trim(text.substr(0, place)) + std::string(fraction.decimal);
  }
  return std::string(text);
}

double quantityAmount(std::string_view text) {
  return text.find('/') == std::string_view::npos ? Val(text) : Val(funFractionToDecimal(text));
}

float toSingle(double number) {
  if (!(std::fabs(number) <= std::numeric_limits<float>::max())) throw RuntimeError(overflow);
  return static_cast<float>(number);
}

std::string funPartFraction(Run& run, float amount) {
  return bandText(chosenStep(run).asFraction, partInTenThousandths(amount));
}

std::string funPartDecimal(Run& run, float amount) {
  return bandText(chosenStep(run).asDecimal, partInTenThousandths(amount));
}

void subFormatQuantity(Run& run) {
  const float amount = run.GLOBAL.gWorkQuantity;
  if (amount == 0) {
    run.GLOBAL.gQuantityText.clear();
    return;
  }
  const auto whole = static_cast<float>(Int(amount));
  const bool fractionsShown = run.GLOBAL.gSystem.Field("Fractions").truth();
  run.GLOBAL.gQuantityText = fractionsShown ? asFraction(run, amount, whole) : asDecimal(run, amount, whole);
}

}  // namespace pantrigo
