#include "engine/surface/image_texture.h"

#include <stdexcept>

#include "engine/surface/image2d.h"

namespace varnel_m3g {

namespace {

// Pixel forms of GL.
constexpr unsigned ALPHA = 6406;
constexpr unsigned RGB = 6407;
constexpr unsigned RGBA = 6408;
constexpr unsigned LUMINANCE = 6409;
constexpr unsigned LUMINANCE_ALPHA = 6410;
constexpr unsigned UNSIGNED_BYTE = 5121;

unsigned glFormatOf(int format) {
  switch (format) {
    case Image2D::ALPHA:
      return ALPHA;
    case Image2D::LUMINANCE:
      return LUMINANCE;
    case Image2D::LUMINANCE_ALPHA:
      return LUMINANCE_ALPHA;
    case Image2D::RGB:
      return RGB;
    case Image2D::RGBA:
      return RGBA;
    default:
      throw std::invalid_argument("Invalid image format");
  }
}

bool hasNoLowBits(int size) {
  return (static_cast<unsigned>(size - 1) & static_cast<unsigned>(size)) == 0;
}

}  // namespace

ImageTexture::ImageTexture(const boost::shared_ptr<Image2D>& owner)
    : image(owner), width(owner->getWidth()), height(owner->getHeight()), glType(UNSIGNED_BYTE) {
  image->isPowerOfTwo_ = hasNoLowBits(width) && hasNoLowBits(height);
  glFormat = glFormatOf(image->getFormat());
  glInternalFormat = glFormat;
  bytesPerPixel = image->getBytesPerPixel();
}

// The GL texture stays: no context need be current here.
ImageTexture::~ImageTexture() = default;

void ImageTexture::markDirty() {
  dirtyRect = Rectangle();
  dirtyRect.width = width;
  dirtyRect.height = height;
  needsSubUpload = true;
}

void ImageTexture::releaseImage() {
  // The image may go with its last share and take this object along, so the share is moved out
  // first.
  boost::shared_ptr<Image2D> share;
  share.swap(image);
}

}  // namespace varnel_m3g
