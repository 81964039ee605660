#ifndef VARNEL_ENGINE_SURFACE_IMAGE2D_H
#define VARNEL_ENGINE_SURFACE_IMAGE2D_H

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <memory>

#include "engine/object/object3d.h"
#include "engine/surface/image_texture.h"
#include "engine/surface/rectangle.h"

namespace varnel_m3g {

class M3gObjectInputStream;

/// A block of pixels in one of five formats, with the object that takes them to a texture on
/// demand. Images made with data are immutable; palettes are expanded when the image is made.
class Image2D : public Object3D {
 public:
  static constexpr int ALPHA = 96;
  static constexpr int LUMINANCE = 97;
  static constexpr int LUMINANCE_ALPHA = 98;
  static constexpr int RGB = 99;
  static constexpr int RGBA = 100;

  /// Entries of a palette.
  static constexpr std::size_t PALETTE_ENTRIES = 256;

  /// A mutable image, opaque white.
  static boost::shared_ptr<Image2D> create(int format, int width, int height);
  /// An immutable image of length bytes, rows from the top without padding. Pixels that the bytes
  /// do not reach are zero.
  static boost::shared_ptr<Image2D> create(int format, int width, int height,
                                           const unsigned char* image, std::size_t length);
  /// An immutable image of width * height palette indices; the palette holds paletteLength bytes in
  /// the image's format. Entries past its end show zero bytes.
  static boost::shared_ptr<Image2D> create(int format, int width, int height,
                                           const unsigned char* indices,
                                           const unsigned char* palette, std::size_t paletteLength);

  /// Throws std::invalid_argument for a format outside 96..100.
  static int bytesPerPixelOf(int format);

  /// An image of no pixels, for the loader and the factories.
  Image2D();
  ~Image2D() override;

  /// The three initialising steps behind the factories; each resets the object. They throw
  /// std::invalid_argument for null arrays, an unknown format, and dimensions below 0 or larger
  /// than the memory.
  void initialise(int format, int width, int height);
  void initialise(int format, int width, int height, const unsigned char* image,
                  std::size_t length);
  void initialise(int format, int width, int height, const unsigned char* indices,
                  const unsigned char* palette, std::size_t paletteLength);
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Replaces a rectangle of pixels with w * h pixels in the image's format. Throws
  /// std::runtime_error for an immutable image, std::invalid_argument for null or a rectangle that
  /// does not lie inside the image.
  void set(int x, int y, int w, int h, const unsigned char* image);

  int getFormat() const { return format; }
  int getWidth() const { return rect.width; }
  int getHeight() const { return rect.height; }
  bool isMutable() const { return isMutable_; }
  /// Both dimensions are powers of two.
  bool isPowerOfTwo() const { return isPowerOfTwo_; }
  int getBytesPerPixel() const { return bytesPerPixel; }

  /// The pixels, row after row from the top. GL may read whole rows at an alignment of 4: the block
  /// behind the pointer is padded for that.
  const unsigned char* getPixels() const { return pixels.get(); }
  /// Bytes of the store: width * height * bytes per pixel, with 4 for RGB; the padding not counted.
  std::size_t getStoreSize() const { return storeSize; }

  /// Null before the first allocation. The texture and its image keep each other alive.
  ImageTexture* getTexture() const { return texture.get(); }

 private:
  friend class ImageTexture;

  struct FreeBlock {
    void operator()(unsigned char* block) const;
  };

  /// Stores the format and its bytes per pixel; throws as bytesPerPixelOf does.
  void setFormat(int format);
  /// Makes store and texture; fill makes every byte 0xFF. What load uses once the base part has
  /// been read.
  void allocate(int format, int width, int height, bool fill);
  /// Writes the store from width * height indices.
  void expandPalette(const unsigned char* indices, const unsigned char* palette,
                     std::size_t paletteLength);
  /// Takes all pixels at once from length bytes, whether mutable or not, and makes the image
  /// immutable.
  void storePixels(const unsigned char* image, std::size_t length);
  void makeTexture();

  std::unique_ptr<ImageTexture> texture;
  std::unique_ptr<unsigned char[], FreeBlock> pixels;
  bool isMutable_ = true;
  bool isPowerOfTwo_ = false;
  Rectangle rect;  // x, y stay 0
  int format = ALPHA;
  int bytesPerPixel = 1;
  std::size_t storeSize = 0;
};

}  // namespace varnel_m3g

#endif
