#include "platform/store/like.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "platform/store/store_errors.h"
#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

constexpr unsigned char firstBeyondAscii = 0x80;

constexpr std::array<char32_t, firstBeyondAscii> makeAsciiFolding() {
  std::array<char32_t, firstBeyondAscii> folding{};
  for (char32_t character = 0; character < folding.size(); ++character) {
    const bool isUpper = character >= U'A' && character <= U'Z';
    folding[character] = isUpper ? character + (U'a' - U'A') : character;
  }
  return folding;
}

constexpr std::array<char32_t, firstBeyondAscii> asciiFolding = makeAsciiFolding();

bool isAscii(char byte) {
  return static_cast<unsigned char>(byte) < firstBeyondAscii;
}

/// A text of plain ASCII, which is most of what a cookbook holds: its bytes are its characters, and fold in place.
class AsciiText {
 public:
  explicit AsciiText(std::string_view text) : text_(text) {}
  [[nodiscard]] std::size_t size() const { return text_.size(); }
  [[nodiscard]] char32_t operator[](std::size_t place) const {
    return asciiFolding[static_cast<unsigned char>(text_[place])];
  }

 private:
  std::string_view text_;
};

bool isAllAscii(std::string_view text) {
  unsigned char bits = 0;
  for (const char byte : text) bits |= static_cast<unsigned char>(byte);
  return bits < firstBeyondAscii;
}

/// The characters of the text, folded so that letters that differ only in case are equal.
std::u32string folded(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  std::size_t place = 0;
  while (place < text.size()) {
    if (isAscii(text[place])) {
      result.push_back(asciiFolding[static_cast<unsigned char>(text[place++])]);
      continue;
    }
    const std::size_t start = place;
    while (place < text.size() && !isAscii(text[place])) ++place;
    for (const char32_t character : decodeUtf8(text.substr(start, place - start)))
      result.push_back(foldCase(character));
  }
  return result;
}

}  // namespace

LikePattern::LikePattern(std::string_view pattern) : pieces_(1) {
  const std::u32string characters = folded(pattern);
  for (std::size_t place = 0; place < characters.size(); ++place) {
    const char32_t character = characters[place];
    if (character == U'*') {
      pieces_.emplace_back();
    } else if (character == U'?') {
      pieces_.back().push_back({Element::Kind::Any});
    } else if (character == U'#') {
      pieces_.back().push_back({Element::Kind::Digit});
    } else if (character == U'[') {
      const std::size_t close = characters.find(U']', place);
      if (close == std::u32string::npos) throw RuntimeError(store_error::invalidPattern);
      addList(std::u32string_view(characters).substr(place + 1, close - place - 1));
      place = close;
    } else {
      pieces_.back().push_back({Element::Kind::Character, character});
    }
  }
  findPlainRuns();
}

void LikePattern::findPlainRuns() {
  for (const Piece& piece : pieces_) {
    std::u32string characters;
    for (const Element& element : piece) {
      if (element.kind == Element::Kind::Character) characters.push_back(element.character);
    }
    std::optional<PlainRun> run = PlainRun::make(characters);
    if (!run || characters.size() != piece.size()) return plainRuns_.clear();
    plainRuns_.push_back(std::move(*run));
  }
}

void LikePattern::addList(std::u32string_view list) {
  // "[]" counts as nothing, and "[!]" as an exclamation mark.
  if (list.empty()) return;
  Element element{Element::Kind::OneOf};
  if (list.size() > 1 && list.front() == U'!') {
    element.kind = Element::Kind::NoneOf;
    list.remove_prefix(1);
  }
  for (std::size_t place = 0; place < list.size(); ++place) {
    // A "-" at either end of the list is a plain character.
    const bool isRange = place + 2 < list.size() && list[place + 1] == U'-';
    const Range range{list[place], isRange ? list[place + 2] : list[place]};
    if (range.last < range.first) throw RuntimeError(store_error::invalidPattern);
    element.ranges.push_back(range);
    if (isRange) place += 2;
  }
  pieces_.back().push_back(std::move(element));
}

bool LikePattern::fits(const Element& element, char32_t character) {
  const auto contains = [character](const Range& range) { return range.first <= character && character <= range.last; };
  switch (element.kind) {
    case Element::Kind::Character:
      return character == element.character;
    case Element::Kind::Any:
      return true;
    case Element::Kind::Digit:
      return character >= U'0' && character <= U'9';
    case Element::Kind::OneOf:
      return std::any_of(element.ranges.begin(), element.ranges.end(), contains);
    case Element::Kind::NoneOf:
      return std::none_of(element.ranges.begin(), element.ranges.end(), contains);
  }
  return false;
}

template <class Text>
bool LikePattern::fitsAt(const Piece& piece, const Text& text, std::size_t place) {
  for (const Element& element : piece) {
    if (!fits(element, text[place++])) return false;
  }
  return true;
}

/// The first place from `from` on where the piece fits before `end`; npos when there is none.
template <class Text>
std::size_t LikePattern::find(const Piece& piece, const Text& text, std::size_t from, std::size_t end) {
  if (piece.empty()) return from;
  const Element& first = piece.front();
  const bool startsPlain = first.kind == Element::Kind::Character;
  for (std::size_t place = from; place + piece.size() <= end; ++place) {
    if (startsPlain && text[place] != first.character) continue;
    if (fitsAt(piece, text, place)) return place;
  }
  return std::u32string_view::npos;
}

template <class Text>
bool LikePattern::matchesWhole(const Text& characters) const {
  const Piece& first = pieces_.front();
  const Piece& last = pieces_.back();
  if (pieces_.size() == 1) return characters.size() == first.size() && fitsAt(first, characters, 0);
  if (characters.size() < first.size() + last.size()) return false;
  const std::size_t end = characters.size() - last.size();
  if (!fitsAt(first, characters, 0) || !fitsAt(last, characters, end)) return false;
  // Each piece in between takes its first place: a later one could only leave less room.
  std::size_t place = first.size();
  for (std::size_t number = 1; number + 1 < pieces_.size(); ++number) {
    place = find(pieces_[number], characters, place, end);
    if (place == std::u32string_view::npos) return false;
    place += pieces_[number].size();
  }
  return true;
}

bool LikePattern::matchesPlain(std::string_view text) const {
  constexpr std::size_t npos = std::string_view::npos;
  const std::size_t begin = plainRuns_.front().endFrom(text, 0);
  if (plainRuns_.size() == 1 || begin == npos) return begin == text.size();
  const std::size_t end = plainRuns_.back().beginBefore(text, text.size());
  if (end == npos || end < begin) return false;
  const std::string_view middle = text.substr(0, end);
  // Each run in between takes its first place: a later one could only leave less room.
  std::size_t place = begin;
  for (std::size_t number = 1; number + 1 < plainRuns_.size(); ++number) {
    const std::optional<PlainRun::Span> found = plainRuns_[number].find(middle, place);
    if (!found) return false;
    place = found->end;
  }
  return true;
}

bool LikePattern::matches(std::string_view text) const {
  if (!plainRuns_.empty()) return matchesPlain(text);
  return isAllAscii(text) ? matchesWhole(AsciiText(text)) : matchesWhole(folded(text));
}

}  // namespace pantrigo
