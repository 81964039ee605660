// The back end itself, called as the shim calls it, on the real window system.
#include <gtest/gtest.h>

#include <GLES/gl.h>

#include <array>
#include <bit>
#include <vector>

#include "egl/backend/egl_backend.h"
#include "egl/backend/egw.h"
#include "tests/support/native_client.h"

namespace {

const EglBackend& egl = eglBackend();

class Backend : public testing::Test {
 protected:
  void SetUp() override {
    display = egl.getDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_TRUE(egl.initialize(display, &major, &minor));
    EGLint count = 0;
    ASSERT_TRUE(egl.getConfigs(display, rows, 10, &count));
    ASSERT_EQ(count, 10);
  }
  void TearDown() override { egl.terminate(display); }

  EGLSurface pbuffer(int row, std::vector<EGLint> more = {}, int width = 8, int height = 4) {
    more.insert(more.end(), {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE});
    return egl.createPbufferSurface(display, rows[row], more.data());
  }
  EGLContext context(int row) {
    return egl.createContext(display, rows[row], EGL_NO_CONTEXT, nullptr);
  }
  EGLint query(EGLSurface surface, EGLint attribute) {
    EGLint value = -12345;
    EXPECT_TRUE(egl.querySurface(display, surface, attribute, &value)) << std::hex << attribute;
    return value;
  }

  EGLDisplay display = EGL_NO_DISPLAY;
  EGLint major = 0;
  EGLint minor = 0;
  EGLConfig rows[10] = {};
};

std::uint32_t pixelAt(int x, int y) {
  std::array<unsigned char, 4> p = {};
  glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, p.data());
  return static_cast<std::uint32_t>(p[0]) << 16 | static_cast<std::uint32_t>(p[1]) << 8 | p[2];
}

void fill(float red, float green, float blue) {
  glClearColor(red, green, blue, 1);
  glClear(GL_COLOR_BUFFER_BIT);
}

TEST_F(Backend, AnswersVersion11) {
  EXPECT_EQ(major, 1);
  EXPECT_EQ(minor, 1);
}

TEST_F(Backend, Strings) {
  EXPECT_STREQ(egl.queryString(display, EGL_VENDOR), "Test implementation");
  EXPECT_STREQ(egl.queryString(display, EGL_VERSION), "1.1 00.00-07");
  EXPECT_STREQ(egl.queryString(display, EGL_EXTENSIONS),
               "EGL_KHR_image EGL_KHR_gl_texture_2D_image");
}

TEST_F(Backend, UnknownAndUninitialisedDisplays) {
  EGLint count = 0;
  EXPECT_FALSE(egl.getConfigs(EGL_NO_DISPLAY, nullptr, 0, &count));
  EXPECT_EQ(egl.getError(), EGL_BAD_DISPLAY);
  int foreign = 0;
  EXPECT_FALSE(egl.getConfigs(&foreign, nullptr, 0, &count));
  EXPECT_EQ(egl.getError(), EGL_BAD_DISPLAY);
  egl.terminate(display);
  EXPECT_FALSE(egl.getConfigs(display, nullptr, 0, &count));
  EXPECT_EQ(egl.getError(), EGL_NOT_INITIALIZED);
  EXPECT_TRUE(egl.initialize(display, nullptr, nullptr));
}

TEST_F(Backend, AnUnknownDisplayIsEnteredAndNeverDereferenced) {
  const auto foreign = reinterpret_cast<EGLDisplay>(std::uintptr_t{0x1237});
  EXPECT_TRUE(egl.initialize(foreign, nullptr, nullptr));
  EGLint count = 0;
  EXPECT_TRUE(egl.getConfigs(foreign, nullptr, 0, &count));
  EXPECT_EQ(count, 10);
  const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
  EXPECT_EQ(egl.createPbufferSurface(foreign, rows[0], size), EGL_NO_SURFACE);
  EXPECT_NE(egl.getError(), EGL_SUCCESS);
  EXPECT_EQ(egl.createWindowSurface(foreign, rows[6], nativeWindow(1), nullptr), EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_NATIVE_WINDOW);
  EXPECT_TRUE(egl.terminate(foreign));
}

TEST_F(Backend, GetConfigsWithASizeOf3Returns3And20Returns10) {
  EGLConfig handles[20] = {};
  EGLint count = 0;
  EXPECT_TRUE(egl.getConfigs(display, handles, 3, &count));
  EXPECT_EQ(count, 3);
  EXPECT_EQ(handles[3], nullptr);
  EXPECT_TRUE(egl.getConfigs(display, handles, 20, &count));
  EXPECT_EQ(count, 10);
  EXPECT_EQ(handles[10], nullptr);
  EXPECT_TRUE(egl.getConfigs(display, nullptr, 0, &count));
  EXPECT_EQ(count, 10);
}

TEST_F(Backend, ChooseWritesAllMatchesWhateverTheSize) {
  EGLConfig handles[10] = {};
  EGLint count = 0;
  EXPECT_TRUE(egl.chooseConfig(display, nullptr, handles, 1, &count));
  EXPECT_EQ(count, 4);
  EXPECT_EQ(handles[3], rows[9]);
  const EGLint both[] = {EGL_SURFACE_TYPE, 6, EGL_NONE};
  EXPECT_TRUE(egl.chooseConfig(display, both, handles, 10, &count));
  EXPECT_EQ(count, 0);
  const EGLint refused[] = {EGL_RENDERABLE_TYPE, 1, EGL_NONE};
  EXPECT_FALSE(egl.chooseConfig(display, refused, handles, 10, &count));
  EXPECT_EQ(egl.getError(), EGL_BAD_ATTRIBUTE);
}

TEST_F(Backend, APbufferNeedsBothSizes) {
  const std::vector<std::vector<EGLint>> lists = {
      {EGL_NONE},
      {EGL_HEIGHT, 4, EGL_NONE},
      {EGL_WIDTH, 4, EGL_NONE},
      {EGL_WIDTH, 0, EGL_HEIGHT, 4, EGL_NONE},
      {EGL_WIDTH, 4, EGL_HEIGHT, -1, EGL_NONE},
      {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_RENDER_BUFFER, EGL_BACK_BUFFER, EGL_NONE},
  };
  for (const auto& list : lists) {
    EXPECT_EQ(egl.createPbufferSurface(display, rows[0], list.data()), EGL_NO_SURFACE);
    EXPECT_EQ(egl.getError(), EGL_BAD_ATTRIBUTE);
  }
  EXPECT_EQ(egl.createPbufferSurface(display, rows[0], nullptr), EGL_NO_SURFACE);
}

TEST_F(Backend, EveryPbufferRowCanBeDrawnTo) {
  for (int row = 0; row < 4; ++row) {
    EGLSurface surface = pbuffer(row);
    ASSERT_NE(surface, EGL_NO_SURFACE) << row;
    EGLContext current = context(row);
    ASSERT_TRUE(egl.makeCurrent(display, surface, surface, current)) << row;
    GLint red = 0;
    GLint depth = 0;
    GLint stencil = 0;
    glGetIntegerv(GL_RED_BITS, &red);
    glGetIntegerv(GL_DEPTH_BITS, &depth);
    glGetIntegerv(GL_STENCIL_BITS, &stencil);
    EXPECT_GE(red, row < 2 ? 8 : 5);
    EXPECT_GE(depth, 24);
    EXPECT_GE(stencil, 8);
    fill(1, 0, 1);
    EXPECT_EQ(pixelAt(7, 3), 0xFF00FFu);
    EXPECT_EQ(query(surface, EGL_CONFIG_ID), row);
    EXPECT_EQ(query(surface, EGL_WIDTH), 8);
    EXPECT_EQ(query(surface, EGL_HEIGHT), 4);
  }
}

TEST_F(Backend, RowsTakeOnlyTheirKindOfSurface) {
  NativeClient client;
  const auto window = client.createWindow(16, 16);
  const auto pixmap = client.createPixmap(4, 4, 24);
  const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
  EXPECT_EQ(egl.createWindowSurface(display, rows[0], nativeWindow(window), nullptr),
            EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  EXPECT_EQ(egl.createPbufferSurface(display, rows[6], size), EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  EXPECT_EQ(egl.createPixmapSurface(display, rows[6], nativePixmap(pixmap), nullptr),
            EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  int foreign = 0;
  EXPECT_EQ(egl.createPbufferSurface(display, &foreign, size), EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_CONFIG);
}

TEST_F(Backend, NativeHandlesAreTested) {
  NativeClient client;
  EXPECT_EQ(egl.createWindowSurface(display, rows[6], nativeWindow(0), nullptr), EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_NATIVE_WINDOW);
  const auto pixmap = client.createPixmap(4, 4, 24);
  EXPECT_EQ(egl.createWindowSurface(display, rows[6], nativeWindow(pixmap), nullptr),
            EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_NATIVE_WINDOW);
  EXPECT_EQ(egl.createPixmapSurface(display, rows[4], nativePixmap(0), nullptr), EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_NATIVE_PIXMAP);
  const auto window = client.createWindow(16, 16);
  EXPECT_EQ(egl.createPixmapSurface(display, rows[4], nativePixmap(window), nullptr),
            EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_NATIVE_PIXMAP);
  const EGLint notEmpty[] = {EGL_WIDTH, 4, EGL_NONE};
  EXPECT_EQ(egl.createPixmapSurface(display, rows[4], nativePixmap(pixmap), notEmpty),
            EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_ATTRIBUTE);
}

TEST_F(Backend, EveryWindowRowShowsItsFrame) {
  NativeClient client;
  for (int row = 6; row < 10; ++row) {
    const auto window = client.createWindow(32, 16);
    EGLSurface surface = egl.createWindowSurface(display, rows[row], nativeWindow(window), nullptr);
    ASSERT_NE(surface, EGL_NO_SURFACE) << row;
    EGLContext current = context(row);
    ASSERT_TRUE(egl.makeCurrent(display, surface, surface, current)) << row;
    fill(0, 0, 1);
    EXPECT_TRUE(egl.swapBuffers(display, surface));
    EXPECT_EQ(client.pixel(window, 5, 5), 0x0000FFu) << row;
    GLint depth = 0;
    glGetIntegerv(GL_DEPTH_BITS, &depth);
    EXPECT_GE(depth, 16) << row;
    EXPECT_TRUE(egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
    EXPECT_TRUE(egl.destroySurface(display, surface));
    EXPECT_TRUE(client.exists(window));
  }
}

TEST_F(Backend, OfAWindowsAttributesOnlyTheRenderBufferIsAccepted) {
  NativeClient client;
  const auto window = nativeWindow(client.createWindow(32, 16));
  const EGLint refused[] = {EGL_WIDTH, 5, EGL_NONE};
  EXPECT_EQ(egl.createWindowSurface(display, rows[6], window, refused), EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_ATTRIBUTE);
  const EGLint wrong[] = {EGL_RENDER_BUFFER, 5, EGL_NONE};
  EXPECT_EQ(egl.createWindowSurface(display, rows[6], window, wrong), EGL_NO_SURFACE);
  EXPECT_EQ(egl.getError(), EGL_BAD_ATTRIBUTE);
  const EGLint single[] = {EGL_RENDER_BUFFER, EGL_SINGLE_BUFFER, EGL_NONE};
  EXPECT_NE(egl.createWindowSurface(display, rows[6], window, single), EGL_NO_SURFACE);
}

TEST_F(Backend, MakeCurrentTestsWhatItIsGiven) {
  EGLSurface surface = pbuffer(0);
  EGLContext current = context(0);
  EXPECT_FALSE(egl.makeCurrent(display, surface, surface, EGL_NO_CONTEXT));
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  EXPECT_FALSE(egl.makeCurrent(display, surface, EGL_NO_SURFACE, current));
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  EXPECT_FALSE(egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, current));
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  EXPECT_FALSE(egl.makeCurrent(display, surface, surface, context(1)));
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  EXPECT_FALSE(egl.makeCurrent(display, surface, pbuffer(2), current));
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  int foreign = 0;
  EXPECT_FALSE(egl.makeCurrent(display, &foreign, surface, current));
  EXPECT_EQ(egl.getError(), EGL_BAD_SURFACE);
  EXPECT_FALSE(egl.makeCurrent(display, surface, surface, &foreign));
  EXPECT_EQ(egl.getError(), EGL_BAD_CONTEXT);
  EXPECT_TRUE(egl.makeCurrent(display, surface, surface, current));
  EXPECT_EQ(egl.getCurrentContext(), current);
  EXPECT_EQ(egl.getCurrentSurface(EGL_DRAW), surface);
  EXPECT_EQ(egl.getCurrentDisplay(), display);
  // A failure leaves what was current.
  EXPECT_FALSE(egl.makeCurrent(display, surface, surface, &foreign));
  EXPECT_EQ(egl.getCurrentContext(), current);
  fill(0, 1, 0);
  EXPECT_EQ(pixelAt(0, 0), 0x00FF00u);
  EXPECT_TRUE(egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
  EXPECT_EQ(egl.getCurrentContext(), EGL_NO_CONTEXT);
}

TEST_F(Backend, SwappingAPbufferSucceedsAndDoesNothing) {
  EGLSurface surface = pbuffer(0);
  EXPECT_TRUE(egl.swapBuffers(display, surface));
  EXPECT_EQ(egl.getError(), EGL_SUCCESS);
  ASSERT_TRUE(egl.makeCurrent(display, surface, surface, context(0)));
  fill(1, 0, 0);
  EXPECT_TRUE(egl.swapBuffers(display, surface));
  EXPECT_EQ(pixelAt(0, 0), 0xFF0000u);
}

TEST_F(Backend, SwappingAnotherSurfaceKeepsTheCurrentOne) {
  NativeClient client;
  const auto window = client.createWindow(16, 16);
  EGLSurface shown = egl.createWindowSurface(display, rows[6], nativeWindow(window), nullptr);
  ASSERT_TRUE(egl.makeCurrent(display, shown, shown, context(6)));
  fill(0, 1, 1);
  EGLSurface other = pbuffer(0);
  ASSERT_TRUE(egl.makeCurrent(display, other, other, context(0)));
  fill(1, 0, 0);
  EXPECT_TRUE(egl.swapBuffers(display, shown));
  EXPECT_EQ(client.pixel(window, 5, 5), 0x00FFFFu);
  EXPECT_EQ(egl.getCurrentSurface(EGL_DRAW), other);
  EXPECT_EQ(pixelAt(0, 0), 0xFF0000u);
}

TEST_F(Backend, DestroyedWhileCurrentASurfaceLivesUntilItIsNot) {
  EGLSurface surface = pbuffer(0);
  EGLContext current = context(0);
  ASSERT_TRUE(egl.makeCurrent(display, surface, surface, current));
  EXPECT_TRUE(egl.destroySurface(display, surface));
  EXPECT_TRUE(egl.destroyContext(display, current));
  fill(0, 1, 0);
  EXPECT_EQ(pixelAt(0, 0), 0x00FF00u);
  EGLint value = 0;
  EXPECT_FALSE(egl.querySurface(display, surface, EGL_WIDTH, &value));
  EXPECT_EQ(egl.getError(), EGL_BAD_SURFACE);
  EXPECT_TRUE(egl.makeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
}

TEST_F(Backend, SurfacesShareTheirObjects) {
  EGLSurface first = pbuffer(0);
  EGLSurface second = pbuffer(0);
  EGLContext current = context(0);
  ASSERT_TRUE(egl.makeCurrent(display, first, first, current));
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  const unsigned char pixel[] = {1, 2, 3, 4};
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
  ASSERT_TRUE(egl.makeCurrent(display, second, second, current));
  EXPECT_TRUE(glIsTexture(texture));
  GLuint other = 0;
  glGenTextures(1, &other);
  EXPECT_NE(other, texture);
}

TEST_F(Backend, TheLargestPbufferIsProcessWide) {
  EGLSurface first = pbuffer(0, {EGL_LARGEST_PBUFFER, 1});
  EXPECT_EQ(query(first, EGL_LARGEST_PBUFFER), 1);
  pbuffer(0, {EGL_LARGEST_PBUFFER, 0});
  EXPECT_EQ(query(first, EGL_LARGEST_PBUFFER), 0);
}

TEST_F(Backend, APbufferBecomesATexture) {
  EGLSurface source =
      pbuffer(1, {EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA, EGL_TEXTURE_TARGET, EGL_TEXTURE_2D});
  ASSERT_NE(source, EGL_NO_SURFACE);
  EXPECT_EQ(query(source, EGL_TEXTURE_FORMAT), EGL_TEXTURE_RGBA);
  EXPECT_EQ(query(source, EGL_TEXTURE_TARGET), EGL_TEXTURE_2D);
  ASSERT_TRUE(egl.makeCurrent(display, source, source, context(1)));
  fill(1, 0.5f, 0);
  glEnable(GL_SCISSOR_TEST);
  glScissor(0, 0, 8, 2);
  fill(0, 0, 1);
  EGLSurface target = pbuffer(0);
  ASSERT_TRUE(egl.makeCurrent(display, target, target, context(0)));
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  EXPECT_FALSE(egl.bindTexImage(display, source, EGL_SINGLE_BUFFER));
  EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
  EXPECT_TRUE(egl.bindTexImage(display, source, EGL_BACK_BUFFER));
  EXPECT_FALSE(egl.bindTexImage(display, source, EGL_BACK_BUFFER));
  EXPECT_EQ(egl.getError(), EGL_BAD_ACCESS);
  glEnable(GL_TEXTURE_2D);
  const GLfloat corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
  const GLfloat coordinates[] = {0, 0, 1, 0, 0, 1, 1, 1};
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glVertexPointer(2, GL_FLOAT, 0, corners);
  glTexCoordPointer(2, GL_FLOAT, 0, coordinates);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  EXPECT_EQ(pixelAt(3, 0), 0x0000FFu);
  EXPECT_EQ(pixelAt(3, 3) & 0xFF00FF, 0xFF0000u);
  EXPECT_TRUE(egl.releaseTexImage(display, source, EGL_BACK_BUFFER));
  EXPECT_TRUE(egl.bindTexImage(display, source, EGL_BACK_BUFFER));
}

TEST_F(Backend, OnlyTexturePbuffersBind) {
  EXPECT_FALSE(egl.bindTexImage(display, pbuffer(0), EGL_BACK_BUFFER));
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
  NativeClient client;
  EGLSurface window =
      egl.createWindowSurface(display, rows[6], nativeWindow(client.createWindow(8, 8)), nullptr);
  EXPECT_FALSE(egl.releaseTexImage(display, window, EGL_BACK_BUFFER));
  EXPECT_EQ(egl.getError(), EGL_BAD_SURFACE);
}

TEST_F(Backend, OnlyTheMipmapLevelIsASurfaceAttribute) {
  EGLSurface surface = pbuffer(1, {EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA, EGL_TEXTURE_TARGET,
                                   EGL_TEXTURE_2D, EGL_MIPMAP_TEXTURE, 1});
  EXPECT_FALSE(egl.surfaceAttrib(display, surface, EGL_SWAP_BEHAVIOR, 1));
  EXPECT_EQ(egl.getError(), EGL_BAD_ATTRIBUTE);
  EXPECT_TRUE(egl.surfaceAttrib(display, surface, EGL_MIPMAP_LEVEL, 2));
  EXPECT_EQ(query(surface, EGL_MIPMAP_LEVEL), 2);
  EXPECT_EQ(query(surface, EGL_MIPMAP_TEXTURE), 1);
}

TEST_F(Backend, TheMipmapLevelOfAPbufferThatIsNoTextureIsKeptAndMeansNothing) {
  EGLSurface surface = pbuffer(0);
  EXPECT_TRUE(egl.surfaceAttrib(display, surface, EGL_MIPMAP_LEVEL, 3));
  EXPECT_EQ(query(surface, EGL_MIPMAP_LEVEL), 3);
}

TEST_F(Backend, TheSwapIntervalNeedsACurrentContext) {
  EXPECT_FALSE(egl.swapInterval(display, 1));
  EXPECT_EQ(egl.getError(), EGL_BAD_CONTEXT);
  NativeClient client;
  const auto window = client.createWindow(16, 16);
  EGLSurface surface = egl.createWindowSurface(display, rows[6], nativeWindow(window), nullptr);
  ASSERT_TRUE(egl.makeCurrent(display, surface, surface, context(6)));
  EXPECT_TRUE(egl.swapInterval(display, 0));
  EXPECT_EQ(egw.swapInterval, 0);
  EXPECT_TRUE(egl.swapInterval(display, 5));
  EXPECT_EQ(egw.swapInterval, 1);
  EXPECT_TRUE(egl.swapInterval(display, -5));
  EXPECT_EQ(egw.swapInterval, 0);
}

TEST_F(Backend, TerminateTakesEverythingWithIt) {
  EGLSurface surface = pbuffer(0);
  EGLContext current = context(0);
  ASSERT_TRUE(egl.makeCurrent(display, surface, surface, current));
  EXPECT_TRUE(egl.terminate(display));
  EXPECT_EQ(egl.getCurrentContext(), EGL_NO_CONTEXT);
  EXPECT_TRUE(egl.initialize(display, nullptr, nullptr));
  EGLint value = 0;
  EXPECT_FALSE(egl.querySurface(display, surface, EGL_WIDTH, &value));
  EXPECT_EQ(egl.getError(), EGL_BAD_SURFACE);
  EXPECT_FALSE(egl.destroyContext(display, current));
  EXPECT_EQ(egl.getError(), EGL_BAD_CONTEXT);
}

TEST_F(Backend, ANativeDisplayOfTheApplicationServesAsWell) {
  NativeClient client;
  const auto window = client.createWindow(16, 16);
  const std::uintptr_t native = client.displayOf(window);
  EGLDisplay other = egl.getDisplay(std::bit_cast<EGLNativeDisplayType>(native));
  EXPECT_EQ(other, std::bit_cast<EGLDisplay>(native));
  ASSERT_TRUE(egl.initialize(other, nullptr, nullptr));
  EGLSurface surface = egl.createWindowSurface(other, rows[6], nativeWindow(window), nullptr);
  ASSERT_NE(surface, EGL_NO_SURFACE);
  EGLContext current = egl.createContext(other, rows[6], EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(egl.makeCurrent(other, surface, surface, current));
  fill(1, 0, 1);
  EXPECT_TRUE(egl.swapBuffers(other, surface));
  EXPECT_EQ(client.pixel(window, 3, 3), 0xFF00FFu);
  EXPECT_TRUE(egl.terminate(other));
  EGLint count = 0;
  EXPECT_FALSE(egl.getConfigs(other, nullptr, 0, &count));
}

TEST_F(Backend, ProcAddresses) {
  EXPECT_NE(egl.getProcAddress("eglCreateImageKHR"), nullptr);
  EXPECT_NE(egl.getProcAddress("eglDestroyImageKHR"), nullptr);
  EXPECT_NE(egl.getProcAddress("glEGLImageTargetTexture2DOES"), nullptr);
  EXPECT_EQ(egl.getProcAddress("glNoSuchThing"), nullptr);
}

}  // namespace
