// Buffer objects.

#include "gles/buffer_record.h"

#include "gles/driver/driver.h"
#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

void glBindBuffer(GLenum target, GLuint buffer) {
  if (current) {
    bindBuffer(current->buffers, target, buffer);
  }
}

void glBufferData(GLenum target, GLsizeiptr size, const void* data, GLenum usage) {
  if (current) {
    bufferData(current->buffers, target, size, data, usage);
  }
}

void glBufferSubData(GLenum target, GLintptr offset, GLsizeiptr size, const void* data) {
  if (current) {
    bufferSubData(current->buffers, target, offset, size, data);
  }
}

void glDeleteBuffers(GLsizei n, const GLuint* buffers) {
  if (!current || !driver.glDeleteBuffers) {
    return;
  }
  for (GLsizei i = 0; i < n && buffers; ++i) {
    for (AttributeState& attribute : current->attributes) {
      // An attribute that loses its buffer has no data any more: its offset is no address.
      if (buffers[i] != 0 && attribute.bufferName == buffers[i]) {
        attribute.bufferName = 0;
        attribute.pointer = nullptr;
      }
    }
  }
  deleteBuffers(current->buffers, n, buffers);
}

void glGenBuffers(GLsizei n, GLuint* buffers) {
  if (current) {
    driver.glGenBuffers(n, buffers);
  }
}

void glGetBufferParameteriv(GLenum target, GLenum pname, GLint* params) {
  if (current) {
    getBufferParameter(current->buffers, target, pname, params);
  }
}

GLboolean glIsBuffer(GLuint buffer) {
  return current ? isBuffer(current->buffers, buffer) : static_cast<GLboolean>(GL_FALSE);
}

}  // namespace gles::es2
