#include "tests/support/allocation_count.h"

#include <cstdlib>
#include <new>

namespace {

unsigned long allocations = 0;

void* counted(std::size_t size) {
  ++allocations;
  return std::malloc(size == 0 ? 1 : size);
}

}  // namespace

void* operator new(std::size_t size) {
  void* const block = counted(size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  return block;
}

void* operator new[](std::size_t size) {
  return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return counted(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return counted(size);
}

void operator delete(void* block) noexcept {
  std::free(block);
}

void operator delete[](void* block) noexcept {
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
  std::free(block);
}

namespace varnel_test {

unsigned long allocationCount() {
  return allocations;
}

}  // namespace varnel_test
