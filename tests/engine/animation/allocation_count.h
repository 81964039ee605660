#ifndef VARNEL_TESTS_ENGINE_ANIMATION_ALLOCATION_COUNT_H
#define VARNEL_TESTS_ENGINE_ANIMATION_ALLOCATION_COUNT_H

namespace varnel_test {

/// How often this test program has called operator new, in any of its forms.
unsigned long allocationCount();

}  // namespace varnel_test

#endif
