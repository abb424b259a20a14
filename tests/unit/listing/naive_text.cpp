#include "unit/listing/naive_text.h"

#include <map>
#include <string>
#include <vector>

namespace pantrigo {

namespace {

using Characters = std::u32string;

/// Only for well-formed texts, which all of the model's are.
Characters decode(std::string_view text) {
  Characters characters;
  for (std::size_t place = 0; place < text.size();) {
    const auto lead = static_cast<unsigned char>(text[place++]);
    const int more = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    char32_t character = more == 0 ? lead : lead & (0x3F >> more);
    for (int tail = 0; tail < more; ++tail) {
      character = (character << 6) | (static_cast<unsigned char>(text[place++]) & 0x3F);
    }
    characters += character;
  }
  return characters;
}

char32_t fold(char32_t character) {
  static const std::map<char32_t, char32_t> apart{{U'\u212A', U'k'}, {U'\u017F', U's'}, {U'Σ', U'σ'}, {U'ς', U'σ'},
                                                  {U'Ο', U'ο'},      {U'Φ', U'φ'},      {U'Ό', U'ό'}};
  const auto found = apart.find(character);
  if (found != apart.end()) return found->second;
  const bool capital =
      (character >= U'A' && character <= U'Z') || (character >= U'À' && character <= U'Þ' && character != U'×');
  return capital ? character + 32 : character;
}

Characters folded(std::string_view text) {
  Characters characters = decode(text);
  for (char32_t& character : characters) character = fold(character);
  return characters;
}

struct Weight {
  std::size_t primary = 0;
  int accent = 0;
};

Weight weigh(char32_t character) {
  static const Characters order = U" !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~0123456789abcdefghijklmnopqrstuvwxyz";
  static const std::map<char32_t, std::pair<char32_t, int>> accented{
      {U'è', {U'e', 1}}, {U'é', {U'e', 2}}, {U'ü', {U'u', 4}}, {U'ñ', {U'n', 5}}};
  const auto found = accented.find(character);
  if (found == accented.end()) return {order.find(character), 0};
  return {order.find(found->second.first), found->second.second};
}

Characters withoutTrailingBlanks(Characters text) {
  text.erase(text.find_last_not_of(U' ') + 1);
  return text;
}

int compare(std::size_t left, std::size_t right) {
  return left < right ? -1 : left > right ? 1 : 0;
}

bool classHolds(const Characters& list, char32_t character) {
  for (std::size_t place = 0; place < list.size(); ++place) {
    const bool range = place + 2 < list.size() && list[place + 1] == U'-';
    if (range ? list[place] <= character && character <= list[place + 2] : list[place] == character) return true;
    if (range) place += 2;
  }
  return false;
}

bool fits(const Characters& text, std::size_t at, const Characters& pattern, std::size_t rule) {
  if (rule == pattern.size()) return at == text.size();
  if (pattern[rule] == U'*') {
    for (std::size_t end = at; end <= text.size(); ++end) {
      if (fits(text, end, pattern, rule + 1)) return true;
    }
    return false;
  }
  if (pattern[rule] == U'[') {
    const std::size_t close = pattern.find(U']', rule);
    Characters list = pattern.substr(rule + 1, close - rule - 1);
    if (list.empty()) return fits(text, at, pattern, close + 1);
    const bool negative = list.front() == U'!' && list.size() > 1;
    if (negative) list.erase(0, 1);
    return at < text.size() && classHolds(list, text[at]) != negative && fits(text, at + 1, pattern, close + 1);
  }
  if (at == text.size()) return false;
  const bool digit = text[at] >= U'0' && text[at] <= U'9';
  const bool taken = pattern[rule] == U'?' || (pattern[rule] == U'#' ? digit : pattern[rule] == text[at]);
  return taken && fits(text, at + 1, pattern, rule + 1);
}

}  // namespace

int naiveOrder(std::string_view left, std::string_view right) {
  const Characters first = withoutTrailingBlanks(folded(left));
  const Characters second = withoutTrailingBlanks(folded(right));
  int accents = 0;
  for (std::size_t place = 0; place < first.size() && place < second.size(); ++place) {
    const Weight one = weigh(first[place]);
    const Weight other = weigh(second[place]);
    if (one.primary != other.primary) return compare(one.primary, other.primary);
    if (accents == 0) accents = one.accent - other.accent;
  }
  return first.size() != second.size() ? compare(first.size(), second.size()) : accents;
}

bool naiveEqual(std::string_view left, std::string_view right) {
  return withoutTrailingBlanks(folded(left)) == withoutTrailingBlanks(folded(right));
}

bool naiveLike(std::string_view text, std::string_view pattern) {
  return fits(folded(text), 0, folded(pattern), 0);
}

}  // namespace pantrigo
