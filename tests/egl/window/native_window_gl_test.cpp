// The window of the library's own, and what closing it, destroying it and losing the server do.
#include "egl/window/native_window.h"

#include <EGL/egl.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <thread>

#include "tests/support/x_client.h"

namespace {

/// A window with a surface and a context that are current.
class ShownWindow : public testing::Test {
 protected:
  void SetUp() override {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
    window = createNativeWindow();
    ASSERT_NE(window, 0u) << nativeWindowError();
    ASSERT_TRUE(realizeNativeWindow(window, &deviceContext));
    const EGLint attributes[] = {EGL_SURFACE_TYPE, EGL_WINDOW_BIT, EGL_RED_SIZE, 8, EGL_NONE};
    EGLint count = 0;
    ASSERT_TRUE(eglChooseConfig(display, attributes, &config, 1, &count));
    surface = eglCreateWindowSurface(display, config, window, nullptr);
    ASSERT_NE(surface, EGL_NO_SURFACE);
    context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
    ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
  }
  void TearDown() override {
    eglTerminate(display);
    destroyNativeWindow(window);
  }
  void draw(float red, float green, float blue) {
    glClearColor(red, green, blue, 1);
    glClear(GL_COLOR_BUFFER_BIT);
  }
  void expectBadSurface() {
    EGLint value = 0;
    EXPECT_FALSE(eglQuerySurface(display, surface, EGL_CONFIG_ID, &value));
    EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
    EXPECT_FALSE(eglQuerySurface(display, surface, EGL_WIDTH, &value));
    EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
    EXPECT_FALSE(eglSwapBuffers(display, surface));
    EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
    EXPECT_FALSE(eglMakeCurrent(display, surface, surface, context));
    EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
    // What is drawn meanwhile goes nowhere and harms nobody.
    draw(1, 1, 1);
    glFinish();
    EXPECT_TRUE(eglWaitClient());
    EXPECT_TRUE(eglWaitNative(EGL_CORE_NATIVE_ENGINE));
    EXPECT_TRUE(eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
    EXPECT_TRUE(eglDestroySurface(display, surface));
  }

  XClient client;
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLNativeWindowType window = 0;
  std::uintptr_t deviceContext = 0;
  EGLConfig config = nullptr;
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
};

TEST_F(ShownWindow, IsTitledSampleAndTellsItsProcess) {
  EXPECT_EQ(client.title(window), "Sample");
  EXPECT_EQ(client.className(window), "MainWClass");
  EXPECT_EQ(client.process(window), getpid());
  EXPECT_TRUE(client.isMapped(window));
}

TEST_F(ShownWindow, FollowsItsSize) {
  client.resizeWindow(window, 320, 200);
  pumpNativeMessages(window);
  EGLint width = 0;
  EGLint height = 0;
  EXPECT_TRUE(eglQuerySurface(display, surface, EGL_WIDTH, &width));
  EXPECT_TRUE(eglQuerySurface(display, surface, EGL_HEIGHT, &height));
  EXPECT_EQ(width, 320);
  EXPECT_EQ(height, 200);
  draw(0, 1, 0);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  EXPECT_EQ(client.pixel(window, 310, 190), 0x00FF00u);
}

TEST_F(ShownWindow, ClosedByItsUserItDisappearsAndItsSurfaceIsBad) {
  draw(1, 0, 0);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  client.sendDelete(window);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  pumpNativeMessages(window);
  EXPECT_FALSE(client.isMapped(window));
  expectBadSurface();
  EXPECT_FALSE(realizeNativeWindow(window, &deviceContext));
}

TEST_F(ShownWindow, TheDeviceContextsMessagesAreTheWindows) {
  client.sendDelete(window);
  pumpNativeMessages(deviceContext);
  EXPECT_FALSE(client.isMapped(window));
}

TEST_F(ShownWindow, OtherHandlesAreNotPumped) {
  client.sendDelete(window);
  pumpNativeMessages(0);
  pumpNativeMessages(window + 12345);
  EXPECT_TRUE(client.isMapped(window));
}

TEST_F(ShownWindow, DestroyedByOthersItsSurfaceIsBad) {
  draw(1, 0, 0);
  client.destroyWindow(window);
  expectBadSurface();
  pumpNativeMessages(window);
}

TEST_F(ShownWindow, DestroyedBetweenDrawingAndSwap) {
  draw(1, 0, 0);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  draw(0, 1, 0);
  client.destroyWindow(window);
  glFlush();
  draw(0, 0, 1);
  unsigned char pixel[4];
  glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
  EXPECT_FALSE(eglSwapBuffers(display, surface));
  EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
  expectBadSurface();
}

TEST_F(ShownWindow, AChildFillsIt) {
  EGLNativeWindowType child = createNativeChildWindow(window);
  ASSERT_NE(child, 0u) << nativeWindowError();
  EGLSurface inner = eglCreateWindowSurface(display, config, child, nullptr);
  ASSERT_NE(inner, EGL_NO_SURFACE);
  ASSERT_TRUE(eglMakeCurrent(display, inner, inner, context));
  draw(0, 1, 1);
  EXPECT_TRUE(eglSwapBuffers(display, inner));
  EXPECT_EQ(client.pixel(child, 639, 479), 0x00FFFFu);
  EXPECT_EQ(client.pixel(window, 639, 479), 0x00FFFFu);
  client.resizeWindow(window, 100, 50);
  pumpNativeMessages(window);
  EGLint width = 0;
  EXPECT_TRUE(eglQuerySurface(display, inner, EGL_WIDTH, &width));
  EXPECT_EQ(width, 100);
  client.sendDelete(window);
  pumpNativeMessages(child);
  EXPECT_FALSE(eglQuerySurface(display, inner, EGL_WIDTH, &width));
  EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
  EXPECT_EQ(createNativeChildWindow(window), 0u);
  EXPECT_STREQ(nativeWindowError(), "Bad Child class");
  eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  eglDestroySurface(display, inner);
  destroyNativeWindow(child);
}

TEST(NativeWindow, AChildNeedsAWindowOfThisKind) {
  XClient client;
  EXPECT_EQ(createNativeChildWindow(client.createWindow(8, 8)), 0u);
  EXPECT_STREQ(nativeWindowError(), "Bad Child class");
}

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

TEST(NativeWindowDeathTest, AClosedConnectionMakesTheSurfaceBadAndDoesNotEndTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(_exit(drawUntilTheServerCloses()), testing::ExitedWithCode(0), "");
}

#ifndef __SANITIZE_ADDRESS__
// Not under the leak checker, which would list what the driver keeps for a lost connection.
// The thread that drew is another one than that which ends the process, as in a Java VM.
TEST(NativeWindowDeathTest, AClosedConnectionDoesNotHoldUpTheEndOfTheProcess) {
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

TEST(NativeWindowDeathTest, WithoutADisplayThereIsNone) {
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
