#include "engine/object/deferred_release.h"

#include <algorithm>
#include <cstddef>
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
  std::reverse(queue.begin(), queue.end());
  while (!queue.empty()) {
    boost::shared_ptr<void> next = std::move(queue.back());
    queue.pop_back();
    const std::size_t before = queue.size();
    next.reset();
    // What came last is taken first: turned over, all ends in the order of a recursion.
    std::reverse(queue.begin() + static_cast<std::ptrdiff_t>(before), queue.end());
  }
  waiting = nullptr;
}

}  // namespace varnel_m3g
