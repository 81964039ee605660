#include "engine/animation/keyframe_sequence.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>

#include "engine/math/quaternion.h"
#include "engine/math/transform.h"
#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

// What a spline reads of each keyframe and writes of its result.
constexpr int splineWidth = 4;

const char* interpolationName(int type) {
  switch (type) {
    case KeyframeSequence::LINEAR:
      return "LINEAR";
    case KeyframeSequence::SLERP:
      return "SLERP";
    case KeyframeSequence::SPLINE:
      return "SPLINE";
    case KeyframeSequence::SQUAD:
      return "SQUAD";
    case KeyframeSequence::STEP:
      return "STEP";
    default:
      return "UNKNOWN";
  }
}

const char* repeatModeName(int mode) {
  switch (mode) {
    case KeyframeSequence::CONSTANT:
      return "CONSTANT";
    case KeyframeSequence::LOOP:
      return "LOOP";
    default:
      return "UNKNOWN";
  }
}

bool isSpherical(int interpolation) {
  return interpolation == KeyframeSequence::SLERP || interpolation == KeyframeSequence::SQUAD;
}

// Half the way from `from` to `to`, per component, times the factor.
void tangent(const float* from, const float* to, float factor, float* out) {
  for (int c = 0; c < splineWidth; ++c) {
    out[c] = static_cast<float>(static_cast<double>(to[c]) - static_cast<double>(from[c]));
    out[c] = static_cast<float>(static_cast<double>(out[c]) / 2.0);
    out[c] = static_cast<float>(static_cast<double>(out[c]) * static_cast<double>(factor));
  }
}

// The inner control point of a squad segment at `at`, whose neighbours are `previous` and `next`.
void controlPoint(const float* at, const float* previous, const float* next, float* out) {
  float inverse[4];
  float difference[4];
  float sum[4];
  float log[4];
  quatInverse(at, inverse);
  quatMultiply(inverse, previous, difference);
  quatLog(difference, sum);
  quatMultiply(inverse, next, difference);
  quatLog(difference, log);
  for (int c = 0; c < 3; ++c) {
    sum[c] = static_cast<float>(static_cast<double>(sum[c]) + static_cast<double>(log[c]));
    sum[c] = static_cast<float>(static_cast<double>(sum[c]) * -0.25);
  }
  float rotation[4];
  quatExp(sum, rotation);
  quatMultiply(at, rotation, out);
  quatNormalize(out);
}

}  // namespace

/// Two positions in playing order and the way between them. As keyframe numbers they are used as
/// they stand, so that a valid range that begins later still takes its values from keyframe 0 on.
struct KeyframeSequence::Pair {
  int a;
  int b;
  float s;
};

boost::shared_ptr<KeyframeSequence> KeyframeSequence::create(int numKeyframes, int numComponents,
                                                             int interpolation) {
  boost::shared_ptr<KeyframeSequence> sequence(new KeyframeSequence);
  sequence->initialise(numKeyframes, numComponents, interpolation);
  return sequence;
}

void KeyframeSequence::initialise(int numKeyframes, int numComponents, int interpolation) {
  reset();
  allocate(numKeyframes, numComponents, interpolation);
}

void KeyframeSequence::allocate(int numKeyframes, int numComponents, int interpolation) {
  if (numKeyframes < 1) {
    throw std::invalid_argument("Number of keyframes < 1");
  }
  if (numComponents < 1) {
    throw std::invalid_argument("Number of components < 1");
  }
  if (isSpherical(interpolation) && numComponents < 4) {
    throw std::invalid_argument("SLERP & SQUAD require 4 components");
  }
  const std::size_t count = static_cast<std::size_t>(numKeyframes);
  const std::size_t stride = static_cast<std::size_t>(std::max(numComponents, splineWidth));
  // The product of the two could wrap where a size has 32 bits.
  if (stride > keyframes.max_size() / count) {
    throw std::length_error("KeyframeSequence: too many values");
  }
  keyframes.assign(count * stride, 0.0F);
  times.assign(count, 0);
  validList.assign(count + 1, 0);
  scratch.assign(stride, 0.0F);
  keyframeCount = numKeyframes;
  componentCount = numComponents;
  valueStride = static_cast<int>(stride);
  interpolationType = interpolation;
  setValidRange(0, numKeyframes - 1);
}

void KeyframeSequence::dump() {
  Object3D::dump();
  log("KeyframeSequence Object");
  log("=======================");
  logf("Interpolation:%s", interpolationName(interpolationType));
  logf("RepeatMode:%s", repeatModeName(repeatMode));
  logf("Duration: %u", static_cast<unsigned>(duration));
  logf("ValidRangeFirst: %u", static_cast<unsigned>(validFirst));
  logf("ValidRangetLast: %u", static_cast<unsigned>(validLast));
  logf("ComponentCount: %u", static_cast<unsigned>(componentCount));
  logf("KeyFrameCount: %u", static_cast<unsigned>(keyframeCount));
}

boost::shared_ptr<Object3D> KeyframeSequence::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create(keyframeCount, componentCount, interpolationType);
  }
  Object3D::duplicateImpl(target);
  KeyframeSequence& copy = static_cast<KeyframeSequence&>(*target);
  copy.duration = duration;
  copy.validFirst = validFirst;
  copy.validLast = validLast;
  copy.repeatMode = repeatMode;
  copy.keyframes = keyframes;
  copy.times = times;
  copy.validListCurrent = false;
  return target;
}

void KeyframeSequence::setKeyframe(int index, int time, const float* value) {
  if (value == nullptr) {
    throw std::invalid_argument("Keyframe value is null");
  }
  checkIndex(index);
  if (time < 0) {
    throw std::invalid_argument("Keyframe time < 0");
  }
  const std::size_t place = static_cast<std::size_t>(index) * static_cast<std::size_t>(valueStride);
  std::copy_n(value, componentCount, keyframes.data() + place);
  if (isSpherical(interpolationType)) {
    quatNormalize(keyframes.data() + place);
  }
  times[static_cast<std::size_t>(index)] = time;
  validListCurrent = false;
}

int KeyframeSequence::getKeyframe(int index, float* value) const {
  checkIndex(index);
  if (value != nullptr) {
    std::copy_n(valuesAt(index), componentCount, value);
  }
  return timeAt(index);
}

const float* KeyframeSequence::getKeyframe(float time, int* count) {
  if (!validListCurrent) {
    buildValidList();
  }
  if (repeatMode != CONSTANT) {
    time = lapTime(time);
  }
  const double first = timeAt(validFirst);
  const double last = timeAt(validLast);
  if (time < first || time >= last) {
    const bool before = time < first;
    if (repeatMode == CONSTANT) {
      *count = componentCount;
      return valuesAt(before ? validFirst : validLast);
    }
    // Between the last keyframe of one lap and the first of the next.
    const double gap = duration - last + first;
    const double passed = before ? duration - last + time : time - last;
    // The seam of a lap without length is its end and its start at once.
    const double s = gap == 0.0 && passed == 0.0 ? 0.0 : passed / gap;
    return interpolate({validCount - 1, 0, static_cast<float>(s)}, count);
  }
  return interpolate(locate(time), count);
}

void KeyframeSequence::setValidRange(int first, int last) {
  if (first < 0 || first >= keyframeCount || last < 0 || last >= keyframeCount) {
    throw std::invalid_argument("Invalid keyframe range");
  }
  validFirst = first;
  validLast = last;
  validListCurrent = false;
}

void KeyframeSequence::setDuration(int newDuration) {
  if (newDuration < 0) {
    throw std::invalid_argument("Negative duration");
  }
  duration = newDuration;
  validListCurrent = false;
}

void KeyframeSequence::setRepeatMode(int mode) {
  repeatMode = mode;
}

void KeyframeSequence::checkIndex(int index) const {
  if (index < 0 || index >= keyframeCount) {
    throw std::invalid_argument("Invalid keyframe index");
  }
}

void KeyframeSequence::buildValidList() {
  int entries = 0;
  const auto append = [this, &entries](int from, int to) {
    for (int keyframe = from; keyframe <= to; ++keyframe) {
      validList[static_cast<std::size_t>(entries++)] = keyframe;
    }
  };
  if (validFirst < validLast) {
    append(validFirst, validLast);
  } else {
    append(validFirst, keyframeCount - 1);
    append(0, validLast);
  }
  validCount = entries;
  for (std::size_t i = 0; i + 1 < static_cast<std::size_t>(validCount); ++i) {
    if (timeAt(validList[i + 1]) < timeAt(validList[i])) {
      throw std::runtime_error("Keyframe times in decreasing order");
    }
  }
  if (duration < timeAt(validLast)) {
    throw std::runtime_error("Duration less than time of last keyframe");
  }
  validListCurrent = true;
}

/// What is left of `time` after its whole durations: the value of repeated subtraction, in one
/// step. A lap without length, and a time without end, are at the first keyframe.
float KeyframeSequence::lapTime(float time) const {
  if (duration == 0 || time == HUGE_VALF) {
    return static_cast<float>(timeAt(validFirst));
  }
  const double lap = duration;
  if (time >= lap) {
    time = static_cast<float>(std::fmod(static_cast<double>(time), lap));
  }
  if (time >= lap) {
    // The rest was rounded up to the whole lap.
    time = static_cast<float>(time - lap);
  }
  return time;
}

/// The pair around a time inside the valid range. Of equal keyframe times the last one begins it.
KeyframeSequence::Pair KeyframeSequence::locate(double time) const {
  const auto begin = validList.begin();
  const auto end = begin + (validCount - 1);
  const auto later = std::upper_bound(
      begin, end, time, [this](double value, int keyframe) { return value < timeAt(keyframe); });
  // A time that is not a number is before nothing and after nothing.
  const int i = std::max(static_cast<int>(later - begin) - 1, 0);
  switch (interpolationType) {
    case LINEAR:
    case SLERP:
    case SPLINE:
    case SQUAD: {
      const int from = timeAt(validList[static_cast<std::size_t>(i)]);
      const int to = timeAt(validList[static_cast<std::size_t>(i) + 1]);
      return {i, i + 1, static_cast<float>((time - from) / static_cast<double>(to - from))};
    }
    case STEP:
      return {i, 0, 1.0F};
    default:
      throw std::runtime_error(
          "Error in KeyframeSequence.getKeyframe(undefined interpolation type)");
  }
}

const float* KeyframeSequence::valuesAt(int position) const {
  return keyframes.data() +
         static_cast<std::size_t>(position % keyframeCount) * static_cast<std::size_t>(valueStride);
}

int KeyframeSequence::timeAt(int position) const {
  return times[static_cast<std::size_t>(position % keyframeCount)];
}

const float* KeyframeSequence::interpolate(const Pair& pair, int* count) {
  *count = componentCount;
  if (keyframeCount == 1) {
    return valuesAt(0);
  }
  switch (interpolationType) {
    case LINEAR:
      interpolateLinear(pair);
      break;
    case SLERP:
      *count = 4;
      quatSlerpShortest(pair.s, valuesAt(pair.a), valuesAt(pair.b), scratch.data());
      break;
    case STEP:
      return valuesAt(pair.a);
    case SPLINE:
      interpolateSpline(pair);
      break;
    case SQUAD:
      *count = 4;
      interpolateSquad(pair);
      break;
    default:
      throw std::runtime_error("Error in KeyframeSequence.interpolate(...)");
  }
  return scratch.data();
}

void KeyframeSequence::interpolateLinear(const Pair& pair) {
  const float* from = valuesAt(pair.a);
  const float* to = valuesAt(pair.b);
  const double s = pair.s;
  for (int c = 0; c < componentCount; ++c) {
    scratch[static_cast<std::size_t>(c)] = static_cast<float>(
        (1.0 - s) * static_cast<double>(from[c]) + s * static_cast<double>(to[c]));
  }
}

void KeyframeSequence::interpolateSpline(const Pair& pair) {
  const int previous = positionBefore(pair.a);
  const int next = positionAfter(pair.b);
  const double timeA = timeAt(pair.a);
  const double timeB = timeAt(pair.b);
  const double timeNext = timeAt(next);
  const float* a = valuesAt(pair.a);
  const float* b = valuesAt(pair.b);
  float tangentA[splineWidth];
  float tangentB[splineWidth];
  tangent(valuesAt(previous), b,
          static_cast<float>(2.0 * (timeB - timeA) / (timeB - timeAt(previous))), tangentA);
  tangent(a, valuesAt(next), static_cast<float>(2.0 * (timeNext - timeB) / (timeNext - timeA)),
          tangentB);

  float geometry[16];
  for (int c = 0; c < splineWidth; ++c) {
    float* row = geometry + 4 * c;
    if (c == 3 && componentCount != splineWidth) {
      row[0] = 1.0F;
      row[1] = 1.0F;
      row[2] = 0.0F;
      row[3] = 0.0F;
    } else {
      row[0] = a[c];
      row[1] = b[c];
      row[2] = tangentA[c];
      row[3] = tangentB[c];
    }
  }
  static constexpr float hermiteRows[16] = {2, -3, 0, 1, -2, 3, 0, 0, 1, -2, 1, 0, 1, -1, 0, 0};
  Transform curve;
  curve.set(geometry);
  Transform hermite;
  hermite.set(hermiteRows);
  curve.postMultiply(hermite);
  const double s = pair.s;
  float powers[4] = {static_cast<float>(s * s * s), static_cast<float>(s * s), pair.s, 1.0F};
  curve.transform(powers, 4);
  std::copy_n(powers, splineWidth, scratch.begin());
}

void KeyframeSequence::interpolateSquad(const Pair& pair) {
  const float* a = valuesAt(pair.a);
  const float* b = valuesAt(pair.b);
  float controlA[4];
  float controlB[4];
  controlPoint(a, valuesAt(positionBefore(pair.a)), b, controlA);
  controlPoint(b, a, valuesAt(positionAfter(pair.b)), controlB);
  // The linear branch of the slerp looks at components that it has not written yet.
  float outer[4] = {};
  float inner[4] = {};
  float result[4] = {};
  quatSlerp(pair.s, a, b, outer);
  quatSlerp(pair.s, controlA, controlB, inner);
  const double s = pair.s;
  quatSlerp(static_cast<float>(2.0 * s * (1.0 - s)), outer, inner, result);
  std::copy_n(result, 4, scratch.begin());
}

int KeyframeSequence::positionBefore(int position) const {
  if (position > 0) {
    return position - 1;
  }
  return repeatMode == CONSTANT ? position : position - 1 + validCount;
}

int KeyframeSequence::positionAfter(int position) const {
  if (position + 1 < validCount) {
    return position + 1;
  }
  return repeatMode == CONSTANT ? position : (position + 1) % validCount;
}

}  // namespace varnel_m3g
