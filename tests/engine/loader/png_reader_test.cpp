#include <gtest/gtest.h>

#include <stdexcept>

#include "engine/loader/loader.h"
#include "engine/surface/image2d.h"
#include "engine/surface/image_texture.h"
#include "tests/support/image_writer.h"
#include "tests/support/loading.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;

constexpr int width = 5;
constexpr int height = 3;

/// Bytes of a sample of that depth at a place in the image, before it is brought to 8 bits.
unsigned sampleAt(int bitDepth, int x, int y, int channel) {
  const unsigned value = static_cast<unsigned>(37 * x + 91 * y + 53 * channel + 11) * 2654435761u;
  return (value >> 8) & ((1u << bitDepth) - 1);
}

/// The rows of an image whose samples sampleAt() gives, of `channels` samples a pixel.
std::string packedRows(int bitDepth, int channels) {
  std::string rows;
  for (int y = 0; y < height; ++y) {
    unsigned bits = 0;
    int bitCount = 0;
    for (int x = 0; x < width; ++x) {
      for (int channel = 0; channel < channels; ++channel) {
        bits = bits << bitDepth | sampleAt(bitDepth, x, y, channel);
        bitCount += bitDepth;
        while (bitCount >= 8) {
          bitCount -= 8;
          rows += static_cast<char>(bits >> bitCount & 0xFF);
        }
        bits &= (1u << bitCount) - 1;
      }
    }
    if (bitCount > 0) {
      rows += static_cast<char>(bits << (8 - bitCount) & 0xFF);
    }
  }
  return rows;
}

/// A sample in 8 bits: the high byte of 16, low depths spread over the range.
char eightBits(int bitDepth, unsigned sample) {
  return static_cast<char>(bitDepth == 16 ? sample >> 8 : sample * 255 / ((1u << bitDepth) - 1));
}

PngImage imageOf(int colorType, int bitDepth, bool interlaced) {
  const int channels[] = {1, 0, 3, 1, 2, 0, 4};
  PngImage image;
  image.width = width;
  image.height = height;
  image.colorType = colorType;
  image.bitDepth = bitDepth;
  image.interlaced = interlaced;
  image.rows = packedRows(bitDepth, channels[colorType]);
  if (colorType == 3) {
    for (int i = 0; i < 3 << bitDepth; ++i) {
      image.palette += static_cast<char>(200 - i);
    }
  }
  return image;
}

std::string twoBytes(unsigned value) {
  return {static_cast<char>(value >> 8), static_cast<char>(value)};
}

/// An image file, its pixels and what is expected of them.
struct Case {
  std::string name;
  PngImage image;
  int format;
  std::string pixels;  // as the decoder gives them
};

void PrintTo(const Case& each, std::ostream* stream) {
  *stream << each.name;
}

Case caseOf(int colorType, int bitDepth, bool interlaced, bool transparent) {
  Case each;
  each.image = imageOf(colorType, bitDepth, interlaced);
  each.name = "Type" + std::to_string(colorType) + "Depth" + std::to_string(bitDepth) +
              (interlaced ? "Interlaced" : "") + (transparent ? "Transparent" : "");
  // The middle pixel's colour is the transparent one; palettes fade their first entry.
  const auto transparentSample = [bitDepth](int channel) {
    return sampleAt(bitDepth, 2, 1, channel);
  };
  if (transparent && colorType == 3) {
    each.image.transparency = "\x40";
  } else if (transparent) {
    for (int channel = 0; channel < (colorType == 0 ? 1 : 3); ++channel) {
      each.image.transparency += twoBytes(transparentSample(channel));
    }
  }
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto sample = [&](int channel) { return sampleAt(bitDepth, x, y, channel); };
      const auto value = [&](int channel) { return eightBits(bitDepth, sample(channel)); };
      switch (colorType) {
        case 0:
          each.pixels += value(0);
          if (transparent) {
            each.pixels += sample(0) == transparentSample(0) ? '\0' : '\xFF';
          }
          break;
        case 2:
          each.pixels.append({value(0), value(1), value(2)});
          if (transparent) {
            const bool clear = sample(0) == transparentSample(0) &&
                               sample(1) == transparentSample(1) &&
                               sample(2) == transparentSample(2);
            each.pixels += clear ? '\0' : '\xFF';
          }
          break;
        case 3:
          each.pixels += each.image.palette.substr(3 * sample(0), 3);
          if (transparent) {
            each.pixels += sample(0) == 0 ? '\x40' : '\xFF';
          }
          break;
        case 4:
          each.pixels.append({value(0), value(1)});
          break;
        default:
          each.pixels.append({value(0), value(1), value(2), value(3)});
          break;
      }
    }
  }
  const std::size_t bytesPerPixel = each.pixels.size() / (width * height);
  each.format = bytesPerPixel == 3 ? Image2D::RGB : Image2D::RGBA;
  return each;
}

std::vector<Case> allCases() {
  const struct {
    int colorType;
    std::vector<int> bitDepths;
    bool mayBeTransparent;
  } kinds[] = {{0, {1, 2, 4, 8, 16}, true},
               {2, {8, 16}, true},
               {3, {1, 2, 4, 8}, true},
               {4, {8, 16}, false},
               {6, {8, 16}, false}};
  std::vector<Case> cases;
  for (const auto& kind : kinds) {
    for (const int bitDepth : kind.bitDepths) {
      for (const bool interlaced : {false, true}) {
        cases.push_back(caseOf(kind.colorType, bitDepth, interlaced, false));
        if (kind.mayBeTransparent) {
          cases.push_back(caseOf(kind.colorType, bitDepth, interlaced, true));
        }
      }
    }
  }
  return cases;
}

class PngKinds : public testing::TestWithParam<Case> {};

TEST_P(PngKinds, AreDecoded) {
  const TemporaryFolder folder;
  const Loaded loaded = loadFile(folder.write("image.png", pngFile(GetParam().image)));
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.err, "");
  const auto image = loaded.at<Image2D>(1);
  EXPECT_EQ(image->getFormat(), GetParam().format);
  EXPECT_EQ(image->getWidth(), width);
  EXPECT_EQ(image->getHeight(), height);
  EXPECT_FALSE(image->isMutable());
  // Grey pixels are not widened: they lie one after the other, and zero bytes follow them.
  std::string expected = GetParam().pixels;
  expected.resize(width * height * (GetParam().format == Image2D::RGB ? 3 : 4), '\0');
  EXPECT_EQ(std::string(image->getPixels(), image->getPixels() + expected.size()), expected);
}

INSTANTIATE_TEST_SUITE_P(AllKinds, PngKinds, testing::ValuesIn(allCases()),
                         [](const testing::TestParamInfo<Case>& info) { return info.param.name; });

class PngFailures : public testing::Test {
 protected:
  std::string failureOf(const std::string& bytes) {
    return loadFile(folder.write("image.png", bytes)).failure;
  }

  TemporaryFolder folder;
  const std::string notPng = "std::runtime_error: Loader::readPNG: External reference is not PNG";
  const std::string damaged = "std::runtime_error: Loader::readPNG: Problem calling setjmp";
};

TEST_F(PngFailures, OfTheSignature) {
  const std::string good = pngFile(imageOf(2, 8, false));
  EXPECT_EQ(failureOf(""), notPng);
  EXPECT_EQ(failureOf(good.substr(0, 7)), notPng);
  for (std::size_t i = 0; i < 8; ++i) {
    std::string bad = good;
    bad[i] = static_cast<char>(bad[i] ^ 0x20);
    EXPECT_EQ(failureOf(bad), notPng) << i;
  }
}

TEST_F(PngFailures, OfTheData) {
  const std::string good = pngFile(imageOf(2, 8, false));
  EXPECT_EQ(failureOf(good.substr(0, 8)), damaged);
  EXPECT_EQ(failureOf(good.substr(0, 30)), damaged);
  EXPECT_EQ(failureOf(good.substr(0, good.find("IDAT") + 8)), damaged);
  std::string checksum = good;
  checksum[29] = static_cast<char>(checksum[29] ^ 1);
  EXPECT_EQ(failureOf(checksum), damaged);
}

TEST_F(PngFailures, OfAnImageThatItsFileCannotHold) {
  // One row of a huge image: the pixels would take gigabytes.
  PngImage image;
  image.width = 16384;
  image.height = 1;
  image.rows = std::string(16384 * 3, '\0');
  std::string bytes = pngFile(image);
  bytes[22] = '\x40';  // the height, 16385
  // The check of the header chunk's own sum is met.
  const std::string header = bytes.substr(12, 17);
  const unsigned long sum = [&header] {
    unsigned long crc = 0xFFFFFFFFul;
    for (const char byte : header) {
      crc ^= static_cast<unsigned char>(byte);
      for (int bit = 0; bit < 8; ++bit) {
        crc = crc & 1 ? crc >> 1 ^ 0xEDB88320ul : crc >> 1;
      }
    }
    return crc ^ 0xFFFFFFFFul;
  }();
  for (int i = 0; i < 4; ++i) {
    bytes[static_cast<std::size_t>(29 + i)] = static_cast<char>(sum >> (24 - 8 * i));
  }
  EXPECT_EQ(failureOf(bytes), damaged);
}

TEST_F(PngFailures, AtAnyCutHaveTheirTexts) {
  const std::string good = pngFile(imageOf(3, 4, true));
  for (std::size_t length = 0; length < good.size(); ++length) {
    const std::string failure = failureOf(good.substr(0, length));
    EXPECT_TRUE(failure == "" || failure == notPng || failure == damaged) << length << failure;
  }
}

}  // namespace
}  // namespace varnel_m3g
