#include <gtest/gtest.h>

#include "engine/render/window_target.h"
#include "tests/support/fake_egl.h"
#include "tests/support/render_fixture.h"

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
  egl.error = EGL_BAD_MATCH;
  egl.fail("makeCurrent");
  EXPECT_EQ(window.makeCurrent(), EGL_BAD_MATCH);
  egl.succeed("makeCurrent");
  EXPECT_EQ(window.makeCurrent(), EGL_SUCCESS);
  egl.calls.clear();
  EXPECT_EQ(window.makeCurrent(), EGL_SUCCESS);
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
