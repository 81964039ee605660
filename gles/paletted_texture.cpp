#include "gles/paletted_texture.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

#include <GLES/gl.h>

#include "gles/driver/driver.h"
#include "gles/memory.h"

namespace gles {

namespace {

struct PalettedFormat {
  unsigned name;
  std::size_t entries;
  std::size_t entryBytes;
  unsigned uploadFormat;
  unsigned uploadType;
};

constexpr PalettedFormat palettedFormats[] = {
    {GL_PALETTE4_RGB8_OES, 16, 3, GL_RGB, GL_UNSIGNED_BYTE},
    {GL_PALETTE4_RGBA8_OES, 16, 4, GL_RGBA, GL_UNSIGNED_BYTE},
    {GL_PALETTE4_R5_G6_B5_OES, 16, 2, GL_RGB, GL_UNSIGNED_SHORT_5_6_5},
    {GL_PALETTE4_RGBA4_OES, 16, 2, GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4},
    {GL_PALETTE4_RGB5_A1_OES, 16, 2, GL_RGBA, GL_UNSIGNED_SHORT_5_5_5_1},
    {GL_PALETTE8_RGB8_OES, 256, 3, GL_RGB, GL_UNSIGNED_BYTE},
    {GL_PALETTE8_RGBA8_OES, 256, 4, GL_RGBA, GL_UNSIGNED_BYTE},
    {GL_PALETTE8_R5_G6_B5_OES, 256, 2, GL_RGB, GL_UNSIGNED_SHORT_5_6_5},
    {GL_PALETTE8_RGBA4_OES, 256, 2, GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4},
    {GL_PALETTE8_RGB5_A1_OES, 256, 2, GL_RGBA, GL_UNSIGNED_SHORT_5_5_5_1},
};

const PalettedFormat* findFormat(unsigned name) {
  const auto* found =
      std::find_if(std::begin(palettedFormats), std::end(palettedFormats),
                   [name](const PalettedFormat& format) { return format.name == name; });
  return found == std::end(palettedFormats) ? nullptr : found;
}

// The data of a call, where every byte outside is 0.
struct Input {
  std::size_t at(std::size_t index) const { return index < size ? bytes[index] : 0; }

  const unsigned char* bytes;
  std::size_t size;
};

void unpack(const PalettedFormat& format, const Input& input, std::size_t width, std::size_t height,
            unsigned char* out) {
  const bool nibbles = format.entries == 16;
  const std::size_t indices = format.entries * format.entryBytes;
  const std::size_t rowBytes = nibbles ? (width > 2 ? width / 2 : 1) : width;
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      std::size_t index = input.at(indices + y * rowBytes + (nibbles ? x / 2 : x));
      if (nibbles) {
        index = x % 2 == 0 ? index >> 4 : index & 15;
      }
      for (std::size_t byte = 0; byte < format.entryBytes; ++byte) {
        *out++ = static_cast<unsigned char>(input.at(index * format.entryBytes + byte));
      }
    }
  }
}

bool fitsDriver(int width, int height) {
  int most = 0;
  driver.glGetIntegerv(GL_MAX_TEXTURE_SIZE, &most);
  return width > 0 && height > 0 && width <= most && height <= most;
}

}  // namespace

bool isPalettedFormat(unsigned format) {
  return findFormat(format) != nullptr;
}

void uploadPalettedTexture(unsigned target, int level, unsigned name, int width, int height,
                           int border, int imageSize, const void* data, int unpackAlignment) {
  const PalettedFormat* format = findFormat(name);
  if (!format) {
    return;
  }
  Block texels;
  const void* pixels = nullptr;
  if (data && fitsDriver(width, height)) {
    const auto columns = static_cast<std::size_t>(width);
    const auto rows = static_cast<std::size_t>(height);
    if (!texels.reserve(columns * rows * format->entryBytes)) {
      return;
    }
    unpack(
        *format,
        {static_cast<const unsigned char*>(data), static_cast<std::size_t>(std::max(imageSize, 0))},
        columns, rows, texels.data);
    pixels = texels.data;
  }
  driver.glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  driver.glTexImage2D(target, level, static_cast<int>(format->uploadFormat), width, height, border,
                      format->uploadFormat, format->uploadType, pixels);
  driver.glPixelStorei(GL_UNPACK_ALIGNMENT, unpackAlignment);
}

}  // namespace gles
