#include "tests/support/allocation_count.h"

#include <gtest/gtest.h>

#include <memory>

namespace varnel_test {
namespace {

TEST(AllocationCount, SeesEveryNew) {
  const unsigned long before = allocationCount();
  const std::unique_ptr<int[]> numbers(new int[before > 0 ? 100 : 200]);
  numbers[0] = 1;
  EXPECT_EQ(allocationCount(), before + 1);
}

}  // namespace
}  // namespace varnel_test
