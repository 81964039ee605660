// What the ES 1.1 layer draws on the real driver, in pixels.

#include <cmath>
#include <vector>

#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/es1/context_state.h"
#include "gles/function_table.h"
#include "tests/support/es_surface.h"

using testing::Each;
using testing::ElementsAre;

namespace {

constexpr int side = 16;
constexpr Pixel black = {0, 0, 0, 0};
constexpr Pixel red = {255, 0, 0, 255};
constexpr Pixel green = {0, 255, 0, 255};
constexpr Pixel blue = {0, 0, 255, 255};
constexpr Pixel white = {255, 255, 255, 255};

struct Drawing : testing::Test {
  Drawing() : surface(side, side) {
    glViewport(0, 0, side, side);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
  }
  ~Drawing() override { EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)); }

  // Expects one colour left of the middle and another right of it.
  void expectHalves(const Pixel& left, const Pixel& right) {
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        ASSERT_EQ(surface.pixel(x, y), x < side / 2 ? left : right) << x << ", " << y;
      }
    }
  }

  EsSurface surface;
};

// Strips over the left half of the surface, in each type of vertex.
const GLbyte leftBytes[] = {-1, -1, 0, -1, -1, 1, 0, 1};
const GLshort leftShorts[] = {-1, -1, 0, -1, -1, 1, 0, 1};
const GLfixed leftFixed[] = {-0x10000, -0x10000, 0, -0x10000, -0x10000, 0x10000, 0, 0x10000};
const GLfloat leftFloats[] = {-1, -1, 0, -1, -1, 1, 0, 1};

const struct {
  GLenum type;
  const void* data;
  GLsizeiptr size;
} vertexTypes[] = {
    {GL_BYTE, leftBytes, sizeof leftBytes},
    {GL_SHORT, leftShorts, sizeof leftShorts},
    {GL_FIXED, leftFixed, sizeof leftFixed},
    {GL_FLOAT, leftFloats, sizeof leftFloats},
};

TEST_F(Drawing, VerticesOfEachTypeInClientMemory) {
  glEnableClientState(GL_VERTEX_ARRAY);
  glColor4f(1, 0, 0, 1);
  for (const auto& item : vertexTypes) {
    glClear(GL_COLOR_BUFFER_BIT);
    glVertexPointer(2, item.type, 0, item.data);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    expectHalves(red, black);
  }
}

TEST_F(Drawing, VerticesOfEachTypeInBufferObjects) {
  glEnableClientState(GL_VERTEX_ARRAY);
  glColor4f(0, 1, 0, 1);
  for (const auto& item : vertexTypes) {
    GLuint buffer = 0;
    glGenBuffers(1, &buffer);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glBufferData(GL_ARRAY_BUFFER, item.size, item.data, GL_STATIC_DRAW);
    glVertexPointer(2, item.type, 0, nullptr);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glClear(GL_COLOR_BUFFER_BIT);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    expectHalves(green, black);
    glDeleteBuffers(1, &buffer);
  }
}

TEST_F(Drawing, ByIndicesOfBothTypesFromMemoryAndFromABuffer) {
  const GLubyte bytes[] = {9, 0, 1, 2, 3};
  const GLushort shorts[] = {9, 0, 1, 2, 3};
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, leftBytes);
  glColor4f(0, 0, 1, 1);
  glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_BYTE, bytes + 1);
  expectHalves(blue, black);
  glClear(GL_COLOR_BUFFER_BIT);
  GLuint buffer = 0;
  glGenBuffers(1, &buffer);
  glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffer);
  glBufferData(GL_ELEMENT_ARRAY_BUFFER, sizeof shorts, shorts, GL_STATIC_DRAW);
  glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_SHORT, reinterpret_cast<void*>(2));
  expectHalves(blue, black);
}

TEST_F(Drawing, AByteVertexArrayInterleavedWithColoursInOneBuffer) {
  // Two bytes of position, two of padding, four floats of colour.
  struct Record {
    GLbyte position[2];
    GLbyte padding[2];
    GLfloat colour[4];
  };
  const Record records[] = {{{-1, -1}, {}, {0, 1, 0, 1}},
                            {{0, -1}, {}, {0, 1, 0, 1}},
                            {{-1, 1}, {}, {0, 1, 0, 1}},
                            {{0, 1}, {}, {0, 1, 0, 1}}};
  GLuint buffer = 0;
  glGenBuffers(1, &buffer);
  glBindBuffer(GL_ARRAY_BUFFER, buffer);
  glBufferData(GL_ARRAY_BUFFER, sizeof records, records, GL_STATIC_DRAW);
  glVertexPointer(2, GL_BYTE, sizeof(Record), nullptr);
  glColorPointer(4, GL_FLOAT, sizeof(Record), reinterpret_cast<void*>(4));
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(green, black);
}

TEST_F(Drawing, UnsignedByteColoursAreCastSoThatOneIsFull) {
  const GLubyte colours[] = {1, 0, 0, 1, 1, 0, 0, 1, 200, 0, 0, 255, 255, 0, 0, 255};
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, leftBytes);
  glColorPointer(4, GL_UNSIGNED_BYTE, 0, colours);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(red, black);
}

TEST_F(Drawing, NothingWhereTheVerticesAreNowhere) {
  glEnableClientState(GL_VERTEX_ARRAY);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(black, black);
}

TEST_F(Drawing, TexturesWithByteCoordinates) {
  const GLubyte texels[] = {255, 0, 0, 255, 0, 255, 0, 255, 255, 0, 0, 255, 0, 255, 0, 255};
  const GLbyte corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
  const GLbyte coordinates[] = {0, 0, 1, 0, 0, 1, 1, 1};
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels);
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  glTexEnvx(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
  glEnable(GL_TEXTURE_2D);
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, corners);
  glTexCoordPointer(2, GL_BYTE, 0, coordinates);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(red, green);
}

TEST_F(Drawing, PalettedTextures) {
  std::vector<GLubyte> data(16 * 4);
  const GLubyte colours[] = {255, 0, 0, 255, 0, 0, 255, 255};
  std::copy(colours, colours + 8, data.begin());
  data.insert(data.end(), {0x01, 0x01});
  const GLbyte corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
  const GLbyte coordinates[] = {0, 0, 1, 0, 0, 1, 1, 1};
  GLuint texture = 0;
  glGenTextures(1, &texture);
  glBindTexture(GL_TEXTURE_2D, texture);
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGBA8_OES, 2, 2, 0,
                         static_cast<GLsizei>(data.size()), data.data());
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
  glEnable(GL_TEXTURE_2D);
  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glVertexPointer(2, GL_BYTE, 0, corners);
  glTexCoordPointer(2, GL_BYTE, 0, coordinates);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(red, blue);
}

TEST_F(Drawing, ATextureStackOfDepthOneInSoftware) {
  const int former = gles::es1::textureStackDepth;
  gles::es1::textureStackDepth = 1;
  glMatrixMode(GL_TEXTURE);
  glScalef(2, 3, 4);
  glPushMatrix();
  glTranslatef(5, 6, 7);
  glPopMatrix();
  gles::es1::textureStackDepth = former;
  GLfloat matrix[16] = {};
  glGetFloatv(GL_TEXTURE_MATRIX, matrix);
  EXPECT_THAT(matrix, ElementsAre(2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 0, 0, 0, 1));
}

// Everything that could keep a pixel from the surface or change it.
void spoilState() {
  glEnable(GL_BLEND);
  glBlendFunc(GL_ZERO, GL_ZERO);
  glEnable(GL_ALPHA_TEST);
  glAlphaFunc(GL_NEVER, 0);
  glEnable(GL_DEPTH_TEST);
  glDepthFunc(GL_NEVER);
  glEnable(GL_STENCIL_TEST);
  glStencilFunc(GL_NEVER, 0, 0);
  glEnable(GL_SCISSOR_TEST);
  glScissor(0, 0, 1, 1);
  glEnable(GL_CULL_FACE);
  glCullFace(GL_FRONT_AND_BACK);
  glEnable(GL_FOG);
  glEnable(GL_LIGHTING);
  glEnable(GL_COLOR_LOGIC_OP);
  glLogicOp(GL_CLEAR);
  glColorMask(0, 0, 0, 0);
  const GLfloat plane[] = {0, 0, 0, -1};
  glClipPlanef(GL_CLIP_PLANE0, plane);
  glEnable(GL_CLIP_PLANE0);
  glMatrixMode(GL_MODELVIEW);
  glScalef(0, 0, 0);
  glMatrixMode(GL_TEXTURE);
  glTranslatef(0.5f, 0.5f, 0);
  glMatrixMode(GL_PROJECTION);
  glTranslatef(9, 9, 9);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 8);
  glActiveTexture(GL_TEXTURE1);
  glEnable(GL_TEXTURE_2D);
  glClientActiveTexture(GL_TEXTURE1);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  glEnableClientState(GL_COLOR_ARRAY);
  glEnableClientState(GL_NORMAL_ARRAY);
}

TEST_F(Drawing, ABlockOfPixelsOf24BitsInAndOut) {
  constexpr GLenum bgr = 0x80E0;
  constexpr int width = 5;
  constexpr int height = 3;
  constexpr std::size_t stride = 16;  // One byte a row is padding.
  GlFunctionTable table{};
  fillEs1FunctionTable(&table, false);
  std::vector<GLubyte> pixels;
  for (std::size_t i = 0; i < stride * height; ++i) {
    pixels.push_back(static_cast<GLubyte>(i % stride == stride - 1 ? 0 : 5 * i));
  }
  glViewport(0, 0, width, height);
  table.drawPixelRectangle(width, height, bgr, GL_UNSIGNED_BYTE, 4, pixels.data());
  glViewport(0, 0, side, side);
  const Pixel first = surface.pixel(0, height - 1);
  EXPECT_EQ(first, (Pixel{pixels[2], pixels[1], pixels[0], 255}));
  std::vector<GLubyte> back(pixels.size());
  table.glPixelStorei(GL_PACK_ALIGNMENT, 4);
  for (int y = 0; y < height; ++y) {
    table.glReadPixels(0, height - 1 - y, width, 1, bgr, GL_UNSIGNED_BYTE,
                       back.data() + stride * static_cast<std::size_t>(y));
  }
  EXPECT_EQ(back, pixels);
}

TEST_F(Drawing, ABlockOfPixelsWhateverTheStateAndLeavesItSo) {
  GlFunctionTable table{};
  fillEs1FunctionTable(&table, false);
  std::vector<GLubyte> pixels;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const Pixel& colour = y == 0 ? white : (x < side / 2 ? blue : red);
      pixels.insert(pixels.end(), colour.begin(), colour.end());
    }
  }
  spoilState();
  std::vector<GLint> before;
  const GLenum asked[] = {GL_BLEND,
                          GL_ALPHA_TEST,
                          GL_DEPTH_TEST,
                          GL_STENCIL_TEST,
                          GL_SCISSOR_TEST,
                          GL_CULL_FACE,
                          GL_FOG,
                          GL_LIGHTING,
                          GL_COLOR_LOGIC_OP,
                          GL_CLIP_PLANE0,
                          GL_TEXTURE_2D,
                          GL_MATRIX_MODE,
                          GL_ACTIVE_TEXTURE,
                          GL_CLIENT_ACTIVE_TEXTURE,
                          GL_UNPACK_ALIGNMENT,
                          GL_COLOR_ARRAY,
                          GL_NORMAL_ARRAY,
                          GL_VERTEX_ARRAY,
                          GL_TEXTURE_COORD_ARRAY,
                          GL_TEXTURE_BINDING_2D,
                          GL_MODELVIEW_STACK_DEPTH};
  const auto answers = [&asked] {
    std::vector<GLint> values;
    for (const GLenum name : asked) {
      GLint value = -1;
      glGetIntegerv(name, &value);
      values.push_back(value);
    }
    for (const GLenum name : {GL_MODELVIEW_MATRIX, GL_PROJECTION_MATRIX, GL_TEXTURE_MATRIX}) {
      GLfixed matrix[16] = {};
      glGetFixedv(name, matrix);
      values.insert(values.end(), matrix, matrix + 16);
    }
    GLboolean mask[4] = {9, 9, 9, 9};
    glGetBooleanv(GL_COLOR_WRITEMASK, mask);
    values.insert(values.end(), mask, mask + 4);
    return values;
  };
  before = answers();
  table.drawPixelRectangle(side, side, GL_RGBA, GL_UNSIGNED_BYTE, 4, pixels.data());
  EXPECT_EQ(answers(), before);
  EXPECT_EQ(surface.pixel(0, side - 1), white);
  EXPECT_EQ(surface.pixel(side - 1, side - 1), white);
  EXPECT_EQ(surface.pixel(0, side - 2), blue);
  EXPECT_EQ(surface.pixel(side / 2 - 1, 0), blue);
  EXPECT_EQ(surface.pixel(side / 2, 0), red);
  EXPECT_EQ(surface.pixel(side - 1, side - 2), red);
}

TEST_F(Drawing, StateIsAnsweredAsItWasSet) {
  GLfixed fixed[16] = {};
  GLint integers[16] = {};
  glColor4x(0x10000, 0, 0, 0x8000);
  glGetFixedv(GL_CURRENT_COLOR, fixed);
  EXPECT_THAT(std::vector<GLfixed>(fixed, fixed + 4), ElementsAre(0x10000, 0, 0, 0x8000));
  glFogx(GL_FOG_MODE, GL_LINEAR);
  glGetIntegerv(GL_FOG_MODE, integers);
  EXPECT_EQ(integers[0], GL_LINEAR);
  glLightx(GL_LIGHT1, GL_SPOT_CUTOFF, 45 * 0x10000);
  glGetLightxv(GL_LIGHT1, GL_SPOT_CUTOFF, fixed);
  EXPECT_EQ(fixed[0], 45 * 0x10000);
  const GLfixed plane[] = {0, 0x10000, 0, -0x8000};
  glClipPlanex(GL_CLIP_PLANE1, plane);
  glGetClipPlanex(GL_CLIP_PLANE1, fixed);
  EXPECT_THAT(std::vector<GLfixed>(fixed, fixed + 4), ElementsAre(0, 0x10000, 0, -0x8000));
  glPointParameterx(GL_POINT_SIZE_MIN, 0x20000);
  glGetFixedv(GL_POINT_SIZE_MIN, fixed);
  EXPECT_EQ(fixed[0], 0x20000);
  glTranslatex(0x10000, 0x20000, -0x8000);
  glGetFixedv(GL_MODELVIEW_MATRIX, fixed);
  EXPECT_THAT(fixed, ElementsAre(0x10000, 0, 0, 0, 0, 0x10000, 0, 0, 0, 0, 0x10000, 0, 0x10000,
                                 0x20000, -0x8000, 0x10000));
}

}  // namespace
