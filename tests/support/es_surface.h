#ifndef VARNEL_TESTS_SUPPORT_ES_SURFACE_H
#define VARNEL_TESTS_SUPPORT_ES_SURFACE_H

#include <array>
#include <vector>

#include <EGL/egl.h>

/// Four bytes R, G, B, A.
using Pixel = std::array<unsigned char, 4>;

/// An off-screen surface of RGBA 8888 with depth and stencil, and a context that is current on it
/// while it lives. Throws std::runtime_error where there is no display or no such surface.
class EsSurface {
 public:
  EsSurface(int width, int height);
  ~EsSurface();
  EsSurface(const EsSurface&) = delete;
  EsSurface& operator=(const EsSurface&) = delete;

  int width() const { return width_; }
  int height() const { return height_; }

  /// The colour at x, y from the lower left.
  Pixel pixel(int x, int y) const;
  /// All pixels, row by row from the lower left.
  std::vector<Pixel> pixels() const;

 private:
  int width_;
  int height_;
  EGLDisplay display_ = EGL_NO_DISPLAY;
  EGLSurface surface_ = EGL_NO_SURFACE;
  EGLContext context_ = EGL_NO_CONTEXT;
};

#endif  // VARNEL_TESTS_SUPPORT_ES_SURFACE_H
