#include <sys/mman.h>

#include <cstdint>

#include "egl/backend/low_memory.h"

namespace {

bool isLow(const void* block, std::size_t size) {
  const auto address = reinterpret_cast<std::uintptr_t>(block);
  return sizeof(void*) == 4 || address + size <= (std::uintptr_t{1} << 32);
}

void* mapAt(void* hint, std::size_t size, int flags) {
  void* block =
      mmap(hint, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | flags, -1, 0);
  if (block == MAP_FAILED) {
    return nullptr;
  }
  if (!isLow(block, size)) {
    munmap(block, size);
    return nullptr;
  }
  return block;
}

}  // namespace

void* portAllocateLow(std::size_t size) {
  if (size == 0) {
    return nullptr;
  }
#ifdef MAP_32BIT
  if (void* block = mapAt(nullptr, size, MAP_32BIT)) {
    return block;
  }
#endif
  // Elsewhere the kernel takes an address as a wish: try one every 16 MiB.
  for (std::uint64_t hint = 0x10000000; hint < 0xF0000000; hint += 0x1000000) {
    void* wish = reinterpret_cast<void*>(static_cast<std::uintptr_t>(hint));
    if (void* block = mapAt(wish, size, 0)) {
      return block;
    }
  }
  return nullptr;
}

void portFreeLow(void* block, std::size_t size) {
  if (block) {
    munmap(block, size);
  }
}
