#include "support/bitmap_file.h"

#include <cstdlib>
#include <limits>

namespace pantrigo {

namespace {

// Layout of the file: 14 bytes that name it and tell where the pixels begin, 40 bytes that describe the picture, the
// rows from the bottom up, each filled to a multiple of four bytes. Numbers stand with their lowest byte first.
constexpr std::size_t fileHeaderLength = 14;
constexpr std::uint32_t infoHeaderLength = 40;
constexpr std::uint32_t oldInfoHeaderLength = 12;
constexpr std::size_t pixelStartPlace = 10;
constexpr std::size_t bytesOfPixel = 3;
constexpr std::uint32_t notCompressed = 0;

void putNumber(std::string& bytes, std::uint32_t number, int length) {
  for (int place = 0; place < length; ++place) bytes += static_cast<char>(number >> (8 * place) & 0xFF);
}

std::uint32_t numberAt(std::string_view bytes, std::size_t place, int length) {
  std::uint32_t number = 0;
  for (int at = length - 1; at >= 0; --at) {
    number = number << 8 | static_cast<std::uint8_t>(bytes[place + static_cast<std::size_t>(at)]);
  }
  return number;
}

/// Length of a row in bytes.
std::uint64_t rowLength(std::uint64_t width, std::uint64_t bitsOfPixel) {
  return (width * bitsOfPixel + 31) / 32 * 4;
}

bool holdsRows(std::string_view bytes, BitmapSize size) {
  const std::uint32_t compression = numberAt(bytes, 30, 4);
  if (compression != notCompressed) return true;
  const std::uint64_t length = rowLength(static_cast<std::uint64_t>(size.width), numberAt(bytes, 28, 2));
  return numberAt(bytes, pixelStartPlace, 4) + length * static_cast<std::uint64_t>(size.height) <= bytes.size();
}

}  // namespace

std::string makeBitmap(BitmapSize size, BitmapColour colour) {
  const auto width = static_cast<std::uint32_t>(size.width);
  const auto height = static_cast<std::uint32_t>(size.height);
  const auto filledRow = static_cast<std::uint32_t>(rowLength(width, bytesOfPixel * 8));
  const auto pixelStart = static_cast<std::uint32_t>(fileHeaderLength) + infoHeaderLength;
  std::string bytes = "BM";
  putNumber(bytes, pixelStart + filledRow * height, 4);
  putNumber(bytes, 0, 4);
  putNumber(bytes, pixelStart, 4);
  putNumber(bytes, infoHeaderLength, 4);
  putNumber(bytes, width, 4);
  putNumber(bytes, height, 4);
  putNumber(bytes, 1, 2);
  putNumber(bytes, bytesOfPixel * 8, 2);
  putNumber(bytes, notCompressed, 4);
  putNumber(bytes, filledRow * height, 4);
  bytes.append(16, '\0');
  std::string row;
  for (std::uint32_t pixel = 0; pixel < width; ++pixel) {
    for (const std::uint8_t part : {colour.blue, colour.green, colour.red}) row += static_cast<char>(part);
  }
  row.resize(filledRow, '\0');
  for (std::uint32_t line = 0; line < height; ++line) bytes += row;
  return bytes;
}

std::optional<BitmapSize> readBitmapSize(std::string_view bytes) {
  if (!bytes.starts_with("BM") || bytes.size() < fileHeaderLength + oldInfoHeaderLength) return std::nullopt;
  const std::uint32_t headerLength = numberAt(bytes, fileHeaderLength, 4);
  if (headerLength == oldInfoHeaderLength) {
    return BitmapSize{static_cast<int>(numberAt(bytes, 18, 2)), static_cast<int>(numberAt(bytes, 20, 2))};
  }
  if (headerLength < infoHeaderLength || bytes.size() < fileHeaderLength + infoHeaderLength) return std::nullopt;
  const auto width = static_cast<std::int32_t>(numberAt(bytes, 18, 4));
  const auto height = static_cast<std::int32_t>(numberAt(bytes, 22, 4));
  // A negative height means rows from the top down.
  if (width <= 0 || height == 0 || height == std::numeric_limits<std::int32_t>::min()) return std::nullopt;
  const BitmapSize size{width, std::abs(height)};
  if (!holdsRows(bytes, size)) return std::nullopt;
  return size;
}

}  // namespace pantrigo
