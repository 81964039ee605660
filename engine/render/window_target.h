#ifndef VARNEL_ENGINE_RENDER_WINDOW_TARGET_H
#define VARNEL_ENGINE_RENDER_WINDOW_TARGET_H

#include <EGL/egl.h>

#include <cstdint>

#include "engine/render/graphics3d.h"

namespace varnel_m3g {

/// The one target that a Java program can reach: a window of the library's own, with its surface
/// and its context. They are made at the first bind and live to process end.
class WindowTarget {
 public:
  /// The one that the natives bind.
  static WindowTarget& get();

  WindowTarget() = default;
  WindowTarget(const WindowTarget&) = delete;
  WindowTarget& operator=(const WindowTarget&) = delete;

  /// Makes the window, once; after a failure no further attempt is made.
  void initialise();
  /// Whether the attempt failed, or none was made.
  bool isUnusable() const { return progress >= 1; }
  /// The text of the step that failed.
  const char* failureText() const { return failure; }

  /// Initialises the window if need be.
  /// @throws std::invalid_argument if that failed, with the given text or, for null, with that of
  ///     the step that failed
  void require(const char* text);
  /// Makes the window's context current unless it is.
  /// @param error the error of EGL after a failure
  /// @return false after a failure, whatever the error says
  bool makeCurrent(EGLint* error);
  /// What bindTarget takes.
  const WindowSurface& surfaceRecord() const { return record; }

  /// Shows what was drawn and dispatches the window's messages. Harmless without a window.
  void present();

 private:
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLConfig config = nullptr;
  EGLNativeWindowType window = 0;
  std::uintptr_t deviceContext = 0;
  WindowSurface record;
  EGLContext context = EGL_NO_CONTEXT;
  /// Counts down before each step; 0 once the window stands, 1 or more after a failure.
  int progress = notStarted;
  const char* failure = "Never called init";

  static constexpr int notStarted = 100;
};

}  // namespace varnel_m3g

#endif
