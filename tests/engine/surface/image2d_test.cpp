#include "engine/surface/image2d.h"

#include <gtest/gtest.h>

#include <boost/weak_ptr.hpp>
#include <cstddef>
#include <limits>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;

using Bytes = std::vector<unsigned char>;

constexpr int FORMATS[] = {96, 97, 98, 99, 100};
constexpr int BYTES_PER_PIXEL[] = {1, 1, 2, 3, 4};

Bytes countingBytes(std::size_t count, int from = 1) {
  Bytes bytes(count);
  std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(from));
  return bytes;
}

Bytes pixelsOf(const Image2D& image) {
  const std::size_t count = static_cast<std::size_t>(image.getWidth()) *
                            static_cast<std::size_t>(image.getHeight()) *
                            static_cast<std::size_t>(image.getBytesPerPixel());
  return Bytes(image.getPixels(), image.getPixels() + count);
}

TEST(Image2D, KnowsTheBytesPerPixelOfEachFormat) {
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(Image2D::bytesPerPixelOf(FORMATS[i]), BYTES_PER_PIXEL[i]);
  }
  for (const int format : {95, 101, 0, -1}) {
    expectFailure<std::invalid_argument>([&] { Image2D::bytesPerPixelOf(format); },
                                         "Invalid format for Image2D");
  }
}

TEST(Image2D, AMutableImageStartsOpaqueWhite) {
  for (int i = 0; i < 5; ++i) {
    const auto image = Image2D::create(FORMATS[i], 3, 2);
    EXPECT_EQ(image->getFormat(), FORMATS[i]);
    EXPECT_EQ(image->getWidth(), 3);
    EXPECT_EQ(image->getHeight(), 2);
    EXPECT_TRUE(image->isMutable());
    EXPECT_EQ(image->getBytesPerPixel(), BYTES_PER_PIXEL[i]);
    EXPECT_EQ(pixelsOf(*image), Bytes(static_cast<std::size_t>(6 * BYTES_PER_PIXEL[i]), 0xFF));
  }
}

TEST(Image2D, AnRgbStoreHasFourBytesPerPixel) {
  const auto image = Image2D::create(Image2D::RGB, 2, 2);
  EXPECT_EQ(image->getStoreSize(), 16u);
  EXPECT_EQ(Bytes(image->getPixels(), image->getPixels() + 16), Bytes(16, 0xFF));
  EXPECT_EQ(Image2D::create(Image2D::ALPHA, 5, 3)->getStoreSize(), 15u);
  EXPECT_EQ(Image2D::create(Image2D::LUMINANCE_ALPHA, 5, 3)->getStoreSize(), 30u);
  EXPECT_EQ(Image2D::create(Image2D::RGBA, 5, 3)->getStoreSize(), 60u);
}

TEST(Image2D, RowsCanBeReadAtAnAlignmentOfFour) {
  // The sanitizer watches the reads.
  for (int i = 0; i < 5; ++i) {
    for (int width = 1; width < 8; ++width) {
      const auto image = Image2D::create(FORMATS[i], width, 3);
      const std::size_t row = static_cast<std::size_t>(width * BYTES_PER_PIXEL[i] + 3) / 4 * 4;
      EXPECT_EQ(Bytes(image->getPixels(), image->getPixels() + 3 * row), Bytes(3 * row, 0xFF));
    }
  }
}

TEST(Image2D, RefusesAnUnknownFormat) {
  const Bytes bytes(16);
  for (const int format : {95, 101, 0, -1, std::numeric_limits<int>::max()}) {
    expectFailure<std::invalid_argument>([&] { Image2D::create(format, 1, 1); },
                                         "Illegal image format");
    expectFailure<std::invalid_argument>(
        [&] { Image2D::create(format, 1, 1, bytes.data(), bytes.size()); }, "Illegal image format");
  }
}

TEST(Image2D, RefusesDimensionsThatNoMemoryHolds) {
  const int most = std::numeric_limits<int>::max();
  for (const auto& size : std::vector<std::vector<int>>{{-1, 4}, {4, -1}, {-3, -3}, {most, most}}) {
    for (const int format : FORMATS) {
      expectFailure<std::invalid_argument>([&] { Image2D::create(format, size[0], size[1]); },
                                           "Bad dimension for Image2D");
    }
  }
}

TEST(Image2D, ImagesWithPixelsAreImmutable) {
  for (int i = 0; i < 5; ++i) {
    const Bytes bytes = countingBytes(static_cast<std::size_t>(6 * BYTES_PER_PIXEL[i]));
    const auto image = Image2D::create(FORMATS[i], 3, 2, bytes.data(), bytes.size());
    EXPECT_FALSE(image->isMutable());
    EXPECT_EQ(pixelsOf(*image), bytes);
  }
}

TEST(Image2D, PixelsThatTheBytesDoNotReachAreZero) {
  const Bytes bytes = countingBytes(6);
  const auto image = Image2D::create(Image2D::RGBA, 3, 2, bytes.data(), bytes.size());
  Bytes expected = bytes;
  expected.resize(24, 0);
  EXPECT_EQ(pixelsOf(*image), expected);
  EXPECT_FALSE(image->isMutable());
}

TEST(Image2D, RefusesNullArrays) {
  const Bytes bytes(16);
  expectFailure<std::invalid_argument>([&] { Image2D::create(99, 1, 1, nullptr, 3); },
                                       "NULL image byte array");
  expectFailure<std::invalid_argument>(
      [&] { Image2D::create(99, 1, 1, nullptr, bytes.data(), bytes.size()); },
      "NULL image byte array");
  expectFailure<std::invalid_argument>([&] { Image2D::create(99, 1, 1, nullptr, nullptr, 0); },
                                       "NULL image byte array");
  expectFailure<std::invalid_argument>([&] { Image2D::create(99, 1, 1, bytes.data(), nullptr, 0); },
                                       "NULL palette array");
}

TEST(Image2D, ExpandsPalettesInTheOrderOfTheChannels) {
  const Bytes indices = {0, 255, 1, 1, 128, 7};
  std::mt19937 random(5);
  for (int i = 0; i < 5; ++i) {
    const std::size_t pixelBytes = static_cast<std::size_t>(BYTES_PER_PIXEL[i]);
    Bytes palette(256 * pixelBytes);
    for (unsigned char& byte : palette) {
      byte = static_cast<unsigned char>(random());
    }
    const auto image =
        Image2D::create(FORMATS[i], 3, 2, indices.data(), palette.data(), palette.size());
    EXPECT_FALSE(image->isMutable());
    Bytes expected;
    for (const unsigned char index : indices) {
      expected.insert(expected.end(), palette.begin() + static_cast<long>(index * pixelBytes),
                      palette.begin() + static_cast<long>((index + 1u) * pixelBytes));
    }
    EXPECT_EQ(pixelsOf(*image), expected);
  }
}

TEST(Image2D, IndicesPastTheEndOfAPaletteShowZeroBytes) {
  const Bytes indices = {0, 1, 2, 255};
  const Bytes palette = {10, 11, 12, 20, 21, 22};
  const auto image =
      Image2D::create(Image2D::RGB, 4, 1, indices.data(), palette.data(), palette.size());
  EXPECT_EQ(pixelsOf(*image), (Bytes{10, 11, 12, 20, 21, 22, 0, 0, 0, 0, 0, 0}));
}

TEST(Image2D, SetReplacesARectangle) {
  for (int i = 0; i < 5; ++i) {
    const int b = BYTES_PER_PIXEL[i];
    const auto image = Image2D::create(FORMATS[i], 4, 3);
    const Bytes bytes = countingBytes(static_cast<std::size_t>(2 * 2 * b));
    image->set(1, 1, 2, 2, bytes.data());
    Bytes expected(static_cast<std::size_t>(4 * 3 * b), 0xFF);
    for (int row = 0; row < 2; ++row) {
      for (int k = 0; k < 2 * b; ++k) {
        expected[static_cast<std::size_t>(((row + 1) * 4 + 1) * b + k)] =
            bytes[static_cast<std::size_t>(row * 2 * b + k)];
      }
    }
    EXPECT_EQ(pixelsOf(*image), expected);
  }
}

TEST(Image2D, SetReplacesWholeRows) {
  for (int i = 0; i < 5; ++i) {
    const std::size_t row = static_cast<std::size_t>(3 * BYTES_PER_PIXEL[i]);
    const auto image = Image2D::create(FORMATS[i], 3, 3);
    const Bytes bytes = countingBytes(2 * row);
    image->set(0, 1, 3, 2, bytes.data());
    Bytes expected(row, 0xFF);
    expected.insert(expected.end(), bytes.begin(), bytes.end());
    EXPECT_EQ(pixelsOf(*image), expected);
  }
}

TEST(Image2D, SetOfNothingChangesNothing) {
  const auto image = Image2D::create(Image2D::RGB, 2, 2);
  const Bytes bytes = countingBytes(12);
  image->set(0, 0, 0, 2, bytes.data());
  image->set(2, 2, 0, 0, bytes.data());
  image->set(0, 1, 2, 0, bytes.data());
  EXPECT_EQ(pixelsOf(*image), Bytes(12, 0xFF));
}

TEST(Image2D, SetRefusesAnImmutableImageFirst) {
  const Bytes bytes = countingBytes(4);
  const auto image = Image2D::create(Image2D::ALPHA, 2, 2, bytes.data(), bytes.size());
  const std::string text = "Image2D.set(x, y, w, h, byteImage ) -- This Image2D is immutable";
  expectFailure<std::runtime_error>([&] { image->set(0, 0, 2, 2, bytes.data()); }, text);
  expectFailure<std::runtime_error>([&] { image->set(0, 0, 2, 2, nullptr); }, text);
  expectFailure<std::runtime_error>([&] { image->set(9, 9, 9, 9, nullptr); }, text);
  EXPECT_EQ(pixelsOf(*image), bytes);
}

TEST(Image2D, SetRefusesANullArrayBeforeTheRectangle) {
  const auto image = Image2D::create(Image2D::ALPHA, 2, 2);
  expectFailure<std::invalid_argument>(
      [&] { image->set(5, 5, 5, 5, nullptr); },
      "Image2D.set(x, y, w, h, byteImage ) --Null image reference");
}

TEST(Image2D, SetRefusesRectanglesThatDoNotFit) {
  const auto image = Image2D::create(Image2D::RGB, 2, 2);
  const Bytes bytes(64, 1);
  const int most = std::numeric_limits<int>::max();
  const int least = std::numeric_limits<int>::min();
  const int cases[][4] = {{1, 1, 2, 2},        {0, 0, 3, 1},  {0, 0, 1, 3},       {-1, 0, 1, 1},
                          {0, -1, 1, 1},       {0, 0, -1, 1}, {0, 0, 1, -1},      {2, 2, -1, -1},
                          {3, 0, 0, 0},        {0, 3, 0, 0},  {most, 0, most, 1}, {0, 1, 1, most},
                          {least, 0, least, 0}};
  for (const auto& c : cases) {
    expectFailure<std::invalid_argument>(
        [&] { image->set(c[0], c[1], c[2], c[3], bytes.data()); },
        "Image2D.set(x, y, w, h, byteImage ) -- supplied image does not fit within this image");
    EXPECT_FALSE(image->getTexture()->isSubUploadNeeded());
  }
  EXPECT_EQ(pixelsOf(*image), Bytes(12, 0xFF));
}

TEST(Image2D, KnowsPowersOfTwo) {
  const struct {
    int width, height;
    bool power;
  } cases[] = {{1, 1, true},   {6, 4, false}, {4, 6, false},  {8, 2, true},
               {256, 1, true}, {3, 3, false}, {16, 17, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(Image2D::create(Image2D::ALPHA, c.width, c.height)->isPowerOfTwo(), c.power)
        << c.width << " x " << c.height;
  }
}

TEST(Image2D, ItsTextureStartsWithTheFullUploadDue) {
  const unsigned glFormats[] = {6406, 6409, 6410, 6407, 6408};
  for (int i = 0; i < 5; ++i) {
    const auto image = Image2D::create(FORMATS[i], 5, 7);
    const ImageTexture& texture = *image->getTexture();
    EXPECT_EQ(texture.getGlFormat(), glFormats[i]);
    EXPECT_EQ(texture.getGlInternalFormat(), glFormats[i]);
    EXPECT_EQ(texture.getGlType(), 5121u);
    EXPECT_EQ(texture.getGlName(), 0u);
    EXPECT_EQ(texture.getWidth(), 5);
    EXPECT_EQ(texture.getHeight(), 7);
    EXPECT_EQ(texture.getBytesPerPixel(), BYTES_PER_PIXEL[i]);
    EXPECT_TRUE(texture.isUploadNeeded());
    EXPECT_FALSE(texture.isSubUploadNeeded());
  }
}

TEST(Image2D, SetMarksTheWholeImageAsChanged) {
  const auto image = Image2D::create(Image2D::ALPHA, 5, 7);
  const Bytes bytes(1);
  image->set(2, 3, 1, 1, bytes.data());
  const ImageTexture& texture = *image->getTexture();
  EXPECT_TRUE(texture.isSubUploadNeeded());
  EXPECT_TRUE(texture.isUploadNeeded());
  EXPECT_EQ(texture.getDirtyRect().x, 0);
  EXPECT_EQ(texture.getDirtyRect().y, 0);
  EXPECT_EQ(texture.getDirtyRect().width, 5);
  EXPECT_EQ(texture.getDirtyRect().height, 7);
}

TEST(Image2D, AnImageAndItsTextureKeepEachOtherAlive) {
  boost::shared_ptr<Image2D> image = Image2D::create(Image2D::ALPHA, 2, 2);
  const boost::weak_ptr<Image2D> watch(image);
  image.reset();
  ASSERT_FALSE(watch.expired());
  watch.lock()->getTexture()->releaseImage();
  EXPECT_TRUE(watch.expired());
}

TEST(Image2D, DumpsItsFields) {
  const auto image = Image2D::create(Image2D::LUMINANCE_ALPHA, 12, 3);
  EXPECT_EQ(outputOf([&] { image->dump(); }), baseDump() +
                                                  "Image2D Object\n"
                                                  "==============\n"
                                                  "ImageFormat: LUMINANCE_ALPHA\n"
                                                  "isMutable: 1\n"
                                                  "Dimensions WxH: 12x3\n");
  const char* const names[] = {" ALPHA", " LUMINANCE", " LUMINANCE_ALPHA", " RGB", " RGBA"};
  const Bytes bytes(4);
  for (int i = 0; i < 5; ++i) {
    const auto other = Image2D::create(FORMATS[i], 1, 1, bytes.data(), bytes.size());
    other->setUserID(4);
    EXPECT_EQ(outputOf([&] { other->dump(); }), baseDump(4) +
                                                    "Image2D Object\n"
                                                    "==============\n"
                                                    "ImageFormat:" +
                                                    names[i] +
                                                    "\n"
                                                    "isMutable: 0\n"
                                                    "Dimensions WxH: 1x1\n");
  }
}

TEST(Image2D, DuplicateCopiesThePixels) {
  const auto image = Image2D::create(Image2D::RGB, 3, 5);
  image->setUserID(6);
  const Bytes bytes = countingBytes(45);
  image->set(0, 0, 3, 5, bytes.data());
  const auto copy = duplicateOf(*image);
  EXPECT_EQ(copy->getUserID(), 6);
  EXPECT_EQ(copy->getFormat(), 99);
  EXPECT_EQ(copy->getBytesPerPixel(), 3);
  EXPECT_EQ(copy->getWidth(), 3);
  EXPECT_EQ(copy->getHeight(), 5);
  EXPECT_EQ(copy->getStoreSize(), 60u);
  EXPECT_TRUE(copy->isMutable());
  EXPECT_FALSE(copy->isPowerOfTwo());
  EXPECT_EQ(pixelsOf(*copy), bytes);
  EXPECT_NE(copy->getTexture(), image->getTexture());
  EXPECT_TRUE(copy->getTexture()->isUploadNeeded());
  copy->set(0, 0, 1, 1, Bytes(3, 0).data());
  EXPECT_EQ(pixelsOf(*image), bytes);
}

TEST(Image2D, TheDuplicateOfAnImmutableImageIsImmutable) {
  const Bytes bytes = countingBytes(4);
  const auto image = Image2D::create(Image2D::RGBA, 1, 1, bytes.data(), bytes.size());
  const auto copy = duplicateOf(*image);
  EXPECT_FALSE(copy->isMutable());
  EXPECT_TRUE(copy->isPowerOfTwo());
  EXPECT_EQ(pixelsOf(*copy), bytes);
}

}  // namespace
}  // namespace varnel_m3g
