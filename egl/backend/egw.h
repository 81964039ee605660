#ifndef VARNEL_EGL_BACKEND_EGW_H
#define VARNEL_EGL_BACKEND_EGW_H

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <cstdint>

#include "egl/backend/config_table.h"
#include "egl/backend/port.h"
#include "gles/es_image.h"
#include "gles/function_table.h"

// The own EGL on the window system: records and helpers that its sources share. Everything here is
// process-wide and unlocked.

/// Kinds of EgwSurface.
enum EgwSurfaceType { EGW_WINDOW = 1, EGW_PBUFFER = 2, EGW_PIXMAP = 3 };

/// One window, pbuffer or pixmap surface, with an OpenGL context of its own.
struct EgwSurface {
  EGLint configIndex = 0;  ///< row of the table
  PortNativeWindow window = 0;
  EgwSurfaceType type = EGW_WINDOW;
  PortDrawable* drawable = nullptr;
  PortContext* renderContext = nullptr;
  PortNativePixmap bitmap = 0;  ///< the pixmap, for EGW_PIXMAP
  EGLint width = 0, height = 0;
  EGLint textureFormat = EGL_NO_TEXTURE, textureTarget = EGL_NO_TEXTURE;
  EGLint mipmapTexture = 0, mipmapLevel = 0;
  EGLint renderBuffer = EGL_BACK_BUFFER;
  EGLint swapInterval = -1;     ///< the one that its drawable was given; -1: none yet
  bool lost = false;            ///< its window has gone
  bool boundToTexture = false;  ///< between eglBindTexImage and eglReleaseTexImage
  bool doomed = false;          ///< destroyed while current: freed when it is so no more
  EgwSurface* prev = nullptr;
  EgwSurface* next = nullptr;
};

/// One EGL context: the states of both OpenGL ES paths. The OpenGL state lives in the surfaces.
struct EgwContext {
  EGLint configIndex = 0;
  void* es1State = nullptr;
  void* es2State = nullptr;
  bool doomed = false;  ///< destroyed while current: freed when it is so no more
  EgwContext* prev = nullptr;
  EgwContext* next = nullptr;
};

/// What an EGL image was made of.
enum EgwImageType { EGW_IMAGE_PIXMAP = 0, EGW_IMAGE_TEXTURE = 1 };

/// One EGL image with a bitmap of its own, 32 bits a pixel.
struct EgwImage {
  EgwImageType type = EGW_IMAGE_PIXMAP;
  EsImage bitmap;
  std::uint32_t* words = nullptr;  ///< the bitmap's pixels, owned
  EgwImage* prev = nullptr;
  EgwImage* next = nullptr;
};

/// One initialised display. Its handle is the native display's value, or 1 for the default one.
struct EgwDisplay {
  EGLDisplay handle = EGL_NO_DISPLAY;
  PortConnection* connection = nullptr;  ///< null if no native display stands behind the handle
  EgwSurface* surfaces = nullptr;
  EgwContext* contexts = nullptr;
  EgwImage* images = nullptr;
  EgwDisplay* prev = nullptr;
  EgwDisplay* next = nullptr;
};

/// The process-wide state.
struct EgwState {
  EGLint error = EGL_SUCCESS;
  EgwDisplay* displays = nullptr;
  EgwDisplay* currentDisplay = nullptr;
  EgwSurface* currentDraw = nullptr;
  EgwSurface* currentRead = nullptr;
  EgwContext* currentContext = nullptr;
  EGLint swapInterval = 1;
  EGLint largestPbuffer = 0;
  bool multisampleAvailable = false;
  bool initialised = false;  ///< the first initialisation has run
  EgwConfigTable configs = defaultConfigTable();
  GlFunctionTable es1 = {};
  GlFunctionTable es2 = {};
};

extern EgwState egw;

/// Stores the error and answers false.
EGLBoolean egwFail(EGLint error);
/// Stores EGL_SUCCESS and answers true.
EGLBoolean egwSucceed();

/// The initialised display with that handle; otherwise null, with EGL_BAD_DISPLAY for one that
/// eglGetDisplay never answered and EGL_NOT_INITIALIZED for the others.
EgwDisplay* egwFindDisplay(EGLDisplay handle);
/// The row of a config handle; null, with EGL_BAD_CONFIG, for any other value.
const EgwConfig* egwFindConfig(EGLConfig handle);
/// The display's surface with that handle; null, with EGL_BAD_SURFACE, for any other value.
EgwSurface* egwFindSurface(const EgwDisplay& display, EGLSurface handle);
/// The display's context with that handle; null, with EGL_BAD_CONTEXT, for any other value.
EgwContext* egwFindContext(const EgwDisplay& display, EGLContext handle);

/// Puts a record at the head of its list, and takes it out.
template <class Record>
void egwLink(Record*& head, Record* record) {
  record->prev = nullptr;
  record->next = head;
  if (head) {
    head->prev = record;
  }
  head = record;
}

template <class Record>
void egwUnlink(Record*& head, Record* record) {
  (record->prev ? record->prev->next : head) = record->next;
  if (record->next) {
    record->next->prev = record->prev;
  }
}

/// Reads the size of a window surface from its window. False if that has gone, which it also notes.
bool egwRefreshSurface(const EgwDisplay& display, EgwSurface& surface);
/// Makes the OpenGL side of a surface current for a moment, and what was current again.
bool egwBorrowSurface(const EgwDisplay& display, EgwSurface& surface);
void egwReturnSurface();
/// Releases what is current, if anything is, and frees records that wait for it.
void egwReleaseCurrent();
/// Frees the native side and the record. The surface must not be current.
void egwFreeSurface(EgwDisplay& display, EgwSurface* surface);
void egwFreeContext(EgwDisplay& display, EgwContext* context);
void egwFreeImage(EgwDisplay& display, EgwImage* image);

/// Copies the current pixmap surface's pixels back into its bitmap; nothing for other surfaces.
void egwCopyBack();
/// Copies the bitmap's pixels into the current pixmap surface. False if their layout is unknown.
bool egwCopyIn();
/// Pixels of a live image, for the OpenGL ES layer; null for any other handle.
const EsImage* egwFindImage(const void* handle);

EGLint egwGetError();
EGLDisplay egwGetDisplay(EGLNativeDisplayType native);
EGLBoolean egwInitialize(EGLDisplay display, EGLint* major, EGLint* minor);
EGLBoolean egwTerminate(EGLDisplay display);
const char* egwQueryString(EGLDisplay display, EGLint name);
EGLBoolean egwGetConfigs(EGLDisplay display, EGLConfig* configs, EGLint configSize, EGLint* count);
EGLBoolean egwChooseConfig(EGLDisplay display, const EGLint* attributes, EGLConfig* configs,
                           EGLint configSize, EGLint* count);
EGLBoolean egwGetConfigAttrib(EGLDisplay display, EGLConfig config, EGLint attribute,
                              EGLint* value);
EGLSurface egwCreateWindowSurface(EGLDisplay display, EGLConfig config, EGLNativeWindowType window,
                                  const EGLint* attributes);
EGLSurface egwCreatePbufferSurface(EGLDisplay display, EGLConfig config, const EGLint* attributes);
EGLSurface egwCreatePixmapSurface(EGLDisplay display, EGLConfig config, EGLNativePixmapType pixmap,
                                  const EGLint* attributes);
EGLBoolean egwDestroySurface(EGLDisplay display, EGLSurface surface);
EGLBoolean egwQuerySurface(EGLDisplay display, EGLSurface surface, EGLint attribute, EGLint* value);
EGLBoolean egwSurfaceAttrib(EGLDisplay display, EGLSurface surface, EGLint attribute, EGLint value);
EGLBoolean egwBindTexImage(EGLDisplay display, EGLSurface surface, EGLint buffer);
EGLBoolean egwReleaseTexImage(EGLDisplay display, EGLSurface surface, EGLint buffer);
EGLBoolean egwWaitClient();
EGLBoolean egwWaitNative(EGLint engine);
EGLBoolean egwSwapInterval(EGLDisplay display, EGLint interval);
EGLContext egwCreateContext(EGLDisplay display, EGLConfig config, EGLContext shareContext,
                            const EGLint* attributes);
EGLBoolean egwDestroyContext(EGLDisplay display, EGLContext context);
EGLBoolean egwMakeCurrent(EGLDisplay display, EGLSurface draw, EGLSurface read, EGLContext context);
EGLContext egwGetCurrentContext();
EGLSurface egwGetCurrentSurface(EGLint which);
EGLDisplay egwGetCurrentDisplay();
EGLBoolean egwQueryContext(EGLDisplay display, EGLContext context, EGLint attribute, EGLint* value);
EGLBoolean egwSwapBuffers(EGLDisplay display, EGLSurface surface);
EGLBoolean egwCopyBuffers(EGLDisplay display, EGLSurface surface, EGLNativePixmapType pixmap);
__eglMustCastToProperFunctionPointerType egwGetProcAddress(const char* name);
EGLImageKHR EGLAPIENTRY egwCreateImage(EGLDisplay display, EGLContext context, EGLenum target,
                                       EGLClientBuffer buffer, const EGLint* attributes);
EGLBoolean EGLAPIENTRY egwDestroyImage(EGLDisplay display, EGLImageKHR image);

#endif
