#include "engine/surface/compositing_mode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;

TEST(CompositingMode, StartsReplacingWithEverythingEnabled) {
  const auto mode = CompositingMode::create();
  EXPECT_EQ(mode->getBlending(), 68);
  EXPECT_EQ(mode->getSrcFactor(), 1u);
  EXPECT_EQ(mode->getDstFactor(), 0u);
  EXPECT_TRUE(mode->isColorWriteEnabled());
  EXPECT_TRUE(mode->isAlphaWriteEnabled());
  EXPECT_TRUE(mode->isDepthWriteEnabled());
  EXPECT_TRUE(mode->isDepthTestEnabled());
  EXPECT_EQ(mode->getAlphaThreshold(), 0.0f);
  EXPECT_TRUE(mode->isDepthOffsetZero());
  EXPECT_EQ(mode->getDepthOffsetUnits(), 0.0f);
  EXPECT_EQ(mode->getDepthOffsetFactor(), 0.0f);
  EXPECT_EQ(mode->getReferences(nullptr, 0), 0u);
}

TEST(CompositingMode, DerivesTheBlendFactors) {
  const auto mode = CompositingMode::create();
  const struct {
    int blending;
    unsigned src, dst;
  } cases[] = {{64, 770, 771}, {65, 770, 1}, {66, 774, 0},   {67, 774, 768}, {0, 774, 768},
               {68, 1, 0},     {-1, 1, 0},   {64, 770, 771}, {69, 770, 771}};
  for (const auto& c : cases) {
    mode->setBlending(c.blending);
    EXPECT_EQ(mode->getBlending(), c.blending);
    EXPECT_EQ(mode->getSrcFactor(), c.src);
    EXPECT_EQ(mode->getDstFactor(), c.dst);
  }
}

TEST(CompositingMode, TakesThresholdsFromZeroToOne) {
  const auto mode = CompositingMode::create();
  for (const float threshold : {0.5f, 1.0f, 0.0f, -0.0f, std::nextafter(1.0f, 0.0f)}) {
    mode->setAlphaThreshold(threshold);
    EXPECT_EQ(mode->getAlphaThreshold(), threshold);
  }
}

TEST(CompositingMode, RefusesOtherThresholdsAndStaysAsItWas) {
  const auto mode = CompositingMode::create();
  mode->setAlphaThreshold(0.25f);
  for (const float threshold :
       {-0.001f, std::nextafter(1.0f, 2.0f), NAN, std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::denorm_min()}) {
    expectFailure<std::invalid_argument>(
        [&] { mode->setAlphaThreshold(threshold); },
        "CompositingMode.setAlphaThreshold -- threshold value out of range [0  1]");
    EXPECT_EQ(mode->getAlphaThreshold(), 0.25f);
  }
}

TEST(CompositingMode, KnowsWhetherTheDepthOffsetIsZero) {
  const auto mode = CompositingMode::create();
  const struct {
    float factor, units;
    bool zero;
  } cases[] = {{0.0f, 1.0f, false},
               {1.0f, 0.0f, false},
               {0.0f, -0.0f, true},
               {-2.5f, std::numeric_limits<float>::infinity(), false},
               {0.0f, 0.0f, true}};
  for (const auto& c : cases) {
    mode->setDepthOffset(c.factor, c.units);
    EXPECT_EQ(mode->getDepthOffsetFactor(), c.factor);
    EXPECT_EQ(mode->getDepthOffsetUnits(), c.units);
    EXPECT_EQ(mode->isDepthOffsetZero(), c.zero);
  }
  mode->setDepthOffset(NAN, 0.0f);
  EXPECT_TRUE(std::isnan(mode->getDepthOffsetFactor()));
  EXPECT_FALSE(mode->isDepthOffsetZero());
}

TEST(CompositingMode, SwitchesEachFlagAlone) {
  const auto mode = CompositingMode::create();
  mode->setColorWriteEnable(false);
  EXPECT_FALSE(mode->isColorWriteEnabled());
  EXPECT_TRUE(mode->isAlphaWriteEnabled());
  mode->setColorWriteEnable(true);
  mode->setAlphaWriteEnable(false);
  EXPECT_TRUE(mode->isColorWriteEnabled());
  EXPECT_FALSE(mode->isAlphaWriteEnabled());
  EXPECT_TRUE(mode->isDepthWriteEnabled());
  mode->setAlphaWriteEnable(true);
  mode->setDepthWriteEnable(false);
  EXPECT_FALSE(mode->isDepthWriteEnabled());
  EXPECT_TRUE(mode->isDepthTestEnabled());
  mode->setDepthWriteEnable(true);
  mode->setDepthTestEnable(false);
  EXPECT_TRUE(mode->isDepthWriteEnabled());
  EXPECT_FALSE(mode->isDepthTestEnabled());
}

TEST(CompositingMode, DumpsItsFields) {
  const auto mode = CompositingMode::create();
  mode->setDepthTestEnable(false);
  mode->setAlphaThreshold(0.5f);
  mode->setDepthOffset(1.5f, -2.0f);
  EXPECT_EQ(outputOf([&] { mode->dump(); }), baseDump() +
                                                 "CompositingMode Object\n"
                                                 "======================\n"
                                                 "Blending: REPLACE\n"
                                                 "ColorWriteEnabled: 1\n"
                                                 "AlphaWriteEnabled: 1\n"
                                                 "DepthWriteEnabled: 1\n"
                                                 "DepthTestEnabled: 0\n"
                                                 "AlphaThreshold: 0.500000\n"
                                                 "DepthOffsetUnits: -2.000000\n"
                                                 "DepthOffsetFactor: 1.500000\n");
}

TEST(CompositingMode, DumpsTheNameOfEachBlending) {
  const auto mode = CompositingMode::create();
  const struct {
    int blending;
    const char* line;
  } cases[] = {{64, "\nBlending: ALPHA\n"},
               {65, "\nBlending: ALPHA_ADD\n"},
               {66, "\nBlending: MODULATE\n"},
               {67, "\nBlending: MODULATE_X2\n"},
               {0, "\nBlending: UNKNOWN\n"}};
  for (const auto& c : cases) {
    mode->setBlending(c.blending);
    EXPECT_NE(outputOf([&] { mode->dump(); }).find(c.line), std::string::npos) << c.line;
  }
}

TEST(CompositingMode, DuplicateKeepsTheFactorsOfAnUnknownBlending) {
  const auto mode = CompositingMode::create();
  mode->setUserID(9);
  mode->setBlending(67);
  mode->setBlending(123);
  mode->setAlphaThreshold(0.75f);
  mode->setDepthOffset(1.0f, 2.0f);
  mode->setColorWriteEnable(false);
  mode->setAlphaWriteEnable(false);
  mode->setDepthWriteEnable(false);
  mode->setDepthTestEnable(false);
  const auto copy = duplicateOf(*mode);
  EXPECT_EQ(copy->getUserID(), 9);
  EXPECT_EQ(copy->getBlending(), 123);
  EXPECT_EQ(copy->getSrcFactor(), 774u);
  EXPECT_EQ(copy->getDstFactor(), 768u);
  EXPECT_EQ(copy->getAlphaThreshold(), 0.75f);
  EXPECT_EQ(copy->getDepthOffsetFactor(), 1.0f);
  EXPECT_EQ(copy->getDepthOffsetUnits(), 2.0f);
  EXPECT_FALSE(copy->isDepthOffsetZero());
  EXPECT_FALSE(copy->isColorWriteEnabled());
  EXPECT_FALSE(copy->isAlphaWriteEnabled());
  EXPECT_FALSE(copy->isDepthWriteEnabled());
  EXPECT_FALSE(copy->isDepthTestEnabled());
  copy->setAlphaThreshold(0.0f);
  EXPECT_EQ(mode->getAlphaThreshold(), 0.75f);
}

}  // namespace
}  // namespace varnel_m3g
