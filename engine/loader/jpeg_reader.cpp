// jpeglib.h needs stdio's types before it.
#include <cstdio>

#include <jpeglib.h>

#include <algorithm>
#include <csetjmp>
#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "engine/loader/image_file.h"
#include "engine/loader/loader.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {
namespace {

/// Progressive files refine a picture in a handful of scans; one with more only costs time.
constexpr int maxScans = 500;

struct JpegErrors {
  jpeg_error_mgr manager;  // first, so that libjpeg's pointer to it is one to this record
  std::jmp_buf jump;
};

void jumpOut(j_common_ptr decoder) {
  std::longjmp(reinterpret_cast<JpegErrors*>(decoder->err)->jump, 1);
}

void limitScans(j_common_ptr decoder) {
  if (reinterpret_cast<j_decompress_ptr>(decoder)->input_scan_number > maxScans) {
    jumpOut(decoder);
  }
}

/// What libjpeg holds and what it fills; freed here, so that its jumps skip no destructor.
struct JpegImage {
  jpeg_decompress_struct decoder = {};
  JpegErrors errors;
  jpeg_progress_mgr progress = {};
  unsigned char* pixels = nullptr;
  std::size_t storeSize = 0;  // bytes behind pixels

  JpegImage() {
    decoder.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = jumpOut;
    progress.progress_monitor = limitScans;
  }
  JpegImage(const JpegImage&) = delete;
  JpegImage& operator=(const JpegImage&) = delete;
  ~JpegImage() {
    std::free(pixels);
    jpeg_destroy_decompress(&decoder);
  }
};

/// Decodes the file. No object with a destructor lives in this frame.
bool decode(JpegImage& image, std::FILE* file, std::uint64_t fileSize) {
  if (setjmp(image.errors.jump) != 0) {
    return false;
  }
  jpeg_decompress_struct& decoder = image.decoder;
  jpeg_create_decompress(&decoder);
  decoder.progress = &image.progress;
  jpeg_stdio_src(&decoder, file);
  jpeg_read_header(&decoder, TRUE);
  const std::size_t width = decoder.image_width;
  const std::size_t height = decoder.image_height;
  if (!fitsImageFile(width, height, width * 3, fileSize)) {
    jumpOut(reinterpret_cast<j_common_ptr>(&decoder));
  }
  jpeg_start_decompress(&decoder);

  image.storeSize = height * width * 3;
  image.pixels = static_cast<unsigned char*>(std::calloc(image.storeSize, 1));
  if (image.pixels == nullptr) {
    jumpOut(reinterpret_cast<j_common_ptr>(&decoder));
  }
  // Three bytes a pixel are taken of each row, which has less of them in a grey picture.
  const std::size_t rowBytes = std::max<std::size_t>(
      std::size_t(decoder.output_width) * decoder.output_components, width * 3);
  JSAMPARRAY row = decoder.mem->alloc_sarray(reinterpret_cast<j_common_ptr>(&decoder), JPOOL_IMAGE,
                                             static_cast<JDIMENSION>(rowBytes), 1);
  std::memset(row[0], 0, rowBytes);
  while (decoder.output_scanline < decoder.output_height) {
    jpeg_read_scanlines(&decoder, row, 1);
    std::memcpy(image.pixels + (decoder.output_scanline - 1) * width * 3, row[0], width * 3);
  }
  jpeg_finish_decompress(&decoder);
  return true;
}

}  // namespace

boost::shared_ptr<Image2D> Loader::readJPEG(const char* name) {
  const ImageFile file(name);
  if (!file) {
    throw std::runtime_error("Loader:readJPEG Couldn't read external JPEG file");
  }
  JpegImage image;
  if (!decode(image, file.get(), file.size())) {
    throw std::runtime_error("Loader::readJPEG Couldn't setup JPEG decompression library");
  }
  return Image2D::create(Image2D::RGB, static_cast<int>(image.decoder.image_width),
                         static_cast<int>(image.decoder.image_height), image.pixels,
                         image.storeSize);
}

}  // namespace varnel_m3g
