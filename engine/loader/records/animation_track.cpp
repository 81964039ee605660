// AnimationTrack, after the Object3D section:
//   Index keyframeSequence, Index animationController, Int32 propertyID

#include "engine/animation/animation_track.h"

#include "engine/animation/animation_controller.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/loader/records/reference.h"

namespace varnel_m3g {

void AnimationTrack::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  keyframeSequence = readReference<KeyframeSequence>(
      stream, table, IndexLimit::UP_TO_SIZE, IndexZero::ENTRY,
      "AnimationTrack:   file load... invalid KeyframeSequence reference index",
      "AnimationTrack:   file load... invalid KeyframeSequence being set as attribute");
  sampleBuffer.assign(static_cast<std::size_t>(keyframeSequence->getComponentCount()), 0.0f);
  setController(readReference<AnimationController>(
      stream, table, IndexLimit::UP_TO_SIZE, IndexZero::ENTRY,
      "AnimationTrack:   file load... invalid AnimationController reference index",
      "AnimationTrack:   file load... invalid AnimationController being set as attribute"));
  targetProperty = stream.readInt32();
  checkCompatibility();
}

}  // namespace varnel_m3g
