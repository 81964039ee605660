#include "engine/math/color.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace varnel_m3g {
namespace {

struct PackCase {
  float r, g, b, a;
  int expected;
};

class PackColor : public testing::TestWithParam<PackCase> {};

TEST_P(PackColor, IsATruthValue) {
  const PackCase& c = GetParam();
  EXPECT_EQ(packColor(c.r, c.g, c.b, c.a), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Channels, PackColor,
    testing::Values(PackCase{0, 0, 0, 0, 0}, PackCase{0, 0, 0, 1, 1}, PackCase{1, 1, 1, 1, 1},
                    // 1 / 510 gives a half, which becomes 1 with the half that is added.
                    PackCase{0, 0, 1.0F / 510, 0, 1}, PackCase{0, 0, 0.99F / 510, 0, 0},
                    PackCase{0, 1.0F / 510, 0, 0, 1}, PackCase{1.0F / 510, 0, 0, 0, 1},
                    PackCase{-1, -2, -3, -4, 0},
                    // Alpha 256 leaves the 32 bits when it is shifted.
                    PackCase{0, 0, 0, 256, 1}, PackCase{0, 0, 0, 256.0F / 255, 0},
                    PackCase{300, 0, 0, 0, 1}));

TEST(PackColor, OfNoNumberIsBlack) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(packColor(nan, nan, nan, nan), 0);
}

TEST(ExpandPalette, RGBHasFullAlpha) {
  unsigned char palette[768] = {0x12, 0x34, 0x56};
  palette[765] = 0xFF;
  palette[767] = 0x01;
  std::uint32_t out[256];
  EXPECT_EQ(expandPaletteRGB(palette, out), out);
  EXPECT_EQ(out[0], 0xFF123456U);
  EXPECT_EQ(out[1], 0xFF000000U);
  EXPECT_EQ(out[255], 0xFFFF0001U);
}

TEST(ExpandPalette, RGBATakesAlphaFromTheFourthByte) {
  unsigned char palette[1024] = {0x12, 0x34, 0x56, 0x78};
  palette[1023] = 0xFE;
  std::uint32_t out[256];
  EXPECT_EQ(expandPaletteRGBA(palette, out), out);
  EXPECT_EQ(out[0], 0x78123456U);
  EXPECT_EQ(out[255], 0xFE000000U);
}

TEST(ExpandPalette, MakesAnArrayWhenItIsGivenNone) {
  const unsigned char palette[1024] = {1, 2, 3, 4};
  const std::unique_ptr<std::uint32_t[]> rgb(expandPaletteRGB(palette, nullptr));
  const std::unique_ptr<std::uint32_t[]> rgba(expandPaletteRGBA(palette, nullptr));
  EXPECT_EQ(rgb[0], 0xFF010203U);
  EXPECT_EQ(rgba[0], 0x04010203U);
}

}  // namespace
}  // namespace varnel_m3g
