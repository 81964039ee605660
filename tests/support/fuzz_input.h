#ifndef VARNEL_TESTS_SUPPORT_FUZZ_INPUT_H
#define VARNEL_TESTS_SUPPORT_FUZZ_INPUT_H

#include <cstddef>
#include <cstdint>

namespace varnel_test {

// Each takes any bytes as a file of its kind and returns when the load has ended in a result, in an
// exception that a load may end in or in the vector's subscript assertion, which some tests of
// indices rest on. Any other end is the process's.

void loadAsM3g(const std::uint8_t* data, std::size_t size);
/// Loads the bytes as they stand, and with the sums of their chunks put right.
void loadAsPng(const std::uint8_t* data, std::size_t size);
void loadAsJpeg(const std::uint8_t* data, std::size_t size);

}  // namespace varnel_test

#endif
