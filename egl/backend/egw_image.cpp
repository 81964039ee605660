#include <cstdlib>
#include <new>

#include "egl/backend/egw.h"
#include "egl/backend/pixel_layout.h"
#include "gles/driver/driver.h"

namespace {

// Published values of desktop OpenGL.
constexpr unsigned glPackAlignment = 0x0D05;
constexpr unsigned glTexture2d = 0x0DE1;
constexpr unsigned glTextureBinding2d = 0x8069;
constexpr unsigned glTextureWidth = 0x1000;
constexpr unsigned glTextureHeight = 0x1001;
constexpr unsigned glBgra = 0x80E1;
constexpr unsigned glUnsignedInt8888Rev = 0x8367;

EGLImageKHR refuse(EGLint error) {
  egwFail(error);
  return EGL_NO_IMAGE_KHR;
}

/// An image record with room for its pixels; null when memory is short.
EgwImage* allocateImage(EgwImageType type, int width, int height) {
  auto* image = new (std::nothrow) EgwImage();
  if (!image) {
    return nullptr;
  }
  image->words = static_cast<std::uint32_t*>(
      std::calloc(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 4));
  if (!image->words) {
    delete image;
    return nullptr;
  }
  image->type = type;
  image->bitmap.width = width;
  image->bitmap.height = height;
  image->bitmap.pixels = image->words;
  return image;
}

EGLImageKHR enter(EgwDisplay& display, EgwImage* image) {
  egwLink(display.images, image);
  egwSucceed();
  return image;
}

EGLImageKHR imageOfPixmap(EgwDisplay& display, EGLClientBuffer buffer) {
  const auto bitmap = reinterpret_cast<PortNativePixmap>(buffer);
  PortPixmapLayout pixmap;
  PixelLayout layout;
  if (!bitmap || !display.connection || !portPixmapLayout(display.connection, bitmap, &pixmap) ||
      !findPixelLayout(pixmap, &layout)) {
    return refuse(EGL_BAD_PARAMETER);
  }
  const PixmapRows rows = allocatePixmapRows(pixmap);
  if (!rows) {
    return refuse(EGL_BAD_ALLOC);
  }
  if (!portReadPixmap(display.connection, bitmap, pixmap, rows.get())) {
    return refuse(EGL_BAD_PARAMETER);
  }
  EgwImage* image = allocateImage(EGW_IMAGE_PIXMAP, pixmap.width, pixmap.height);
  if (!image) {
    return refuse(EGL_BAD_ALLOC);
  }
  const std::size_t stride = pixmapRowBytes(pixmap);
  for (int y = 0; y < pixmap.height; ++y) {
    const auto row = static_cast<std::size_t>(y);
    widenPixelRow(pixmap, rows.get() + row * stride,
                  image->words + row * static_cast<std::size_t>(pixmap.width));
  }
  return enter(display, image);
}

EGLImageKHR imageOfTexture(EgwDisplay& display, EGLClientBuffer buffer, int level) {
  if (!egw.currentContext) {
    return refuse(EGL_BAD_ACCESS);
  }
  const auto texture = static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(buffer));
  int former = 0;
  int width = 0;
  int height = 0;
  egw.es1.glGetIntegerv(glTextureBinding2d, &former);
  egw.es1.glBindTexture(glTexture2d, texture);
  egw.es1.glGetTexLevelParameteriv(glTexture2d, level, glTextureWidth, &width);
  egw.es1.glGetTexLevelParameteriv(glTexture2d, level, glTextureHeight, &height);
  EgwImage* image = nullptr;
  if (texture != 0 && width > 0 && height > 0) {
    image = allocateImage(EGW_IMAGE_TEXTURE, width, height);
    if (image) {
      int alignment = 4;
      driver.glGetIntegerv(glPackAlignment, &alignment);
      driver.glPixelStorei(glPackAlignment, 4);
      egw.es1.glGetTexImage(glTexture2d, level, glBgra, glUnsignedInt8888Rev, image->words);
      driver.glPixelStorei(glPackAlignment, alignment);
    }
  }
  egw.es1.glBindTexture(glTexture2d, static_cast<unsigned>(former));
  if (image) {
    return enter(display, image);
  }
  return refuse(width > 0 && height > 0 && texture != 0 ? EGL_BAD_ALLOC : EGL_BAD_PARAMETER);
}

}  // namespace

void egwFreeImage(EgwDisplay& display, EgwImage* image) {
  egwUnlink(display.images, image);
  std::free(image->words);
  delete image;
}

const EsImage* egwFindImage(const void* handle) {
  for (const EgwDisplay* display = egw.displays; display; display = display->next) {
    for (const EgwImage* image = display->images; image; image = image->next) {
      if (image == handle) {
        return &image->bitmap;
      }
    }
  }
  return nullptr;
}

EGLImageKHR EGLAPIENTRY egwCreateImage(EGLDisplay handle, EGLContext contextHandle, EGLenum target,
                                       EGLClientBuffer buffer, const EGLint* attributes) {
  EgwDisplay* display = egwFindDisplay(handle);
  if (!display) {
    return EGL_NO_IMAGE_KHR;
  }
  if (contextHandle != EGL_NO_CONTEXT && !egwFindContext(*display, contextHandle)) {
    return EGL_NO_IMAGE_KHR;
  }
  if (target < EGL_NATIVE_PIXMAP_KHR || target > EGL_GL_TEXTURE_2D_KHR) {
    return refuse(EGL_BAD_PARAMETER);
  }
  EGLint level = 0;
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    if (pair[0] == EGL_GL_TEXTURE_LEVEL_KHR && pair[1] >= 0) {
      level = pair[1];
    } else if (pair[0] != EGL_IMAGE_PRESERVED_KHR) {
      return refuse(EGL_BAD_ATTRIBUTE);
    }
  }
  return target == EGL_NATIVE_PIXMAP_KHR ? imageOfPixmap(*display, buffer)
                                         : imageOfTexture(*display, buffer, level);
}

EGLBoolean EGLAPIENTRY egwDestroyImage(EGLDisplay handle, EGLImageKHR imageHandle) {
  EgwDisplay* display = egwFindDisplay(handle);
  if (!display) {
    return EGL_FALSE;
  }
  for (EgwImage* image = display->images; image; image = image->next) {
    if (image == imageHandle && image->type != EGW_IMAGE_TEXTURE) {
      egwFreeImage(*display, image);
      return egwSucceed();
    }
  }
  return egwFail(EGL_BAD_PARAMETER);
}
