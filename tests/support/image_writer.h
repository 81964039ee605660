#ifndef VARNEL_TESTS_SUPPORT_IMAGE_WRITER_H
#define VARNEL_TESTS_SUPPORT_IMAGE_WRITER_H

#include <string>

namespace varnel_test {

/// A PNG image: colour type and bit depth as the format numbers them, rows from the top, each
/// packed to whole bytes and samples of 16 bits with the high byte first.
struct PngImage {
  int width = 0;
  int height = 0;
  int colorType = 2;  // 0 grey, 2 RGB, 3 palette, 4 grey and alpha, 6 RGBA
  int bitDepth = 8;
  bool interlaced = false;
  std::string rows;
  std::string palette;  // R, G, B of each entry
  /// Colour type 3: the alpha of the first entries. 0 and 2: the transparent grey or RGB sample,
  /// two bytes each, high byte first. Empty for no such chunk.
  std::string transparency;
};

/// The bytes of a PNG file; throws std::runtime_error if there cannot be one.
std::string pngFile(const PngImage& image);

/// A JPEG image of 1 (grey), 3 (RGB) or 4 (CMYK) bytes a pixel, rows from the top.
struct JpegImage {
  int width = 0;
  int height = 0;
  int components = 3;
  int quality = 95;
  /// Pixels for one colour sample, across and down.
  int subsamplingX = 1;
  int subsamplingY = 1;
  bool progressive = false;
  std::string pixels;
};

/// The bytes of a JPEG file; throws std::runtime_error if there cannot be one.
std::string jpegFile(const JpegImage& image);

}  // namespace varnel_test

#endif
