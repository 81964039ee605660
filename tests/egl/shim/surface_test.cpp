// The shim's surfaces: their creation, queries, locks and bitmaps.
#include "tests/egl/shim/shim_fixture.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

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

TEST(RoundUpToPowerOfTwo, Numbers) {
  const unsigned rows[][2] = {{0, 1},     {1, 1},      {2, 2},         {3, 4},
                              {4, 4},     {5, 8},      {100, 128},     {128, 128},
                              {129, 256}, {640, 1024}, {65537, 131072}};
  for (const auto& row : rows) {
    EXPECT_EQ(roundUpToPowerOfTwo(row[0]), row[1]) << row[0];
  }
}

}  // namespace
