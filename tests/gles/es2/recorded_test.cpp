#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"
#include "gles/es2/identity.h"
#include "gles/function_table.h"
#include "tests/support/recording_driver.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

// The commands under test are those of the namespace, not the published ones.
namespace es2 = gles::es2;

namespace {

const void* offset(std::size_t bytes) {
  return reinterpret_cast<const void*>(bytes);
}

// Attribute 0 with something in it, so that a draw has nothing to supply.
void giveAttributeZeroFloats() {
  static const float data[64] = {};
  es2::glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, data);
  es2::glEnableVertexAttribArray(0);
}

TEST(Es2Attributes, OfFixedPointAreConvertedForTheDraw) {
  RecordingDriver recording;
  giveAttributeZeroFloats();
  const GLfixed data[] = {0x10000, -0x8000, 0x4000, 0x20000};
  std::vector<float> seen;
  recording.onCall("glDrawArrays", [&](const RecordingDriver::Call&) {
    const auto* floats = static_cast<const float*>(recording.lastAddress("glVertexAttribPointer"));
    seen.assign(floats, floats + 4);
  });
  es2::glVertexAttribPointer(3, 2, GL_FIXED, GL_TRUE, 0, data);
  es2::glEnableVertexAttribArray(3);
  recording.clear();
  es2::glDrawArrays(GL_TRIANGLES, 0, 2);
  EXPECT_THAT(recording.take(), ElementsAre("glVertexAttribPointer(3, 2, GL_FLOAT, 0, 0, <ptr>)",
                                            "glDrawArrays(GL_TRIANGLES, 0, 2)"));
  EXPECT_THAT(seen, ElementsAre(1, -0.5f, 0.25f, 2));
}

TEST(Es2Attributes, OfOtherTypesAreForwarded) {
  RecordingDriver recording;
  const char data[16] = {};
  es2::glVertexAttribPointer(1, 4, GL_UNSIGNED_BYTE, GL_TRUE, 4, data);
  es2::glVertexAttribPointer(2, 3, GL_BYTE, GL_FALSE, 0, data);
  es2::glVertexAttribPointer(2, 1, GL_SHORT, GL_FALSE, 0, data);
  EXPECT_THAT(recording.calls("glVertexAttribPointer"),
              ElementsAre("glVertexAttribPointer(1, 4, GL_UNSIGNED_BYTE, 1, 4, <ptr>)",
                          "glVertexAttribPointer(2, 3, GL_BYTE, 0, 0, <ptr>)",
                          "glVertexAttribPointer(2, 1, GL_SHORT, 0, 0, <ptr>)"));
}

TEST(Es2Attributes, OfFixedPointInABufferAreConvertedOnceForAnUpload) {
  RecordingDriver recording;
  giveAttributeZeroFloats();
  const GLfixed data[] = {7, 0x10000, 0x20000, 7, 0x30000, 0x40000};
  es2::glBindBuffer(GL_ARRAY_BUFFER, 50);
  es2::glBufferData(GL_ARRAY_BUFFER, sizeof data, data, GL_STATIC_DRAW);
  es2::glVertexAttribPointer(1, 2, GL_FIXED, GL_FALSE, 12, offset(4));
  es2::glEnableVertexAttribArray(1);
  std::vector<float> seen;
  recording.onCall("glBufferData", [&seen](const RecordingDriver::Call& call) {
    const auto* floats = static_cast<const float*>(call.addresses.back());
    seen.assign(floats, floats + 4);
  });
  recording.clear();
  es2::glDrawArrays(GL_TRIANGLES, 0, 2);
  es2::glDrawArrays(GL_TRIANGLES, 0, 2);
  EXPECT_THAT(recording.calls("glBufferData"),
              ElementsAre("glBufferData(GL_ARRAY_BUFFER, 16, <ptr>, GL_STATIC_DRAW)"));
  EXPECT_THAT(recording.calls("glVertexAttribPointer"),
              ElementsAre("glVertexAttribPointer(1, 2, GL_FLOAT, 0, 0, null)",
                          "glVertexAttribPointer(1, 2, GL_FLOAT, 0, 0, null)"));
  EXPECT_THAT(seen, ElementsAre(1, 2, 3, 4));
}

TEST(Es2Attributes, CountIsTheDriversOrSixteen) {
  RecordingDriver recording;
  recording.answer(GL_MAX_VERTEX_ATTRIBS, {0});
  GLint count = 0;
  es2::glGetIntegerv(GL_MAX_VERTEX_ATTRIBS, &count);
  EXPECT_EQ(count, 16);
  recording.answer(GL_MAX_VERTEX_ATTRIBS, {8});  // It is read once.
  es2::glGetIntegerv(GL_MAX_VERTEX_ATTRIBS, &count);
  EXPECT_EQ(count, 16);
}

TEST(Es2Attributes, PointerQueriesRefuseOtherNamesAndIndices) {
  RecordingDriver recording;
  const char data[16] = {};
  es2::glVertexAttribPointer(15, 4, GL_FIXED, GL_FALSE, 0, data);
  void* pointer = nullptr;
  es2::glGetVertexAttribPointerv(15, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer);
  EXPECT_EQ(pointer, data);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_NO_ERROR));
  es2::glGetVertexAttribPointerv(15, GL_VERTEX_ATTRIB_ARRAY_SIZE, &pointer);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_INVALID_ENUM));
  es2::glGetVertexAttribPointerv(16, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_INVALID_VALUE));
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_NO_ERROR));
  EXPECT_EQ(pointer, data);
}

TEST(Es2Errors, OfTheLayerComeBeforeTheDrivers) {
  RecordingDriver recording;
  recording.raise(GL_OUT_OF_MEMORY);
  void* pointer = nullptr;
  es2::glGetVertexAttribPointerv(0, 1, &pointer);
  es2::glGetVertexAttribPointerv(99, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_INVALID_ENUM));
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_OUT_OF_MEMORY));
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST(Es2Attributes, AreAnsweredAsTheyWereGiven) {
  RecordingDriver recording;
  es2::glBindBuffer(GL_ARRAY_BUFFER, 6);
  es2::glVertexAttribPointer(2, 3, GL_FIXED, GL_TRUE, 20, offset(8));
  es2::glEnableVertexAttribArray(2);
  es2::glVertexAttrib3f(0, 0.5f, 2, 3);
  const struct {
    GLenum name;
    GLint expected;
  } cases[] = {{GL_VERTEX_ATTRIB_ARRAY_ENABLED, 1},    {GL_VERTEX_ATTRIB_ARRAY_SIZE, 3},
               {GL_VERTEX_ATTRIB_ARRAY_STRIDE, 20},    {GL_VERTEX_ATTRIB_ARRAY_TYPE, GL_FIXED},
               {GL_VERTEX_ATTRIB_ARRAY_NORMALIZED, 1}, {GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING, 6}};
  for (const auto& item : cases) {
    GLint integer = -1;
    GLfloat number = -1;
    es2::glGetVertexAttribiv(2, item.name, &integer);
    es2::glGetVertexAttribfv(2, item.name, &number);
    EXPECT_EQ(integer, item.expected);
    EXPECT_EQ(number, static_cast<float>(item.expected));
  }
  GLfloat constant[4] = {};
  es2::glGetVertexAttribfv(0, GL_CURRENT_VERTEX_ATTRIB, constant);
  EXPECT_THAT(constant, ElementsAre(0.5f, 2, 3, 1));
}

TEST(Es2Draws, GiveAttributeZeroAnArrayWhenItHasNone) {
  RecordingDriver recording;
  es2::glVertexAttrib4f(0, 1, 2, 3, 4);
  std::vector<float> seen;
  recording.onCall("glDrawArrays", [&](const RecordingDriver::Call&) {
    const auto* floats = static_cast<const float*>(recording.lastAddress("glVertexAttribPointer"));
    seen.assign(floats + 4, floats + 8);
  });
  recording.clear();
  es2::glDrawArrays(GL_TRIANGLES, 1, 3);
  EXPECT_THAT(recording.take(),
              ElementsAre("glGetIntegerv(GL_MAX_VERTEX_ATTRIBS, <ptr>)",
                          "glVertexAttribPointer(0, 4, GL_FLOAT, 0, 0, <ptr>)",
                          "glEnableVertexAttribArray(0)", "glDrawArrays(GL_TRIANGLES, 1, 3)",
                          "glDisableVertexAttribArray(0)",
                          "glVertexAttribPointer(0, 4, GL_FLOAT, 0, 0, null)"));
  EXPECT_THAT(seen, ElementsAre(1, 2, 3, 4));
}

TEST(Es2Draws, LeaveThePointerOfAttributeZeroAsItWasGiven) {
  RecordingDriver recording;
  es2::glBindBuffer(GL_ARRAY_BUFFER, 5);
  es2::glVertexAttribPointer(0, 2, GL_SHORT, GL_TRUE, 8, offset(4));
  es2::glBindBuffer(GL_ARRAY_BUFFER, 6);
  recording.clear();
  es2::glDrawArrays(GL_TRIANGLES, 0, 3);
  EXPECT_THAT(recording.take(),
              ElementsAre("glBindBuffer(GL_ARRAY_BUFFER, 0)",
                          "glVertexAttribPointer(0, 4, GL_FLOAT, 0, 0, <ptr>)",
                          "glBindBuffer(GL_ARRAY_BUFFER, 6)", "glEnableVertexAttribArray(0)",
                          "glDrawArrays(GL_TRIANGLES, 0, 3)", "glDisableVertexAttribArray(0)",
                          "glBindBuffer(GL_ARRAY_BUFFER, 5)",
                          "glVertexAttribPointer(0, 2, GL_SHORT, 1, 8, <ptr>)",
                          "glBindBuffer(GL_ARRAY_BUFFER, 6)"));
}

TEST(Es2Draws, OfPointsHaveSpritesAndSizesOfTheProgram) {
  RecordingDriver recording;
  giveAttributeZeroFloats();
  recording.clear();
  es2::glDrawArrays(GL_POINTS, 0, 1);
  EXPECT_THAT(recording.take(),
              ElementsAre("glEnable(GL_POINT_SPRITE)", "glEnable(GL_VERTEX_PROGRAM_POINT_SIZE)",
                          "glDrawArrays(GL_POINTS, 0, 1)",
                          "glDisable(GL_VERTEX_PROGRAM_POINT_SIZE)", "glDisable(GL_POINT_SPRITE)"));
}

TEST(Es2Draws, TakeIndicesFromTheRecordedBuffer) {
  RecordingDriver recording;
  giveAttributeZeroFloats();
  const GLubyte indices[] = {0, 1, 2};
  es2::glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 9);
  es2::glBufferData(GL_ELEMENT_ARRAY_BUFFER, 3, indices, GL_STREAM_DRAW);
  recording.clear();
  es2::glDrawElements(GL_TRIANGLES, 4, GL_UNSIGNED_BYTE, nullptr);
  EXPECT_THAT(recording.take(), IsEmpty());
  es2::glDrawElements(GL_TRIANGLES, 3, GL_UNSIGNED_BYTE, nullptr);
  EXPECT_THAT(recording.take(),
              ElementsAre("glDrawElements(GL_TRIANGLES, 3, GL_UNSIGNED_BYTE, <ptr>)"));
  GLint value = 0;
  es2::glGetBufferParameteriv(GL_ELEMENT_ARRAY_BUFFER, GL_BUFFER_USAGE, &value);
  EXPECT_EQ(value, GL_STREAM_DRAW);
}

TEST(Es2Shaders, GoToTheDriverInItsLanguageAndComeBackAsGiven) {
  const struct {
    const char* extensions;
    const char* expected;
  } cases[] = {
      {"GL_ARB_ES2_compatibility", "#version 100\n#line 1\nprecision mediump float;"},
      {"GL_ARB_ES2_compatibility_not GL_EXT_abgr",
       "#version 120\n#define VARNEL_ES 1\n#define VARNEL_FRAGMENT_PRECISION_HIGH 1\n#line 0\n "},
  };
  for (const auto& item : cases) {
    RecordingDriver recording;
    recording.answerString(GL_EXTENSIONS, item.extensions);
    recording.answerResult("glIsShader", 1);
    std::string given;
    recording.onCall("glShaderSource", [&given](const RecordingDriver::Call& call) {
      given =
          **static_cast<const char* const* const*>(static_cast<const void*>(&call.addresses[0]));
    });
    const GLuint shader = es2::glCreateShader(GL_FRAGMENT_SHADER);
    const char* parts[] = {"precision medium", "p float;and more"};
    const GLint lengths[] = {-1, 8};
    es2::glShaderSource(shader, 2, parts, lengths);
    EXPECT_EQ(given, item.expected);
    GLint length = 0;
    es2::glGetShaderiv(shader, GL_SHADER_SOURCE_LENGTH, &length);
    EXPECT_EQ(length, 25);
    char text[64] = {};
    GLsizei written = 0;
    es2::glGetShaderSource(shader, sizeof text, &written, text);
    EXPECT_STREQ(text, "precision mediump float;");
    EXPECT_EQ(written, 24);
    es2::glGetShaderSource(shader, 10, &written, text);
    EXPECT_STREQ(text, "precision");
    EXPECT_EQ(written, 9);
  }
}

TEST(Es2Shaders, AnswerPrecisionAsTheStandardTells) {
  RecordingDriver recording;
  for (const GLenum type : {GL_VERTEX_SHADER, GL_FRAGMENT_SHADER}) {
    for (const GLenum precision : {GL_LOW_FLOAT, GL_MEDIUM_FLOAT, GL_HIGH_FLOAT}) {
      GLint range[2] = {};
      GLint bits = 0;
      es2::glGetShaderPrecisionFormat(type, precision, range, &bits);
      EXPECT_THAT(range, ElementsAre(127, 127));
      EXPECT_EQ(bits, 23);
    }
    for (const GLenum precision : {GL_LOW_INT, GL_MEDIUM_INT, GL_HIGH_INT}) {
      GLint range[2] = {};
      GLint bits = 9;
      es2::glGetShaderPrecisionFormat(type, precision, range, &bits);
      EXPECT_THAT(range, ElementsAre(31, 30));
      EXPECT_EQ(bits, 0);
    }
  }
  GLint range[2] = {};
  GLint bits = 0;
  es2::glGetShaderPrecisionFormat(GL_FLOAT, GL_LOW_INT, range, &bits);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_INVALID_ENUM));
  es2::glGetShaderPrecisionFormat(GL_VERTEX_SHADER, GL_FLOAT, range, &bits);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_INVALID_ENUM));
  EXPECT_THAT(recording.calls("glGetShaderiv"), IsEmpty());
}

TEST(Es2Shaders, HaveNoBinaries) {
  RecordingDriver recording;
  const GLuint shader = 1;
  es2::glShaderBinary(1, &shader, 0, &shader, 4);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_INVALID_ENUM));
  es2::glShaderBinary(-1, &shader, 0, &shader, 4);
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_INVALID_VALUE));
  GLint value = 7;
  es2::glGetIntegerv(GL_NUM_SHADER_BINARY_FORMATS, &value);
  EXPECT_EQ(value, 0);
  es2::glGetIntegerv(GL_SHADER_COMPILER, &value);
  EXPECT_EQ(value, 1);
  es2::glReleaseShaderCompiler();
  EXPECT_EQ(es2::glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST(Es2Queries, CountVectorsOfFourComponents) {
  RecordingDriver recording;
  recording.answer(0x8B4A, {4096});
  recording.answer(0x8B49, {2048});
  recording.answer(0x8B4B, {60});
  const struct {
    GLenum name;
    GLint expected;
  } cases[] = {{GL_MAX_VERTEX_UNIFORM_VECTORS, 1024},
               {GL_MAX_FRAGMENT_UNIFORM_VECTORS, 512},
               {GL_MAX_VARYING_VECTORS, 15}};
  for (const auto& item : cases) {
    GLint integer = 0;
    GLfloat number = 0;
    GLboolean flag = 0;
    es2::glGetIntegerv(item.name, &integer);
    es2::glGetFloatv(item.name, &number);
    es2::glGetBooleanv(item.name, &flag);
    EXPECT_EQ(integer, item.expected);
    EXPECT_EQ(number, static_cast<float>(item.expected));
    EXPECT_EQ(flag, GL_TRUE);
  }
}

TEST(Es2Framebuffers, GoThroughTheExtensionsCommands) {
  RecordingDriver recording;
  es2::glBindFramebuffer(GL_FRAMEBUFFER, 1);
  es2::glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT16, 8, 8);
  es2::glRenderbufferStorage(GL_RENDERBUFFER, GL_RGB565, 8, 8);
  es2::glGenerateMipmap(GL_TEXTURE_2D);
  GLint value = 0;
  es2::glGetFramebufferAttachmentParameteriv(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0,
                                             GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE, &value);
  EXPECT_THAT(recording.take(),
              ElementsAre("glBindFramebufferEXT(GL_FRAMEBUFFER, 1)",
                          "glRenderbufferStorageEXT(GL_RENDERBUFFER, GL_DEPTH_COMPONENT16, 8, 8)",
                          "glRenderbufferStorageEXT(GL_RENDERBUFFER, 0x8050, 8, 8)",
                          "glGenerateMipmapEXT(GL_TEXTURE_2D)",
                          "glGetFramebufferAttachmentParameterivEXT(GL_FRAMEBUFFER, "
                          "GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE, <ptr>)"));
  recording.answer(GL_RENDERBUFFER_INTERNAL_FORMAT, {0x8050});
  es2::glGetRenderbufferParameteriv(GL_RENDERBUFFER, GL_RENDERBUFFER_INTERNAL_FORMAT, &value);
  EXPECT_EQ(value, GL_RGB565);
}

TEST(Es2NoCurrentState, TrackedCommandsDoNotTouchTheDriver) {
  RecordingDriver recording;
  recording.setStatesCurrent(false);
  const char data[16] = {};
  GLuint name = 1;
  GLint value = 0;
  GLfloat number = 0;
  void* pointer = nullptr;
  const char* source = "";
  char text[4];
  GLint range[2];
  const std::function<void()> calls[] = {
      [&] { es2::glVertexAttribPointer(0, 4, GL_FLOAT, 0, 0, data); },
      [] { es2::glEnableVertexAttribArray(0); },
      [] { es2::glDisableVertexAttribArray(0); },
      [&] { es2::glGetVertexAttribPointerv(0, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer); },
      [&] { es2::glGetVertexAttribiv(0, GL_VERTEX_ATTRIB_ARRAY_SIZE, &value); },
      [&] { es2::glGetVertexAttribfv(0, GL_VERTEX_ATTRIB_ARRAY_SIZE, &number); },
      [] { es2::glDrawArrays(GL_POINTS, 0, 1); },
      [&] { es2::glDrawElements(GL_POINTS, 1, GL_UNSIGNED_BYTE, data); },
      [] { es2::glPixelStorei(GL_PACK_ALIGNMENT, 1); },
      [] { es2::glFinish(); },
      [] { es2::glBindBuffer(GL_ARRAY_BUFFER, 1); },
      [&] { es2::glBufferData(GL_ARRAY_BUFFER, 4, data, GL_STATIC_DRAW); },
      [&] { es2::glBufferSubData(GL_ARRAY_BUFFER, 0, 4, data); },
      [&] { es2::glDeleteBuffers(1, &name); },
      [&] { es2::glGenBuffers(1, &name); },
      [&] { es2::glGetBufferParameteriv(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &value); },
      [] { EXPECT_EQ(es2::glIsBuffer(1), GL_FALSE); },
      [&] { es2::glShaderSource(1, 1, &source, nullptr); },
      [&] { es2::glGetShaderSource(1, 4, nullptr, text); },
      [&] { es2::glGetShaderPrecisionFormat(GL_VERTEX_SHADER, GL_LOW_INT, range, &value); },
      [&] { es2::glShaderBinary(1, &name, 0, data, 4); },
      [&] { es2::glCompressedTexImage2D(GL_TEXTURE_2D, 0, 0x8B90, 1, 1, 0, 4, data); },
      [&] { es2::glCompressedTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 1, 1, 0x83F0, 4, data); },
  };
  for (const auto& call : calls) {
    call();
    EXPECT_THAT(recording.take(), IsEmpty());
  }
}

TEST(Es2FunctionTable, IsFilledInTheSameOrder) {
  RecordingDriver recording;
  GlFunctionTable table{};
  fillEs2FunctionTable(&table);
  table.noOperation();
  table.glFinish();
  table.glPixelStorei(GL_PACK_ALIGNMENT, 1);
  EXPECT_EQ(table.getPackAlignment(), 1);
  unsigned char pixel[4];
  int value = 0;
  table.glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
  table.glGetIntegerv(GL_VIEWPORT, &value);
  table.glBindTexture(GL_TEXTURE_2D, 3);
  table.glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, 0x1000, &value);
  table.glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
  EXPECT_THAT(recording.take(),
              ElementsAre("glFinish()", "glPixelStorei(GL_PACK_ALIGNMENT, 1)",
                          "glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, <ptr>)",
                          "glGetIntegerv(GL_VIEWPORT, <ptr>)", "glBindTexture(GL_TEXTURE_2D, 3)",
                          "glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, 0x1000, <ptr>)",
                          "glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, <ptr>)"));
  recording.setStatesCurrent(false);
  EXPECT_EQ(table.getPackAlignment(), 4);
}

TEST(Es2Identity, IsAConstantThatNoCallReturns) {
  RecordingDriver recording;
  recording.answerString(GL_RENDERER, "The driver");
  EXPECT_STREQ(reinterpret_cast<const char*>(es2::glGetString(GL_RENDERER)), "The driver");
  EXPECT_STREQ(es2::vendor, "Test implementation");
  EXPECT_STREQ(es2::renderer, "oes2w on OpenGL 2.0");
  EXPECT_STREQ(es2::version, "2.0");
  EXPECT_STREQ(es2::extensions,
               "OES_read_format OES_compressed_paletted_texture OES_framebuffer_object "
               "OES_stencil8 GL_OES_EGL_image");
}

}  // namespace
