#include "platform/store/field_values.h"

#include <cmath>
#include <limits>
#include <optional>

#include "platform/store/store_errors.h"
#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

constexpr std::size_t longestText = 255;

/// The number that a written value stands for; Null for Null and for the empty text.
Value toNumberValue(const Value& value) {
  if (!value.isText()) return value.isNull() ? value : Value(value.number());
  const std::string& text = std::get<std::string>(value.content());
  if (text.empty()) return {};
  const std::optional<double> number = toNumber(text);
  if (!number) throw RuntimeError(store_error::dataTypeConversion);
  return *number;
}

Value toLongInteger(const Value& value) {
  const Value number = toNumberValue(value);
  return number.isNull() ? number : Value(static_cast<double>(number.whole()));
}

Value toFiniteNumber(const Value& value) {
  const Value number = toNumberValue(value);
  if (!number.isNull() && !std::isfinite(number.number())) throw RuntimeError(store_error::overflow);
  return number;
}

Value toYesNo(const Value& value) {
  if (!value.isText()) return value.truth();
  const std::string word = LCase(value.text());
  if (word == "true" || word == "false") return word == "true";
  const Value number = toNumberValue(value);
  if (number.isNull()) throw RuntimeError(store_error::dataTypeConversion);
  return number.truth();
}

Value toText(const Value& value) {
  return value.isNull() || value.isText() ? value : Value(value.text());
}

Value toShortText(const Value& value) {
  Value text = toText(value);
  // A text has at least as many bytes as characters.
  if (text.isText()) {
    const std::string& content = std::get<std::string>(text.content());
    if (content.size() > longestText && Len(content) > longestText) throw RuntimeError(store_error::fieldTooSmall);
  }
  return text;
}

}  // namespace

Value defaultOf(FieldType type) {
  return type == FieldType::YesNo ? Value(false) : Value();
}

Value toFieldValue(FieldType type, const Value& value) {
  switch (type) {
    case FieldType::LongInteger:
      return toLongInteger(value);
    case FieldType::Number:
      return toFiniteNumber(value);
    case FieldType::YesNo:
      return toYesNo(value);
    case FieldType::Text:
      return toShortText(value);
    case FieldType::Memo:
      return toText(value);
  }
  return {};
}

Value toKeyValue(FieldType type, const Value& value) {
  switch (type) {
    case FieldType::LongInteger:
    case FieldType::Number:
      return toNumberValue(value);
    case FieldType::YesNo:
      return value.isNull() ? value : toYesNo(value);
    case FieldType::Text:
    case FieldType::Memo:
      return toText(value);
  }
  return {};
}

Value readValue(const Statement& statement, int column, FieldType type) {
  switch (type) {
    case FieldType::YesNo:
      return statement.whole(column) != 0;
    case FieldType::LongInteger:
    case FieldType::Number:
      return statement.isNull(column) ? Value() : Value(statement.number(column));
    case FieldType::Text:
    case FieldType::Memo:
      return statement.isNull(column) ? Value() : Value(std::string(statement.text(column)));
  }
  return {};
}

}  // namespace pantrigo
