#include "engine/render/render_state.h"

#include "engine/object/engine_limits.h"
#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// The calls of one kind of attribute among those of an appearance, without its textures.
class RenderStateTest : public RenderTest {
 protected:
  RenderStateTest() {
    maxTextureUnits = 0;
    bind();
  }

  Lines apply(const boost::shared_ptr<Appearance>& appearance) {
    driver.clear();
    applyAppearance(appearance);
    return take();
  }
};

const std::vector<std::string> resetCalls = {
    "glDisable(GL_FOG)",
    "glDisable(GL_LIGHTING)",
    "glDisable(GL_NORMALIZE)",
    "glEnable(GL_CULL_FACE)",
    "glCullFace(GL_BACK)",
    "glFrontFace(GL_CCW)",
    "glShadeModel(GL_SMOOTH)",
    "glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 0)",
    "glDisable(GL_POLYGON_OFFSET_FILL)",
    "glEnable(GL_DEPTH_TEST)",
    "glDepthFunc(GL_LEQUAL)",
    "glAlphaFunc(GL_ALWAYS, 0)",
    "glColorMask(1, 1, 1, 1)",
    "glDepthMask(1)",
    "glDisable(GL_BLEND)",
};

}  // namespace

TEST_F(RenderStateTest, ResetSendsFogMaterialPolygonAndCompositingDefaultsInThisOrder) {
  resetRenderState();
  EXPECT_EQ(take(), resetCalls);
  resetRenderState();
  EXPECT_EQ(take(), resetCalls) << "a reset trusts no flag";
}

TEST_F(RenderStateTest, ResetForgetsTheAttributeObjectsAndKeepsTheAppearance) {
  auto appearance = plainAppearance();
  appearance->setFog(Fog::create());
  appearance->setMaterial(Material::create());
  appearance->setPolygonMode(PolygonMode::create());
  appearance->setCompositingMode(CompositingMode::create());
  applyAppearance(appearance);
  EXPECT_EQ(renderState().currentFog, appearance->getFog());
  EXPECT_EQ(renderState().currentMaterial, appearance->getMaterial());
  EXPECT_EQ(renderState().currentPolygonMode, appearance->getPolygonMode());
  EXPECT_EQ(renderState().currentCompositingMode, appearance->getCompositingMode());
  resetRenderState();
  EXPECT_FALSE(renderState().currentFog);
  EXPECT_FALSE(renderState().currentMaterial);
  EXPECT_FALSE(renderState().currentPolygonMode);
  EXPECT_FALSE(renderState().currentCompositingMode);
  EXPECT_EQ(renderState().currentAppearance, appearance);
}

TEST_F(RenderStateTest, AnEmptyAppearanceAfterTheResetSendsNothing) {
  EXPECT_THAT(apply(plainAppearance()), IsEmpty());
}

TEST_F(RenderStateTest, LinearFogSendsColourModeStartAndEnd) {
  auto appearance = plainAppearance();
  auto fog = Fog::create();
  fog->setColor(0xFF0000);
  fog->setLinear(2.0f, 8.0f);
  appearance->setFog(fog);
  EXPECT_THAT(
      apply(appearance),
      ElementsAre("glEnable(GL_FOG)", "glFogfv(GL_FOG_COLOR, [1, 0, 0, 1])",
                  "glFogf(GL_FOG_MODE, 9729)", "glFogf(GL_FOG_START, 2)", "glFogf(GL_FOG_END, 8)"));
}

TEST_F(RenderStateTest, AnyOtherFogModeIsExponentialWithADensity) {
  for (const int mode : {Fog::EXPONENTIAL, 0, 999}) {
    auto appearance = plainAppearance();
    auto fog = Fog::create();
    fog->setMode(mode);
    fog->setDensity(0.5f);
    appearance->setFog(fog);
    EXPECT_THAT(apply(appearance),
                ElementsAre("glEnable(GL_FOG)", "glFogfv(GL_FOG_COLOR, [0, 0, 0, 0])",
                            "glFogf(GL_FOG_MODE, 2048)", "glFogf(GL_FOG_DENSITY, 0.5)"));
  }
}

TEST_F(RenderStateTest, TheSameFogIsSentAgainOnlyAfterAChange) {
  auto appearance = plainAppearance();
  appearance->setFog(Fog::create());
  apply(appearance);
  EXPECT_THAT(apply(appearance), IsEmpty());
  appearance->getFog()->setColor(0x00FF00);
  EXPECT_THAT(
      apply(appearance),
      ElementsAre("glEnable(GL_FOG)", "glFogfv(GL_FOG_COLOR, [0, 1, 0, 1])",
                  "glFogf(GL_FOG_MODE, 9729)", "glFogf(GL_FOG_START, 0)", "glFogf(GL_FOG_END, 1)"));
  EXPECT_THAT(apply(appearance), IsEmpty());
}

TEST_F(RenderStateTest, AnAppearanceWithoutFogSwitchesItOffOnce) {
  auto fogged = plainAppearance();
  fogged->setFog(Fog::create());
  apply(fogged);
  EXPECT_THAT(apply(plainAppearance()), ElementsAre("glDisable(GL_FOG)"));
  EXPECT_THAT(apply(plainAppearance()), IsEmpty());
}

TEST_F(RenderStateTest, APolygonModeSendsCullingWindingShadingAndSides) {
  auto appearance = plainAppearance();
  auto mode = PolygonMode::create();
  mode->setCulling(PolygonMode::CULL_FRONT);
  mode->setWinding(PolygonMode::WINDING_CW);
  mode->setShading(PolygonMode::SHADE_FLAT);
  mode->setTwoSidedLightingEnable(true);
  mode->setLocalCameraLightingEnable(true);
  appearance->setPolygonMode(mode);
  EXPECT_THAT(apply(appearance),
              ElementsAre("glEnable(GL_CULL_FACE)", "glCullFace(GL_FRONT)", "glFrontFace(GL_CW)",
                          "glShadeModel(GL_FLAT)", "glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 1)"));
}

TEST_F(RenderStateTest, CullNoneSwitchesCullingOff) {
  auto appearance = plainAppearance();
  appearance->setPolygonMode(PolygonMode::create());
  appearance->getPolygonMode()->setCulling(PolygonMode::CULL_NONE);
  EXPECT_THAT(apply(appearance),
              ElementsAre("glDisable(GL_CULL_FACE)", "glFrontFace(GL_CCW)",
                          "glShadeModel(GL_SMOOTH)", "glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 0)"));
}

TEST_F(RenderStateTest, ASharedPolygonModeIsSentOnce) {
  auto mode = PolygonMode::create();
  auto first = plainAppearance();
  auto second = plainAppearance();
  first->setPolygonMode(mode);
  second->setPolygonMode(mode);
  EXPECT_EQ(apply(first).size(), 5u);
  EXPECT_THAT(apply(second), IsEmpty());
}

TEST_F(RenderStateTest, ThePerspectiveHintStaysOnceItIsSet) {
  auto corrected = plainAppearance();
  corrected->setPolygonMode(PolygonMode::create());
  corrected->getPolygonMode()->setPerspectiveCorrectionEnable(true);
  EXPECT_EQ(apply(corrected).back(), "glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST)");
  auto plain = plainAppearance();
  plain->setPolygonMode(PolygonMode::create());
  apply(plain);
  apply(plainAppearance());
  resetRenderState();
  for (const std::string& call : take()) {
    EXPECT_EQ(call.find("glHint"), std::string::npos) << call;
  }
}

TEST_F(RenderStateTest, AMaterialSendsItsFourColoursAndItsShininess) {
  auto appearance = plainAppearance();
  auto material = Material::create();
  material->setColor(Material::AMBIENT, 0x0000FF00);
  material->setColor(Material::DIFFUSE, static_cast<int>(0xFFFF0000u));
  material->setColor(Material::SPECULAR, 0x00FFFFFF);
  material->setColor(Material::EMISSIVE, 0x000000FF);
  material->setShininess(16.0f);
  appearance->setMaterial(material);
  EXPECT_THAT(
      apply(appearance),
      ElementsAre("glEnable(GL_LIGHTING)", "glEnable(GL_NORMALIZE)", "glDisable(GL_COLOR_MATERIAL)",
                  "glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, [0, 1, 0, 0])",
                  "glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, [1, 0, 0, 1])",
                  "glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, [1, 1, 1, 0])",
                  "glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, [0, 0, 1, 0])",
                  "glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, 16)"));
}

TEST_F(RenderStateTest, VertexColourTrackingLeavesAmbientAndDiffuseToTheColours) {
  auto appearance = plainAppearance();
  auto material = Material::create();
  material->setVertexColorTrackingEnable(true);
  appearance->setMaterial(material);
  EXPECT_THAT(
      apply(appearance),
      ElementsAre("glEnable(GL_LIGHTING)", "glEnable(GL_NORMALIZE)", "glEnable(GL_COLOR_MATERIAL)",
                  "glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, [0, 0, 0, 0])",
                  "glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, [0, 0, 0, 0])",
                  "glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, 0)"));
}

TEST_F(RenderStateTest, AChangeOfTheCurrentMaterialIsNotSeen) {
  auto appearance = plainAppearance();
  appearance->setMaterial(Material::create());
  apply(appearance);
  appearance->getMaterial()->setColor(Material::DIFFUSE, static_cast<int>(0xFF00FF00u));
  EXPECT_THAT(apply(appearance), IsEmpty());
  resetRenderState();
  EXPECT_THAT(apply(appearance),
              ::testing::Contains("glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, [0, 1, 0, 1])"));
}

TEST_F(RenderStateTest, WithoutAMaterialLightingAndNormalizeAreOffAndColourMaterialIsLeft) {
  auto lit = plainAppearance();
  lit->setMaterial(Material::create());
  lit->getMaterial()->setVertexColorTrackingEnable(true);
  apply(lit);
  EXPECT_THAT(apply(plainAppearance()),
              ElementsAre("glDisable(GL_LIGHTING)", "glDisable(GL_NORMALIZE)"));
}

TEST_F(RenderStateTest, ACompositingModeSendsEverythingInThisOrder) {
  auto appearance = plainAppearance();
  auto mode = CompositingMode::create();
  mode->setDepthOffset(1.0f, 2.0f);
  mode->setAlphaThreshold(0.5f);
  mode->setColorWriteEnable(false);
  mode->setDepthWriteEnable(false);
  mode->setBlending(CompositingMode::ALPHA);
  appearance->setCompositingMode(mode);
  EXPECT_THAT(
      apply(appearance),
      ElementsAre("glEnable(GL_POLYGON_OFFSET_FILL)", "glPolygonOffset(1, 2)",
                  "glEnable(GL_DEPTH_TEST)", "glDepthFunc(GL_LEQUAL)", "glEnable(GL_ALPHA_TEST)",
                  "glAlphaFunc(GL_LEQUAL, 0.5)", "glColorMask(0, 0, 0, 1)", "glDepthMask(0)",
                  "glEnable(GL_BLEND)", "glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA)"));
}

TEST_F(RenderStateTest, ADefaultCompositingModeIsSentWithEachAppearance) {
  auto appearance = plainAppearance();
  appearance->setCompositingMode(CompositingMode::create());
  const Lines expected = {"glDisable(GL_POLYGON_OFFSET_FILL)",
                          "glEnable(GL_DEPTH_TEST)",
                          "glDepthFunc(GL_LEQUAL)",
                          "glAlphaFunc(GL_ALWAYS, 0)",
                          "glDisable(GL_ALPHA_TEST)",
                          "glColorMask(1, 1, 1, 1)",
                          "glDepthMask(1)",
                          "glDisable(GL_BLEND)"};
  EXPECT_EQ(apply(appearance), expected);
  EXPECT_EQ(apply(appearance), expected);
}

TEST_F(RenderStateTest, APlainCompositingModeIsSkippedWhileTheDefaultsAreInForce) {
  auto appearance = plainAppearance();
  auto mode = CompositingMode::create();
  mode->setAlphaThreshold(1.0f);
  appearance->setCompositingMode(mode);
  EXPECT_EQ(apply(appearance).size(), 8u) << "it is not the current one yet";
  EXPECT_EQ(apply(appearance).size(), 8u) << "its own state is not known to be the default";
  graphics.clear(nullptr);
  EXPECT_THAT(apply(appearance), IsEmpty());
  EXPECT_TRUE(renderState().compositingIsDefault);
  // What the condition leaves out is not sent either.
  mode->setDepthTestEnable(false);
  mode->setColorWriteEnable(false);
  EXPECT_THAT(apply(appearance), IsEmpty());

  const std::pair<const char*, void (*)(CompositingMode&)> changes[] = {
      {"threshold", [](CompositingMode& m) { m.setAlphaThreshold(0.5f); }},
      {"blending", [](CompositingMode& m) { m.setBlending(CompositingMode::ALPHA); }},
      {"alpha write", [](CompositingMode& m) { m.setAlphaWriteEnable(false); }},
      {"depth write", [](CompositingMode& m) { m.setDepthWriteEnable(false); }},
      {"depth offset", [](CompositingMode& m) { m.setDepthOffset(1.0f, 0.0f); }},
  };
  for (const auto& [name, change] : changes) {
    auto changed = plainAppearance();
    changed->setCompositingMode(CompositingMode::create());
    changed->getCompositingMode()->setAlphaThreshold(1.0f);
    apply(changed);
    graphics.clear(nullptr);
    change(*changed->getCompositingMode());
    EXPECT_FALSE(apply(changed).empty()) << name;
  }
  apply(appearance);
  graphics.clear(nullptr);
  auto other = plainAppearance();
  other->setCompositingMode(CompositingMode::create());
  other->getCompositingMode()->setAlphaThreshold(1.0f);
  EXPECT_FALSE(apply(other).empty()) << "another object";
}

TEST_F(RenderStateTest, TheDepthTestCanBeSwitchedOff) {
  auto appearance = plainAppearance();
  appearance->setCompositingMode(CompositingMode::create());
  appearance->getCompositingMode()->setDepthTestEnable(false);
  const Lines calls = apply(appearance);
  EXPECT_THAT(calls, ::testing::Contains("glDisable(GL_DEPTH_TEST)"));
  EXPECT_THAT(calls, ::testing::Not(::testing::Contains("glDepthFunc(GL_LEQUAL)")));
}

TEST_F(RenderStateTest, TheBlendingFactorsOfEachMode) {
  const std::pair<int, const char*> table[] = {
      {CompositingMode::ALPHA, "glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA)"},
      {CompositingMode::ALPHA_ADD, "glBlendFunc(GL_SRC_ALPHA, GL_ONE)"},
      {CompositingMode::MODULATE, "glBlendFunc(GL_DST_COLOR, GL_ZERO)"},
      {CompositingMode::MODULATE_X2, "glBlendFunc(GL_DST_COLOR, GL_SRC_COLOR)"},
  };
  for (const auto& [blending, expected] : table) {
    auto appearance = plainAppearance();
    appearance->setCompositingMode(CompositingMode::create());
    appearance->getCompositingMode()->setBlending(blending);
    EXPECT_EQ(apply(appearance).back(), expected);
  }
}

TEST_F(RenderStateTest, EachUnitWithoutATextureIsSwitchedOff) {
  maxTextureUnits = 2;
  EXPECT_THAT(
      apply(plainAppearance()),
      ElementsAre("glActiveTexture(GL_TEXTURE0)", "glClientActiveTexture(GL_TEXTURE0)",
                  "glDisable(GL_TEXTURE_2D)", "glDisableClientState(GL_TEXTURE_COORD_ARRAY)",
                  "glActiveTexture(GL_TEXTURE1)", "glClientActiveTexture(GL_TEXTURE1)",
                  "glDisable(GL_TEXTURE_2D)", "glDisableClientState(GL_TEXTURE_COORD_ARRAY)"));
}

TEST_F(RenderStateTest, AnAppearanceOfFewerUnitsThanTheLimitHasNoTextureInTheOthers) {
  maxTextureUnits = 1;
  auto appearance = plainAppearance();
  maxTextureUnits = 8;
  const Lines calls = apply(appearance);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "glDisable(GL_TEXTURE_2D)"), 8);
}

TEST_F(RenderStateTest, ATextureIsUploadedOnceAndItsParametersAreSentEachTime) {
  maxTextureUnits = 1;
  auto appearance = plainAppearance();
  auto texture = Texture2D::create(imageOf(Image2D::RGB, 1, 1, {255, 0, 0}));
  texture->setWrapping(Texture2D::WRAP_REPEAT, Texture2D::WRAP_CLAMP);
  texture->setFiltering(Texture2D::FILTER_LINEAR, Texture2D::FILTER_LINEAR);
  appearance->setTexture(0, texture);
  EXPECT_THAT(
      apply(appearance),
      ElementsAre("glActiveTexture(GL_TEXTURE0)", "glEnable(GL_TEXTURE_2D)",
                  ::testing::StartsWith("glGenTextures(1"), "glBindTexture(GL_TEXTURE_2D, 1)",
                  "glPixelStorei(GL_UNPACK_ALIGNMENT, 4)",
                  "glTexParameterf(GL_TEXTURE_2D, GL_GENERATE_MIPMAP, 1)",
                  ::testing::StartsWith("glTexImage2D(GL_TEXTURE_2D, 0, "),
                  "glBindTexture(GL_TEXTURE_2D, 1)",
                  "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, 10497)",
                  "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, 33071)",
                  "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, 9729)",
                  "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, 9987)",
                  "glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, 8448)"));
  EXPECT_THAT(apply(appearance),
              ElementsAre("glActiveTexture(GL_TEXTURE0)", "glEnable(GL_TEXTURE_2D)",
                          "glBindTexture(GL_TEXTURE_2D, 1)",
                          "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, 10497)",
                          "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, 33071)",
                          "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, 9729)",
                          "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, 9987)",
                          "glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, 8448)"));
}

TEST_F(RenderStateTest, TheBlendingOfATextureChoosesTheModeAndItsColourIsNeverSent) {
  maxTextureUnits = 1;
  const std::pair<int, int> table[] = {
      {Texture2D::FUNC_ADD, 260},      {Texture2D::FUNC_BLEND, 3042},
      {Texture2D::FUNC_DECAL, 8449},   {Texture2D::FUNC_MODULATE, 8448},
      {Texture2D::FUNC_REPLACE, 7681},
  };
  auto texture = Texture2D::create(imageOf(Image2D::RGB, 1, 1, {255, 0, 0}));
  texture->setBlendColor(0x123456);
  auto appearance = plainAppearance();
  appearance->setTexture(0, texture);
  for (const auto& [blending, mode] : table) {
    texture->setBlending(blending);
    const Lines calls = apply(appearance);
    EXPECT_EQ(calls.back(),
              "glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, " + std::to_string(mode) + ")");
    for (const std::string& call : calls) {
      EXPECT_EQ(call.find("GL_TEXTURE_ENV_COLOR"), std::string::npos);
    }
  }
  texture->setBlending(999);
  EXPECT_THAT(apply(appearance).back(), ::testing::HasSubstr("GL_TEXTURE_MIN_FILTER"));
}

TEST_F(RenderStateTest, AnUnknownWrappingClamps) {
  maxTextureUnits = 1;
  auto texture = Texture2D::create(imageOf(Image2D::RGB, 1, 1, {255, 0, 0}));
  texture->setWrapping(999, 999);
  auto appearance = plainAppearance();
  appearance->setTexture(0, texture);
  EXPECT_THAT(apply(appearance),
              ::testing::Contains("glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, 33071)"));
}

TEST_F(RenderStateTest, AMutableImageIsUploadedWholeAtFirstAndInPartAfterAChange) {
  maxTextureUnits = 1;
  auto image = Image2D::create(Image2D::RGBA, 2, 2);
  auto appearance = plainAppearance();
  appearance->setTexture(0, Texture2D::create(image));
  const std::vector<unsigned char> pixel = {1, 2, 3, 4};
  image->set(0, 0, 1, 1, pixel.data());
  image->set(1, 1, 1, 1, pixel.data());
  driver.clear();
  applyAppearance(appearance);
  EXPECT_EQ(driver.calls("glTexImage2D").size(), 1u);
  EXPECT_THAT(driver.calls("glTexSubImage2D"), IsEmpty());
  driver.clear();
  image->set(1, 0, 1, 1, pixel.data());
  image->set(0, 1, 1, 1, pixel.data());
  applyAppearance(appearance);
  EXPECT_THAT(driver.calls("glTexImage2D"), IsEmpty());
  EXPECT_EQ(driver.calls("glTexSubImage2D").size(), 1u);
  EXPECT_THAT(driver.calls("glTexSubImage2D")[0],
              ::testing::StartsWith(
                  "glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 2, 2, GL_RGBA, GL_UNSIGNED_BYTE"));
  EXPECT_EQ(driver.lastAddress("glTexSubImage2D"), image->getPixels());
  EXPECT_EQ(driver.calls("glBindTexture").size(), 2u);
}

TEST_F(RenderStateTest, TheFormatOfAnImageIsThatOfItsTexture) {
  maxTextureUnits = 1;
  const std::pair<int, const char*> table[] = {{Image2D::ALPHA, "GL_ALPHA"},
                                               {Image2D::LUMINANCE, "GL_LUMINANCE"},
                                               {Image2D::LUMINANCE_ALPHA, "GL_LUMINANCE_ALPHA"},
                                               {Image2D::RGB, "GL_RGB"},
                                               {Image2D::RGBA, "GL_RGBA"}};
  for (const auto& [format, name] : table) {
    auto appearance = plainAppearance();
    auto image = Image2D::create(format, 4, 2);
    appearance->setTexture(0, Texture2D::create(image));
    driver.clear();
    applyAppearance(appearance);
    ASSERT_EQ(driver.calls("glTexImage2D").size(), 1u);
    EXPECT_THAT(driver.calls("glTexImage2D")[0],
                ::testing::HasSubstr(std::string(", 4, 2, 0, ") + name + ", GL_UNSIGNED_BYTE"));
    EXPECT_EQ(driver.lastAddress("glTexImage2D"), image->getPixels());
  }
}
