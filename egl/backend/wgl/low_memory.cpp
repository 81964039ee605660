#include "egl/backend/low_memory.h"

#include <windows.h>

#include <cstdint>

void* portAllocateLow(std::size_t size) {
  if (size == 0) {
    return nullptr;
  }
  if constexpr (sizeof(void*) == 4) {
    return VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
  }
  constexpr std::uint64_t end = std::uint64_t{1} << 32;
  for (std::uint64_t hint = 0x10000000; hint + size <= end; hint += 0x1000000) {
    void* wish = reinterpret_cast<void*>(static_cast<std::uintptr_t>(hint));
    if (void* block = VirtualAlloc(wish, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE)) {
      return block;
    }
  }
  return nullptr;
}

void portFreeLow(void* block, std::size_t) {
  if (block) {
    VirtualFree(block, 0, MEM_RELEASE);
  }
}
