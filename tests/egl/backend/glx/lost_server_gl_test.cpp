// What losing the X server does to the window of the library's own.
#include <EGL/egl.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <thread>

#include "egl/window/native_window.h"
#include "tests/support/x11/x_client.h"

namespace {

/// Runs in a process of its own: the test ends a connection for good.
int drawUntilTheServerCloses() {
  XClient client;
  EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  eglInitialize(display, nullptr, nullptr);
  EGLNativeWindowType window = createNativeWindow();
  const EGLint attributes[] = {EGL_SURFACE_TYPE, EGL_WINDOW_BIT, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  eglChooseConfig(display, attributes, &config, 1, &count);
  EGLSurface surface = eglCreateWindowSurface(display, config, window, nullptr);
  EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  if (!eglMakeCurrent(display, surface, surface, context)) {
    return 1;
  }
  glClear(GL_COLOR_BUFFER_BIT);
  if (!eglSwapBuffers(display, surface)) {
    return 2;
  }
  client.killOwner(window);
  if (eglSwapBuffers(display, surface) || eglGetError() != EGL_BAD_SURFACE) {
    return 3;
  }
  pumpNativeMessages(window);
  if (createNativeWindow() != 0) {
    return 4;
  }
  glClear(GL_COLOR_BUFFER_BIT);
  eglWaitClient();
  return 0;
}

TEST(LostServerDeathTest, AClosedConnectionMakesTheSurfaceBadAndDoesNotEndTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(_exit(drawUntilTheServerCloses()), testing::ExitedWithCode(0), "");
}

#ifndef __SANITIZE_ADDRESS__
// Not under the leak checker, which would list what the driver keeps for a lost connection.
// The thread that drew is another one than that which ends the process, as in a Java VM.
TEST(LostServerDeathTest, AClosedConnectionDoesNotHoldUpTheEndOfTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        alarm(30);
        int result = -1;
        std::thread([&] { result = drawUntilTheServerCloses(); }).join();
        std::exit(result);
      },
      testing::ExitedWithCode(0), "");
}
#endif

TEST(LostServerDeathTest, WithoutADisplayThereIsNone) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        unsetenv("DISPLAY");
        const bool first = std::string(nativeWindowError()) == "Never called init";
        const bool none = eglGetDisplay(EGL_DEFAULT_DISPLAY) == EGL_NO_DISPLAY;
        const bool refused =
            !eglInitialize(EGL_NO_DISPLAY, nullptr, nullptr) && eglGetError() == EGL_BAD_DISPLAY;
        const bool noWindow = createNativeWindow() == 0;
        _exit(first && none && refused && noWindow ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
