#ifndef VARNEL_TESTS_EGL_SHIM_SHIM_FIXTURE_H
#define VARNEL_TESTS_EGL_SHIM_SHIM_FIXTURE_H

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gtest/gtest.h>

#include <vector>

#include "egl/shim/shim.h"
#include "tests/support/fake_egl_backend.h"

extern "C" EGLBoolean EGLAPIENTRY eglLockSurfaceKHR(EGLDisplay, EGLSurface, const EGLint*);
extern "C" EGLBoolean EGLAPIENTRY eglUnlockSurfaceKHR(EGLDisplay, EGLSurface);

/// The shim on an EGL of the tests' own, initialised on the test's thread.
class Shim : public testing::Test {
 protected:
  void SetUp() override {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
    EGLint count = 0;
    EGLConfig handles[16];
    ASSERT_TRUE(eglGetConfigs(display, handles, 16, &count));
    configs.assign(handles, handles + count);
    ASSERT_EQ(configs.size(), backend.configs.size() + 2);
    plain = configs[1];
    lockable565 = configs[3];
    lockable8888 = configs[4];
  }
  void TearDown() override { eglTerminate(display); }

  EGLint attribute(EGLConfig config, EGLint name) {
    EGLint value = -12345;
    EXPECT_TRUE(eglGetConfigAttrib(display, config, name, &value)) << std::hex << name;
    return value;
  }
  EGLint query(EGLSurface surface, EGLint name) {
    EGLint value = -12345;
    EXPECT_TRUE(eglQuerySurface(display, surface, name, &value)) << std::hex << name;
    return value;
  }
  EGLSurface window(EGLConfig config, const EGLint* attributes = nullptr) {
    return eglCreateWindowSurface(display, config, EGLNativeWindowType(5), attributes);
  }
  std::vector<EGLConfig> choose(const std::vector<EGLint>& attributes) {
    EGLConfig handles[16];
    EGLint count = -1;
    eglChooseConfig(display, attributes.data(), handles, 16, &count);
    return std::vector<EGLConfig>(handles, handles + count);
  }

  FakeEglBackend backend;
  EGLDisplay display = EGL_NO_DISPLAY;
  std::vector<EGLConfig> configs;
  EGLConfig plain = nullptr;
  EGLConfig lockable565 = nullptr;
  EGLConfig lockable8888 = nullptr;
};

#endif
