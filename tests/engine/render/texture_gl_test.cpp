#include <cmath>
#include <set>

#include "tests/support/pixel_fixture.h"

using namespace varnel_m3g;

namespace {

using Bytes = std::vector<unsigned char>;

class TextureTest : public PixelTest {
 protected:
  /// A texture of one texel.
  static boost::shared_ptr<Texture2D> plainTexture(int format, const Bytes& texel, int blending) {
    auto texture = Texture2D::create(imageOf(format, 1, 1, texel));
    texture->setBlending(blending);
    texture->setBlendColor(0xFFFFFF);
    return texture;
  }

  static boost::shared_ptr<Appearance> textured(const boost::shared_ptr<Texture2D>& texture) {
    auto appearance = plainAppearance();
    appearance->setTexture(0, texture);
    return appearance;
  }

  /// The unit quad with coordinates from (0, 0) at its upper left to (1, 1) in this unit.
  static void addCoords(const boost::shared_ptr<Mesh>& mesh, int unit = 0) {
    mesh->getVertexBuffer()->setTexCoords(unit, shortArray(2, {0, 1, 1, 1, 0, 0, 1, 0}), 1.0f,
                                          nullptr);
  }

  Pixel drawn(const boost::shared_ptr<Appearance>& appearance, unsigned argb) {
    auto mesh = coloredQuad(appearance, argb);
    addCoords(mesh);
    beginFrame();
    draw(mesh);
    return gl.centre();
  }

  static Color scaled(const Bytes& texel) {
    Color color{};
    for (std::size_t i = 0; i < texel.size(); ++i) {
      color[i] = texel[i] / 255.0;
    }
    return color;
  }
};

constexpr unsigned fragment = 0xC06496C8u;

}  // namespace

TEST_F(TextureTest, TheFiveBlendingsOfAnOpaqueImage) {
  const Bytes texel = {50, 100, 240};
  const Color f = colorOf(fragment);
  const Color t = scaled(texel);
  const std::pair<int, std::array<double, 3>> table[] = {
      {Texture2D::FUNC_ADD, {f[0] + t[0], f[1] + t[1], f[2] + t[2]}},
      // The blend colour is black, whatever the texture says.
      {Texture2D::FUNC_BLEND, {f[0] * (1 - t[0]), f[1] * (1 - t[1]), f[2] * (1 - t[2])}},
      {Texture2D::FUNC_DECAL, {t[0], t[1], t[2]}},
      {Texture2D::FUNC_MODULATE, {f[0] * t[0], f[1] * t[1], f[2] * t[2]}},
      {Texture2D::FUNC_REPLACE, {t[0], t[1], t[2]}},
  };
  for (const auto& [blending, rgb] : table) {
    expectPixel(drawn(textured(plainTexture(Image2D::RGB, texel, blending)), fragment),
                {rgb[0], rgb[1], rgb[2], f[3]}, colorTolerance, std::to_string(blending).c_str());
  }
}

TEST_F(TextureTest, TheFiveBlendingsOfAnImageWithAlpha) {
  const Bytes texel = {50, 100, 240, 96};
  const Color f = colorOf(fragment);
  const Color t = scaled(texel);
  const auto each = [&](auto formula) {
    return Color{formula(f[0], t[0]), formula(f[1], t[1]), formula(f[2], t[2]), f[3] * t[3]};
  };
  Color decal = each([&](double a, double b) { return a * (1 - t[3]) + b * t[3]; });
  decal[3] = f[3];
  Color replaced = t;
  const std::pair<int, Color> table[] = {
      {Texture2D::FUNC_ADD, each([](double a, double b) { return a + b; })},
      {Texture2D::FUNC_BLEND, each([](double a, double b) { return a * (1 - b); })},
      {Texture2D::FUNC_DECAL, decal},
      {Texture2D::FUNC_MODULATE, each([](double a, double b) { return a * b; })},
      {Texture2D::FUNC_REPLACE, replaced},
  };
  for (const auto& [blending, expected] : table) {
    expectPixel(drawn(textured(plainTexture(Image2D::RGBA, texel, blending)), fragment), expected,
                colorTolerance, std::to_string(blending).c_str());
  }
}

TEST_F(TextureTest, AnImageOfEachFormatReplacesWhatItHolds) {
  const Color f = colorOf(fragment);
  const double l = 80 / 255.0;
  const double a = 160 / 255.0;
  const std::tuple<int, Bytes, Color> table[] = {
      {Image2D::ALPHA, {160}, {f[0], f[1], f[2], a}},
      {Image2D::LUMINANCE, {80}, {l, l, l, f[3]}},
      {Image2D::LUMINANCE_ALPHA, {80, 160}, {l, l, l, a}},
      {Image2D::RGB, {10, 20, 30}, {10 / 255.0, 20 / 255.0, 30 / 255.0, f[3]}},
      {Image2D::RGBA, {10, 20, 30, 160}, {10 / 255.0, 20 / 255.0, 30 / 255.0, a}},
  };
  for (const auto& [format, texel, expected] : table) {
    expectPixel(drawn(textured(plainTexture(format, texel, Texture2D::FUNC_REPLACE)), fragment),
                expected, colorTolerance, std::to_string(format).c_str());
  }
}

TEST_F(TextureTest, TwoUnitsAreAppliedOneAfterTheOther) {
  const Bytes first = {100, 200, 50};
  const Bytes second = {30, 60, 90};
  auto appearance = plainAppearance();
  ASSERT_GE(appearance->getTextureUnitCount(), 2);
  appearance->setTexture(0, plainTexture(Image2D::RGB, first, Texture2D::FUNC_MODULATE));
  appearance->setTexture(1, plainTexture(Image2D::RGB, second, Texture2D::FUNC_ADD));
  auto mesh = coloredQuad(appearance, fragment);
  addCoords(mesh, 0);
  addCoords(mesh, 1);
  beginFrame();
  draw(mesh);
  const Color f = colorOf(fragment);
  Color expected = f;
  for (std::size_t i = 0; i < 3; ++i) {
    expected[i] = f[i] * first[i] / 255.0 + second[i] / 255.0;
  }
  expectPixel(gl.centre(), expected, colorTolerance);
}

TEST_F(TextureTest, EachUnitReadsItsOwnCoordinates) {
  // Unit 0 changes along x, unit 1 along y.
  auto columns = Texture2D::create(imageOf(Image2D::RGB, 2, 1, {255, 0, 0, 0, 0, 0}));
  auto rows = Texture2D::create(imageOf(Image2D::RGB, 1, 2, {0, 0, 255, 0, 0, 0}));
  rows->setBlending(Texture2D::FUNC_ADD);
  auto appearance = plainAppearance();
  appearance->setTexture(0, columns);
  appearance->setTexture(1, rows);
  auto mesh = coloredQuad(appearance, 0xFFFFFFFFu);
  addCoords(mesh, 0);
  addCoords(mesh, 1);
  beginFrame();
  draw(mesh);
  expectPixel(gl.at(8, 8), colorOf(0xFFFF00FFu), 0, "upper left");
  expectPixel(gl.at(24, 8), colorOf(0xFF0000FFu), 0, "upper right");
  expectPixel(gl.at(8, 24), colorOf(0xFFFF0000u), 0, "lower left");
  expectPixel(gl.at(24, 24), colorOf(0xFF000000u), 0, "lower right");
}

TEST_F(TextureTest, TheFirstRowOfAnImageIsAtCoordinateZero) {
  auto texture = Texture2D::create(imageOf(Image2D::RGBA, 2, 2,
                                           {255, 0, 0, 255, 0, 255, 0, 255,  //
                                            0, 0, 255, 255, 255, 255, 255, 255}));
  drawn(textured(texture), 0xFFFFFFFFu);
  expectPixel(gl.at(8, 8), colorOf(0xFFFF0000u), 0);
  expectPixel(gl.at(24, 8), colorOf(0xFF00FF00u), 0);
  expectPixel(gl.at(8, 24), colorOf(0xFF0000FFu), 0);
  expectPixel(gl.at(24, 24), colorOf(0xFFFFFFFFu), 0);
}

TEST_F(TextureTest, ARowOfOddLengthIsReadFromItsAlignedPlace) {
  // Rows of three bytes that are read four bytes apart: the second row starts one byte late.
  const Bytes pixels = {10, 20, 30, 40, 50, 60, 70, 80, 90};
  auto texture = Texture2D::create(imageOf(Image2D::LUMINANCE, 3, 3, pixels));
  texture->setBlending(Texture2D::FUNC_REPLACE);
  drawn(textured(texture), 0xFFFFFFFFu);
  const auto grey = [](int level) {
    return Color{level / 255.0, level / 255.0, level / 255.0, 1.0};
  };
  expectPixel(gl.at(5, 5), grey(pixels[0]), 0);
  expectPixel(gl.at(5, 16), grey(pixels[4]), 0);
  expectPixel(gl.at(16, 16), grey(pixels[5]), 0);
}

TEST_F(TextureTest, WrappingRepeatsOrClamps) {
  auto image = imageOf(Image2D::RGB, 2, 1, {255, 0, 0, 0, 0, 255});
  for (const bool repeats : {true, false}) {
    auto texture = Texture2D::create(image);
    texture->setWrapping(repeats ? Texture2D::WRAP_REPEAT : Texture2D::WRAP_CLAMP,
                         Texture2D::WRAP_REPEAT);
    auto mesh = coloredQuad(textured(texture), 0xFFFFFFFFu);
    // Coordinates from 0 to 2: the image twice, or once and its last column.
    mesh->getVertexBuffer()->setTexCoords(0, shortArray(2, {0, 1, 1, 1, 0, 0, 1, 0}), 2.0f,
                                          nullptr);
    beginFrame();
    draw(mesh);
    expectPixel(gl.at(4, 16), colorOf(0xFFFF0000u), 0);
    expectPixel(gl.at(12, 16), colorOf(0xFF0000FFu), 0);
    expectPixel(gl.at(20, 16), colorOf(repeats ? 0xFFFF0000u : 0xFF0000FFu), 0);
    expectPixel(gl.at(28, 16), colorOf(0xFF0000FFu), 0);
  }
}

TEST_F(TextureTest, TheTransformOfATextureMovesItsCoordinates) {
  auto texture = Texture2D::create(imageOf(Image2D::RGB, 2, 1, {255, 0, 0, 0, 0, 255}));
  texture->setTranslation(0.5f, 0.0f, 0.0f);
  drawn(textured(texture), 0xFFFFFFFFu);
  expectPixel(gl.at(8, 16), colorOf(0xFF0000FFu), 0);
  expectPixel(gl.at(24, 16), colorOf(0xFFFF0000u), 0);
}

TEST_F(TextureTest, MagnifyingFiltersAreNearestOrLinear) {
  auto texture = Texture2D::create(imageOf(Image2D::LUMINANCE, 2, 1, {0, 200}));
  texture->setWrapping(Texture2D::WRAP_CLAMP, Texture2D::WRAP_CLAMP);
  drawn(textured(texture), 0xFFFFFFFFu);
  EXPECT_EQ(gl.at(15, 16)[0], 0);
  EXPECT_EQ(gl.at(16, 16)[0], 200);
  texture->setFiltering(Texture2D::FILTER_BASE_LEVEL, Texture2D::FILTER_LINEAR);
  drawn(textured(texture), 0xFFFFFFFFu);
  for (int x = 0; x < 32; ++x) {
    const double position = (x + 0.5) / 32.0 * 2.0 - 0.5;  // in texels, from the first one's centre
    const double share = std::clamp(position, 0.0, 1.0);
    EXPECT_NEAR(gl.at(x, 16)[0], 200.0 * share, filterTolerance) << x;
  }
}

TEST_F(TextureTest, MinifyingFiltersChooseTheLevelThatFits) {
  // Columns in pairs: level 1 keeps black and white columns, from level 2 on all is grey.
  Bytes pixels;
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) {
      pixels.push_back((x / 2) % 2 ? 255 : 0);
    }
  }
  auto image = imageOf(Image2D::LUMINANCE, 64, 64, pixels);
  const auto levels = [&](int levelFilter, int imageFilter, float size) {
    auto texture = Texture2D::create(image);
    texture->setFiltering(levelFilter, imageFilter);
    auto mesh = coloredQuad(textured(texture), 0xFFFFFFFFu);
    addCoords(mesh);
    mesh->setScale(size, size, 1.0f);
    beginFrame();
    draw(mesh);
    std::set<int> seen;
    const int half = static_cast<int>(16 * size);
    for (int x = 16 - half; x < 16 + half; ++x) {
      seen.insert(gl.at(x, 16)[0]);
    }
    return seen;
  };
  const std::set<int> blackAndWhite = {0, 255};
  // 64 texels on 32 pixels: level 1. On 16 pixels: level 2.
  for (const int filter : {Texture2D::FILTER_NEAREST, Texture2D::FILTER_LINEAR}) {
    EXPECT_EQ(levels(filter, Texture2D::FILTER_NEAREST, 1.0f), blackAndWhite);
    for (const int value : levels(filter, Texture2D::FILTER_NEAREST, 0.5f)) {
      EXPECT_NEAR(value, 127.5, filterTolerance);
    }
    for (const int value : levels(filter, Texture2D::FILTER_LINEAR, 0.5f)) {
      EXPECT_NEAR(value, 127.5, filterTolerance);
    }
  }
  for (const int value : levels(Texture2D::FILTER_BASE_LEVEL, Texture2D::FILTER_NEAREST, 0.5f)) {
    EXPECT_TRUE(value == 0 || value == 255) << value;
  }
}

TEST_F(TextureTest, BetweenTwoLevelsLinearLevelsAreMixed) {
  Bytes pixels;
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) {
      pixels.push_back((x / 2) % 2 ? 255 : 0);
    }
  }
  auto texture = Texture2D::create(imageOf(Image2D::LUMINANCE, 64, 64, pixels));
  texture->setFiltering(Texture2D::FILTER_LINEAR, Texture2D::FILTER_NEAREST);
  auto mesh = coloredQuad(textured(texture), 0xFFFFFFFFu);
  addCoords(mesh);
  mesh->setScale(0.75f, 0.75f, 1.0f);
  beginFrame();
  draw(mesh);
  // 64 texels on 24 pixels: the level is log2(64 / 24), between black or white and grey.
  const double share = std::log2(64.0 / 24.0) - 1.0;
  for (int x = 6; x < 26; ++x) {
    const int value = gl.at(x, 16)[0];
    const double base = value < 128 ? 0.0 : 255.0;
    EXPECT_NEAR(value, base * (1.0 - share) + 127.5 * share, filterTolerance) << x;
  }
}

TEST_F(TextureTest, AChangedImageIsSeenInTheNextFrame) {
  auto image = Image2D::create(Image2D::RGB, 1, 1);
  auto appearance = textured(Texture2D::create(image));
  expectPixel(drawn(appearance, 0xFFFFFFFFu), colorOf(0xFFFFFFFFu), 0);
  const Bytes texel = {10, 20, 30};
  image->set(0, 0, 1, 1, texel.data());
  expectPixel(drawn(appearance, 0xFFFFFFFFu), colorOf(0xFF0A141Eu), 0);
}

TEST_F(TextureTest, WithoutCoordinatesTheCurrentOneApplies) {
  auto texture = Texture2D::create(imageOf(Image2D::RGB, 2, 1, {255, 0, 0, 0, 0, 255}));
  texture->setBlending(Texture2D::FUNC_REPLACE);
  beginFrame();
  draw(coloredQuad(textured(texture), 0xFFFFFFFFu));
  // It is (0, 0) from the start: one texel everywhere.
  for (const Pixel& pixel : gl.read()) {
    expectPixel(pixel, colorOf(0xFFFF0000u), 0);
  }
}

TEST_F(TextureTest, TextureStacksThatOverflowHarmNothing) {
  auto appearance = plainAppearance();
  appearance->setTexture(0, plainTexture(Image2D::RGB, {0, 255, 0}, Texture2D::FUNC_REPLACE));
  appearance->setTexture(1, plainTexture(Image2D::RGB, {0, 0, 255}, Texture2D::FUNC_ADD));
  auto mesh = coloredQuad(appearance, 0xFFFFFFFFu);
  addCoords(mesh, 0);
  addCoords(mesh, 1);
  for (int i = 0; i < 50; ++i) {
    beginFrame();
    draw(mesh);
    expectPixel(gl.centre(), colorOf(0xFF00FFFFu), 0);
  }
}
