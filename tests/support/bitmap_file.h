#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pantrigo {

struct BitmapSize {
  int width = 0;
  int height = 0;
};

struct BitmapColour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
};

/// The bytes of a Windows Bitmap of one colour, 24 bits a pixel.
[[nodiscard]] std::string makeBitmap(BitmapSize size, BitmapColour colour);

/// Size in pixels of the bitmap that the bytes hold; nothing when they hold none: signature, headers and, where the
/// rows are not compressed, their length are looked at.
[[nodiscard]] std::optional<BitmapSize> readBitmapSize(std::string_view bytes);

}  // namespace pantrigo
