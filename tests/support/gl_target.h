#ifndef VARNEL_TESTS_SUPPORT_GL_TARGET_H
#define VARNEL_TESTS_SUPPORT_GL_TARGET_H

#include <EGL/egl.h>

#include <array>
#include <iosfwd>
#include <vector>

#include "engine/render/graphics3d.h"

/// R, G, B, A.
using Pixel = std::array<int, 4>;

/// A small off-screen surface of the EGL layer with a context, current while this object lives, for
/// tests that look at pixels. Pixels are counted from the upper left.
class GlTarget {
 public:
  /// Throws std::runtime_error where there is no display or no such surface.
  GlTarget(int width, int height);
  ~GlTarget();
  GlTarget(const GlTarget&) = delete;
  GlTarget& operator=(const GlTarget&) = delete;

  /// What Graphics3D binds.
  const varnel_m3g::WindowSurface& surface() const { return record; }
  int width() const { return size[0]; }
  int height() const { return size[1]; }

  /// Reads all pixels, row by row from the top.
  std::vector<Pixel> read() const;
  Pixel at(int x, int y) const { return read()[static_cast<std::size_t>(y * size[0] + x)]; }
  Pixel centre() const { return at(size[0] / 2, size[1] / 2); }

 private:
  int size[2];
  EGLDisplay display;
  EGLContext context;
  varnel_m3g::WindowSurface record;
};

#endif
