#include <cstdint>
#include <new>
#include <vector>

#include "egl/backend/low_memory.h"
#include "egl/shim/shim.h"

namespace {

ShimSurface* allSurfaces = nullptr;

/// Address that no back end hands out, for handles that are not the shim's.
char foreignHandle;

/// Copies the attributes that the back end gets. False for one that is refused.
bool filterAttributes(const EGLint* attributes, std::vector<EGLint>& kept) {
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    switch (pair[0]) {
      case EGL_HEIGHT:
      case EGL_WIDTH:
      case EGL_LARGEST_PBUFFER:
        kept.push_back(pair[0]);
        kept.push_back(pair[1]);
        break;
      case EGL_TEXTURE_FORMAT:
      case EGL_TEXTURE_TARGET:
      case EGL_MIPMAP_TEXTURE:
      case EGL_MIPMAP_LEVEL:
      case EGL_RENDER_BUFFER:
      case EGL_VG_COLORSPACE:
      case EGL_VG_ALPHA_FORMAT:
      case EGL_HORIZONTAL_RESOLUTION:
      case EGL_VERTICAL_RESOLUTION:
      case EGL_PIXEL_ASPECT_RATIO:
      case EGL_SWAP_BEHAVIOR:
        break;
      default:
        return false;
    }
  }
  kept.push_back(EGL_NONE);
  return true;
}

void replaceLockContext(EGLDisplay display, ShimConfig& config) {
  const EglBackend& backend = eglBackend();
  if (config.lockContext != EGL_NO_CONTEXT) {
    backend.destroyContext(config.lockDisplay, config.lockContext);
  }
  config.lockContext =
      backend.createContext(display, config.backendConfig, EGL_NO_CONTEXT, nullptr);
  config.lockDisplay = display;
}

/// The common road of the three creation entries. `create` calls the back end with its
/// configuration and the filtered list; `keepFailed` tells whether a record without a back-end
/// surface is handed out.
template <class Create>
EGLSurface createSurface(EGLDisplay display, EGLConfig handle, const EGLint* attributes,
                         bool keepFailed, Create create) {
  ShimTurn turn;
  ShimConfig* config = findShimConfig(handle);
  if (!config) {
    shimFail(EGL_BAD_CONFIG);
    return EGL_NO_SURFACE;
  }
  std::vector<EGLint> kept;
  try {
    if (!filterAttributes(attributes, kept)) {
      shimFail(EGL_BAD_PARAMETER);
      return EGL_NO_SURFACE;
    }
  } catch (const std::bad_alloc&) {
    shimFail(EGL_BAD_ALLOC);
    return EGL_NO_SURFACE;
  }
  auto* surface = new (std::nothrow) ShimSurface();
  if (!surface) {
    shimFail(EGL_BAD_ALLOC);
    return EGL_NO_SURFACE;
  }
  surface->backendSurface = forwarded(create(config->backendConfig, kept.data()));
  if (surface->backendSurface == EGL_NO_SURFACE && !keepFailed) {
    delete surface;
    return EGL_NO_SURFACE;
  }
  surface->config = config;
  surface->display = display;
  surface->next = allSurfaces;
  if (allSurfaces) {
    allSurfaces->prev = surface;
  }
  allSurfaces = surface;
  if (config->lockable) {
    replaceLockContext(display, *config);
  }
  return surface;
}

/// Answer for the attributes that the shim itself knows; false for those that are forwarded.
bool ownAttribute(const ShimSurface& surface, EGLint attribute, EGLint* value) {
  const bool is565 = surface.config && surface.config->is565;
  switch (attribute) {
    case EGL_TEXTURE_FORMAT:
    case EGL_TEXTURE_TARGET:
    case EGL_MIPMAP_TEXTURE:
    case EGL_MIPMAP_LEVEL:
      return true;
    case EGL_RENDER_BUFFER:
      *value = EGL_BACK_BUFFER;
      return true;
    case EGL_VG_COLORSPACE:
      *value = EGL_COLORSPACE_LINEAR;
      return true;
    case EGL_VG_ALPHA_FORMAT:
      *value = EGL_ALPHA_FORMAT_NONPRE;
      return true;
    case EGL_HORIZONTAL_RESOLUTION:
    case EGL_VERTICAL_RESOLUTION:
      *value = -1;
      return true;
    case EGL_PIXEL_ASPECT_RATIO:
      *value = 10000;
      return true;
    case EGL_SWAP_BEHAVIOR:
      *value = EGL_BUFFER_PRESERVED;
      return true;
    case EGL_BITMAP_ORIGIN_KHR:
      *value = surface.mapped ? surface.origin : EGL_UPPER_LEFT_KHR;
      return true;
    case EGL_BITMAP_PIXEL_RED_OFFSET_KHR:
      *value = is565 ? 11 : 0;
      return true;
    case EGL_BITMAP_PIXEL_GREEN_OFFSET_KHR:
      *value = is565 ? 5 : 8;
      return true;
    case EGL_BITMAP_PIXEL_BLUE_OFFSET_KHR:
      *value = is565 ? 0 : 16;
      return true;
    case EGL_BITMAP_PIXEL_ALPHA_OFFSET_KHR:
      *value = is565 ? 0 : 24;
      return true;
    case EGL_BITMAP_PIXEL_LUMINANCE_OFFSET_KHR:
      *value = 0;
      return true;
    default:
      return false;
  }
}

EGLint lowWord(const void* address) {
  return static_cast<EGLint>(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(address)));
}

}  // namespace

ShimSurface* findShimSurface(EGLSurface handle) {
  for (ShimSurface* surface = allSurfaces; surface; surface = surface->next) {
    if (surface == handle) {
      return surface;
    }
  }
  return nullptr;
}

EGLSurface backendSurfaceOf(EGLSurface handle) {
  if (handle == EGL_NO_SURFACE) {
    return EGL_NO_SURFACE;
  }
  const ShimSurface* surface = findShimSurface(handle);
  // A record without a back-end surface must not pass for no surface at all.
  return surface && surface->backendSurface ? surface->backendSurface : &foreignHandle;
}

void freeShimSurface(ShimSurface* surface) {
  forgetCurrentSurface(*surface);
  (surface->prev ? surface->prev->next : allSurfaces) = surface->next;
  if (surface->next) {
    surface->next->prev = surface->prev;
  }
  portFreeLow(surface->bitmap, static_cast<std::size_t>(surface->bitmapSize));
  delete surface;
}

void freeSurfacesOf(EGLDisplay display) {
  for (ShimSurface* surface = allSurfaces; surface;) {
    ShimSurface* next = surface->next;
    if (surface->display == display) {
      freeShimSurface(surface);
    }
    surface = next;
  }
}

void orphanSurfacesOf(const ShimConfig* config) {
  for (ShimSurface* surface = allSurfaces; surface; surface = surface->next) {
    if (surface->config == config) {
      surface->config = nullptr;
    }
  }
}

extern "C" {

EGLSurface EGLAPIENTRY eglCreateWindowSurface(EGLDisplay dpy, EGLConfig config,
                                              EGLNativeWindowType win, const EGLint* attrib_list) {
  return createSurface(dpy, config, attrib_list, false, [&](EGLConfig own, const EGLint* kept) {
    return eglBackend().createWindowSurface(dpy, own, win, kept);
  });
}

EGLSurface EGLAPIENTRY eglCreatePbufferSurface(EGLDisplay dpy, EGLConfig config,
                                               const EGLint* attrib_list) {
  return createSurface(dpy, config, attrib_list, true, [&](EGLConfig own, const EGLint* kept) {
    return eglBackend().createPbufferSurface(dpy, own, kept);
  });
}

EGLSurface EGLAPIENTRY eglCreatePixmapSurface(EGLDisplay dpy, EGLConfig config,
                                              EGLNativePixmapType pixmap,
                                              const EGLint* attrib_list) {
  return createSurface(dpy, config, attrib_list, true, [&](EGLConfig own, const EGLint* kept) {
    return eglBackend().createPixmapSurface(dpy, own, pixmap, kept);
  });
}

EGLBoolean EGLAPIENTRY eglDestroySurface(EGLDisplay dpy, EGLSurface handle) {
  ShimTurn turn;
  if (handle == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  ShimSurface* surface = findShimSurface(handle);
  if (surface) {
    deleteBlitTexture(dpy, *surface);
  }
  const EGLBoolean destroyed =
      forwarded(eglBackend().destroySurface(dpy, backendSurfaceOf(handle)));
  if (surface) {
    freeShimSurface(surface);
  }
  return destroyed;
}

EGLBoolean EGLAPIENTRY eglQuerySurface(EGLDisplay dpy, EGLSurface handle, EGLint attribute,
                                       EGLint* value) {
  ShimTurn turn;
  if (handle == EGL_NO_SURFACE || !value) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  ShimSurface* surface = findShimSurface(handle);
  if (!surface) {
    return forwarded(eglBackend().querySurface(dpy, &foreignHandle, attribute, value));
  }
  switch (attribute) {
    case EGL_CONFIG_ID: {
      // The back end is asked as well: it knows whether the surface is still good.
      EGLint ignored = 0;
      *value = lowWord(surface->config);
      return forwarded(
          eglBackend().querySurface(dpy, backendSurfaceOf(handle), EGL_CONFIG_ID, &ignored));
    }
    case EGL_BITMAP_POINTER_KHR:
      if (!mapShimSurface(dpy, *surface)) {
        return EGL_FALSE;
      }
      *value = lowWord(surface->bitmap);
      return EGL_TRUE;
    case EGL_BITMAP_PITCH_KHR:
      if (!mapShimSurface(dpy, *surface)) {
        return EGL_FALSE;
      }
      *value = surface->pitch;
      return EGL_TRUE;
    default:
      if (ownAttribute(*surface, attribute, value)) {
        return EGL_TRUE;
      }
      return forwarded(eglBackend().querySurface(dpy, backendSurfaceOf(handle), attribute, value));
  }
}

EGLBoolean EGLAPIENTRY eglSurfaceAttrib(EGLDisplay dpy, EGLSurface surface, EGLint attribute,
                                        EGLint value) {
  ShimTurn turn;
  if (surface == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  return forwarded(eglBackend().surfaceAttrib(dpy, backendSurfaceOf(surface), attribute, value));
}

EGLBoolean EGLAPIENTRY eglBindTexImage(EGLDisplay dpy, EGLSurface surface, EGLint buffer) {
  ShimTurn turn;
  if (surface == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  return forwarded(eglBackend().bindTexImage(dpy, backendSurfaceOf(surface), buffer));
}

EGLBoolean EGLAPIENTRY eglReleaseTexImage(EGLDisplay dpy, EGLSurface surface, EGLint buffer) {
  ShimTurn turn;
  if (surface == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  return forwarded(eglBackend().releaseTexImage(dpy, backendSurfaceOf(surface), buffer));
}

EGLSurface EGLAPIENTRY eglCreatePbufferFromClientBuffer(EGLDisplay, EGLenum, EGLClientBuffer,
                                                        EGLConfig, const EGLint*) {
  shimFail(EGL_BAD_PARAMETER);
  return EGL_NO_SURFACE;
}

EGLBoolean EGLAPIENTRY eglSwapBuffers(EGLDisplay dpy, EGLSurface surface) {
  ShimTurn turn;
  if (surface == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  return forwarded(eglBackend().swapBuffers(dpy, backendSurfaceOf(surface)));
}

EGLBoolean EGLAPIENTRY eglCopyBuffers(EGLDisplay dpy, EGLSurface surface,
                                      EGLNativePixmapType target) {
  ShimTurn turn;
  if (surface == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  return forwarded(eglBackend().copyBuffers(dpy, backendSurfaceOf(surface), target));
}

}  // extern "C"
