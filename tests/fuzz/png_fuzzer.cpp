#include "tests/support/fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  varnel_test::loadAsPng(data, size);
  return 0;
}
