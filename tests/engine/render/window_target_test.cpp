#include "engine/render/window_target.h"

#include <gtest/gtest.h>

#include "tests/support/fake_egl.h"
#include "tests/support/render_fixture.h"

using namespace varnel_m3g;

namespace {

class WindowTargetTest : public ::testing::Test {
 protected:
  FakeEgl egl;
  WindowTarget window;
};

}  // namespace

TEST_F(WindowTargetTest, NothingIsMadeBeforeTheFirstBind) {
  EXPECT_TRUE(window.isUnusable());
  EXPECT_STREQ(window.failureText(), "Never called init");
  EXPECT_TRUE(egl.calls.empty());
}

TEST_F(WindowTargetTest, TheStepThatFailsLeavesItsTextAndIsNotTriedAgain) {
  const std::pair<const char*, const char*> steps[] = {
      {"getDisplay", "Failed to get display"},
      {"initialize", "Failed to initialize display"},
      {"chooseConfig", "Failed to choose configuration"},
  };
  for (const auto& [call, text] : steps) {
    WindowTarget tried;
    egl.fail(call);
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { tried.require(nullptr); }), text);
    egl.succeed(call);
    egl.calls.clear();
    EXPECT_EQ(failureOf<std::invalid_argument>([&] { tried.require(nullptr); }), text);
    EXPECT_EQ(
        failureOf<std::invalid_argument>([&] { tried.require("Couldn't initialize surface"); }),
        "Couldn't initialize surface");
    EXPECT_TRUE(egl.calls.empty());
    EXPECT_TRUE(tried.isUnusable());
  }
}

TEST_F(WindowTargetTest, ShowingWithoutAWindowIsHarmless) {
  window.present();
  EXPECT_TRUE(window.isUnusable());
}
