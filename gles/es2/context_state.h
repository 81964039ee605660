#ifndef VARNEL_GLES_ES2_CONTEXT_STATE_H
#define VARNEL_GLES_ES2_CONTEXT_STATE_H

#include <array>
#include <deque>
#include <string>
#include <vector>

#include <GLES2/gl2.h>

#include "gles/buffer_record.h"
#include "gles/memory.h"

namespace gles::es2 {

/// One generic vertex attribute, as its pointer command gave it.
struct AttributeState {
  bool enabled = false;
  int size = 4;
  unsigned type = GL_FLOAT;
  bool normalized = false;
  int stride = 0;
  /// Client memory, or an offset in the buffer object.
  const void* pointer = nullptr;
  /// The buffer object that was bound when the pointer was given; 0 for client memory.
  unsigned bufferName = 0;
  /// The converted floats of client memory, and their capacity.
  Block converted;
};

/// The source of a shader as the client gave it.
struct ShaderSource {
  unsigned shader = 0;
  std::string text;
};

/// The state of one EGL context that desktop OpenGL has no place for.
struct ContextState {
  /// GL_MAX_VERTEX_ATTRIBS of them, once the driver has been asked; see `attributeCount`.
  std::deque<AttributeState> attributes;
  /// The constant value of attribute 0, which desktop OpenGL keeps for vertices.
  std::array<float, 4> attributeZero{0, 0, 0, 1};
  std::vector<ShaderSource> shaderSources;
  BufferObjects buffers;
  /// GL_INVALID_ENUM or GL_INVALID_VALUE that this layer found; GL_NO_ERROR for none.
  unsigned error = GL_NO_ERROR;
  /// A draw has happened since the last `glFinish`.
  bool conversionDirty = false;
  int packAlignment = 4;
  int unpackAlignment = 4;
};

/// The current state; null for none.
extern ContextState* current;

/// Generic attributes of the current state. Asks the driver the first time, which needs a current
/// OpenGL context.
unsigned attributeCount();

/// Keeps an error for `glGetError`, unless an older one still waits there.
void setError(unsigned error);

}  // namespace gles::es2

#endif  // VARNEL_GLES_ES2_CONTEXT_STATE_H
