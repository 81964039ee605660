#include "engine/scene/ray_intersection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "engine/object/engine_limits.h"
#include "engine/scene/group.h"
#include "tests/support/exception_text.h"

namespace varnel_m3g {
namespace {

using testing::ElementsAre;
using varnel_test::textOf;

TEST(RayIntersection, StartsWithoutAHit) {
  const RayIntersection result;
  EXPECT_FALSE(result.getIntersected());
  EXPECT_EQ(result.getDistance(), 0.0f);
  EXPECT_EQ(result.getSubmeshIndex(), 0);
  EXPECT_EQ(result.getNormalX(), 0.0f);
  EXPECT_EQ(result.getNormalY(), 0.0f);
  EXPECT_EQ(result.getNormalZ(), 1.0f);
  float ray[6];
  result.getRay(ray);
  EXPECT_THAT(ray, ElementsAre(0, 0, 0, 0, 0, 1));
}

TEST(RayIntersection, TheNumberOfUnitsPassesAsAnIndex) {
  const RayIntersection result;
  EXPECT_EQ(result.getTextureS(maxTextureUnits), 0.0f);
  EXPECT_EQ(result.getTextureT(maxTextureUnits), 0.0f);
  for (int unit : {-1, maxTextureUnits + 1}) {
    EXPECT_EQ(textOf<std::out_of_range>([&] { result.getTextureS(unit); }),
              "RayIntersection::getTextureS called with invalid index");
    EXPECT_EQ(textOf<std::out_of_range>([&] { result.getTextureT(unit); }),
              "RayIntersection::getTextureT called with invalid index");
  }
}

TEST(RayIntersection, FollowsAGrowingNumberOfUnits) {
  const int before = maxTextureUnits;
  RayIntersection result;
  maxTextureUnits = before + 2;
  EXPECT_EQ(result.getTextureS(before + 1), 0.0f);
  result.setTextureCoords(static_cast<unsigned>(before + 1), 0.25f, 0.5f);
  EXPECT_EQ(result.getTextureS(before + 1), 0.25f);
  EXPECT_EQ(result.getTextureT(before + 1), 0.5f);
  maxTextureUnits = before;
}

TEST(RayIntersection, RefusesNoRoomForTheRay) {
  const RayIntersection result;
  EXPECT_THROW(result.getRay(nullptr), std::invalid_argument);
}

TEST(RayIntersection, KeepsTheNodeAlive) {
  RayIntersection result;
  boost::weak_ptr<Node> watch;
  {
    const boost::shared_ptr<Node> node = Group::create();
    watch = node;
    result.setIntersected(node, 3);
  }
  EXPECT_FALSE(watch.expired());
  EXPECT_EQ(result.getSubmeshIndex(), 3);
}

}  // namespace
}  // namespace varnel_m3g
