#include "exchange/clean_title.h"

#include "platform/text/letters.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

bool isSkipped(char32_t character) {
  return character == U'?' || character == U'!' || character == U'*';
}

/// Characters after which a word starts.
bool startsWord(char32_t before) {
  return std::u32string_view(U"/-(\" ?*").find(before) != std::u32string_view::npos;
}

}  // namespace

CleanTitle subCleanTitle(std::string_view text) {
  const std::u32string input = decodeUtf8(text);
  std::u32string caseResult;
  std::u32string plainResult;
  for (std::size_t place = 0; place < input.size(); ++place) {
    const char32_t character = input[place];
    if (isSkipped(character)) continue;
    plainResult += character;
    if (character == U'\'') plainResult += character;
    char32_t before = place == 0 ? U' ' : input[place - 1];
    // The second I of a Roman two stays a capital.
    if ((character == U'I' || character == U'i') && before == U'I') before = U' ';
    caseResult += startsWord(before) ? upperCase(character) : lowerCase(character);
  }
  return {encodeUtf8(caseResult), encodeUtf8(plainResult)};
}

}  // namespace pantrigo
