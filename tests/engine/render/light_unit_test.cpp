#include "engine/scene/light.h"
#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int unit0 = 0x4000;
constexpr int unit1 = 0x4001;

class LightUnitTest : public RenderTest {
 protected:
  Lines apply() {
    driver.clear();
    light->applyLight();
    return take();
  }

  Lines applyAfresh(int mode) {
    light->setMode(mode);
    light->releaseGLLight();
    light->setGLLight(unit0, identityTransform());
    return apply();
  }

  boost::shared_ptr<Light> light = Light::create();
};

}  // namespace

TEST_F(LightUnitTest, ADirectionalLightSendsItsColoursAndTheWayToItsSource) {
  light->setColor(0xFF8000);
  light->setIntensity(2.0f);
  EXPECT_THAT(
      applyAfresh(Light::DIRECTIONAL),
      ElementsAre("glLightfv(GL_LIGHT0, GL_AMBIENT, [0, 0, 0, 0])",
                  ::testing::StartsWith("glLightfv(GL_LIGHT0, GL_DIFFUSE, [2, 1.003"),
                  ::testing::StartsWith("glLightfv(GL_LIGHT0, GL_SPECULAR, [2, 1.003"),
                  "glLightf(GL_LIGHT0, GL_CONSTANT_ATTENUATION, 1)",
                  "glLightf(GL_LIGHT0, GL_LINEAR_ATTENUATION, 0)",
                  "glLightf(GL_LIGHT0, GL_QUADRATIC_ATTENUATION, 0)",
                  "glLightfv(GL_LIGHT0, GL_POSITION, [0, 0, 1, 0])", "glEnable(GL_LIGHT0)"));
}

TEST_F(LightUnitTest, TheFourthComponentOfAColourIsTheIntensity) {
  light->setIntensity(2.0f);
  EXPECT_THAT(applyAfresh(Light::DIRECTIONAL),
              ::testing::Contains("glLightfv(GL_LIGHT0, GL_DIFFUSE, [2, 2, 2, 2])"));
}

TEST_F(LightUnitTest, AnAmbientLightSendsOnlyColoursAndAttenuation) {
  light->setAttenuation(3.0f, 4.0f, 5.0f);
  EXPECT_THAT(
      applyAfresh(Light::AMBIENT),
      ElementsAre("glLightfv(GL_LIGHT0, GL_AMBIENT, [1, 1, 1, 1])",
                  "glLightfv(GL_LIGHT0, GL_DIFFUSE, [0, 0, 0, 0])",
                  "glLightfv(GL_LIGHT0, GL_SPECULAR, [0, 0, 0, 0])",
                  "glLightf(GL_LIGHT0, GL_CONSTANT_ATTENUATION, 1)",
                  "glLightf(GL_LIGHT0, GL_LINEAR_ATTENUATION, 0)",
                  "glLightf(GL_LIGHT0, GL_QUADRATIC_ATTENUATION, 0)", "glEnable(GL_LIGHT0)"));
}

TEST_F(LightUnitTest, AnOmniLightSendsItsAttenuationAndPosition) {
  light->setAttenuation(3.0f, 4.0f, 5.0f);
  EXPECT_THAT(
      applyAfresh(Light::OMNI),
      ElementsAre("glLightfv(GL_LIGHT0, GL_AMBIENT, [0, 0, 0, 0])",
                  "glLightfv(GL_LIGHT0, GL_DIFFUSE, [1, 1, 1, 1])",
                  "glLightfv(GL_LIGHT0, GL_SPECULAR, [1, 1, 1, 1])",
                  "glLightf(GL_LIGHT0, GL_CONSTANT_ATTENUATION, 3)",
                  "glLightf(GL_LIGHT0, GL_LINEAR_ATTENUATION, 4)",
                  "glLightf(GL_LIGHT0, GL_QUADRATIC_ATTENUATION, 5)",
                  "glLightfv(GL_LIGHT0, GL_POSITION, [0, 0, 0, 1])", "glEnable(GL_LIGHT0)"));
}

TEST_F(LightUnitTest, ASpotLightShinesAlongPositiveZ) {
  light->setSpotAngle(30.0f);
  light->setSpotExponent(7.0f);
  EXPECT_THAT(applyAfresh(Light::SPOT),
              ElementsAre("glLightfv(GL_LIGHT0, GL_AMBIENT, [0, 0, 0, 0])",
                          "glLightfv(GL_LIGHT0, GL_DIFFUSE, [1, 1, 1, 1])",
                          "glLightfv(GL_LIGHT0, GL_SPECULAR, [1, 1, 1, 1])",
                          "glLightf(GL_LIGHT0, GL_CONSTANT_ATTENUATION, 1)",
                          "glLightf(GL_LIGHT0, GL_LINEAR_ATTENUATION, 0)",
                          "glLightf(GL_LIGHT0, GL_QUADRATIC_ATTENUATION, 0)",
                          "glLightf(GL_LIGHT0, GL_SPOT_CUTOFF, 30)",
                          "glLightf(GL_LIGHT0, GL_SPOT_EXPONENT, 7)",
                          "glLightfv(GL_LIGHT0, GL_POSITION, [0, 0, 0, 1])",
                          ::testing::StartsWith("glLightfv(GL_LIGHT0, GL_SPOT_DIRECTION, [0, 0, 1"),
                          "glEnable(GL_LIGHT0)"));
}

TEST_F(LightUnitTest, OnlyWhatChangedIsSent) {
  applyAfresh(Light::SPOT);
  EXPECT_THAT(apply(), ElementsAre("glEnable(GL_LIGHT0)"));
  light->setSpotAngle(10.0f);
  EXPECT_THAT(apply(),
              ElementsAre("glLightf(GL_LIGHT0, GL_SPOT_CUTOFF, 10)", "glEnable(GL_LIGHT0)"));
  light->setSpotExponent(10.0f);
  EXPECT_THAT(apply(),
              ElementsAre("glLightf(GL_LIGHT0, GL_SPOT_EXPONENT, 10)", "glEnable(GL_LIGHT0)"));
  light->setColor(0xFF0000);
  EXPECT_EQ(apply().size(), 4u);
  light->setAttenuation(1.0f, 1.0f, 1.0f);
  EXPECT_EQ(apply().size(), 4u);
  Transform moved;
  moved.postTranslate(1.0f, 2.0f, 3.0f);
  light->setGLLight(unit0, moved);
  EXPECT_THAT(apply(),
              ElementsAre("glLightfv(GL_LIGHT0, GL_POSITION, [1, 2, 3, 1])",
                          ::testing::StartsWith("glLightfv(GL_LIGHT0, GL_SPOT_DIRECTION, [0, 0, 1"),
                          "glEnable(GL_LIGHT0)"));
}

TEST_F(LightUnitTest, AStillLightIsNotMarkedAgain) {
  applyAfresh(Light::OMNI);
  light->setGLLight(unit0, identityTransform());
  EXPECT_FALSE(light->isTransformChanged());
  EXPECT_EQ(light->getChangeMask(), 0u);
}

TEST_F(LightUnitTest, AnotherUnitIsSentEverythingEvenWithAnUnchangedTransform) {
  const std::size_t all = applyAfresh(Light::SPOT).size();
  light->setGLLight(unit1, identityTransform());
  const Lines calls = apply();
  EXPECT_EQ(calls.size(), all);
  EXPECT_EQ(calls.back(), "glEnable(GL_LIGHT1)");
}

TEST_F(LightUnitTest, AnUnknownModeIsEnabledWithNoParameterSent) {
  EXPECT_THAT(applyAfresh(200), ElementsAre("glEnable(GL_LIGHT0)"));
  EXPECT_EQ(light->getChangeMask(), 0u);
}

TEST_F(LightUnitTest, ALightThatIsNotEnabledIsSwitchedOffAndKeepsItsMarks) {
  light->setRenderingEnable(false);
  EXPECT_THAT(applyAfresh(Light::OMNI), ElementsAre("glDisable(GL_LIGHT0)"));
  EXPECT_EQ(light->getChangeMask(), ~0u);
}

TEST_F(LightUnitTest, DisableSwitchesOffOnlyAHeldUnit) {
  light->disableLight();
  EXPECT_THAT(take(), IsEmpty());
  light->setGLLight(unit1, identityTransform());
  light->disableLight();
  EXPECT_THAT(take(), ElementsAre("glDisable(GL_LIGHT1)"));
}

TEST_F(LightUnitTest, ReleaseGivesTheUnitUpAndMarksEverything) {
  applyAfresh(Light::OMNI);
  light->releaseGLLight();
  EXPECT_EQ(light->getGLLight(), -1);
  EXPECT_EQ(light->getChangeMask(), ~0u);
  EXPECT_TRUE(light->isTransformChanged());
}

TEST_F(LightUnitTest, LeavingTheSpotModeRestoresNothing) {
  applyAfresh(Light::SPOT);
  light->setMode(Light::OMNI);
  for (const std::string& call : apply()) {
    EXPECT_EQ(call.find("SPOT"), std::string::npos) << call;
  }
}
