#include "tests/support/image_writer.h"

#include <png.h>

#include <cstdio>
// jpeglib.h needs stdio's types before it.
#include <jpeglib.h>

#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace varnel_test {
namespace {

void appendPng(png_structp png, png_bytep bytes, png_size_t size) {
  static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<char*>(bytes), size);
}

void failPng(png_structp, png_const_charp message) {
  throw std::runtime_error(message);
}

void ignorePng(png_structp, png_const_charp) {}

void failJpeg(j_common_ptr encoder) {
  char message[JMSG_LENGTH_MAX];
  encoder->err->format_message(encoder, message);
  throw std::runtime_error(message);
}

int sampleAt(const std::string& bytes, std::size_t index) {
  return static_cast<unsigned char>(bytes.at(2 * index)) << 8 |
         static_cast<unsigned char>(bytes.at(2 * index + 1));
}

void setTransparency(png_structp png, png_infop info, const PngImage& image) {
  if (image.transparency.empty()) {
    return;
  }
  std::string alphas = image.transparency;
  png_color_16 color = {};
  if (image.colorType == PNG_COLOR_TYPE_GRAY) {
    color.gray = static_cast<png_uint_16>(sampleAt(alphas, 0));
  } else if (image.colorType == PNG_COLOR_TYPE_RGB) {
    color.red = static_cast<png_uint_16>(sampleAt(alphas, 0));
    color.green = static_cast<png_uint_16>(sampleAt(alphas, 1));
    color.blue = static_cast<png_uint_16>(sampleAt(alphas, 2));
  }
  png_set_tRNS(png, info, reinterpret_cast<png_bytep>(alphas.data()),
               static_cast<int>(alphas.size()), &color);
}

}  // namespace

std::string pngFile(const PngImage& image) {
  std::string file;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, failPng, ignorePng);
  png_infop info = png_create_info_struct(png);
  try {
    png_set_write_fn(png, &file, appendPng, nullptr);
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width),
                 static_cast<png_uint_32>(image.height), image.bitDepth, image.colorType,
                 image.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (!image.palette.empty()) {
      std::vector<png_color> palette(image.palette.size() / 3);
      for (std::size_t i = 0; i < palette.size(); ++i) {
        palette[i].red = static_cast<png_byte>(image.palette[3 * i]);
        palette[i].green = static_cast<png_byte>(image.palette[3 * i + 1]);
        palette[i].blue = static_cast<png_byte>(image.palette[3 * i + 2]);
      }
      png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
    }
    setTransparency(png, info, image);
    png_write_info(png, info);
    const std::size_t rowBytes = image.rows.size() / static_cast<std::size_t>(image.height);
    if (rowBytes != png_get_rowbytes(png, info)) {
      throw std::runtime_error("rows of another length than the image's");
    }
    std::string rows = image.rows;
    std::vector<png_bytep> pointers;
    for (int y = 0; y < image.height; ++y) {
      pointers.push_back(reinterpret_cast<png_bytep>(rows.data()) +
                         static_cast<std::size_t>(y) * rowBytes);
    }
    png_write_image(png, pointers.data());
    png_write_end(png, info);
  } catch (...) {
    png_destroy_write_struct(&png, &info);
    throw;
  }
  png_destroy_write_struct(&png, &info);
  return file;
}

std::string jpegFile(const JpegImage& image) {
  jpeg_compress_struct encoder = {};
  jpeg_error_mgr errors;
  encoder.err = jpeg_std_error(&errors);
  errors.error_exit = failJpeg;
  unsigned char* buffer = nullptr;
  unsigned long size = 0;
  jpeg_create_compress(&encoder);
  try {
    jpeg_mem_dest(&encoder, &buffer, &size);
    encoder.image_width = static_cast<JDIMENSION>(image.width);
    encoder.image_height = static_cast<JDIMENSION>(image.height);
    encoder.input_components = image.components;
    encoder.in_color_space = image.components == 1   ? JCS_GRAYSCALE
                             : image.components == 3 ? JCS_RGB
                                                     : JCS_CMYK;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, image.quality, TRUE);
    encoder.comp_info[0].h_samp_factor = image.subsamplingX;
    encoder.comp_info[0].v_samp_factor = image.subsamplingY;
    if (image.progressive) {
      jpeg_simple_progression(&encoder);
    }
    jpeg_start_compress(&encoder, TRUE);
    std::string pixels = image.pixels;
    while (encoder.next_scanline < encoder.image_height) {
      JSAMPROW row = reinterpret_cast<JSAMPROW>(
          &pixels.at(std::size_t(encoder.next_scanline) * image.width * image.components));
      jpeg_write_scanlines(&encoder, &row, 1);
    }
    jpeg_finish_compress(&encoder);
  } catch (...) {
    jpeg_destroy_compress(&encoder);
    std::free(buffer);
    throw;
  }
  jpeg_destroy_compress(&encoder);
  const std::string file(reinterpret_cast<char*>(buffer), size);
  std::free(buffer);
  return file;
}

}  // namespace varnel_test
