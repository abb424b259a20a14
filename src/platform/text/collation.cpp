#include "platform/text/collation.h"

#include <unicode/coll.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>
#include <unicode/uversion.h>

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>

#include "platform/text/errors.h"
#include "platform/text/numbers.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

/// Changes when a rule of ours around the collator does.
constexpr std::string_view ownRulesVersion = "1";

constexpr char firstPlain = ' ';
constexpr char lastPlain = '~';

std::unique_ptr<icu::Collator> makeCollator() {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) throw RuntimeError(51, "The order of texts is not available.");
  // Accents count, letter case does not; blanks and punctuation are characters like any other.
  collator->setStrength(icu::Collator::SECONDARY);
  collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
  return collator;
}

const icu::Collator& collator() {
  static const std::unique_ptr<icu::Collator> instance = makeCollator();
  return *instance;
}

int collateByRules(std::string_view left, std::string_view right) {
  UErrorCode status = U_ZERO_ERROR;
  return collator().compareUTF8(icu::StringPiece(left.data(), static_cast<int32_t>(left.size())),
                                icu::StringPiece(right.data(), static_cast<int32_t>(right.size())), status);
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
  return ranks;
}

/// Whether both texts hold plain characters only, up to the first difference of rank, which then decides.
bool collatePlain(std::string_view left, std::string_view right, int& result) {
  static const std::array<std::uint8_t, 128> ranks = plainRanks();
  const auto rankOf = [](char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 128 ? ranks[byte] : std::uint8_t{0};
  };
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

std::string_view withoutTrailingBlanks(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// The control and format characters of a text with their places: what the collator passes over.
std::u32string ignoredCharacters(std::string_view text) {
  std::u32string ignored;
  char32_t place = 0;
  for (const char32_t point : decodeUtf8(text)) {
    ++place;
    const auto type = u_charType(static_cast<UChar32>(point));
    if (type == U_CONTROL_CHAR || type == U_FORMAT_CHAR || type == U_SURROGATE) {
      ignored += place;
      ignored += point;
    }
  }
  return ignored;
}

}  // namespace

int collate(std::string_view left, std::string_view right) {
  left = withoutTrailingBlanks(left);
  right = withoutTrailingBlanks(right);
  int result = 0;
  if (collatePlain(left, right, result)) return result;
  result = collateByRules(left, right);
  return result != 0 ? result : ignoredCharacters(left).compare(ignoredCharacters(right));
}

std::string collationVersion() {
  UVersionInfo version;
  collator().getVersion(version);
  std::string text(ownRulesVersion);
  for (const std::uint8_t part : version) text += "." + plainText(static_cast<long>(part));
  return text;
}

}  // namespace pantrigo
