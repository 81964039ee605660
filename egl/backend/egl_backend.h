#ifndef VARNEL_EGL_BACKEND_EGL_BACKEND_H
#define VARNEL_EGL_BACKEND_EGL_BACKEND_H

#include <EGL/egl.h>
#include <EGL/eglext.h>

/// The EGL that stands under the shim: one member for each call, with the call's published meaning.
/// The own back end fills it with its egw functions; any other EGL implementation could.
/// `chooseConfig` may write up to ten handles whatever `configSize` says.
struct EglBackend {
  EGLint (*getError)();
  EGLDisplay (*getDisplay)(EGLNativeDisplayType native);
  EGLBoolean (*initialize)(EGLDisplay display, EGLint* major, EGLint* minor);
  EGLBoolean (*terminate)(EGLDisplay display);
  const char* (*queryString)(EGLDisplay display, EGLint name);
  EGLBoolean (*getConfigs)(EGLDisplay display, EGLConfig* configs, EGLint configSize,
                           EGLint* count);
  EGLBoolean (*chooseConfig)(EGLDisplay display, const EGLint* attributes, EGLConfig* configs,
                             EGLint configSize, EGLint* count);
  EGLBoolean (*getConfigAttrib)(EGLDisplay display, EGLConfig config, EGLint attribute,
                                EGLint* value);
  EGLSurface (*createWindowSurface)(EGLDisplay display, EGLConfig config,
                                    EGLNativeWindowType window, const EGLint* attributes);
  EGLSurface (*createPbufferSurface)(EGLDisplay display, EGLConfig config,
                                     const EGLint* attributes);
  EGLSurface (*createPixmapSurface)(EGLDisplay display, EGLConfig config,
                                    EGLNativePixmapType pixmap, const EGLint* attributes);
  EGLBoolean (*destroySurface)(EGLDisplay display, EGLSurface surface);
  EGLBoolean (*querySurface)(EGLDisplay display, EGLSurface surface, EGLint attribute,
                             EGLint* value);
  EGLBoolean (*surfaceAttrib)(EGLDisplay display, EGLSurface surface, EGLint attribute,
                              EGLint value);
  EGLBoolean (*bindTexImage)(EGLDisplay display, EGLSurface surface, EGLint buffer);
  EGLBoolean (*releaseTexImage)(EGLDisplay display, EGLSurface surface, EGLint buffer);
  EGLBoolean (*waitClient)();
  EGLBoolean (*waitNative)(EGLint engine);
  EGLBoolean (*swapInterval)(EGLDisplay display, EGLint interval);
  EGLContext (*createContext)(EGLDisplay display, EGLConfig config, EGLContext shareContext,
                              const EGLint* attributes);
  EGLBoolean (*destroyContext)(EGLDisplay display, EGLContext context);
  EGLBoolean (*makeCurrent)(EGLDisplay display, EGLSurface draw, EGLSurface read,
                            EGLContext context);
  EGLContext (*getCurrentContext)();
  EGLSurface (*getCurrentSurface)(EGLint which);
  EGLDisplay (*getCurrentDisplay)();
  EGLBoolean (*queryContext)(EGLDisplay display, EGLContext context, EGLint attribute,
                             EGLint* value);
  EGLBoolean (*swapBuffers)(EGLDisplay display, EGLSurface surface);
  EGLBoolean (*copyBuffers)(EGLDisplay display, EGLSurface surface, EGLNativePixmapType pixmap);
  __eglMustCastToProperFunctionPointerType (*getProcAddress)(const char* name);
};

/// The table that the shim calls: the own back end's unless another was set.
const EglBackend& eglBackend();

/// Puts another EGL under the shim. `backend` is not copied and must outlive its use; null brings
/// the own back end again.
void setEglBackend(const EglBackend* backend);

#endif
