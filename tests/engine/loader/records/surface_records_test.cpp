#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/weak_ptr.hpp>
#include <utility>

#include "engine/loader/m3g_object_input_stream.h"
#include "engine/object/engine_limits.h"
#include "engine/surface/appearance.h"
#include "engine/surface/background.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/image_texture.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"
#include "tests/support/loading.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;

/// Sets the number of texture units for a test.
class TextureUnits {
 public:
  explicit TextureUnits(int units) : former(maxTextureUnits) { maxTextureUnits = units; }
  ~TextureUnits() { maxTextureUnits = former; }

 private:
  int former;
};

TEST(FogRecord, ExponentialHasADensity) {
  const Loaded loaded =
      loadRecords({M3gRecord(FOG).object3D(5).rgb(0x102030).byte(80).float32(0.25f), anyFog()});
  ASSERT_EQ(loaded.objects.size(), 3u);
  const auto fog = loaded.at<Fog>(2);
  EXPECT_EQ(fog->getColor(), 0x102030);
  EXPECT_EQ(fog->getMode(), 80);
  EXPECT_EQ(fog->getDensity(), 0.25f);
  EXPECT_EQ(fog->getColorRGBA()[3], 1.0f);
}

TEST(FogRecord, LinearHasDistances) {
  const Loaded loaded = loadRecords(
      {M3gRecord(FOG).object3D().rgb(0xFFFFFF).byte(81).float32(3).float32(9), anyFog()});
  ASSERT_EQ(loaded.objects.size(), 3u);
  const auto fog = loaded.at<Fog>(2);
  EXPECT_EQ(fog->getMode(), 81);
  EXPECT_EQ(fog->getNearDistance(), 3.0f);
  EXPECT_EQ(fog->getFarDistance(), 9.0f);
}

TEST(FogRecord, OfAnotherModeHasNoFurtherField) {
  const Loaded loaded = loadRecords({M3gRecord(FOG).object3D().rgb(1).byte(0), anyFog()});
  ASSERT_EQ(loaded.objects.size(), 3u);
  EXPECT_EQ(loaded.at<Fog>(2)->getMode(), 0);
  EXPECT_EQ(loaded.at<Fog>(3)->getDensity(), 0.5f);
}

TEST(FogRecord, RefusesANegativeDensity) {
  EXPECT_EQ(loadRecords({M3gRecord(FOG).object3D().rgb(0).byte(80).float32(-0.5f)}).failure,
            "std::invalid_argument: Fog.setDensity -- density < 0");
}

TEST(MaterialRecord, IsReadInFull) {
  M3gRecord record(MATERIAL);
  record.object3D().rgb(0x010203).rgba(0x80102030).rgb(0x0A0B0C).rgb(0x0D0E0F);
  const Loaded loaded = loadRecords({record.float32(77).boolean(true)});
  ASSERT_EQ(loaded.failure, "");
  const auto material = loaded.at<Material>(2);
  EXPECT_EQ(material->getColor(Material::AMBIENT), 0x010203);
  EXPECT_EQ(static_cast<unsigned>(material->getColor(Material::DIFFUSE)), 0x80102030u);
  EXPECT_EQ(material->getColor(Material::EMISSIVE), 0x0A0B0C);
  EXPECT_EQ(material->getColor(Material::SPECULAR), 0x0D0E0F);
  EXPECT_EQ(material->getDiffuse()[3], static_cast<float>(128 / 255.0));
  EXPECT_EQ(material->getShininess(), 77.0f);
  EXPECT_TRUE(material->isVertexColorTrackingEnabled());
}

TEST(PolygonModeRecord, IsReadInFull) {
  M3gRecord record(POLYGON_MODE);
  record.object3D().byte(161).byte(164).byte(169).boolean(true).boolean(true).boolean(true);
  const Loaded loaded = loadRecords({record});
  ASSERT_EQ(loaded.failure, "");
  const auto mode = loaded.at<PolygonMode>(2);
  EXPECT_EQ(mode->getCulling(), 161);
  EXPECT_EQ(mode->getShading(), 164);
  EXPECT_EQ(mode->getWinding(), 169);
  EXPECT_TRUE(mode->isTwoSidedLightingEnabled());
  EXPECT_TRUE(mode->isLocalCameraLightingEnabled());
  EXPECT_TRUE(mode->isPerspectiveCorrectionEnabled());
  EXPECT_EQ(mode->getGlCullFace(), 1028u);
  EXPECT_EQ(mode->getGlFrontFace(), 2304u);
  EXPECT_EQ(mode->getGlShadeModel(), 7424u);
}

TEST(PolygonModeRecord, KeepsUnknownCullingAlone) {
  M3gRecord record(POLYGON_MODE);
  record.object3D().byte(1).byte(2).byte(3).boolean(false).boolean(false).boolean(false);
  const Loaded loaded = loadRecords({record});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.at<PolygonMode>(2)->getCulling(), 1);
  EXPECT_EQ(loaded.at<PolygonMode>(2)->getShading(), 165);
  EXPECT_EQ(loaded.at<PolygonMode>(2)->getWinding(), 168);
}

TEST(CompositingModeRecord, IsReadInFull) {
  M3gRecord record(COMPOSITING_MODE);
  record.object3D().boolean(false).boolean(false).boolean(false).boolean(false);
  const Loaded loaded = loadRecords({record.byte(65).byte(51).float32(-1.5f).float32(3)});
  ASSERT_EQ(loaded.failure, "");
  const auto mode = loaded.at<CompositingMode>(2);
  EXPECT_FALSE(mode->isDepthTestEnabled());
  EXPECT_FALSE(mode->isDepthWriteEnabled());
  EXPECT_FALSE(mode->isColorWriteEnabled());
  EXPECT_FALSE(mode->isAlphaWriteEnabled());
  EXPECT_EQ(mode->getBlending(), 65);
  EXPECT_EQ(mode->getSrcFactor(), 770u);
  EXPECT_EQ(mode->getDstFactor(), 1u);
  EXPECT_EQ(mode->getAlphaThreshold(), static_cast<float>(51 / 255.0));
  EXPECT_EQ(mode->getDepthOffsetFactor(), -1.5f);
  EXPECT_EQ(mode->getDepthOffsetUnits(), 3.0f);
  EXPECT_FALSE(mode->isDepthOffsetZero());
}

TEST(CompositingModeRecord, ReadsTheFlagsInOrder) {
  M3gRecord record(COMPOSITING_MODE);
  record.object3D().boolean(true).boolean(false).boolean(true).boolean(false);
  const Loaded loaded = loadRecords({record.byte(68).byte(255).float32(0).float32(0)});
  const auto mode = loaded.at<CompositingMode>(2);
  EXPECT_TRUE(mode->isDepthTestEnabled());
  EXPECT_FALSE(mode->isDepthWriteEnabled());
  EXPECT_TRUE(mode->isColorWriteEnabled());
  EXPECT_FALSE(mode->isAlphaWriteEnabled());
  EXPECT_EQ(mode->getAlphaThreshold(), 1.0f);
}

TEST(AppearanceRecord, IsReadInFull) {
  const TextureUnits units(3);
  M3gRecord record(APPEARANCE);
  record.object3D().byte(63).int32(2).int32(3).int32(4).int32(5);
  record.int32(3).int32(7).int32(0).int32(8);
  const Loaded loaded =
      loadRecords({anyCompositingMode(), anyFog(), anyPolygonMode(), anyMaterial(), anyImage(),
                   anyTexture(6), anyTexture(6), record});
  ASSERT_EQ(loaded.failure, "");
  const auto appearance = loaded.at<Appearance>(9);
  EXPECT_EQ(appearance->getLayer(), 63);
  EXPECT_EQ(appearance->getCompositingMode(), loaded.at<CompositingMode>(2));
  EXPECT_EQ(appearance->getFog(), loaded.at<Fog>(3));
  EXPECT_EQ(appearance->getPolygonMode(), loaded.at<PolygonMode>(4));
  EXPECT_EQ(appearance->getMaterial(), loaded.at<Material>(5));
  EXPECT_EQ(appearance->getTexture(0), loaded.at<Texture2D>(7));
  EXPECT_FALSE(appearance->getTexture(1));
  EXPECT_EQ(appearance->getTexture(2), loaded.at<Texture2D>(8));
}

TEST(AppearanceRecord, MayLeaveEverythingUnset) {
  const Loaded loaded = loadRecords({anyAppearance()});
  ASSERT_EQ(loaded.failure, "");
  const auto appearance = loaded.at<Appearance>(2);
  EXPECT_EQ(appearance->getLayer(), 0);
  EXPECT_FALSE(appearance->getCompositingMode());
  EXPECT_FALSE(appearance->getFog());
  EXPECT_FALSE(appearance->getPolygonMode());
  EXPECT_FALSE(appearance->getMaterial());
  EXPECT_FALSE(appearance->getTexture(0));
}

TEST(AppearanceRecord, HasAnUnsignedLayer) {
  for (const int layer : {64, 193, 255}) {
    M3gRecord record(APPEARANCE);
    record.object3D().byte(layer).int32(0).int32(0).int32(0).int32(0).int32(0);
    EXPECT_EQ(loadRecords({record}).failure, "std::out_of_range: Invalid layer value") << layer;
  }
}

TEST(AppearanceRecord, MayHaveOneTextureMoreThanUnits) {
  const TextureUnits units(2);
  const auto appearance = [](int count) {
    M3gRecord record(APPEARANCE);
    record.object3D().byte(0).int32(0).int32(0).int32(0).int32(0).int32(count);
    for (int i = 0; i < count; ++i) {
      record.int32(3);
    }
    return record;
  };
  for (const int count : {1, 2, 3}) {
    EXPECT_EQ(loadRecords({anyImage(), anyTexture(2), appearance(count)}).failure, "") << count;
  }
  EXPECT_EQ(loadRecords({anyImage(), anyTexture(2), appearance(4)}).failure,
            "std::out_of_range: Index out texture units boundary: 3 2");
}

TEST(AppearanceRecord, ATextureCountBeyondTheFileEndsTheLoad) {
  for (const std::int64_t count : {2LL, 0x7FFFFFFFLL, 0xFFFFFFFFLL}) {
    M3gSection section;
    M3gRecord record(APPEARANCE);
    record.object3D().byte(0).int32(0).int32(0).int32(0).int32(0).int32(count);
    section.objects = record.object();
    const Loaded loaded = loadBytes(M3gFile().section(section).bytes());
    EXPECT_EQ(loaded.failure,
              "std::runtime_error: M3gObjectInputStream: count exceeds the rest of the file");
  }
}

TEST(BackgroundRecord, IsReadInFull) {
  M3gRecord record(BACKGROUND);
  record.object3D().rgba(0x80102030).int32(2).byte(33).byte(32);
  record.int32(-1).int32(2).int32(3).int32(4).boolean(false).boolean(false);
  const Loaded loaded = loadRecords({anyImage(), record});
  ASSERT_EQ(loaded.failure, "");
  const auto background = loaded.at<Background>(3);
  EXPECT_EQ(static_cast<unsigned>(background->getColor()), 0x80102030u);
  EXPECT_EQ(background->getImage(), loaded.at<Image2D>(2));
  EXPECT_EQ(background->getImageModeX(), 33);
  EXPECT_EQ(background->getImageModeY(), 32);
  EXPECT_EQ(background->getCropX(), -1);
  EXPECT_EQ(background->getCropY(), 2);
  EXPECT_EQ(background->getCropWidth(), 3);
  EXPECT_EQ(background->getCropHeight(), 4);
  EXPECT_FALSE(background->isDepthClearEnabled());
  EXPECT_FALSE(background->isColorClearEnabled());
}

TEST(BackgroundRecord, ReadsTheDepthFlagFirst) {
  M3gRecord record(BACKGROUND);
  record.object3D().rgba(0).int32(0).byte(255).byte(0);
  record.int32(0).int32(0).int32(0).int32(0).boolean(true).boolean(false);
  const Loaded loaded = loadRecords({record});
  ASSERT_EQ(loaded.failure, "");
  const auto background = loaded.at<Background>(2);
  EXPECT_TRUE(background->isDepthClearEnabled());
  EXPECT_FALSE(background->isColorClearEnabled());
  EXPECT_FALSE(background->getImage());
  EXPECT_EQ(background->getImageModeX(), 255);
}

TEST(BackgroundRecord, RefusesWhatTheSettersRefuse) {
  M3gRecord crop(BACKGROUND);
  crop.object3D().rgba(0).int32(0).byte(32).byte(32).int32(0).int32(0).int32(1).int32(-1);
  EXPECT_EQ(loadRecords({crop}).failure,
            "std::invalid_argument: Background.setCrop negative width/height");
  M3gRecord alpha(IMAGE_2D);
  alpha.object3D().byte(96).boolean(false).int32(1).int32(1).byteArray("").byteArray("a");
  M3gRecord image(BACKGROUND);
  image.object3D().rgba(0).int32(2);
  EXPECT_EQ(loadRecords({alpha, image}).failure,
            "std::invalid_argument: image format must be one of Image2D.RGB or Image2D.RGBA");
}

M3gRecord imageHead(int format, bool isMutable, std::int64_t width, std::int64_t height) {
  M3gRecord record(IMAGE_2D);
  return record.object3D().byte(format).boolean(isMutable).int32(width).int32(height);
}

std::string pixelsOf(const Loaded& loaded, std::size_t count) {
  const unsigned char* pixels = loaded.at<Image2D>(2)->getPixels();
  return std::string(pixels, pixels + count);
}

TEST(Image2DRecord, OfPixelsIsReadInEachFormat) {
  const std::string pixels = "abcdefghijklmnopqrstuvwx";
  const int bytesPerPixel[] = {1, 1, 2, 3, 4};
  for (int format = 96; format <= 100; ++format) {
    const std::size_t size = static_cast<std::size_t>(6 * bytesPerPixel[format - 96]);
    const Loaded loaded = loadRecords(
        {imageHead(format, false, 3, 2).byteArray("").byteArray(pixels.substr(0, size)), anyFog()});
    ASSERT_EQ(loaded.failure, "") << format;
    const auto image = loaded.at<Image2D>(2);
    EXPECT_EQ(image->getFormat(), format);
    EXPECT_EQ(image->getWidth(), 3);
    EXPECT_EQ(image->getHeight(), 2);
    EXPECT_FALSE(image->isMutable());
    EXPECT_FALSE(image->isPowerOfTwo());
    EXPECT_EQ(pixelsOf(loaded, size), pixels.substr(0, size));
    EXPECT_TRUE(loaded.at<Fog>(3));
  }
}

TEST(Image2DRecord, MayHaveMorePixelsThanItNeeds) {
  const Loaded loaded =
      loadRecords({imageHead(96, false, 2, 1).byteArray("").byteArray("abcdef"), anyFog()});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(pixelsOf(loaded, 2), "ab");
}

TEST(Image2DRecord, OfAMutableImageEndsAfterTheHeight) {
  const Loaded loaded = loadRecords({imageHead(99, true, 2, 2), anyFog()});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_TRUE(loaded.at<Image2D>(2)->isMutable());
  EXPECT_TRUE(loaded.at<Image2D>(2)->isPowerOfTwo());
  EXPECT_EQ(pixelsOf(loaded, 16), std::string(16, '\xFF'));
  EXPECT_TRUE(loaded.at<Fog>(3));
}

TEST(Image2DRecord, ExpandsAPalette) {
  std::string palette;
  for (int i = 0; i < 256; ++i) {
    palette += static_cast<char>(i);
    palette += static_cast<char>(255 - i);
  }
  const Loaded loaded = loadRecords(
      {imageHead(98, false, 2, 1).byteArray(palette).byteArray(std::string("\x05\xFF", 2))});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_FALSE(loaded.at<Image2D>(2)->isMutable());
  EXPECT_EQ(pixelsOf(loaded, 4), std::string("\x05\xFA\xFF\x00", 4));
}

TEST(Image2DRecord, ReadsAShortPaletteToItsOwnLength) {
  // Two entries: an index past them shows zero bytes.
  const Loaded loaded = loadRecords(
      {imageHead(98, false, 3, 1).byteArray("abcd").byteArray(std::string("\0\1\2", 3))});
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(pixelsOf(loaded, 6), std::string("abcd\0\0", 6));
}

TEST(Image2DRecord, FailuresHaveTheirTexts) {
  const std::string paletteOf256(256 * 3, 'p');
  const struct {
    M3gRecord record;
    const char* failure;
  } cases[] = {{imageHead(95, false, 1, 1), "std::invalid_argument: Invalid format for Image2D"},
               {imageHead(101, true, 1, 1), "std::invalid_argument: Invalid format for Image2D"},
               {imageHead(99, false, 1, 1).byteArray("abcd").byteArray("a"),
                "std::runtime_error: Invalid palette array length in Image2D file constructor"},
               {imageHead(99, false, 1, 1).byteArray(paletteOf256.substr(1)).byteArray("a"),
                "std::runtime_error: Invalid palette array length in Image2D file constructor"},
               {imageHead(99, false, 1, 1).byteArray(paletteOf256 + "x").byteArray("a"), ""},
               {imageHead(99, false, 2, 2).byteArray("abc").byteArray("abc"),
                "std::runtime_error: Invalid pixel index array length in Image2D file constructor"},
               {imageHead(99, false, 2, 2).byteArray("").byteArray("abcdefghijk"),
                "std::runtime_error: Invalid pixel array length in Image2D file constructor"},
               {imageHead(96, false, 1, 1).byteArray("").byteArray(""),
                "std::runtime_error: Invalid pixel array length in Image2D file constructor"}};
  for (const auto& each : cases) {
    EXPECT_EQ(loadRecords({each.record}).failure, each.failure);
  }
}

TEST(Image2DRecord, OfNoPixelsFailsAsASetFromNoArray) {
  for (const auto& [width, height] : {std::pair{0, 0}, {0, 3}, {3, 0}}) {
    EXPECT_EQ(
        loadRecords({imageHead(99, false, width, height).byteArray("").byteArray("")}).failure,
        "std::invalid_argument: Image2D.set(x, y, w, h, byteImage ) --Null image reference");
    EXPECT_EQ(
        loadRecords({imageHead(99, false, width, height).byteArray("").byteArray("a")}).failure,
        "");
  }
}

/// Reads an image record alone, whose image must be gone with its owner here. Returns the text of
/// the failure.
std::string failureWithoutAnImageLeft(const M3gRecord& record) {
  const TemporaryFolder folder;
  M3gObjectInputStream stream;
  stream.open(folder.write("image", record.data()), std::ios::in | std::ios::binary);
  ObjectTable table;
  boost::shared_ptr<Image2D> image(new Image2D);
  const boost::weak_ptr<Image2D> watch(image);
  std::string failure;
  try {
    image->load(stream, table);
  } catch (const std::exception& error) {
    failure = error.what();
  }
  image.reset();
  EXPECT_TRUE(watch.expired()) << failure;
  return failure;
}

TEST(Image2DRecord, ThatFailsLeavesNoImage) {
  const struct {
    M3gRecord record;
    const char* failure;
  } cases[] = {
      {imageHead(95, false, 1, 1), "Invalid format for Image2D"},
      {imageHead(99, true, -1, 1), "Bad dimension for Image2D"},
      {imageHead(99, true, 0x7FFFFFFF, 0x7FFFFFFF), "std::bad_alloc"},
      {imageHead(99, false, 1, -1).byteArray("").byteArray("abc"), "Bad dimension for Image2D"},
      {imageHead(99, false, 1, 1).byteArray("abcd").byteArray("a"),
       "Invalid palette array length in Image2D file constructor"},
      {imageHead(99, false, 2, 2).byteArray("abc").byteArray("abc"),
       "Invalid pixel index array length in Image2D file constructor"},
      {imageHead(99, false, 2, 2).byteArray("").byteArray("abc"),
       "Invalid pixel array length in Image2D file constructor"},
      {imageHead(99, false, 0, 0).byteArray("").byteArray(""),
       "Image2D.set(x, y, w, h, byteImage ) --Null image reference"},
      {imageHead(100, false, 5, 0).byteArray("").byteArray(""),
       "Image2D.set(x, y, w, h, byteImage ) --Null image reference"}};
  for (const auto& each : cases) {
    EXPECT_EQ(failureWithoutAnImageLeft(each.record), each.failure);
  }
}

TEST(Image2DRecord, DimensionsBeyondTheFileAreNotAllocated) {
  for (const std::int64_t side : {65536LL, 0x7FFFFFFFLL}) {
    EXPECT_EQ(
        loadRecords({imageHead(100, false, side, side).byteArray("").byteArray("abc")}).failure,
        "std::runtime_error: Invalid pixel array length in Image2D file constructor");
    EXPECT_EQ(
        loadRecords({imageHead(100, false, side, side).byteArray("abcd").byteArray("abc")}).failure,
        "std::runtime_error: Invalid pixel index array length in Image2D file constructor");
    EXPECT_EQ(loadRecords({imageHead(100, true, side, side)}).failure,
              "std::runtime_error: Loader::load:  Out of memory");
  }
}

TEST(Image2DRecord, MutableImagesShareOneAllowance) {
  const std::vector<M3gRecord> four(4, imageHead(100, true, 2048, 2048));
  EXPECT_EQ(loadRecords(four).failure, "");
  const std::vector<M3gRecord> five(5, imageHead(100, true, 2048, 2048));
  EXPECT_EQ(loadRecords(five).failure, "std::runtime_error: Loader::load:  Out of memory");
}

TEST(Texture2DRecord, IsReadInFull) {
  M3gRecord record(TEXTURE_2D);
  record.object3D().transformable({1, 2, 3}, {1, 1, 1}, 0, {0, 0, 0}).int32(2);
  record.rgb(0x112233).byte(226).byte(240).byte(241).byte(209).byte(209);
  const Loaded loaded = loadRecords({anyImage(), record});
  ASSERT_EQ(loaded.failure, "");
  const auto texture = loaded.at<Texture2D>(3);
  EXPECT_EQ(texture->getImage(), loaded.at<Image2D>(2));
  EXPECT_EQ(texture->getBlendColor(), 0x112233);
  EXPECT_EQ(texture->getBlending(), 226);
  EXPECT_EQ(texture->getWrappingS(), 240);
  EXPECT_EQ(texture->getWrappingT(), 241);
  EXPECT_EQ(texture->getLevelFilter(), 209);
  EXPECT_EQ(texture->getImageFilter(), 209);
  EXPECT_EQ(texture->getGlMinFilter(), 9987u);
  float translation[3];
  texture->getTranslation(translation);
  EXPECT_EQ(translation[2], 3.0f);
}

TEST(Texture2DRecord, RefusesAnUnknownImageFilter) {
  M3gRecord record(TEXTURE_2D);
  record.object3D().transformable().int32(2).rgb(0).byte(227).byte(241).byte(241);
  EXPECT_EQ(loadRecords({anyImage(), record.byte(208).byte(208)}).failure,
            "std::invalid_argument: Texture2D.setFiltering .. invalid imageFilter argument");
}

TEST(Texture2DRecord, ReportsAnImageOfAnotherSize) {
  M3gRecord image(IMAGE_2D);
  image.object3D().byte(96).boolean(false).int32(3).int32(1).byteArray("").byteArray("abc");
  const Loaded loaded = loadRecords({image, anyTexture(2)});
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.err, "Ignoring image validation\n");
}

}  // namespace
}  // namespace varnel_m3g
