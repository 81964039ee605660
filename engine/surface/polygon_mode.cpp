#include "engine/surface/polygon_mode.h"

#include <boost/pointer_cast.hpp>

#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

constexpr unsigned GL_FRONT_FACE_CW = 2304;
constexpr unsigned GL_FRONT_FACE_CCW = 2305;
constexpr unsigned GL_CULL_FRONT = 1028;
constexpr unsigned GL_CULL_BACK = 1029;
constexpr unsigned GL_SHADE_FLAT = 7424;
constexpr unsigned GL_SHADE_SMOOTH = 7425;

const char* cullingName(int culling) {
  switch (culling) {
    case PolygonMode::CULL_BACK:
      return " CULL_BACK";
    case PolygonMode::CULL_FRONT:
      return " CULL_FRONT";
    case PolygonMode::CULL_NONE:
      return " CULL_NONE";
    default:
      return " UNKNOWN";
  }
}

const char* windingName(int winding) {
  return winding == PolygonMode::WINDING_CW ? " WINDING_CW" : " WINDING_CCW";
}

}  // namespace

boost::shared_ptr<PolygonMode> PolygonMode::lastChangedPolygonMode;

boost::shared_ptr<PolygonMode> PolygonMode::create() {
  const boost::shared_ptr<PolygonMode> mode(new PolygonMode);
  mode->initialise();
  return mode;
}

PolygonMode::PolygonMode() = default;

PolygonMode::~PolygonMode() = default;

void PolygonMode::initialise() {
  reset();
  glCullFace = GL_CULL_BACK;
  glFrontFace = GL_FRONT_FACE_CCW;
  glShadeModel = GL_SHADE_SMOOTH;
  twoSidedLightingEnabled = false;
  localCameraLightingEnabled = false;
  perspectiveCorrectionEnabled = false;
  culling = CULL_BACK;
  winding = WINDING_CCW;
  shading = SHADE_SMOOTH;
}

void PolygonMode::dump() {
  Object3D::dump();
  log("PolygonMode Object");
  log("==================");
  logf("Culling:%s", cullingName(culling));
  logf("Winding:%s", windingName(winding));
  // The same text for flat and for smooth shading.
  logf("Shading:%s", " SHADE_FLAT");
  logf("TwoSidedLightingEnabled:      %u", twoSidedLightingEnabled ? 1U : 0U);
  logf("LocalCameraLightingEnabled:   %u", localCameraLightingEnabled ? 1U : 0U);
  logf("PerspectiveCorrectionEnabled: %u", perspectiveCorrectionEnabled ? 1U : 0U);
}

boost::shared_ptr<Object3D> PolygonMode::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<PolygonMode> copy = boost::dynamic_pointer_cast<PolygonMode>(target);
  copy->glCullFace = glCullFace;
  copy->glFrontFace = glFrontFace;
  copy->glShadeModel = glShadeModel;
  copy->twoSidedLightingEnabled = twoSidedLightingEnabled;
  copy->localCameraLightingEnabled = localCameraLightingEnabled;
  copy->perspectiveCorrectionEnabled = perspectiveCorrectionEnabled;
  copy->culling = culling;
  copy->winding = winding;
  copy->shading = shading;
  return target;
}

void PolygonMode::setCulling(int newCulling) {
  culling = newCulling;
  if (culling == CULL_BACK || culling == CULL_NONE) {
    glCullFace = GL_CULL_BACK;
  } else if (culling == CULL_FRONT) {
    glCullFace = GL_CULL_FRONT;
  }
  forgetLastChange();
}

void PolygonMode::setWinding(int newWinding) {
  if (newWinding == WINDING_CCW) {
    winding = newWinding;
    glFrontFace = GL_FRONT_FACE_CCW;
  } else if (newWinding == WINDING_CW) {
    winding = newWinding;
    glFrontFace = GL_FRONT_FACE_CW;
  }
  forgetLastChange();
}

void PolygonMode::setShading(int newShading) {
  if (newShading == SHADE_FLAT) {
    shading = newShading;
    glShadeModel = GL_SHADE_FLAT;
  } else if (newShading == SHADE_SMOOTH) {
    shading = newShading;
    glShadeModel = GL_SHADE_SMOOTH;
  }
  forgetLastChange();
}

void PolygonMode::setTwoSidedLightingEnable(bool enable) {
  twoSidedLightingEnabled = enable;
  forgetLastChange();
}

void PolygonMode::setLocalCameraLightingEnable(bool enable) {
  localCameraLightingEnabled = enable;
  forgetLastChange();
}

void PolygonMode::setPerspectiveCorrectionEnable(bool enable) {
  perspectiveCorrectionEnabled = enable;
  forgetLastChange();
}

void PolygonMode::forgetLastChange() {
  if (lastChangedPolygonMode.get() == this) {
    static const boost::shared_ptr<PolygonMode> none;
    lastChangedPolygonMode = none;
  }
}

}  // namespace varnel_m3g
