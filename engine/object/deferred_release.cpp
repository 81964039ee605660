#include "engine/object/deferred_release.h"

#include <utility>
#include <vector>

namespace varnel_m3g {

namespace {

// Points into the outermost release of this thread. A plain pointer, since objects with static
// storage die after the thread-local ones of their thread.
thread_local std::vector<boost::shared_ptr<void>>* waiting = nullptr;

}  // namespace

void releaseDeferred(boost::shared_ptr<void> reference) {
  if (waiting != nullptr) {
    waiting->push_back(std::move(reference));
    return;
  }
  std::vector<boost::shared_ptr<void>> queue;
  waiting = &queue;
  reference.reset();
  while (!queue.empty()) {
    boost::shared_ptr<void> next = std::move(queue.back());
    queue.pop_back();
    next.reset();
  }
  waiting = nullptr;
}

}  // namespace varnel_m3g
