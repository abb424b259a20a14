#include "platform/text/collation.h"

#include <unicode/stringpiece.h>
#include <unicode/tblcoll.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uversion.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <numeric>

#include "platform/text/errors.h"
#include "platform/text/numbers.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

/// Changes when a rule of ours around the collator does.
constexpr std::string_view ownRulesVersion = "3";

/// The printable characters of ASCII.
constexpr char firstPlain = ' ';
constexpr char lastPlain = '~';

/// A character that sorts as other ones do, and these.
struct Fold {
  char32_t from;
  std::u32string_view to;
};

/// By code point. What a typesetter puts in the place of a plain character is equal to it, and so are letters that are
/// two written as one.
constexpr Fold folds[] = {
    {U'\t', U" "},      {U'\u00A0', U" "},  {U'\u00AB', U"\""}, {U'\u00AD', U"-"},  {U'\u00B2', U"2"},
    {U'\u00B3', U"3"},  {U'\u00B9', U"1"},  {U'\u00BB', U"\""}, {U'\u00C6', U"AE"}, {U'\u00DF', U"ss"},
    {U'\u00E6', U"ae"}, {U'\u0152', U"OE"}, {U'\u0153', U"oe"}, {U'\u1E9E', U"SS"}, {U'\u2010', U"-"},
    {U'\u2011', U"-"},  {U'\u2012', U"-"},  {U'\u2013', U"-"},  {U'\u2014', U"-"},  {U'\u2015', U"-"},
    {U'\u2018', U"'"},  {U'\u2019', U"'"},  {U'\u201A', U"'"},  {U'\u201B', U"'"},  {U'\u201C', U"\""},
    {U'\u201D', U"\""}, {U'\u201E', U"\""}, {U'\u201F', U"\""}, {U'\u2039', U"'"},  {U'\u203A', U"'"},
};

static_assert(std::ranges::is_sorted(folds, {}, &Fold::from));

/// The text as the collator is to see it: folded, and without its trailing blanks.
std::u32string folded(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  for (const char32_t point : decodeUtf8(text)) {
    if (point >= firstPlain && point <= lastPlain) {
      result += point;
      continue;
    }
    const Fold* found = std::ranges::lower_bound(folds, point, {}, &Fold::from);
    if (found != std::end(folds) && found->from == point) {
      result += found->to;
    } else {
      result += point;
    }
  }
  result.erase(result.find_last_not_of(U' ') + 1);
  return result;
}

void check(UErrorCode status) {
  if (U_FAILURE(status)) throw RuntimeError(51, "The order of texts is not available.");
}

/// Where our order differs from the common one of Unicode. Eth is a letter of its own in front of e; thorn and the
/// slashed o stand behind z. Where two texts differ in accents alone, these count in the order grave, acute,
/// circumflex, diaeresis, tilde, ring, cedilla, caron.
constexpr const char16_t* ownRules =
    u"&[before 1]e<\u00F0<<<\u00D0"
    u"&z<\u00FE<<<\u00DE<\u00F8<<<\u00D8"
    u"&[before 2]\u0301<<\u0300"
    u"&\u0301<<\u0302<<\u0308<<\u0303<<\u030A<<\u0327<<\u030C";

std::unique_ptr<icu::Collator> makeCollator() {
  UErrorCode status = U_ZERO_ERROR;
  auto collator = std::make_unique<icu::RuleBasedCollator>(icu::UnicodeString(ownRules), status);
  check(status);
  // Accents count, letter case does not; blanks and punctuation are characters like any other.
  collator->setStrength(icu::Collator::SECONDARY);
  collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
  check(status);
  return collator;
}

const icu::Collator& collator() {
  static const std::unique_ptr<icu::Collator> instance = makeCollator();
  return *instance;
}

int collateByRules(std::string_view left, std::string_view right) {
  UErrorCode status = U_ZERO_ERROR;
  const int result = collator().compareUTF8(icu::StringPiece(left.data(), static_cast<int32_t>(left.size())),
                                            icu::StringPiece(right.data(), static_cast<int32_t>(right.size())), status);
  check(status);
  return result;
}

/// The places of the plain characters in the collator's order; a small letter and its capital share one.
std::array<std::uint8_t, 128> plainRanks() {
  std::array<std::uint8_t, 128> ranks{};
  std::array<char, lastPlain - firstPlain + 1> order{};
  std::iota(order.begin(), order.end(), firstPlain);
  const auto compare = [](char left, char right) { return collateByRules({&left, 1}, {&right, 1}); };
  std::stable_sort(order.begin(), order.end(), [&](char left, char right) { return compare(left, right) < 0; });
  std::uint8_t rank = 1;
  for (std::size_t place = 0; place < order.size(); ++place) {
    if (place > 0 && compare(order[place - 1], order[place]) != 0) ++rank;
    ranks[static_cast<std::size_t>(order[place])] = rank;
  }
  ranks['\t'] = ranks[' '];
  return ranks;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

/// The place of a plain character or a tab among them, from 1; 0 for any other byte.
std::uint8_t rankOf(char character) {
  static const std::array<std::uint8_t, 128> ranks = plainRanks();
  const auto byte = static_cast<unsigned char>(character);
  return byte < 128 ? ranks[byte] : std::uint8_t{0};
}

/// A plain character of a rank.
char characterOf(std::uint8_t rank) {
  char character = firstPlain;
  while (rankOf(character) != rank) ++character;
  return character;
}

/// Whether both texts hold plain characters and tabs only, from end to end; their order is then in `result`.
bool collatePlain(std::string_view left, std::string_view right, int& result) {
  left = withoutTrailingBlanks(left);
  right = withoutTrailingBlanks(right);
  int difference = 0;
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t place = 0; place < common; ++place) {
    const int leftRank = rankOf(left[place]);
    const int rightRank = rankOf(right[place]);
    if (leftRank == 0 || rightRank == 0) return false;
    if (difference == 0) difference = leftRank - rightRank;
  }
  for (const std::string_view rest : {left.substr(common), right.substr(common)}) {
    if (std::any_of(rest.begin(), rest.end(), [&](char character) { return rankOf(character) == 0; })) return false;
  }
  if (difference == 0 && left.size() != right.size()) difference = left.size() < right.size() ? -1 : 1;
  result = difference;
  return true;
}

/// Whether the collator takes no notice of a character, as of controls, joiners and variation selectors, or can't tell
/// it from others, as a byte that is no part of valid text.
bool isPassedOver(char32_t point) {
  if (u_charType(static_cast<UChar32>(point)) == U_SURROGATE) return true;
  return collateByRules(encodeUtf8({&point, 1}), {}) == 0;
}

/// The characters of a text that the collator passes over, each behind its place.
std::u32string passedOver(std::u32string_view text) {
  std::u32string result;
  char32_t place = 0;
  for (const char32_t point : text) {
    ++place;
    if (point >= firstPlain && point <= lastPlain) continue;
    if (isPassedOver(point)) result += {place, point};
  }
  return result;
}

}  // namespace

int collate(std::string_view left, std::string_view right) {
  int result = 0;
  if (collatePlain(left, right, result)) return result;
  const std::u32string leftFolded = folded(left);
  const std::u32string rightFolded = folded(right);
  result = collateByRules(encodeUtf8(leftFolded), encodeUtf8(rightFolded));
  return result != 0 ? result : passedOver(leftFolded).compare(passedOver(rightFolded));
}

std::string sortKey(std::string_view text) {
  const std::u32string seen = folded(text);
  const auto units =
      icu::UnicodeString::fromUTF32(reinterpret_cast<const UChar32*>(seen.data()), static_cast<int32_t>(seen.size()));
  std::array<std::uint8_t, 128> usual{};
  const int32_t size = collator().getSortKey(units, usual.data(), static_cast<int32_t>(usual.size()));
  std::string key(reinterpret_cast<const char*>(usual.data()), std::min(static_cast<std::size_t>(size), usual.size()));
  if (key.size() < static_cast<std::size_t>(size)) {
    key.resize(static_cast<std::size_t>(size));
    collator().getSortKey(units, reinterpret_cast<std::uint8_t*>(key.data()), size);
  }
  // The collator's part ends with a byte 0, which is nowhere else in it.
  for (const char32_t part : passedOver(seen)) {
    for (const int shift : {24, 16, 8, 0}) key += static_cast<char>((part >> shift) & 0xFF);
  }
  return key;
}

TextPlace::TextPlace(std::string_view text) : isPlain_(true) {
  const std::string_view seen = withoutTrailingBlanks(text);
  key_.reserve(seen.size());
  for (const char character : seen) {
    const std::uint8_t rank = rankOf(character);
    if (rank == 0) {
      key_ = sortKey(text);
      isPlain_ = false;
      return;
    }
    key_ += static_cast<char>(rank);
  }
}

const std::string& TextPlace::fullKey() const {
  if (!isPlain_) return key_;
  if (fullKey_.empty()) {
    std::string text;
    for (const char rank : key_) text += characterOf(static_cast<std::uint8_t>(rank));
    fullKey_ = sortKey(text);
  }
  return fullKey_;
}

int TextPlace::compare(const TextPlace& other) const {
  return isPlain_ == other.isPlain_ ? key_.compare(other.key_) : fullKey().compare(other.fullKey());
}

std::string collationVersion() {
  UVersionInfo version;
  collator().getVersion(version);
  std::string text(ownRulesVersion);
  for (const std::uint8_t part : version) text += "." + plainText(static_cast<long>(part));
  return text;
}

}  // namespace pantrigo
