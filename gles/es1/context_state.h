#ifndef VARNEL_GLES_ES1_CONTEXT_STATE_H
#define VARNEL_GLES_ES1_CONTEXT_STATE_H

#include <array>
#include <cstddef>
#include <deque>
#include <utility>
#include <vector>

#include <GLES/gl.h>

#include "gles/array_conversion.h"
#include "gles/buffer_record.h"
#include "gles/memory.h"

namespace gles::es1 {

/// One client-side vertex array, as its pointer command gave it.
struct ArrayState {
  bool enabled = false;
  int size = 4;
  unsigned type = GL_FLOAT;
  int stride = 0;
  /// Client memory, or an offset in the buffer object.
  const void* pointer = nullptr;
  /// The buffer object that was bound when the pointer was given; 0 for client memory.
  unsigned bufferName = 0;
  /// The converted floats of client memory, and their capacity.
  Block converted;
};

/// What a texture unit has in the context.
struct UnitState {
  ArrayState texCoordArray;
  /// The matrix that `glPushMatrix` keeps where the driver's texture stack is too shallow.
  std::array<float, 16> savedTextureMatrix{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};

/// The state of one EGL context that desktop OpenGL has no place for.
struct ContextState {
  ArrayState vertexArray;
  ArrayState normalArray;
  ArrayState colorArray;
  /// One for each texture unit of the driver, at least two; see `unitCount`. A deque, since the
  /// units stay where they are while it grows.
  std::deque<UnitState> units = std::deque<UnitState>(2);
  bool unitsCounted = false;
  unsigned clientActiveTexture = GL_TEXTURE0;
  unsigned activeTexture = GL_TEXTURE0;
  BufferObjects buffers;
  /// A draw has happened since the last `glFinish`.
  bool conversionDirty = false;
  unsigned matrixMode = GL_MODELVIEW;
  int packAlignment = 4;
  int unpackAlignment = 4;
};

/// The current state; null for none.
extern ContextState* current;

/// Depth of the driver's texture matrix stacks, read once for the process; -1 before.
extern int textureStackDepth;

/// A new state record; null when memory is short.
ContextState* createContextState();
/// Frees a state record; null is allowed.
void destroyContextState(ContextState* state);

/// Texture units of the current state. Asks the driver the first time, which needs a current OpenGL
/// context.
unsigned unitCount();

/// The unit that an enumerant GL_TEXTURE0 + n names; null if there is none.
UnitState* unitOf(unsigned texture);

/// The array that an enumerant of `glEnableClientState` names, texture coordinates of the client's
/// active unit; null for any other.
ArrayState* arrayOf(unsigned name);

/// Brings the enabled arrays that the driver cannot take into the driver as floats, for a draw of
/// the elements `first` to `last`, and takes those that have no data out of it. Undone when it
/// dies.
class PreparedArrays {
 public:
  explicit PreparedArrays(const ElementRange& range);
  PreparedArrays(const PreparedArrays&) = delete;
  PreparedArrays& operator=(const PreparedArrays&) = delete;
  ~PreparedArrays();

 private:
  void prepare(unsigned name, ArrayState& array, const ElementRange& range);

  /// Arrays that are off for this draw: name and texture unit.
  std::vector<std::pair<unsigned, unsigned>> dropped_;
};

/// Whether an array of that name (GL_VERTEX_ARRAY...) and component type has to be converted.
bool needsConversion(unsigned name, unsigned type);

}  // namespace gles::es1

#endif  // VARNEL_GLES_ES1_CONTEXT_STATE_H
