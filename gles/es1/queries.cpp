// Queries: what the driver knows is forwarded, what it cannot know is answered from the context.

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include <GLES/gl.h>

#include "gles/driver/driver.h"
#include "gles/es1/context_state.h"
#include "gles/es1/parameters.h"
#include "gles/fixed_point.h"

namespace {

using namespace gles;
using es1::current;
using es1::mostValues;

// Arrays that the driver has as floats, and element buffers, which it does not have at all, are
// answered as the client gave them.
std::optional<int> contextValue(unsigned name) {
  if (!current) {
    return std::nullopt;
  }
  const auto coordinates = [] { return es1::arrayOf(GL_TEXTURE_COORD_ARRAY); };
  const auto number = [](unsigned value) { return static_cast<int>(value); };
  switch (name) {
    case GL_VERTEX_ARRAY_SIZE:
      return current->vertexArray.size;
    case GL_VERTEX_ARRAY_TYPE:
      return number(current->vertexArray.type);
    case GL_VERTEX_ARRAY_STRIDE:
      return current->vertexArray.stride;
    case GL_VERTEX_ARRAY_BUFFER_BINDING:
      return number(current->vertexArray.bufferName);
    case GL_NORMAL_ARRAY_TYPE:
      return number(current->normalArray.type);
    case GL_NORMAL_ARRAY_STRIDE:
      return current->normalArray.stride;
    case GL_NORMAL_ARRAY_BUFFER_BINDING:
      return number(current->normalArray.bufferName);
    case GL_COLOR_ARRAY_SIZE:
      return current->colorArray.size;
    case GL_COLOR_ARRAY_TYPE:
      return number(current->colorArray.type);
    case GL_COLOR_ARRAY_STRIDE:
      return current->colorArray.stride;
    case GL_COLOR_ARRAY_BUFFER_BINDING:
      return number(current->colorArray.bufferName);
    case GL_TEXTURE_COORD_ARRAY_SIZE:
      return coordinates()->size;
    case GL_TEXTURE_COORD_ARRAY_TYPE:
      return number(coordinates()->type);
    case GL_TEXTURE_COORD_ARRAY_STRIDE:
      return coordinates()->stride;
    case GL_TEXTURE_COORD_ARRAY_BUFFER_BINDING:
      return number(coordinates()->bufferName);
    case GL_ARRAY_BUFFER_BINDING:
      return number(current->buffers.boundArrayBuffer);
    case GL_ELEMENT_ARRAY_BUFFER_BINDING:
      return number(current->buffers.boundElementBuffer);
    default:
      return std::nullopt;
  }
}

// The floats that a query writes. Those it leaves alone, as a refused query does, stay NaN.
class Answer {
 public:
  explicit Answer(int count) : values_(static_cast<std::size_t>(count), unanswered) {
    values_.resize(static_cast<std::size_t>(std::max(count, mostValues)), unanswered);
  }

  float* values() { return values_.data(); }

  void store(int count, bool enumerated, GLfixed* out) const {
    for (int i = 0; i < count; ++i) {
      const float value = values_[static_cast<std::size_t>(i)];
      if (!std::isnan(value)) {
        out[i] = enumerated ? static_cast<GLfixed>(value) : floatToFixed(value);
      }
    }
  }

 private:
  static constexpr float unanswered = std::numeric_limits<float>::quiet_NaN();

  std::vector<float> values_;
};

}  // namespace

extern "C" {

void GL_APIENTRY glGetIntegerv(GLenum pname, GLint* data) {
  if (const auto value = contextValue(pname)) {
    *data = *value;
  } else {
    driver.glGetIntegerv(pname, data);
  }
}

void GL_APIENTRY glGetFloatv(GLenum pname, GLfloat* data) {
  if (const auto value = contextValue(pname)) {
    *data = static_cast<float>(*value);
  } else {
    driver.glGetFloatv(pname, data);
  }
}

void GL_APIENTRY glGetBooleanv(GLenum pname, GLboolean* data) {
  if (const auto value = contextValue(pname)) {
    *data = *value != 0;
  } else {
    driver.glGetBooleanv(pname, data);
  }
}

void GL_APIENTRY glGetFixedv(GLenum pname, GLfixed* params) {
  const int count = es1::queryCount(pname);
  Answer answer(count);
  glGetFloatv(pname, answer.values());
  answer.store(count, false, params);
}

void GL_APIENTRY glGetClipPlanex(GLenum plane, GLfixed* equation) {
  Answer answer(4);
  glGetClipPlanef(plane, answer.values());
  answer.store(4, false, equation);
}

void GL_APIENTRY glGetLightxv(GLenum light, GLenum pname, GLfixed* params) {
  Answer answer(es1::parameterCount(pname));
  glGetLightfv(light, pname, answer.values());
  answer.store(es1::parameterCount(pname), false, params);
}

void GL_APIENTRY glGetMaterialxv(GLenum face, GLenum pname, GLfixed* params) {
  Answer answer(es1::parameterCount(pname));
  glGetMaterialfv(face, pname, answer.values());
  answer.store(es1::parameterCount(pname), false, params);
}

void GL_APIENTRY glGetTexEnvxv(GLenum target, GLenum pname, GLfixed* params) {
  Answer answer(es1::parameterCount(pname));
  glGetTexEnvfv(target, pname, answer.values());
  answer.store(es1::parameterCount(pname), es1::isEnumerated(pname), params);
}

void GL_APIENTRY glGetTexParameterxv(GLenum target, GLenum pname, GLfixed* params) {
  Answer answer(es1::parameterCount(pname));
  glGetTexParameterfv(target, pname, answer.values());
  answer.store(es1::parameterCount(pname), es1::isEnumerated(pname), params);
}

}  // extern "C"
