#include "engine/surface/image2d.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

bool isFormat(int format) {
  return format >= Image2D::ALPHA && format <= Image2D::RGBA;
}

int bytesPerPixelOrOne(int format) {
  return isFormat(format) ? Image2D::bytesPerPixelOf(format) : 1;
}

bool isPowerOfTwoSize(int size) {
  return size > 0 && (size & (size - 1)) == 0;
}

// Product of two sizes; the largest size stands for any that is too large.
std::uint64_t cappedProduct(std::uint64_t a, std::uint64_t b) {
  constexpr std::uint64_t LARGEST = std::numeric_limits<std::uint64_t>::max();
  return a != 0 && b > LARGEST / a ? LARGEST : a * b;
}

const char* formatName(int format) {
  switch (format) {
    case Image2D::ALPHA:
      return " ALPHA";
    case Image2D::LUMINANCE:
      return " LUMINANCE";
    case Image2D::LUMINANCE_ALPHA:
      return " LUMINANCE_ALPHA";
    case Image2D::RGB:
      return " RGB";
    case Image2D::RGBA:
      return " RGBA";
    default:
      return "";
  }
}

}  // namespace

boost::shared_ptr<Image2D> Image2D::create(int format, int width, int height) {
  const boost::shared_ptr<Image2D> image(new Image2D);
  image->initialise(format, width, height);
  return image;
}

boost::shared_ptr<Image2D> Image2D::create(int format, int width, int height,
                                           const unsigned char* image, std::size_t length) {
  const boost::shared_ptr<Image2D> result(new Image2D);
  result->initialise(format, width, height, image, length);
  return result;
}

boost::shared_ptr<Image2D> Image2D::create(int format, int width, int height,
                                           const unsigned char* indices,
                                           const unsigned char* palette,
                                           std::size_t paletteLength) {
  const boost::shared_ptr<Image2D> result(new Image2D);
  result->initialise(format, width, height, indices, palette, paletteLength);
  return result;
}

int Image2D::bytesPerPixelOf(int format) {
  switch (format) {
    case ALPHA:
    case LUMINANCE:
      return 1;
    case LUMINANCE_ALPHA:
      return 2;
    case RGB:
      return 3;
    case RGBA:
      return 4;
    default:
      throw std::invalid_argument("Invalid format for Image2D");
  }
}

Image2D::Image2D() = default;

Image2D::~Image2D() = default;

void Image2D::FreeBlock::operator()(unsigned char* block) const {
  std::free(block);
}

void Image2D::initialise(int newFormat, int width, int height) {
  reset();
  isMutable_ = true;
  allocate(newFormat, width, height, true);
}

void Image2D::initialise(int newFormat, int width, int height, const unsigned char* image,
                         std::size_t length) {
  reset();
  if (image == nullptr) {
    throw std::invalid_argument("NULL image byte array");
  }
  isMutable_ = true;
  allocate(newFormat, width, height, false);
  storePixels(image, length);
}

void Image2D::initialise(int newFormat, int width, int height, const unsigned char* indices,
                         const unsigned char* palette, std::size_t paletteLength) {
  reset();
  if (indices == nullptr) {
    throw std::invalid_argument("NULL image byte array");
  }
  if (palette == nullptr) {
    throw std::invalid_argument("NULL palette array");
  }
  allocate(newFormat, width, height, false);
  expandPalette(indices, palette, paletteLength);
}

void Image2D::dump() {
  Object3D::dump();
  log("Image2D Object");
  log("==============");
  logf("ImageFormat:%s", formatName(format));
  logf("isMutable: %u", isMutable_ ? 1U : 0U);
  logf("Dimensions WxH: %ux%u", static_cast<unsigned>(rect.width),
       static_cast<unsigned>(rect.height));
}

boost::shared_ptr<Object3D> Image2D::duplicateImpl(boost::shared_ptr<Object3D> target) {
  boost::shared_ptr<Image2D> copy;
  if (!target) {
    copy.reset(new Image2D);
    copy->reset();
    target = copy;
  } else {
    copy = boost::dynamic_pointer_cast<Image2D>(target);
  }
  Object3D::duplicateImpl(target);
  copy->format = format;
  copy->bytesPerPixel = bytesPerPixel;
  copy->rect = rect;
  if (pixels) {
    copy->allocate(format, rect.width, rect.height, false);
    std::memcpy(copy->pixels.get(), pixels.get(), storeSize);
  }
  copy->isMutable_ = isMutable_;
  return target;
}

void Image2D::set(int x, int y, int w, int h, const unsigned char* image) {
  if (!isMutable_) {
    throw std::runtime_error("Image2D.set(x, y, w, h, byteImage ) -- This Image2D is immutable");
  }
  if (image == nullptr) {
    throw std::invalid_argument("Image2D.set(x, y, w, h, byteImage ) --Null image reference");
  }
  const bool inside = x >= 0 && y >= 0 && w >= 0 && h >= 0 &&
                      static_cast<std::int64_t>(x) + w <= rect.width &&
                      static_cast<std::int64_t>(y) + h <= rect.height;
  if (!inside) {
    throw std::invalid_argument(
        "Image2D.set(x, y, w, h, byteImage ) -- supplied image does not fit within this image");
  }
  const std::size_t pixelBytes = static_cast<std::size_t>(bytesPerPixel);
  const std::size_t sourceRow = static_cast<std::size_t>(w) * pixelBytes;
  const std::size_t storeRow = static_cast<std::size_t>(rect.width) * pixelBytes;
  const std::size_t rows = static_cast<std::size_t>(h);
  unsigned char* to = pixels.get() + static_cast<std::size_t>(y) * storeRow +
                      static_cast<std::size_t>(x) * pixelBytes;
  if (sourceRow == storeRow && rows > 0 && sourceRow > 0) {
    std::memcpy(to, image, rows * sourceRow);
  } else if (sourceRow > 0) {
    for (std::size_t row = 0; row < rows; ++row) {
      std::memcpy(to + row * storeRow, image + row * sourceRow, sourceRow);
    }
  }
  if (texture) {
    texture->markDirty();
  }
}

void Image2D::setFormat(int newFormat) {
  bytesPerPixel = bytesPerPixelOf(newFormat);
  format = newFormat;
}

void Image2D::allocate(int newFormat, int width, int height, bool fill) {
  if (width < 0 || height < 0) {
    throw std::invalid_argument("Bad dimension for Image2D");
  }
  const int pixelBytes = bytesPerPixelOrOne(newFormat);
  const std::uint64_t w = static_cast<std::uint64_t>(width);
  const std::uint64_t h = static_cast<std::uint64_t>(height);
  const std::uint64_t size = cappedProduct(w * (newFormat == RGB ? 4 : pixelBytes), h);
  // GL reads rows at an alignment of 4, so each may reach 3 bytes further than its pixels.
  const std::uint64_t rowRead = (w * static_cast<std::uint64_t>(pixelBytes) + 3) / 4 * 4;
  const std::uint64_t padded = std::max({size, cappedProduct(rowRead, h), std::uint64_t{1}});
  std::unique_ptr<unsigned char[], FreeBlock> block;
  if (padded <= static_cast<std::uint64_t>(std::numeric_limits<std::ptrdiff_t>::max())) {
    // Zeroed pages that nothing writes cost no memory, whatever size a file may claim.
    block.reset(static_cast<unsigned char*>(std::calloc(static_cast<std::size_t>(padded), 1)));
  }
  if (!block) {
    throw std::invalid_argument("Bad dimension for Image2D");
  }
  if (!isFormat(newFormat)) {
    throw std::invalid_argument("Illegal image format");
  }
  if (fill) {
    std::memset(block.get(), 0xFF, static_cast<std::size_t>(padded));
  }
  setFormat(newFormat);
  rect = Rectangle();
  rect.width = width;
  rect.height = height;
  pixels = std::move(block);
  storeSize = static_cast<std::size_t>(size);
  makeTexture();
  isPowerOfTwo_ = isPowerOfTwoSize(width) && isPowerOfTwoSize(height);
}

void Image2D::makeTexture() {
  texture.reset();
  texture.reset(new ImageTexture(boost::static_pointer_cast<Image2D>(shared_from_this())));
}

void Image2D::expandPalette(const unsigned char* indices, const unsigned char* palette,
                            std::size_t paletteLength) {
  isMutable_ = false;
  const std::size_t pixelBytes = static_cast<std::size_t>(bytesPerPixel);
  // 256 entries in all cases, so that every index has one.
  std::vector<unsigned char> entries(PALETTE_ENTRIES * pixelBytes, 0);
  std::copy_n(palette, std::min(paletteLength, entries.size()), entries.begin());
  const std::size_t count =
      static_cast<std::size_t>(rect.width) * static_cast<std::size_t>(rect.height);
  unsigned char* to = pixels.get();
  for (std::size_t i = 0; i < count; ++i) {
    std::memcpy(to, &entries[indices[i] * pixelBytes], pixelBytes);
    to += pixelBytes;
  }
  makeTexture();
}

void Image2D::storePixels(const unsigned char* image, std::size_t length) {
  const std::size_t needed = static_cast<std::size_t>(rect.width) *
                             static_cast<std::size_t>(rect.height) *
                             static_cast<std::size_t>(bytesPerPixel);
  isMutable_ = true;
  if (length >= needed) {
    set(0, 0, rect.width, rect.height, image);
  } else {
    // The store is zero where the bytes end.
    std::memcpy(pixels.get(), image, length);
    texture->markDirty();
  }
  isMutable_ = false;
}

}  // namespace varnel_m3g
