// From the display to the swap, through the published names, on the real window system.
#include <EGL/egl.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <thread>

#include "egl/window/native_window.h"
#include "tests/support/native_client.h"

namespace {

using Pixel = std::array<unsigned char, 4>;

Pixel readPixel(int x, int y) {
  Pixel pixel = {};
  glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
  return pixel;
}

class Road : public testing::Test {
 protected:
  void SetUp() override {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_NE(display, EGL_NO_DISPLAY);
    ASSERT_TRUE(eglInitialize(display, &major, &minor));
  }
  void TearDown() override { eglTerminate(display); }

  EGLConfig choose(EGLint surfaceType) {
    const EGLint attributes[] = {EGL_SURFACE_TYPE, surfaceType, EGL_RENDERABLE_TYPE, 1,
                                 EGL_RED_SIZE,     8,           EGL_ALPHA_SIZE,      8,
                                 EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    EXPECT_TRUE(eglChooseConfig(display, attributes, &config, 1, &count));
    EXPECT_EQ(count, 1);
    return config;
  }

  EGLDisplay display = EGL_NO_DISPLAY;
  EGLint major = 0;
  EGLint minor = 0;
};

TEST_F(Road, AnswersVersion13) {
  EXPECT_EQ(major, 1);
  EXPECT_EQ(minor, 3);
  EXPECT_EQ(eglGetError(), EGL_SUCCESS);
}

TEST_F(Road, DrawsIntoAPbuffer) {
  EGLConfig config = choose(EGL_PBUFFER_BIT);
  const EGLint size[] = {EGL_WIDTH, 16, EGL_HEIGHT, 8, EGL_NONE};
  EGLSurface surface = eglCreatePbufferSurface(display, config, size);
  ASSERT_NE(surface, EGL_NO_SURFACE);
  ASSERT_EQ(eglGetError(), EGL_SUCCESS);
  EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  ASSERT_NE(context, EGL_NO_CONTEXT);
  ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
  glClearColor(1, 0.5f, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  glScissor(0, 0, 8, 8);
  glEnable(GL_SCISSOR_TEST);
  glClearColor(0, 0, 1, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  EXPECT_EQ(readPixel(2, 2), (Pixel{0, 0, 255, 255}));
  const Pixel right = readPixel(12, 2);
  EXPECT_EQ(right[0], 255);
  EXPECT_NEAR(right[1], 128, 1);
  EXPECT_EQ(right[2], 0);
  EXPECT_TRUE(eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
  EXPECT_TRUE(eglDestroyContext(display, context));
  EXPECT_TRUE(eglDestroySurface(display, surface));
}

TEST_F(Road, AnotherThreadTakesOverWhatAnEndedOneHadCurrent) {
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
  std::thread([&] {
    ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
    EGLConfig config = choose(EGL_PBUFFER_BIT);
    const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
    surface = eglCreatePbufferSurface(display, config, size);
    context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
    ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
    glClearColor(0, 1, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glFinish();
  }).join();
  ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
  EXPECT_EQ(readPixel(1, 1), (Pixel{0, 255, 255, 255}));
}

TEST_F(Road, ShowsASwappedFrameInTheWindow) {
  EGLNativeWindowType window = createNativeWindow();
  ASSERT_TRUE(window) << nativeWindowError();
  std::uintptr_t deviceContext = 0;
  ASSERT_TRUE(realizeNativeWindow(window, &deviceContext));
  EGLConfig config = choose(EGL_WINDOW_BIT);
  EGLSurface surface = eglCreateWindowSurface(display, config, window, nullptr);
  ASSERT_NE(surface, EGL_NO_SURFACE) << std::hex << eglGetError();
  EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context));
  EGLint width = 0;
  EGLint height = 0;
  EXPECT_TRUE(eglQuerySurface(display, surface, EGL_WIDTH, &width));
  EXPECT_TRUE(eglQuerySurface(display, surface, EGL_HEIGHT, &height));
  EXPECT_EQ(width, 640);
  EXPECT_EQ(height, 480);
  glClearColor(1, 0, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  glEnable(GL_SCISSOR_TEST);
  glScissor(0, 240, 640, 240);
  glClearColor(0, 1, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  EXPECT_TRUE(eglSwapBuffers(display, surface));
  EXPECT_TRUE(eglWaitClient());
  pumpNativeMessages(idOf(window));
  pumpNativeMessages(deviceContext);
  NativeClient client;
  EXPECT_EQ(client.pixel(idOf(window), 320, 10), 0x00FF00u);
  EXPECT_EQ(client.pixel(idOf(window), 320, 470), 0xFF0000u);
  eglDestroySurface(display, surface);
  eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  destroyNativeWindow(window);
}

}  // namespace
