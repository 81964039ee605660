#include "gles/es1/context_state.h"

#include <algorithm>
#include <new>

#include "gles/driver/driver.h"

namespace gles::es1 {

ContextState* current = nullptr;
int textureStackDepth = -1;

ContextState* createContextState() {
  try {
    return new ContextState;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void destroyContextState(ContextState* state) {
  if (current == state) {
    current = nullptr;
  }
  delete state;
}

unsigned unitCount() {
  if (!current->unitsCounted) {
    int count = 0;
    driver.glGetIntegerv(GL_MAX_TEXTURE_UNITS, &count);
    constexpr int mostUnits = 32;  // GL_TEXTURE31 is the last name there is.
    current->units.resize(static_cast<std::size_t>(std::clamp(count, 2, mostUnits)));
    current->unitsCounted = true;
  }
  return static_cast<unsigned>(current->units.size());
}

UnitState* unitOf(unsigned texture) {
  const unsigned index = texture - GL_TEXTURE0;
  return index < 2 || index < unitCount() ? &current->units[index] : nullptr;
}

ArrayState* arrayOf(unsigned name) {
  switch (name) {
    case GL_VERTEX_ARRAY:
      return &current->vertexArray;
    case GL_NORMAL_ARRAY:
      return &current->normalArray;
    case GL_COLOR_ARRAY:
      return &current->colorArray;
    case GL_TEXTURE_COORD_ARRAY:
      return &unitOf(current->clientActiveTexture)->texCoordArray;
    default:
      return nullptr;
  }
}

}  // namespace gles::es1
