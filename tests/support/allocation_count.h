#ifndef VARNEL_TESTS_SUPPORT_ALLOCATION_COUNT_H
#define VARNEL_TESTS_SUPPORT_ALLOCATION_COUNT_H

namespace varnel_test {

/// How often this test program has called operator new, in any of its forms but the aligned ones.
/// Only programs that ask are counted.
unsigned long allocationCount();

}  // namespace varnel_test

#endif
