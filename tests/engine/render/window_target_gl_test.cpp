#include <gtest/gtest.h>

#include "egl/window/native_window.h"
#include "engine/render/window_target.h"
#include "tests/support/fake_egl.h"
#include "tests/support/render_fixture.h"
#include "tests/support/native_client.h"

using namespace varnel_m3g;

TEST(WindowTargetGlTest, TheLastStepsLeaveTheirTextsToo) {
  const std::pair<const char*, const char*> steps[] = {
      {"createWindowSurface", "failed to create window surface"},
      {"createContext", "failed to create context"},
  };
  for (const auto& [call, text] : steps) {
    FakeEgl egl;
    WindowTarget tried;
    egl.fail(call);
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { tried.require(nullptr); }), text);
    EXPECT_TRUE(tried.isUnusable());
  }
}

TEST(WindowTargetGlTest, AnErrorOfTheBindIsAnswered) {
  FakeEgl egl;
  WindowTarget window;
  window.require(nullptr);
  EXPECT_FALSE(window.isUnusable());
  egl.fail("makeCurrent");
  for (const EGLint answered : {EGL_BAD_MATCH, EGL_SUCCESS}) {
    egl.error = answered;
    EGLint error = EGL_BAD_ALLOC;
    EXPECT_FALSE(window.makeCurrent(&error));
    EXPECT_EQ(error, answered);
  }
  egl.succeed("makeCurrent");
  EGLint untouched = EGL_BAD_ALLOC;
  EXPECT_TRUE(window.makeCurrent(&untouched));
  EXPECT_EQ(untouched, EGL_BAD_ALLOC);
  egl.calls.clear();
  EXPECT_TRUE(window.makeCurrent(&untouched));
  EXPECT_TRUE(egl.calls.empty()) << "it is current already";
}

TEST(WindowTargetGlTest, ShowingWaitsSwapsWaitsAgain) {
  FakeEgl egl;
  WindowTarget window;
  window.require(nullptr);
  egl.calls.clear();
  window.present();
  EXPECT_EQ(egl.calls, (std::vector<std::string>{"waitNative", "swapBuffers", "waitClient"}));
}

TEST(WindowTargetGlTest, OnceItsUserHasClosedTheWindowABindIsRefused) {
  const EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
  const EGLint wanted[] = {EGL_SURFACE_TYPE, EGL_WINDOW_BIT, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint found = 0;
  ASSERT_TRUE(eglChooseConfig(display, wanted, &config, 1, &found));
  const EGLNativeWindowType window = createNativeWindow();
  ASSERT_TRUE(window);
  WindowSurface record;
  record.surface = eglCreateWindowSurface(display, config, window, nullptr);
  const EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(eglMakeCurrent(display, record.surface, record.surface, context));
  Graphics3D& graphics = Graphics3D::getInstance();
  graphics.bindTarget(&record);
  EXPECT_EQ(graphics.getViewportWidth(), 640);
  EXPECT_EQ(graphics.getViewportHeight(), 480);
  graphics.clear(nullptr);
  NativeClient().askToClose(idOf(window));
  graphics.releaseTarget();
  eglSwapBuffers(display, record.surface);
  pumpNativeMessages(idOf(window));
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { graphics.bindTarget(&record); }),
              "Exception: Graphics3D.bindTarget().  targetCanvas must point to a valid rendering "
              "target, that target must be created from the default EGLDisplay.");
    eglSwapBuffers(display, record.surface);
    pumpNativeMessages(idOf(window));
  }
  eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  eglDestroyContext(display, context);
  eglDestroySurface(display, record.surface);
  destroyNativeWindow(window);
  eglTerminate(display);
}
