#include "engine/surface/background.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/surface/image2d.h"
#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;
using varnel_test::referencesOf;

void expectCrop(const Background& background, int x, int y, int width, int height) {
  EXPECT_EQ(background.getCropX(), x);
  EXPECT_EQ(background.getCropY(), y);
  EXPECT_EQ(background.getCropWidth(), width);
  EXPECT_EQ(background.getCropHeight(), height);
}

void expectClearColor(const Background& background, float r, float g, float b, float a) {
  EXPECT_EQ(background.getClearColorRGBA()[0], r);
  EXPECT_EQ(background.getClearColorRGBA()[1], g);
  EXPECT_EQ(background.getClearColorRGBA()[2], b);
  EXPECT_EQ(background.getClearColorRGBA()[3], a);
}

TEST(Background, StartsTransparentBlackWithoutImageAndClearsBoth) {
  const auto background = Background::create();
  EXPECT_EQ(background->getColor(), 0);
  expectClearColor(*background, 0.0f, 0.0f, 0.0f, 0.0f);
  EXPECT_EQ(background->getImageModeX(), 32);
  EXPECT_EQ(background->getImageModeY(), 32);
  EXPECT_FALSE(background->getImage());
  expectCrop(*background, 0, 0, 0, 0);
  EXPECT_TRUE(background->isColorClearEnabled());
  EXPECT_TRUE(background->isDepthClearEnabled());
  EXPECT_FALSE(background->areTexCoordsDirty());
  const float coords[8] = {0, 0, 0, 1, 1, 0, 1, 1};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(background->getTexCoords()[i], coords[i]);
  }
}

TEST(Background, SplitsTheColor) {
  const auto background = Background::create();
  background->setColor(static_cast<int>(0x80FF0000u));
  EXPECT_EQ(background->getColor(), static_cast<int>(0x80FF0000u));
  expectClearColor(*background, 1.0f, 0.0f, 0.0f, static_cast<float>(128 / 255.0));
  background->setColor(0x01020304);
  expectClearColor(*background, static_cast<float>(2 / 255.0), static_cast<float>(3 / 255.0),
                   static_cast<float>(4 / 255.0), static_cast<float>(1 / 255.0));
  background->setColor(-1);
  EXPECT_EQ(background->getColor(), -1);
  expectClearColor(*background, 1.0f, 1.0f, 1.0f, 1.0f);
}

TEST(Background, SwitchesTheClears) {
  const auto background = Background::create();
  background->setColorClearEnable(false);
  EXPECT_FALSE(background->isColorClearEnabled());
  EXPECT_TRUE(background->isDepthClearEnabled());
  background->setDepthClearEnable(false);
  background->setColorClearEnable(true);
  EXPECT_TRUE(background->isColorClearEnabled());
  EXPECT_FALSE(background->isDepthClearEnabled());
}

TEST(Background, StoresEveryImageMode) {
  const auto background = Background::create();
  background->setImageMode(33, 999);
  EXPECT_EQ(background->getImageModeX(), 33);
  EXPECT_EQ(background->getImageModeY(), 999);
  EXPECT_TRUE(background->areTexCoordsDirty());
}

TEST(Background, TakesCropsOfAnyPlaceAndOfNoNegativeSize) {
  const auto background = Background::create();
  const int most = std::numeric_limits<int>::max();
  const int least = std::numeric_limits<int>::min();
  background->setCrop(-1, -1, 5, 5);
  expectCrop(*background, -1, -1, 5, 5);
  EXPECT_TRUE(background->areTexCoordsDirty());
  background->setCrop(least, most, most, 0);
  expectCrop(*background, least, most, most, 0);
  for (const auto& size : std::vector<std::vector<int>>{{-1, 5}, {5, -1}, {least, least}}) {
    expectFailure<std::invalid_argument>([&] { background->setCrop(1, 2, size[0], size[1]); },
                                         "Background.setCrop negative width/height");
    expectCrop(*background, least, most, most, 0);
  }
}

TEST(Background, TheCropMayBeLargerThanTheImage) {
  const auto background = Background::create();
  background->setImage(Image2D::create(Image2D::RGB, 4, 2));
  background->setCrop(1, 1, 400, 200);
  expectCrop(*background, 1, 1, 400, 200);
}

TEST(Background, AnImageBringsItsCrop) {
  const auto background = Background::create();
  for (const int format : {99, 100}) {
    const auto image = Image2D::create(format, 6, format);
    background->setImage(image);
    EXPECT_EQ(background->getImage(), image);
    expectCrop(*background, 0, 0, 6, format);
  }
  background->setImage(boost::shared_ptr<Image2D>());
  EXPECT_FALSE(background->getImage());
  expectCrop(*background, 0, 0, 0, 0);
}

TEST(Background, RefusesImagesWithoutColorAndKeepsTheOldOne) {
  const auto background = Background::create();
  const auto image = Image2D::create(Image2D::RGBA, 2, 2);
  background->setImage(image);
  background->setCrop(1, 1, 1, 1);
  for (const int format : {96, 97, 98}) {
    expectFailure<std::invalid_argument>(
        [&] { background->setImage(Image2D::create(format, 4, 4)); },
        "image format must be one of Image2D.RGB or Image2D.RGBA");
    EXPECT_EQ(background->getImage(), image);
    expectCrop(*background, 1, 1, 1, 1);
  }
}

TEST(Background, RefersToItsImage) {
  const auto background = Background::create();
  EXPECT_TRUE(referencesOf(*background).empty());
  const auto image = Image2D::create(Image2D::RGB, 1, 1);
  background->setImage(image);
  EXPECT_EQ(referencesOf(*background), (std::vector<boost::shared_ptr<Object3D>>{image}));
  boost::shared_ptr<Object3D> room;
  expectFailure<std::invalid_argument>([&] { background->getReferences(&room, 0); },
                                       "Background image exceeds reference limit in getReferences");
  EXPECT_FALSE(room);
}

TEST(Background, DumpsItsFields) {
  const auto background = Background::create();
  background->setColor(static_cast<int>(0x80FF0001u));
  EXPECT_EQ(outputOf([&] { background->dump(); }), baseDump() +
                                                       "Background Object\n"
                                                       "=================\n"
                                                       "ColorRGBA: 0x80FF0001\n"
                                                       "BackgroundImageModeX: BORDER\n"
                                                       "BackgroundImageModeY: BORDER\n"
                                                       "CropX:                0\n"
                                                       "CropY:                0\n"
                                                       "CropWidth:            0\n"
                                                       "CropHeight:           0\n"
                                                       "ColorClearEnabled:    1\n"
                                                       "DepthClearEnabled:    1\n");
  const auto image = Image2D::create(Image2D::RGB, 4, 2);
  image->setUserID(42);
  background->setImage(image);
  background->setImageMode(33, 7);
  background->setCrop(1, 2, 3, 4);
  background->setDepthClearEnable(false);
  EXPECT_EQ(outputOf([&] { background->dump(); }), baseDump() +
                                                       "Background Object\n"
                                                       "=================\n"
                                                       "ColorRGBA: 0x80FF0001\n"
                                                       "BackgroundImageID: 42\n"
                                                       "BackgroundImageModeX: REPEAT\n"
                                                       "BackgroundImageModeY: UNKNOWN\n"
                                                       "CropX:                1\n"
                                                       "CropY:                2\n"
                                                       "CropWidth:            3\n"
                                                       "CropHeight:           4\n"
                                                       "ColorClearEnabled:    1\n"
                                                       "DepthClearEnabled:    0\n");
}

TEST(Background, DuplicateSharesTheImageAndTakesItsWholeCrop) {
  const auto background = Background::create();
  const auto image = Image2D::create(Image2D::RGB, 4, 2);
  background->setUserID(8);
  background->setColor(0x11223344);
  background->setImage(image);
  background->setImageMode(33, 33);
  background->setCrop(1, 1, 2, 1);
  background->setColorClearEnable(false);
  background->setDepthClearEnable(false);
  const auto copy = duplicateOf(*background);
  EXPECT_EQ(copy->getUserID(), 8);
  EXPECT_EQ(copy->getColor(), 0x11223344);
  EXPECT_EQ(copy->getClearColorRGBA()[0], background->getClearColorRGBA()[0]);
  EXPECT_EQ(copy->getImage(), image);
  EXPECT_EQ(copy->getImageModeX(), 33);
  EXPECT_EQ(copy->getImageModeY(), 33);
  EXPECT_FALSE(copy->isColorClearEnabled());
  EXPECT_FALSE(copy->isDepthClearEnabled());
  expectCrop(*copy, 0, 0, 4, 2);
  expectCrop(*background, 1, 1, 2, 1);
}

TEST(Background, DuplicateWithoutAnImageHasNoCrop) {
  const auto background = Background::create();
  background->setCrop(1, 2, 3, 4);
  expectCrop(*duplicateOf(*background), 0, 0, 0, 0);
}

}  // namespace
}  // namespace varnel_m3g
