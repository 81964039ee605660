#ifndef VARNEL_TESTS_SUPPORT_FAKE_EGL_BACKEND_H
#define VARNEL_TESTS_SUPPORT_FAKE_EGL_BACKEND_H

#include <string>
#include <vector>

#include "egl/backend/egl_backend.h"

/// An EGL of the tests' own under the shim, without a window system: its handles are small numbers,
/// every call succeeds unless told otherwise, and the calls are noted in order. While it lives, the
/// shim calls it.
class FakeEglBackend {
 public:
  FakeEglBackend();
  ~FakeEglBackend();
  FakeEglBackend(const FakeEglBackend&) = delete;
  FakeEglBackend& operator=(const FakeEglBackend&) = delete;

  /// A configuration as the fake answers for it.
  struct Config {
    EGLint surfaceType, red, green, blue, alpha, renderable;
  };

  /// Configurations with the handles 1, 2, ...
  std::vector<Config> configs;
  /// Error that the next calls end with; EGL_SUCCESS lets them succeed.
  EGLint nextError = EGL_SUCCESS;
  /// Error that only calls of that name end with.
  std::string failingCall;
  EGLint failingError = EGL_SUCCESS;
  EGLint surfaceWidth = 100;
  EGLint surfaceHeight = 50;
  /// The list that the last surface creation got, without its end.
  std::vector<EGLint> lastAttributes;
  /// Names of the calls so far.
  std::vector<std::string> calls;

  int countOf(const std::string& call) const;
  /// Contexts created and not destroyed yet.
  int liveContexts = 0;
};

#endif
