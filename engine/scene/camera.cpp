#include "engine/scene/camera.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <utility>

#include "engine/math/angle.h"
#include "engine/object/log.h"
#include "engine/scene/world.h"

namespace varnel_m3g {

namespace {

const char* projectionName(int type) {
  switch (type) {
    case Camera::GENERIC:
      return "GENERIC";
    case Camera::PARALLEL:
      return "PARALLEL";
    case Camera::PERSPECTIVE:
      return "PERSPECTIVE";
    default:
      return "UNKNOWN";
  }
}

}  // namespace

boost::shared_ptr<Camera> Camera::create() {
  boost::shared_ptr<Camera> camera(new Camera);
  camera->initialise();
  return camera;
}

Camera::Camera() {
  setMatrixToIdentity();
}

void Camera::setMatrixToIdentity() {
  std::fill(projectionMatrix, projectionMatrix + 16, 0.0f);
  for (int i = 0; i < 4; ++i) {
    projectionMatrix[5 * i] = 1.0f;
  }
}

void Camera::storeParams(float fovy, float aspectRatio, float near, float far) {
  projectionParams[0] = fovy;
  projectionParams[1] = aspectRatio;
  projectionParams[2] = near;
  projectionParams[3] = far;
}

void Camera::dump() {
  Node::dump();
  log("Camera Object");
  log("=============");
  logf("ProjectionType: %s", projectionName(projectionType));
  log("ProjectionMatrix:");
  for (int i = 0; i < 16; i += 4) {
    logf("%8.4f %8.4f %8.4f %8.4f", static_cast<double>(projectionMatrix[i]),
         static_cast<double>(projectionMatrix[i + 1]), static_cast<double>(projectionMatrix[i + 2]),
         static_cast<double>(projectionMatrix[i + 3]));
  }
}

boost::shared_ptr<Object3D> Camera::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = Camera::create();
  }
  Node::duplicateImpl(target);
  const boost::shared_ptr<Camera> copy = boost::dynamic_pointer_cast<Camera>(target);
  copy->projectionType = projectionType;
  std::copy(projectionMatrix, projectionMatrix + 16, copy->projectionMatrix);
  std::copy(projectionParams, projectionParams + 4, copy->projectionParams);
  copy->spareTransform.set(spareTransform);
  return target;
}

void Camera::reset() {
  Node::reset();
  projectionType = GENERIC;
}

void Camera::setRoot(boost::weak_ptr<Node> root) {
  const boost::shared_ptr<Camera> self = boost::static_pointer_cast<Camera>(shared_from_this());
  if (const boost::shared_ptr<World> old = boost::dynamic_pointer_cast<World>(getRoot().lock())) {
    old->removeCamera(self);
  }
  if (const boost::shared_ptr<World> next = boost::dynamic_pointer_cast<World>(root.lock())) {
    next->addCamera(self);
  }
  Node::setRoot(std::move(root));
}

void Camera::setGeneric(const float* matrix) {
  std::copy(matrix, matrix + 16, projectionMatrix);
  projectionType = GENERIC;
}

void Camera::setParallel(float fovy, float aspectRatio, float near, float far) {
  if (fovy <= 0.0f) {
    throw std::invalid_argument("Camera.setParallel - fovy argument must be >= 0.0");
  }
  if (aspectRatio <= 0.0f) {
    throw std::invalid_argument("Camera.setParallel - aspectRatio argument must be >= 0.0");
  }
  // Only the elements of the parallel form are written below.
  if (projectionType != PARALLEL) {
    setMatrixToIdentity();
  }
  projectionType = PARALLEL;
  storeParams(fovy, aspectRatio, near, far);
  const double n = near;
  const double f = far;
  const float d = static_cast<float>(f - n);
  projectionMatrix[0] =
      static_cast<float>(2.0 / (static_cast<double>(aspectRatio) * static_cast<double>(fovy)));
  projectionMatrix[5] = static_cast<float>(2.0 / static_cast<double>(fovy));
  projectionMatrix[10] = static_cast<float>(-2.0 / static_cast<double>(d));
  projectionMatrix[14] = static_cast<float>(-(n + f) / static_cast<double>(d));
  projectionMatrix[15] = 1.0f;
}

void Camera::setPerspective(float fovy, float aspectRatio, float near, float far) {
  // The type changes even if the arguments are refused.
  projectionType = PERSPECTIVE;
  if (fovy >= 180.0f) {
    throw std::invalid_argument(
        "Camera.setPerspective - fovy argument must be less than 180 degrees");
  }
  if (fovy <= 0.0f) {
    throw std::invalid_argument("Camera.setPerspective - fovy argument must be >= 0.0");
  }
  if (near <= 0.0f) {
    throw std::invalid_argument("Camera.setPerspective - near argument must be >= 0.0");
  }
  if (aspectRatio < 0.0f) {
    throw std::invalid_argument("Camera.setPerspective - aspectRatio argument must be >= 0.0");
  }
  if (near >= far) {
    throw std::invalid_argument("Camera.setPerspective - far argument must be >= 0.0");
  }
  storeParams(fovy, aspectRatio, near, far);
  setMatrixToIdentity();
  const double n = near;
  const double f = far;
  const float t = static_cast<float>(std::tan(degToRad(static_cast<double>(fovy) / 2.0)));
  const float h = static_cast<float>(static_cast<double>(aspectRatio) * static_cast<double>(t));
  const float d = static_cast<float>(f - n);
  if (d > 0.0f) {
    projectionMatrix[0] = static_cast<float>(1.0 / static_cast<double>(h));
    projectionMatrix[5] = static_cast<float>(1.0 / static_cast<double>(t));
    projectionMatrix[10] = static_cast<float>(-(n + f) / static_cast<double>(d));
    projectionMatrix[14] = static_cast<float>(-2.0 * n * f / static_cast<double>(d));
    projectionMatrix[11] = -1.0f;
    projectionMatrix[15] = 0.0f;
  } else {
    // The difference of two neighbours may round to 0.
    std::fputs(
        "Camera.setPerspective called with near = far.  This isn't handled properly in the "
        "current implementation\n",
        stdout);
    std::fflush(stdout);
  }
}

int Camera::getProjectionMatrix(float* out) const {
  if (out != nullptr) {
    std::copy(projectionMatrix, projectionMatrix + 16, out);
  }
  return projectionType;
}

int Camera::getProjection(float* params) const {
  if (params != nullptr && projectionType != GENERIC) {
    std::copy(projectionParams, projectionParams + 4, params);
  }
  return projectionType;
}

}  // namespace varnel_m3g
