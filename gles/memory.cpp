#include "gles/memory.h"

#include <cstdlib>

namespace gles {

void* (*reallocate)(void* block, std::size_t size) = std::realloc;

Block::~Block() {
  std::free(data);
}

bool Block::reserve(std::size_t size) {
  if (size <= capacity && data) {
    return true;
  }
  void* grown = reallocate(data, size ? size : 1);
  if (!grown) {
    return false;
  }
  data = static_cast<unsigned char*>(grown);
  capacity = size;
  return true;
}

}  // namespace gles
