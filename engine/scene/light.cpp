#include "engine/scene/light.h"

#include <boost/pointer_cast.hpp>
#include <stdexcept>
#include <utility>

#include "engine/object/log.h"
#include "engine/scene/world.h"

namespace varnel_m3g {

namespace {

const char* modeName(int mode) {
  switch (mode) {
    case Light::AMBIENT:
      return "AMBIENT";
    case Light::DIRECTIONAL:
      return "DIRECTIONAL";
    case Light::OMNI:
      return "OMNI";
    case Light::SPOT:
      return "SPOT";
    default:
      return "UNKNOWN";
  }
}

}  // namespace

boost::shared_ptr<Light> Light::create() {
  boost::shared_ptr<Light> light(new Light);
  light->initialise();
  return light;
}

void Light::dump() {
  Node::dump();
  log("Light Object");
  log("============");
  logf("AttenuationConstant:  %8.4f", static_cast<double>(attenuation[0]));
  logf("AttenuationLinear:    %8.4f", static_cast<double>(attenuation[1]));
  logf("AttenuationQuadratic: %8.4f", static_cast<double>(attenuation[2]));
  logf("ColorRGB: 0x%X", static_cast<unsigned>(color));
  logf("Mode: %s", modeName(mode));
  logf("Intensity:    %8.4f", static_cast<double>(intensity));
  logf("SpotAngle:    %8.4f", static_cast<double>(spotAngle));
  logf("SpotExponent: %8.4f", static_cast<double>(spotExponent));
}

boost::shared_ptr<Object3D> Light::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = Light::create();
  }
  Node::duplicateImpl(target);
  const boost::shared_ptr<Light> copy = boost::dynamic_pointer_cast<Light>(target);
  copy->setAttenuation(attenuation[0], attenuation[1], attenuation[2]);
  copy->setColor(color);
  copy->setMode(mode);
  copy->setIntensity(intensity);
  copy->setSpotAngle(spotAngle);
  copy->setSpotExponent(spotExponent);
  return target;
}

void Light::setRenderingEnable(bool enable) {
  Node::setRenderingEnable(enable);
}

void Light::setRoot(boost::weak_ptr<Node> root) {
  const boost::shared_ptr<Light> self = boost::static_pointer_cast<Light>(shared_from_this());
  if (const boost::shared_ptr<World> old = boost::dynamic_pointer_cast<World>(getRoot().lock())) {
    old->removeLight(self);
  }
  if (const boost::shared_ptr<World> next = boost::dynamic_pointer_cast<World>(root.lock())) {
    next->addLight(self);
  }
  Node::setRoot(std::move(root));
}

void Light::setMode(int newMode) {
  mode = newMode;
  changeMask |= MODE_CHANGED;
}

void Light::setColor(int rgb) {
  color = rgb;
  updateScaledColor();
}

void Light::setIntensity(float newIntensity) {
  intensity = newIntensity;
  updateScaledColor();
}

void Light::updateScaledColor() {
  const unsigned rgb = static_cast<unsigned>(color);
  for (int i = 0; i < 3; ++i) {
    const double channel = (rgb >> (16 - 8 * i)) & 0xFFu;
    scaledColor[i] = static_cast<float>(channel * static_cast<double>(intensity) / 255.0);
  }
  // The fourth value that a light call reads is the intensity.
  scaledColor[3] = intensity;
  changeMask |= COLOR_CHANGED;
}

void Light::setSpotAngle(float degrees) {
  if (degrees < 0.0f || degrees > 90.0f) {
    throw std::invalid_argument("Invalid spotlight angle -- value out of range.");
  }
  spotAngle = degrees;
  changeMask |= SPOT_ANGLE_CHANGED;
}

void Light::setSpotExponent(float exponent) {
  if (exponent < 0.0f || exponent > 128.0f) {
    throw std::invalid_argument("Invalid spotlight exponent -- value out of range.");
  }
  spotExponent = exponent;
  changeMask |= SPOT_EXPONENT_CHANGED;
}

void Light::setAttenuation(float constant, float linear, float quadratic) {
  if (constant < 0.0f || linear < 0.0f || quadratic < 0.0f) {
    throw std::invalid_argument("Invalid Attenuation value - negative values not allowed.");
  }
  if (constant == 0.0f && linear == 0.0f && quadratic == 0.0f) {
    throw std::invalid_argument("Invalid Attenuation values - all are zero.");
  }
  attenuation[0] = constant;
  attenuation[1] = linear;
  attenuation[2] = quadratic;
  changeMask |= ATTENUATION_CHANGED;
}

}  // namespace varnel_m3g
