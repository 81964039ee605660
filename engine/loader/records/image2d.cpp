// Image2D, after the Object3D section:
//   Byte format, Boolean isMutable, Int32 width, Int32 height
//   unless mutable: ByteArray palette, ByteArray pixels (palette indices with a palette)

#include "engine/surface/image2d.h"

#include <memory>
#include <stdexcept>

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void Image2D::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setFormat(stream.readByte());
  const bool isMutableImage = stream.readBoolean();
  const int width = stream.readInt32();
  const int height = stream.readInt32();
  const std::uint64_t pixelCount = width > 0 && height > 0 ? static_cast<std::uint64_t>(width) *
                                                                 static_cast<std::uint64_t>(height)
                                                           : 0;
  if (isMutableImage) {
    stream.claimUnbacked(4 * pixelCount);
    allocate(format, width, height, true);
    return;
  }
  // The texture that comes with the store keeps its image alive, so a record with pixels makes it
  // only when it can no longer fail.
  if (width < 0 || height < 0) {
    allocate(format, width, height, true);
  }
  unsigned paletteLength = 0;
  const std::unique_ptr<unsigned char[]> palette = stream.readByteArray(paletteLength);
  unsigned pixelLength = 0;
  const std::unique_ptr<unsigned char[]> newPixels = stream.readByteArray(pixelLength);
  const unsigned pixelSize = static_cast<unsigned>(bytesPerPixel);
  if (paletteLength != 0) {
    if (paletteLength < PALETTE_ENTRIES * pixelSize && paletteLength % pixelSize != 0) {
      throw std::runtime_error("Invalid palette array length in Image2D file constructor");
    }
    if (pixelLength < pixelCount) {
      throw std::runtime_error("Invalid pixel index array length in Image2D file constructor");
    }
    allocate(format, width, height, true);
    expandPalette(newPixels.get(), palette.get(), paletteLength);
    isMutable_ = false;
    return;
  }
  if (pixelLength < pixelCount * pixelSize) {
    throw std::runtime_error("Invalid pixel array length in Image2D file constructor");
  }
  if (!newPixels) {
    // An image of no pixels, without even a byte too many: fails as any set from no array does.
    set(0, 0, width, height, nullptr);
  }
  allocate(format, width, height, true);
  storePixels(newPixels.get(), pixelLength);
}

}  // namespace varnel_m3g
