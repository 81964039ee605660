#include <cmath>
#include <functional>
#include <limits>

#include <GLES/gl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gles/fixed_point.h"
#include "tests/support/recording_driver.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

constexpr GLfixed one = 0x10000;
constexpr GLfixed half = 0x8000;
constexpr GLfixed quarter = 0x4000;

TEST(FixedPoint, BecomesTheNearestFloat) {
  const struct {
    GLfixed fixed;
    float expected;
  } cases[] = {
      {0, 0.0f},
      {1, 1.0f / 65536.0f},
      {one, 1.0f},
      {-one, -1.0f},
      {half, 0.5f},
      {0x7FFFFFFF, 32768.0f},  // 32767.99998 has no float of its own.
      {std::numeric_limits<GLfixed>::min(), -32768.0f},
      {0x00018000, 1.5f},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(gles::fixedToFloat(item.fixed), item.expected) << item.fixed;
  }
}

TEST(FixedPoint, OfAFloatIsCutAndStaysInRange) {
  const struct {
    float value;
    GLfixed expected;
  } cases[] = {
      {1.0f, one},
      {-1.0f, -one},
      {0.5f, half},
      {1.0f / 65536.0f, 1},
      {1.99f / 65536.0f, 1},
      {-1.99f / 65536.0f, -1},
      {40000.0f, 0x7FFFFFFF},
      {-40000.0f, std::numeric_limits<GLfixed>::min()},
      {std::numeric_limits<float>::infinity(), 0x7FFFFFFF},
      {std::numeric_limits<float>::quiet_NaN(), 0},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(gles::floatToFixed(item.value), item.expected) << item.value;
  }
}

TEST(FixedForms, Color4xKeepsTheFourValuesInFloats) {
  RecordingDriver recording;
  glColor4x(0x10000, 0, 0, 0x8000);
  EXPECT_THAT(recording.take(), ElementsAre("glColor4f(1, 0, 0, 0.5)"));
}

TEST(FixedForms, CallTheFloatFormOfEachCommand) {
  const GLfixed four[] = {one, half, -quarter, 2 * one};
  const GLfixed unity[16] = {one, 0, 0, 0, 0, one, 0, 0, 0, 0, one, 0, 0, 0, 0, half};
  const struct {
    std::function<void()> call;
    const char* expected;
  } cases[] = {
      {[] { glAlphaFuncx(GL_LEQUAL, half); }, "glAlphaFunc(GL_LEQUAL, 0.5)"},
      {[] { glClearColorx(one, half, 0, quarter); }, "glClearColor(1, 0.5, 0, 0.25)"},
      {[] { glClearDepthx(half); }, "glClearDepth(0.5)"},
      {[&] { glClipPlanex(GL_CLIP_PLANE2, four); },
       "glClipPlane(GL_CLIP_PLANE2, [1, 0.5, -0.25, 2])"},
      {[] { glDepthRangex(quarter, one); }, "glDepthRange(0.25, 1)"},
      {[] { glFogx(GL_FOG_MODE, GL_EXP2); }, "glFogf(GL_FOG_MODE, 2049)"},
      {[] { glFogx(GL_FOG_DENSITY, quarter); }, "glFogf(GL_FOG_DENSITY, 0.25)"},
      {[&] { glFogxv(GL_FOG_COLOR, four); }, "glFogfv(GL_FOG_COLOR, [1, 0.5, -0.25, 2])"},
      {[] {
         const GLfixed mode = GL_LINEAR;
         glFogxv(GL_FOG_MODE, &mode);
       },
       "glFogfv(GL_FOG_MODE, [9729])"},
      {[] { glFrustumx(-one, one, -half, half, one, 4 * one); },
       "glFrustum(-1, 1, -0.5, 0.5, 1, 4)"},
      {[] { glLightModelx(GL_LIGHT_MODEL_TWO_SIDE, 1); },
       "glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 1)"},
      {[&] { glLightModelxv(GL_LIGHT_MODEL_AMBIENT, four); },
       "glLightModelfv(GL_LIGHT_MODEL_AMBIENT, [1, 0.5, -0.25, 2])"},
      {[] { glLightx(GL_LIGHT1, GL_SPOT_CUTOFF, 90 * one); },
       "glLightf(GL_LIGHT1, GL_SPOT_CUTOFF, 90)"},
      {[&] { glLightxv(GL_LIGHT7, GL_POSITION, four); },
       "glLightfv(GL_LIGHT7, GL_POSITION, [1, 0.5, -0.25, 2])"},
      {[&] { glLightxv(GL_LIGHT0, GL_SPOT_DIRECTION, four); },
       "glLightfv(GL_LIGHT0, GL_SPOT_DIRECTION, [1, 0.5, -0.25])"},
      {[] { glLineWidthx(3 * half); }, "glLineWidth(1.5)"},
      {[&] { glLoadMatrixx(unity); },
       "glLoadMatrixf([1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0.5])"},
      {[] { glMaterialx(GL_FRONT_AND_BACK, GL_SHININESS, 64 * one); },
       "glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, 64)"},
      {[&] { glMaterialxv(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE, four); },
       "glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE, [1, 0.5, -0.25, 2])"},
      {[&] { glMultMatrixx(unity); },
       "glMultMatrixf([1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0.5])"},
      {[] { glMultiTexCoord4x(GL_TEXTURE1, one, half, 0, one); },
       "glMultiTexCoord4f(GL_TEXTURE1, 1, 0.5, 0, 1)"},
      {[] { glNormal3x(0, -one, half); }, "glNormal3f(0, -1, 0.5)"},
      {[] { glOrthox(0, 4 * one, 0, 2 * one, -one, one); }, "glOrtho(0, 4, 0, 2, -1, 1)"},
      {[] { glPointParameterx(GL_POINT_SIZE_MIN, half); },
       "glPointParameterf(GL_POINT_SIZE_MIN, 0.5)"},
      {[&] { glPointParameterxv(GL_POINT_DISTANCE_ATTENUATION, four); },
       "glPointParameterfv(GL_POINT_DISTANCE_ATTENUATION, [1, 0.5, -0.25])"},
      {[&] { glPointParameterxv(GL_POINT_SIZE_MAX, four); },
       "glPointParameterfv(GL_POINT_SIZE_MAX, [1])"},
      {[] { glPointSizex(5 * half); }, "glPointSize(2.5)"},
      {[] { glPolygonOffsetx(-one, 3 * one); }, "glPolygonOffset(-1, 3)"},
      {[] { glRotatex(45 * one, 0, one, 0); }, "glRotatef(45, 0, 1, 0)"},
      {[] { glSampleCoveragex(half, GL_TRUE); }, "glSampleCoverage(0.5, 1)"},
      {[] { glScalex(2 * one, half, one); }, "glScalef(2, 0.5, 1)"},
      {[] { glTexEnvx(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE); },
       "glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, 8448)"},
      {[] { glTexEnvx(GL_TEXTURE_ENV, GL_RGB_SCALE, 2 * one); },
       "glTexEnvf(GL_TEXTURE_ENV, GL_RGB_SCALE, 2)"},
      {[&] { glTexEnvxv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, four); },
       "glTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, [1, 0.5, -0.25, 2])"},
      {[] { glTexParameterx(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE); },
       "glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, 33071)"},
      {[] {
         const GLfixed filter = GL_LINEAR_MIPMAP_NEAREST;
         glTexParameterxv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &filter);
       },
       "glTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, [9985])"},
      {[] { glTranslatex(one, -half, 3 * one); }, "glTranslatef(1, -0.5, 3)"},
  };
  RecordingDriver recording;
  for (const auto& item : cases) {
    item.call();
    EXPECT_THAT(recording.take(), ElementsAre(item.expected));
  }
}

TEST(FixedForms, ReadNoMoreValuesThanAParameterHas) {
  RecordingDriver recording;
  // Allocated to the byte, so that the address sanitizer sees a read of a second value.
  const std::vector<GLfixed> single(1, one);
  glLightxv(GL_LIGHT0, GL_SPOT_EXPONENT, single.data());
  glMaterialxv(GL_FRONT_AND_BACK, GL_SHININESS, single.data());
  glFogxv(GL_FOG_END, single.data());
  glLightxv(GL_LIGHT0, 0x9999, single.data());
  EXPECT_THAT(recording.take(),
              ElementsAre("glLightfv(GL_LIGHT0, GL_SPOT_EXPONENT, [1])",
                          "glMaterialfv(GL_FRONT_AND_BACK, GL_SHININESS, [1])",
                          "glFogfv(GL_FOG_END, [1])", "glLightfv(GL_LIGHT0, 0x9999, [1])"));
}

TEST(FixedQueries, WriteAsManyValuesAsTheParameterHas) {
  const struct {
    GLenum name;
    std::size_t count;
  } cases[] = {
      {GL_SMOOTH_POINT_SIZE_RANGE, 2},
      {GL_SMOOTH_LINE_WIDTH_RANGE, 2},
      {GL_DEPTH_RANGE, 2},
      {GL_ALIASED_POINT_SIZE_RANGE, 2},
      {GL_ALIASED_LINE_WIDTH_RANGE, 2},
      {GL_MAX_VIEWPORT_DIMS, 2},
      {GL_CURRENT_NORMAL, 3},
      {GL_POINT_DISTANCE_ATTENUATION, 3},
      {GL_LIGHT_MODEL_AMBIENT, 4},
      {GL_FOG_COLOR, 4},
      {GL_VIEWPORT, 4},
      {GL_SCISSOR_BOX, 4},
      {GL_COLOR_CLEAR_VALUE, 4},
      {GL_COLOR_WRITEMASK, 4},
      {GL_CURRENT_COLOR, 4},
      {GL_CURRENT_TEXTURE_COORDS, 4},
      {GL_MODELVIEW_MATRIX, 16},
      {GL_PROJECTION_MATRIX, 16},
      {GL_TEXTURE_MATRIX, 16},
      {GL_FOG_DENSITY, 1},
      {GL_LINE_WIDTH, 1},
      {GL_MAX_LIGHTS, 1},
  };
  RecordingDriver recording;
  for (const auto& item : cases) {
    std::vector<double> answer;
    std::vector<GLfixed> expected(20, 0x55555555);
    for (std::size_t i = 0; i < item.count; ++i) {
      answer.push_back(0.5 * static_cast<double>(i) - 1.0);
      expected[i] = static_cast<GLfixed>(i) * half - one;
    }
    recording.answer(item.name, answer);
    std::vector<GLfixed> values(20, 0x55555555);
    glGetFixedv(item.name, values.data());
    EXPECT_THAT(values, ElementsAreArray(expected)) << item.name;
  }
}

TEST(FixedQueries, ModelviewMatrixHasSixteenValues) {
  RecordingDriver recording;
  std::vector<double> matrix;
  for (int i = 0; i < 16; ++i) {
    matrix.push_back(i + 0.25);
  }
  recording.answer(GL_MODELVIEW_MATRIX, matrix);
  std::vector<GLfixed> values(16, -1);
  glGetFixedv(GL_MODELVIEW_MATRIX, values.data());
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(values[static_cast<std::size_t>(i)], i * one + quarter);
  }
}

TEST(FixedQueries, CompressedFormatsAreAsManyAsTheDriverTells) {
  RecordingDriver recording;
  recording.answer(GL_NUM_COMPRESSED_TEXTURE_FORMATS, {3});
  recording.answer(GL_COMPRESSED_TEXTURE_FORMATS, {1, 2, 40000});
  GLfixed values[4] = {-1, -1, -1, -1};
  glGetFixedv(GL_COMPRESSED_TEXTURE_FORMATS, values);
  EXPECT_THAT(values, ElementsAre(one, 2 * one, 0x7FFFFFFF, -1));
}

TEST(FixedQueries, OfObjectsConvertBackAndPassEnumerationsThrough) {
  RecordingDriver recording;
  recording.answer(GL_SPOT_DIRECTION, {0, -1, 0.5});
  recording.answer(GL_DIFFUSE, {1, 0.5, 0.25, 0});
  recording.answer(GL_SHININESS, {12.5});
  recording.answer(GL_TEXTURE_ENV_COLOR, {0, 0.5, 1, 0.25});
  recording.answer(GL_TEXTURE_ENV_MODE, {GL_DECAL});
  recording.answer(GL_RGB_SCALE, {4});
  recording.answer(GL_TEXTURE_WRAP_T, {GL_REPEAT});
  recording.answer(GL_CLIP_PLANE1, {0, 1, 0, -0.5});
  const struct {
    std::function<void(GLfixed*)> query;
    std::vector<GLfixed> expected;
  } cases[] = {
      {[](GLfixed* out) { glGetLightxv(GL_LIGHT2, GL_SPOT_DIRECTION, out); }, {0, -one, half}},
      {[](GLfixed* out) { glGetMaterialxv(GL_FRONT, GL_DIFFUSE, out); }, {one, half, quarter, 0}},
      {[](GLfixed* out) { glGetMaterialxv(GL_FRONT, GL_SHININESS, out); }, {25 * half}},
      {[](GLfixed* out) { glGetTexEnvxv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, out); },
       {0, half, one, quarter}},
      {[](GLfixed* out) { glGetTexEnvxv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, out); }, {GL_DECAL}},
      {[](GLfixed* out) { glGetTexEnvxv(GL_TEXTURE_ENV, GL_RGB_SCALE, out); }, {4 * one}},
      {[](GLfixed* out) { glGetTexParameterxv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, out); },
       {GL_REPEAT}},
      {[](GLfixed* out) { glGetClipPlanex(GL_CLIP_PLANE1, out); }, {0, one, 0, -half}},
  };
  for (const auto& item : cases) {
    std::vector<GLfixed> values(6, 0x55555555);
    std::vector<GLfixed> expected = item.expected;
    expected.resize(6, 0x55555555);
    item.query(values.data());
    EXPECT_THAT(values, ElementsAreArray(expected));
  }
}

TEST(FixedQueries, LeaveTheValuesAloneThatTheDriverRefusesToAnswer) {
  RecordingDriver recording;
  GLfixed value = 77;
  glGetFixedv(0x9999, &value);
  glGetLightxv(GL_LIGHT0, 0x9999, &value);
  glGetTexEnvxv(GL_TEXTURE_ENV, 0x9999, &value);
  EXPECT_EQ(value, 77);
}

}  // namespace
