// The process's X error handler belongs to its application.
#include <EGL/egl.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>

#include "egl/window/native_window.h"
#include "tests/support/x11/x_client.h"
#include "tests/support/x11/x_error_counter.h"

namespace {

TEST(XErrors, TheFormerHandlerIsBackAfterEachCallAndAfterTheLastContext) {
  XClient client;
  const XErrorCounter counter;
  EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  EXPECT_TRUE(counter.isInstalled());
  ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
  EXPECT_TRUE(counter.isInstalled());
  const EGLint attributes[] = {EGL_SURFACE_TYPE, EGL_WINDOW_BIT, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  eglChooseConfig(display, attributes, &config, 1, &count);
  EXPECT_EQ(eglCreateWindowSurface(display, config, 4711, nullptr), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_NATIVE_WINDOW);
  EXPECT_TRUE(counter.isInstalled());
  EGLSurface surface = eglCreateWindowSurface(display, config, client.createWindow(8, 8), nullptr);
  EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
  // Errors of others reach the application while a context is current, too.
  client.provokeError();
  EXPECT_EQ(counter.count(), 1);
  EXPECT_TRUE(eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
  EXPECT_TRUE(counter.isInstalled());
  ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
  EXPECT_TRUE(eglTerminate(display));
  EXPECT_TRUE(counter.isInstalled());
  client.provokeError();
  EXPECT_EQ(counter.count(), 2);
}

TEST(XErrors, AHandlerThatWasSetMeanwhileStays) {
  XClient client;
  EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
  const EGLint attributes[] = {EGL_SURFACE_TYPE, EGL_WINDOW_BIT, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  eglChooseConfig(display, attributes, &config, 1, &count);
  EGLSurface surface = eglCreateWindowSurface(display, config, client.createWindow(8, 8), nullptr);
  EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
  {
    const XErrorCounter counter;
    EXPECT_TRUE(eglSwapBuffers(display, surface));
    EXPECT_TRUE(eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
    EXPECT_TRUE(counter.isInstalled());
  }
  eglTerminate(display);
}

}  // namespace
