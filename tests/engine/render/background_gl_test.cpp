#include <cmath>

#include "tests/support/pixel_fixture.h"

using namespace varnel_m3g;

namespace {

constexpr int side = 33;      // so that the quad spans 32 units
constexpr int imageSide = 4;  // texels

/// Compares every pixel with what crop and modes demand of a linearly filtered, repeating image.
class BackgroundTest : public PixelTest {
 protected:
  BackgroundTest() : PixelTest(side, side) {
    std::vector<unsigned char> pixels;
    for (int i = 0; i < imageSide * imageSide; ++i) {
      const int level = i * 37 % 256;
      pixels.insert(pixels.end(),
                    {static_cast<unsigned char>(level), static_cast<unsigned char>(255 - level),
                     static_cast<unsigned char>(level / 2)});
    }
    texels = pixels;
    background->setImage(imageOf(Image2D::RGB, imageSide, imageSide, pixels));
  }

  /// A texel of the repeating image.
  double texel(int x, int y, int channel) const {
    const auto wrapped = [](int v) { return ((v % imageSide) + imageSide) % imageSide; };
    const int index = (wrapped(y) * imageSide + wrapped(x)) * 3 + channel;
    return texels[static_cast<std::size_t>(index)];
  }

  /// The image at a place in texels, filtered linearly.
  double sample(double u, double v, int channel) const {
    const double x = u - 0.5;
    const double y = v - 0.5;
    const int x0 = static_cast<int>(std::floor(x));
    const int y0 = static_cast<int>(std::floor(y));
    const double fx = x - x0;
    const double fy = y - y0;
    return (texel(x0, y0, channel) * (1 - fx) + texel(x0 + 1, y0, channel) * fx) * (1 - fy) +
           (texel(x0, y0 + 1, channel) * (1 - fx) + texel(x0 + 1, y0 + 1, channel) * fx) * fy;
  }

  /// Fails unless the pixel in column x and row y shows the image at (u(x), v(y)) texels, where
  /// the arguments run from 0 to 1 over the viewport; NaN stands for no image there.
  template <class U, class V>
  void expectImage(U u, V v) {
    beginFrame(background);
    const std::vector<Pixel> pixels = gl.read();
    for (int row = 0; row < side; ++row) {
      for (int column = 0; column < side; ++column) {
        const double s = u((column + 0.5) / side);
        const double t = v((row + 0.5) / side);
        const Pixel& pixel = pixels[static_cast<std::size_t>(row * side + column)];
        for (int channel = 0; channel < 3; ++channel) {
          const double wanted = std::isnan(s) || std::isnan(t) ? 0.0 : sample(s, t, channel);
          ASSERT_NEAR(pixel[static_cast<std::size_t>(channel)], wanted, filterTolerance)
              << column << ' ' << row << ' ' << channel;
        }
      }
    }
  }

  std::vector<unsigned char> texels;
  boost::shared_ptr<Background> background = Background::create();
};

/// The stretched form: the crop fills the axis, and outside the image there is none.
auto stretched(int start, int length) {
  return [=](double place) {
    const double at = start + place * length;
    return at < 0 || at > imageSide ? std::nan("") : at;
  };
}

/// The repeating form along x.
auto repeated(int start, int length) {
  return [=](double place) { return start + place * length; };
}

/// The repeating form along y: it ends at the crop's y and starts its height above.
auto repeatedUp(int start, int length) {
  return [=](double place) { return start - length + place * length; };
}

}  // namespace

TEST_F(BackgroundTest, AColourAlone) {
  auto plain = Background::create();
  plain->setColor(static_cast<int>(0x80FF8040u));
  beginFrame(plain);
  for (const Pixel& pixel : gl.read()) {
    expectPixel(pixel, colorOf(0x80FF8040u), 0);
  }
}

TEST_F(BackgroundTest, BorderInBothStretchesTheCrop) {
  expectImage(stretched(0, 4), stretched(0, 4));
  background->setCrop(1, 2, 2, 2);
  expectImage(stretched(1, 2), stretched(2, 2));
}

TEST_F(BackgroundTest, BorderShowsTheColourBesideTheImage) {
  background->setCrop(-2, -2, 8, 8);
  expectImage(stretched(-2, 8), stretched(-2, 8));
}

TEST_F(BackgroundTest, RepeatInXAndBorderInY) {
  background->setImageMode(Background::REPEAT, Background::BORDER);
  background->setCrop(1, 0, 8, 4);
  expectImage(repeated(1, 8), stretched(0, 4));
}

TEST_F(BackgroundTest, BorderInXAndRepeatInY) {
  background->setImageMode(Background::BORDER, Background::REPEAT);
  background->setCrop(0, 1, 4, 8);
  expectImage(stretched(0, 4), repeatedUp(1, 8));
}

TEST_F(BackgroundTest, RepeatInBoth) {
  background->setImageMode(Background::REPEAT, Background::REPEAT);
  background->setCrop(2, 3, 8, 6);
  expectImage(repeated(2, 8), repeatedUp(3, 6));
}

TEST_F(BackgroundTest, TheImageFillsTheViewportOnly) {
  background->setColor(static_cast<int>(0xFF0000FFu));
  background->setImage(imageOf(Image2D::RGB, 1, 1, {255, 0, 0}));
  graphics.bindTarget(&gl.surface());
  graphics.setViewport(10, 4, 12, 8);
  graphics.clear(background);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const bool inside = x >= 10 && x < 22 && y >= 4 && y < 12;
      expectPixel(gl.at(x, y), colorOf(inside ? 0xFFFF0000u : 0xFF0000FFu), 0);
    }
  }
}

TEST_F(BackgroundTest, AMeshIsDrawnInFrontOfTheImage) {
  beginFrame(background);
  draw(coloredQuad(plainAppearance(), 0xFF00FF00u));
  expectPixel(gl.centre(), colorOf(0xFF00FF00u), 0);
}

TEST_F(BackgroundTest, AClearWithBothOffKeepsThePicture) {
  beginFrame(background);
  const std::vector<Pixel> before = gl.read();
  auto off = Background::create();
  off->setColorClearEnable(false);
  off->setDepthClearEnable(false);
  graphics.clear(off);
  EXPECT_EQ(gl.read(), before);
}

TEST_F(BackgroundTest, DepthIsClearedToTheFarEnd) {
  beginFrame();
  draw(coloredQuad(plainAppearance(), 0xFF00FF00u));
  auto colorOnly = Background::create();
  colorOnly->setDepthClearEnable(false);
  auto further = coloredQuad(plainAppearance(), 0xFFFF0000u);
  further->setTranslation(0.0f, 0.0f, -1.0f);
  graphics.clear(colorOnly);
  draw(further);
  expectPixel(gl.centre(), colorOf(0u), 0, "the old depth still hides it");
  graphics.clear(nullptr);
  draw(further);
  expectPixel(gl.centre(), colorOf(0xFFFF0000u), 0);
}
