#include "platform/text/letters.h"

#include <unicode/uchar.h>
#include <unicode/uniset.h>

#include <algorithm>
#include <cstdint>

#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

template <class Mapping>
std::string mapped(std::string_view text, Mapping mapping) {
  if (std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; })) {
    std::string plain(text);
    for (char& character : plain) character = static_cast<char>(mapping(static_cast<unsigned char>(character)));
    return plain;
  }
  std::u32string points = decodeUtf8(text);
  for (char32_t& point : points) point = mapping(point);
  return encodeUtf8(points);
}

}  // namespace

char32_t upperCase(char32_t character) {
  if (character < 0x80) return character >= U'a' && character <= U'z' ? character - 32 : character;
  return static_cast<char32_t>(u_toupper(static_cast<UChar32>(character)));
}

char32_t lowerCase(char32_t character) {
  if (character < 0x80) return character >= U'A' && character <= U'Z' ? character + 32 : character;
  return static_cast<char32_t>(u_tolower(static_cast<UChar32>(character)));
}

char32_t foldCase(char32_t character) {
  if (character < 0x80) return lowerCase(character);
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

std::u32string caseVariants(char32_t folded) {
  std::u32string variants(1, folded);
  const auto point = static_cast<UChar32>(folded);
  icu::UnicodeSet set(point, point);
  // The set of full folding, which also holds characters that need several letters and fold to themselves here.
  set.closeOver(USET_CASE_INSENSITIVE);
  for (std::int32_t place = 0; place < set.getRangeCount(); ++place) {
    for (UChar32 other = set.getRangeStart(place); other <= set.getRangeEnd(place); ++other) {
      const auto character = static_cast<char32_t>(other);
      if (character != folded && foldCase(character) == folded) variants.push_back(character);
    }
  }
  return variants;
}

std::string UCase(std::string_view text) {
  return mapped(text, upperCase);
}
std::string LCase(std::string_view text) {
  return mapped(text, lowerCase);
}

std::string LTrim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string RTrim(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string Trim(std::string_view text) {
  return LTrim(RTrim(text));
}

}  // namespace pantrigo
