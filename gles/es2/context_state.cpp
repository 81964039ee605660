#include "gles/es2/context_state.h"

#include "gles/driver/driver.h"

namespace gles::es2 {

ContextState* current = nullptr;

unsigned attributeCount() {
  if (current->attributes.empty()) {
    int count = 0;
    driver.glGetIntegerv(GL_MAX_VERTEX_ATTRIBS, &count);
    current->attributes.resize(count > 0 ? static_cast<std::size_t>(count) : 16);
  }
  return static_cast<unsigned>(current->attributes.size());
}

void setError(unsigned error) {
  if (current->error == GL_NO_ERROR) {
    current->error = error;
  }
}

}  // namespace gles::es2
