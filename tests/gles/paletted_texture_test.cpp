#include "gles/paletted_texture.h"

#include <random>
#include <vector>

#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/memory.h"
#include "tests/support/recording_driver.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Bytes = std::vector<unsigned char>;

struct Format {
  GLenum name;
  std::size_t entries;
  std::size_t entryBytes;
  const char* upload;
};

const Format formats[] = {
    {GL_PALETTE4_RGB8_OES, 16, 3, "GL_RGB, GL_UNSIGNED_BYTE"},
    {GL_PALETTE4_RGBA8_OES, 16, 4, "GL_RGBA, GL_UNSIGNED_BYTE"},
    {GL_PALETTE4_R5_G6_B5_OES, 16, 2, "GL_RGB, GL_UNSIGNED_SHORT_5_6_5"},
    {GL_PALETTE4_RGBA4_OES, 16, 2, "GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4"},
    {GL_PALETTE4_RGB5_A1_OES, 16, 2, "GL_RGBA, GL_UNSIGNED_SHORT_5_5_5_1"},
    {GL_PALETTE8_RGB8_OES, 256, 3, "GL_RGB, GL_UNSIGNED_BYTE"},
    {GL_PALETTE8_RGBA8_OES, 256, 4, "GL_RGBA, GL_UNSIGNED_BYTE"},
    {GL_PALETTE8_R5_G6_B5_OES, 256, 2, "GL_RGB, GL_UNSIGNED_SHORT_5_6_5"},
    {GL_PALETTE8_RGBA4_OES, 256, 2, "GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4"},
    {GL_PALETTE8_RGB5_A1_OES, 256, 2, "GL_RGBA, GL_UNSIGNED_SHORT_5_5_5_1"},
};

std::size_t indexBytes(const Format& format, std::size_t width, std::size_t height) {
  if (format.entries == 256) {
    return width * height;
  }
  return (width > 2 ? width / 2 : 1) * height;
}

// The texels by the plainest reading of the layout, for data that are long enough.
Bytes expectedTexels(const Format& format, std::size_t width, std::size_t height, Bytes data) {
  data.resize(data.size() + 16);
  Bytes texels;
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      const unsigned char* indices = data.data() + format.entries * format.entryBytes;
      unsigned index = 0;
      if (format.entries == 256) {
        index = indices[y * width + x];
      } else {
        const std::size_t row = y * (width > 2 ? width / 2 : 1);
        index = x % 2 ? indices[row + x / 2] % 16 : indices[row + x / 2] / 16;
      }
      const unsigned char* entry = data.data() + index * format.entryBytes;
      texels.insert(texels.end(), entry, entry + format.entryBytes);
    }
  }
  return texels;
}

// What the driver was given by the last upload.
struct Upload {
  explicit Upload(RecordingDriver& recording, std::size_t bytes) {
    recording.onCall("glTexImage2D", [this, bytes](const RecordingDriver::Call& call) {
      const auto* begin = static_cast<const unsigned char*>(call.addresses.back());
      if (begin) {
        texels.assign(begin, begin + bytes);
      }
    });
  }

  Bytes texels;
};

TEST(PalettedTexture, EachFormatUnpacksAsAPlainReadingDoes) {
  std::mt19937 random(4711);
  for (const Format& format : formats) {
    for (const auto& [width, height] :
         std::vector<std::pair<int, int>>{{1, 1}, {1, 4}, {2, 2}, {4, 4}, {8, 2}, {16, 16}}) {
      const auto columns = static_cast<std::size_t>(width);
      const auto rows = static_cast<std::size_t>(height);
      Bytes data(format.entries * format.entryBytes + indexBytes(format, columns, rows));
      for (unsigned char& byte : data) {
        byte = static_cast<unsigned char>(random());
      }
      RecordingDriver recording;
      const Upload upload(recording, columns * rows * format.entryBytes);
      glCompressedTexImage2D(GL_TEXTURE_2D, 0, format.name, width, height, 0,
                             static_cast<GLsizei>(data.size()), data.data());
      EXPECT_EQ(upload.texels, expectedTexels(format, columns, rows, data))
          << width << " by " << height << " in " << format.upload;
      const std::string base = format.upload;
      const std::string size = std::to_string(width) + ", " + std::to_string(height);
      EXPECT_THAT(recording.calls("glTexImage2D"),
                  ElementsAre("glTexImage2D(GL_TEXTURE_2D, 0, " + base.substr(0, base.find(',')) +
                              ", " + size + ", 0, " + base + ", <ptr>)"));
    }
  }
}

TEST(PalettedTexture, OfWidthOneUsesOneByteARow) {
  RecordingDriver recording;
  Bytes data(16 * 3);
  for (std::size_t i = 0; i < data.size(); ++i) {
    data[i] = static_cast<unsigned char>(i);
  }
  data.insert(data.end(), {0x1F, 0x2F, 0x3F});
  const Upload upload(recording, 9);
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGB8_OES, 1, 3, 0,
                         static_cast<GLsizei>(data.size()), data.data());
  EXPECT_THAT(upload.texels, ElementsAre(3, 4, 5, 6, 7, 8, 9, 10, 11));
}

TEST(PalettedTexture, OfAnOddWidthTakesHalfOfItRoundedDownForARow) {
  RecordingDriver recording;
  Bytes data(16 * 4);
  for (std::size_t i = 0; i < data.size(); ++i) {
    data[i] = static_cast<unsigned char>(i / 4);
  }
  // Two bytes a row for five texels: the fifth is the first of the next row's.
  data.insert(data.end(), {0x12, 0x34, 0x56, 0x78});
  const Upload upload(recording, 40);
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGBA8_OES, 5, 2, 0,
                         static_cast<GLsizei>(data.size()), data.data());
  Bytes indices;
  for (std::size_t i = 0; i < upload.texels.size(); i += 4) {
    indices.push_back(upload.texels[i]);
  }
  // The last texel lies beyond the data.
  EXPECT_THAT(indices, ElementsAre(1, 2, 3, 4, 5, 5, 6, 7, 8, 0));
}

TEST(PalettedTexture, LeavesTheUnpackAlignmentAtItsFormerValue) {
  RecordingDriver recording;
  const Bytes data(256 * 4 + 4);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 8);
  recording.clear();
  glCompressedTexImage2D(GL_TEXTURE_2D, 1, GL_PALETTE8_RGBA8_OES, 2, 2, 0,
                         static_cast<GLsizei>(data.size()), data.data());
  EXPECT_THAT(recording.take(),
              ElementsAre("glGetIntegerv(GL_MAX_TEXTURE_SIZE, <ptr>)",
                          "glPixelStorei(GL_UNPACK_ALIGNMENT, 1)",
                          "glTexImage2D(GL_TEXTURE_2D, 1, GL_RGBA, 2, 2, 0, GL_RGBA, "
                          "GL_UNSIGNED_BYTE, <ptr>)",
                          "glPixelStorei(GL_UNPACK_ALIGNMENT, 8)"));
}

TEST(PalettedTexture, ReadsNothingPastItsData) {
  RecordingDriver recording;
  // Allocated to the byte, so that the address sanitizer sees every read outside.
  for (const Format& format : formats) {
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, std::size_t{5}, format.entries * format.entryBytes,
          format.entries * format.entryBytes + 3}) {
      const Bytes data(size + (size == 0), 255);
      glCompressedTexImage2D(GL_TEXTURE_2D, 0, format.name, 8, 8, 0, static_cast<GLsizei>(size),
                             data.data());
    }
  }
  EXPECT_EQ(recording.calls("glTexImage2D").size(), 50u);
}

TEST(PalettedTexture, OfASizeThatTheDriverLacksIsLeftToItForItsError) {
  RecordingDriver recording;
  const Bytes data(16 * 3 + 4);
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGB8_OES, 1 << 20, 1 << 20, 0, 52,
                         data.data());
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGB8_OES, -1, 4, 0, 52, data.data());
  EXPECT_THAT(recording.calls("glTexImage2D"),
              ElementsAre("glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 1048576, 1048576, 0, GL_RGB, "
                          "GL_UNSIGNED_BYTE, null)",
                          "glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, -1, 4, 0, GL_RGB, "
                          "GL_UNSIGNED_BYTE, null)"));
}

TEST(PalettedTexture, IsLeftOutWhenMemoryIsShort) {
  RecordingDriver recording;
  const Bytes data(16 * 3 + 4);
  auto* const former = gles::reallocate;
  gles::reallocate = [](void*, std::size_t) -> void* { return nullptr; };
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGB8_OES, 2, 2, 0, 50, data.data());
  gles::reallocate = former;
  EXPECT_THAT(recording.calls("glTexImage2D"), IsEmpty());
}

TEST(CompressedTexture, OfOtherFormatsIsForwarded) {
  RecordingDriver recording;
  const Bytes data(8);
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, 0x83F0, 4, 4, 0, 8, data.data());
  glCompressedTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 4, 4, 0x83F0, 8, data.data());
  EXPECT_THAT(recording.take(),
              ElementsAre("glCompressedTexImage2D(GL_TEXTURE_2D, 0, 0x83F0, 4, 4, 0, 8, <ptr>)",
                          "glCompressedTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 4, 4, 0x83F0, 8, "
                          "<ptr>)"));
}

TEST(CompressedTexture, PartsOfPalettedOnesDoNothing) {
  RecordingDriver recording;
  const Bytes data(1024);
  for (const Format& format : formats) {
    glCompressedTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 2, 2, format.name, 1024, data.data());
  }
  EXPECT_THAT(recording.take(), IsEmpty());
}

}  // namespace
