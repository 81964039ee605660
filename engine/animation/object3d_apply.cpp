// Writing the accumulated animation values of an Object3D through the setters of its class.

#include <algorithm>
#include <limits>

#include "engine/animation/animation_track.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/math/color.h"
#include "engine/math/quaternion.h"
#include "engine/math/transformable.h"
#include "engine/object/object3d.h"
#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/scene/node.h"
#include "engine/surface/background.h"
#include "engine/surface/fog.h"
#include "engine/surface/material.h"
#include "engine/surface/texture2d.h"

namespace varnel_m3g {

namespace {

constexpr float smallestPositive = std::numeric_limits<float>::denorm_min();

// The values of one property.
struct Values {
  int count;
  const float* v;
};

// Which of a camera's parameters a property replaces, as an index of getProjection().
enum CameraParameter { FOVY = 0, NEAR = 2, FAR = 3 };

void applyColor(Object3D& object, const float* v, float alpha) {
  const int opaque = packColor(v[0], v[1], v[2], alpha);
  const int transparent = packColor(v[0], v[1], v[2], 0.0F);
  if (auto* buffer = dynamic_cast<VertexBuffer*>(&object)) {
    buffer->setDefaultColor(opaque);
  } else if (auto* light = dynamic_cast<Light*>(&object)) {
    light->setColor(transparent);
  } else if (auto* fog = dynamic_cast<Fog*>(&object)) {
    fog->setColor(transparent);
  } else if (auto* background = dynamic_cast<Background*>(&object)) {
    background->setColor(opaque);
  } else if (auto* texture = dynamic_cast<Texture2D*>(&object)) {
    texture->setBlendColor(transparent);
  }
}

void applyMaterialColor(Object3D& object, int target, const float* v, float alpha) {
  if (auto* material = dynamic_cast<Material*>(&object)) {
    material->setColor(target, packColor(v[0], v[1], v[2], alpha));
  }
}

void applyCamera(Camera& camera, CameraParameter parameter, float x) {
  float params[4] = {};
  const int type = camera.getProjection(params);
  if (type == Camera::PARALLEL) {
    params[parameter] = parameter == FOVY ? std::max(x, smallestPositive) : x;
    camera.setParallel(params[0], params[1], params[2], params[3]);
  } else if (type == Camera::PERSPECTIVE) {
    params[parameter] = std::max(x, parameter == FOVY ? 0.0F : smallestPositive);
    camera.setPerspective(params[0], params[1], params[2], params[3]);
  }
}

void applyDistance(Object3D& object, CameraParameter parameter, float x) {
  if (auto* camera = dynamic_cast<Camera*>(&object)) {
    applyCamera(*camera, parameter, x);
  } else if (auto* fog = dynamic_cast<Fog*>(&object)) {
    if (parameter == NEAR) {
      fog->setLinear(x, fog->getFarDistance());
    } else {
      fog->setLinear(fog->getNearDistance(), x);
    }
  }
}

void applyOrientation(Transformable& transformable, const float* v) {
  float quaternion[4];
  std::copy_n(v, 4, quaternion);
  quatNormalize(quaternion);
  float axisAngle[4];
  quatToAxisAngle(quaternion, axisAngle);
  transformable.setOrientation(axisAngle[0], axisAngle[1], axisAngle[2], axisAngle[3]);
}

// The properties of one value. `x` is that value.
void applyScalar(Object3D& object, unsigned property, float x) {
  switch (property) {
    case AnimationTrack::DENSITY:
      if (auto* fog = dynamic_cast<Fog*>(&object)) {
        fog->setDensity(std::max(x, 0.0F));
      }
      break;
    case AnimationTrack::FAR_DISTANCE:
      applyDistance(object, FAR, x);
      break;
    case AnimationTrack::FIELD_OF_VIEW:
      if (auto* camera = dynamic_cast<Camera*>(&object)) {
        applyCamera(*camera, FOVY, x);
      }
      break;
    case AnimationTrack::INTENSITY:
      if (auto* light = dynamic_cast<Light*>(&object)) {
        light->setIntensity(x);
      }
      break;
    case AnimationTrack::NEAR_DISTANCE:
      applyDistance(object, NEAR, x);
      break;
    case AnimationTrack::PICKABILITY:
      if (auto* node = dynamic_cast<Node*>(&object)) {
        node->setPickingEnable(x >= 0.5F);
      }
      break;
    case AnimationTrack::SHININESS:
      if (auto* material = dynamic_cast<Material*>(&object)) {
        material->setShininess(std::clamp(x, 0.0F, 128.0F));
      }
      break;
    case AnimationTrack::SPOT_ANGLE:
      if (auto* light = dynamic_cast<Light*>(&object)) {
        light->setSpotAngle(std::clamp(x, 0.0F, 90.0F));
      }
      break;
    case AnimationTrack::SPOT_EXPONENT:
      if (auto* light = dynamic_cast<Light*>(&object)) {
        light->setSpotExponent(std::clamp(x, 0.0F, 128.0F));
      }
      break;
    case AnimationTrack::VISIBILITY:
      if (auto* node = dynamic_cast<Node*>(&object)) {
        node->setRenderingEnable(x >= 0.5F);
      }
      break;
    default:
      break;
  }
}

void applyVector(Object3D& object, unsigned property, const Values& values, float alpha) {
  const float* v = values.v;
  switch (property) {
    case AnimationTrack::AMBIENT_COLOR:
      applyMaterialColor(object, Material::AMBIENT, v, 1.0F);
      break;
    case AnimationTrack::COLOR:
      applyColor(object, v, alpha);
      break;
    case AnimationTrack::DIFFUSE_COLOR:
      applyMaterialColor(object, Material::DIFFUSE, v, alpha);
      break;
    case AnimationTrack::EMISSIVE_COLOR:
      applyMaterialColor(object, Material::EMISSIVE, v, 1.0F);
      break;
    case AnimationTrack::SPECULAR_COLOR:
      applyMaterialColor(object, Material::SPECULAR, v, 1.0F);
      break;
    case AnimationTrack::ORIENTATION:
      if (auto* transformable = dynamic_cast<Transformable*>(&object);
          transformable != nullptr && values.count >= 4) {
        applyOrientation(*transformable, v);
      }
      break;
    case AnimationTrack::TRANSLATION:
      if (auto* transformable = dynamic_cast<Transformable*>(&object)) {
        transformable->setTranslation(v[0], v[1], v[2]);
      }
      break;
    default:
      break;
  }
}

void applyScale(Object3D& object, const Values& values) {
  auto* transformable = dynamic_cast<Transformable*>(&object);
  if (transformable == nullptr) {
    return;
  }
  if (values.count == 1) {
    transformable->setScale(values.v[0], values.v[0], values.v[0]);
  } else if (values.count == 3) {
    transformable->setScale(values.v[0], values.v[1], values.v[2]);
  }
}

}  // namespace

void Object3D::applyAnimationValues() {
  const auto found = animationValues.find(AnimationTrack::ALPHA);
  const float* alpha = found == animationValues.end() ? nullptr : found->second.getValues();
  for (const auto& [property, entry] : animationValues) {
    const Values values = {entry.getCount(), entry.getValues()};
    if (property == AnimationTrack::ALPHA) {
      if (auto* node = dynamic_cast<Node*>(this)) {
        node->setAlphaFactor(alpha[0]);
      }
    } else if (property == AnimationTrack::SCALE) {
      applyScale(*this, values);
    } else {
      applyScalar(*this, property, values.v[0]);
      if (values.count >= 3) {
        applyVector(*this, property, values, alpha == nullptr ? 1.0F : alpha[0]);
      }
    }
  }
}

}  // namespace varnel_m3g
