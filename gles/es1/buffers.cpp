// Buffer objects.

#include <GLES/gl.h>

#include "gles/buffer_record.h"
#include "gles/driver/driver.h"
#include "gles/es1/context_state.h"

namespace {

using namespace gles;
using es1::current;

// An array that loses its buffer has no data any more: its offset must never become an address.
void detachArray(es1::ArrayState& array, unsigned name) {
  if (array.bufferName == name) {
    array.bufferName = 0;
    array.pointer = nullptr;
  }
}

}  // namespace

extern "C" {

void GL_APIENTRY glBindBuffer(GLenum target, GLuint buffer) {
  if (current) {
    bindBuffer(current->buffers, target, buffer);
  }
}

void GL_APIENTRY glBufferData(GLenum target, GLsizeiptr size, const void* data, GLenum usage) {
  if (current) {
    bufferData(current->buffers, target, size, data, usage);
  }
}

void GL_APIENTRY glBufferSubData(GLenum target, GLintptr offset, GLsizeiptr size,
                                 const void* data) {
  if (current) {
    bufferSubData(current->buffers, target, offset, size, data);
  }
}

void GL_APIENTRY glDeleteBuffers(GLsizei n, const GLuint* buffers) {
  if (!current || !driver.glDeleteBuffers) {
    return;
  }
  for (GLsizei i = 0; i < n && buffers; ++i) {
    if (buffers[i] == 0) {
      continue;
    }
    detachArray(current->vertexArray, buffers[i]);
    detachArray(current->normalArray, buffers[i]);
    detachArray(current->colorArray, buffers[i]);
    for (es1::UnitState& unit : current->units) {
      detachArray(unit.texCoordArray, buffers[i]);
    }
  }
  deleteBuffers(current->buffers, n, buffers);
}

void GL_APIENTRY glGenBuffers(GLsizei n, GLuint* buffers) {
  if (current) {
    driver.glGenBuffers(n, buffers);
  }
}

void GL_APIENTRY glGetBufferParameteriv(GLenum target, GLenum pname, GLint* params) {
  if (current) {
    getBufferParameter(current->buffers, target, pname, params);
  }
}

GLboolean GL_APIENTRY glIsBuffer(GLuint buffer) {
  return current ? isBuffer(current->buffers, buffer) : static_cast<GLboolean>(GL_FALSE);
}

}  // extern "C"
