#ifndef VARNEL_TESTS_SUPPORT_RENDER_FIXTURE_H
#define VARNEL_TESTS_SUPPORT_RENDER_FIXTURE_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/render/graphics3d.h"
#include "tests/support/fake_egl.h"
#include "tests/support/recording_driver.h"

/// A renderer over a recording driver and an EGL without a window system, brought back to its state
/// at start after each test.
class RenderTest : public ::testing::Test {
 protected:
  using Lines = std::vector<std::string>;

  RenderTest();
  ~RenderTest() override;

  /// Binds a target of this size and forgets the calls so far.
  void bind(int width = 100, int height = 100, bool depthBuffer = true, int hints = 0);
  /// Releases and binds again, as a next frame does, and forgets the calls.
  void nextFrame();
  /// A camera with an identity projection becomes current.
  boost::shared_ptr<varnel_m3g::Camera> useIdentityCamera();

  /// Ends a test's own interest in the calls so far.
  Lines take() { return driver.take(); }

  RecordingDriver driver;
  FakeEgl egl;
  varnel_m3g::Graphics3D& graphics = varnel_m3g::Graphics3D::getInstance();
  varnel_m3g::WindowSurface target;
};

/// How the recording driver writes 16 floats.
std::string matrixText(const float* matrix);
std::string identityText();
/// The text of the exception that an action ends with, by its exact type; a failure of the test
/// when there is none.
template <class Exception, class Action>
std::string failureOf(Action action) {
  try {
    action();
  } catch (const std::exception& e) {
    EXPECT_EQ(typeid(e), typeid(Exception)) << e.what();
    return e.what();
  }
  ADD_FAILURE() << "nothing was thrown";
  return std::string();
}

#endif
