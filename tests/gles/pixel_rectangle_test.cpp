#include "gles/pixel_rectangle.h"

#include <vector>

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>
#include <GLES/glext.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/es_image.h"
#include "gles/function_table.h"
#include "tests/support/recording_driver.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr unsigned bgra = 0x80E1;

TEST(PixelRectangle, IsATexturedQuadOverTheViewport) {
  RecordingDriver recording;
  recording.answer(GL_TEXTURE_MATRIX, {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1});
  recording.answer(GL_MAX_CLIP_PLANES, {2});
  GlFunctionTable table{};
  fillEs1FunctionTable(&table, false);
  glBindBuffer(GL_ARRAY_BUFFER, 5);
  std::vector<float> vertices;
  std::vector<float> coordinates;
  recording.onCall("glDrawArrays", [&](const RecordingDriver::Call&) {
    const auto* at = static_cast<const float*>(recording.lastAddress("glVertexPointer"));
    vertices.assign(at, at + 8);
    at = static_cast<const float*>(recording.lastAddress("glTexCoordPointer"));
    coordinates.assign(at, at + 8);
  });
  const unsigned char pixels[5 * 3 * 4] = {};
  recording.clear();
  table.drawPixelRectangle(5, 3, bgra, 0x8367, 2, pixels);
  EXPECT_THAT(
      recording.take(),
      ElementsAre(
          "glGetIntegerv(GL_MAX_TEXTURE_UNITS, <ptr>)", "glGetIntegerv(GL_CURRENT_PROGRAM, <ptr>)",
          "glGetIntegerv(GL_FRAMEBUFFER_BINDING, <ptr>)", "glBindBuffer(GL_ARRAY_BUFFER, 0)",
          "glPushAttrib(0xFFFFF)", "glPushClientAttrib(0xFFFFFFFF)",
          "glDisableVertexAttribArray(0)", "glDisable(GL_LIGHTING)", "glDisable(GL_CULL_FACE)",
          "glDisable(GL_DEPTH_TEST)", "glDisable(GL_SCISSOR_TEST)", "glDisable(GL_STENCIL_TEST)",
          "glDisable(GL_COLOR_LOGIC_OP)", "glDisable(GL_BLEND)", "glDisable(GL_ALPHA_TEST)",
          "glDisable(GL_FOG)", "glDisable(GL_SAMPLE_ALPHA_TO_COVERAGE)",
          "glDisable(GL_SAMPLE_COVERAGE)", "glGetIntegerv(GL_MAX_CLIP_PLANES, <ptr>)",
          "glDisable(GL_CLIP_PLANE0)", "glDisable(GL_CLIP_PLANE1)", "glColorMask(1, 1, 1, 1)",
          "glActiveTexture(GL_TEXTURE1)", "glDisable(GL_TEXTURE_2D)",
          "glClientActiveTexture(GL_TEXTURE1)", "glDisableClientState(GL_TEXTURE_COORD_ARRAY)",
          "glActiveTexture(GL_TEXTURE0)", "glClientActiveTexture(GL_TEXTURE0)",
          "glPixelStorei(GL_UNPACK_ALIGNMENT, 2)", "glGenTextures(1, <ptr>)",
          "glBindTexture(GL_TEXTURE_2D, 1)",
          "glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 8, 4, 0, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, "
          "null)",
          "glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 5, 3, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, "
          "<ptr>)",
          "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, 9728)",
          "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, 9728)",
          "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, 33071)",
          "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, 33071)",
          "glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, 7681)", "glEnable(GL_TEXTURE_2D)",
          "glMatrixMode(GL_PROJECTION)", "glPushMatrix()", "glLoadIdentity()",
          "glMatrixMode(GL_MODELVIEW)", "glPushMatrix()", "glLoadIdentity()",
          "glGetFloatv(GL_TEXTURE_MATRIX, <ptr>)", "glMatrixMode(GL_TEXTURE)", "glLoadIdentity()",
          "glScalef(0.125, 0.25, 1)", "glEnableClientState(GL_VERTEX_ARRAY)",
          "glEnableClientState(GL_TEXTURE_COORD_ARRAY)", "glDisableClientState(GL_NORMAL_ARRAY)",
          "glDisableClientState(GL_COLOR_ARRAY)", "glVertexPointer(2, GL_FLOAT, 0, <ptr>)",
          "glTexCoordPointer(2, GL_FLOAT, 0, <ptr>)", "glDrawArrays(GL_TRIANGLE_STRIP, 0, 4)",
          "glLoadMatrixf([2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1])",
          "glMatrixMode(GL_MODELVIEW)", "glPopMatrix()", "glMatrixMode(GL_PROJECTION)",
          "glPopMatrix()", "glPopClientAttrib()", "glPopAttrib()", "glDeleteTextures(1, [1])",
          "glBindBuffer(GL_ARRAY_BUFFER, 5)"));
  EXPECT_THAT(vertices, ElementsAre(-1, 1, 1, 1, -1, -1, 1, -1));
  EXPECT_THAT(coordinates, ElementsAre(0, 0, 5, 0, 0, 3, 5, 3));
}

TEST(PixelRectangle, TextureSidesArePowersOfTwoAndTwoAtLeast) {
  const struct {
    int width;
    int height;
    const char* sides;
  } cases[] = {{1, 1, "2, 2"}, {2, 3, "2, 4"}, {64, 65, "64, 128"}, {100, 50, "128, 64"}};
  const std::vector<unsigned char> pixels(128 * 128 * 4);
  for (const auto& item : cases) {
    RecordingDriver recording;
    gles::drawPixelRectangle(
        {item.width, item.height, GL_RGB, GL_UNSIGNED_SHORT_5_6_5, 4, pixels.data()}, 0, 1);
    EXPECT_THAT(recording.calls("glTexImage2D"),
                ElementsAre(std::string("glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, ") + item.sides +
                            ", 0, GL_RGB, GL_UNSIGNED_SHORT_5_6_5, null)"));
  }
}

TEST(PixelRectangle, InternalFormatsFollowTheFormat) {
  const struct {
    unsigned format;
    const char* expected;
  } cases[] = {{bgra, "GL_RGBA"},  {GL_RGBA, "GL_RGBA"},           {0x80E0, "GL_RGB"},
               {GL_RGB, "GL_RGB"}, {GL_LUMINANCE, "GL_LUMINANCE"}, {GL_ALPHA, "GL_ALPHA"}};
  const unsigned char pixels[64] = {};
  for (const auto& item : cases) {
    RecordingDriver recording;
    gles::drawPixelRectangle({2, 2, item.format, GL_UNSIGNED_BYTE, 4, pixels}, 0, 1);
    EXPECT_THAT(recording.calls("glTexImage2D").front(),
                testing::HasSubstr(std::string("0, ") + item.expected + ", 2, 2"));
  }
}

TEST(PixelRectangle, PutsProgramsAndFramebufferObjectsAside) {
  RecordingDriver recording;
  recording.answer(0x8B8D, {12});
  recording.answer(0x8CA6, {13});
  const unsigned char pixels[64] = {};
  GlFunctionTable table{};
  fillEs2FunctionTable(&table);
  table.drawPixelRectangle(2, 2, GL_RGBA, GL_UNSIGNED_BYTE, 4, pixels);
  EXPECT_THAT(recording.calls("glUseProgram"), ElementsAre("glUseProgram(0)", "glUseProgram(12)"));
  EXPECT_THAT(recording.calls("glBindFramebufferEXT"),
              ElementsAre("glBindFramebufferEXT(GL_FRAMEBUFFER, 0)",
                          "glBindFramebufferEXT(GL_FRAMEBUFFER, 13)"));
}

TEST(PixelRectangle, NeedsACurrentState) {
  RecordingDriver recording;
  recording.setStatesCurrent(false);
  const unsigned char pixels[64] = {};
  GlFunctionTable table{};
  fillEs1FunctionTable(&table, false);
  table.drawPixelRectangle(2, 2, GL_RGBA, GL_UNSIGNED_BYTE, 4, pixels);
  fillEs2FunctionTable(&table);
  table.drawPixelRectangle(2, 2, GL_RGBA, GL_UNSIGNED_BYTE, 4, pixels);
  EXPECT_THAT(recording.take(), IsEmpty());
}

unsigned words[6];
const EsImage knownImage{3, 2, words};

TEST(EsImage, UploadsItsPixelsToTheBoundTexture) {
  RecordingDriver recording;
  setEsImageLookup([](const void* handle) {
    return handle == static_cast<const void*>(&knownImage) ? &knownImage : nullptr;
  });
  recording.answer(GL_UNPACK_ALIGNMENT, {8});
  glEGLImageTargetTexture2DOES(GL_TEXTURE_2D, const_cast<EsImage*>(&knownImage));
  EXPECT_EQ(recording.lastAddress("glTexImage2D"), words);
  EXPECT_THAT(recording.take(),
              ElementsAre("glGetIntegerv(GL_UNPACK_ALIGNMENT, <ptr>)",
                          "glPixelStorei(GL_UNPACK_ALIGNMENT, 4)",
                          "glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 3, 2, 0, GL_BGRA, "
                          "GL_UNSIGNED_INT_8_8_8_8_REV, <ptr>)",
                          "glPixelStorei(GL_UNPACK_ALIGNMENT, 8)"));
  glEGLImageTargetTexture2DOES(GL_TEXTURE_2D, words);
  glEGLImageTargetTexture2DOES(GL_TEXTURE_2D, nullptr);
  EXPECT_THAT(recording.take(), IsEmpty());
  setEsImageLookup(nullptr);
  glEGLImageTargetTexture2DOES(GL_TEXTURE_2D, const_cast<EsImage*>(&knownImage));
  EXPECT_THAT(recording.take(), IsEmpty());
}

}  // namespace
