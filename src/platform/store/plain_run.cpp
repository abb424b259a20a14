#include "platform/store/plain_run.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/text/letters.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

constexpr std::size_t npos = std::string_view::npos;

/// From the most frequent to the rarest first byte in the texts of a cookbook; those that are missing are rarer still.
/// The marks and digits come from the ingredient memos.
constexpr std::string_view frequentBytes = " ~eta0oinrsl5h2dcug1mpf3.4,b6wy78k9v-/";

/// The higher, the rarer.
std::size_t rarity(char byte) {
  return std::min(frequentBytes.find(byte), frequentBytes.size());
}

/// The next places of the bytes that a letter can begin with, in a text that is gone through from front to back.
class Candidates {
 public:
  Candidates(std::string_view text, std::string_view bytes, std::size_t from) : text_(text), bytes_(bytes) {
    for (std::size_t number = 0; number < bytes.size(); ++number) next_[number] = nextOf(number, from);
  }

  /// npos when there are no more.
  [[nodiscard]] std::size_t take() {
    std::size_t first = 0;
    for (std::size_t number = 1; number < bytes_.size(); ++number) {
      if (next_[number] < next_[first]) first = number;
    }
    const std::size_t place = next_[first];
    if (place != npos) next_[first] = nextOf(first, place + 1);
    return place;
  }

  static constexpr std::size_t mostBytes = 4;

 private:
  [[nodiscard]] std::size_t nextOf(std::size_t number, std::size_t from) const {
    if (from >= text_.size()) return npos;
    const void* found = std::memchr(text_.data() + from, bytes_[number], text_.size() - from);
    return found == nullptr ? npos : static_cast<std::size_t>(static_cast<const char*>(found) - text_.data());
  }

  std::string_view text_;
  std::string_view bytes_;
  std::array<std::size_t, mostBytes> next_{};
};

}  // namespace

std::optional<PlainRun> PlainRun::make(std::u32string_view folded) {
  PlainRun run;
  for (const char32_t character : folded) {
    Letter letter;
    for (const char32_t variant : caseVariants(character)) letter.push_back(encodeUtf8({&variant, 1}));
    if (!std::ranges::all_of(letter, isValidUtf8)) return std::nullopt;
    run.letters_.push_back(std::move(letter));
  }
  run.chooseAnchor();
  if (!run.letters_.empty() && run.anchorBytes_.empty()) return std::nullopt;
  return run;
}

void PlainRun::chooseAnchor() {
  std::size_t rarest = 0;
  for (std::size_t place = 0; place < letters_.size(); ++place) {
    std::string bytes;
    for (const std::string& variant : letters_[place]) {
      if (bytes.find(variant.front()) == npos) bytes.push_back(variant.front());
    }
    if (bytes.size() > Candidates::mostBytes) continue;
    const std::size_t found = rarity(bytes.front());
    if (!anchorBytes_.empty() && found <= rarest) continue;
    rarest = found;
    anchor_ = place;
    anchorBytes_ = bytes;
  }
}

std::size_t PlainRun::after(const Letter& letter, std::string_view text, std::size_t place) {
  for (const std::string& variant : letter) {
    if (text.substr(place).starts_with(variant)) return place + variant.size();
  }
  return npos;
}

std::size_t PlainRun::before(const Letter& letter, std::string_view text, std::size_t place) {
  for (const std::string& variant : letter) {
    if (text.substr(0, place).ends_with(variant)) return place - variant.size();
  }
  return npos;
}

std::size_t PlainRun::endFrom(std::string_view text, std::size_t begin) const {
  std::size_t place = begin;
  for (const Letter& letter : letters_) {
    place = after(letter, text, place);
    if (place == npos) return npos;
  }
  return place;
}

std::size_t PlainRun::beginBefore(std::string_view text, std::size_t end) const {
  std::size_t place = end;
  for (auto letter = letters_.rbegin(); letter != letters_.rend(); ++letter) {
    place = before(*letter, text, place);
    if (place == npos) return npos;
  }
  return place;
}

std::optional<PlainRun::Span> PlainRun::find(std::string_view text, std::size_t from) const {
  if (letters_.empty()) return Span{from, from};
  Candidates candidates(text, anchorBytes_, from);
  for (std::size_t place = candidates.take(); place != npos; place = candidates.take()) {
    std::size_t begin = place;
    for (std::size_t number = anchor_; number > 0 && begin != npos; --number) {
      begin = before(letters_[number - 1], text, begin);
    }
    if (begin == npos || begin < from) continue;
    const std::size_t end = endFrom(text, begin);
    if (end != npos) return Span{begin, end};
  }
  return std::nullopt;
}

}  // namespace pantrigo
