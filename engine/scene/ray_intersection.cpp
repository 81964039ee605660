#include "engine/scene/ray_intersection.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

#include "engine/object/engine_limits.h"
#include "engine/scene/node.h"

namespace varnel_m3g {

namespace {

float coordinateAt(const std::vector<float>& coordinates, int unit) {
  const std::size_t index = static_cast<std::size_t>(unit);
  return index < coordinates.size() ? coordinates[index] : 0.0f;
}

}  // namespace

RayIntersection::RayIntersection() {
  textureS.resize(static_cast<std::size_t>(maxTextureUnits));
  textureT.resize(static_cast<std::size_t>(maxTextureUnits));
}

RayIntersection::~RayIntersection() = default;

void RayIntersection::getRay(float* out) const {
  if (out == nullptr) {
    throw std::invalid_argument("RayIntersection::getRay called with null array");
  }
  std::copy(rayOrigin, rayOrigin + 3, out);
  std::copy(rayDirection, rayDirection + 3, out + 3);
}

float RayIntersection::getTextureS(int unit) const {
  if (unit < 0 || unit > maxTextureUnits) {
    throw std::out_of_range("RayIntersection::getTextureS called with invalid index");
  }
  return coordinateAt(textureS, unit);
}

float RayIntersection::getTextureT(int unit) const {
  if (unit < 0 || unit > maxTextureUnits) {
    throw std::out_of_range("RayIntersection::getTextureT called with invalid index");
  }
  return coordinateAt(textureT, unit);
}

void RayIntersection::setRay(const float* origin, const float* direction) {
  std::copy(origin, origin + 3, rayOrigin);
  std::copy(direction, direction + 3, rayDirection);
}

void RayIntersection::setNormal(const float* newNormal) {
  std::copy(newNormal, newNormal + 3, normal);
}

void RayIntersection::setTextureCoords(unsigned unit, float s, float t) {
  // The number of units may have grown since this object was made.
  if (unit >= textureS.size()) {
    textureS.resize(unit + 1);
    textureT.resize(unit + 1);
  }
  textureS[unit] = s;
  textureT[unit] = t;
}

void RayIntersection::setIntersected(const boost::shared_ptr<Node>& node, int submesh) {
  intersected = node;
  submeshIndex = submesh;
}

}  // namespace varnel_m3g
