#include "engine/render/window_target.h"

#include <bit>
#include <cstdint>
#include <stdexcept>

#include "egl/window/native_window.h"

namespace varnel_m3g {

WindowTarget& WindowTarget::get() {
  static WindowTarget& target = *new WindowTarget;
  return target;
}

void WindowTarget::initialise() {
  --progress;
  display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  if (display == EGL_NO_DISPLAY) {
    failure = "Failed to get display";
    return;
  }
  --progress;
  if (!eglInitialize(display, nullptr, nullptr)) {
    failure = "Failed to initialize display";
    return;
  }
  --progress;
  const EGLint wanted[] = {EGL_SURFACE_TYPE,
                           EGL_WINDOW_BIT,
                           EGL_RENDERABLE_TYPE,
                           EGL_OPENGL_ES_BIT,
                           EGL_RED_SIZE,
                           8,
                           EGL_GREEN_SIZE,
                           8,
                           EGL_BLUE_SIZE,
                           8,
                           EGL_ALPHA_SIZE,
                           8,
                           EGL_NONE};
  EGLint found = 0;
  if (!eglChooseConfig(display, wanted, &config, 1, &found) || found < 1) {
    failure = "Failed to choose configuration";
    return;
  }
  --progress;
  window = createNativeWindow();
  if (!window) {
    failure = "unknown error";
    return;
  }
  --progress;
  if (!realizeNativeWindow(window, &deviceContext)) {
    failure = "Failed to realize window";
    return;
  }
  --progress;
  record.surface = eglCreateWindowSurface(display, config, window, nullptr);
  if (record.surface == EGL_NO_SURFACE) {
    failure = "failed to create window surface";
    return;
  }
  --progress;
  context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  if (context == EGL_NO_CONTEXT) {
    failure = "failed to create context";
    return;
  }
  progress = 0;
}

void WindowTarget::require(const char* text) {
  if (progress == notStarted) {
    initialise();
  }
  if (isUnusable()) {
    throw std::invalid_argument(text ? text : failure);
  }
}

bool WindowTarget::makeCurrent(EGLint* error) {
  if (eglGetCurrentContext() == context ||
      eglMakeCurrent(display, record.surface, record.surface, context)) {
    return true;
  }
  *error = eglGetError();
  return false;
}

void WindowTarget::present() {
  eglWaitNative(EGL_CORE_NATIVE_ENGINE);
  eglSwapBuffers(display, record.surface);
  eglWaitClient();
  pumpNativeMessages(std::bit_cast<std::uintptr_t>(window));
  pumpNativeMessages(deviceContext);
}

}  // namespace varnel_m3g
