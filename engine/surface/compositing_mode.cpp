#include "engine/surface/compositing_mode.h"

#include <boost/pointer_cast.hpp>
#include <stdexcept>

#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

// Blend factors of GL.
constexpr unsigned ZERO = 0;
constexpr unsigned ONE = 1;
constexpr unsigned SRC_COLOR = 768;
constexpr unsigned SRC_ALPHA = 770;
constexpr unsigned ONE_MINUS_SRC_ALPHA = 771;
constexpr unsigned DST_COLOR = 774;

const char* blendingName(int blending) {
  switch (blending) {
    case CompositingMode::ALPHA:
      return " ALPHA";
    case CompositingMode::ALPHA_ADD:
      return " ALPHA_ADD";
    case CompositingMode::MODULATE:
      return " MODULATE";
    case CompositingMode::MODULATE_X2:
      return " MODULATE_X2";
    case CompositingMode::REPLACE:
      return " REPLACE";
    default:
      return " UNKNOWN";
  }
}

}  // namespace

boost::shared_ptr<CompositingMode> CompositingMode::create() {
  const boost::shared_ptr<CompositingMode> mode(new CompositingMode);
  mode->initialise();
  return mode;
}

CompositingMode::CompositingMode() = default;

CompositingMode::~CompositingMode() = default;

void CompositingMode::initialise() {
  reset();
  blending = REPLACE;
  srcFactor = ONE;
  dstFactor = ZERO;
  colorWriteEnabled = true;
  alphaWriteEnabled = true;
  depthWriteEnabled = true;
  depthTestEnabled = true;
  alphaThreshold = 0.0f;
  depthOffsetIsZero = true;
  depthOffsetUnits = 0.0f;
  depthOffsetFactor = 0.0f;
}

void CompositingMode::dump() {
  Object3D::dump();
  log("CompositingMode Object");
  log("======================");
  logf("Blending:%s", blendingName(blending));
  logf("ColorWriteEnabled: %u", colorWriteEnabled ? 1U : 0U);
  logf("AlphaWriteEnabled: %u", alphaWriteEnabled ? 1U : 0U);
  logf("DepthWriteEnabled: %u", depthWriteEnabled ? 1U : 0U);
  logf("DepthTestEnabled: %u", depthTestEnabled ? 1U : 0U);
  logf("AlphaThreshold: %f", static_cast<double>(alphaThreshold));
  logf("DepthOffsetUnits: %f", static_cast<double>(depthOffsetUnits));
  logf("DepthOffsetFactor: %f", static_cast<double>(depthOffsetFactor));
}

boost::shared_ptr<Object3D> CompositingMode::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<CompositingMode> copy =
      boost::dynamic_pointer_cast<CompositingMode>(target);
  copy->blending = blending;
  copy->srcFactor = srcFactor;
  copy->dstFactor = dstFactor;
  copy->colorWriteEnabled = colorWriteEnabled;
  copy->alphaWriteEnabled = alphaWriteEnabled;
  copy->depthWriteEnabled = depthWriteEnabled;
  copy->depthTestEnabled = depthTestEnabled;
  copy->alphaThreshold = alphaThreshold;
  copy->depthOffsetIsZero = depthOffsetIsZero;
  copy->depthOffsetUnits = depthOffsetUnits;
  copy->depthOffsetFactor = depthOffsetFactor;
  return target;
}

void CompositingMode::setBlending(int newBlending) {
  blending = newBlending;
  switch (blending) {
    case ALPHA:
      srcFactor = SRC_ALPHA;
      dstFactor = ONE_MINUS_SRC_ALPHA;
      break;
    case ALPHA_ADD:
      srcFactor = SRC_ALPHA;
      dstFactor = ONE;
      break;
    case MODULATE:
      srcFactor = DST_COLOR;
      dstFactor = ZERO;
      break;
    case MODULATE_X2:
      srcFactor = DST_COLOR;
      dstFactor = SRC_COLOR;
      break;
    case REPLACE:
      srcFactor = ONE;
      dstFactor = ZERO;
      break;
    default:
      break;
  }
}

void CompositingMode::setAlphaThreshold(float threshold) {
  // Written so that a NaN fails too.
  if (!(threshold >= 0.0f && threshold <= 1.0f)) {
    throw std::invalid_argument(
        "CompositingMode.setAlphaThreshold -- threshold value out of range [0  1]");
  }
  alphaThreshold = threshold;
}

void CompositingMode::setDepthOffset(float factor, float units) {
  depthOffsetFactor = factor;
  depthOffsetUnits = units;
  depthOffsetIsZero = factor == 0.0f && units == 0.0f;
}

void CompositingMode::setColorWriteEnable(bool enable) {
  colorWriteEnabled = enable;
}

void CompositingMode::setAlphaWriteEnable(bool enable) {
  alphaWriteEnabled = enable;
}

void CompositingMode::setDepthWriteEnable(bool enable) {
  depthWriteEnabled = enable;
}

void CompositingMode::setDepthTestEnable(bool enable) {
  depthTestEnabled = enable;
}

}  // namespace varnel_m3g
