#include "engine/render/graphics3d.h"

#include <EGL/egl.h>
#include <GLES/gl.h>

#include <cassert>
#include <stdexcept>

#include "engine/object/engine_limits.h"
#include "engine/render/coord_arrays.h"
#include "engine/render/render_state.h"
#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/surface/background.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

namespace {

constexpr int hintLimit = 31;

/// Whether the viewport covers the whole target, which starts at 0, 0.
bool covers(const Rectangle& viewport, const Rectangle& target) {
  const long long right = static_cast<long long>(viewport.x) + viewport.width;
  const long long bottom = static_cast<long long>(viewport.y) + viewport.height;
  return viewport.x <= 0 && viewport.y <= 0 && right >= target.width && bottom >= target.height;
}

/// The corner of a rectangle that is counted from the target's bottom instead of its top.
int flipped(int targetHeight, int y, int height) {
  return static_cast<int>(targetHeight - (static_cast<long long>(y) + height));
}

/// Whether a depth lies within 0 to 1; false for NaN.
bool isDepth(float value) {
  return value >= 0.0f && value <= 1.0f;
}

EGLint querySurface(EGLDisplay display, EGLSurface surface, EGLint attribute) {
  EGLint value = 0;
  eglQuerySurface(display, surface, attribute, &value);
  return value;
}

}  // namespace

const Transform& identityTransform() {
  static const Transform identity;
  return identity;
}

const boost::shared_ptr<Background>& defaultBackground() {
  // Never destroyed: the object would be released while the process ends.
  static const boost::shared_ptr<Background>& background =
      *new boost::shared_ptr<Background>(Background::create());
  return background;
}

Graphics3D& Graphics3D::getInstance() {
  static Graphics3D& instance = *new Graphics3D;
  return instance;
}

namespace {

/// Makes the process-wide objects when the library is loaded.
[[maybe_unused]] const bool made =
    (Graphics3D::getInstance(), identityTransform(), defaultBackground(), true);

}  // namespace

void Graphics3D::checkBindable(int newHints) const {
  if (target) {
    throw std::runtime_error(
        "Exception: GLDrawable already bound.  releaseTarget must be called first");
  }
  if (newHints < 0 || newHints >= hintLimit) {
    throw std::invalid_argument("Exception: invalid hints argument.");
  }
}

void Graphics3D::bindTarget(const WindowSurface* drawable) {
  bindTarget(drawable, true, 0);
}

void Graphics3D::bindTarget(const WindowSurface* drawable, bool depthBuffer, int newHints) {
  checkBindable(newHints);
  hints = newHints;
  eglDisplay = eglGetCurrentDisplay();
  eglGetError();
  const EGLSurface surface = drawable ? drawable->surface : EGL_NO_SURFACE;
  if (surface == EGL_NO_SURFACE || surface != eglGetCurrentSurface(EGL_READ) ||
      surface != eglGetCurrentSurface(EGL_DRAW)) {
    throw std::invalid_argument(
        "Exception: Graphics3D.bindTarget(). targetCanvas must be an EGLSurface that has been made "
        "current on the default display.");
  }
  EGLint configId = 0;
  eglQuerySurface(eglDisplay, surface, EGL_CONFIG_ID, &configId);
  EGLint width = 0;
  EGLint height = 0;
  eglQuerySurface(eglDisplay, surface, EGL_WIDTH, &width);
  // A surface whose window has gone fails here, since only this query asks the window system.
  if (eglGetError() == EGL_BAD_SURFACE) {
    throw std::invalid_argument(
        "Exception: Graphics3D.bindTarget().  targetCanvas must point to a valid rendering target, "
        "that target must be created from the default EGLDisplay.");
  }
  eglQuerySurface(eglDisplay, surface, EGL_HEIGHT, &height);
  checkViewportLimits(width, height);
  CoordArrays::get().followContext(eglGetCurrentContext());
  targetSurface = surface;
  attachTarget(drawable, width, height, depthBuffer);
  resetRenderState();
}

void Graphics3D::bindImageTarget(Image2D* image) {
  bindImageTarget(image, true, 0);
}

void Graphics3D::bindImageTarget(Image2D* image, bool depthBuffer, int newHints) {
  checkBindable(newHints);
  hints = newHints;
  eglDisplay = eglGetCurrentDisplay();
  if (m_eglPbuffer == EGL_NO_SURFACE) {
    const EGLint wanted[] = {EGL_SURFACE_TYPE,  EGL_PBUFFER_BIT,    EGL_RENDERABLE_TYPE,
                             EGL_OPENGL_ES_BIT, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA,
                             EGL_NONE};
    EGLConfig config = nullptr;
    EGLint found = 0;
    if (!eglChooseConfig(eglDisplay, wanted, &config, 1, &found) || found < 1) {
      throw std::runtime_error(
          "Exception: failed to get EGL Pbuffer configuration for Image2D render target.");
    }
    const EGLint size[] = {EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA,   EGL_WIDTH, image->getWidth(),
                           EGL_HEIGHT,         image->getHeight(), EGL_NONE};
    m_eglPbuffer = eglCreatePbufferSurface(eglDisplay, config, size);
  }
  assert(m_eglPbuffer != EGL_NO_SURFACE);
  checkViewportLimits(image->getWidth(), image->getHeight());
  targetImage = image;
  attachTarget(image, image->getWidth(), image->getHeight(), depthBuffer);
}

void Graphics3D::checkViewportLimits(int width, int height) const {
  if (width > maxViewportWidth || height > maxViewportHeight) {
    throw std::invalid_argument("Viewport maximum size exceeded");
  }
}

void Graphics3D::attachTarget(const void* drawable, int width, int height, bool depthBuffer) {
  target = drawable;
  depthBufferEnabled = depthBuffer;
  viewportCoversTarget = true;
  if (width >= 1 && height >= 1) {
    setViewport(0, 0, width, height);
  }
  glDepthRangef(depthRangeNear, depthRangeFar);
}

void Graphics3D::releaseTarget() {
  target = nullptr;
  targetSurface = nullptr;
  targetImage = nullptr;
}

void Graphics3D::setViewport(int x, int y, int width, int height) {
  if (!target) {
    throw std::runtime_error("setViewport called when renderingTarget has not been set.");
  }
  if (width < 1 || height < 1) {
    throw std::invalid_argument("setViewport called with width or height =< 0.");
  }
  if (width > maxViewportWidth || height > maxViewportHeight) {
    throw std::invalid_argument(
        "setViewport called with width or height greater than the max Viewport dimensions");
  }
  viewport = {x, y, width, height};
  if (targetImage) {
    targetRect = {0, 0, targetImage->getWidth(), targetImage->getHeight()};
    glViewportRect = viewport;
  } else {
    targetRect = {0, 0, querySurface(eglDisplay, targetSurface, EGL_WIDTH),
                  querySurface(eglDisplay, targetSurface, EGL_HEIGHT)};
    glViewportRect = {x, flipped(targetRect.height, y, height), width, height};
  }
  viewportCoversTarget = covers(viewport, targetRect);
}

void Graphics3D::setDepthRange(float near, float far) {
  if (!target) {
    throw std::runtime_error("setDepthRange called when renderingTarget has not been set.");
  }
  if (!isDepth(near)) {
    throw std::invalid_argument("near must be in interval 0 <= near <= 1");
  }
  if (!isDepth(far)) {
    throw std::invalid_argument("far must be in interval 0 <= far <= 1");
  }
  depthRangeNear = near;
  depthRangeFar = far;
}

void Graphics3D::setCamera(const boost::shared_ptr<Camera>& camera, const Transform* transform) {
  if (camera && transform) {
    cameraTransform = *transform;
    cameraTransform.invert();
    cameraDirty = true;
  } else {
    cameraTransform.setIdentity();
  }
  currentCamera = camera;
}

const boost::shared_ptr<Camera>& Graphics3D::getCamera(Transform* transform) const {
  if (transform) {
    *transform = cameraTransform;
    transform->invert();
  }
  return currentCamera;
}

int Graphics3D::addLight(const boost::shared_ptr<Light>& light, const Transform* transform) {
  return lights.add(light, transform);
}

void Graphics3D::setLight(int index, const boost::shared_ptr<Light>& light,
                          const Transform* transform) {
  lights.set(index, light, transform);
}

const boost::shared_ptr<Light>& Graphics3D::getLight(int index, Transform* transform) const {
  if (index < 0 || index >= lights.count()) {
    throw std::out_of_range("Graphics3D.getLight() index out of range");
  }
  return lights.get(index, transform);
}

void Graphics3D::resetLights() {
  lights.reset();
}

int Graphics3D::getLightCount() const {
  return lights.count();
}

}  // namespace varnel_m3g
