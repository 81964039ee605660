#include "engine/surface/fog.h"

#include <boost/pointer_cast.hpp>
#include <stdexcept>

#include "engine/object/log.h"
#include "engine/surface/color_floats.h"

namespace varnel_m3g {

boost::shared_ptr<Fog> Fog::create() {
  const boost::shared_ptr<Fog> fog(new Fog);
  fog->initialise();
  return fog;
}

Fog::Fog() = default;

Fog::~Fog() = default;

void Fog::initialise() {
  reset();
  dirty = true;
  mode = LINEAR;
  density = 1.0f;
  nearDistance = 0.0f;
  farDistance = 1.0f;
  color = 0;
  for (float& element : colorRGBA) {
    element = 0.0f;
  }
}

void Fog::dump() {
  Object3D::dump();
  log("Fog Object");
  log("==========");
  logf("ColorRGB 0x%X", static_cast<unsigned>(color));
  switch (mode) {
    case EXPONENTIAL:
      log("Mode: EXPONENTIAL");
      logf("Density: %8.4f", static_cast<double>(density));
      break;
    case LINEAR:
      log("Mode: LINEAR");
      logf("Near: %8.4f", static_cast<double>(nearDistance));
      logf("Far: %8.4f", static_cast<double>(farDistance));
      break;
    default:
      log("Mode: UNKNOWN");
      break;
  }
}

boost::shared_ptr<Object3D> Fog::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<Fog> copy = boost::dynamic_pointer_cast<Fog>(target);
  copy->dirty = dirty;
  copy->mode = mode;
  copy->density = density;
  copy->nearDistance = nearDistance;
  copy->farDistance = farDistance;
  copy->color = color;
  for (int i = 0; i < 4; ++i) {
    copy->colorRGBA[i] = colorRGBA[i];
  }
  return target;
}

void Fog::setMode(int newMode) {
  mode = newMode;
  dirty = true;
}

void Fog::setLinear(float newNear, float newFar) {
  nearDistance = newNear;
  farDistance = newFar;
  dirty = true;
}

void Fog::setDensity(float newDensity) {
  if (newDensity < 0.0f) {
    throw std::invalid_argument("Fog.setDensity -- density < 0");
  }
  density = newDensity;
  dirty = true;
}

void Fog::setColor(int rgb) {
  color = rgb;
  colorToFloats(rgb, colorRGBA);
  colorRGBA[3] = 1.0f;
  dirty = true;
}

}  // namespace varnel_m3g
