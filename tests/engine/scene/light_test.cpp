#include "engine/scene/light.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "engine/scene/world.h"
#include "tests/support/exception_text.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;
using varnel_test::textOf;

std::vector<float> scaledColorOf(const Light& light) {
  return std::vector<float>(light.getScaledColor(), light.getScaledColor() + 4);
}

TEST(Light, StartsDirectionalAndWhite) {
  const shared_ptr<Light> light = Light::create();
  EXPECT_EQ(light->getMode(), Light::DIRECTIONAL);
  EXPECT_EQ(light->getColor(), 0xFFFFFF);
  EXPECT_EQ(light->getIntensity(), 1.0f);
  EXPECT_EQ(light->getConstantAttenuation(), 1.0f);
  EXPECT_EQ(light->getLinearAttenuation(), 0.0f);
  EXPECT_EQ(light->getQuadraticAttenuation(), 0.0f);
  EXPECT_EQ(light->getSpotAngle(), 45.0f);
  EXPECT_EQ(light->getSpotExponent(), 0.0f);
  EXPECT_EQ(light->getGLLight(), -1);
  EXPECT_TRUE(light->isTransformChanged());
  EXPECT_EQ(light->getChangeMask(), ~0u);
  EXPECT_THAT(scaledColorOf(*light), ElementsAre(1, 1, 1, 1));
}

TEST(LightAttenuation, RefusesNegativeValuesFirst) {
  const shared_ptr<Light> light = Light::create();
  const std::string text = "Invalid Attenuation value - negative values not allowed.";
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setAttenuation(-1, 0, 0); }), text);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setAttenuation(0, -1, 0); }), text);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setAttenuation(0, 0, -1); }), text);
}

TEST(LightAttenuation, RefusesThreeZeros) {
  const shared_ptr<Light> light = Light::create();
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setAttenuation(0, 0, 0); }),
            "Invalid Attenuation values - all are zero.");
  light->setAttenuation(0, 0, 0.5f);
  EXPECT_EQ(light->getConstantAttenuation(), 0.0f);
  EXPECT_EQ(light->getQuadraticAttenuation(), 0.5f);
}

TEST(LightSpot, AngleAndExponentHaveRangesWithTheirLimits) {
  const shared_ptr<Light> light = Light::create();
  const std::string angle = "Invalid spotlight angle -- value out of range.";
  const std::string exponent = "Invalid spotlight exponent -- value out of range.";
  light->setSpotAngle(90);
  light->setSpotAngle(0);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setSpotAngle(90.1f); }), angle);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setSpotAngle(-0.1f); }), angle);
  EXPECT_EQ(light->getSpotAngle(), 0.0f);
  light->setSpotExponent(0);
  light->setSpotExponent(128);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setSpotExponent(128.1f); }), exponent);
  EXPECT_EQ(textOf<std::invalid_argument>([&] { light->setSpotExponent(-0.1f); }), exponent);
  EXPECT_EQ(light->getSpotExponent(), 128.0f);
}

TEST(LightColor, IntensityScalesWithoutAClampAndComesFourth) {
  const shared_ptr<Light> light = Light::create();
  light->setIntensity(2);
  EXPECT_THAT(scaledColorOf(*light), ElementsAre(2, 2, 2, 2));
  light->setIntensity(-0.5f);
  EXPECT_THAT(scaledColorOf(*light), ElementsAre(-0.5f, -0.5f, -0.5f, -0.5f));
}

TEST(LightColor, KeepsTheUpperBitsAndScalesTheChannels) {
  const shared_ptr<Light> light = Light::create();
  light->setIntensity(0.5f);
  light->setColor(static_cast<int>(0x80336699u));
  EXPECT_EQ(light->getColor(), static_cast<int>(0x80336699u));
  EXPECT_THAT(scaledColorOf(*light), ElementsAre(static_cast<float>(0x33 * 0.5 / 255.0),
                                                 static_cast<float>(0x66 * 0.5 / 255.0),
                                                 static_cast<float>(0x99 * 0.5 / 255.0), 0.5f));
}

TEST(LightMode, StoresAnything) {
  const shared_ptr<Light> light = Light::create();
  light->setMode(200);
  EXPECT_EQ(light->getMode(), 200);
}

TEST(LightDuplicate, CopiesTheSettingsAndHoldsNoUnit) {
  const shared_ptr<Light> light = Light::create();
  light->setMode(Light::SPOT);
  light->setColor(0x123456);
  light->setIntensity(3);
  light->setAttenuation(0.5f, 0.25f, 2);
  light->setSpotAngle(30);
  light->setSpotExponent(5);
  const shared_ptr<Light> copy = boost::dynamic_pointer_cast<Light>(light->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->getMode(), Light::SPOT);
  EXPECT_EQ(copy->getColor(), 0x123456);
  EXPECT_EQ(copy->getIntensity(), 3.0f);
  EXPECT_EQ(copy->getConstantAttenuation(), 0.5f);
  EXPECT_EQ(copy->getLinearAttenuation(), 0.25f);
  EXPECT_EQ(copy->getQuadraticAttenuation(), 2.0f);
  EXPECT_EQ(copy->getSpotAngle(), 30.0f);
  EXPECT_EQ(copy->getSpotExponent(), 5.0f);
  EXPECT_EQ(scaledColorOf(*copy), scaledColorOf(*light));
  EXPECT_EQ(copy->getGLLight(), -1);
}

TEST(LightRoot, EntersAndLeavesTheListOfItsWorld) {
  const shared_ptr<Light> first = Light::create();
  const shared_ptr<Light> second = Light::create();
  const shared_ptr<Light> third = Light::create();
  const shared_ptr<Group> group = Group::create();
  group->addChild(first);
  group->addChild(second);
  const shared_ptr<World> world = World::create();
  world->addChild(third);
  world->addChild(group);
  EXPECT_THAT(world->getLights(), ElementsAre(third, first, second));
  group->removeChild(first);
  EXPECT_THAT(world->getLights(), ElementsAre(third, second));
  group->addChild(first);
  EXPECT_THAT(world->getLights(), ElementsAre(third, second, first));
  world->removeChild(group);
  EXPECT_THAT(world->getLights(), ElementsAre(third));
}

}  // namespace
}  // namespace varnel_m3g
