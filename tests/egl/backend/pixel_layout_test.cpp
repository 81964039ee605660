#include "egl/backend/pixel_layout.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr unsigned rgb = 0x1907, bgr = 0x80E0, bgra = 0x80E1;
constexpr unsigned us565 = 0x8363, us1555Rev = 0x8366, ui8888Rev = 0x8367, ubyte = 0x1401;

TEST(PixelLayout, KnownForms) {
  struct Row {
    PortPixmapLayout pixmap;
    unsigned format, type;
  };
  const Row rows[] = {
      {{1, 1, 16, 0xF800, 0x07E0, 0x001F}, rgb, us565},
      {{1, 1, 16, 0x7C00, 0x03E0, 0x001F}, bgra, us1555Rev},
      {{1, 1, 24, 0, 0, 0}, bgr, ubyte},
      {{1, 1, 24, 0xFF0000, 0xFF00, 0xFF}, bgr, ubyte},
      {{1, 1, 32, 0, 0, 0}, bgra, ui8888Rev},
      {{1, 1, 32, 0xFF0000, 0xFF00, 0xFF}, bgra, ui8888Rev},
  };
  for (const Row& row : rows) {
    PixelLayout layout;
    ASSERT_TRUE(findPixelLayout(row.pixmap, &layout)) << row.pixmap.bitsPerPixel;
    EXPECT_EQ(layout.format, row.format);
    EXPECT_EQ(layout.type, row.type);
  }
}

TEST(PixelLayout, OtherFormsAreUnknown) {
  const PortPixmapLayout rows[] = {
      {1, 1, 16, 0, 0, 0},
      {1, 1, 16, 0x001F, 0x07E0, 0xF800},
      {1, 1, 8, 0, 0, 0},
      {1, 1, 1, 0, 0, 0},
      {1, 1, 32, 0xFF, 0xFF00, 0xFF0000},
      {1, 1, 32, 0x3FF00000, 0xFFC00, 0x3FF},
      {1, 1, 24, 0xFF, 0xFF00, 0xFF0000},
  };
  for (const PortPixmapLayout& row : rows) {
    PixelLayout layout;
    EXPECT_FALSE(findPixelLayout(row, &layout)) << row.bitsPerPixel;
  }
}

TEST(PixelLayout, RowsEndOnFourBytes) {
  const int rows[][3] = {{1, 16, 4}, {2, 16, 4}, {3, 16, 8}, {1, 24, 4}, {5, 24, 16}, {3, 32, 12}};
  for (const auto& row : rows) {
    EXPECT_EQ(pixmapRowBytes({row[0], 1, row[1], 0, 0, 0}), static_cast<std::size_t>(row[2]));
  }
}

TEST(PixelLayout, WidensToWords) {
  std::uint32_t words[2] = {};
  const std::uint16_t rgb565[] = {0xF800, 0x07E0};
  unsigned char bytes[8] = {};
  std::memcpy(bytes, rgb565, 4);
  widenPixelRow({2, 1, 16, 0xF800, 0x07E0, 0x001F}, bytes, words);
  EXPECT_EQ(words[0], 0xFFFF0000u);
  EXPECT_EQ(words[1], 0xFF00FF00u);
  const std::uint16_t rgb555[] = {0x001F, 0x4000};
  std::memcpy(bytes, rgb555, 4);
  widenPixelRow({2, 1, 16, 0x7C00, 0x03E0, 0x001F}, bytes, words);
  EXPECT_EQ(words[0], 0xFF0000FFu);
  EXPECT_EQ(words[1], 0xFF840000u);
  const unsigned char bgrBytes[] = {1, 2, 3, 4, 5, 6, 0, 0};
  widenPixelRow({2, 1, 24, 0, 0, 0}, bgrBytes, words);
  EXPECT_EQ(words[0], 0xFF030201u);
  EXPECT_EQ(words[1], 0xFF060504u);
  const std::uint32_t word = 0x12345678;
  std::memcpy(bytes, &word, 4);
  widenPixelRow({1, 1, 32, 0, 0, 0}, bytes, words);
  EXPECT_EQ(words[0], word);
}

}  // namespace
