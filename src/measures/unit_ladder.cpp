#include "measures/unit_ladder.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "measures/quantity.h"
#include "platform/text/errors.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

// Every factor here is the program's own, to the digits given; better ones would change what is stored and shown.

/// Millilitres in a fluid ounce, as the cups and the conversion between the systems have it.
constexpr double millilitresPerUKFluidOunce = 28.41306;
constexpr double millilitresPerUSFluidOunce = 29.57353;
/// A teaspoon is five millilitres of spoon measure.
constexpr double pgxPerTeaspoon = 5;

struct Factor {
  std::string_view unit;
  double factor;
  std::string_view result;
};

/// The way down. The UK pint has the factor of the US pint: it returns as 16.65 fluid ounces and not as a pint.
constexpr Factor downFactors[] = {
    {"UK pint", 473.17647, "mL"},
    {"UK qrt", 1136.5225, "mL"},
    {"UK gal", 4546.092, "mL"},
    {"US pint", 473.17647, "mL"},
    {"US qrt", 946.35295, "mL"},
    {"US gal", 3785.4118, "mL"},
    {"lb", 453592.37, "mg"},
    {"stone", 6350293.18, "mg"},
    {"ft", 304.8, "mm"},
    {"yd", 914.4, "mm"},
    {"cL", 10, "mL"},
    {"L", 1000, "mL"},
    {"cm", 10, "mm"},
    {"m", 1000, "mm"},
    {"cg", 10, "mg"},
    {"g", 1000, "mg"},
    {"kg", 1000000, "mg"},
};

struct SystemFactor {
  std::string_view measurement;
  std::string_view unit;
  double factor;
  std::string_view result;
};

/// Across to the chosen system.
constexpr SystemFactor systemFactors[] = {
    {"m", "UK fl oz", 28.41306, "mL"},        {"m", "US fl oz", 29.57353, "mL"},
    {"m", "oz", 28349.523125, "mg"},          {"m", "in", 25.4, "mm"},
    {"i", "mL", 0.035195082, "UK fl oz"},     {"i", "US fl oz", 1.04084283, "UK fl oz"},
    {"i", "mg", 0.0000352739619495804, "oz"}, {"i", "mm", 0.03937007, "in"},
    {"u", "mL", 0.0338140222, "US fl oz"},    {"u", "UK fl oz", 0.96075984, "US fl oz"},
    {"u", "mg", 0.0000352739619495804, "oz"}, {"u", "mm", 0.03937007, "in"},
};

/// A step up where the limit is also the divisor.
struct Climb {
  std::string_view unit;
  double limit;
  std::string_view next;
};

/// The imperial volumes' limits are the ratios of the program's own factors, so that an amount that meets one is at
/// least 1 of the next.
constexpr Climb climbs[] = {
    {"UK fl oz", 19.99999, "UK pint"},
    {"UK pint", 2.00000087987738, "UK qrt"},
    {"UK qrt", 4.00000175975399, "UK gal"},
    {"US fl oz", 15.9999996618598, "US pint"},
    {"US pint", 2.00000002113377, "US qrt"},
    {"US qrt", 4, "US gal"},
    {"oz", 16, "lb"},
    {"lb", 14, "stone"},
    {"in", 12, "ft"},
    {"ft", 3, "yd"},
    {"cL", 100, "L"},
    {"cm", 100, "m"},
    {"cg", 100, "g"},
    {"g", 1000, "kg"},
};

/// A step up whose centi level an option skips.
struct CentiClimb {
  std::string_view unit;
  std::string_view option;
  Climb toCenti;
  Climb overCenti;
};

constexpr CentiClimb centiClimbs[] = {
    {"mL", "Centilitres", {"mL", 10, "cL"}, {"mL", 1000, "L"}},
    {"mm", "Centimetres", {"mm", 10, "cm"}, {"mm", 1000, "m"}},
    {"mg", "Centigrams", {"mg", 10, "cg"}, {"mg", 1000, "g"}},
};

struct KeepList {
  std::string_view measurement;
  std::span<const std::string_view> units;
};

constexpr std::string_view keptMetric[] = {"kg", "g", "L", "m", "cup", "tbsp", "dsp"};
constexpr std::string_view keptUS[] = {"US pint", "US qrt", "US gal", "lb", "stone", "ft", "yd", "cup", "tbsp", "dsp"};
constexpr std::string_view keptUK[] = {"UK pint", "UK qrt", "UK gal", "lb", "stone", "ft", "yd", "cup", "tbsp", "dsp"};
constexpr KeepList keepLists[] = {{"m", keptMetric}, {"u", keptUS}, {"i", keptUK}};

struct Division {
  std::string_view unit;
  double divisor;
  std::string_view result;
};

/// What becomes of a kept amount in a centi unit when the centi levels are skipped. The last two go the wrong way for
/// the arithmetic of the units, and that is how the program behaves: 0.5 cm becomes 0.05 mm.
constexpr Division centiDivisions[] = {{"cg", 100, "g"}, {"cm", 10, "mm"}, {"cL", 10, "mL"}};

/// A Cup or Tablespoon that a rule needs. Error 94 when it was left empty.
double neededNumber(const Value& value) {
  return value.number();
}

constexpr int overflow = 6;
constexpr int divisionByZero = 11;

double divided(double dividend, double divisor) {
  if (divisor == 0) throw RuntimeError(dividend == 0 ? overflow : divisionByZero);
  return dividend / divisor;
}

double multiplied(double amount, double factor) {
  const double product = amount * factor;
  if (!std::isfinite(product)) throw RuntimeError(overflow);
  return product;
}

/// A number compares as such; an empty quantity is not below 1; any other text that is no number is error 13.
bool isBelowOne(const Value& quantity) {
  if (quantity.isText() && quantity.text().empty()) return false;
  return quantity.number() < 1;
}

/// The keep-original test for an amount below 1. Gives whether the amount is done with.
bool keepsOriginal(Run& run, std::string& unit, Value& quantity, std::string_view measurement) {
  for (const KeepList& list : keepLists) {
    if (list.measurement != measurement) continue;
    if (std::find(list.units.begin(), list.units.end(), unit) != list.units.end()) return true;
  }
  if (measurement != "m") return false;
  for (const Division& division : centiDivisions) {
    if (division.unit != unit) continue;
    if (!run.GLOBAL.gSystem.Field("Centigrams").truth()) return true;
    quantity = quantity.number() / division.divisor;
    unit = division.result;
    return true;
  }
  return false;
}

/// Fluid ounces to a cup's unit of size: 1 in millilitres.
double cupFactor(std::string_view measurement) {
  if (measurement == "u") return millilitresPerUSFluidOunce;
  if (measurement == "i") return millilitresPerUKFluidOunce;
  return 1;
}

/// How much spoon measure one cup or spoon is; nothing for any other unit.
std::optional<double> spoonFactor(std::string_view unit, const Value& cup, const Value& tablespoon,
                                  std::string_view measurement) {
  if (unit == "cup" || unit == "cups") return neededNumber(cup) * cupFactor(measurement);
  if (unit == "tbsp") return pgxPerTeaspoon * neededNumber(tablespoon);
  if (unit == "dsp") return pgxPerTeaspoon * neededNumber(tablespoon) / 2;
  if (unit == "tsp") return pgxPerTeaspoon;
  return std::nullopt;
}

/// A step that applies: the amount is divided by this and counts in that unit.
struct Taken {
  double quotient;
  std::string_view next;
};

std::optional<Taken> climb(double amount, double limit, std::string_view next) {
  if (amount < limit) return std::nullopt;
  return Taken{divided(amount, limit), next};
}

/// A cup of tablespoons. One whole cup can miss its own limit by the last digit of a single; within a millionth it
/// counts as met, and is then not below 1.
std::optional<Taken> climbToCup(Run& run, double amount, std::string_view measurement) {
  const Recordset& system = run.GLOBAL.gSystem;
  auto cup = static_cast<float>(neededNumber(system.Field("Cup")));
  cup = static_cast<float>(cup * cupFactor(measurement));
  const double limit = divided(cup, neededNumber(system.Field("Tablespoon")) * pgxPerTeaspoon);
  if (amount < limit - limit / 1000000) return std::nullopt;
  return Taken{std::max(1.0, divided(amount, limit)), "cup"};
}

std::optional<Taken> nextStep(Run& run, std::string_view unit, double amount, std::string_view measurement) {
  const Recordset& system = run.GLOBAL.gSystem;
  for (const Climb& step : climbs) {
    if (step.unit == unit) return climb(amount, step.limit, step.next);
  }
  for (const CentiClimb& step : centiClimbs) {
    if (step.unit != unit) continue;
    const Climb& taken = system.Field(step.option).truth() ? step.overCenti : step.toCenti;
    return climb(amount, taken.limit, taken.next);
  }
  if (unit == "pgx") return Taken{amount / pgxPerTeaspoon, "tsp"};
  if (unit == "tsp") return climb(amount, neededNumber(system.Field("Tablespoon")), "tbsp");
  if (unit == "dsp") return climb(amount, neededNumber(system.Field("Tablespoon")) / 2, "tbsp");
  if (unit == "tbsp") return climbToCup(run, amount, measurement);
  return std::nullopt;
}

}  // namespace

void subConvertToBase(Run& run, std::string& unit, Value& quantity, const Value& cup, const Value& tablespoon,
                      std::string_view measurement, std::string_view mode) {
  const bool belowOne = isBelowOne(quantity);
  const bool keepOriginal = run.GLOBAL.gSystem.Field("UseOriginalUOM").truth();
  if (keepOriginal && belowOne && mode != "l" && keepsOriginal(run, unit, quantity, measurement)) return;
  for (const Factor& rule : downFactors) {
    if (rule.unit != unit) continue;
    quantity = multiplied(quantity.number(), rule.factor);
    unit = rule.result;
    return;
  }
  if (const std::optional<double> factor = spoonFactor(unit, cup, tablespoon, measurement)) {
    quantity = multiplied(quantity.number(), *factor);
    unit = run.GLOBAL.gConvertCupSpoon == "1" ? "mL" : "pgx";
  }
}

void subConvertSystem(Run& run, std::string& unit, float& quantity) {
  if (unit.empty()) return;
  const std::string measurement = run.GLOBAL.gSystem.Field("Measurement").text();
  for (const SystemFactor& rule : systemFactors) {
    if (rule.measurement != measurement || rule.unit != unit) continue;
    quantity = toSingle(quantity * rule.factor);
    unit = rule.result;
    return;
  }
}

void subClimbLadder(Run& run, std::string& unit, float& quantity, std::string_view measurement) {
  // The comparison is with the number that the single's text names: so 16.66667 tablespoons meet the limit of 250 / 15
  // for a cup.
  while (const std::optional<Taken> taken = nextStep(run, unit, Val(plainText(quantity)), measurement)) {
    quantity = static_cast<float>(taken->quotient);
    unit = taken->next;
  }
}

}  // namespace pantrigo
