#include <gtest/gtest.h>

#include <cstdlib>

#include "engine/surface/image2d.h"
#include "tests/support/image_writer.h"
#include "tests/support/loading.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;

constexpr int width = 24;
constexpr int height = 17;
/// What the lossy coding may change in a smooth picture.
constexpr int tolerance = 8;

const char damaged[] =
    "std::runtime_error: Loader::readJPEG Couldn't setup JPEG decompression library";

/// A smooth picture of that many channels.
JpegImage smoothImage(int components) {
  JpegImage image;
  image.width = width;
  image.height = height;
  image.components = components;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int channels[] = {40 + 4 * x, 220 - 5 * y, 60 + 3 * x + y, 128};
      for (int channel = 0; channel < components; ++channel) {
        image.pixels += static_cast<char>(channels[channel]);
      }
    }
  }
  return image;
}

class JpegTest : public testing::Test {
 protected:
  Loaded load(const std::string& bytes) { return loadFile(folder.write("image.jpg", bytes)); }

  static int pixelByte(const Image2D& image, int x, int y, int channel) {
    return image.getPixels()[(y * width + x) * 3 + channel];
  }

  void expectSmooth(const std::string& bytes) {
    const Loaded loaded = load(bytes);
    ASSERT_EQ(loaded.failure, "");
    const auto image = loaded.at<Image2D>(1);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->getFormat(), Image2D::RGB);
    EXPECT_EQ(image->getWidth(), width);
    EXPECT_EQ(image->getHeight(), height);
    EXPECT_FALSE(image->isMutable());
    const JpegImage expected = smoothImage(3);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        for (int channel = 0; channel < 3; ++channel) {
          const int byte = static_cast<unsigned char>(
              expected.pixels[static_cast<std::size_t>((y * width + x) * 3 + channel)]);
          ASSERT_NEAR(pixelByte(*image, x, y, channel), byte, tolerance)
              << x << " " << y << " " << channel;
        }
      }
    }
  }

  TemporaryFolder folder;
};

TEST_F(JpegTest, OfFullColourIsDecoded) {
  expectSmooth(jpegFile(smoothImage(3)));
}

TEST_F(JpegTest, OfSubsampledColourIsDecoded) {
  for (const auto& [x, y] : {std::pair{2, 1}, std::pair{2, 2}, std::pair{1, 2}, std::pair{4, 1}}) {
    JpegImage image = smoothImage(3);
    image.subsamplingX = x;
    image.subsamplingY = y;
    expectSmooth(jpegFile(image));
  }
}

TEST_F(JpegTest, OfProgressiveScansIsDecoded) {
  JpegImage image = smoothImage(3);
  image.progressive = true;
  expectSmooth(jpegFile(image));
}

TEST_F(JpegTest, OfGreyIsNotExpanded) {
  const JpegImage grey = smoothImage(1);
  const Loaded loaded = load(jpegFile(grey));
  ASSERT_EQ(loaded.failure, "");
  const auto image = loaded.at<Image2D>(1);
  EXPECT_EQ(image->getFormat(), Image2D::RGB);
  EXPECT_EQ(image->getWidth(), width);
  for (int y = 0; y < height; ++y) {
    const unsigned char* row = image->getPixels() + y * width * 3;
    for (int i = 0; i < width; ++i) {
      ASSERT_NEAR(row[i], static_cast<unsigned char>(grey.pixels[y * width + i]), tolerance);
    }
    for (int i = width; i < width * 3; ++i) {
      ASSERT_EQ(row[i], 0) << "no byte past the decoded row is read";
    }
  }
}

TEST_F(JpegTest, OfCmykTakesTheFirstBytesOfEachRow) {
  const JpegImage cmyk = smoothImage(4);
  const Loaded loaded = load(jpegFile(cmyk));
  ASSERT_EQ(loaded.failure, "");
  const auto image = loaded.at<Image2D>(1);
  for (int y = 0; y < height; ++y) {
    for (int i = 0; i < width * 3; ++i) {
      ASSERT_NEAR(image->getPixels()[y * width * 3 + i],
                  static_cast<unsigned char>(cmyk.pixels[y * width * 4 + i]), tolerance);
    }
  }
}

TEST_F(JpegTest, ThatIsTruncatedShowsItsBeginning) {
  JpegImage image = smoothImage(3);
  image.quality = 100;
  const std::string good = jpegFile(image);
  const Loaded loaded = load(good.substr(0, good.size() * 3 / 4));
  ASSERT_EQ(loaded.failure, "");
  const auto decoded = loaded.at<Image2D>(1);
  EXPECT_EQ(decoded->getHeight(), height);
  EXPECT_NEAR(pixelByte(*decoded, 0, 0, 0), 40, tolerance);
  EXPECT_NEAR(pixelByte(*decoded, 0, 0, 1), 220, tolerance);
}

TEST_F(JpegTest, ThatIsNoneIsRefused) {
  EXPECT_EQ(load("").failure, damaged);
  EXPECT_EQ(load("text").failure, damaged);
  EXPECT_EQ(load(jpegFile(smoothImage(3)).substr(0, 20)).failure, damaged);
}

TEST_F(JpegTest, ThatItsFileCannotHoldIsRefused) {
  std::string bytes = jpegFile(smoothImage(3));
  const std::size_t frame = bytes.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  // Height and width of the frame: 65000 by 65000.
  for (const std::size_t offset : {5, 7}) {
    bytes[frame + offset] = '\xFD';
    bytes[frame + offset + 1] = '\xE8';
  }
  EXPECT_EQ(load(bytes).failure, damaged);
}

TEST_F(JpegTest, CutAnywhereIsReadOrRefused) {
  for (const bool progressive : {false, true}) {
    JpegImage image = smoothImage(3);
    image.progressive = progressive;
    const std::string good = jpegFile(image);
    for (std::size_t length = 0; length < good.size(); ++length) {
      const std::string failure = load(good.substr(0, length)).failure;
      EXPECT_TRUE(failure == "" || failure == damaged) << length << failure;
    }
  }
}

}  // namespace
}  // namespace varnel_m3g
