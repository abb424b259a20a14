#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pantrigo {

// Text is UTF-8; every position, length and column below counts Unicode code points, positions from 1.
// A byte that is no part of valid UTF-8 counts as one character and is kept as it is.

/// Number of characters of the text.
[[nodiscard]] std::size_t Len(std::string_view text);

/// The first `length` characters, all when there are fewer. Error 5 for a negative length.
[[nodiscard]] std::string Left(std::string_view text, long length);

/// The last `length` characters, all when there are fewer. Error 5 for a negative length.
[[nodiscard]] std::string Right(std::string_view text, long length);

/// `length` characters from position `start`; the rest when there are fewer, empty when the start lies
/// beyond the end. Error 5 for a start below 1 or a negative length.
[[nodiscard]] std::string Mid(std::string_view text, long start, long length);
[[nodiscard]] std::string Mid(std::string_view text, long start);

/// Position of the first occurrence of `part`, case-sensitive; 0 when absent or when the text is empty, 1 for
/// an empty `part`.
[[nodiscard]] long InStr(std::string_view text, std::string_view part);

/// The text cut into its characters, each as its UTF-8 bytes.
[[nodiscard]] std::vector<std::string> characters(std::string_view text);

/// The code points of the text and back. An invalid byte b becomes code point 0xDC00 + b and comes back as b.
[[nodiscard]] std::u32string decodeUtf8(std::string_view text);
[[nodiscard]] std::string encodeUtf8(std::u32string_view points);

/// Whether the whole text is valid UTF-8.
[[nodiscard]] bool isValidUtf8(std::string_view text);

/// A text in Windows-1252, byte for byte, as UTF-8. The five unassigned bytes become their C1 controls.
[[nodiscard]] std::string fromWindows1252(std::string_view bytes);

}  // namespace pantrigo
