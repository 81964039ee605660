#ifndef VARNEL_TESTS_ENGINE_ANIMATION_ANIMATION_SCENE_H
#define VARNEL_TESTS_ENGINE_ANIMATION_ANIMATION_SCENE_H

#include <boost/shared_ptr.hpp>
#include <vector>

#include "engine/animation/animation_controller.h"
#include "engine/animation/animation_track.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/object/object3d.h"

namespace varnel_test {

/// A track that gives these values at any time, times the weight.
inline boost::shared_ptr<varnel_m3g::AnimationTrack> constantTrack(int property,
                                                                   const std::vector<float>& values,
                                                                   float weight = 1.0F) {
  using namespace varnel_m3g;
  const auto sequence =
      KeyframeSequence::create(1, static_cast<int>(values.size()), KeyframeSequence::STEP);
  sequence->setKeyframe(0, 0, values.data());
  const auto controller = AnimationController::create();
  controller->setWeight(weight);
  const auto track = AnimationTrack::create(sequence, property);
  track->setController(controller);
  return track;
}

/// Gives the object such a track.
inline void addConstantTrack(varnel_m3g::Object3D& object, int property,
                             const std::vector<float>& values, float weight = 1.0F) {
  object.addAnimationTrack(constantTrack(property, values, weight));
}

/// Removes all tracks.
inline void removeTracks(varnel_m3g::Object3D& object) {
  while (object.getAnimationTrackCount() > 0) {
    const auto track = object.getAnimationTrack(0);
    object.removeAnimationTrack(track);
  }
}

}  // namespace varnel_test

#endif
