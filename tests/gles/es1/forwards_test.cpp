#include <functional>

#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/es1/identity.h"
#include "tests/support/recording_driver.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Case {
  std::function<void()> call;
  const char* expected;
};

const float four[] = {1, 2, 3, 4};
const float matrix[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
GLuint names[] = {5, 6};
GLint integers[16];
float floats[16];
GLubyte bytes[64];

const Case plainForwards[] = {
    {[] { glAlphaFunc(GL_GREATER, 0.25f); }, "glAlphaFunc(GL_GREATER, 0.25)"},
    {[] { glBindTexture(GL_TEXTURE_2D, 3); }, "glBindTexture(GL_TEXTURE_2D, 3)"},
    {[] { glBlendFunc(GL_ONE, GL_ZERO); }, "glBlendFunc(GL_ONE, GL_ZERO)"},
    {[] { glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT); },
     "glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT)"},
    {[] { glClearColor(1, 0, 0.5f, 1); }, "glClearColor(1, 0, 0.5, 1)"},
    {[] { glClearStencil(7); }, "glClearStencil(7)"},
    {[] { glColor4f(1, 0, 0.5f, 1); }, "glColor4f(1, 0, 0.5, 1)"},
    {[] { glColor4ub(1, 2, 3, 255); }, "glColor4ub(1, 2, 3, 255)"},
    {[] { glColorMask(1, 0, 1, 0); }, "glColorMask(1, 0, 1, 0)"},
    {[] { glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 1, 2, 8, 4, 0); },
     "glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, 1, 2, 8, 4, 0)"},
    {[] { glCopyTexSubImage2D(GL_TEXTURE_2D, 0, 1, 2, 3, 4, 5, 6); },
     "glCopyTexSubImage2D(GL_TEXTURE_2D, 0, 1, 2, 3, 4, 5, 6)"},
    {[] { glCullFace(GL_FRONT); }, "glCullFace(GL_FRONT)"},
    {[] { glDeleteTextures(2, names); }, "glDeleteTextures(2, [5, 6])"},
    {[] { glDepthFunc(GL_GEQUAL); }, "glDepthFunc(GL_GEQUAL)"},
    {[] { glDepthMask(GL_FALSE); }, "glDepthMask(0)"},
    {[] { glDisable(GL_BLEND); }, "glDisable(GL_BLEND)"},
    {[] { glEnable(GL_FOG); }, "glEnable(GL_FOG)"},
    {[] { glFlush(); }, "glFlush()"},
    {[] { glFogf(GL_FOG_MODE, GL_EXP); }, "glFogf(GL_FOG_MODE, 2048)"},
    {[] { glFogfv(GL_FOG_COLOR, four); }, "glFogfv(GL_FOG_COLOR, [1, 2, 3, 4])"},
    {[] { glFrontFace(GL_CW); }, "glFrontFace(GL_CW)"},
    {[] { glGenTextures(2, names); }, "glGenTextures(2, <ptr>)"},
    {[] { glGetBooleanv(GL_DEPTH_WRITEMASK, bytes); }, "glGetBooleanv(GL_DEPTH_WRITEMASK, <ptr>)"},
    {[] { glGetFloatv(GL_LINE_WIDTH, floats); }, "glGetFloatv(GL_LINE_WIDTH, <ptr>)"},
    {[] { glGetIntegerv(GL_MAX_LIGHTS, integers); }, "glGetIntegerv(GL_MAX_LIGHTS, <ptr>)"},
    {[] { glGetLightfv(GL_LIGHT0, GL_AMBIENT, floats); },
     "glGetLightfv(GL_LIGHT0, GL_AMBIENT, <ptr>)"},
    {[] { glGetMaterialfv(GL_FRONT, GL_AMBIENT, floats); },
     "glGetMaterialfv(GL_FRONT, GL_AMBIENT, <ptr>)"},
    {[] { glGetTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, floats); },
     "glGetTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, <ptr>)"},
    {[] { glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, integers); },
     "glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, <ptr>)"},
    {[] { glGetTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, floats); },
     "glGetTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, <ptr>)"},
    {[] { glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, integers); },
     "glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, <ptr>)"},
    {[] { glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST); },
     "glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST)"},
    {[] { glIsEnabled(GL_FOG); }, "glIsEnabled(GL_FOG)"},
    {[] { glIsTexture(9); }, "glIsTexture(9)"},
    {[] { glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 1); },
     "glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 1)"},
    {[] { glLightModelfv(GL_LIGHT_MODEL_AMBIENT, four); },
     "glLightModelfv(GL_LIGHT_MODEL_AMBIENT, [1, 2, 3, 4])"},
    {[] { glLightf(GL_LIGHT3, GL_SPOT_EXPONENT, 2); }, "glLightf(GL_LIGHT3, GL_SPOT_EXPONENT, 2)"},
    {[] { glLightfv(GL_LIGHT0, GL_DIFFUSE, four); },
     "glLightfv(GL_LIGHT0, GL_DIFFUSE, [1, 2, 3, 4])"},
    {[] { glLineWidth(2); }, "glLineWidth(2)"},
    {[] { glLoadIdentity(); }, "glLoadIdentity()"},
    {[] { glLoadMatrixf(matrix); },
     "glLoadMatrixf([1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16])"},
    {[] { glLogicOp(GL_XOR); }, "glLogicOp(GL_XOR)"},
    {[] { glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, 9); },
     "glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, 9)"},
    {[] { glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, four); },
     "glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, [1, 2, 3, 4])"},
    {[] { glMultMatrixf(matrix); },
     "glMultMatrixf([1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16])"},
    {[] { glMultiTexCoord4f(GL_TEXTURE1, 1, 2, 3, 4); },
     "glMultiTexCoord4f(GL_TEXTURE1, 1, 2, 3, 4)"},
    {[] { glNormal3f(0, 0, 1); }, "glNormal3f(0, 0, 1)"},
    {[] { glPointParameterf(GL_POINT_SIZE_MIN, 2); }, "glPointParameterf(GL_POINT_SIZE_MIN, 2)"},
    {[] { glPointParameterfv(GL_POINT_DISTANCE_ATTENUATION, four); },
     "glPointParameterfv(GL_POINT_DISTANCE_ATTENUATION, [1, 2, 3])"},
    {[] { glPointSize(4); }, "glPointSize(4)"},
    {[] { glPolygonOffset(1, -2); }, "glPolygonOffset(1, -2)"},
    {[] { glReadPixels(1, 2, 3, 4, GL_RGBA, GL_UNSIGNED_BYTE, bytes); },
     "glReadPixels(1, 2, 3, 4, GL_RGBA, GL_UNSIGNED_BYTE, <ptr>)"},
    {[] { glRotatef(90, 1, 0, 0); }, "glRotatef(90, 1, 0, 0)"},
    {[] { glSampleCoverage(0.5f, 1); }, "glSampleCoverage(0.5, 1)"},
    {[] { glScalef(1, 2, 3); }, "glScalef(1, 2, 3)"},
    {[] { glScissor(1, 2, 3, 4); }, "glScissor(1, 2, 3, 4)"},
    {[] { glShadeModel(GL_FLAT); }, "glShadeModel(GL_FLAT)"},
    {[] { glStencilFunc(GL_EQUAL, 1, 255); }, "glStencilFunc(GL_EQUAL, 1, 255)"},
    {[] { glStencilMask(15); }, "glStencilMask(15)"},
    {[] { glStencilOp(GL_ZERO, GL_KEEP, GL_INCR); }, "glStencilOp(GL_ZERO, GL_KEEP, GL_INCR)"},
    {[] { glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_ADD); },
     "glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, 260)"},
    {[] { glTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, four); },
     "glTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, [1, 2, 3, 4])"},
    {[] { glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE); },
     "glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, 7681)"},
    {[] {
       const GLint mode = GL_BLEND;
       glTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &mode);
     },
     "glTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, [3042])"},
    {[] { glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, bytes); },
     "glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, <ptr>)"},
    {[] { glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT); },
     "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, 10497)"},
    {[] { glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST); },
     "glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, 9728)"},
    {[] { glTexSubImage2D(GL_TEXTURE_2D, 0, 1, 1, 2, 2, GL_ALPHA, GL_UNSIGNED_BYTE, bytes); },
     "glTexSubImage2D(GL_TEXTURE_2D, 0, 1, 1, 2, 2, GL_ALPHA, GL_UNSIGNED_BYTE, <ptr>)"},
    {[] { glTranslatef(1, 2, 3); }, "glTranslatef(1, 2, 3)"},
    {[] { glViewport(0, 0, 640, 480); }, "glViewport(0, 0, 640, 480)"},
};

TEST(Forwards, ReachTheDriverUnderTheSameName) {
  RecordingDriver recording;
  for (const Case& item : plainForwards) {
    item.call();
    EXPECT_THAT(recording.take(), ElementsAre(item.expected));
  }
}

TEST(Forwards, OfDoublePrecisionAreWidened) {
  const Case cases[] = {
      {[] { glClearDepthf(0.5f); }, "glClearDepth(0.5)"},
      {[] { glDepthRangef(0.25f, 0.75f); }, "glDepthRange(0.25, 0.75)"},
      {[] { glFrustumf(-1, 1, -2, 2, 1, 10); }, "glFrustum(-1, 1, -2, 2, 1, 10)"},
      {[] { glOrthof(0, 639, 0, 479, 0, 1); }, "glOrtho(0, 639, 0, 479, 0, 1)"},
      {[] { glClipPlanef(GL_CLIP_PLANE0, four); }, "glClipPlane(GL_CLIP_PLANE0, [1, 2, 3, 4])"},
  };
  RecordingDriver recording;
  for (const Case& item : cases) {
    item.call();
    EXPECT_THAT(recording.take(), ElementsAre(item.expected));
  }
}

TEST(Forwards, ClipPlanesAreNarrowedWhenAsked) {
  RecordingDriver recording;
  recording.answer(GL_CLIP_PLANE3, {0.1, -2, 3, 0.5});
  float plane[4] = {};
  glGetClipPlanef(GL_CLIP_PLANE3, plane);
  EXPECT_THAT(plane, ElementsAre(0.1f, -2.0f, 3.0f, 0.5f));
}

TEST(Forwards, StringsAreTheDrivers) {
  RecordingDriver recording;
  recording.answerString(GL_VENDOR, "The driver's maker");
  EXPECT_STREQ(reinterpret_cast<const char*>(glGetString(GL_VENDOR)), "The driver's maker");
  EXPECT_STREQ(gles::es1::vendor, "Test implementation");
  EXPECT_STREQ(gles::es1::renderer, "oeswrapper on OpenGL 1.X");
  EXPECT_STREQ(gles::es1::version, "1.1");
  EXPECT_STREQ(gles::es1::extensions,
               "GL_OES_byte_coordinates GL_OES_compressed_paletted_texture GL_OES_fixed_point "
               "GL_OES_EGL_image");
}

TEST(Forwards, ErrorsOfTheDriverPassThrough) {
  RecordingDriver recording;
  recording.raise(GL_INVALID_ENUM);
  recording.raise(GL_STACK_OVERFLOW);
  EXPECT_EQ(glGetError(), GL_INVALID_ENUM);
  EXPECT_EQ(glGetError(), GL_STACK_OVERFLOW);
  EXPECT_EQ(glGetError(), GL_NO_ERROR);
}

TEST(Forwards, DoNothingWhereTheDriverHasNoSuchFunction) {
  RecordingDriver recording;
  for (const char* name :
       {"glSampleCoverage", "glPointParameterf", "glPointParameterfv", "glMultiTexCoord4f",
        "glActiveTexture", "glClientActiveTexture", "glCompressedTexImage2D",
        "glCompressedTexSubImage2D", "glBindBuffer", "glBufferData", "glBufferSubData",
        "glDeleteBuffers", "glGenBuffers", "glGetBufferParameteriv", "glIsBuffer"}) {
    recording.lack(name);
  }
  GLuint buffer = 9;
  GLint value = 9;
  glSampleCoverage(1, 0);
  glPointParameterf(GL_POINT_SIZE_MIN, 1);
  glPointParameterfv(GL_POINT_SIZE_MIN, four);
  glMultiTexCoord4f(GL_TEXTURE0, 0, 0, 0, 1);
  glActiveTexture(GL_TEXTURE1);
  glClientActiveTexture(GL_TEXTURE1);
  glCompressedTexImage2D(GL_TEXTURE_2D, 0, 0x83F0, 4, 4, 0, 8, bytes);
  glCompressedTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 4, 4, 0x83F0, 8, bytes);
  glGenBuffers(1, &buffer);
  glBindBuffer(GL_ARRAY_BUFFER, 1);
  glBufferData(GL_ARRAY_BUFFER, 4, bytes, GL_STATIC_DRAW);
  glBufferSubData(GL_ARRAY_BUFFER, 0, 4, bytes);
  glDeleteBuffers(1, &buffer);
  glGetBufferParameteriv(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &value);
  EXPECT_EQ(glIsBuffer(1), GL_FALSE);
  EXPECT_EQ(buffer, 9u);
  EXPECT_EQ(value, 9);
  EXPECT_THAT(recording.take(), IsEmpty());
  glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &value);
  EXPECT_EQ(value, 0);
}

}  // namespace
