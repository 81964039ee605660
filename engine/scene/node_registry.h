#ifndef VARNEL_ENGINE_SCENE_NODE_REGISTRY_H
#define VARNEL_ENGINE_SCENE_NODE_REGISTRY_H

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <unordered_map>
#include <vector>

namespace varnel_m3g {

/// A list of distinct objects in order of adding. Adding and removing take constant time on the
/// whole: a removed object leaves a gap, and the gaps are closed when the list is read and before
/// they outnumber the objects.
template <class T>
class NodeRegistry {
 public:
  /// Appends the object if it is not there.
  void add(const boost::shared_ptr<T>& object) {
    if (slots.size() > 2 * positions.size() + LEAST_GAPS) {
      closeGaps();
    }
    if (positions.emplace(object.get(), slots.size()).second) {
      slots.push_back(object);
    }
  }

  /// Takes the object out if it is there.
  void remove(const boost::shared_ptr<T>& object) {
    auto found = positions.find(object.get());
    if (found != positions.end()) {
      slots[found->second].reset();
      positions.erase(found);
    }
  }

  /// The objects, none of them empty.
  const std::vector<boost::shared_ptr<T>>& entries() {
    if (slots.size() != positions.size()) {
      closeGaps();
    }
    return slots;
  }

 private:
  // So many gaps are not worth the walk.
  static constexpr std::size_t LEAST_GAPS = 16;

  void closeGaps() {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < slots.size(); ++i) {
      if (slots[i]) {
        positions[slots[i].get()] = kept;
        slots[kept++].swap(slots[i]);
      }
    }
    slots.resize(kept);
  }

  std::vector<boost::shared_ptr<T>> slots;
  std::unordered_map<const T*, std::size_t> positions;
};

}  // namespace varnel_m3g

#endif
