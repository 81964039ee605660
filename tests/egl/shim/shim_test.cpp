// What the shim answers itself, what it forwards, and its threads' records.
#include "tests/egl/shim/shim_fixture.h"

#include <thread>
#include <vector>

namespace {

TEST(ShimWithoutRecord, AnswersNotInitialized) {
  FakeEglBackend backend;
  std::thread([] {
    EXPECT_EQ(eglGetError(), EGL_NOT_INITIALIZED);
    EGLint count = 0;
    EXPECT_FALSE(eglGetConfigs(EGL_NO_DISPLAY, nullptr, 0, &count));
    EXPECT_FALSE(eglChooseConfig(EGL_NO_DISPLAY, nullptr, nullptr, 0, &count));
    EXPECT_EQ(eglGetError(), EGL_NOT_INITIALIZED);
    EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), EGL_NO_SURFACE);
    EXPECT_EQ(eglGetDisplay(EGL_DEFAULT_DISPLAY), reinterpret_cast<EGLDisplay>(1));
    EXPECT_EQ(eglGetError(), EGL_SUCCESS);
  }).join();
}

TEST_F(Shim, AnErrorStaysUntilTheNextForwardedCall) {
  EXPECT_FALSE(eglBindAPI(EGL_OPENGL_API));
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_TRUE(eglBindAPI(EGL_OPENGL_ES_API));
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_TRUE(eglWaitGL());
  EXPECT_EQ(eglGetError(), EGL_SUCCESS);
}

TEST_F(Shim, ForwardedErrorsAreTheBackEnds) {
  backend.nextError = EGL_CONTEXT_LOST;
  EXPECT_FALSE(eglWaitClient());
  EXPECT_EQ(eglGetError(), EGL_CONTEXT_LOST);
  backend.nextError = EGL_SUCCESS;
}

TEST_F(Shim, OnlyEsIsAnApi) {
  EXPECT_FALSE(eglBindAPI(EGL_OPENGL_API));
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_FALSE(eglBindAPI(EGL_OPENVG_API));
  EXPECT_TRUE(eglBindAPI(EGL_OPENGL_ES_API));
  EXPECT_EQ(eglQueryAPI(), static_cast<EGLenum>(EGL_OPENGL_ES_API));
}

TEST_F(Shim, StringsAreItsOwn) {
  EXPECT_STREQ(eglQueryString(display, EGL_VENDOR), "Tolvane");
  EXPECT_STREQ(eglQueryString(display, EGL_VERSION), "1.3 Tolvane EGL wrapper");
  EXPECT_STREQ(eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS), "EGL_KHR_lock_surface");
  EXPECT_STREQ(eglQueryString(display, EGL_CLIENT_APIS), "OpenGL_ES");
  EXPECT_EQ(backend.countOf("queryString"), 0);
}

TEST_F(Shim, AnUnknownStringLeavesTheErrorAlone) {
  EXPECT_EQ(eglQueryString(display, 0), nullptr);
  EXPECT_EQ(eglGetError(), EGL_SUCCESS);
  eglBindAPI(EGL_OPENVG_API);
  EXPECT_EQ(eglQueryString(display, 0), nullptr);
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
}

TEST_F(Shim, InitializeAnswersItsOwnVersionWhateverTheBackEndSays) {
  EGLint major = 0;
  EGLint minor = 0;
  EXPECT_TRUE(eglInitialize(display, &major, &minor));
  EXPECT_EQ(major, 1);
  EXPECT_EQ(minor, 3);
  backend.nextError = EGL_NOT_INITIALIZED;
  major = minor = 0;
  EXPECT_FALSE(eglInitialize(display, &major, &minor));
  backend.nextError = EGL_SUCCESS;
  EXPECT_EQ(major, 1);
  EXPECT_EQ(minor, 3);
}

TEST_F(Shim, ASecondInitializeKeepsTheList) {
  EXPECT_TRUE(eglInitialize(display, nullptr, nullptr));
  EGLConfig handles[16];
  EGLint count = 0;
  EXPECT_TRUE(eglGetConfigs(display, handles, 16, &count));
  EXPECT_EQ(std::vector<EGLConfig>(handles, handles + count), configs);
}

TEST_F(Shim, AFailedInitializeLeavesRoomForALaterOne) {
  eglTerminate(display);
  backend.nextError = EGL_NOT_INITIALIZED;
  EXPECT_FALSE(eglInitialize(display, nullptr, nullptr));
  EXPECT_EQ(eglGetError(), EGL_NOT_INITIALIZED);
  backend.nextError = EGL_SUCCESS;
  EXPECT_TRUE(eglInitialize(display, nullptr, nullptr));
  EGLint count = 0;
  EXPECT_TRUE(eglGetConfigs(display, nullptr, 0, &count));
  EXPECT_EQ(count, 5);
}

TEST_F(Shim, ContextQueriesAndTheDroppedVersion) {
  const EGLint version2[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
  EGLContext context = eglCreateContext(display, plain, EGL_NO_CONTEXT, version2);
  ASSERT_NE(context, EGL_NO_CONTEXT);
  EXPECT_TRUE(backend.lastAttributes.empty());
  const EGLint rows[][2] = {{EGL_RENDER_BUFFER, EGL_BACK_BUFFER},
                            {EGL_CONTEXT_CLIENT_TYPE, EGL_OPENGL_ES_API},
                            {EGL_CONTEXT_CLIENT_VERSION, 1},
                            {EGL_CONFIG_ID, 4712}};
  for (const auto& row : rows) {
    EGLint value = 0;
    EXPECT_TRUE(eglQueryContext(display, context, row[0], &value));
    EXPECT_EQ(value, row[1]);
  }
}

TEST_F(Shim, CurrentSurfacesAreThoseOfMakeCurrent) {
  EGLSurface draw = window(plain);
  EGLSurface read = window(plain);
  EGLContext context = eglCreateContext(display, plain, EGL_NO_CONTEXT, nullptr);
  EXPECT_TRUE(eglMakeCurrent(display, draw, read, context));
  EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), draw);
  EXPECT_EQ(eglGetCurrentSurface(EGL_READ), read);
  EXPECT_EQ(eglGetCurrentContext(), context);
  EXPECT_EQ(eglGetCurrentDisplay(), display);
  EXPECT_EQ(eglGetCurrentSurface(EGL_WIDTH), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  backend.nextError = EGL_BAD_ACCESS;
  EXPECT_FALSE(eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
  EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), draw);
  backend.nextError = EGL_SUCCESS;
  EXPECT_TRUE(eglDestroySurface(display, draw));
  EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetCurrentSurface(EGL_READ), read);
}

TEST_F(Shim, ProcAddressesOfTheLockAreItsOwn) {
  using Function = __eglMustCastToProperFunctionPointerType;
  EXPECT_EQ(eglGetProcAddress("eglLockSurfaceKHR"), reinterpret_cast<Function>(eglLockSurfaceKHR));
  EXPECT_EQ(eglGetProcAddress("eglUnlockSurfaceKHR"),
            reinterpret_cast<Function>(eglUnlockSurfaceKHR));
  EXPECT_EQ(backend.countOf("getProcAddress"), 0);
  EXPECT_EQ(eglGetProcAddress("eglLockSurface"), nullptr);
  EXPECT_EQ(eglGetProcAddress("eglLockSurfaceKHRx"), nullptr);
  EXPECT_EQ(backend.countOf("getProcAddress"), 2);
  EXPECT_EQ(eglGetProcAddress(nullptr), nullptr);
  EXPECT_EQ(backend.countOf("getProcAddress"), 2);
}

TEST_F(Shim, TerminateFreesTheRecordAndTheLockContexts) {
  EGLSurface surface = window(lockable565);
  EXPECT_TRUE(eglTerminate(display));
  EXPECT_EQ(backend.liveContexts, 0);
  EXPECT_EQ(eglGetError(), EGL_NOT_INITIALIZED);
  EXPECT_EQ(findShimSurface(surface), nullptr);
}

TEST_F(Shim, ReleaseThreadDoesNothing) {
  eglBindAPI(EGL_OPENVG_API);
  backend.calls.clear();
  EXPECT_TRUE(eglReleaseThread());
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_TRUE(backend.calls.empty());
}

TEST_F(Shim, BothClientWaitsAreOne) {
  backend.calls.clear();
  EXPECT_TRUE(eglWaitClient());
  EXPECT_TRUE(eglWaitGL());
  EXPECT_EQ(backend.countOf("waitClient"), 2);
  EXPECT_TRUE(eglWaitNative(EGL_CORE_NATIVE_ENGINE));
  EXPECT_EQ(backend.countOf("waitNative"), 1);
}

TEST_F(Shim, ThreadsHaveErrorsListsAndCurrentSurfacesOfTheirOwn) {
  eglBindAPI(EGL_OPENVG_API);
  EGLSurface surface = window(plain);
  EGLContext context = eglCreateContext(display, plain, EGL_NO_CONTEXT, nullptr);
  EXPECT_TRUE(eglMakeCurrent(display, surface, surface, context));
  eglBindAPI(EGL_OPENVG_API);
  std::thread([&] {
    EXPECT_EQ(eglGetError(), EGL_NOT_INITIALIZED);
    EXPECT_EQ(eglGetDisplay(EGL_DEFAULT_DISPLAY), display);
    EXPECT_EQ(eglGetError(), EGL_SUCCESS);
    EXPECT_TRUE(eglInitialize(display, nullptr, nullptr));
    EGLint value = 0;
    EXPECT_FALSE(eglGetConfigAttrib(display, plain, EGL_RED_SIZE, &value));
    EXPECT_EQ(eglGetError(), EGL_BAD_CONFIG);
    EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), EGL_NO_SURFACE);
    EGLConfig own[16];
    EGLint count = 0;
    EXPECT_TRUE(eglGetConfigs(display, own, 16, &count));
    EXPECT_EQ(count, 5);
    EXPECT_NE(own[0], configs[0]);
  }).join();
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), surface);
}

TEST_F(Shim, AThreadsRecordGoesWithIt) {
  EGLSurface surface = EGL_NO_SURFACE;
  std::thread([&] {
    EXPECT_TRUE(eglInitialize(display, nullptr, nullptr));
    EGLConfig own[16];
    EGLint count = 0;
    EXPECT_TRUE(eglGetConfigs(display, own, 16, &count));
    surface = window(own[4]);
    EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
    EXPECT_EQ(query(surface, EGL_BITMAP_PITCH_KHR), 512);
    EXPECT_EQ(backend.liveContexts, 1);
  }).join();
  EXPECT_EQ(backend.liveContexts, 0);
  // The surface itself is nobody's alone: it stays, and no longer knows how to be drawn.
  EXPECT_EQ(query(surface, EGL_WIDTH), 100);
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_FALSE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
  EXPECT_TRUE(eglDestroySurface(display, surface));
}

TEST_F(Shim, AThreadThatEndsReleasesWhatItHadCurrent) {
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
  std::thread([&] {
    EXPECT_TRUE(eglInitialize(display, nullptr, nullptr));
    EGLConfig own[16];
    EGLint count = 0;
    EXPECT_TRUE(eglGetConfigs(display, own, 16, &count));
    surface = window(own[1]);
    context = eglCreateContext(display, own[1], EGL_NO_CONTEXT, nullptr);
    EXPECT_TRUE(eglMakeCurrent(display, surface, surface, context));
  }).join();
  EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
  EXPECT_TRUE(eglMakeCurrent(display, surface, surface, context));
  // One that has nothing current releases nothing.
  std::thread([&] { EXPECT_EQ(eglGetDisplay(EGL_DEFAULT_DISPLAY), display); }).join();
  EXPECT_EQ(eglGetCurrentContext(), context);
}

TEST_F(Shim, ThreadsSideBySideDoNotMeet) {
  const auto work = [&](EGLint api, EGLint expected) {
    EXPECT_EQ(eglGetDisplay(EGL_DEFAULT_DISPLAY), display);
    for (int i = 0; i < 200; ++i) {
      EXPECT_TRUE(eglInitialize(display, nullptr, nullptr));
      eglBindAPI(static_cast<EGLenum>(api));
      EXPECT_EQ(eglGetError(), expected);
      EGLConfig own[16];
      EGLint count = 0;
      EXPECT_TRUE(eglGetConfigs(display, own, 16, &count));
      EXPECT_EQ(count, 5);
      EXPECT_NE(eglCreatePbufferSurface(display, own[0], nullptr), EGL_NO_SURFACE);
    }
  };
  std::thread first(work, EGL_OPENVG_API, EGL_BAD_PARAMETER);
  std::thread second(work, EGL_OPENGL_ES_API, EGL_SUCCESS);
  first.join();
  second.join();
}

}  // namespace
