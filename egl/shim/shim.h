#ifndef VARNEL_EGL_SHIM_SHIM_H
#define VARNEL_EGL_SHIM_SHIM_H

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <cstddef>

#include "egl/backend/egl_backend.h"

// Records and helpers that the shim's sources share.

/// One configuration of a thread's list.
struct ShimConfig {
  EGLConfig backendConfig = nullptr;  ///< null: none was found for a lockable one
  EGLBoolean lockable = EGL_FALSE;
  EGLBoolean is565 = EGL_FALSE;             ///< lockable as 16-bit RGB, else as 32-bit RGBA
  EGLContext lockContext = EGL_NO_CONTEXT;  ///< of the unlock blit; made with each lockable surface
  EGLDisplay lockDisplay = EGL_NO_DISPLAY;  ///< that lockContext belongs to
  ShimConfig* next = nullptr;
};

/// One surface, with the bitmap through which it can be written while it is locked.
struct ShimSurface {
  EGLSurface backendSurface = EGL_NO_SURFACE;
  ShimConfig* config = nullptr;  ///< null once the list that it was of has gone
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLBoolean locked = EGL_FALSE;
  EGLBoolean mapped = EGL_FALSE;    ///< the bitmap is allocated and was handed out
  unsigned char* bitmap = nullptr;  ///< owned; its address fits 32 bits
  EGLint bitmapSize = 0;            ///< bytes allocated
  EGLint pitch = 0;                 ///< bytes per row
  EGLint origin = EGL_UPPER_LEFT_KHR;
  EGLint bitmapWidth = 0, bitmapHeight = 0;  ///< the surface's size rounded up to powers of two
  unsigned blitTexture = 0;                  ///< 0 until the first blit
  ShimSurface* prev = nullptr;
  ShimSurface* next = nullptr;
};

/// One thread's state.
struct EGLShimLocals {
  EGLint error = EGL_SUCCESS;
  ShimSurface* readSurface = nullptr;
  ShimSurface* drawSurface = nullptr;
  ShimConfig* configList = nullptr;
  EGLint configCount = 0;
  EGLShimLocals* prev = nullptr;
  EGLShimLocals* next = nullptr;
};

/// While it lives, no other thread is in the shim: the back end under it and the lists of all
/// surfaces and thread records have no guard of their own. May be nested.
class ShimTurn {
 public:
  ShimTurn();
  ~ShimTurn();
  ShimTurn(const ShimTurn&) = delete;
  ShimTurn& operator=(const ShimTurn&) = delete;
};

/// The calling thread's record, null before it was made.
EGLShimLocals* shimLocals();
/// The calling thread's record, made if need be; null when memory is short.
EGLShimLocals* ensureShimLocals();
/// Frees the calling thread's record and its list.
void dropShimLocals();

/// Stores the error in the thread's record, if there is one, and answers false.
EGLBoolean shimFail(EGLint error);
/// Copies the back end's error of the call that gave `result`, and answers that.
template <class Result>
Result forwarded(Result result) {
  const EGLint error = eglBackend().getError();
  if (EGLShimLocals* locals = shimLocals()) {
    locals->error = error;
  }
  return result;
}

/// Fills the thread's empty list. False when memory is short.
bool buildConfigList(EGLShimLocals& locals, EGLDisplay display);
/// Frees a thread's list with its contexts; surfaces of its configurations keep none.
void freeConfigList(EGLShimLocals& locals);
/// The calling thread's configuration with that handle, null for any other value.
ShimConfig* findShimConfig(EGLConfig handle);

/// The surface with that handle, null for any other value.
ShimSurface* findShimSurface(EGLSurface handle);
/// The back end's handle: null for null, and one that no back end knows for a foreign handle.
EGLSurface backendSurfaceOf(EGLSurface handle);
/// True if any thread has the surface current as draw or read.
bool isCurrentSurface(const ShimSurface& surface);
/// Clears every thread's note that the surface is current.
void forgetCurrentSurface(const ShimSurface& surface);
/// Frees the bitmap and the record; no thread has it current any more. The back end is not called.
void freeShimSurface(ShimSurface* surface);
/// Frees all surfaces of a display that has been terminated.
void freeSurfacesOf(EGLDisplay display);
/// Takes a configuration that is about to be freed out of all surfaces.
void orphanSurfacesOf(const ShimConfig* config);

/// Makes sure that a locked surface has its bitmap. False with the error stored.
bool mapShimSurface(EGLDisplay display, ShimSurface& surface);
/// Draws the bitmap over the whole surface. What was current is so again afterwards.
void blitBitmap(EGLDisplay display, ShimSurface& surface);
/// Deletes the blit's texture, if there is one.
void deleteBlitTexture(EGLDisplay display, ShimSurface& surface);

/// The next power of two at or above a number; 1 for 0.
unsigned roundUpToPowerOfTwo(unsigned number);

#endif
