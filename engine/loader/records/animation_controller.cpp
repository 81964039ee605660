// AnimationController, after the Object3D section:
//   Float speed, Float weight, Int32 activeIntervalStart, Int32 activeIntervalEnd,
//   Float referenceSequenceTime, Int32 referenceWorldTime

#include "engine/animation/animation_controller.h"

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void AnimationController::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setSpeed(stream.readFloat(), 0);
  setWeight(stream.readFloat());
  const int start = stream.readInt32();
  const int end = stream.readInt32();
  setActiveInterval(start, end);
  const float sequenceTime = stream.readFloat();
  const int worldTime = stream.readInt32();
  setPosition(sequenceTime, worldTime);
}

}  // namespace varnel_m3g
