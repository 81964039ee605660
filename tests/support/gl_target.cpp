#include "tests/support/gl_target.h"

#include <GLES/gl.h>

#include <stdexcept>

GlTarget::GlTarget(int width, int height) : size{width, height} {
  display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  if (!eglInitialize(display, nullptr, nullptr)) {
    throw std::runtime_error("no display to draw on");
  }
  const EGLint wanted[] = {
      EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RED_SIZE, 8, EGL_ALPHA_SIZE, 8, EGL_DEPTH_SIZE, 16,
      EGL_NONE};
  EGLConfig config = nullptr;
  EGLint found = 0;
  eglChooseConfig(display, wanted, &config, 1, &found);
  const EGLint attributes[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
  record.surface = eglCreatePbufferSurface(display, config, attributes);
  context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  if (found < 1 || !eglMakeCurrent(display, record.surface, record.surface, context)) {
    throw std::runtime_error("no off-screen surface to draw on");
  }
}

GlTarget::~GlTarget() {
  eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  eglDestroyContext(display, context);
  eglDestroySurface(display, record.surface);
  eglTerminate(display);
}

std::vector<Pixel> GlTarget::read() const {
  const std::size_t count = static_cast<std::size_t>(size[0]) * static_cast<std::size_t>(size[1]);
  std::vector<unsigned char> bytes(count * 4);
  glReadPixels(0, 0, size[0], size[1], GL_RGBA, GL_UNSIGNED_BYTE, bytes.data());
  std::vector<Pixel> pixels;
  pixels.reserve(count);
  for (int y = size[1] - 1; y >= 0; --y) {
    for (int x = 0; x < size[0]; ++x) {
      const unsigned char* p = &bytes[static_cast<std::size_t>(y * size[0] + x) * 4];
      pixels.push_back({p[0], p[1], p[2], p[3]});
    }
  }
  return pixels;
}
