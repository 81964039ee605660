#ifndef VARNEL_GLES_MEMORY_H
#define VARNEL_GLES_MEMORY_H

#include <cstddef>

namespace gles {

/// What the layers resize their copies of array and buffer data with: `std::realloc` unless a test
/// puts a failing one in its place.
extern void* (*reallocate)(void* block, std::size_t size);

/// A growing block of bytes with `malloc`'s manners: a failed growth is answered, not raised, and
/// leaves the block as it was.
struct Block {
  Block() = default;
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  ~Block();

  /// Makes room for at least `size` bytes, keeping the contents. False when memory is short.
  bool reserve(std::size_t size);

  unsigned char* data = nullptr;
  std::size_t capacity = 0;
};

}  // namespace gles

#endif  // VARNEL_GLES_MEMORY_H
