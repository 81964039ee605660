#include "tests/support/render_fixture.h"

#include <GLES/gl.h>

#include <cstdio>

#include "engine/object/engine_limits.h"
#include "engine/render/render_state.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;

RenderTest::RenderTest() {
  maxTextureUnits = 2;
  target.surface = egl.makeSurfaceCurrent();
  // A state that no former test has left.
  renderState() = RenderState();
  // The OpenGL ES layer asks for the depth of the texture stack once; that is none of these tests'.
  constexpr GLenum maxTextureStackDepth = 0x0D39;
  driver.answer(maxTextureStackDepth, {10});
  glMatrixMode(GL_TEXTURE);
  glPushMatrix();
  glPopMatrix();
  glMatrixMode(GL_MODELVIEW);
  driver.clear();
}

RenderTest::~RenderTest() {
  if (!graphics.getTarget()) {
    egl.width = 1;
    egl.height = 1;
    graphics.bindTarget(&target);
  }
  graphics.setDepthRange(0.0f, 1.0f);
  graphics.releaseTarget();
  graphics.resetLights();
  graphics.setCamera(nullptr, nullptr);
  renderState() = RenderState();
  maxTextureUnits = 1;
  maxViewportWidth = 100000;
  maxViewportHeight = 100000;
}

void RenderTest::bind(int width, int height, bool depthBuffer, int hints) {
  egl.width = width;
  egl.height = height;
  graphics.bindTarget(&target, depthBuffer, hints);
  driver.clear();
}

void RenderTest::nextFrame() {
  graphics.releaseTarget();
  graphics.bindTarget(&target);
  driver.clear();
}

boost::shared_ptr<Camera> RenderTest::useIdentityCamera() {
  boost::shared_ptr<Camera> camera = Camera::create();
  graphics.setCamera(camera, nullptr);
  return camera;
}

std::string matrixText(const float* matrix) {
  std::string text = "[";
  for (int i = 0; i < 16; ++i) {
    char number[32];
    std::snprintf(number, sizeof number, "%s%g", i ? ", " : "", static_cast<double>(matrix[i]));
    text += number;
  }
  return text + "]";
}

std::string identityText() {
  return matrixText(identityTransform().data());
}
