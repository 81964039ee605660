#include "engine/surface/texture2d.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/surface/image2d.h"
#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::duplicateOf;
using varnel_test::errorOutputOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;
using varnel_test::referencesOf;

boost::shared_ptr<Image2D> smallImage() {
  return Image2D::create(Image2D::RGB, 4, 4);
}

TEST(Texture2D, StartsRepeatingNearestModulating) {
  const auto image = smallImage();
  const auto texture = Texture2D::create(image);
  EXPECT_EQ(texture->getImage(), image);
  EXPECT_EQ(texture->getWrappingS(), 241);
  EXPECT_EQ(texture->getWrappingT(), 241);
  EXPECT_EQ(texture->getLevelFilter(), 208);
  EXPECT_EQ(texture->getImageFilter(), 210);
  EXPECT_EQ(texture->getGlMagFilter(), 9728u);
  EXPECT_EQ(texture->getGlMinFilter(), 9728u);
  EXPECT_EQ(texture->getBlending(), 227);
  EXPECT_EQ(texture->getBlendColor(), 0);
  EXPECT_TRUE(texture->updateComposite().isIdentity());
}

TEST(Texture2D, NeedsAnImage) {
  const boost::shared_ptr<Image2D> none;
  const std::string text = "Texture2D.setImage() -- NULL image passed to Texture2D";
  expectFailure<std::invalid_argument>([&] { Texture2D::create(none); }, text);
  const auto image = smallImage();
  const auto texture = Texture2D::create(image);
  expectFailure<std::invalid_argument>([&] { texture->setImage(none); }, text);
  EXPECT_EQ(texture->getImage(), image);
}

TEST(Texture2D, AcceptsImagesOfAnySizeWithALineOnTheErrorStream) {
  const auto texture = Texture2D::create(smallImage());
  const struct {
    int width, height;
    const char* line;
  } cases[] = {{3, 5, "Ignoring image validation\n"},
               {4, 6, "Ignoring image validation\n"},
               {8, 1, ""},
               {1, 1, ""}};
  for (const auto& c : cases) {
    const auto image = Image2D::create(Image2D::RGBA, c.width, c.height);
    EXPECT_EQ(errorOutputOf([&] { texture->setImage(image); }), c.line);
    EXPECT_EQ(texture->getImage(), image);
  }
}

TEST(Texture2D, DerivesTheGLFilters) {
  const auto texture = Texture2D::create(smallImage());
  const struct {
    int level, image;
    unsigned mag, min;
  } cases[] = {{208, 209, 9729, 9729}, {208, 210, 9728, 9728}, {210, 209, 9729, 9985},
               {210, 210, 9728, 9984}, {209, 209, 9729, 9987}, {209, 210, 9728, 9986}};
  for (const auto& c : cases) {
    texture->setFiltering(c.level, c.image);
    EXPECT_EQ(texture->getLevelFilter(), c.level);
    EXPECT_EQ(texture->getImageFilter(), c.image);
    EXPECT_EQ(texture->getGlMagFilter(), c.mag);
    EXPECT_EQ(texture->getGlMinFilter(), c.min);
  }
}

TEST(Texture2D, StoresAnUnknownLevelFilterAndLeavesTheGLFilters) {
  const auto texture = Texture2D::create(smallImage());
  texture->setFiltering(209, 209);
  texture->setFiltering(999, 210);
  EXPECT_EQ(texture->getLevelFilter(), 999);
  EXPECT_EQ(texture->getImageFilter(), 210);
  EXPECT_EQ(texture->getGlMagFilter(), 9729u);
  EXPECT_EQ(texture->getGlMinFilter(), 9987u);
}

TEST(Texture2D, RefusesOtherImageFiltersAndChangesNothing) {
  const auto texture = Texture2D::create(smallImage());
  for (const int filter : {208, 211, 0, -1, std::numeric_limits<int>::max()}) {
    expectFailure<std::invalid_argument>([&] { texture->setFiltering(209, filter); },
                                         "Texture2D.setFiltering .. invalid imageFilter argument");
    EXPECT_EQ(texture->getLevelFilter(), 208);
    EXPECT_EQ(texture->getImageFilter(), 210);
    EXPECT_EQ(texture->getGlMagFilter(), 9728u);
    EXPECT_EQ(texture->getGlMinFilter(), 9728u);
  }
}

TEST(Texture2D, StoresWrappingBlendingAndColorUnchecked) {
  const auto texture = Texture2D::create(smallImage());
  texture->setWrapping(240, 241);
  EXPECT_EQ(texture->getWrappingS(), 240);
  EXPECT_EQ(texture->getWrappingT(), 241);
  texture->setWrapping(999, -5);
  EXPECT_EQ(texture->getWrappingS(), 999);
  EXPECT_EQ(texture->getWrappingT(), -5);
  for (const int value : {224, 225, 226, 227, 228, 0, -1, std::numeric_limits<int>::min()}) {
    texture->setBlending(value);
    EXPECT_EQ(texture->getBlending(), value);
    texture->setBlendColor(value);
    EXPECT_EQ(texture->getBlendColor(), value);
  }
}

TEST(Texture2D, RefersToItsImage) {
  const auto image = smallImage();
  const auto texture = Texture2D::create(image);
  EXPECT_EQ(referencesOf(*texture), (std::vector<boost::shared_ptr<Object3D>>{image}));
  boost::shared_ptr<Object3D> room;
  expectFailure<std::invalid_argument>([&] { texture->getReferences(&room, 0); },
                                       "Unable to store texture image in getReferences");
  EXPECT_FALSE(room);
}

// The lines after those of the transform.
std::string ownDump(Texture2D& texture) {
  const std::string text = outputOf([&] { texture.dump(); });
  const std::size_t title = text.find("Texture2D Object\n");
  EXPECT_LT(text.find("Transformable Object\n"), title);
  return title == std::string::npos ? text : text.substr(title);
}

TEST(Texture2D, DumpsItsFields) {
  const auto image = smallImage();
  image->setUserID(17);
  const auto texture = Texture2D::create(image);
  texture->setBlendColor(0x00ABCDEF);
  EXPECT_EQ(ownDump(*texture),
            "Texture2D Object\n"
            "================\n"
            "Image2D ID: 17\n"
            "ColorRGB:   0xABCDEF\n"
            "Blending:  FUNC_MODULATE\n"
            "WrappingS: WRAP_REPEAT\n"
            "WrappingT: WRAP_REPEAT\n"
            "LevelFilter: FILTER_BASE_LEVEL\n"
            "ImageFilter: FILTER_NEAREST\n");
  texture->setWrapping(240, 0);
  texture->setFiltering(210, 209);
  texture->setBlending(1);
  EXPECT_EQ(ownDump(*texture),
            "Texture2D Object\n"
            "================\n"
            "Image2D ID: 17\n"
            "ColorRGB:   0xABCDEF\n"
            "Blending:  UNKNOWN\n"
            "WrappingS: WRAP_CLAMP\n"
            "WrappingT: UNKNOWN\n"
            "LevelFilter: FILTER_NEAREST\n"
            "ImageFilter: FILTER_LINEAR\n");
}

TEST(Texture2D, DumpsTheNameOfEachBlending) {
  const auto texture = Texture2D::create(smallImage());
  const struct {
    int blending;
    const char* line;
  } cases[] = {{224, "\nBlending:  FUNC_ADD\n"},
               {225, "\nBlending:  FUNC_BLEND\n"},
               {226, "\nBlending:  FUNC_DECAL\n"},
               {228, "\nBlending:  FUNC_REPLACE\n"}};
  for (const auto& c : cases) {
    texture->setBlending(c.blending);
    EXPECT_NE(ownDump(*texture).find(c.line), std::string::npos) << c.line;
  }
}

TEST(Texture2D, DuplicateSharesTheImageAndCopiesTheRest) {
  const auto image = smallImage();
  const auto texture = Texture2D::create(image);
  texture->setUserID(21);
  texture->setTranslation(1.0f, 2.0f, 3.0f);
  texture->setBlendColor(0x010203);
  texture->setBlending(225);
  texture->setFiltering(209, 209);
  texture->setWrapping(240, 240);
  const auto copy = duplicateOf(*texture);
  EXPECT_EQ(copy->getUserID(), 21);
  EXPECT_EQ(copy->getImage(), image);
  float translation[3];
  copy->getTranslation(translation);
  EXPECT_EQ(translation[2], 3.0f);
  EXPECT_EQ(copy->getBlendColor(), 0x010203);
  EXPECT_EQ(copy->getBlending(), 225);
  EXPECT_EQ(copy->getLevelFilter(), 209);
  EXPECT_EQ(copy->getImageFilter(), 209);
  EXPECT_EQ(copy->getGlMinFilter(), 9987u);
  EXPECT_EQ(copy->getWrappingS(), 240);
  EXPECT_EQ(copy->getWrappingT(), 240);
  copy->setTranslation(9.0f, 9.0f, 9.0f);
  copy->setWrapping(241, 241);
  texture->getTranslation(translation);
  EXPECT_EQ(translation[2], 3.0f);
  EXPECT_EQ(texture->getWrappingS(), 240);
}

TEST(Texture2D, TakesTransformsThatAreNotAffine) {
  const auto texture = Texture2D::create(smallImage());
  const float projective[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 2};
  Transform transform;
  transform.set(projective);
  texture->setTransform(transform);
  Transform stored;
  texture->getTransform(stored);
  EXPECT_EQ(stored.data()[15], 2.0f);
}

}  // namespace
}  // namespace varnel_m3g
