// The shim alone, on an EGL of the tests' own: what it answers itself, what it forwards, its
// threads' records.
#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

#include "egl/shim/shim.h"
#include "tests/support/fake_egl_backend.h"

extern "C" EGLBoolean eglLockSurfaceKHR(EGLDisplay, EGLSurface, const EGLint*);
extern "C" EGLBoolean eglUnlockSurfaceKHR(EGLDisplay, EGLSurface);

namespace {

using testing::Test;

class Shim : public Test {
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

TEST_F(Shim, TheListHoldsTheBackEndsConfigsThenTheLockableOnes) {
  EXPECT_EQ(attribute(configs[0], EGL_SURFACE_TYPE), EGL_PBUFFER_BIT);
  EXPECT_EQ(attribute(configs[1], EGL_RED_SIZE), 8);
  EXPECT_EQ(attribute(configs[2], EGL_RED_SIZE), 5);
  EXPECT_EQ(attribute(configs[3], EGL_MATCH_FORMAT_KHR), EGL_FORMAT_RGB_565_EXACT_KHR);
  EXPECT_EQ(attribute(configs[4], EGL_MATCH_FORMAT_KHR), EGL_FORMAT_RGBA_8888_KHR);
  EXPECT_EQ(attribute(configs[0], EGL_MATCH_FORMAT_KHR), EGL_NONE);
}

TEST_F(Shim, The565EntryPrefersSixBitsOfGreen) {
  // The first match is an 8888 one; the third configuration has the six bits.
  EXPECT_EQ(attribute(lockable565, EGL_SURFACE_TYPE), EGL_WINDOW_BIT | 0x180);
  const ShimConfig* config = static_cast<const ShimConfig*>(lockable565);
  EXPECT_EQ(config->backendConfig, reinterpret_cast<EGLConfig>(3));
}

TEST_F(Shim, LockableEntriesWithoutABackEndConfig) {
  eglTerminate(display);
  backend.configs = {{EGL_WINDOW_BIT, 4, 4, 4, 4, 1}};
  EXPECT_TRUE(eglInitialize(display, nullptr, nullptr));
  EGLConfig handles[16];
  EGLint count = 0;
  EXPECT_TRUE(eglGetConfigs(display, handles, 16, &count));
  // The 8888 record is dropped, the 565 one stands without a back-end configuration.
  ASSERT_EQ(count, 2);
  EXPECT_EQ(static_cast<const ShimConfig*>(handles[1])->backendConfig, nullptr);
  EXPECT_EQ(attribute(handles[1], EGL_GREEN_SIZE), 6);
  EXPECT_EQ(eglCreateContext(display, handles[1], EGL_NO_CONTEXT, nullptr) == EGL_NO_CONTEXT,
            false);
}

TEST_F(Shim, GetConfigsCountsOrCopies) {
  EGLint count = 0;
  EXPECT_FALSE(eglGetConfigs(display, nullptr, 0, nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_TRUE(eglGetConfigs(display, nullptr, 2, &count));
  EXPECT_EQ(count, 5);
  EGLConfig handles[3] = {nullptr, nullptr, nullptr};
  EXPECT_TRUE(eglGetConfigs(display, handles, 2, &count));
  EXPECT_EQ(count, 2);
  EXPECT_EQ(handles[1], configs[1]);
  EXPECT_EQ(handles[2], nullptr);
}

TEST_F(Shim, ConfigAttributes) {
  struct Row {
    EGLint attribute, plain, rgb565, rgba8888;
  };
  const Row rows[] = {
      {EGL_BUFFER_SIZE, 0, 16, 32},
      {EGL_RED_SIZE, 8, 5, 8},
      {EGL_GREEN_SIZE, 8, 6, 8},
      {EGL_BLUE_SIZE, 8, 5, 8},
      {EGL_ALPHA_SIZE, 8, 0, 8},
      {EGL_SURFACE_TYPE, 4, 0x184, 0x181},
      {EGL_BIND_TO_TEXTURE_RGB, 0, 0, 0},
      {EGL_BIND_TO_TEXTURE_RGBA, 0, 0, 0},
      {EGL_LUMINANCE_SIZE, 0, 0, 0},
      {EGL_ALPHA_MASK_SIZE, 0, 0, 0},
      {EGL_MIN_SWAP_INTERVAL, 1, 1, 1},
      {EGL_MAX_SWAP_INTERVAL, 1, 1, 1},
      {EGL_COLOR_BUFFER_TYPE, EGL_RGB_BUFFER, EGL_RGB_BUFFER, EGL_RGB_BUFFER},
      {EGL_RENDERABLE_TYPE, 5, 0, 0},
      {EGL_CONFORMANT, 0, 0, 0},
      {EGL_MATCH_FORMAT_KHR, EGL_NONE, EGL_FORMAT_RGB_565_EXACT_KHR, EGL_FORMAT_RGBA_8888_KHR},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(attribute(plain, row.attribute), row.plain) << std::hex << row.attribute;
    EXPECT_EQ(attribute(lockable565, row.attribute), row.rgb565) << std::hex << row.attribute;
    EXPECT_EQ(attribute(lockable8888, row.attribute), row.rgba8888) << std::hex << row.attribute;
  }
  for (EGLConfig config : configs) {
    EXPECT_EQ(attribute(config, EGL_CONFIG_ID),
              static_cast<EGLint>(reinterpret_cast<std::uintptr_t>(config) & 0xFFFFFFFF));
  }
}

TEST_F(Shim, ARenderableTypeWithoutAnswerIsOne) {
  backend.failingCall = "getConfigAttrib";
  backend.failingError = EGL_BAD_ATTRIBUTE;
  EXPECT_EQ(attribute(plain, EGL_RENDERABLE_TYPE), 1);
  EXPECT_EQ(attribute(plain, EGL_CONFORMANT), 1);
}

TEST_F(Shim, ConfigAttributeFailures) {
  EGLint value = 0;
  EXPECT_FALSE(eglGetConfigAttrib(display, plain, EGL_RED_SIZE, nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_FALSE(eglGetConfigAttrib(display, plain, EGL_MATCH_NATIVE_PIXMAP, &value));
  EXPECT_EQ(eglGetError(), EGL_BAD_ATTRIBUTE);
  int foreign = 0;
  EXPECT_FALSE(eglGetConfigAttrib(display, &foreign, EGL_RED_SIZE, &value));
  EXPECT_EQ(eglGetError(), EGL_BAD_CONFIG);
}

TEST_F(Shim, ChooseTestsEachPair) {
  using List = std::vector<EGLConfig>;
  EXPECT_EQ(choose({EGL_NONE}), configs);
  EXPECT_EQ(choose({EGL_RED_SIZE, 8, EGL_NONE}), (List{configs[0], configs[1], lockable8888}));
  EXPECT_EQ(choose({EGL_GREEN_SIZE, 6, EGL_ALPHA_SIZE, -1, EGL_NONE}), configs);
  EXPECT_EQ(choose({EGL_SURFACE_TYPE, EGL_LOCK_SURFACE_BIT_KHR, EGL_NONE}),
            (List{lockable565, lockable8888}));
  EXPECT_EQ(choose({EGL_RENDERABLE_TYPE, 1, EGL_SURFACE_TYPE, 4, EGL_NONE}),
            (List{configs[1], configs[2]}));
  EXPECT_EQ(choose({EGL_MATCH_FORMAT_KHR, EGL_FORMAT_RGB_565_EXACT_KHR, EGL_NONE}),
            List{lockable565});
  EXPECT_EQ(choose({EGL_MATCH_FORMAT_KHR, EGL_FORMAT_RGB_565_KHR, EGL_NONE}), List{});
  EXPECT_EQ(choose({EGL_CONFIG_ID, attribute(plain, EGL_CONFIG_ID), EGL_NONE}), List{plain});
  EXPECT_EQ(choose({EGL_MAX_PBUFFER_WIDTH, 99999, EGL_NATIVE_VISUAL_ID, 5, EGL_NONE}), configs);
  EXPECT_EQ(choose({EGL_COLOR_BUFFER_TYPE, EGL_LUMINANCE_BUFFER, EGL_NONE}), List{});
}

TEST_F(Shim, ChooseCountsAllOrStopsAtTheRoom) {
  EGLint count = 0;
  EXPECT_FALSE(eglChooseConfig(display, nullptr, nullptr, 0, nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_TRUE(eglChooseConfig(display, nullptr, nullptr, 1, &count));
  EXPECT_EQ(count, 5);
  EGLConfig one[2] = {nullptr, nullptr};
  EXPECT_TRUE(eglChooseConfig(display, nullptr, one, 1, &count));
  EXPECT_EQ(count, 1);
  EXPECT_EQ(one[0], configs[0]);
  EXPECT_EQ(one[1], nullptr);
}

TEST_F(Shim, ChooseByANativePixmapFindsNothing) {
  EGLint count = -1;
  EGLConfig handles[16];
  const EGLint attributes[] = {EGL_MATCH_NATIVE_PIXMAP, 3, EGL_NONE};
  EXPECT_TRUE(eglChooseConfig(display, attributes, handles, 16, &count));
  EXPECT_EQ(count, 0);
}

TEST_F(Shim, ChooseByAnUnknownAttributeFails) {
  EGLint count = -1;
  EGLConfig handles[16];
  const EGLint attributes[] = {EGL_WIDTH, 3, EGL_NONE};
  EXPECT_FALSE(eglChooseConfig(display, attributes, handles, 16, &count));
  EXPECT_EQ(count, 0);
  EXPECT_EQ(eglGetError(), EGL_BAD_ATTRIBUTE);
}

TEST_F(Shim, AWindowSurfaceIgnoresWhatItCannotUse) {
  const EGLint ignored[] = {EGL_VG_COLORSPACE,
                            EGL_COLORSPACE_sRGB,
                            EGL_TEXTURE_FORMAT,
                            EGL_TEXTURE_RGB,
                            EGL_TEXTURE_TARGET,
                            EGL_TEXTURE_2D,
                            EGL_MIPMAP_TEXTURE,
                            1,
                            EGL_MIPMAP_LEVEL,
                            1,
                            EGL_RENDER_BUFFER,
                            EGL_SINGLE_BUFFER,
                            EGL_VG_ALPHA_FORMAT,
                            EGL_ALPHA_FORMAT_PRE,
                            EGL_PIXEL_ASPECT_RATIO,
                            1,
                            EGL_SWAP_BEHAVIOR,
                            EGL_BUFFER_DESTROYED,
                            EGL_HORIZONTAL_RESOLUTION,
                            1,
                            EGL_VERTICAL_RESOLUTION,
                            1,
                            EGL_NONE};
  EXPECT_NE(window(plain, ignored), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_SUCCESS);
  EXPECT_TRUE(backend.lastAttributes.empty());
}

TEST_F(Shim, AnUnknownSurfaceAttributeIsRefused) {
  const EGLint refused[] = {EGL_BACK_BUFFER, 1, EGL_NONE};
  EXPECT_EQ(window(plain, refused), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
  EXPECT_EQ(backend.countOf("createWindowSurface"), 0);
}

TEST_F(Shim, APbuffersSizeIsPassedOn) {
  const EGLint attributes[] = {EGL_WIDTH,           5, EGL_SWAP_BEHAVIOR, 1, EGL_HEIGHT, 6,
                               EGL_LARGEST_PBUFFER, 1, EGL_NONE};
  EXPECT_NE(eglCreatePbufferSurface(display, configs[0], attributes), EGL_NO_SURFACE);
  EXPECT_EQ(backend.lastAttributes,
            (std::vector<EGLint>{EGL_WIDTH, 5, EGL_HEIGHT, 6, EGL_LARGEST_PBUFFER, 1}));
}

TEST_F(Shim, OnlyAFailedWindowSurfaceIsNoSurface) {
  backend.nextError = EGL_BAD_ALLOC;
  EXPECT_EQ(window(plain), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);
  EGLSurface pbuffer = eglCreatePbufferSurface(display, configs[0], nullptr);
  EXPECT_NE(pbuffer, EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);
  EXPECT_NE(eglCreatePixmapSurface(display, configs[0], EGLNativePixmapType(3), nullptr),
            EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);
  backend.nextError = EGL_SUCCESS;
}

TEST_F(Shim, HandlesThatAreNotItsOwnAreRefused) {
  int foreign[64] = {};
  EXPECT_EQ(window(&foreign), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_CONFIG);
  EXPECT_EQ(eglCreateContext(display, &foreign, EGL_NO_CONTEXT, nullptr), EGL_NO_CONTEXT);
  EXPECT_EQ(eglGetError(), EGL_BAD_CONFIG);
  EXPECT_FALSE(eglLockSurfaceKHR(display, &foreign, nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
  EXPECT_FALSE(eglUnlockSurfaceKHR(display, &foreign));
  EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE);
}

TEST_F(Shim, NullSurfacesAreABadParameter) {
  EGLint value = 0;
  const auto expectRefused = [](EGLBoolean done) {
    EXPECT_FALSE(done);
    EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
    eglWaitGL();
  };
  expectRefused(eglDestroySurface(display, EGL_NO_SURFACE));
  expectRefused(eglQuerySurface(display, EGL_NO_SURFACE, EGL_WIDTH, &value));
  expectRefused(eglQuerySurface(display, window(plain), EGL_WIDTH, nullptr));
  expectRefused(eglSurfaceAttrib(display, EGL_NO_SURFACE, EGL_MIPMAP_LEVEL, 0));
  expectRefused(eglBindTexImage(display, EGL_NO_SURFACE, EGL_BACK_BUFFER));
  expectRefused(eglReleaseTexImage(display, EGL_NO_SURFACE, EGL_BACK_BUFFER));
  expectRefused(eglSwapBuffers(display, EGL_NO_SURFACE));
  expectRefused(eglCopyBuffers(display, EGL_NO_SURFACE, EGLNativePixmapType(1)));
  expectRefused(eglLockSurfaceKHR(display, EGL_NO_SURFACE, nullptr));
  expectRefused(eglUnlockSurfaceKHR(display, EGL_NO_SURFACE));
  EXPECT_EQ(eglCreatePbufferFromClientBuffer(display, 0, nullptr, plain, nullptr), EGL_NO_SURFACE);
  EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
}

TEST_F(Shim, SurfaceQueries) {
  EGLSurface s565 = window(lockable565);
  EGLSurface s8888 = window(lockable8888);
  struct Row {
    EGLint attribute, rgb565, rgba8888;
  };
  const Row rows[] = {
      {EGL_RENDER_BUFFER, EGL_BACK_BUFFER, EGL_BACK_BUFFER},
      {EGL_VG_COLORSPACE, EGL_COLORSPACE_LINEAR, EGL_COLORSPACE_LINEAR},
      {EGL_VG_ALPHA_FORMAT, EGL_ALPHA_FORMAT_NONPRE, EGL_ALPHA_FORMAT_NONPRE},
      {EGL_HORIZONTAL_RESOLUTION, -1, -1},
      {EGL_VERTICAL_RESOLUTION, -1, -1},
      {EGL_PIXEL_ASPECT_RATIO, 10000, 10000},
      {EGL_SWAP_BEHAVIOR, EGL_BUFFER_PRESERVED, EGL_BUFFER_PRESERVED},
      {EGL_BITMAP_ORIGIN_KHR, EGL_UPPER_LEFT_KHR, EGL_UPPER_LEFT_KHR},
      {EGL_BITMAP_PIXEL_RED_OFFSET_KHR, 11, 0},
      {EGL_BITMAP_PIXEL_GREEN_OFFSET_KHR, 5, 8},
      {EGL_BITMAP_PIXEL_BLUE_OFFSET_KHR, 0, 16},
      {EGL_BITMAP_PIXEL_ALPHA_OFFSET_KHR, 0, 24},
      {EGL_BITMAP_PIXEL_LUMINANCE_OFFSET_KHR, 0, 0},
      {EGL_TEXTURE_FORMAT, -12345, -12345},
      {EGL_TEXTURE_TARGET, -12345, -12345},
      {EGL_MIPMAP_TEXTURE, -12345, -12345},
      {EGL_MIPMAP_LEVEL, -12345, -12345},
      {EGL_WIDTH, 100, 100},
      {EGL_LARGEST_PBUFFER, 4711, 4711},
      {EGL_CONFIG_ID, attribute(lockable565, EGL_CONFIG_ID),
       attribute(lockable8888, EGL_CONFIG_ID)},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(query(s565, row.attribute), row.rgb565) << std::hex << row.attribute;
    EXPECT_EQ(query(s8888, row.attribute), row.rgba8888) << std::hex << row.attribute;
  }
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

TEST_F(Shim, LockingTwiceIsRefusedAndSoIsUnlockingTwice) {
  EGLSurface surface = window(lockable8888);
  EXPECT_FALSE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_FALSE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_FALSE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
}

TEST_F(Shim, OnlyLockableSurfacesThatAreNotCurrentCanBeLocked) {
  EXPECT_FALSE(eglLockSurfaceKHR(display, window(plain), nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
  EGLSurface surface = window(lockable565);
  EGLContext context = eglCreateContext(display, lockable565, EGL_NO_CONTEXT, nullptr);
  EXPECT_TRUE(eglMakeCurrent(display, surface, surface, context));
  EXPECT_FALSE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
  EXPECT_TRUE(eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_FALSE(eglMakeCurrent(display, surface, surface, context));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
}

TEST_F(Shim, UnlockingWithoutABitmapDrawsNothing) {
  EGLSurface surface = window(lockable8888);
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  backend.calls.clear();
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_TRUE(backend.calls.empty());
}

TEST_F(Shim, AMappedSurfaceOf100By50In565) {
  EGLSurface surface = window(lockable565);
  EGLint value = 0;
  EXPECT_FALSE(eglQuerySurface(display, surface, EGL_BITMAP_PITCH_KHR, &value));
  EXPECT_EQ(eglGetError(), EGL_BAD_ACCESS);
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_EQ(query(surface, EGL_BITMAP_PITCH_KHR), 256);
  const auto* record = static_cast<const ShimSurface*>(surface);
  EXPECT_EQ(record->bitmapSize, 128 * 64 * 2);
  const auto address = static_cast<std::uint32_t>(query(surface, EGL_BITMAP_POINTER_KHR));
  auto* bitmap = reinterpret_cast<unsigned char*>(static_cast<std::uintptr_t>(address));
  EXPECT_EQ(bitmap, record->bitmap);
  std::memset(bitmap, 0xA5, 128 * 64 * 2);
}

TEST_F(Shim, TheBlockIsUsedAgainAndGrowsWhenNeeded) {
  EGLSurface surface = window(lockable8888);
  backend.failingCall = "makeCurrent";
  backend.failingError = EGL_BAD_SURFACE;
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  const EGLint first = query(surface, EGL_BITMAP_POINTER_KHR);
  EXPECT_EQ(query(surface, EGL_BITMAP_PITCH_KHR), 512);
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  backend.surfaceWidth = 30;
  EXPECT_EQ(query(surface, EGL_BITMAP_POINTER_KHR), first);
  EXPECT_EQ(query(surface, EGL_BITMAP_PITCH_KHR), 128);
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  backend.surfaceWidth = 4000;
  EXPECT_EQ(query(surface, EGL_BITMAP_PITCH_KHR), 4096 * 4);
  EXPECT_EQ(static_cast<const ShimSurface*>(surface)->bitmapSize, 4096 * 64 * 4);
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
}

TEST_F(Shim, ABitmapTooLargeForItsFieldIsRefused) {
  EGLSurface surface = window(lockable8888);
  backend.surfaceWidth = 32768;
  backend.surfaceHeight = 32768;
  EXPECT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  EGLint value = 0;
  EXPECT_FALSE(eglQuerySurface(display, surface, EGL_BITMAP_POINTER_KHR, &value));
  EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
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

TEST_F(Shim, EachLockableSurfaceReplacesTheLockContext) {
  EXPECT_EQ(backend.liveContexts, 0);
  window(lockable565);
  EXPECT_EQ(backend.liveContexts, 1);
  window(lockable565);
  EXPECT_EQ(backend.liveContexts, 1);
  window(plain);
  EXPECT_EQ(backend.liveContexts, 1);
  window(lockable8888);
  EXPECT_EQ(backend.liveContexts, 2);
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

TEST(RoundUpToPowerOfTwo, Numbers) {
  const unsigned rows[][2] = {{0, 1},     {1, 1},      {2, 2},         {3, 4},
                              {4, 4},     {5, 8},      {100, 128},     {128, 128},
                              {129, 256}, {640, 1024}, {65537, 131072}};
  for (const auto& row : rows) {
    EXPECT_EQ(roundUpToPowerOfTwo(row[0]), row[1]) << row[0];
  }
}

}  // namespace
