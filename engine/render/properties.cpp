// The table of the implementation's properties, read from OpenGL ES at start-up.

#include <EGL/egl.h>
#include <GLES/gl.h>

#include <algorithm>
#include <cstdio>

#include "engine/object/engine_limits.h"
#include "engine/render/graphics3d.h"

namespace varnel_m3g {

namespace {

/// A context on a small off-screen surface, current while this object lives; used to ask OpenGL ES
/// for its limits before there is a window.
class PrivateContext {
 public:
  /// Prints a line and answers false at the first step that fails.
  bool make();
  ~PrivateContext();
  PrivateContext() = default;
  PrivateContext(const PrivateContext&) = delete;
  PrivateContext& operator=(const PrivateContext&) = delete;

 private:
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
};

bool fail(const char* text) {
  std::fputs(text, stdout);
  std::fflush(stdout);
  return false;
}

bool PrivateContext::make() {
  display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  if (display == EGL_NO_DISPLAY) {
    return fail("Failed to get default display\n");
  }
  if (!eglInitialize(display, nullptr, nullptr)) {
    return fail("Failed to initialize display\n");
  }
  const EGLint wanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint found = 0;
  if (!eglChooseConfig(display, wanted, &config, 1, &found) || found < 1) {
    return fail("Failed to get a valid frame buffer configuration\n");
  }
  const EGLint size[] = {EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE};
  surface = eglCreatePbufferSurface(display, config, size);
  if (surface == EGL_NO_SURFACE) {
    return fail("Failed to create surface\n");
  }
  context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  if (context == EGL_NO_CONTEXT) {
    return fail("Failed to create rendering context\n");
  }
  if (!eglMakeCurrent(display, surface, surface, context)) {
    eglGetError();
    return fail("Failed to attach rendering context to surface\n");
  }
  return true;
}

PrivateContext::~PrivateContext() {
  eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  eglDestroyContext(display, context);
  eglDestroySurface(display, surface);
  eglTerminate(display);
}

void fillProperties(Graphics3D::Properties& table) {
  table["supportAntialiasing"] = 1;
  table["supportTrueColor"] = 1;
  table["supportDithering"] = 1;
  table["supportMipmapping"] = 1;
  table["supportPerspectiveCorrection"] = 1;
  table["supportLocalCameraLighting"] = 0;

  GLint words[2] = {0, 0};
  glGetIntegerv(GL_MAX_LIGHTS, words);
  table["maxLights"] = words[0];

  glGetIntegerv(GL_MAX_VIEWPORT_DIMS, words);
  maxViewportWidth = words[0];
  maxViewportHeight = words[1];
  table["maxViewportWidth"] = words[0];
  table["maxViewportHeight"] = words[1];
  table["maxViewportDimension"] = std::max(words[0], words[1]);

  // The query writes one word; the other still holds the viewport's height, and counts.
  glGetIntegerv(GL_MAX_TEXTURE_SIZE, words);
  table["maxTextureDimension"] = std::max(words[0], words[1]);

  table["maxSpriteCropDimension"] = 256;
  maxTransformsPerVertex = 4;
  table["maxTransformsPerVertex"] = maxTransformsPerVertex;

  glGetIntegerv(GL_MAX_TEXTURE_UNITS, words);
  maxTextureUnits = words[0];
  table["maxTextureUnits"] = maxTextureUnits;
}

}  // namespace

const Graphics3D::Properties& Graphics3D::initProps() {
  static Properties& table = *new Properties;
  static bool initialised = false;
  if (initialised) {
    return table;
  }
  if (eglGetCurrentContext() != EGL_NO_CONTEXT) {
    fillProperties(table);
    initialised = true;
    return table;
  }
  PrivateContext context;
  if (context.make()) {
    fillProperties(table);
    initialised = true;
  }
  return table;
}

}  // namespace varnel_m3g
