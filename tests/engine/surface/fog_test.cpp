#include "engine/surface/fog.h"

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

void expectColor(const Fog& fog, float r, float g, float b, float a) {
  EXPECT_EQ(fog.getColorRGBA()[0], r);
  EXPECT_EQ(fog.getColorRGBA()[1], g);
  EXPECT_EQ(fog.getColorRGBA()[2], b);
  EXPECT_EQ(fog.getColorRGBA()[3], a);
}

TEST(Fog, StartsLinearFromZeroToOneInTransparentBlack) {
  const auto fog = Fog::create();
  EXPECT_EQ(fog->getMode(), 81);
  EXPECT_EQ(fog->getDensity(), 1.0f);
  EXPECT_EQ(fog->getNearDistance(), 0.0f);
  EXPECT_EQ(fog->getFarDistance(), 1.0f);
  EXPECT_EQ(fog->getColor(), 0);
  expectColor(*fog, 0.0f, 0.0f, 0.0f, 0.0f);
  EXPECT_TRUE(fog->isDirty());
  EXPECT_EQ(fog->getReferences(nullptr, 0), 0u);
}

TEST(Fog, KeepsTheColorAsGivenAndMakesItOpaqueForGL) {
  const auto fog = Fog::create();
  const struct {
    int color;
    int r, g, b;
  } cases[] = {{0x12345678, 0x34, 0x56, 0x78},
               {0, 0, 0, 0},
               {-1, 255, 255, 255},
               {static_cast<int>(0x80FF0001u), 255, 0, 1},
               {std::numeric_limits<int>::min(), 0, 0, 0}};
  for (const auto& c : cases) {
    fog->clearDirty();
    fog->setColor(c.color);
    EXPECT_EQ(fog->getColor(), c.color);
    expectColor(*fog, static_cast<float>(c.r / 255.0), static_cast<float>(c.g / 255.0),
                static_cast<float>(c.b / 255.0), 1.0f);
    EXPECT_TRUE(fog->isDirty());
  }
}

TEST(Fog, StoresEveryMode) {
  const auto fog = Fog::create();
  for (const int mode : {80, 81, 0, -1, std::numeric_limits<int>::max()}) {
    fog->clearDirty();
    fog->setMode(mode);
    EXPECT_EQ(fog->getMode(), mode);
    EXPECT_TRUE(fog->isDirty());
  }
}

TEST(Fog, StoresNearAndFarInAnyOrder) {
  const auto fog = Fog::create();
  fog->clearDirty();
  fog->setLinear(10.0f, 5.0f);
  EXPECT_EQ(fog->getNearDistance(), 10.0f);
  EXPECT_EQ(fog->getFarDistance(), 5.0f);
  EXPECT_TRUE(fog->isDirty());
  fog->setLinear(-std::numeric_limits<float>::infinity(), NAN);
  EXPECT_EQ(fog->getNearDistance(), -std::numeric_limits<float>::infinity());
  EXPECT_TRUE(std::isnan(fog->getFarDistance()));
}

TEST(Fog, TakesDensitiesThatAreNotBelowZero) {
  const auto fog = Fog::create();
  for (const float density :
       {0.0f, -0.0f, 0.5f, std::numeric_limits<float>::max(),
        std::numeric_limits<float>::infinity(), std::numeric_limits<float>::denorm_min()}) {
    fog->clearDirty();
    fog->setDensity(density);
    EXPECT_EQ(fog->getDensity(), density);
    EXPECT_EQ(std::signbit(fog->getDensity()), std::signbit(density));
    EXPECT_TRUE(fog->isDirty());
  }
  fog->setDensity(NAN);
  EXPECT_TRUE(std::isnan(fog->getDensity()));
}

TEST(Fog, RefusesANegativeDensityAndStaysAsItWas) {
  const auto fog = Fog::create();
  fog->setDensity(2.0f);
  fog->clearDirty();
  for (const float density : {-0.5f, -std::numeric_limits<float>::denorm_min(),
                              -std::numeric_limits<float>::infinity()}) {
    expectFailure<std::invalid_argument>([&] { fog->setDensity(density); },
                                         "Fog.setDensity -- density < 0");
    EXPECT_EQ(fog->getDensity(), 2.0f);
    EXPECT_FALSE(fog->isDirty());
  }
}

TEST(Fog, DumpsTheFieldsOfItsMode) {
  const auto fog = Fog::create();
  fog->setUserID(7);
  fog->setColor(static_cast<int>(0xFF00ABCDu));
  fog->setLinear(0.5f, 12.25f);
  EXPECT_EQ(outputOf([&] { fog->dump(); }), baseDump(7) +
                                                "Fog Object\n"
                                                "==========\n"
                                                "ColorRGB 0xFF00ABCD\n"
                                                "Mode: LINEAR\n"
                                                "Near:   0.5000\n"
                                                "Far:  12.2500\n");
  fog->setMode(80);
  fog->setDensity(0.125f);
  EXPECT_EQ(outputOf([&] { fog->dump(); }), baseDump(7) +
                                                "Fog Object\n"
                                                "==========\n"
                                                "ColorRGB 0xFF00ABCD\n"
                                                "Mode: EXPONENTIAL\n"
                                                "Density:   0.1250\n");
  fog->setMode(0);
  EXPECT_EQ(outputOf([&] { fog->dump(); }), baseDump(7) +
                                                "Fog Object\n"
                                                "==========\n"
                                                "ColorRGB 0xFF00ABCD\n"
                                                "Mode: UNKNOWN\n");
}

TEST(Fog, DuplicateCopiesEveryFieldAndIsIndependent) {
  const auto fog = Fog::create();
  fog->setUserID(3);
  fog->setMode(99);
  fog->setDensity(4.0f);
  fog->setLinear(1.0f, 2.0f);
  const auto early = duplicateOf(*fog);
  expectColor(*early, 0.0f, 0.0f, 0.0f, 0.0f);
  fog->setColor(0x00FF00FF);
  const auto copy = duplicateOf(*fog);
  EXPECT_EQ(copy->getUserID(), 3);
  EXPECT_EQ(copy->getMode(), 99);
  EXPECT_EQ(copy->getDensity(), 4.0f);
  EXPECT_EQ(copy->getNearDistance(), 1.0f);
  EXPECT_EQ(copy->getFarDistance(), 2.0f);
  EXPECT_EQ(copy->getColor(), 0x00FF00FF);
  expectColor(*copy, 1.0f, 0.0f, 1.0f, 1.0f);
  copy->setDensity(5.0f);
  copy->setColor(0);
  EXPECT_EQ(fog->getDensity(), 4.0f);
  expectColor(*fog, 1.0f, 0.0f, 1.0f, 1.0f);
}

}  // namespace
}  // namespace varnel_m3g
