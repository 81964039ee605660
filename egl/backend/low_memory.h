#ifndef VARNEL_EGL_BACKEND_LOW_MEMORY_H
#define VARNEL_EGL_BACKEND_LOW_MEMORY_H

#include <cstddef>

// Memory whose address fits a 32-bit attribute. Each port defines these functions.

/// Zeroed memory below 4 GiB; null if there is none. Freed by portFreeLow with the same size.
void* portAllocateLow(std::size_t size);
/// Null is allowed.
void portFreeLow(void* block, std::size_t size);

#endif
