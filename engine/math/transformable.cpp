#include "engine/math/transformable.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cmath>
#include <stdexcept>

#include "engine/math/angle.h"
#include "engine/math/quaternion.h"
#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

// A rotation by an angle needs an axis.
void requireAxis(float angle, float ax, float ay, float az, const char* message) {
  if (ax == 0.0F && ay == 0.0F && az == 0.0F && angle != 0.0F) {
    throw std::invalid_argument(message);
  }
}

void requireResult(const float* out, const char* message) {
  if (out == nullptr) {
    throw std::invalid_argument(message);
  }
}

}  // namespace

void Transformable::dump() {
  Object3D::dump();
  log("Transformable Object");
  log("====================");
  logf("Translation: [%8.4f %8.4f %8.4f]", translation[0], translation[1], translation[2]);
  logf("Scale:       [%8.4f %8.4f %8.4f]", scaling[0], scaling[1], scaling[2]);
  logf("OrientationAngle: %f", orientationAngle);
  logf("OrientationAxis:  [%8.4f %8.4f %8.4f]", orientationAxis[0], orientationAxis[1],
       orientationAxis[2]);
  log("\nGeneralTransform");
  float rows[16];
  generalTransform.get(rows);
  for (int i = 0; i < 16; i += 4) {
    logf("%8.4f %8.4f %8.4f %8.4f", rows[i], rows[i + 1], rows[i + 2], rows[i + 3]);
  }
}

Transformable::~Transformable() = default;

boost::shared_ptr<Object3D> Transformable::duplicateImpl(boost::shared_ptr<Object3D> target) {
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<Transformable> copy = boost::dynamic_pointer_cast<Transformable>(target);
  copy->setScale(scaling[0], scaling[1], scaling[2]);
  copy->setTranslation(translation[0], translation[1], translation[2]);
  copy->generalTransform = generalTransform;
  std::copy_n(orientationQuaternion, 4, copy->orientationQuaternion);
  copy->orientationAngle = orientationAngle;
  std::copy_n(orientationAxis, 3, copy->orientationAxis);
  copy->changed();
  return target;
}

void Transformable::setUpdatePending(bool pending) {
  updatePending = pending;
}

void Transformable::initialise() {
  reset();
  setIdentityState();
}

void Transformable::setIdentityState() {
  std::fill_n(scaling, 3, 1.0F);
  std::fill_n(translation, 3, 0.0F);
  composite.setIdentity();
  orientationAngle = 0.0F;
  std::fill_n(orientationAxis, 3, 0.0F);
  std::fill_n(orientationQuaternion, 3, 0.0F);
  orientationQuaternion[3] = 1.0F;
  generalTransform.setIdentity();
  compositeDirty = true;
  updatePending = true;
}

void Transformable::changed() {
  compositeDirty = true;
  setUpdatePending(true);
}

void Transformable::setTranslation(float x, float y, float z) {
  translation[0] = x;
  translation[1] = y;
  translation[2] = z;
  changed();
}

void Transformable::translate(float x, float y, float z) {
  const float step[3] = {x, y, z};
  for (int i = 0; i < 3; ++i) {
    translation[i] = static_cast<float>(static_cast<double>(translation[i]) + step[i]);
  }
  changed();
}

void Transformable::getTranslation(float* out) const {
  requireResult(out, "called with null object to receive result");
  std::copy_n(translation, 3, out);
}

void Transformable::setScale(float x, float y, float z) {
  scaling[0] = x;
  scaling[1] = y;
  scaling[2] = z;
  changed();
}

void Transformable::scale(float x, float y, float z) {
  const float factor[3] = {x, y, z};
  for (int i = 0; i < 3; ++i) {
    scaling[i] = static_cast<float>(static_cast<double>(scaling[i]) * factor[i]);
  }
  changed();
}

void Transformable::getScale(float* out) const {
  requireResult(out, "called with null object to receive result");
  std::copy_n(scaling, 3, out);
}

void Transformable::setOrientation(float angle, float ax, float ay, float az) {
  requireAxis(angle, ax, ay, az, "setOrientation called with zero length rotation vector. ");
  orientationAngle = angle;
  orientationAxis[0] = ax;
  orientationAxis[1] = ay;
  orientationAxis[2] = az;
  axisAngleToQuat(angle, ax, ay, az, orientationQuaternion);
  changed();
}

void Transformable::preRotate(float angle, float ax, float ay, float az) {
  requireAxis(angle, ax, ay, az, "preRotate called with zero length rotation vector. ");
  float rotation[4];
  axisAngleToQuat(angle, ax, ay, az, rotation);
  float old[4];
  std::copy_n(orientationQuaternion, 4, old);
  quatMultiply(rotation, old, orientationQuaternion);
  deriveAngleAxis();
  changed();
}

void Transformable::postRotate(float angle, float ax, float ay, float az) {
  requireAxis(angle, ax, ay, az, "postRotate called with zero length rotation vector. ");
  float rotation[4];
  axisAngleToQuat(angle, ax, ay, az, rotation);
  float old[4];
  std::copy_n(orientationQuaternion, 4, old);
  quatMultiply(old, rotation, orientationQuaternion);
  deriveAngleAxis();
  changed();
}

void Transformable::deriveAngleAxis() {
  float derived[4];
  getOrientation(derived);
  orientationAngle = derived[0];
  std::copy_n(derived + 1, 3, orientationAxis);
}

void Transformable::getOrientation(float* out) const {
  requireResult(out, "getOrientation called with a null vector to return the result. ");
  const double h = arcCosine(orientationQuaternion[3]);
  const double s = std::sin(h);
  if (s == 0.0) {
    std::fill_n(out, 4, 0.0F);
    return;
  }
  out[0] = static_cast<float>(radToDeg(h + h));
  for (int i = 0; i < 3; ++i) {
    out[i + 1] = static_cast<float>(orientationQuaternion[i] / s);
  }
}

void Transformable::setTransform(const Transform& transform) {
  if (isNode()) {
    float rows[16];
    transform.get(rows);
    if (rows[12] != 0.0F || rows[13] != 0.0F || rows[14] != 0.0F || rows[15] != 1.0F) {
      throw std::invalid_argument("Non-affine transform applied to Node");
    }
  }
  generalTransform = transform;
  changed();
}

void Transformable::setTransformToIdentity() {
  generalTransform.setIdentity();
  changed();
}

const Transform& Transformable::updateComposite() {
  if (!compositeDirty) {
    return composite;
  }
  composite.setIdentity();
  composite.postTranslate(translation[0], translation[1], translation[2]);
  // Rounding in preRotate and postRotate can leave an angle without an axis: that is no rotation.
  const bool hasAxis =
      orientationAxis[0] != 0.0F || orientationAxis[1] != 0.0F || orientationAxis[2] != 0.0F;
  if (orientationAngle != 0.0F && hasAxis) {
    composite.postRotate(orientationAngle, orientationAxis[0], orientationAxis[1],
                         orientationAxis[2]);
  }
  composite.postScale(scaling[0], scaling[1], scaling[2]);
  composite.postMultiply(generalTransform);
  compositeDirty = false;
  return composite;
}

}  // namespace varnel_m3g
