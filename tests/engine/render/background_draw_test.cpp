#include "engine/render/render_state.h"
#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

/// The corners and coordinates of the quad that draws a background's image.
class BackgroundDrawTest : public RenderTest {
 protected:
  BackgroundDrawTest() {
    driver.onCall("glVertexPointer", [this](const RecordingDriver::Call& call) {
      const short* values = static_cast<const short*>(call.addresses.at(0));
      vertices.assign(values, values + 12);
    });
    driver.onCall("glTexCoordPointer", [this](const RecordingDriver::Call& call) {
      const float* values = static_cast<const float*>(call.addresses.at(0));
      coords.assign(values, values + 8);
    });
  }

  Lines clear(const boost::shared_ptr<Background>& background) {
    driver.clear();
    graphics.clear(background);
    return take();
  }

  boost::shared_ptr<Background> backgroundWithImage(int width = 8, int height = 4) {
    auto background = Background::create();
    background->setImage(Image2D::create(Image2D::RGB, width, height));
    return background;
  }

  static std::vector<short> quad(int left, int right, int top, int bottom) {
    const short l = static_cast<short>(left), r = static_cast<short>(right);
    const short t = static_cast<short>(top), b = static_cast<short>(bottom);
    return {l, t, -1, l, b, -1, r, t, -1, r, b, -1};
  }

  std::vector<short> vertices;
  std::vector<float> coords;
};

}  // namespace

TEST_F(BackgroundDrawTest, NoTarget) {
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.clear(nullptr); }),
            "no rendering target currently defined");
}

TEST_F(BackgroundDrawTest, ClearWithoutABackgroundClearsToTransparentBlackAndDrawsNoImage) {
  bind(40, 30);
  EXPECT_THAT(
      clear(nullptr),
      ElementsAre(
          "glMatrixMode(GL_PROJECTION)", "glLoadIdentity()", "glViewport(0, 0, 40, 30)",
          "glOrtho(0, 39, 0, 29, 0, 1)", "glDisable(GL_LIGHTING)", "glColorMask(1, 1, 1, 1)",
          "glClearColor(0, 0, 0, 0)", "glDepthMask(1)", "glClearDepth(1)",
          ::testing::AnyOf("glClear(16640)", "glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT)",
                           "glClear(GL_DEPTH_BUFFER_BIT | GL_COLOR_BUFFER_BIT)"),
          "glMatrixMode(GL_MODELVIEW)", "glLoadIdentity()"));
}

TEST_F(BackgroundDrawTest, TheViewportReachesTheDriverWithTheClear) {
  bind(100, 100);
  graphics.setViewport(5, 10, 50, 20);
  const Lines calls = clear(nullptr);
  EXPECT_EQ(calls[2], "glViewport(5, 70, 50, 20)");
  EXPECT_EQ(calls[3], "glOrtho(5, 54, 70, 89, 0, 1)");
}

TEST_F(BackgroundDrawTest, CompositingDefaultsAreSentUnlessKnown) {
  bind();
  auto appearance = plainAppearance();
  appearance->setCompositingMode(CompositingMode::create());
  applyAppearance(appearance);
  const Lines calls = clear(nullptr);
  EXPECT_EQ(calls[4], "glDisable(GL_POLYGON_OFFSET_FILL)");
  EXPECT_EQ(calls[10], "glDisable(GL_BLEND)");
  EXPECT_EQ(calls[11], "glDisable(GL_LIGHTING)");
  EXPECT_EQ(renderState().currentCompositingMode, appearance->getCompositingMode());
}

TEST_F(BackgroundDrawTest, LightingGoesOffWithoutTheCachesNotice) {
  bind();
  auto appearance = plainAppearance();
  appearance->setMaterial(Material::create());
  applyAppearance(appearance);
  EXPECT_THAT(clear(nullptr), Contains("glDisable(GL_LIGHTING)"));
  EXPECT_FALSE(renderState().materialIsDefault);
  EXPECT_EQ(renderState().currentMaterial, appearance->getMaterial());
  driver.clear();
  applyAppearance(appearance);
  EXPECT_THAT(take(), Not(Contains("glEnable(GL_LIGHTING)")));
}

TEST_F(BackgroundDrawTest, BothClearsOffClearNothingAndDrawNoImage) {
  bind();
  auto background = backgroundWithImage();
  background->setColorClearEnable(false);
  background->setDepthClearEnable(false);
  const Lines calls = clear(background);
  EXPECT_THAT(calls, Contains("glClear(0)"));
  EXPECT_THAT(calls, Not(Contains(::testing::StartsWith("glDrawArrays"))));
  EXPECT_THAT(calls, Not(Contains(::testing::StartsWith("glClearColor"))));
  EXPECT_THAT(calls, Not(Contains(::testing::StartsWith("glDepthMask"))));
}

TEST_F(BackgroundDrawTest, DepthClearAloneDrawsNoImage) {
  bind();
  auto background = backgroundWithImage();
  background->setColorClearEnable(false);
  const Lines calls = clear(background);
  EXPECT_THAT(calls, Contains(::testing::AnyOf("glClear(256)", "glClear(GL_DEPTH_BUFFER_BIT)")));
  EXPECT_THAT(calls, Not(Contains(::testing::StartsWith("glDrawArrays"))));
}

TEST_F(BackgroundDrawTest, WithoutADepthBufferOnlyTheColourIsCleared) {
  bind(8, 8, false);
  const Lines calls = clear(Background::create());
  EXPECT_THAT(calls, Contains(::testing::AnyOf("glClear(16384)", "glClear(GL_COLOR_BUFFER_BIT)")));
  EXPECT_THAT(calls, Not(Contains(::testing::StartsWith("glClearDepth"))));
}

TEST_F(BackgroundDrawTest, TheClearColourIsThatOfTheBackground) {
  bind();
  auto background = Background::create();
  background->setColor(static_cast<int>(0xFFFF0000u));
  EXPECT_THAT(clear(background), Contains("glClearColor(1, 0, 0, 1)"));
}

TEST_F(BackgroundDrawTest, AnImageIsDrawnAsATexturedQuadWithLinearFilters) {
  bind(40, 30);
  auto background = backgroundWithImage();
  clear(background);
  const Lines calls = clear(background);
  const Lines drawing(calls.begin() + 12, calls.end());
  EXPECT_THAT(drawing,
              ElementsAre("glEnableClientState(GL_VERTEX_ARRAY)",
                          "glEnableClientState(GL_TEXTURE_COORD_ARRAY)", "glEnable(GL_TEXTURE_2D)",
                          "glBindTexture(GL_TEXTURE_2D, 1)",
                          "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, 9729)",
                          "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, 9729)",
                          ::testing::StartsWith("glVertexPointer(3, GL_SHORT, 0, "),
                          ::testing::StartsWith("glTexCoordPointer(2, GL_FLOAT, 0, "),
                          "glDrawArrays(GL_TRIANGLE_STRIP, 0, 4)", "glDisable(GL_TEXTURE_2D)",
                          "glDisableClientState(GL_VERTEX_ARRAY)",
                          "glDisableClientState(GL_TEXTURE_COORD_ARRAY)"));
}

TEST_F(BackgroundDrawTest, BorderWithTheWholeImageStretchesItOverTheViewport) {
  bind(40, 30);
  clear(backgroundWithImage());
  EXPECT_EQ(vertices, quad(0, 39, 29, 0));
  EXPECT_THAT(coords, ElementsAre(0, 0, 0, 1, 1, 0, 1, 1));
}

TEST_F(BackgroundDrawTest, BorderWithACropMovesTheImagesEdgesOutside) {
  bind(41, 31);
  auto background = backgroundWithImage(8, 4);
  background->setCrop(2, 1, 4, 2);
  clear(background);
  // Ten pixels for each texel in x, fifteen in y.
  EXPECT_EQ(vertices, quad(0 - 2 * 10, 40 + 2 * 10, 30 + 15, 0 - 15));
  EXPECT_THAT(coords, ElementsAre(0, 0, 0, 1, 1, 0, 1, 1));
}

TEST_F(BackgroundDrawTest, TheEdgesAreTruncatedTowardsZero) {
  bind(11, 11);
  auto background = backgroundWithImage(8, 8);
  background->setCrop(1, 1, 3, 3);
  clear(background);
  // The scale is 10 / 3: left -3.33, right 10 + 4 * 3.33 = 23.33, bottom -13.33, top 13.33.
  EXPECT_EQ(vertices, quad(-3, 23, 13, -13));
}

TEST_F(BackgroundDrawTest, RepeatInXTakesTheCropIntoTheCoordinates) {
  bind(40, 30);
  auto background = backgroundWithImage(8, 4);
  background->setImageMode(Background::REPEAT, Background::BORDER);
  background->setCrop(2, 0, 12, 4);
  clear(background);
  EXPECT_EQ(vertices, quad(0, 39, 29, 0));
  EXPECT_THAT(coords, ElementsAre(0.25f, 0, 0.25f, 1, 1.75f, 0, 1.75f, 1));
}

TEST_F(BackgroundDrawTest, RepeatInYTakesTheCropIntoTheCoordinates) {
  bind(40, 30);
  auto background = backgroundWithImage(8, 4);
  background->setImageMode(Background::BORDER, Background::REPEAT);
  background->setCrop(0, 1, 8, 6);
  clear(background);
  EXPECT_EQ(vertices, quad(0, 39, 29, 0));
  EXPECT_THAT(coords, ElementsAre(0, -1.25f, 0, 0.25f, 1, -1.25f, 1, 0.25f));
}

TEST_F(BackgroundDrawTest, RepeatInBothKeepsTheCornersAtTheViewport) {
  bind(40, 30);
  auto background = backgroundWithImage(8, 4);
  background->setImageMode(Background::REPEAT, Background::REPEAT);
  background->setCrop(-2, -1, 16, 8);
  clear(background);
  EXPECT_EQ(vertices, quad(0, 39, 29, 0));
  EXPECT_THAT(coords, ElementsAre(-0.25f, -2.25f, -0.25f, -0.25f, 1.75f, -2.25f, 1.75f, -0.25f));
}

TEST_F(BackgroundDrawTest, AZeroCropSkipsTheImage) {
  bind();
  auto background = backgroundWithImage();
  background->setCrop(0, 0, 0, 4);
  EXPECT_THAT(clear(background), Not(Contains(::testing::StartsWith("glDrawArrays"))));
  background->setCrop(0, 0, 8, 0);
  EXPECT_THAT(clear(background), Not(Contains(::testing::StartsWith("glDrawArrays"))));
}

TEST_F(BackgroundDrawTest, ExtremeCropsOverflowNothing) {
  bind();
  auto background = backgroundWithImage();
  const int far = 2147483647;
  background->setCrop(-far - 1, far, 1, far);
  EXPECT_NO_THROW(clear(background));
  background->setImageMode(Background::REPEAT, Background::REPEAT);
  EXPECT_NO_THROW(clear(background));
}

TEST_F(BackgroundDrawTest, WrapModesAreNeverSet) {
  bind();
  auto background = backgroundWithImage();
  background->setImageMode(Background::REPEAT, Background::REPEAT);
  for (const std::string& call : clear(background)) {
    EXPECT_EQ(call.find("GL_TEXTURE_WRAP"), std::string::npos) << call;
  }
}
