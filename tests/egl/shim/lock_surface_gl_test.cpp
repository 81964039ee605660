// What is written into a locked surface's bitmap is what its window shows, whatever state the
// surface's OpenGL context is in, and that state is as it was afterwards.
#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GLES/gl.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#include "gles/driver/driver.h"
#include "tests/support/native_client.h"

extern "C" EGLBoolean eglLockSurfaceKHR(EGLDisplay, EGLSurface, const EGLint*);
extern "C" EGLBoolean eglUnlockSurfaceKHR(EGLDisplay, EGLSurface);

namespace {

constexpr int width = 100;
constexpr int height = 50;

/// The colour 0xRRGGBB that a test writes at a place; no two neighbours are alike.
std::uint32_t wanted(int x, int y, bool is565) {
  const auto red = static_cast<std::uint32_t>((x * 7 + y * 3) & 0xFF);
  const auto green = static_cast<std::uint32_t>((x * 2 + y * 5 + 40) & 0xFF);
  const auto blue = static_cast<std::uint32_t>((x + y * 11 + 90) & 0xFF);
  if (!is565) {
    return red << 16 | green << 8 | blue;
  }
  // Five and six bits, widened by repeating the highest ones.
  const std::uint32_t r = red >> 3;
  const std::uint32_t g = green >> 2;
  const std::uint32_t b = blue >> 3;
  return (r << 3 | r >> 2) << 16 | (g << 2 | g >> 4) << 8 | (b << 3 | b >> 2);
}

class LockedSurface : public testing::TestWithParam<bool> {
 protected:
  bool is565() const { return GetParam(); }

  void SetUp() override {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    ASSERT_TRUE(eglInitialize(display, nullptr, nullptr));
    const EGLint attributes[] = {EGL_MATCH_FORMAT_KHR,
                                 is565() ? EGL_FORMAT_RGB_565_EXACT_KHR : EGL_FORMAT_RGBA_8888_KHR,
                                 EGL_NONE};
    EGLint count = 0;
    ASSERT_TRUE(eglChooseConfig(display, attributes, &config, 1, &count));
    ASSERT_EQ(count, 1);
    window = client.createWindow(width, height);
    surface = eglCreateWindowSurface(display, config, nativeWindow(window), nullptr);
    ASSERT_NE(surface, EGL_NO_SURFACE);
    context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
    ASSERT_NE(context, EGL_NO_CONTEXT);
  }
  void TearDown() override { eglTerminate(display); }

  void makeCurrent() { ASSERT_TRUE(eglMakeCurrent(display, surface, surface, context)); }
  void release() {
    ASSERT_TRUE(eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
  }

  EGLint query(EGLint attribute) {
    EGLint value = 0;
    EXPECT_TRUE(eglQuerySurface(display, surface, attribute, &value));
    return value;
  }

  /// Locks, writes the pattern, unlocks.
  void writePattern() {
    ASSERT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
    const auto address = static_cast<std::uint32_t>(query(EGL_BITMAP_POINTER_KHR));
    auto* bitmap = reinterpret_cast<unsigned char*>(static_cast<std::uintptr_t>(address));
    const int pitch = query(EGL_BITMAP_PITCH_KHR);
    EXPECT_EQ(pitch, is565() ? 256 : 512);
    EXPECT_EQ(query(EGL_BITMAP_ORIGIN_KHR), EGL_UPPER_LEFT_KHR);
    std::memset(bitmap, 0, static_cast<std::size_t>(pitch) * 64);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const std::uint32_t colour = wanted(x, y, is565());
        const std::uint32_t r = colour >> 16;
        const std::uint32_t g = colour >> 8 & 0xFF;
        const std::uint32_t b = colour & 0xFF;
        unsigned char* row = bitmap + static_cast<std::ptrdiff_t>(y) * pitch;
        if (is565()) {
          const std::uint32_t word = r >> 3 << query(EGL_BITMAP_PIXEL_RED_OFFSET_KHR) |
                                     g >> 2 << query(EGL_BITMAP_PIXEL_GREEN_OFFSET_KHR) |
                                     b >> 3 << query(EGL_BITMAP_PIXEL_BLUE_OFFSET_KHR);
          const auto half = static_cast<std::uint16_t>(word);
          std::memcpy(row + 2 * x, &half, 2);
        } else {
          const std::uint32_t word = r << query(EGL_BITMAP_PIXEL_RED_OFFSET_KHR) |
                                     g << query(EGL_BITMAP_PIXEL_GREEN_OFFSET_KHR) |
                                     b << query(EGL_BITMAP_PIXEL_BLUE_OFFSET_KHR) |
                                     0x80u << query(EGL_BITMAP_PIXEL_ALPHA_OFFSET_KHR);
          std::memcpy(row + 4 * x, &word, 4);
        }
      }
    }
    ASSERT_TRUE(eglUnlockSurfaceKHR(display, surface));
  }

  void expectPattern() {
    ASSERT_TRUE(eglSwapBuffers(display, surface));
    int wrong = 0;
    for (int y = 0; y < height; y += 7) {
      for (int x = 0; x < width; x += 9) {
        wrong += client.pixel(window, x, y) != wanted(x, y, is565());
      }
    }
    wrong += client.pixel(window, width - 1, height - 1) != wanted(width - 1, height - 1, is565());
    EXPECT_EQ(wrong, 0) << std::hex << client.pixel(window, 0, 0) << " for "
                        << wanted(0, 0, is565());
  }

  NativeClient client;
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLConfig config = nullptr;
  std::uintptr_t window = 0;
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
};

INSTANTIATE_TEST_SUITE_P(Formats, LockedSurface, testing::Values(true, false),
                         [](const auto& info) { return info.param ? "Rgb565" : "Rgba8888"; });

TEST_P(LockedSurface, ShowsTheBitmapUnchanged) {
  writePattern();
  expectPattern();
}

TEST_P(LockedSurface, ShowsTheNextBitmapAsWell) {
  writePattern();
  ASSERT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_NE(query(EGL_BITMAP_POINTER_KHR), 0);
  ASSERT_TRUE(eglUnlockSurfaceKHR(display, surface));
  writePattern();
  expectPattern();
}

TEST_P(LockedSurface, UnlockingDoesNotSwap) {
  writePattern();
  EXPECT_EQ(client.pixel(window, 3, 3), 0u);
}

/// Everything that the blit could touch, as text.
std::string stateText() {
  std::ostringstream text;
  const GLenum caps[] = {
      GL_BLEND,       GL_ALPHA_TEST,  GL_DEPTH_TEST,      GL_STENCIL_TEST,
      GL_CULL_FACE,   GL_FOG,         GL_SCISSOR_TEST,    GL_COLOR_LOGIC_OP,
      GL_LIGHTING,    GL_LIGHT0,      GL_COLOR_MATERIAL,  GL_DITHER,
      GL_CLIP_PLANE0, GL_CLIP_PLANE1, GL_SAMPLE_COVERAGE, GL_POLYGON_OFFSET_FILL};
  for (const GLenum cap : caps) {
    text << (glIsEnabled(cap) ? '1' : '0');
  }
  struct Query {
    GLenum name;
    int count;
  };
  const Query queries[] = {{GL_VIEWPORT, 4},
                           {GL_SCISSOR_BOX, 4},
                           {GL_MATRIX_MODE, 1},
                           {GL_PROJECTION_MATRIX, 16},
                           {GL_MODELVIEW_MATRIX, 16},
                           {GL_TEXTURE_MATRIX, 16},
                           {GL_PROJECTION_STACK_DEPTH, 1},
                           {GL_MODELVIEW_STACK_DEPTH, 1},
                           {GL_CURRENT_COLOR, 4},
                           {GL_COLOR_WRITEMASK, 4},
                           {GL_DEPTH_FUNC, 1},
                           {GL_DEPTH_WRITEMASK, 1},
                           {GL_ACTIVE_TEXTURE, 1},
                           {GL_CLIENT_ACTIVE_TEXTURE, 1},
                           {GL_ARRAY_BUFFER_BINDING, 1},
                           {GL_UNPACK_ALIGNMENT, 1},
                           {GL_SHADE_MODEL, 1},
                           {0x8B8D, 1},   // the program in use
                           {0x8CA6, 1}};  // the framebuffer object in use
  for (const Query& query : queries) {
    GLfloat values[16] = {};
    driver.glGetFloatv(query.name, values);
    text << "\n" << query.name << ":";
    for (int i = 0; i < query.count; ++i) {
      text << " " << values[i];
    }
  }
  for (GLenum unit = GL_TEXTURE0; unit <= GL_TEXTURE1; ++unit) {
    GLint former = 0;
    driver.glGetIntegerv(GL_ACTIVE_TEXTURE, &former);
    driver.glActiveTexture(unit);
    GLint bound = 0;
    GLint mode = 0;
    driver.glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    driver.glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &mode);
    text << "\nunit " << bound << " " << mode << " " << int{driver.glIsEnabled(GL_TEXTURE_2D)};
    driver.glActiveTexture(static_cast<GLenum>(former));
  }
  const GLenum arrays[] = {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_COLOR_ARRAY,
                           GL_TEXTURE_COORD_ARRAY};
  text << "\narrays ";
  for (const GLenum array : arrays) {
    text << (driver.glIsEnabled(array) ? '1' : '0');
  }
  return text.str();
}

void makeStateHostile() {
  glEnable(GL_BLEND);
  glBlendFunc(GL_ZERO, GL_ONE);
  glEnable(GL_ALPHA_TEST);
  glAlphaFunc(GL_GREATER, 0.9f);
  glEnable(GL_DEPTH_TEST);
  glDepthFunc(GL_NEVER);
  glEnable(GL_STENCIL_TEST);
  glStencilFunc(GL_NEVER, 1, 1);
  glEnable(GL_CULL_FACE);
  glCullFace(GL_FRONT_AND_BACK);
  glEnable(GL_FOG);
  glFogf(GL_FOG_DENSITY, 100);
  const GLfloat red[] = {1, 0, 0, 1};
  glFogfv(GL_FOG_COLOR, red);
  glEnable(GL_SCISSOR_TEST);
  glScissor(1, 2, 3, 4);
  glViewport(5, 6, 7, 8);
  glEnable(GL_COLOR_LOGIC_OP);
  glLogicOp(GL_CLEAR);
  glEnable(GL_LIGHTING);
  glEnable(GL_LIGHT0);
  glEnable(GL_COLOR_MATERIAL);
  glEnable(GL_POLYGON_OFFSET_FILL);
  glEnable(GL_SAMPLE_COVERAGE);
  glSampleCoverage(0, GL_FALSE);
  const GLfloat nothing[] = {0, 0, 0, -1};
  glClipPlanef(GL_CLIP_PLANE0, nothing);
  glEnable(GL_CLIP_PLANE0);
  glEnable(GL_CLIP_PLANE1);
  glColorMask(GL_FALSE, GL_TRUE, GL_FALSE, GL_FALSE);
  glColor4f(0.25f, 0.5f, 0.75f, 0.5f);
  glShadeModel(GL_FLAT);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 8);
  GLuint textures[2];
  glGenTextures(2, textures);
  const unsigned char texel[4] = {0, 0, 0, 0};
  for (int unit = 1; unit >= 0; --unit) {
    glActiveTexture(static_cast<GLenum>(GL_TEXTURE0 + unit));
    glClientActiveTexture(static_cast<GLenum>(GL_TEXTURE0 + unit));
    glBindTexture(GL_TEXTURE_2D, textures[unit]);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, texel);
    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glEnable(GL_TEXTURE_2D);
    glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
  }
  glActiveTexture(GL_TEXTURE1);
  glClientActiveTexture(GL_TEXTURE1);
  glMatrixMode(GL_TEXTURE);
  glScalef(3, 3, 3);
  GLint projectionStack = 0;
  glGetIntegerv(GL_MAX_PROJECTION_STACK_DEPTH, &projectionStack);
  glMatrixMode(GL_PROJECTION);
  for (int i = 1; i < projectionStack; ++i) {
    glTranslatef(1, 0, 0);
    glPushMatrix();
  }
  glMatrixMode(GL_MODELVIEW);
  glTranslatef(0, 5, 0);
  glPushMatrix();
  GLuint buffer = 0;
  glGenBuffers(1, &buffer);
  glBindBuffer(GL_ARRAY_BUFFER, buffer);
  const GLfloat data[16] = {};
  glBufferData(GL_ARRAY_BUFFER, sizeof data, data, GL_STATIC_DRAW);
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(3, GL_FLOAT, 0, nullptr);
  glEnableClientState(GL_NORMAL_ARRAY);
  glNormalPointer(GL_FLOAT, 0, nullptr);
  glEnableClientState(GL_COLOR_ARRAY);
  glColorPointer(4, GL_FLOAT, 0, nullptr);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glTexCoordPointer(2, GL_FLOAT, 0, nullptr);
}

TEST_P(LockedSurface, HostileStateNeitherTouchesTheBitmapNorChanges) {
  makeCurrent();
  makeStateHostile();
  EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
  const std::string before = stateText();
  release();
  writePattern();
  makeCurrent();
  EXPECT_EQ(stateText(), before);
  EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
  expectPattern();
}

TEST_P(LockedSurface, ProgramsAttributesAndFramebufferObjectsDoNotTouchIt) {
  makeCurrent();
  ASSERT_TRUE(static_cast<bool>(driver.glUseProgram));
  const GLuint program = driver.glCreateProgram();
  const GLuint shader = driver.glCreateShader(0x8B30);
  const char* source = "void main() { gl_FragColor = vec4(1.0, 0.0, 0.0, 1.0); }";
  driver.glShaderSource(shader, 1, &source, nullptr);
  driver.glCompileShader(shader);
  driver.glAttachShader(program, shader);
  driver.glLinkProgram(program);
  driver.glUseProgram(program);
  const GLfloat far[] = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
  driver.glEnableVertexAttribArray(0);
  driver.glVertexAttribPointer(0, 3, GL_FLOAT, 0, 0, far);
  GLuint framebuffer = 0;
  GLuint texture = 0;
  driver.glGenFramebuffersEXT(1, &framebuffer);
  driver.glBindFramebufferEXT(0x8D40, framebuffer);
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 8, 8, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
  driver.glFramebufferTexture2DEXT(0x8D40, 0x8CE0, GL_TEXTURE_2D, texture, 0);
  EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
  const std::string before = stateText();
  release();
  writePattern();
  makeCurrent();
  EXPECT_EQ(stateText(), before);
  GLint enabled = 0;
  driver.glGetVertexAttribiv(0, 0x8622, &enabled);
  EXPECT_EQ(enabled, 1);
  driver.glBindFramebufferEXT(0x8D40, 0);
  driver.glUseProgram(0);
  expectPattern();
}

TEST_P(LockedSurface, WhatWasCurrentIsSoAgain) {
  const EGLint attributes[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_NONE};
  const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
  EGLConfig other = nullptr;
  EGLint count = 0;
  ASSERT_TRUE(eglChooseConfig(display, attributes, &other, 1, &count));
  EGLSurface pbuffer = eglCreatePbufferSurface(display, other, size);
  EGLContext otherContext = eglCreateContext(display, other, EGL_NO_CONTEXT, nullptr);
  ASSERT_TRUE(eglMakeCurrent(display, pbuffer, pbuffer, otherContext));
  glClearColor(0, 1, 0, 1);
  glClear(GL_COLOR_BUFFER_BIT);
  writePattern();
  EXPECT_EQ(eglGetCurrentContext(), otherContext);
  EXPECT_EQ(eglGetCurrentSurface(EGL_DRAW), pbuffer);
  std::array<unsigned char, 4> pixel = {};
  glReadPixels(1, 1, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
  EXPECT_EQ(pixel, (std::array<unsigned char, 4>{0, 255, 0, 255}));
  expectPattern();
  // Destroying the surface takes the blit's texture with it and keeps what is current.
  EXPECT_TRUE(eglDestroySurface(display, surface));
  EXPECT_EQ(eglGetCurrentContext(), otherContext);
  glReadPixels(1, 1, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
  EXPECT_EQ(pixel, (std::array<unsigned char, 4>{0, 255, 0, 255}));
}

TEST_P(LockedSurface, ALostWindowIsUnlockedAllTheSame) {
  ASSERT_TRUE(eglLockSurfaceKHR(display, surface, nullptr));
  EXPECT_NE(query(EGL_BITMAP_POINTER_KHR), 0);
  client.destroyWindow(window);
  EXPECT_TRUE(eglUnlockSurfaceKHR(display, surface));
  EXPECT_TRUE(eglDestroySurface(display, surface));
}

TEST_P(LockedSurface, ANarrowWindowIsShownUnchanged) {
  const auto narrow = client.createWindow(1, 3);
  EGLSurface other = eglCreateWindowSurface(display, config, nativeWindow(narrow), nullptr);
  ASSERT_NE(other, EGL_NO_SURFACE);
  ASSERT_TRUE(eglLockSurfaceKHR(display, other, nullptr));
  EGLint address = 0;
  EGLint pitch = 0;
  EXPECT_TRUE(eglQuerySurface(display, other, EGL_BITMAP_POINTER_KHR, &address));
  EXPECT_TRUE(eglQuerySurface(display, other, EGL_BITMAP_PITCH_KHR, &pitch));
  EXPECT_EQ(pitch, is565() ? 2 : 4);
  auto* bitmap = reinterpret_cast<unsigned char*>(
      static_cast<std::uintptr_t>(static_cast<std::uint32_t>(address)));
  const std::uint16_t halves[] = {0xF800, 0x07E0, 0x001F, 0};
  const std::uint32_t words[] = {0xFF0000FF, 0xFF00FF00, 0xFFFF0000, 0};
  std::memcpy(bitmap, is565() ? static_cast<const void*>(halves) : words, is565() ? 8 : 16);
  ASSERT_TRUE(eglUnlockSurfaceKHR(display, other));
  ASSERT_TRUE(eglSwapBuffers(display, other));
  EXPECT_EQ(client.pixel(narrow, 0, 0), 0xFF0000u);
  EXPECT_EQ(client.pixel(narrow, 0, 1), 0x00FF00u);
  EXPECT_EQ(client.pixel(narrow, 0, 2), 0x0000FFu);
}

}  // namespace
