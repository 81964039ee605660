#include "engine/surface/polygon_mode.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::outputOf;

TEST(PolygonMode, StartsWithBackCullingCounterClockwiseSmooth) {
  const auto mode = PolygonMode::create();
  EXPECT_EQ(mode->getCulling(), 160);
  EXPECT_EQ(mode->getWinding(), 168);
  EXPECT_EQ(mode->getShading(), 165);
  EXPECT_EQ(mode->getGlCullFace(), 1029u);
  EXPECT_EQ(mode->getGlFrontFace(), 2305u);
  EXPECT_EQ(mode->getGlShadeModel(), 7425u);
  EXPECT_FALSE(mode->isTwoSidedLightingEnabled());
  EXPECT_FALSE(mode->isLocalCameraLightingEnabled());
  EXPECT_FALSE(mode->isPerspectiveCorrectionEnabled());
  EXPECT_EQ(mode->getReferences(nullptr, 0), 0u);
}

TEST(PolygonMode, StoresEveryCullingAndKeepsTheFaceForUnknownOnes) {
  const auto mode = PolygonMode::create();
  const struct {
    int culling;
    unsigned face;
  } cases[] = {{161, 1028},
               {999, 1028},
               {160, 1029},
               {-1, 1029},
               {161, 1028},
               {162, 1029},
               {std::numeric_limits<int>::max(), 1029}};
  for (const auto& c : cases) {
    mode->setCulling(c.culling);
    EXPECT_EQ(mode->getCulling(), c.culling);
    EXPECT_EQ(mode->getGlCullFace(), c.face);
  }
}

TEST(PolygonMode, IgnoresUnknownWindings) {
  const auto mode = PolygonMode::create();
  const struct {
    int given, winding;
    unsigned face;
  } cases[] = {
      {999, 168, 2305}, {169, 169, 2304}, {0, 169, 2304}, {-168, 169, 2304}, {168, 168, 2305}};
  for (const auto& c : cases) {
    mode->setWinding(c.given);
    EXPECT_EQ(mode->getWinding(), c.winding);
    EXPECT_EQ(mode->getGlFrontFace(), c.face);
  }
}

TEST(PolygonMode, IgnoresUnknownShadings) {
  const auto mode = PolygonMode::create();
  const struct {
    int given, shading;
    unsigned model;
  } cases[] = {
      {999, 165, 7425}, {164, 164, 7424}, {0, 164, 7424}, {166, 164, 7424}, {165, 165, 7425}};
  for (const auto& c : cases) {
    mode->setShading(c.given);
    EXPECT_EQ(mode->getShading(), c.shading);
    EXPECT_EQ(mode->getGlShadeModel(), c.model);
  }
}

TEST(PolygonMode, SwitchesEachFlagAlone) {
  const auto mode = PolygonMode::create();
  mode->setTwoSidedLightingEnable(true);
  EXPECT_TRUE(mode->isTwoSidedLightingEnabled());
  EXPECT_FALSE(mode->isLocalCameraLightingEnabled());
  mode->setTwoSidedLightingEnable(false);
  mode->setLocalCameraLightingEnable(true);
  EXPECT_FALSE(mode->isTwoSidedLightingEnabled());
  EXPECT_TRUE(mode->isLocalCameraLightingEnabled());
  EXPECT_FALSE(mode->isPerspectiveCorrectionEnabled());
  mode->setLocalCameraLightingEnable(false);
  mode->setPerspectiveCorrectionEnable(true);
  EXPECT_FALSE(mode->isLocalCameraLightingEnabled());
  EXPECT_TRUE(mode->isPerspectiveCorrectionEnabled());
}

TEST(PolygonMode, DumpsFlatShadingForSmoothToo) {
  const auto mode = PolygonMode::create();
  EXPECT_EQ(outputOf([&] { mode->dump(); }), baseDump() +
                                                 "PolygonMode Object\n"
                                                 "==================\n"
                                                 "Culling: CULL_BACK\n"
                                                 "Winding: WINDING_CCW\n"
                                                 "Shading: SHADE_FLAT\n"
                                                 "TwoSidedLightingEnabled:      0\n"
                                                 "LocalCameraLightingEnabled:   0\n"
                                                 "PerspectiveCorrectionEnabled: 0\n");
  mode->setShading(164);
  mode->setWinding(169);
  mode->setCulling(161);
  mode->setTwoSidedLightingEnable(true);
  mode->setLocalCameraLightingEnable(true);
  mode->setPerspectiveCorrectionEnable(true);
  EXPECT_EQ(outputOf([&] { mode->dump(); }), baseDump() +
                                                 "PolygonMode Object\n"
                                                 "==================\n"
                                                 "Culling: CULL_FRONT\n"
                                                 "Winding: WINDING_CW\n"
                                                 "Shading: SHADE_FLAT\n"
                                                 "TwoSidedLightingEnabled:      1\n"
                                                 "LocalCameraLightingEnabled:   1\n"
                                                 "PerspectiveCorrectionEnabled: 1\n");
}

TEST(PolygonMode, DumpsTheNamesOfTheOtherCullings) {
  const auto mode = PolygonMode::create();
  mode->setCulling(162);
  EXPECT_NE(outputOf([&] { mode->dump(); }).find("\nCulling: CULL_NONE\n"), std::string::npos);
  mode->setCulling(163);
  EXPECT_NE(outputOf([&] { mode->dump(); }).find("\nCulling: UNKNOWN\n"), std::string::npos);
}

TEST(PolygonMode, DuplicateCopiesDerivedFieldsTooAndIsIndependent) {
  const auto mode = PolygonMode::create();
  mode->setUserID(5);
  mode->setCulling(161);
  mode->setCulling(999);
  mode->setWinding(169);
  mode->setShading(164);
  mode->setTwoSidedLightingEnable(true);
  mode->setLocalCameraLightingEnable(true);
  mode->setPerspectiveCorrectionEnable(true);
  const auto copy = duplicateOf(*mode);
  EXPECT_EQ(copy->getUserID(), 5);
  EXPECT_EQ(copy->getCulling(), 999);
  EXPECT_EQ(copy->getGlCullFace(), 1028u);
  EXPECT_EQ(copy->getWinding(), 169);
  EXPECT_EQ(copy->getGlFrontFace(), 2304u);
  EXPECT_EQ(copy->getShading(), 164);
  EXPECT_EQ(copy->getGlShadeModel(), 7424u);
  EXPECT_TRUE(copy->isTwoSidedLightingEnabled());
  EXPECT_TRUE(copy->isLocalCameraLightingEnabled());
  EXPECT_TRUE(copy->isPerspectiveCorrectionEnabled());
  copy->setWinding(168);
  EXPECT_EQ(mode->getWinding(), 169);
}

}  // namespace
}  // namespace varnel_m3g
