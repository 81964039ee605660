#include <GLES/gl.h>

#include <vector>

#include "egl/shim/shim.h"
#include "gles/driver/driver.h"

namespace {

// Published values of desktop OpenGL that ES 1.1 does not name.
constexpr GLenum glAllAttribBits = 0xFFFFFFFF;
constexpr GLenum glCurrentProgram = 0x8B8D;
constexpr GLenum glMaxVertexAttribs = 0x8869;
constexpr GLenum glFramebuffer = 0x8D40;
constexpr GLenum glFramebufferBinding = 0x8CA6;

/// Keeps the whole state of the current OpenGL context and brings it back at the end: it is the
/// surface's own, and whatever its user has set there must neither touch the blit nor change by it.
class DriverStateKeeper {
 public:
  DriverStateKeeper() {
    driver.glPushAttrib(glAllAttribBits);
    driver.glPushClientAttrib(glAllAttribBits);
    if (driver.glUseProgram) {
      driver.glGetIntegerv(glCurrentProgram, &program);
      driver.glUseProgram(0);
    }
    if (driver.glBindFramebufferEXT) {
      driver.glGetIntegerv(glFramebufferBinding, &framebuffer);
      driver.glBindFramebufferEXT(glFramebuffer, 0);
    }
    if (driver.glDisableVertexAttribArray) {
      GLint count = 0;
      driver.glGetIntegerv(glMaxVertexAttribs, &count);
      for (GLint i = 0; i < count; ++i) {
        driver.glDisableVertexAttribArray(static_cast<GLuint>(i));
      }
    }
  }
  ~DriverStateKeeper() {
    if (driver.glBindFramebufferEXT) {
      driver.glBindFramebufferEXT(glFramebuffer, static_cast<GLuint>(framebuffer));
    }
    if (driver.glUseProgram) {
      driver.glUseProgram(static_cast<GLuint>(program));
    }
    driver.glPopClientAttrib();
    driver.glPopAttrib();
  }
  DriverStateKeeper(const DriverStateKeeper&) = delete;
  DriverStateKeeper& operator=(const DriverStateKeeper&) = delete;

 private:
  GLint program = 0;
  GLint framebuffer = 0;
};

/// Loads identity on one matrix stack for the time of the blit. Where the stack is full, the top is
/// kept aside instead of pushed.
class IdentityMatrix {
 public:
  IdentityMatrix(GLenum mode, GLenum matrix, GLenum depth, GLenum limit) : mode(mode) {
    GLint present = 0;
    GLint most = 0;
    driver.glGetIntegerv(depth, &present);
    driver.glGetIntegerv(limit, &most);
    pushed = present < most;
    glMatrixMode(mode);
    if (pushed) {
      glPushMatrix();
    } else {
      driver.glGetFloatv(matrix, top);
    }
    glLoadIdentity();
  }
  ~IdentityMatrix() {
    glMatrixMode(mode);
    if (pushed) {
      glPopMatrix();
    } else {
      glLoadMatrixf(top);
    }
  }
  IdentityMatrix(const IdentityMatrix&) = delete;
  IdentityMatrix& operator=(const IdentityMatrix&) = delete;

 private:
  GLenum mode;
  bool pushed = false;
  GLfloat top[16] = {};
};

/// Turns off everything that would keep a texel from arriving as it is.
void clearHostileState() {
  constexpr GLenum caps[] = {GL_BLEND,
                             GL_ALPHA_TEST,
                             GL_STENCIL_TEST,
                             GL_DEPTH_TEST,
                             GL_CULL_FACE,
                             GL_FOG,
                             GL_COLOR_LOGIC_OP,
                             GL_DITHER,
                             GL_POLYGON_OFFSET_FILL,
                             GL_SAMPLE_ALPHA_TO_COVERAGE,
                             GL_SAMPLE_ALPHA_TO_ONE,
                             GL_SAMPLE_COVERAGE};
  for (const GLenum cap : caps) {
    glDisable(cap);
  }
  GLint planes = 0;
  driver.glGetIntegerv(GL_MAX_CLIP_PLANES, &planes);
  for (GLint i = 0; i < planes; ++i) {
    glDisable(static_cast<GLenum>(GL_CLIP_PLANE0 + i));
  }
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  glBindBuffer(GL_ARRAY_BUFFER, 0);
  glDisableClientState(GL_NORMAL_ARRAY);
  glDisableClientState(GL_COLOR_ARRAY);
  GLint units = 1;
  driver.glGetIntegerv(GL_MAX_TEXTURE_UNITS, &units);
  for (GLint i = units - 1; i >= 0; --i) {
    // Unit 0 comes last and stays the active one.
    glActiveTexture(static_cast<GLenum>(GL_TEXTURE0 + i));
    glClientActiveTexture(static_cast<GLenum>(GL_TEXTURE0 + i));
    glDisable(GL_TEXTURE_2D);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
  }
  glTexEnvx(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
  // Rows of the narrowest bitmaps are 2 bytes long.
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
}

void drawBitmap(ShimSurface& surface, GLint width, GLint height) {
  static const GLbyte vertices[] = {-1, 1, 1, 1, 1, -1, -1, -1};
  if (surface.blitTexture == 0) {
    glGenTextures(1, &surface.blitTexture);
  }
  const DriverStateKeeper keeper;
  clearHostileState();
  glViewport(0, 0, width, height);
  glScissor(0, 0, width, height);
  const IdentityMatrix projection(GL_PROJECTION, GL_PROJECTION_MATRIX, GL_PROJECTION_STACK_DEPTH,
                                  GL_MAX_PROJECTION_STACK_DEPTH);
  const IdentityMatrix modelView(GL_MODELVIEW, GL_MODELVIEW_MATRIX, GL_MODELVIEW_STACK_DEPTH,
                                 GL_MAX_MODELVIEW_STACK_DEPTH);
  const IdentityMatrix texture(GL_TEXTURE, GL_TEXTURE_MATRIX, GL_TEXTURE_STACK_DEPTH,
                               GL_MAX_TEXTURE_STACK_DEPTH);
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  const auto upper = [](GLint size, GLint bitmapSize) {
    return static_cast<GLfixed>((static_cast<long long>(size) << 16) / bitmapSize);
  };
  const GLfixed s = upper(width, surface.bitmapWidth);
  const GLfixed t = upper(height, surface.bitmapHeight);
  // The bitmap's first row is at the top.
  const GLfixed coordinates[] = {0, 0, s, 0, s, t, 0, t};
  glVertexPointer(2, GL_BYTE, 0, vertices);
  glTexCoordPointer(2, GL_FIXED, 0, coordinates);
  glBindTexture(GL_TEXTURE_2D, surface.blitTexture);
  if (surface.config && surface.config->is565) {
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, surface.bitmapWidth, surface.bitmapHeight, 0, GL_RGB,
                 GL_UNSIGNED_SHORT_5_6_5, surface.bitmap);
  } else {
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, surface.bitmapWidth, surface.bitmapHeight, 0, GL_RGBA,
                 GL_UNSIGNED_BYTE, surface.bitmap);
  }
  static_cast<void>(glGetError());
  glEnable(GL_TEXTURE_2D);
  glDepthFunc(GL_ALWAYS);
  glDisable(GL_LIGHTING);
  glDisable(GL_COLOR_MATERIAL);
  glColor4x(0x10000, 0x10000, 0x10000, 0x10000);
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  glDrawArrays(GL_TRIANGLE_FAN, 0, 4);
  glBindTexture(GL_TEXTURE_2D, 0);
  // The lock context notes which arrays are on; its notes must fit what comes back.
  glDisableClientState(GL_TEXTURE_COORD_ARRAY);
  glDisableClientState(GL_VERTEX_ARRAY);
}

/// Makes the lock context current on a surface, and at the end what was current before.
class LockContextCurrent {
 public:
  LockContextCurrent(EGLDisplay display, const ShimSurface& surface)
      : backend(eglBackend()),
        display(display),
        formerDisplay(backend.getCurrentDisplay()),
        formerDraw(backend.getCurrentSurface(EGL_DRAW)),
        formerRead(backend.getCurrentSurface(EGL_READ)),
        formerContext(backend.getCurrentContext()) {
    current = surface.config && surface.config->lockContext != EGL_NO_CONTEXT &&
              backend.makeCurrent(display, surface.backendSurface, surface.backendSurface,
                                  surface.config->lockContext);
  }
  ~LockContextCurrent() {
    if (!current) {
      return;
    }
    if (formerContext != EGL_NO_CONTEXT &&
        backend.makeCurrent(formerDisplay, formerDraw, formerRead, formerContext)) {
      return;
    }
    backend.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  }
  LockContextCurrent(const LockContextCurrent&) = delete;
  LockContextCurrent& operator=(const LockContextCurrent&) = delete;

  explicit operator bool() const { return current; }

 private:
  const EglBackend& backend;
  EGLDisplay display;
  EGLDisplay formerDisplay;
  EGLSurface formerDraw;
  EGLSurface formerRead;
  EGLContext formerContext;
  bool current = false;
};

}  // namespace

void blitBitmap(EGLDisplay display, ShimSurface& surface) {
  const LockContextCurrent lock(display, surface);
  if (!lock) {
    return;
  }
  EGLint width = 0;
  EGLint height = 0;
  const EglBackend& backend = eglBackend();
  if (!backend.querySurface(display, surface.backendSurface, EGL_WIDTH, &width) ||
      !backend.querySurface(display, surface.backendSurface, EGL_HEIGHT, &height)) {
    return;
  }
  drawBitmap(surface, width, height);
}

void deleteBlitTexture(EGLDisplay display, ShimSurface& surface) {
  if (surface.blitTexture == 0) {
    return;
  }
  const LockContextCurrent lock(display, surface);
  if (lock) {
    glDeleteTextures(1, &surface.blitTexture);
    surface.blitTexture = 0;
  }
}
