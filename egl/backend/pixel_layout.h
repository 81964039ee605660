#ifndef VARNEL_EGL_BACKEND_PIXEL_LAYOUT_H
#define VARNEL_EGL_BACKEND_PIXEL_LAYOUT_H

#include <cstddef>
#include <cstdint>
#include <memory>

#include "egl/backend/port.h"

/// The OpenGL format and type that stand for a native bitmap's pixels.
struct PixelLayout {
  unsigned format = 0;
  unsigned type = 0;
};

/// False for a layout that OpenGL cannot read and write as it lies.
bool findPixelLayout(const PortPixmapLayout& pixmap, PixelLayout* layout);

/// Bytes of one row, which is a multiple of 4.
std::size_t pixmapRowBytes(const PortPixmapLayout& pixmap);

/// Room for all rows of a bitmap.
using PixmapRows = std::unique_ptr<unsigned char[]>;
/// Zeroed; null when memory is short.
PixmapRows allocatePixmapRows(const PortPixmapLayout& pixmap);

/// Widens one pixel row of a bitmap that findPixelLayout knows into words 0xAARRGGBB. Alpha is what
/// the top byte or bit says only in the 32-bit form; elsewhere it is 255.
void widenPixelRow(const PortPixmapLayout& pixmap, const unsigned char* row, std::uint32_t* words);

#endif
