#ifndef VARNEL_TESTS_SUPPORT_FAKE_EGL_H
#define VARNEL_TESTS_SUPPORT_FAKE_EGL_H

#include <EGL/egl.h>

#include <set>
#include <string>
#include <vector>

#include "egl/backend/egl_backend.h"

/// Stands under the EGL shim while it lives, without a window system: every call succeeds unless
/// told to fail, surfaces have the size set here, and the calls are written down by name. One at a
/// time.
class FakeEgl {
 public:
  FakeEgl();
  ~FakeEgl();
  FakeEgl(const FakeEgl&) = delete;
  FakeEgl& operator=(const FakeEgl&) = delete;

  /// Makes a call answer failure from now on: "getDisplay", "initialize", "chooseConfig",
  /// "createPbufferSurface", "createWindowSurface", "createContext", "makeCurrent".
  void fail(const std::string& call) { failing.insert(call); }
  void succeed(const std::string& call) { failing.erase(call); }
  /// Makes the back end report every surface as bad, as it does once the window is closed.
  void loseSurfaces(bool lost) { surfacesLost = lost; }

  /// Makes a surface and a context through the shim and makes them current.
  EGLSurface makeSurfaceCurrent();
  /// Ends what makeSurfaceCurrent has made.
  void release();

  int width = 100;
  int height = 100;
  /// The error that follows a failed call.
  EGLint error = EGL_BAD_ALLOC;
  /// The names of the calls so far.
  std::vector<std::string> calls;
  /// The attributes of the last choice of a config and of the last pbuffer, with their EGL_NONE.
  std::vector<EGLint> chosenAttributes;
  std::vector<EGLint> pbufferAttributes;

 private:
  friend struct FakeEglCalls;

  bool passes(const std::string& call);

  std::set<std::string> failing;
  bool surfacesLost = false;
  EGLint lastError = EGL_SUCCESS;
  EGLContext currentContext = EGL_NO_CONTEXT;
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
  EglBackend backend{};
};

#endif
