#include <gtest/gtest.h>

#include <cstdlib>

#include "engine/render/window_target.h"
#include "tests/support/fake_egl.h"
#include "tests/support/render_fixture.h"

using namespace varnel_m3g;

TEST(WindowTargetX11Test, WithoutADisplayForItsWindowTheTextIsOfNoStep) {
  FakeEgl egl;
  WindowTarget window;
  unsetenv("DISPLAY");
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { window.require(nullptr); }), "unknown error");
    EXPECT_TRUE(window.isUnusable());
  }
}
