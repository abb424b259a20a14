#pragma once

#include <string>
#include <string_view>

namespace pantrigo {

/// The one order of texts: indexes, `Seek`, "=", `Distinct`, title order and the sorted lists all go by it. Letter case
/// does not count, accents do, trailing blanks do not. Typographic quotes and dashes, tabs and no-break blanks are
/// equal to the plain characters, ligatures and the sharp s to their two letters; characters that show nothing still
/// keep texts apart. Negative, zero or positive as `left` sorts before, with or after `right`. Error 51 when the rules
/// can't be loaded, which happens at the first use or never.
[[nodiscard]] int collate(std::string_view left, std::string_view right);

/// Bytes that stand for a text in that order: two keys compare, byte by byte as unsigned numbers, as `collate` compares
/// their texts. For the sorting of many texts, each of which is looked at once.
[[nodiscard]] std::string sortKey(std::string_view text);

/// Where a text stands in that order, for the sorting of many texts: what is costly about a text is done once. A text
/// of plain characters costs little, unless it is compared with one that holds others.
class TextPlace {
 public:
  explicit TextPlace(std::string_view text);
  /// Negative, zero or positive, as `collate` gives for the two texts.
  [[nodiscard]] int compare(const TextPlace& other) const;

 private:
  [[nodiscard]] const std::string& fullKey() const;

  /// Of a plain text the ranks of its characters, of another its sort key.
  std::string key_;
  bool isPlain_;
  /// The sort key of a plain text, once it was asked for.
  mutable std::string fullKey_;
};

/// A text that changes whenever the order could: stamped into the store, whose indexes are rebuilt when it differs.
[[nodiscard]] std::string collationVersion();

}  // namespace pantrigo
