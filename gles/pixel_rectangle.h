#ifndef VARNEL_GLES_PIXEL_RECTANGLE_H
#define VARNEL_GLES_PIXEL_RECTANGLE_H

namespace gles {

/// A block of pixels, its first row at the top.
struct PixelRectangle {
  int width;
  int height;
  /// Format, type and row alignment as `glTexSubImage2D` takes them.
  unsigned format;
  unsigned type;
  int alignment;
  const void* pixels;
};

/// Draws the block as a textured quad over the whole viewport, whatever state the context is in,
/// and leaves that state as it was. `boundArrayBuffer` is what the context has bound, `units` how
/// many fixed-function texture units may be in use.
void drawPixelRectangle(const PixelRectangle& rectangle, unsigned boundArrayBuffer, unsigned units);

}  // namespace gles

#endif  // VARNEL_GLES_PIXEL_RECTANGLE_H
