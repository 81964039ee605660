#ifndef VARNEL_EGL_BACKEND_WGL_WGL_PORT_H
#define VARNEL_EGL_BACKEND_WGL_WGL_PORT_H

#include <vector>

#include "egl/backend/port.h"

#include <windows.h>

#include <GL/gl.h>
#include <GL/wglext.h>

/// The default display, or a device context that an application named as its display.
struct PortConnection {
  HDC display = nullptr;  ///< null for the default display, whose windows have their own

  /// Contexts that are never current, and whose objects the others share: drivers may refuse to
  /// share between formats that differ, and then there is one root for each kind.
  std::vector<HGLRC> shareRoots;

  HWND probeWindow = nullptr;
  HDC probeContextDevice = nullptr;
  HGLRC probeContext = nullptr;
  char adapterName[3 * 128] = "";
};

struct PortContext {
  HGLRC context = nullptr;
};

struct PortDrawable {
  HWND window = nullptr;        ///< null for a pbuffer
  HDC deviceContext = nullptr;  ///< the window's
  bool ownsDevice = false;
  HPBUFFERARB pbuffer = nullptr;
  HDC pbufferDC = nullptr;

  /// The device to draw on.
  HDC device() const { return pbuffer ? pbufferDC : deviceContext; }
};

/// The functions of WGL's extensions, found while the probe's context is current. Any
/// may be null.
struct WglExtensions {
  PFNWGLGETEXTENSIONSSTRINGARBPROC wglGetExtensionsStringARB = nullptr;
  PFNWGLGETPIXELFORMATATTRIBIVARBPROC wglGetPixelFormatAttribivARB = nullptr;
  PFNWGLGETPIXELFORMATATTRIBFVARBPROC wglGetPixelFormatAttribfvARB = nullptr;
  PFNWGLCHOOSEPIXELFORMATARBPROC wglChoosePixelFormatARB = nullptr;
  PFNWGLCREATEPBUFFERARBPROC wglCreatePbufferARB = nullptr;
  PFNWGLGETPBUFFERDCARBPROC wglGetPbufferDCARB = nullptr;
  PFNWGLRELEASEPBUFFERDCARBPROC wglReleasePbufferDCARB = nullptr;
  PFNWGLDESTROYPBUFFERARBPROC wglDestroyPbufferARB = nullptr;
  PFNWGLQUERYPBUFFERARBPROC wglQueryPbufferARB = nullptr;
  PFNWGLBINDTEXIMAGEARBPROC wglBindTexImageARB = nullptr;
  PFNWGLRELEASETEXIMAGEARBPROC wglReleaseTexImageARB = nullptr;
  PFNWGLSETPBUFFERATTRIBARBPROC wglSetPbufferAttribARB = nullptr;
  PFNWGLMAKECONTEXTCURRENTARBPROC wglMakeContextCurrentARB = nullptr;
  PFNWGLSWAPINTERVALEXTPROC wglSwapIntervalEXT = nullptr;
};

extern WglExtensions wglExtensions;

/// The DLL or program that this code stands in. Window classes are registered for it, so that none
/// of an application's can be taken for them.
HINSTANCE ownModule();

/// A plain descriptor: double buffer, draw to window, support OpenGL, RGBA, 32 colour bits or what
/// the device has, and the given depth and stencil bits.
PIXELFORMATDESCRIPTOR plainDescriptor(HDC device, int depthBits, int stencilBits);

/// A hidden window of 64 by 64 for contexts that need a device; null on failure.
HWND createHiddenWindow();
void destroyHiddenWindow(HWND window);

/// True if the window was made by the port and its user has closed it.
bool isClosedNativeWindow(HWND window);

#endif
