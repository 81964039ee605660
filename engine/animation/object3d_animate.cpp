// The animate pass of Object3D: sampling the tracks of one object, and the walk over all that it
// refers to.

#include <algorithm>
#include <limits>
#include <utility>

#include "engine/animation/animation_controller.h"
#include "engine/animation/animation_track.h"
#include "engine/object/object3d.h"

namespace varnel_m3g {

namespace {

constexpr int never = std::numeric_limits<int>::max();

// Leaves the way down empty however the pass ends.
template <class Path>
class Pass {
 public:
  explicit Pass(Path& path) : path(path) {}
  Pass(const Pass&) = delete;
  Pass& operator=(const Pass&) = delete;
  ~Pass() { path.clear(); }

 private:
  Path& path;
};

}  // namespace

int Object3D::animate(int worldTime) {
  const Pass pass(animationPath);
  int validity = never;
  const auto enter = [this, worldTime, &validity](Object3D& object) {
    validity = std::min(validity, object.animateSelf(worldTime));
    animationPath.push_back({&object, object.cacheCurrentReferences(), 0});
  };
  enter(*this);
  while (!animationPath.empty()) {
    AnimationStep& step = animationPath.back();
    if (step.next < step.count) {
      enter(*step.object->referenceCache[step.next++]);
      continue;
    }
    if (!step.object->cacheReferences) {
      step.object->freeReferenceCache();
    }
    animationPath.pop_back();
  }
  return validity;
}

int Object3D::animateSelf(int worldTime) {
  // The entries move over with their memory.
  spareAnimationValues.merge(animationValues);
  const int validity = sampleTracks(worldTime);
  applyAnimationValues();
  return validity;
}

int Object3D::sampleTracks(int worldTime) {
  int validity = never;
  for (const boost::shared_ptr<AnimationTrack>& track : animationTracks) {
    const AnimationController* controller = track->getController().get();
    if (controller == nullptr || !controller->isActive(worldTime)) {
      continue;
    }
    validity = std::min(validity, controller->timeToActivation(worldTime));
    int count = 0;
    const float* values = track->sample(worldTime, &count);
    if (count >= 1) {
      addAnimationValues(static_cast<unsigned>(track->getTargetProperty()), count, values);
    }
  }
  return validity;
}

void Object3D::addAnimationValues(unsigned property, int count, const float* values) {
  const auto present = animationValues.find(property);
  if (present != animationValues.end()) {
    present->second.add(count, values);
    return;
  }
  auto spare = spareAnimationValues.extract(property);
  if (spare.empty()) {
    animationValues.try_emplace(property, count, values);
    return;
  }
  spare.mapped().set(count, values);
  animationValues.insert(std::move(spare));
}

unsigned Object3D::cacheCurrentReferences() {
  const unsigned count = getReferences(nullptr, 0);
  if (referenceCache == nullptr || count > referenceCacheSize) {
    freeReferenceCache();
    if (count > 0) {
      referenceCache = new boost::shared_ptr<Object3D>[count];
      referenceCacheSize = count;
    }
  }
  if (count > 0) {
    getReferences(referenceCache, count);
  }
  return count;
}

void Object3D::freeReferenceCache() {
  delete[] referenceCache;
  referenceCache = nullptr;
  referenceCacheSize = 0;
}

}  // namespace varnel_m3g
