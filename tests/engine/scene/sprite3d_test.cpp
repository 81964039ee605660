#include "engine/scene/sprite3d.h"

#include <gtest/gtest.h>

#include <boost/pointer_cast.hpp>
#include <climits>
#include <stdexcept>

#include "engine/scene/ray_intersection.h"
#include "engine/surface/appearance.h"
#include "engine/surface/image2d.h"
#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::expectFailure;

struct Sprite3DTest : testing::Test {
  boost::shared_ptr<Image2D> image = Image2D::create(Image2D::RGB, 4, 8);
  boost::shared_ptr<Appearance> appearance = Appearance::create();

  boost::shared_ptr<Sprite3D> sprite(bool scaled = false) const {
    return Sprite3D::create(scaled, image, appearance);
  }
};

TEST_F(Sprite3DTest, KeepsWhatItIsMadeWith) {
  const auto made = sprite(true);
  EXPECT_TRUE(made->isScaled());
  EXPECT_EQ(made->getImage(), image);
  EXPECT_EQ(made->getAppearance(), appearance);
  EXPECT_FALSE(sprite(false)->isScaled());
  expectFailure<std::invalid_argument>(
      [&] { Sprite3D::create(true, boost::shared_ptr<Image2D>(), appearance); },
      "Sprite.setImage() called with null image");
}

TEST_F(Sprite3DTest, AnyImageIsCroppedToNothing) {
  const auto made = sprite();
  EXPECT_EQ(made->getCropWidth(), 0);
  EXPECT_EQ(made->getCropHeight(), 0);
  made->setCrop(3, 4, 0, 0);
  made->setImage(Image2D::create(Image2D::RGBA, 64, 64));
  EXPECT_EQ(made->getCropX(), 0);
  EXPECT_EQ(made->getCropY(), 0);
  EXPECT_EQ(made->getCropWidth(), 0);
  EXPECT_EQ(made->getCropHeight(), 0);
}

TEST_F(Sprite3DTest, ACropOfNoSizePasses) {
  const auto made = sprite();
  made->setCrop(5, 6, 0, 0);
  EXPECT_EQ(made->getCropX(), 5);
  EXPECT_EQ(made->getCropY(), 6);
}

TEST_F(Sprite3DTest, AnyOtherCropFailsAfterThePositionIsStored) {
  const int sizes[][2] = {{1, 1}, {-1, 0}, {0, -1}, {0, 1}, {INT_MIN, 0}, {0, INT_MIN}};
  for (const auto& size : sizes) {
    const auto made = sprite();
    expectFailure<std::invalid_argument>(
        [&] { made->setCrop(5, 6, size[0], size[1]); },
        "m3g.Sprite3D.setCrop .. width and/or height exceed limits");
    EXPECT_EQ(made->getCropX(), 5);
    EXPECT_EQ(made->getCropY(), 6);
    EXPECT_EQ(made->getCropWidth(), 0);
    EXPECT_EQ(made->getCropHeight(), 0);
  }
}

TEST_F(Sprite3DTest, IsAUserOfItsAppearance) {
  const auto made = sprite();
  ASSERT_EQ(appearance->getMeshes().size(), 1U);
  EXPECT_EQ(appearance->getMeshes()[0], made);
  const auto other = Appearance::create();
  made->setAppearance(other);
  EXPECT_TRUE(appearance->getMeshes().empty());
  EXPECT_EQ(other->getMeshes().size(), 1U);
  made->setAppearance(boost::shared_ptr<Appearance>());
  EXPECT_FALSE(made->getAppearance());
  EXPECT_TRUE(other->getMeshes().empty());
}

TEST_F(Sprite3DTest, ReportsAppearanceThenImage) {
  const auto made = sprite();
  EXPECT_EQ(made->getReferences(nullptr, 0), 2U);
  boost::shared_ptr<Object3D> references[2];
  EXPECT_EQ(made->getReferences(references, 2), 2U);
  EXPECT_EQ(references[0], appearance);
  EXPECT_EQ(references[1], image);
  expectFailure<std::invalid_argument>([&] { made->getReferences(references, 0); },
                                       "Cannot add appearance in Sprite3D::getReferences");
  expectFailure<std::invalid_argument>([&] { made->getReferences(references, 1); },
                                       "Cannot add image in Sprite3D::getReferences");
  made->setAppearance(boost::shared_ptr<Appearance>());
  EXPECT_EQ(made->getReferences(references, 1), 1U);
}

TEST_F(Sprite3DTest, ADuplicateSharesImageAndAppearance) {
  const auto made = sprite(true);
  made->setCrop(5, 6, 0, 0);
  made->setScope(12);
  const auto copy = boost::dynamic_pointer_cast<Sprite3D>(made->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_TRUE(copy->isScaled());
  EXPECT_EQ(copy->getImage(), image);
  EXPECT_EQ(copy->getAppearance(), appearance);
  EXPECT_EQ(copy->getCropX(), 5);
  EXPECT_EQ(copy->getCropY(), 6);
  EXPECT_EQ(copy->getScope(), 12);
}

TEST_F(Sprite3DTest, IsNeverHit) {
  const auto made = sprite();
  RayIntersection result;
  const float from[] = {0, 0, 1};
  const float to[] = {0, 0, -1};
  bool hit = true;
  EXPECT_EQ(varnel_test::outputOf([&] { hit = made->pickRay(from, to, Transform(), result); }),
            "Sprite3D::pick\n");
  EXPECT_FALSE(hit);
}

}  // namespace
}  // namespace varnel_m3g
