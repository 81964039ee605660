#ifndef VARNEL_ENGINE_ANIMATION_KEYFRAME_SEQUENCE_H
#define VARNEL_ENGINE_ANIMATION_KEYFRAME_SEQUENCE_H

#include "engine/object/java_types.h"
#include "engine/object/object3d.h"
#include "engine/object/object_table.h"

#include <boost/shared_ptr.hpp>
#include <vector>

namespace varnel_m3g {

class M3gObjectInputStream;

/// Time-stamped value vectors, shared by tracks, that answer the interpolated value of any sequence
/// time. Quaternions are four floats x, y, z, w.
class KeyframeSequence : public Object3D {
 public:
  static constexpr int LINEAR = 176;
  static constexpr int SLERP = 177;
  static constexpr int SPLINE = 178;
  static constexpr int SQUAD = 179;
  static constexpr int STEP = 180;
  static constexpr int CONSTANT = 192;
  static constexpr int LOOP = 193;

  /// A sequence without keyframes, for the loader, which allocates it.
  KeyframeSequence() = default;

  /// Throws std::invalid_argument for fewer than one keyframe or component, or a spherical
  /// interpolation of fewer than four components, and std::length_error for more values than fit
  /// into memory's addresses. Any interpolation is stored.
  static boost::shared_ptr<KeyframeSequence> create(int numKeyframes, int numComponents,
                                                    int interpolation);

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  void load(M3gObjectInputStream& stream, ObjectTable& table);

  /// Copies `componentCount` floats; spherical interpolations normalise their stored copy. The
  /// order of times is not looked at before an evaluation. Throws std::invalid_argument for a null
  /// value, an index without a keyframe and a negative time.
  void setKeyframe(int index, int time, const float* value);

  /// Copies the keyframe's `componentCount` floats unless `value` is null, and returns its time.
  /// Throws std::invalid_argument for an index without a keyframe.
  int getKeyframe(int index, float* value) const;

  /// The value at a sequence time: `*count` floats, readable until the next call. Throws
  /// std::runtime_error when times decrease within the valid range or the last one exceeds the
  /// duration. Allocates nothing.
  const float* getKeyframe(float time, int* count);

  /// Keyframes that play; `first` above or equal to `last` plays on past the end from the start.
  /// Throws std::invalid_argument unless both are keyframes.
  void setValidRange(int first, int last);
  /// Throws std::invalid_argument if negative.
  void setDuration(int duration);
  void setRepeatMode(int mode);

  int getComponentCount() const { return componentCount; }
  int getKeyframeCount() const { return keyframeCount; }
  int getInterpolationType() const { return interpolationType; }
  int getDuration() const { return duration; }
  int getRepeatMode() const { return repeatMode; }
  int getValidRangeFirst() const { return validFirst; }
  int getValidRangeLast() const { return validLast; }

 private:
  struct Pair;

  /// The initialising step.
  void initialise(int numKeyframes, int numComponents, int interpolation);
  /// The checks, the arrays and the full valid range; the part of `initialise` that a load runs.
  void allocate(int numKeyframes, int numComponents, int interpolation);

  // Positions count the entries of the valid range in playing order; as keyframe numbers they wrap.
  void checkIndex(int index) const;
  /// Brings `validList` up to date and checks the times along it.
  void buildValidList();
  float lapTime(float time) const;
  Pair locate(double time) const;
  /// The values of a keyframe by its position in playing order.
  const float* valuesAt(int position) const;
  int timeAt(int position) const;
  const float* interpolate(const Pair& pair, int* count);
  void interpolateLinear(const Pair& pair);
  void interpolateSpline(const Pair& pair);
  void interpolateSquad(const Pair& pair);
  int positionBefore(int position) const;
  int positionAfter(int position) const;

  /// The result of the last interpolation, at least four floats.
  std::vector<float> scratch;
  int keyframeCount = 0;
  int componentCount = 0;
  int interpolationType = LINEAR;
  /// All values, keyframe after keyframe, `valueStride` floats each.
  std::vector<float> keyframes;
  /// Floats from one keyframe to the next: the components, and at least the four that a spline
  /// reads.
  int valueStride = 0;
  /// Milliseconds.
  std::vector<int> times;
  /// The keyframes of the valid range in playing order; the first `validCount` entries.
  std::vector<int> validList;
  int validCount = 0;
  /// `validList` was built and its times checked since the last change of times or range.
  bool validListCurrent = false;
  int validFirst = 0;
  int validLast = -1;
  /// Milliseconds.
  int duration = 0;
  int repeatMode = CONSTANT;
};

}  // namespace varnel_m3g

#endif
