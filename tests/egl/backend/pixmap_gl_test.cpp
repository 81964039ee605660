// Pixmap surfaces, copies into pixmaps, and images of pixmaps and textures.
#include <GLES/gl.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>

#include "egl/backend/egl_backend.h"
#include "gles/driver/driver.h"
#include "tests/support/native_client.h"

extern "C" void GL_APIENTRY glEGLImageTargetTexture2DOES(GLenum target, void* image);

namespace {

const EglBackend& egl = eglBackend();

std::uint32_t pixelAt(int x, int y) {
  std::array<unsigned char, 4> p = {};
  glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, p.data());
  return static_cast<std::uint32_t>(p[0]) << 16 | static_cast<std::uint32_t>(p[1]) << 8 | p[2];
}

void clearPart(int x, int y, int width, int height, float red, float green, float blue) {
  glEnable(GL_SCISSOR_TEST);
  glScissor(x, y, width, height);
  glClearColor(red, green, blue, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  glDisable(GL_SCISSOR_TEST);
}

/// A triangle over the whole surface, in one colour.
void drawOver(float red, float green, float blue) {
  const GLfloat corners[] = {-1, -1, 3, -1, -1, 3};
  glColor4f(red, green, blue, 1);
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_FLOAT, 0, corners);
  glDrawArrays(GL_TRIANGLES, 0, 3);
}

class Pixmaps : public testing::Test {
 protected:
  void SetUp() override {
    display = egl.getDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_TRUE(egl.initialize(display, nullptr, nullptr));
    EGLint count = 0;
    ASSERT_TRUE(egl.getConfigs(display, rows, 10, &count));
  }
  void TearDown() override {
    if (display) {
      egl.terminate(display);
    }
  }

  EGLSurface makeCurrent(int row, std::uintptr_t pixmap) {
    EGLSurface surface = egl.createPixmapSurface(display, rows[row], nativePixmap(pixmap), nullptr);
    EXPECT_NE(surface, EGL_NO_SURFACE) << std::hex << egl.getError();
    EGLContext context = egl.createContext(display, rows[row], EGL_NO_CONTEXT, nullptr);
    EXPECT_TRUE(egl.makeCurrent(display, surface, surface, context));
    return surface;
  }
  EGLSurface makePbufferCurrent(int width, int height) {
    const EGLint size[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
    EGLSurface surface = egl.createPbufferSurface(display, rows[0], size);
    EXPECT_TRUE(egl.makeCurrent(display, surface, surface,
                                egl.createContext(display, rows[0], EGL_NO_CONTEXT, nullptr)));
    return surface;
  }

  NativeClient client;
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLConfig rows[10] = {};
};

struct DepthRow {
  int depth;
  int config;
  unsigned long red, green, blue;  ///< the pixmap's own values

  /// The bits that hold colours; a bit or byte of alpha is the driver's.
  unsigned long colours() const { return (red | green | blue) & 0xFFFFFF; }
};

class PixmapsOfDepth : public Pixmaps, public testing::WithParamInterface<DepthRow> {
 protected:
  void SetUp() override {
    if (!client.hasDepth(GetParam().depth)) {
      GTEST_SKIP() << "the X server has no pixmaps of this depth";
    }
    Pixmaps::SetUp();
  }
};

TEST_P(PixmapsOfDepth, TheBitmapComesInAtTheNativeWait) {
  const DepthRow row = GetParam();
  const auto pixmap = client.createPixmap(5, 3, row.depth);
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 5; ++x) {
      client.setRaw(pixmap, x, y, row.blue);
    }
  }
  client.setRaw(pixmap, 0, 0, row.red);
  client.setRaw(pixmap, 4, 2, row.green);
  makeCurrent(row.config, pixmap);
  // Neither the viewport nor any other state of the context changes what arrives.
  glViewport(1, 1, 2, 2);
  glEnable(GL_BLEND);
  glBlendFunc(GL_ZERO, GL_ONE);
  EXPECT_TRUE(egl.waitNative(EGL_CORE_NATIVE_ENGINE));
  EXPECT_EQ(pixelAt(0, 2), 0xFF0000u);
  EXPECT_EQ(pixelAt(4, 0), 0x00FF00u);
  EXPECT_EQ(pixelAt(2, 1), 0x0000FFu);
  GLint viewport[4] = {};
  glGetIntegerv(GL_VIEWPORT, viewport);
  EXPECT_EQ(viewport[2], 2);
  EXPECT_TRUE(glIsEnabled(GL_BLEND));
  EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_P(PixmapsOfDepth, WhatWasDrawnComesBackAtTheClientWait) {
  const DepthRow row = GetParam();
  const auto pixmap = client.createPixmap(5, 3, row.depth);
  client.setRaw(pixmap, 0, 0, row.green);
  makeCurrent(row.config, pixmap);
  glPixelStorei(GL_PACK_ALIGNMENT, 2);
  drawOver(0, 0, 1);
  clearPart(0, 2, 1, 1, 1, 0, 0);
  // Nothing comes back before the wait.
  EXPECT_EQ(client.raw(pixmap, 0, 0), row.green);
  EXPECT_TRUE(egl.waitClient());
  EXPECT_EQ(client.raw(pixmap, 0, 0) & row.colours(), row.red & row.colours());
  EXPECT_EQ(client.raw(pixmap, 0, 2) & row.colours(), row.blue & row.colours());
  EXPECT_EQ(client.raw(pixmap, 4, 0) & row.colours(), row.blue & row.colours());
  GLint alignment = 0;
  glGetIntegerv(GL_PACK_ALIGNMENT, &alignment);
  EXPECT_EQ(alignment, 2);
  // Without another draw nothing more comes back.
  client.setRaw(pixmap, 0, 0, row.green);
  EXPECT_TRUE(egl.waitClient());
  EXPECT_EQ(client.raw(pixmap, 0, 0), row.green);
}

TEST_P(PixmapsOfDepth, CopyBuffersFillsABitmap) {
  const DepthRow row = GetParam();
  EGLSurface surface = makePbufferCurrent(5, 3);
  clearPart(0, 0, 5, 3, 0, 0, 1);
  clearPart(0, 2, 1, 1, 1, 0, 0);
  const auto pixmap = client.createPixmap(5, 3, row.depth);
  EXPECT_TRUE(egl.copyBuffers(display, surface, nativePixmap(pixmap)));
  EXPECT_EQ(client.raw(pixmap, 0, 0) & row.colours(), row.red & row.colours());
  EXPECT_EQ(client.raw(pixmap, 4, 2) & row.colours(), row.blue & row.colours());
}

TEST_P(PixmapsOfDepth, AnImageKeepsTheBitmapsPixels) {
  const DepthRow row = GetParam();
  const auto pixmap = client.createPixmap(2, 2, row.depth);
  client.setRaw(pixmap, 0, 0, row.red);
  client.setRaw(pixmap, 1, 0, row.green);
  client.setRaw(pixmap, 0, 1, row.blue);
  client.setRaw(pixmap, 1, 1, row.blue);
  makePbufferCurrent(2, 2);
  const auto create =
      reinterpret_cast<PFNEGLCREATEIMAGEKHRPROC>(egl.getProcAddress("eglCreateImageKHR"));
  const auto destroy =
      reinterpret_cast<PFNEGLDESTROYIMAGEKHRPROC>(egl.getProcAddress("eglDestroyImageKHR"));
  EGLImageKHR image = create(display, EGL_NO_CONTEXT, EGL_NATIVE_PIXMAP_KHR,
                             reinterpret_cast<EGLClientBuffer>(pixmap), nullptr);
  ASSERT_NE(image, EGL_NO_IMAGE_KHR);
  client.setRaw(pixmap, 0, 0, row.blue);
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  glEGLImageTargetTexture2DOES(GL_TEXTURE_2D, image);
  glEnable(GL_TEXTURE_2D);
  const GLfloat corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
  const GLfloat coordinates[] = {0, 0, 1, 0, 0, 1, 1, 1};
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glVertexPointer(2, GL_FLOAT, 0, corners);
  glTexCoordPointer(2, GL_FLOAT, 0, coordinates);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  EXPECT_EQ(pixelAt(0, 0), 0xFF0000u);
  EXPECT_EQ(pixelAt(1, 0), 0x00FF00u);
  EXPECT_EQ(pixelAt(0, 1), 0x0000FFu);
  EXPECT_TRUE(destroy(display, image));
  EXPECT_FALSE(destroy(display, image));
  EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
}

INSTANTIATE_TEST_SUITE_P(Depths, PixmapsOfDepth,
                         testing::Values(DepthRow{15, 5, 0x7C00, 0x03E0, 0x001F},
                                         DepthRow{16, 5, 0xF800, 0x07E0, 0x001F},
                                         DepthRow{24, 4, 0xFF0000, 0x00FF00, 0x0000FF},
                                         DepthRow{32, 4, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF}),
                         [](const auto& info) {
                           return "Of" + std::to_string(info.param.depth) + "Bits";
                         });

TEST_F(Pixmaps, ALayoutThatOpenGlCannotWriteFailsAtTheWait) {
  const auto pixmap = client.createPixmap(4, 4, 8);
  EGLSurface surface = makeCurrent(4, pixmap);
  ASSERT_NE(surface, EGL_NO_SURFACE);
  EXPECT_FALSE(egl.waitNative(EGL_CORE_NATIVE_ENGINE));
  EXPECT_NE(egl.getError(), EGL_SUCCESS);
  drawOver(1, 1, 1);
  EXPECT_TRUE(egl.waitClient());
  EXPECT_FALSE(egl.copyBuffers(display, surface, nativePixmap(pixmap)));
  EXPECT_EQ(egl.getError(), EGL_BAD_MATCH);
}

TEST_F(Pixmaps, OnlyTheCoreEngineIsWaitedFor) {
  EXPECT_FALSE(egl.waitNative(EGL_CORE_NATIVE_ENGINE + 1));
  EXPECT_NE(egl.getError(), EGL_SUCCESS);
  EXPECT_TRUE(egl.waitNative(EGL_CORE_NATIVE_ENGINE));
}

TEST_F(Pixmaps, AFreedBitmapHarmsNobody) {
  const auto pixmap = client.createPixmap(4, 4, 24);
  EGLSurface surface = makeCurrent(4, pixmap);
  drawOver(1, 0, 0);
  client.freePixmap(pixmap);
  EXPECT_TRUE(egl.waitClient());
  EXPECT_FALSE(egl.waitNative(EGL_CORE_NATIVE_ENGINE));
  EXPECT_FALSE(egl.copyBuffers(display, surface, nativePixmap(pixmap)));
  EXPECT_EQ(egl.getError(), EGL_BAD_NATIVE_PIXMAP);
}

TEST_F(Pixmaps, TheSurfaceComesBackWhileAFramebufferObjectIsBound) {
  const auto pixmap = client.createPixmap(4, 4, 24);
  makeCurrent(4, pixmap);
  drawOver(1, 0, 0);
  GLuint texture = 0;
  GLuint framebuffer = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 4, 4, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
  driver.glGenFramebuffersEXT(1, &framebuffer);
  driver.glBindFramebufferEXT(0x8D40, framebuffer);
  driver.glFramebufferTexture2DEXT(0x8D40, 0x8CE0, GL_TEXTURE_2D, texture, 0);
  glClearColor(0, 1, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  EXPECT_TRUE(egl.waitClient());
  EXPECT_EQ(client.raw(pixmap, 1, 1) & 0xFFFFFF, 0xFF0000u);
  GLint bound = 0;
  driver.glGetIntegerv(0x8CA6, &bound);
  EXPECT_EQ(bound, static_cast<GLint>(framebuffer));
}

TEST_F(Pixmaps, TheDrawnSurfaceComesBackAndNotTheOneThatIsRead) {
  const auto pixmap = client.createPixmap(4, 4, 24);
  const auto other = client.createPixmap(4, 4, 24);
  EGLSurface read = makeCurrent(4, other);
  clearPart(0, 0, 4, 4, 0, 1, 0);
  EGLSurface draw = makeCurrent(4, pixmap);
  ASSERT_TRUE(egl.makeCurrent(display, draw, read, egl.getCurrentContext()));
  drawOver(1, 0, 0);
  EXPECT_EQ(pixelAt(1, 1), 0x00FF00u);
  EXPECT_TRUE(egl.waitClient());
  EXPECT_EQ(client.raw(pixmap, 1, 1) & 0xFFFFFF, 0xFF0000u);
  EXPECT_EQ(pixelAt(1, 1), 0x00FF00u);
}

TEST_F(Pixmaps, SwappingAPixmapSurfaceDoesNothing) {
  const auto pixmap = client.createPixmap(4, 4, 24);
  EGLSurface surface = makeCurrent(4, pixmap);
  client.setRaw(pixmap, 0, 0, 0x123456);
  drawOver(1, 0, 0);
  EXPECT_TRUE(egl.swapBuffers(display, surface));
  EXPECT_EQ(client.raw(pixmap, 0, 0) & 0xFFFFFF, 0x123456u);
}

TEST_F(Pixmaps, CopyBuffersKeepsWhatTheSurfaceDoesNotCover) {
  EGLSurface surface = makePbufferCurrent(2, 2);
  clearPart(0, 0, 2, 2, 1, 0, 0);
  const auto larger = client.createPixmap(4, 3, 24);
  client.setRaw(larger, 3, 2, 0x00FF00);
  EXPECT_TRUE(egl.copyBuffers(display, surface, nativePixmap(larger)));
  EXPECT_EQ(client.raw(larger, 1, 1) & 0xFFFFFF, 0xFF0000u);
  EXPECT_EQ(client.raw(larger, 3, 2) & 0xFFFFFF, 0x00FF00u);
  const auto smaller = client.createPixmap(1, 1, 24);
  EXPECT_TRUE(egl.copyBuffers(display, surface, nativePixmap(smaller)));
  EXPECT_EQ(client.raw(smaller, 0, 0) & 0xFFFFFF, 0xFF0000u);
}

TEST_F(Pixmaps, CopyBuffersOfASurfaceThatIsNotCurrent) {
  EGLSurface first = makePbufferCurrent(2, 2);
  clearPart(0, 0, 2, 2, 1, 0, 0);
  makePbufferCurrent(2, 2);
  clearPart(0, 0, 2, 2, 0, 1, 0);
  const auto pixmap = client.createPixmap(2, 2, 24);
  EXPECT_TRUE(egl.copyBuffers(display, first, nativePixmap(pixmap)));
  EXPECT_EQ(client.raw(pixmap, 0, 0) & 0xFFFFFF, 0xFF0000u);
  EXPECT_EQ(pixelAt(0, 0), 0x00FF00u);
}

class Images : public Pixmaps {
 protected:
  void SetUp() override {
    Pixmaps::SetUp();
    create = reinterpret_cast<PFNEGLCREATEIMAGEKHRPROC>(egl.getProcAddress("eglCreateImageKHR"));
    destroy = reinterpret_cast<PFNEGLDESTROYIMAGEKHRPROC>(egl.getProcAddress("eglDestroyImageKHR"));
  }
  PFNEGLCREATEIMAGEKHRPROC create = nullptr;
  PFNEGLDESTROYIMAGEKHRPROC destroy = nullptr;
};

TEST_F(Images, OtherTargetsAreRefused) {
  for (const EGLenum target : {0x30AFu, 0x30B2u, 0u, 0x30B9u}) {
    EXPECT_EQ(create(display, EGL_NO_CONTEXT, target, nullptr, nullptr), EGL_NO_IMAGE_KHR);
    EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
  }
  EXPECT_EQ(create(EGL_NO_DISPLAY, EGL_NO_CONTEXT, EGL_NATIVE_PIXMAP_KHR, nullptr, nullptr),
            EGL_NO_IMAGE_KHR);
  EXPECT_EQ(egl.getError(), EGL_BAD_DISPLAY);
  int foreign = 0;
  EXPECT_EQ(create(display, &foreign, EGL_NATIVE_PIXMAP_KHR, nullptr, nullptr), EGL_NO_IMAGE_KHR);
  EXPECT_EQ(egl.getError(), EGL_BAD_CONTEXT);
  EXPECT_EQ(create(display, EGL_NO_CONTEXT, EGL_NATIVE_PIXMAP_KHR, nullptr, nullptr),
            EGL_NO_IMAGE_KHR);
  EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
  EXPECT_FALSE(destroy(display, &foreign));
  EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
}

TEST_F(Images, ATexturesImageKeepsItsPixelsAndCannotBeDestroyed) {
  makePbufferCurrent(4, 4);
  glPixelStorei(GL_PACK_ALIGNMENT, 8);
  GLuint textures[2] = {};
  glGenTextures(2, textures);
  glBindTexture(GL_TEXTURE_2D, textures[0]);
  const unsigned char pixels[] = {255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255};
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, pixels);
  glBindTexture(GL_TEXTURE_2D, textures[1]);
  const auto buffer = reinterpret_cast<EGLClientBuffer>(std::uintptr_t{textures[0]});
  EGLImageKHR image =
      create(display, egl.getCurrentContext(), EGL_GL_TEXTURE_2D_KHR, buffer, nullptr);
  ASSERT_NE(image, EGL_NO_IMAGE_KHR);
  GLint bound = 0;
  GLint alignment = 0;
  glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
  glGetIntegerv(GL_PACK_ALIGNMENT, &alignment);
  EXPECT_EQ(bound, static_cast<GLint>(textures[1]));
  EXPECT_EQ(alignment, 8);
  glEGLImageTargetTexture2DOES(GL_TEXTURE_2D, image);
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glEnable(GL_TEXTURE_2D);
  drawOver(1, 1, 1);
  EXPECT_EQ(pixelAt(2, 2), 0xFF0000u);
  EXPECT_FALSE(destroy(display, image));
  EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
}

TEST_F(Images, ATextureThatHasNoPixelsGivesNone) {
  makePbufferCurrent(4, 4);
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  EXPECT_EQ(create(display, egl.getCurrentContext(), EGL_GL_TEXTURE_2D_KHR,
                   reinterpret_cast<EGLClientBuffer>(std::uintptr_t{texture}), nullptr),
            EGL_NO_IMAGE_KHR);
  EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
  EXPECT_EQ(create(display, egl.getCurrentContext(), EGL_GL_TEXTURE_2D_KHR, nullptr, nullptr),
            EGL_NO_IMAGE_KHR);
  EXPECT_EQ(egl.getError(), EGL_BAD_PARAMETER);
}

}  // namespace
