#include "engine/animation/animation_track.h"

#include <boost/shared_ptr.hpp>
#include <iterator>
#include <stdexcept>

#include "engine/animation/animation_controller.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

constexpr const char* propertyNames[] = {
    "ALPHA",         "AMBIENT_COLOR",  "COLOR",        "CROP",          "DENSITY",
    "DIFFUSE_COLOR", "EMISSIVE_COLOR", "FAR_DISTANCE", "FIELD_OF_VIEW", "INTENSITY",
    "MORPH_WEIGHTS", "NEAR_DISTANCE",  "ORIENTATION",  "PICKABILITY",   "SCALE",
    "SHININESS",     "SPECULAR_COLOR", "SPOT_ANGLE",   "SPOT_EXPONENT", "TRANSLATION",
    "VISIBILITY"};

unsigned idOf(const Object3D* object) {
  return object == nullptr ? 0U : static_cast<unsigned>(object->getUserID());
}

void storeReference(const boost::shared_ptr<Object3D>& reference,
                    boost::shared_ptr<Object3D>* references, unsigned max, unsigned& count) {
  if (!reference) {
    return;
  }
  if (references != nullptr) {
    if (count >= max) {
      throw std::invalid_argument("Appearance::getReferences: reference count exceeded.");
    }
    references[count] = reference;
  }
  ++count;
}

}  // namespace

boost::shared_ptr<AnimationTrack> AnimationTrack::create(
    const boost::shared_ptr<KeyframeSequence>& keyframeSequence, int targetProperty) {
  boost::shared_ptr<AnimationTrack> track(new AnimationTrack);
  track->initialise(keyframeSequence, targetProperty);
  return track;
}

void AnimationTrack::initialise(const boost::shared_ptr<KeyframeSequence>& sequence, int property) {
  reset();
  keyframeSequence = sequence;
  targetProperty = property;
  sampleBuffer.assign(static_cast<std::size_t>(sequence->getComponentCount()), 0.0F);
}

unsigned AnimationTrack::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Object3D::getReferences(references, max);
  storeReference(controller, references, max, count);
  storeReference(keyframeSequence, references, max, count);
  return count;
}

void AnimationTrack::dump() {
  Object3D::dump();
  log("AnimationTrack Object");
  log("=====================");
  logf("KeyframeSequence ID: %u", idOf(keyframeSequence.get()));
  logf("AnimationController ID: %u", idOf(controller.get()));
  if (targetProperty >= ALPHA && targetProperty <= VISIBILITY) {
    logf("PropertyID:%s", propertyNames[targetProperty - ALPHA]);
  } else {
    logf("PropertyID:UNKNOWN(%u)", static_cast<unsigned>(targetProperty));
  }
}

boost::shared_ptr<Object3D> AnimationTrack::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create(keyframeSequence, targetProperty);
  }
  Object3D::duplicateImpl(target);
  static_cast<AnimationTrack&>(*target).controller = controller;
  return target;
}

void AnimationTrack::setController(const boost::shared_ptr<AnimationController>& newController) {
  controller = newController;
}

void AnimationTrack::checkCompatibility() const {
  if (!keyframeSequence) {
    throw std::invalid_argument("AnimationTrack: Keyframe sequence is null");
  }
  const int components = keyframeSequence->getComponentCount();
  const int interpolation = keyframeSequence->getInterpolationType();
  const bool spherical =
      interpolation == KeyframeSequence::SLERP || interpolation == KeyframeSequence::SQUAD;
  switch (targetProperty) {
    case ALPHA:
    case DENSITY:
    case FAR_DISTANCE:
    case FIELD_OF_VIEW:
    case INTENSITY:
    case NEAR_DISTANCE:
    case PICKABILITY:
    case SHININESS:
    case SPOT_ANGLE:
    case SPOT_EXPONENT:
    case VISIBILITY:
      if (components != 1 || spherical) {
        throw std::invalid_argument("KeyframeSequence is not compatible with property");
      }
      return;
    case AMBIENT_COLOR:
    case COLOR:
    case DIFFUSE_COLOR:
    case EMISSIVE_COLOR:
    case SPECULAR_COLOR:
    case TRANSLATION:
      if (components != 3 || spherical) {
        throw std::invalid_argument(
            "KeyframeSequence componentCount is not compatible with property");
      }
      return;
    case CROP:
      if ((components != 2 && components != 4) || spherical) {
        throw std::invalid_argument(
            "KeyframeSequence componentCount is not compatible with CROP property");
      }
      return;
    case ORIENTATION:
      if (components != 4) {
        throw std::invalid_argument(
            "KeyframeSequence componentCount is not compatible with ORIENTATION property");
      }
      return;
    case SCALE:
      if ((components != 1 && components != 3) || spherical) {
        throw std::invalid_argument(
            "KeyframeSequence componentCount is not compatible with SCALE property");
      }
      return;
    default:
      // Morph weights too: no file may animate them.
      throw std::invalid_argument("AnimationTrack:  Invalid property");
  }
}

const float* AnimationTrack::sample(int worldTime, int* count) {
  *count = 0;
  if (!controller || !controller->isActive(worldTime)) {
    return nullptr;
  }
  const float* values = keyframeSequence->getKeyframe(controller->getPosition(worldTime), count);
  const double weight = controller->getWeight();
  for (int i = 0; i < *count; ++i) {
    sampleBuffer[static_cast<std::size_t>(i)] =
        static_cast<float>(static_cast<double>(values[i]) * weight);
  }
  return sampleBuffer.data();
}

}  // namespace varnel_m3g
