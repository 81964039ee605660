#include <cmath>
#include <limits>

#include "engine/object/engine_limits.h"
#include "engine/render/graphics3d.h"
#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::ElementsAre;

namespace {

using TargetTest = RenderTest;

constexpr char alreadyBound[] =
    "Exception: GLDrawable already bound.  releaseTarget must be called first";

}  // namespace

TEST_F(TargetTest, ABindSetsTheViewportToTheTargetAndSendsDepthRangeAndDefaults) {
  egl.width = 64;
  egl.height = 48;
  graphics.bindTarget(&target, false, 7);
  const Lines calls = take();
  ASSERT_EQ(calls.size(), 16u);
  EXPECT_EQ(calls[0], "glDepthRange(0, 1)");
  EXPECT_EQ(calls[1], "glDisable(GL_FOG)");
  EXPECT_EQ(calls[15], "glDisable(GL_BLEND)");
  EXPECT_EQ(graphics.getTarget(), &target);
  EXPECT_EQ(graphics.getViewportX(), 0);
  EXPECT_EQ(graphics.getViewportY(), 0);
  EXPECT_EQ(graphics.getViewportWidth(), 64);
  EXPECT_EQ(graphics.getViewportHeight(), 48);
  EXPECT_FALSE(graphics.isDepthBufferEnabled());
  EXPECT_EQ(graphics.getHints(), 7);
  EXPECT_TRUE(graphics.coversTarget());
}

TEST_F(TargetTest, TheShortBindHasADepthBufferAndNoHints) {
  bind(8, 8, false, 5);
  graphics.releaseTarget();
  graphics.bindTarget(&target);
  EXPECT_TRUE(graphics.isDepthBufferEnabled());
  EXPECT_EQ(graphics.getHints(), 0);
}

TEST_F(TargetTest, ASecondBindIsRefusedAndTheFirstStaysInForce) {
  bind(64, 48);
  WindowSurface other;
  other.surface = target.surface;
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.bindTarget(&other, false, 99); }),
            alreadyBound);
  EXPECT_EQ(graphics.getTarget(), &target);
  EXPECT_TRUE(graphics.isDepthBufferEnabled());
  EXPECT_EQ(graphics.getViewportWidth(), 64);
}

TEST_F(TargetTest, Hints30AreAcceptedAnd31Refused) {
  for (const int hints : {-1, 31, 1000}) {
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.bindTarget(&target, true, hints); }),
              "Exception: invalid hints argument.");
    EXPECT_FALSE(graphics.getTarget());
  }
  bind(8, 8, true, 30);
  EXPECT_EQ(graphics.getHints(), 30);
}

TEST_F(TargetTest, HintsReachNoCall) {
  egl.width = 8;
  egl.height = 8;
  graphics.bindTarget(&target, true, 0);
  const Lines without = take();
  graphics.releaseTarget();
  graphics.bindTarget(&target, true, 30);
  EXPECT_EQ(take(), without);
}

TEST_F(TargetTest, ASurfaceThatIsNotCurrentIsRefused) {
  constexpr char text[] =
      "Exception: Graphics3D.bindTarget(). targetCanvas must be an EGLSurface that has been made "
      "current on the default display.";
  WindowSurface none;
  WindowSurface other;
  other.surface = &other;
  for (const WindowSurface* bad :
       {static_cast<const WindowSurface*>(nullptr), static_cast<const WindowSurface*>(&none),
        static_cast<const WindowSurface*>(&other)}) {
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.bindTarget(bad); }), text);
  }
  EXPECT_FALSE(graphics.getTarget());
}

TEST_F(TargetTest, ASurfaceWhoseWindowIsGoneIsRefused) {
  egl.loseSurfaces(true);
  EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.bindTarget(&target); }),
            "Exception: Graphics3D.bindTarget().  targetCanvas must point to a valid rendering "
            "target, that target must be created from the default EGLDisplay.");
  EXPECT_FALSE(graphics.getTarget());
  egl.loseSurfaces(false);
  EXPECT_NO_THROW(graphics.bindTarget(&target));
}

TEST_F(TargetTest, ATargetLargerThanTheLimitsIsRefused) {
  maxViewportWidth = 100;
  maxViewportHeight = 50;
  egl.width = 101;
  egl.height = 50;
  EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.bindTarget(&target); }),
            "Viewport maximum size exceeded");
  egl.width = 100;
  egl.height = 51;
  EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.bindTarget(&target); }),
            "Viewport maximum size exceeded");
  egl.height = 50;
  EXPECT_NO_THROW(graphics.bindTarget(&target));
}

TEST_F(TargetTest, AnEmptyTargetLeavesTheViewport) {
  bind(30, 20);
  graphics.releaseTarget();
  egl.width = 0;
  egl.height = 0;
  graphics.bindTarget(&target);
  EXPECT_EQ(graphics.getViewportWidth(), 30);
  EXPECT_EQ(graphics.getViewportHeight(), 20);
}

TEST_F(TargetTest, ReleaseWithoutATargetDoesNothing) {
  graphics.releaseTarget();
  EXPECT_FALSE(graphics.getTarget());
  EXPECT_THAT(take(), ::testing::IsEmpty());
}

TEST_F(TargetTest, DepthRangeCameraAndLightsSurviveARelease) {
  bind();
  graphics.setDepthRange(0.25f, 0.75f);
  auto camera = useIdentityCamera();
  graphics.addLight(Light::create(), nullptr);
  graphics.releaseTarget();
  EXPECT_EQ(graphics.getDepthRangeNear(), 0.25f);
  EXPECT_EQ(graphics.getDepthRangeFar(), 0.75f);
  EXPECT_EQ(graphics.getCamera(nullptr), camera);
  EXPECT_EQ(graphics.getLightCount(), 1);
}

TEST_F(TargetTest, AViewportIsCountedFromTheTop) {
  bind(100, 100);
  graphics.setViewport(0, 10, 50, 20);
  EXPECT_EQ(graphics.getViewportY(), 10);
  const Rectangle& sent = graphics.getGlViewport();
  EXPECT_EQ(sent.x, 0);
  EXPECT_EQ(sent.y, 70);
  EXPECT_EQ(sent.width, 50);
  EXPECT_EQ(sent.height, 20);
  EXPECT_THAT(take(), ::testing::IsEmpty()) << "it reaches the driver at the next clear";
}

TEST_F(TargetTest, TheTargetIsTestedBeforeTheSizeOfAViewport) {
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.setViewport(0, 0, 0, 10); }),
            "setViewport called when renderingTarget has not been set.");
  bind();
  for (const auto& size : {std::pair{0, 10}, std::pair{10, 0}, std::pair{-1, 10}}) {
    EXPECT_EQ(failureOf<std::invalid_argument>(
                  [&] { graphics.setViewport(0, 0, size.first, size.second); }),
              "setViewport called with width or height =< 0.");
  }
  EXPECT_EQ(graphics.getViewportWidth(), 100);
}

TEST_F(TargetTest, AViewportMayBeAsLargeAsTheLimits) {
  bind();
  EXPECT_NO_THROW(graphics.setViewport(0, 0, 100000, 100000));
  constexpr char text[] =
      "setViewport called with width or height greater than the max Viewport dimensions";
  EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.setViewport(0, 0, 100001, 1); }), text);
  EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.setViewport(0, 0, 1, 100001); }), text);
}

TEST_F(TargetTest, TheViewportCoversTheTargetWhenItHoldsAllOfIt) {
  bind(40, 30);
  const std::tuple<int, int, int, int, bool> table[] = {
      {0, 0, 40, 30, true},  {-5, -5, 45, 35, true}, {0, 0, 50, 50, true},   {1, 0, 40, 30, false},
      {0, 1, 40, 30, false}, {0, 0, 39, 30, false},  {-5, -5, 44, 35, false}};
  for (const auto& [x, y, width, height, expected] : table) {
    graphics.setViewport(x, y, width, height);
    EXPECT_EQ(graphics.coversTarget(), expected) << x << ' ' << y << ' ' << width << ' ' << height;
  }
}

TEST_F(TargetTest, AViewportFarOutsideOverflowsNothing) {
  bind();
  const int far = std::numeric_limits<int>::max();
  auto background = Background::create();
  background->setImage(Image2D::create(Image2D::RGB, 4, 4));
  EXPECT_NO_THROW(graphics.setViewport(far, far, 10, 10));
  EXPECT_NO_THROW(graphics.clear(background));
  EXPECT_NO_THROW(graphics.setViewport(-far - 1, -far - 1, 10, 10));
  EXPECT_NO_THROW(graphics.clear(background));
}

TEST_F(TargetTest, TheDepthRangeIsTestedAfterTheTarget) {
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.setDepthRange(2.0f, 2.0f); }),
            "setDepthRange called when renderingTarget has not been set.");
  bind();
  const float nan = std::nanf("");
  for (const float bad : {-0.1f, 1.1f, nan}) {
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.setDepthRange(bad, bad); }),
              "near must be in interval 0 <= near <= 1");
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.setDepthRange(0.0f, bad); }),
              "far must be in interval 0 <= far <= 1");
  }
  EXPECT_EQ(graphics.getDepthRangeNear(), 0.0f);
}

TEST_F(TargetTest, ADepthRangeMayBeReversedAndReachesTheDriverAtTheNextBind) {
  bind();
  graphics.setDepthRange(0.9f, 0.1f);
  EXPECT_EQ(graphics.getDepthRangeNear(), 0.9f);
  EXPECT_THAT(take(), ::testing::IsEmpty());
  graphics.releaseTarget();
  graphics.bindTarget(&target);
  EXPECT_THAT(take()[0], ::testing::StartsWith("glDepthRange(0.9"));
}

TEST_F(TargetTest, GetCameraGivesBackWhatWasSet) {
  Transform transform;
  transform.postRotate(30.0f, 1.0f, 2.0f, 3.0f);
  transform.postTranslate(4.0f, 5.0f, 6.0f);
  auto camera = Camera::create();
  graphics.setCamera(camera, &transform);
  Transform got;
  EXPECT_EQ(graphics.getCamera(&got), camera);
  for (int i = 0; i < 16; ++i) {
    EXPECT_NEAR(got.data()[i], transform.data()[i], 1e-5) << i;
  }
}

TEST_F(TargetTest, ACameraWithoutATransformStandsAtTheOrigin) {
  Transform transform;
  transform.postTranslate(4.0f, 5.0f, 6.0f);
  graphics.setCamera(Camera::create(), &transform);
  auto camera = Camera::create();
  graphics.setCamera(camera, nullptr);
  Transform got;
  got.postScale(2.0f, 2.0f, 2.0f);
  EXPECT_EQ(graphics.getCamera(&got), camera);
  EXPECT_TRUE(std::equal(got.data(), got.data() + 16, identityTransform().data()));
}

TEST_F(TargetTest, NoCameraForgetsTheTransform) {
  Transform transform;
  transform.postTranslate(4.0f, 5.0f, 6.0f);
  graphics.setCamera(nullptr, &transform);
  Transform got;
  EXPECT_FALSE(graphics.getCamera(&got));
  EXPECT_TRUE(std::equal(got.data(), got.data() + 16, identityTransform().data()));
}

TEST_F(TargetTest, ASingularTransformIsRefusedAndReplacesThatOfTheFormerCamera) {
  auto camera = useIdentityCamera();
  Transform flat;
  flat.postScale(0.0f, 1.0f, 1.0f);
  EXPECT_THROW(graphics.setCamera(Camera::create(), &flat), std::underflow_error);
  EXPECT_EQ(graphics.getCamera(nullptr), camera);
  Transform got;
  EXPECT_THROW(graphics.getCamera(&got), std::underflow_error);
}

TEST_F(TargetTest, GetLightOutsideTheListIsRefused) {
  graphics.addLight(Light::create(), nullptr);
  for (const int index : {-1, 1}) {
    EXPECT_EQ(failureOf<std::out_of_range>([&] { graphics.getLight(index, nullptr); }),
              "Graphics3D.getLight() index out of range");
  }
}

TEST_F(TargetTest, ErasingTheFirstOfTwoLightsLeavesTheSecond) {
  auto second = Light::create();
  graphics.addLight(Light::create(), nullptr);
  graphics.addLight(second, nullptr);
  graphics.setLight(0, nullptr, nullptr);
  EXPECT_EQ(graphics.getLightCount(), 1);
  EXPECT_EQ(graphics.getLight(0, nullptr), second);
}

TEST_F(TargetTest, AnImageNeedsAConfigThatTheLayerDoesNotHave) {
  auto image = Image2D::create(Image2D::RGBA, 4, 4);
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.bindImageTarget(image.get()); }),
            "Exception: failed to get EGL Pbuffer configuration for Image2D render target.");
  EXPECT_FALSE(graphics.getTarget());
  EXPECT_EQ(
      failureOf<std::invalid_argument>([&] { graphics.bindImageTarget(image.get(), true, 31); }),
      "Exception: invalid hints argument.");
  bind();
  EXPECT_EQ(failureOf<std::runtime_error>([&] { graphics.bindImageTarget(image.get()); }),
            alreadyBound);
}

TEST_F(TargetTest, TheObjectsOfTheProcessStandFromTheStart) {
  EXPECT_EQ(&Graphics3D::getInstance(), &graphics);
  EXPECT_TRUE(identityTransform().isIdentity());
  ASSERT_TRUE(defaultBackground());
  EXPECT_EQ(defaultBackground()->getColor(), 0);
}
