#include "platform/text/utf8.h"

#include <algorithm>
#include <array>

#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// Bytes that are no part of valid UTF-8 travel as these code points, which no valid text holds.
constexpr char32_t strayByteBase = 0xDC00;

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool isContinuation(unsigned char byte) {
  return (byte & 0xC0) == 0x80;
}

/// Number of bytes of the valid character at the place; 0 when there is none.
std::size_t sequenceLength(std::string_view text, std::size_t place) {
  const auto byte = [&](std::size_t offset) { return static_cast<unsigned char>(text[place + offset]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xC2 && first < 0xE0   ? 2
                             : first >= 0xE0 && first < 0xF0 ? 3
                             : first >= 0xF0 && first < 0xF5 ? 4
                                                             : 0;
  if (length == 0 || place + length > text.size()) return 0;
  for (std::size_t offset = 1; offset < length; ++offset) {
    if (!isContinuation(byte(offset))) return 0;
  }
  const bool overlong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
  const bool surrogate = first == 0xED && byte(1) >= 0xA0;
  const bool beyond = first == 0xF4 && byte(1) >= 0x90;
  return overlong || surrogate || beyond ? 0 : length;
}

/// Bytes taken by the character at the place, a stray byte counting as one.
std::size_t stepLength(std::string_view text, std::size_t place) {
  return std::max<std::size_t>(1, sequenceLength(text, place));
}

/// Byte offset of the character with that number, counted from 0; the end when there are fewer.
std::size_t byteOffset(std::string_view text, std::size_t characters) {
  if (isAscii(text)) return std::min(characters, text.size());
  std::size_t place = 0;
  for (; characters > 0 && place < text.size(); --characters) place += stepLength(text, place);
  return place;
}

std::size_t checkedLength(long length) {
  if (length < 0) throw RuntimeError(5);
  return static_cast<std::size_t>(length);
}

void append(std::string& text, char32_t point) {
  if (point >= strayByteBase + 0x80 && point < strayByteBase + 0x100) {
    text += static_cast<char>(point - strayByteBase);
  } else if (point < 0x80) {
    text += static_cast<char>(point);
  } else if (point < 0x800) {
    text += static_cast<char>(0xC0 | (point >> 6));
    text += static_cast<char>(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    text += static_cast<char>(0xE0 | (point >> 12));
    text += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (point & 0x3F));
  } else {
    text += static_cast<char>(0xF0 | (point >> 18));
    text += static_cast<char>(0x80 | ((point >> 12) & 0x3F));
    text += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (point & 0x3F));
  }
}

/// Windows-1252 from 0x80 to 0x9F; the five unassigned bytes stand for their C1 controls.
constexpr std::array<char32_t, 32> windows1252High{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

}  // namespace

std::size_t Len(std::string_view text) {
  if (isAscii(text)) return text.size();
  std::size_t count = 0;
  for (std::size_t place = 0; place < text.size(); place += stepLength(text, place)) ++count;
  return count;
}

std::string Left(std::string_view text, long length) {
  return std::string(text.substr(0, byteOffset(text, checkedLength(length))));
}

std::string Right(std::string_view text, long length) {
  const std::size_t wanted = checkedLength(length);
  const std::size_t all = Len(text);
  return std::string(wanted >= all ? text : text.substr(byteOffset(text, all - wanted)));
}

std::string Mid(std::string_view text, long start, long length) {
  return Left(Mid(text, start), length);
}

std::string Mid(std::string_view text, long start) {
  if (start < 1) throw RuntimeError(5);
  return std::string(text.substr(byteOffset(text, static_cast<std::size_t>(start - 1))));
}

long InStr(std::string_view text, std::string_view part) {
  if (text.empty()) return 0;
  if (part.empty()) return 1;
  std::size_t place = 0;
  long position = 1;
  for (std::size_t hit = text.find(part); hit != std::string_view::npos; hit = text.find(part, hit + 1)) {
    for (; place < hit; ++position) place += stepLength(text, place);
    // A stray byte also matches inside a character: only a hit that begins and ends between characters counts.
    const std::size_t partEnd = hit + part.size();
    std::size_t end = place;
    while (end < partEnd) end += stepLength(text, end);
    if (place == hit && end == partEnd) return position;
  }
  return 0;
}

std::vector<std::string> characters(std::string_view text) {
  std::vector<std::string> all;
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t length = stepLength(text, place);
    all.emplace_back(text.substr(place, length));
    place += length;
  }
  return all;
}

std::u32string decodeUtf8(std::string_view text) {
  std::u32string points;
  points.reserve(text.size());
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t length = sequenceLength(text, place);
    const auto first = static_cast<unsigned char>(text[place]);
    if (length == 0) {
      points += strayByteBase + first;
      ++place;
      continue;
    }
    char32_t point = length == 1 ? first : first & (0x7F >> length);
    for (std::size_t offset = 1; offset < length; ++offset) {
      point = (point << 6) | (static_cast<unsigned char>(text[place + offset]) & 0x3F);
    }
    points += point;
    place += length;
  }
  return points;
}

std::string encodeUtf8(std::u32string_view points) {
  std::string text;
  text.reserve(points.size());
  for (const char32_t point : points) append(text, point);
  return text;
}

bool isValidUtf8(std::string_view text) {
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t length = sequenceLength(text, place);
    if (length == 0) return false;
    place += length;
  }
  return true;
}

std::string fromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char character : bytes) {
    const auto byte = static_cast<unsigned char>(character);
    append(text, byte >= 0x80 && byte < 0xA0 ? windows1252High[byte - 0x80U] : byte);
  }
  return text;
}

}  // namespace pantrigo
