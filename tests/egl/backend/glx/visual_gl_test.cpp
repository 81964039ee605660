// Windows of other visuals than the screen's default one.
#include <GLES/gl.h>
#include <gtest/gtest.h>

#include "egl/backend/egl_backend.h"
#include "tests/support/x11/x_client.h"

namespace {

TEST(Visuals, AWindowOfAnotherVisualGetsAFormatThatFitsIt) {
  const EglBackend& egl = eglBackend();
  EGLDisplay display = egl.getDisplay(EGL_DEFAULT_DISPLAY);
  ASSERT_TRUE(egl.initialize(display, nullptr, nullptr));
  EGLConfig rows[10] = {};
  EGLint count = 0;
  ASSERT_TRUE(egl.getConfigs(display, rows, 10, &count));
  XClient client;
  const auto window = client.createWindowOfDepth(32, 16, 32);
  ASSERT_NE(window, 0u);
  EGLSurface surface = egl.createWindowSurface(display, rows[6], nativeWindow(window), nullptr);
  ASSERT_NE(surface, EGL_NO_SURFACE);
  EGLContext context = egl.createContext(display, rows[6], EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(egl.makeCurrent(display, surface, surface, context));
  glClearColor(1, 1, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  EXPECT_TRUE(egl.swapBuffers(display, surface));
  EXPECT_EQ(client.pixel(window, 5, 5), 0xFFFF00u);
  egl.terminate(display);
}

}  // namespace
