#include "tests/support/small_stack.h"

#include <pthread.h>

#include <cstdlib>

namespace varnel_test {

namespace {

constexpr std::size_t stackBytes = 1 << 20;

void* runWork(void* work) {
  (*static_cast<const std::function<void()>*>(work))();
  return nullptr;
}

}  // namespace

void runOnSmallStack(const std::function<void()>& work) {
  pthread_attr_t attributes;
  pthread_t thread;
  std::function<void()> copy = work;
  if (pthread_attr_init(&attributes) != 0 ||
      pthread_attr_setstacksize(&attributes, stackBytes) != 0 ||
      pthread_create(&thread, &attributes, runWork, &copy) != 0) {
    std::abort();
  }
  pthread_attr_destroy(&attributes);
  pthread_join(thread, nullptr);
}

}  // namespace varnel_test
