#ifndef VARNEL_ENGINE_ANIMATION_ANIMATION_TRACK_H
#define VARNEL_ENGINE_ANIMATION_ANIMATION_TRACK_H

#include "engine/object/java_types.h"
#include "engine/object/object3d.h"
#include "engine/object/object_table.h"

#include <boost/shared_ptr.hpp>
#include <vector>

namespace varnel_m3g {

class AnimationController;
class KeyframeSequence;
class M3gObjectInputStream;

/// Ties a keyframe sequence to one property of the objects that it is attached to, and to the
/// controller that plays it. Shares all three.
class AnimationTrack : public Object3D {
 public:
  static constexpr int ALPHA = 256;
  static constexpr int AMBIENT_COLOR = 257;
  static constexpr int COLOR = 258;
  static constexpr int CROP = 259;
  static constexpr int DENSITY = 260;
  static constexpr int DIFFUSE_COLOR = 261;
  static constexpr int EMISSIVE_COLOR = 262;
  static constexpr int FAR_DISTANCE = 263;
  static constexpr int FIELD_OF_VIEW = 264;
  static constexpr int INTENSITY = 265;
  static constexpr int MORPH_WEIGHTS = 266;
  static constexpr int NEAR_DISTANCE = 267;
  static constexpr int ORIENTATION = 268;
  static constexpr int PICKABILITY = 269;
  static constexpr int SCALE = 270;
  static constexpr int SHININESS = 271;
  static constexpr int SPECULAR_COLOR = 272;
  static constexpr int SPOT_ANGLE = 273;
  static constexpr int SPOT_EXPONENT = 274;
  static constexpr int TRANSLATION = 275;
  static constexpr int VISIBILITY = 276;

  /// A track without a sequence, for the loader, which fills the fields.
  AnimationTrack() = default;

  /// Takes any property and any sequence; they need not fit each other.
  static boost::shared_ptr<AnimationTrack> create(
      const boost::shared_ptr<KeyframeSequence>& keyframeSequence, int targetProperty);

  unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max) override;
  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  void load(M3gObjectInputStream& stream, ObjectTable& table);

  /// An empty controller silences the track.
  void setController(const boost::shared_ptr<AnimationController>& controller);
  const boost::shared_ptr<AnimationController>& getController() const { return controller; }
  const boost::shared_ptr<KeyframeSequence>& getKeyframeSequence() const {
    return keyframeSequence;
  }
  int getTargetProperty() const { return targetProperty; }

  /// Throws std::invalid_argument unless the sequence's components and interpolation suit the
  /// property. Only tracks of files are held to it.
  void checkCompatibility() const;

  /// The sequence's value at a world time times the controller's weight: `*count` floats, readable
  /// until the next call; null and a count of 0 while not active.
  const float* sample(int worldTime, int* count);

 private:
  void initialise(const boost::shared_ptr<KeyframeSequence>& sequence, int property);

  boost::shared_ptr<AnimationController> controller;
  boost::shared_ptr<KeyframeSequence> keyframeSequence;
  int targetProperty = ALPHA;
  /// The weighted sample of the last call, one float per component of the sequence.
  std::vector<float> sampleBuffer;
};

}  // namespace varnel_m3g

#endif
