// What the ES 2.0 layer draws on the real driver, in pixels.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/driver/driver.h"
#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"
#include "gles/function_table.h"
#include "tests/support/es_surface.h"

namespace es2 = gles::es2;

namespace {

constexpr int side = 16;
constexpr Pixel black = {0, 0, 0, 0};
constexpr Pixel red = {255, 0, 0, 255};
constexpr Pixel green = {0, 255, 0, 255};

const char* const plainVertexShader = R"(
attribute vec4 position;
attribute vec4 colour;
varying mediump vec4 shade;
void main() {
  shade = colour;
  gl_Position = position;
  gl_PointSize = 8.0;
}
)";

const char* const plainFragmentShader = R"(
#ifdef GL_ES
precision mediump float;
#else
#error not OpenGL ES
#endif
varying vec4 shade;
void main() {
  gl_FragColor = shade;
}
)";

const unsigned char* VARNEL_DRIVER_CALL driverWithoutEsShaders(unsigned) {
  return reinterpret_cast<const unsigned char*>("GL_ARB_multitexture");
}

// Runs with the driver's own OpenGL ES shaders, and as on a driver that lacks them.
struct Es2Drawing : testing::TestWithParam<bool> {
  Es2Drawing() : surface(side, side), formerGetString(driver.glGetString.pointer) {
    if (!GetParam()) {
      driver.glGetString.pointer = driverWithoutEsShaders;
    }
    es2::glViewport(0, 0, side, side);
    es2::glClearColor(0, 0, 0, 0);
    es2::glClear(GL_COLOR_BUFFER_BIT);
  }
  ~Es2Drawing() override {
    EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    driver.glGetString.pointer = formerGetString;
  }

  GLuint compiled(GLenum type, const char* source) {
    const GLuint shader = es2::glCreateShader(type);
    es2::glShaderSource(shader, 1, &source, nullptr);
    es2::glCompileShader(shader);
    GLint done = 0;
    es2::glGetShaderiv(shader, GL_COMPILE_STATUS, &done);
    char log[1024] = {};
    es2::glGetShaderInfoLog(shader, sizeof log, nullptr, log);
    EXPECT_EQ(done, GL_TRUE) << log;
    return shader;
  }

  // Attribute 0 is the position, unless `first` tells another name.
  GLuint usedProgram(const char* vertex, const char* fragment, const char* first = "position",
                     const char* second = "colour") {
    const GLuint program = es2::glCreateProgram();
    es2::glAttachShader(program, compiled(GL_VERTEX_SHADER, vertex));
    es2::glAttachShader(program, compiled(GL_FRAGMENT_SHADER, fragment));
    es2::glBindAttribLocation(program, 0, first);
    es2::glBindAttribLocation(program, 1, second);
    es2::glLinkProgram(program);
    GLint done = 0;
    es2::glGetProgramiv(program, GL_LINK_STATUS, &done);
    EXPECT_EQ(done, GL_TRUE);
    es2::glUseProgram(program);
    return program;
  }

  void expectHalves(const Pixel& left, const Pixel& right) {
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        ASSERT_EQ(surface.pixel(x, y), x < side / 2 ? left : right) << x << ", " << y;
      }
    }
  }

  EsSurface surface;
  decltype(driver.glGetString.pointer) formerGetString;
};

const GLfixed leftFixed[] = {-0x10000, -0x10000, 0, -0x10000, -0x10000, 0x10000, 0, 0x10000};
const GLfloat leftFloats[] = {-1, -1, 0, -1, -1, 1, 0, 1};

TEST_P(Es2Drawing, FixedPointAttributesFromMemoryAndFromABuffer) {
  usedProgram(plainVertexShader, plainFragmentShader);
  es2::glVertexAttrib4f(1, 1, 0, 0, 1);
  es2::glVertexAttribPointer(0, 2, GL_FIXED, GL_FALSE, 0, leftFixed);
  es2::glEnableVertexAttribArray(0);
  es2::glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(red, black);
  GLuint buffer = 0;
  es2::glGenBuffers(1, &buffer);
  es2::glBindBuffer(GL_ARRAY_BUFFER, buffer);
  es2::glBufferData(GL_ARRAY_BUFFER, sizeof leftFixed, leftFixed, GL_STATIC_DRAW);
  es2::glVertexAttribPointer(0, 2, GL_FIXED, GL_TRUE, 0, nullptr);
  es2::glVertexAttrib4f(1, 0, 1, 0, 1);
  es2::glClear(GL_COLOR_BUFFER_BIT);
  es2::glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(green, black);
}

TEST_P(Es2Drawing, WithTheConstantOfAttributeZero) {
  usedProgram(plainVertexShader, plainFragmentShader, "colour", "position");
  const GLushort indices[] = {0, 1, 2, 3};
  es2::glVertexAttrib4f(0, 0, 1, 0, 1);
  es2::glVertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, 0, leftFloats);
  es2::glEnableVertexAttribArray(1);
  es2::glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_SHORT, indices);
  expectHalves(green, black);
}

TEST_P(Es2Drawing, PointsOfTheProgramsSizeWithCoordinatesFromTheUpperLeft) {
  usedProgram(plainVertexShader, R"(
    precision mediump float;
    void main() {
      gl_FragColor = vec4(step(0.5, gl_PointCoord.x), step(0.5, gl_PointCoord.y), 0.0, 1.0);
    }
  )");
  const GLfloat middle[] = {0, 0, 0, 1};
  es2::glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, middle);
  es2::glEnableVertexAttribArray(0);
  es2::glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_EQ(surface.pixel(3, 8), black);
  EXPECT_EQ(surface.pixel(12, 8), black);
  EXPECT_EQ(surface.pixel(4, 11), (Pixel{0, 0, 0, 255}));
  EXPECT_EQ(surface.pixel(11, 11), red);
  EXPECT_EQ(surface.pixel(4, 4), green);
  EXPECT_EQ(surface.pixel(11, 4), (Pixel{255, 255, 0, 255}));
}

TEST_P(Es2Drawing, IntoAFramebufferObject) {
  usedProgram(plainVertexShader, plainFragmentShader);
  GLuint framebuffer = 0;
  GLuint colours = 0;
  GLuint depth = 0;
  es2::glGenFramebuffers(1, &framebuffer);
  es2::glGenRenderbuffers(1, &depth);
  es2::glGenTextures(1, &colours);
  es2::glBindTexture(GL_TEXTURE_2D, colours);
  es2::glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 8, 8, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
  es2::glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  es2::glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
  es2::glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, colours, 0);
  es2::glBindRenderbuffer(GL_RENDERBUFFER, depth);
  es2::glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT16, 8, 8);
  es2::glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depth);
  EXPECT_EQ(es2::glCheckFramebufferStatus(GL_FRAMEBUFFER),
            static_cast<GLenum>(GL_FRAMEBUFFER_COMPLETE));
  es2::glViewport(0, 0, 8, 8);
  es2::glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  es2::glVertexAttrib4f(1, 1, 0, 0, 1);
  es2::glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, leftFloats);
  es2::glEnableVertexAttribArray(0);
  es2::glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  EXPECT_EQ(surface.pixel(1, 1), red);
  EXPECT_EQ(surface.pixel(6, 1), black);
  es2::glBindFramebuffer(GL_FRAMEBUFFER, 0);
  EXPECT_EQ(surface.pixel(1, 1), black);
}

TEST_P(Es2Drawing, ShadersThatGuardTheirPrecision) {
  usedProgram(plainVertexShader, R"(
    #ifdef GL_FRAGMENT_PRECISION_HIGH
    precision highp float;
    #else
    precision mediump float;
    #endif
    varying lowp vec4 shade;
    uniform highp float scale;
    void main() {
      lowp vec4 scaled = shade * (1.0 + scale);
      gl_FragColor = scaled;
    }
  )");
  es2::glVertexAttrib4f(1, 1, 0, 0, 1);
  es2::glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, leftFloats);
  es2::glEnableVertexAttribArray(0);
  es2::glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(red, black);
}

TEST_P(Es2Drawing, MessagesNameTheLinesAsTheClientCountsThem) {
  const char* wrong = "precision mediump float;\n\nvoid main() { nonsense; }\n";
  const GLuint shader = es2::glCreateShader(GL_FRAGMENT_SHADER);
  es2::glShaderSource(shader, 1, &wrong, nullptr);
  es2::glCompileShader(shader);
  char log[1024] = {};
  es2::glGetShaderInfoLog(shader, sizeof log, nullptr, log);
  EXPECT_THAT(log, testing::HasSubstr("0:3("));
}

TEST_P(Es2Drawing, ABlockOfPixelsBesideAProgram) {
  const GLuint program = usedProgram(plainVertexShader, plainFragmentShader);
  es2::glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, leftFloats);
  es2::glEnableVertexAttribArray(0);
  es2::glVertexAttrib4f(1, 1, 0, 0, 1);
  GlFunctionTable table{};
  fillEs2FunctionTable(&table);
  const std::vector<GLubyte> pixels(side * side * 4, 255);
  table.drawPixelRectangle(side, side, GL_RGBA, GL_UNSIGNED_BYTE, 4, pixels.data());
  constexpr Pixel white = {255, 255, 255, 255};
  expectHalves(white, white);
  GLint current = 0;
  es2::glGetIntegerv(GL_CURRENT_PROGRAM, &current);
  EXPECT_EQ(current, static_cast<GLint>(program));
  es2::glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
  expectHalves(red, white);
}

INSTANTIATE_TEST_SUITE_P(Shaders, Es2Drawing, testing::Bool(), [](const auto& info) {
  return info.param ? "OfOpenGlEs" : "OfDesktopOpenGl";
});

}  // namespace
