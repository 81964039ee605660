#ifndef VARNEL_ENGINE_SURFACE_IMAGE_TEXTURE_H
#define VARNEL_ENGINE_SURFACE_IMAGE_TEXTURE_H

#include <boost/shared_ptr.hpp>

#include "engine/surface/rectangle.h"

namespace varnel_m3g {

class Image2D;

/// What takes the pixels of one image to a GL texture. Owned by the image and owning it in turn: an
/// image lives until releaseImage() is called. The name of the texture is never deleted.
class ImageTexture {
 public:
  /// Throws std::invalid_argument for an unknown format.
  explicit ImageTexture(const boost::shared_ptr<Image2D>& image);
  ~ImageTexture();
  ImageTexture(const ImageTexture&) = delete;
  ImageTexture& operator=(const ImageTexture&) = delete;

  /// Uploads what has changed and binds the texture to the active unit of the current GL context.
  void bind();
  /// Notes that the pixels have changed: the next bind() uploads the whole image.
  void markDirty();
  /// Gives up the share in the image, which may die at once, and this object with it.
  void releaseImage();

  bool isUploadNeeded() const { return needsUpload; }
  bool isSubUploadNeeded() const { return needsSubUpload; }
  const Rectangle& getDirtyRect() const { return dirtyRect; }
  int getWidth() const { return width; }
  int getHeight() const { return height; }
  unsigned getGlFormat() const { return glFormat; }
  unsigned getGlInternalFormat() const { return glInternalFormat; }
  unsigned getGlType() const { return glType; }
  unsigned getGlName() const { return glName; }
  int getBytesPerPixel() const { return bytesPerPixel; }

 private:
  boost::shared_ptr<Image2D> image;
  const unsigned char* data = nullptr;  // the image's pixels at the last full upload
  int width;
  int height;
  Rectangle dirtyRect;
  unsigned glFormat = 0;
  unsigned glInternalFormat = 0;
  unsigned glType;
  unsigned glName = 0;  // 0 until made
  bool needsSubUpload = false;
  bool needsUpload = true;
  int bytesPerPixel;
  [[maybe_unused]] bool keepsData = true;
};

}  // namespace varnel_m3g

#endif
