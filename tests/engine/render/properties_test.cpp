#include <EGL/egl.h>
#include <GLES/gl.h>

#include "engine/object/engine_limits.h"
#include "engine/render/graphics3d.h"
#include "tests/support/render_fixture.h"

using namespace varnel_m3g;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace {

class PropertiesTest : public RenderTest {
 protected:
  PropertiesTest() {
    egl.release();
    egl.calls.clear();
    driver.answer(GL_MAX_LIGHTS, {8});
    driver.answer(GL_MAX_VIEWPORT_DIMS, {4096, 5000});
    driver.answer(GL_MAX_TEXTURE_SIZE, {2048});
    driver.answer(GL_MAX_TEXTURE_UNITS, {6});
  }
};

}  // namespace

// One test: the table is read once in a process.
TEST_F(PropertiesTest, TheLimitsAreReadThroughAPrivateContextAndEachFailureIsPrinted) {
  const std::pair<const char*, const char*> failures[] = {
      {"getDisplay", "Failed to get default display\n"},
      {"initialize", "Failed to initialize display\n"},
      {"chooseConfig", "Failed to get a valid frame buffer configuration\n"},
      {"createContext", "Failed to create rendering context\n"},
      {"makeCurrent", "Failed to attach rendering context to surface\n"},
  };
  for (const auto& [call, text] : failures) {
    egl.fail(call);
    egl.calls.clear();
    ::testing::internal::CaptureStdout();
    EXPECT_THAT(Graphics3D::initProps(), IsEmpty()) << call;
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), text);
    EXPECT_EQ(egl.calls.back(), "terminate") << call;
    egl.succeed(call);
    EXPECT_EQ(maxViewportWidth, 100000);
    EXPECT_EQ(maxViewportHeight, 100000);
  }

  egl.calls.clear();
  const Graphics3D::Properties& table = Graphics3D::initProps();
  EXPECT_THAT(table,
              ElementsAre(Pair("maxLights", 8), Pair("maxSpriteCropDimension", 256),
                          // The larger of the texture size and the viewport's height.
                          Pair("maxTextureDimension", 5000), Pair("maxTextureUnits", 6),
                          Pair("maxTransformsPerVertex", 4), Pair("maxViewportDimension", 5000),
                          Pair("maxViewportHeight", 5000), Pair("maxViewportWidth", 4096),
                          Pair("supportAntialiasing", 1), Pair("supportDithering", 1),
                          Pair("supportLocalCameraLighting", 0), Pair("supportMipmapping", 1),
                          Pair("supportPerspectiveCorrection", 1), Pair("supportTrueColor", 1)));
  EXPECT_THAT(egl.pbufferAttributes, ElementsAre(EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE));
  EXPECT_EQ(maxTextureUnits, 6);
  EXPECT_EQ(maxViewportWidth, 4096);
  EXPECT_EQ(maxViewportHeight, 5000);
  EXPECT_EQ(maxTransformsPerVertex, 4);
  EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
  ASSERT_GE(egl.calls.size(), 4u);
  EXPECT_THAT(std::vector<std::string>(egl.calls.end() - 4, egl.calls.end()),
              ElementsAre("makeCurrent", "destroyContext", "destroySurface", "terminate"));

  egl.calls.clear();
  driver.clear();
  EXPECT_EQ(&Graphics3D::initProps(), &table);
  EXPECT_THAT(egl.calls, IsEmpty());
  EXPECT_THAT(take(), IsEmpty());
  maxTransformsPerVertex = 0;
  target.surface = egl.makeSurfaceCurrent();
}
