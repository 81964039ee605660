#include "tests/support/es_surface.h"

#include <stdexcept>

#include "gles/driver/driver.h"

namespace {

constexpr unsigned rgba = 0x1908;
constexpr unsigned unsignedByte = 0x1401;

}  // namespace

EsSurface::EsSurface(int width, int height) : width_(width), height_(height) {
  const EGLint wanted[] = {EGL_RED_SIZE,     8,
                           EGL_GREEN_SIZE,   8,
                           EGL_BLUE_SIZE,    8,
                           EGL_ALPHA_SIZE,   8,
                           EGL_SURFACE_TYPE, EGL_PBUFFER_BIT,
                           EGL_NONE};
  const EGLint size[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  display_ = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  if (!eglInitialize(display_, nullptr, nullptr) ||
      !eglChooseConfig(display_, wanted, &config, 1, &count) || count < 1) {
    throw std::runtime_error("no EGL configuration");
  }
  surface_ = eglCreatePbufferSurface(display_, config, size);
  context_ = eglCreateContext(display_, config, EGL_NO_CONTEXT, nullptr);
  if (!eglMakeCurrent(display_, surface_, surface_, context_)) {
    throw std::runtime_error("the off-screen surface cannot be current");
  }
}

EsSurface::~EsSurface() {
  eglMakeCurrent(display_, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  eglDestroyContext(display_, context_);
  eglDestroySurface(display_, surface_);
}

Pixel EsSurface::pixel(int x, int y) const {
  Pixel result{};
  driver.glReadPixels(x, y, 1, 1, rgba, unsignedByte, result.data());
  return result;
}

std::vector<Pixel> EsSurface::pixels() const {
  std::vector<Pixel> result(static_cast<std::size_t>(width_ * height_));
  driver.glReadPixels(0, 0, width_, height_, rgba, unsignedByte, result.data());
  return result;
}
