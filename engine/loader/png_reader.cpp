#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "engine/loader/image_file.h"
#include "engine/loader/loader.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {
namespace {

constexpr char allocationFailed[] = "Loader::readPNG: Problem allocating data for PNG structures";

/// What libpng holds and what it fills; freed here, so that its jumps skip no destructor.
struct PngImage {
  png_structp png = nullptr;
  png_infop info = nullptr;
  unsigned char* pixels = nullptr;
  png_bytep* rows = nullptr;
  png_uint_32 width = 0;
  png_uint_32 height = 0;
  std::size_t rowBytes = 0;
  std::size_t storeSize = 0;  // bytes behind pixels

  PngImage() = default;
  PngImage(const PngImage&) = delete;
  PngImage& operator=(const PngImage&) = delete;
  ~PngImage() {
    std::free(rows);
    std::free(pixels);
    if (png != nullptr) {
      png_destroy_read_struct(&png, &info, nullptr);
    }
  }
};

/// Decodes the file behind its signature. No object with a destructor lives in this frame.
bool decode(PngImage& image, std::FILE* file, std::uint64_t fileSize) {
  if (setjmp(png_jmpbuf(image.png)) != 0) {
    return false;
  }
  png_init_io(image.png, file);
  png_set_sig_bytes(image.png, imageSignatureLength);
  png_read_info(image.png, image.info);
  int bitDepth = 0;
  int colorType = 0;
  png_get_IHDR(image.png, image.info, &image.width, &image.height, &bitDepth, &colorType, nullptr,
               nullptr, nullptr);

  png_set_strip_16(image.png);
  png_set_packing(image.png);
  if (colorType == PNG_COLOR_TYPE_PALETTE) {
    png_set_palette_to_rgb(image.png);
  }
  if (colorType == PNG_COLOR_TYPE_GRAY && bitDepth < 8) {
    png_set_expand_gray_1_2_4_to_8(image.png);
  }
  if (png_get_valid(image.png, image.info, PNG_INFO_tRNS) != 0) {
    png_set_tRNS_to_alpha(image.png);
  }
  png_set_interlace_handling(image.png);
  png_read_update_info(image.png, image.info);
  image.rowBytes = png_get_rowbytes(image.png, image.info);

  if (!fitsImageFile(image.width, image.height, image.rowBytes, fileSize)) {
    png_error(image.png, "Image is larger than its file can hold");
  }
  image.storeSize = image.height * image.rowBytes;
  image.pixels = static_cast<unsigned char*>(std::calloc(image.storeSize, 1));
  image.rows = static_cast<png_bytep*>(std::malloc(image.height * sizeof(png_bytep)));
  if (image.pixels == nullptr || image.rows == nullptr) {
    png_error(image.png, "Out of memory");
  }
  for (png_uint_32 y = 0; y < image.height; ++y) {
    image.rows[y] = image.pixels + y * image.rowBytes;
  }
  png_read_image(image.png, image.rows);
  return true;
}

}  // namespace

boost::shared_ptr<Image2D> Loader::readPNG(const char* name) {
  const ImageFile file(name);
  if (!file) {
    throw std::runtime_error("Loader::readPNG Couldn't read PNG file");
  }
  png_byte signature[imageSignatureLength] = {};
  const std::size_t obtained = std::fread(signature, 1, sizeof(signature), file.get());
  if (obtained < sizeof(signature) || png_sig_cmp(signature, 0, sizeof(signature)) != 0) {
    throw std::runtime_error("Loader::readPNG: External reference is not PNG");
  }
  PngImage image;
  image.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  if (image.png == nullptr) {
    throw std::runtime_error(allocationFailed);
  }
  image.info = png_create_info_struct(image.png);
  if (image.info == nullptr) {
    throw std::runtime_error(allocationFailed);
  }
  if (!decode(image, file.get(), file.size())) {
    throw std::runtime_error("Loader::readPNG: Problem calling setjmp");
  }
  const bool rgb = image.rowBytes / image.width == 3;
  return Image2D::create(rgb ? Image2D::RGB : Image2D::RGBA, static_cast<int>(image.width),
                         static_cast<int>(image.height), image.pixels, image.storeSize);
}

}  // namespace varnel_m3g
