// The track list of Object3D, which needs the complete AnimationTrack.

#include <algorithm>
#include <stdexcept>

#include "engine/animation/animation_track.h"
#include "engine/object/object3d.h"

namespace varnel_m3g {

boost::shared_ptr<Object3D> Object3D::asObject(const boost::shared_ptr<AnimationTrack>& track) {
  return track;
}

void Object3D::addAnimationTrack(const boost::shared_ptr<AnimationTrack>& track) {
  if (!track) {
    throw std::invalid_argument("attempt to add null AnimationTrack");
  }
  if (std::find(animationTracks.begin(), animationTracks.end(), track) != animationTracks.end()) {
    throw std::invalid_argument("attempt to add an AnimationTrack multiple times");
  }
  animationTracks.push_back(track);
}

void Object3D::removeAnimationTrack(const boost::shared_ptr<AnimationTrack>& track) {
  const auto place = std::find(animationTracks.begin(), animationTracks.end(), track);
  if (place != animationTracks.end()) {
    animationTracks.erase(place);
  }
}

const boost::shared_ptr<AnimationTrack>& Object3D::getAnimationTrack(unsigned index) {
  static const boost::shared_ptr<AnimationTrack> none;
  if (animationTracks.empty()) {
    return none;
  }
  if (index >= animationTracks.size()) {
    throw std::out_of_range("Object3D::getAnimationTrack index out of range.");
  }
  return animationTracks[index];
}

}  // namespace varnel_m3g
