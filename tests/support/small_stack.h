#ifndef VARNEL_TESTS_SUPPORT_SMALL_STACK_H
#define VARNEL_TESTS_SUPPORT_SMALL_STACK_H

#include <functional>

namespace varnel_test {

/// Runs `work` to its end on a thread with a stack of 1 MiB; it must not throw.
void runOnSmallStack(const std::function<void()>& work);

}  // namespace varnel_test

#endif
