#ifndef VARNEL_ENGINE_ANIMATION_ANIMATION_CONTROLLER_H
#define VARNEL_ENGINE_ANIMATION_ANIMATION_CONTROLLER_H

#include "engine/object/java_types.h"
#include "engine/object/object3d.h"
#include "engine/object/object_table.h"

#include <boost/shared_ptr.hpp>

namespace varnel_m3g {

class M3gObjectInputStream;

/// Maps world time to the sequence time of a group of tracks, and says when and how strongly they
/// play. Times are milliseconds.
class AnimationController : public Object3D {
 public:
  AnimationController() = default;

  static boost::shared_ptr<AnimationController> create();

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  /// Leaves the weight at 0, which keeps a controller silent until a weight is read or set.
  void reset() override;

  void load(M3gObjectInputStream& stream, ObjectTable& table);

  /// Active from `start` on and before `end`; always when both are equal. Throws
  /// std::invalid_argument if `start` exceeds `end`.
  void setActiveInterval(int start, int end);
  /// Throws std::invalid_argument if negative.
  void setWeight(float weight);
  /// The position at `worldTime` becomes the old reference sequence time: it is not carried over.
  void setSpeed(float speed, int worldTime);
  void setPosition(float sequenceTime, int worldTime);

  int getActiveIntervalStart() const { return activeIntervalStart; }
  int getActiveIntervalEnd() const { return activeIntervalEnd; }
  float getWeight() const { return weight; }
  float getSpeed() const { return speed; }
  int getRefWorldTime() const { return refWorldTime; }
  /// The sequence time at a world time.
  float getPosition(int worldTime) const;

  bool isActive(int worldTime) const;
  /// Milliseconds until the active interval begins: 0 within it, the largest int if never.
  int timeToActivation(int worldTime) const;

 private:
  void initialise();

  int activeIntervalStart = 0;
  int activeIntervalEnd = 0;
  float weight = 1.0F;
  /// Sequence milliseconds per world millisecond.
  float speed = 1.0F;
  float refSequenceTime = 0.0F;
  int refWorldTime = 0;
};

}  // namespace varnel_m3g

#endif
