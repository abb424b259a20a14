#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace pantrigo {

/// What a field of the store holds, and what is written to one: Null, a Yes/No, a number or a text.
class Value {
 public:
  /// Null.
  Value() = default;
  Value(bool truth) : content_(truth) {}
  Value(int number) : content_(static_cast<double>(number)) {}
  Value(long number) : content_(static_cast<double>(number)) {}
  Value(long long number) : content_(static_cast<double>(number)) {}
  Value(double number) : content_(number) {}
  /// A single keeps the double that its 7-digit text names.
  Value(float number);
  Value(std::string text) : content_(std::move(text)) {}
  Value(std::string_view text) : content_(std::string(text)) {}
  Value(const char* text) : content_(std::string(text)) {}

  [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(content_); }
  [[nodiscard]] bool isBoolean() const { return std::holds_alternative<bool>(content_); }
  [[nodiscard]] bool isNumber() const { return std::holds_alternative<double>(content_); }
  [[nodiscard]] bool isText() const { return std::holds_alternative<std::string>(content_); }

  /// The value joined into a text: Null gives the empty text, Yes/No "True" or "False", a number its plain form.
  [[nodiscard]] std::string text() const;

  /// The value as a number: Yes/No is -1 or 0, a text goes by the whole-text conversion. Error 94 for Null, 13 for a
  /// text that is no number.
  [[nodiscard]] double number() const;

  /// `number` as a whole number (halves to even). Errors of `number`, and 6 out of the long integer's range.
  [[nodiscard]] std::int64_t whole() const;

  /// The value as the condition of an If: Null counts as False.
  [[nodiscard]] bool truth() const;

  /// Whether the value, compared as text, is above the empty text. Null is not.
  [[nodiscard]] bool aboveEmpty() const { return !isNull() && !text().empty(); }

  [[nodiscard]] const std::variant<std::monostate, bool, double, std::string>& content() const { return content_; }

  friend bool operator==(const Value&, const Value&) = default;

 private:
  std::variant<std::monostate, bool, double, std::string> content_;
};

}  // namespace pantrigo
