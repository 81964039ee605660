// The window of the library's own, and what closing and destroying it do.
#include "egl/window/native_window.h"

#include <EGL/egl.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "tests/support/native_client.h"

namespace {

/// A window with a surface and a context that are current.
class ShownWindow : public testing::Test {
 protected:
  void SetUp() override {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
    window = createNativeWindow();
    ASSERT_TRUE(window) << nativeWindowError();
    id = idOf(window);
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

  NativeClient client;
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLNativeWindowType window = 0;
  std::uintptr_t id = 0;  ///< the window's
  std::uintptr_t deviceContext = 0;
  EGLConfig config = nullptr;
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
};

TEST_F(ShownWindow, IsTitledSampleAndTellsItsProcess) {
  EXPECT_EQ(client.title(id), "Sample");
  EXPECT_EQ(client.className(id), "MainWClass");
  EXPECT_EQ(client.process(id), getpid());
  EXPECT_TRUE(client.isShown(id));
}

TEST_F(ShownWindow, FollowsItsSize) {
  client.resizeWindow(id, 320, 200);
  pumpNativeMessages(id);
  EGLint width = 0;
  EGLint height = 0;
  EXPECT_TRUE(eglQuerySurface(display, surface, EGL_WIDTH, &width));
  EXPECT_TRUE(eglQuerySurface(display, surface, EGL_HEIGHT, &height));
  EXPECT_EQ(width, 320);
  EXPECT_EQ(height, 200);
  draw(0, 1, 0);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  EXPECT_EQ(client.pixel(id, 310, 190), 0x00FF00u);
}

TEST_F(ShownWindow, ClosedByItsUserItDisappearsAndItsSurfaceIsBad) {
  draw(1, 0, 0);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  client.askToClose(id);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  pumpNativeMessages(id);
  EXPECT_FALSE(client.isShown(id));
  expectBadSurface();
  EXPECT_FALSE(realizeNativeWindow(window, &deviceContext));
}

TEST_F(ShownWindow, TheDeviceContextsMessagesAreTheWindows) {
  client.askToClose(id);
  pumpNativeMessages(deviceContext);
  EXPECT_FALSE(client.isShown(id));
}

TEST_F(ShownWindow, OtherHandlesAreNotPumped) {
  client.askToClose(id);
  pumpNativeMessages(0);
  pumpNativeMessages(id + 12345);
  EXPECT_TRUE(client.isShown(id));
}

TEST_F(ShownWindow, DestroyedByOthersItsSurfaceIsBad) {
  draw(1, 0, 0);
  client.destroyWindow(id);
  expectBadSurface();
  pumpNativeMessages(id);
}

TEST_F(ShownWindow, DestroyedBetweenDrawingAndSwap) {
  draw(1, 0, 0);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  draw(0, 1, 0);
  client.destroyWindow(id);
  glFlush();
  draw(0, 0, 1);
  unsigned char pixel[4];
  glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
  EXPECT_FALSE(eglSwapBuffers(display, surface));
  EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
  expectBadSurface();
}

class ShownChild : public ShownWindow {
 protected:
  void SetUp() override {
    ShownWindow::SetUp();
    child = createNativeChildWindow(window);
    ASSERT_TRUE(child) << nativeWindowError();
    inner = eglCreateWindowSurface(display, config, child, nullptr);
    ASSERT_NE(inner, EGL_NO_SURFACE);
    ASSERT_TRUE(eglMakeCurrent(display, inner, inner, context));
  }
  void TearDown() override {
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglDestroySurface(display, inner);
    destroyNativeWindow(child);
    ShownWindow::TearDown();
  }

  EGLNativeWindowType child = 0;
  EGLSurface inner = EGL_NO_SURFACE;
};

TEST_F(ShownChild, FillsItsParent) {
  EXPECT_EQ(client.className(idOf(child)), "ChildWClass");
  EGLint width = 0;
  EGLint height = 0;
  EXPECT_TRUE(eglQuerySurface(display, inner, EGL_WIDTH, &width));
  EXPECT_TRUE(eglQuerySurface(display, inner, EGL_HEIGHT, &height));
  EXPECT_EQ(width, 640);
  EXPECT_EQ(height, 480);
  client.resizeWindow(id, 300, 150);
  pumpNativeMessages(id);
  EXPECT_TRUE(eglQuerySurface(display, inner, EGL_WIDTH, &width));
  EXPECT_EQ(width, 300);
}

TEST_F(ShownChild, ShowsItsFrame) {
  draw(0, 1, 1);
  EXPECT_TRUE(eglSwapBuffers(display, inner));
  if (!NativeClient::showsOpenGlOfChildren()) {
    GTEST_SKIP() << "Wine does not show what OpenGL draws into child windows here";
  }
  EXPECT_EQ(client.pixel(idOf(child), 639, 479), 0x00FFFFu);
  EXPECT_EQ(client.pixel(id, 639, 479), 0x00FFFFu);
}

TEST_F(ShownChild, GoesWithItsParent) {
  client.askToClose(id);
  pumpNativeMessages(id);
  EGLint width = 0;
  EXPECT_FALSE(eglQuerySurface(display, inner, EGL_WIDTH, &width));
  EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
  EXPECT_FALSE(createNativeChildWindow(window));
  EXPECT_STREQ(nativeWindowError(), "Bad Child class");
}

TEST(NativeWindow, AChildMayFillAnotherPrograms) {
  NativeClient client;
  const auto parent = client.createWindow(80, 60);
  const EGLNativeWindowType child = createNativeChildWindow(nativeWindow(parent));
  ASSERT_TRUE(child) << nativeWindowError();
  EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
  const EGLint attributes[] = {EGL_SURFACE_TYPE, EGL_WINDOW_BIT, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  ASSERT_TRUE(eglChooseConfig(display, attributes, &config, 1, &count));
  EGLSurface surface = eglCreateWindowSurface(display, config, child, nullptr);
  ASSERT_NE(surface, EGL_NO_SURFACE);
  client.resizeWindow(parent, 200, 100);
  pumpNativeMessages(idOf(child));
  EGLint width = 0;
  EXPECT_TRUE(eglQuerySurface(display, surface, EGL_WIDTH, &width));
  EXPECT_EQ(width, 200);
  client.destroyWindow(parent);
  pumpNativeMessages(idOf(child));
  EXPECT_FALSE(eglQuerySurface(display, surface, EGL_WIDTH, &width));
  EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
  EXPECT_TRUE(eglTerminate(display));
  destroyNativeWindow(child);
}

TEST(NativeWindow, AChildOfNoWindowLeavesTheSystemsReason) {
  EXPECT_FALSE(createNativeChildWindow(nativeWindow(4711)));
  const std::string text = nativeWindowError();
  EXPECT_EQ(text.substr(0, 7), "Child: ");
  EXPECT_GT(text.size(), 10u);
}

}  // namespace
