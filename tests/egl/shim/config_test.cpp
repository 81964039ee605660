// The shim's list of configurations, their attributes and the choice among them.
#include "tests/egl/shim/shim_fixture.h"

#include <cstdint>
#include <vector>

namespace {

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

}  // namespace
