#include "engine/animation/animation_controller.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

constexpr int never = std::numeric_limits<int>::max();

// a - b with the wrap of 32-bit integers.
int wrappedDifference(int a, int b) {
  return static_cast<int>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

}  // namespace

boost::shared_ptr<AnimationController> AnimationController::create() {
  boost::shared_ptr<AnimationController> controller(new AnimationController);
  controller->initialise();
  return controller;
}

void AnimationController::initialise() {
  reset();
  weight = 1.0F;
}

void AnimationController::dump() {
  Object3D::dump();
  log("AnimationController Object");
  log("==========================");
  logf("ActiveIntervalStart: %d", activeIntervalStart);
  logf("ActiveIntervalEnd: %d", activeIntervalEnd);
  logf("Weight: %8.4f", static_cast<double>(weight));
  logf("Speed: %8.4f", static_cast<double>(speed));
  logf("ReferenceSequenceTime: %8.4f", static_cast<double>(refSequenceTime));
  logf("ReferenceWorldTime: %d", refWorldTime);
}

boost::shared_ptr<Object3D> AnimationController::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  AnimationController& copy = static_cast<AnimationController&>(*target);
  copy.activeIntervalStart = activeIntervalStart;
  copy.activeIntervalEnd = activeIntervalEnd;
  copy.weight = weight;
  copy.speed = speed;
  copy.refSequenceTime = refSequenceTime;
  copy.refWorldTime = refWorldTime;
  return target;
}

void AnimationController::reset() {
  Object3D::reset();
  activeIntervalStart = 0;
  activeIntervalEnd = 0;
  weight = 0.0F;
  speed = 1.0F;
  refSequenceTime = 0.0F;
  refWorldTime = 0;
}

void AnimationController::setActiveInterval(int start, int end) {
  if (start > end) {
    throw std::invalid_argument("Invalid active interval");
  }
  activeIntervalStart = start;
  activeIntervalEnd = end;
}

void AnimationController::setWeight(float newWeight) {
  if (newWeight < 0.0F) {
    throw std::invalid_argument("Invalid blending weight");
  }
  weight = newWeight;
}

void AnimationController::setSpeed(float newSpeed, int worldTime) {
  refWorldTime = worldTime;
  refSequenceTime = getPosition(worldTime);
  speed = newSpeed;
}

void AnimationController::setPosition(float sequenceTime, int worldTime) {
  refSequenceTime = sequenceTime;
  refWorldTime = worldTime;
}

float AnimationController::getPosition(int worldTime) const {
  const double elapsed = wrappedDifference(worldTime, refWorldTime);
  return static_cast<float>(elapsed * static_cast<double>(speed) +
                            static_cast<double>(refSequenceTime));
}

bool AnimationController::isActive(int worldTime) const {
  if (weight <= 0.0F) {
    return false;
  }
  if (activeIntervalStart == activeIntervalEnd) {
    return true;
  }
  return activeIntervalStart <= worldTime && worldTime < activeIntervalEnd;
}

int AnimationController::timeToActivation(int worldTime) const {
  if (weight == 0.0F) {
    return never;
  }
  if (worldTime < activeIntervalStart) {
    const std::int64_t wait = std::int64_t{activeIntervalStart} - worldTime;
    return static_cast<int>(std::min<std::int64_t>(wait, never));
  }
  if (activeIntervalStart != activeIntervalEnd && worldTime >= activeIntervalEnd) {
    return never;
  }
  return 0;
}

}  // namespace varnel_m3g
