#include "egl/backend/pixel_layout.h"

#include <bit>
#include <cstring>
#include <new>

namespace {

// Published values of desktop OpenGL.
constexpr unsigned glRgb = 0x1907;
constexpr unsigned glBgr = 0x80E0;
constexpr unsigned glBgra = 0x80E1;
constexpr unsigned glUnsignedByte = 0x1401;
constexpr unsigned glUnsignedShort565 = 0x8363;
constexpr unsigned glUnsignedShort1555Rev = 0x8366;
constexpr unsigned glUnsignedInt8888Rev = 0x8367;

struct LayoutRow {
  int bitsPerPixel;
  std::uint32_t redMask, greenMask, blueMask;
  PixelLayout layout;
};

constexpr LayoutRow layoutRows[] = {
    {16, 0xF800, 0x07E0, 0x001F, {glRgb, glUnsignedShort565}},
    {16, 0x7C00, 0x03E0, 0x001F, {glBgra, glUnsignedShort1555Rev}},
    {24, 0, 0, 0, {glBgr, glUnsignedByte}},
    {24, 0xFF0000, 0xFF00, 0xFF, {glBgr, glUnsignedByte}},
    {32, 0, 0, 0, {glBgra, glUnsignedInt8888Rev}},
    {32, 0xFF0000, 0xFF00, 0xFF, {glBgra, glUnsignedInt8888Rev}},
};

std::uint32_t widen(std::uint32_t word, std::uint32_t mask) {
  const std::uint32_t highest = mask >> std::countr_zero(mask);
  const std::uint32_t value = (word & mask) >> std::countr_zero(mask);
  return (value * 255 + highest / 2) / highest;
}

}  // namespace

bool findPixelLayout(const PortPixmapLayout& pixmap, PixelLayout* layout) {
  for (const LayoutRow& row : layoutRows) {
    if (row.bitsPerPixel == pixmap.bitsPerPixel && row.redMask == pixmap.redMask &&
        row.greenMask == pixmap.greenMask && row.blueMask == pixmap.blueMask) {
      *layout = row.layout;
      return true;
    }
  }
  return false;
}

std::size_t pixmapRowBytes(const PortPixmapLayout& pixmap) {
  const auto bits =
      static_cast<std::size_t>(pixmap.width) * static_cast<std::size_t>(pixmap.bitsPerPixel);
  return (bits + 31) / 32 * 4;
}

PixmapRows allocatePixmapRows(const PortPixmapLayout& pixmap) {
  const std::size_t size = pixmapRowBytes(pixmap) * static_cast<std::size_t>(pixmap.height);
  return PixmapRows(new (std::nothrow) unsigned char[size]());
}

void widenPixelRow(const PortPixmapLayout& pixmap, const unsigned char* row, std::uint32_t* words) {
  for (int x = 0; x < pixmap.width; ++x) {
    if (pixmap.bitsPerPixel == 32) {
      std::memcpy(&words[x], row + 4 * x, 4);
    } else if (pixmap.bitsPerPixel == 24) {
      const unsigned char* bytes = row + 3 * x;
      words[x] = 0xFF000000u | static_cast<std::uint32_t>(bytes[2]) << 16 |
                 static_cast<std::uint32_t>(bytes[1]) << 8 | bytes[0];
    } else {
      std::uint16_t word = 0;
      std::memcpy(&word, row + 2 * x, 2);
      words[x] = 0xFF000000u | widen(word, pixmap.redMask) << 16 |
                 widen(word, pixmap.greenMask) << 8 | widen(word, pixmap.blueMask);
    }
  }
}
