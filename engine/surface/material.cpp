#include "engine/surface/material.h"

#include <boost/pointer_cast.hpp>
#include <stdexcept>

#include "engine/object/log.h"
#include "engine/surface/color_floats.h"

namespace varnel_m3g {

boost::shared_ptr<Material> Material::lastChangedMaterial;

boost::shared_ptr<Material> Material::create() {
  const boost::shared_ptr<Material> material(new Material);
  material->initialise();
  return material;
}

Material::Material() = default;

Material::~Material() = default;

void Material::initialise() {
  reset();
  vertexColorTrackingEnabled = false;
  for (int i = 0; i < 3; ++i) {
    ambient[i] = 0.2f;
    diffuse[i] = 0.8f;
    emissive[i] = 0.0f;
    specular[i] = 0.0f;
  }
  ambient[3] = 0.0f;
  diffuse[3] = 1.0f;
  emissive[3] = 0.0f;
  specular[3] = 0.0f;
  shininess = 0.0f;
  ambientColor = 0x00333333;
  diffuseColor = static_cast<int>(0xFFCCCCCCu);
  emissiveColor = 0;
  specularColor = 0;
}

void Material::dump() {
  Object3D::dump();
  log("Material Object");
  log("===============");
  logf("AmbientColor:  0x%X", static_cast<unsigned>(ambientColor));
  logf("DiffuseColor:  0x%X", static_cast<unsigned>(diffuseColor));
  logf("EmissiveColor: 0x%X", static_cast<unsigned>(emissiveColor));
  logf("SpecularColor: 0x%X", static_cast<unsigned>(specularColor));
  logf("Shininess:     %f", static_cast<double>(shininess));
  logf("VertexColorTrackingEnabled: %u", vertexColorTrackingEnabled ? 1U : 0U);
}

boost::shared_ptr<Object3D> Material::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<Material> copy = boost::dynamic_pointer_cast<Material>(target);
  copy->setAmbientColor(ambientColor);
  copy->setDiffuseColor(diffuseColor);
  copy->setEmissiveColor(emissiveColor);
  copy->setSpecularColor(specularColor);
  copy->setShininess(shininess);
  copy->setVertexColorTrackingEnable(vertexColorTrackingEnabled);
  return target;
}

void Material::setAmbientColor(int argb) {
  ambientColor = argb;
  colorToFloats(argb, ambient);
}

void Material::setDiffuseColor(int argb) {
  diffuseColor = argb;
  colorToFloats(argb, diffuse);
  diffuse[3] = colorByteToFloat(argb, 24);
}

void Material::setSpecularColor(int argb) {
  specularColor = argb;
  colorToFloats(argb, specular);
}

void Material::setEmissiveColor(int argb) {
  emissiveColor = argb;
  colorToFloats(argb, emissive);
}

void Material::setColor(int target, int argb) {
  forgetLastChange();
  if ((target & ~(AMBIENT | DIFFUSE | EMISSIVE | SPECULAR)) != 0) {
    throw std::invalid_argument("Invalid target argument.  Value is out of expected range");
  }
  if ((target & AMBIENT) != 0) {
    setAmbientColor(argb);
  }
  if ((target & DIFFUSE) != 0) {
    setDiffuseColor(argb);
  }
  if ((target & EMISSIVE) != 0) {
    setEmissiveColor(argb);
  }
  if ((target & SPECULAR) != 0) {
    setSpecularColor(argb);
  }
}

int Material::getColor(int target) const {
  switch (target) {
    case AMBIENT:
      return ambientColor;
    case DIFFUSE:
      return diffuseColor;
    case EMISSIVE:
      return emissiveColor;
    case SPECULAR:
      return specularColor;
    default:
      throw std::invalid_argument("Invalid target argument.");
  }
}

void Material::setShininess(float newShininess) {
  forgetLastChange();
  shininess = newShininess;
}

void Material::setVertexColorTrackingEnable(bool enable) {
  vertexColorTrackingEnabled = enable;
}

void Material::forgetLastChange() {
  if (lastChangedMaterial.get() == this) {
    lastChangedMaterial.reset();
  }
}

}  // namespace varnel_m3g
