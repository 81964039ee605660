#include <algorithm>
#include <bit>
#include <cstring>

#include "egl/backend/glx/glx_port.h"

namespace {

struct Masks {
  std::uint32_t red, green, blue;
};

/// The colour masks that pixmaps of a depth have by convention: those of a visual of that depth, or
/// the usual ones where the screen has none.
Masks masksOfDepth(PortConnection& connection, int depth) {
  XVisualInfo wanted = {};
  wanted.screen = DefaultScreen(connection.display);
  wanted.depth = depth;
  wanted.c_class = TrueColor;
  int count = 0;
  XVisualInfo* visuals = XGetVisualInfo(
      connection.display, VisualScreenMask | VisualDepthMask | VisualClassMask, &wanted, &count);
  Masks masks = {};
  if (visuals) {
    masks = {static_cast<std::uint32_t>(visuals[0].red_mask),
             static_cast<std::uint32_t>(visuals[0].green_mask),
             static_cast<std::uint32_t>(visuals[0].blue_mask)};
    XFree(visuals);
    return masks;
  }
  switch (depth) {
    case 15:
      return {0x7C00, 0x03E0, 0x001F};
    case 16:
      return {0xF800, 0x07E0, 0x001F};
    case 30:
      return {0x3FF00000, 0x000FFC00, 0x000003FF};
    default:
      return {0xFF0000, 0xFF00, 0xFF};
  }
}

int bitsPerPixelOfDepth(PortConnection& connection, int depth) {
  int count = 0;
  XPixmapFormatValues* formats = XListPixmapFormats(connection.display, &count);
  int bits = 0;
  for (int i = 0; formats && i < count; ++i) {
    if (formats[i].depth == depth) {
      bits = formats[i].bits_per_pixel;
    }
  }
  if (formats) {
    XFree(formats);
  }
  return bits;
}

/// Depth of a pixmap; 0 if there is no such pixmap.
int pixmapSize(PortConnection& connection, Pixmap pixmap, int* width, int* height) {
  XErrorTrap trap(connection);
  XWindowAttributes windowAttributes;
  if (!pixmap || XGetWindowAttributes(connection.display, pixmap, &windowAttributes)) {
    return 0;
  }
  Window root = 0;
  int x = 0;
  int y = 0;
  unsigned w = 0;
  unsigned h = 0;
  unsigned border = 0;
  unsigned depth = 0;
  if (!XGetGeometry(connection.display, pixmap, &root, &x, &y, &w, &h, &border, &depth)) {
    return 0;
  }
  *width = static_cast<int>(w);
  *height = static_cast<int>(h);
  return static_cast<int>(depth);
}

std::size_t rowBytes(const PortPixmapLayout& layout) {
  return (static_cast<std::size_t>(layout.width) * static_cast<std::size_t>(layout.bitsPerPixel) +
          31) /
         32 * 4;
}

constexpr int hostByteOrder = std::endian::native == std::endian::little ? LSBFirst : MSBFirst;

void swapPixelBytes(unsigned char* row, std::size_t pixels, std::size_t bytesPerPixel) {
  for (std::size_t i = 0; i < pixels; ++i, row += bytesPerPixel) {
    std::reverse(row, row + bytesPerPixel);
  }
}

}  // namespace

bool portPixmapLayout(PortConnection* connection, PortNativePixmap pixmap,
                      PortPixmapLayout* layout) {
  if (connection->dead) {
    return false;
  }
  XErrorTrap trap(*connection);
  const int depth = pixmapSize(*connection, pixmap, &layout->width, &layout->height);
  if (!depth) {
    return false;
  }
  const Masks masks = masksOfDepth(*connection, depth);
  layout->bitsPerPixel = bitsPerPixelOfDepth(*connection, depth);
  layout->redMask = masks.red;
  layout->greenMask = masks.green;
  layout->blueMask = masks.blue;
  return true;
}

bool portReadPixmap(PortConnection* connection, PortNativePixmap pixmap,
                    const PortPixmapLayout& layout, void* rows) {
  if (connection->dead) {
    return false;
  }
  XErrorTrap trap(*connection);
  XImage* image = XGetImage(connection->display, pixmap, 0, 0, static_cast<unsigned>(layout.width),
                            static_cast<unsigned>(layout.height), AllPlanes, ZPixmap);
  if (!image) {
    return false;
  }
  const bool usable = image->bits_per_pixel == layout.bitsPerPixel;
  if (usable) {
    const std::size_t stride = rowBytes(layout);
    const std::size_t bytes = std::min(stride, static_cast<std::size_t>(image->bytes_per_line));
    const std::size_t bytesPerPixel = static_cast<std::size_t>(layout.bitsPerPixel) / 8;
    for (int y = 0; y < layout.height; ++y) {
      auto* row = static_cast<unsigned char*>(rows) + static_cast<std::size_t>(y) * stride;
      std::memcpy(row,
                  image->data +
                      static_cast<std::size_t>(y) * static_cast<std::size_t>(image->bytes_per_line),
                  bytes);
      if (image->byte_order != hostByteOrder && bytesPerPixel > 1) {
        swapPixelBytes(row, static_cast<std::size_t>(layout.width), bytesPerPixel);
      }
    }
  }
  XDestroyImage(image);
  return usable;
}

bool portWritePixmap(PortConnection* connection, PortNativePixmap pixmap,
                     const PortPixmapLayout& layout, const void* rows) {
  if (connection->dead) {
    return false;
  }
  XErrorTrap trap(*connection);
  int width = 0;
  int height = 0;
  const int depth = pixmapSize(*connection, pixmap, &width, &height);
  if (!depth) {
    return false;
  }
  XImage image = {};
  image.width = layout.width;
  image.height = layout.height;
  image.format = ZPixmap;
  image.data = static_cast<char*>(const_cast<void*>(rows));
  image.byte_order = hostByteOrder;
  image.bitmap_bit_order = hostByteOrder;
  image.bitmap_unit = 32;
  image.bitmap_pad = 32;
  image.depth = depth;
  image.bits_per_pixel = layout.bitsPerPixel;
  image.bytes_per_line = static_cast<int>(rowBytes(layout));
  if (!XInitImage(&image)) {
    return false;
  }
  GC gc = XCreateGC(connection->display, pixmap, 0, nullptr);
  XPutImage(connection->display, pixmap, gc, &image, 0, 0, 0, 0,
            static_cast<unsigned>(layout.width), static_cast<unsigned>(layout.height));
  XFreeGC(connection->display, gc);
  return !trap.failed();
}

void portFlushNative(PortConnection* connection) {
  if (connection && !connection->dead) {
    XErrorTrap trap(*connection);
  }
}
