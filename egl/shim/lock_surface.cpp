#include <cstdint>

#include "egl/backend/low_memory.h"
#include "egl/shim/shim.h"

unsigned roundUpToPowerOfTwo(unsigned number) {
  if (number == 0) {
    return 1;
  }
  --number;
  number |= number >> 1;
  number |= number >> 2;
  number |= number >> 4;
  number |= number >> 8;
  number |= number >> 16;
  return number + 1;
}

bool mapShimSurface(EGLDisplay display, ShimSurface& surface) {
  if (!surface.locked) {
    shimFail(EGL_BAD_ACCESS);
    return false;
  }
  if (surface.mapped) {
    return true;
  }
  const EglBackend& backend = eglBackend();
  EGLint width = 0;
  EGLint height = 0;
  if (!forwarded(backend.querySurface(display, surface.backendSurface, EGL_WIDTH, &width)) ||
      !forwarded(backend.querySurface(display, surface.backendSurface, EGL_HEIGHT, &height))) {
    return false;
  }
  const std::uint64_t bytesPerTexel = surface.config && surface.config->is565 ? 2 : 4;
  const unsigned bitmapWidth = roundUpToPowerOfTwo(static_cast<unsigned>(width));
  const unsigned bitmapHeight = roundUpToPowerOfTwo(static_cast<unsigned>(height));
  const std::uint64_t size = bytesPerTexel * bitmapWidth * bitmapHeight;
  if (size > INT32_MAX) {
    shimFail(EGL_BAD_ALLOC);
    return false;
  }
  if (surface.bitmap && static_cast<std::uint64_t>(surface.bitmapSize) < size) {
    portFreeLow(surface.bitmap, static_cast<std::size_t>(surface.bitmapSize));
    surface.bitmap = nullptr;
    surface.bitmapSize = 0;
  }
  if (!surface.bitmap) {
    surface.bitmap = static_cast<unsigned char*>(portAllocateLow(static_cast<std::size_t>(size)));
    if (!surface.bitmap) {
      shimFail(EGL_BAD_ALLOC);
      return false;
    }
    surface.bitmapSize = static_cast<EGLint>(size);
  }
  surface.bitmapWidth = static_cast<EGLint>(bitmapWidth);
  surface.bitmapHeight = static_cast<EGLint>(bitmapHeight);
  surface.origin = EGL_UPPER_LEFT_KHR;
  surface.pitch = static_cast<EGLint>(bitmapWidth * bytesPerTexel);
  surface.mapped = EGL_TRUE;
  return true;
}

extern "C" {

EGLBoolean EGLAPIENTRY eglLockSurfaceKHR(EGLDisplay, EGLSurface handle, const EGLint*) {
  ShimTurn turn;
  if (handle == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  ShimSurface* surface = findShimSurface(handle);
  if (!surface) {
    return shimFail(EGL_BAD_SURFACE);
  }
  if (!surface->config || !surface->config->lockable || surface->locked ||
      isCurrentSurface(*surface)) {
    return shimFail(EGL_BAD_ACCESS);
  }
  surface->locked = EGL_TRUE;
  return EGL_TRUE;
}

EGLBoolean EGLAPIENTRY eglUnlockSurfaceKHR(EGLDisplay dpy, EGLSurface handle) {
  ShimTurn turn;
  if (handle == EGL_NO_SURFACE) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  ShimSurface* surface = findShimSurface(handle);
  if (!surface) {
    return shimFail(EGL_BAD_SURFACE);
  }
  if (!surface->locked) {
    return shimFail(EGL_BAD_ACCESS);
  }
  if (surface->mapped) {
    blitBitmap(dpy, *surface);
    surface->mapped = EGL_FALSE;
  }
  surface->locked = EGL_FALSE;
  return EGL_TRUE;
}

}  // extern "C"
