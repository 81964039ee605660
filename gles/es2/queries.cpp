// Queries: what desktop OpenGL lacks is answered here.

#include <optional>

#include "gles/desktop_enums.h"
#include "gles/driver/driver.h"
#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

namespace {

int driverInteger(unsigned name) {
  int value = 0;
  driver.glGetIntegerv(name, &value);
  return value;
}

std::optional<int> contextValue(unsigned name) {
  if (!current) {
    return std::nullopt;
  }
  switch (name) {
    case GL_ARRAY_BUFFER_BINDING:
      return static_cast<int>(current->buffers.boundArrayBuffer);
    case GL_ELEMENT_ARRAY_BUFFER_BINDING:
      return static_cast<int>(current->buffers.boundElementBuffer);
    case GL_MAX_VERTEX_ATTRIBS:
      return static_cast<int>(attributeCount());
    // Desktop OpenGL counts components, of which a vector has four.
    case GL_MAX_VERTEX_UNIFORM_VECTORS:
      return driverInteger(desktop::MAX_VERTEX_UNIFORM_COMPONENTS) / 4;
    case GL_MAX_FRAGMENT_UNIFORM_VECTORS:
      return driverInteger(desktop::MAX_FRAGMENT_UNIFORM_COMPONENTS) / 4;
    case GL_MAX_VARYING_VECTORS:
      return driverInteger(desktop::MAX_VARYING_FLOATS) / 4;
    case GL_SHADER_COMPILER:
      return GL_TRUE;
    case GL_NUM_SHADER_BINARY_FORMATS:
      return 0;
    case GL_IMPLEMENTATION_COLOR_READ_TYPE:
      return GL_UNSIGNED_BYTE;
    case GL_IMPLEMENTATION_COLOR_READ_FORMAT:
      return GL_RGBA;
    default:
      return std::nullopt;
  }
}

template <class Value, class Query>
void answer(GLenum name, Value* values, Query query) {
  if (name == GL_SHADER_BINARY_FORMATS && current) {
    return;  // There are none.
  }
  if (const auto value = contextValue(name)) {
    *values = static_cast<Value>(*value);
  } else {
    query(name, values);
  }
}

}  // namespace

void glGetBooleanv(GLenum pname, GLboolean* data) {
  if (const auto value = contextValue(pname)) {
    *data = *value != 0;
  } else {
    answer(pname, data, driver.glGetBooleanv);
  }
}

void glGetFloatv(GLenum pname, GLfloat* data) {
  answer(pname, data, driver.glGetFloatv);
}

void glGetIntegerv(GLenum pname, GLint* data) {
  answer(pname, data, driver.glGetIntegerv);
}

}  // namespace gles::es2
