#include <algorithm>
#include <bit>

#include "egl/backend/egw.h"
#include "egl/backend/pixel_layout.h"
#include "gles/driver/driver.h"

namespace {

// Published values of desktop OpenGL.
constexpr unsigned glPackAlignment = 0x0D05;
constexpr unsigned glViewport = 0x0BA2;
constexpr unsigned glUnpackAlignment = 0x0CF5;
constexpr unsigned glRgb = 0x1907;
constexpr unsigned glRgba = 0x1908;
constexpr unsigned glUnsignedByte = 0x1401;
constexpr unsigned glTexture2d = 0x0DE1;
constexpr unsigned glFramebuffer = 0x8D40;
constexpr unsigned glFramebufferBinding = 0x8CA6;

/// While it lives, reads go to the surface itself and rows are packed to 4 bytes, whichever of the
/// two OpenGL ES paths has set what. The driver is asked and not the paths' records, since each
/// knows only of its own calls.
class SurfaceReading {
 public:
  SurfaceReading() {
    driver.glGetIntegerv(glPackAlignment, &alignment);
    driver.glPixelStorei(glPackAlignment, 4);
    if (driver.glBindFramebufferEXT) {
      driver.glGetIntegerv(glFramebufferBinding, &framebuffer);
      driver.glBindFramebufferEXT(glFramebuffer, 0);
    }
  }
  ~SurfaceReading() {
    if (driver.glBindFramebufferEXT) {
      driver.glBindFramebufferEXT(glFramebuffer, static_cast<unsigned>(framebuffer));
    }
    driver.glPixelStorei(glPackAlignment, alignment);
  }
  SurfaceReading(const SurfaceReading&) = delete;
  SurfaceReading& operator=(const SurfaceReading&) = delete;

 private:
  int alignment = 4;
  int framebuffer = 0;
};

/// Reads the current surface's pixels from its top left corner into rows of the layout, from top to
/// bottom; only what both sizes share.
void readRows(const EgwSurface& surface, const PortPixmapLayout& pixmap, const PixelLayout& layout,
              unsigned char* rows) {
  const int width = std::min(surface.width, pixmap.width);
  const int height = std::min(surface.height, pixmap.height);
  const std::size_t stride = pixmapRowBytes(pixmap);
  const SurfaceReading reading;
  for (int y = 0; y < height; ++y) {
    egw.es1.glReadPixels(0, surface.height - 1 - y, width, 1, layout.format, layout.type,
                         rows + static_cast<std::size_t>(y) * stride);
  }
}

/// True if the bitmap is as large as the surface.
bool sameSize(const EgwSurface& surface, const PortPixmapLayout& pixmap) {
  return surface.width == pixmap.width && surface.height == pixmap.height;
}

}  // namespace

void egwCopyBack() {
  EgwSurface* surface = egw.currentDraw;
  if (!surface || surface->type != EGW_PIXMAP || !surface->renderContext || !surface->drawable) {
    return;
  }
  PortConnection* connection = egw.currentDisplay->connection;
  PortPixmapLayout pixmap;
  PixelLayout layout;
  if (!portPixmapLayout(connection, surface->bitmap, &pixmap) ||
      !findPixelLayout(pixmap, &layout) || !sameSize(*surface, pixmap)) {
    return;
  }
  const PixmapRows rows = allocatePixmapRows(pixmap);
  // What is read from may be another surface.
  if (!rows || !egwBorrowSurface(*egw.currentDisplay, *surface)) {
    return;
  }
  readRows(*surface, pixmap, layout, rows.get());
  egwReturnSurface();
  portWritePixmap(connection, surface->bitmap, pixmap, rows.get());
}

bool egwCopyIn() {
  const EgwSurface* surface = egw.currentDraw;
  if (!surface || surface->type != EGW_PIXMAP || !surface->renderContext || !surface->drawable) {
    return true;
  }
  PortConnection* connection = egw.currentDisplay->connection;
  PortPixmapLayout pixmap;
  PixelLayout layout;
  if (!portPixmapLayout(connection, surface->bitmap, &pixmap) ||
      !findPixelLayout(pixmap, &layout) || !sameSize(*surface, pixmap)) {
    return false;
  }
  const PixmapRows rows = allocatePixmapRows(pixmap);
  if (!rows || !portReadPixmap(connection, surface->bitmap, pixmap, rows.get())) {
    return false;
  }
  // The rectangle fills the viewport, which may be smaller than the surface.
  int viewport[4] = {};
  driver.glGetIntegerv(glViewport, viewport);
  driver.glViewport(0, 0, surface->width, surface->height);
  egw.es1.drawPixelRectangle(surface->width, surface->height, layout.format, layout.type, 4,
                             rows.get());
  driver.glViewport(viewport[0], viewport[1], viewport[2], viewport[3]);
  return true;
}

EGLBoolean egwCopyBuffers(EGLDisplay handle, EGLSurface surfaceHandle,
                          EGLNativePixmapType nativePixmap) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwSurface* surface = display ? egwFindSurface(*display, surfaceHandle) : nullptr;
  if (!surface) {
    return EGL_FALSE;
  }
  if (!egwRefreshSurface(*display, *surface)) {
    return egwFail(EGL_BAD_SURFACE);
  }
  const auto bitmap = std::bit_cast<PortNativePixmap>(nativePixmap);
  PortPixmapLayout pixmap;
  PixelLayout layout;
  if (!bitmap || !portPixmapLayout(display->connection, bitmap, &pixmap)) {
    return egwFail(EGL_BAD_NATIVE_PIXMAP);
  }
  if (!findPixelLayout(pixmap, &layout)) {
    return egwFail(EGL_BAD_MATCH);
  }
  const PixmapRows rows = allocatePixmapRows(pixmap);
  if (!rows) {
    return egwFail(EGL_BAD_ALLOC);
  }
  // What the surface does not cover stays as it is.
  if (!sameSize(*surface, pixmap) &&
      !portReadPixmap(display->connection, bitmap, pixmap, rows.get())) {
    return egwFail(EGL_BAD_NATIVE_PIXMAP);
  }
  if (!egwBorrowSurface(*display, *surface)) {
    return egwFail(EGL_BAD_ACCESS);
  }
  readRows(*surface, pixmap, layout, rows.get());
  egwReturnSurface();
  if (!portWritePixmap(display->connection, bitmap, pixmap, rows.get())) {
    return egwFail(EGL_BAD_NATIVE_PIXMAP);
  }
  return egwSucceed();
}

namespace {

/// Copies the pbuffer's pixels into the texture that is bound in the current OpenGL context.
bool copyToTexture(const EgwDisplay& display, EgwSurface& surface) {
  PortPixmapLayout size;
  size.width = surface.width;
  size.height = surface.height;
  size.bitsPerPixel = 32;
  const PixmapRows pixels = allocatePixmapRows(size);
  if (!pixels || !egwBorrowSurface(display, surface)) {
    return false;
  }
  {
    const SurfaceReading reading;
    egw.es1.glReadPixels(0, 0, surface.width, surface.height, glRgba, glUnsignedByte, pixels.get());
  }
  egwReturnSurface();
  int alignment = 4;
  driver.glGetIntegerv(glUnpackAlignment, &alignment);
  driver.glPixelStorei(glUnpackAlignment, 4);
  const unsigned format = surface.textureFormat == EGL_TEXTURE_RGB ? glRgb : glRgba;
  driver.glTexImage2D(glTexture2d, 0, static_cast<int>(format), surface.width, surface.height, 0,
                      glRgba, glUnsignedByte, pixels.get());
  driver.glPixelStorei(glUnpackAlignment, alignment);
  return true;
}

/// The pbuffer behind the handles of eglBindTexImage and eglReleaseTexImage; null with the error.
EgwSurface* texturePbuffer(EgwDisplay* display, EGLSurface handle, EGLint buffer) {
  EgwSurface* surface = display ? egwFindSurface(*display, handle) : nullptr;
  if (!surface) {
    return nullptr;
  }
  EGLint error = EGL_SUCCESS;
  if (buffer != EGL_BACK_BUFFER) {
    error = EGL_BAD_PARAMETER;
  } else if (surface->type != EGW_PBUFFER) {
    error = EGL_BAD_SURFACE;
  } else if (surface->textureFormat == EGL_NO_TEXTURE || surface->textureTarget == EGL_NO_TEXTURE) {
    error = EGL_BAD_MATCH;
  }
  if (error != EGL_SUCCESS) {
    egwFail(error);
    return nullptr;
  }
  return surface;
}

}  // namespace

EGLBoolean egwBindTexImage(EGLDisplay handle, EGLSurface surfaceHandle, EGLint buffer) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwSurface* surface = texturePbuffer(display, surfaceHandle, buffer);
  if (!surface) {
    return EGL_FALSE;
  }
  if (surface->boundToTexture) {
    return egwFail(EGL_BAD_ACCESS);
  }
  if (!egw.currentContext) {
    return egwSucceed();
  }
  const bool bound = portBindsTextures(display->connection)
                         ? portBindTexImage(display->connection, surface->drawable)
                         : copyToTexture(*display, *surface);
  if (!bound) {
    return egwFail(EGL_BAD_ACCESS);
  }
  surface->boundToTexture = true;
  return egwSucceed();
}

EGLBoolean egwReleaseTexImage(EGLDisplay handle, EGLSurface surfaceHandle, EGLint buffer) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwSurface* surface = texturePbuffer(display, surfaceHandle, buffer);
  if (!surface) {
    return EGL_FALSE;
  }
  if (surface->boundToTexture && portBindsTextures(display->connection) &&
      !portReleaseTexImage(display->connection, surface->drawable)) {
    return egwFail(EGL_BAD_ACCESS);
  }
  surface->boundToTexture = false;
  return egwSucceed();
}
