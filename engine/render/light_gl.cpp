// The side of a Light that speaks OpenGL ES: it holds one light unit and sends what has changed.

#include <GLES/gl.h>

#include <algorithm>

#include "engine/math/transform.h"
#include "engine/scene/light.h"

namespace varnel_m3g {

namespace {

constexpr GLfloat black[4] = {0.0f, 0.0f, 0.0f, 0.0f};

void sendAttenuation(GLenum unit, GLfloat constant, GLfloat linear, GLfloat quadratic) {
  glLightf(unit, GL_CONSTANT_ATTENUATION, constant);
  glLightf(unit, GL_LINEAR_ATTENUATION, linear);
  glLightf(unit, GL_QUADRATIC_ATTENUATION, quadratic);
}

}  // namespace

void Light::setGLLight(int light, const Transform& world) {
  if (light != glLight) {
    changeMask = ALL_CHANGED;
  }
  glLight = light;
  float newPosition[4] = {0.0f, 0.0f, 0.0f, 1.0f};
  // The positive z axis: towards the source for a directional light, and the beam of a spot light.
  float newDirection[4] = {0.0f, 0.0f, 1.0f, 0.0f};
  world.transform(newPosition, 4);
  world.transform(newDirection, 4);
  if (std::equal(newPosition, newPosition + 4, position) &&
      std::equal(newDirection, newDirection + 4, direction)) {
    return;
  }
  std::copy(newPosition, newPosition + 4, position);
  std::copy(newDirection, newDirection + 4, direction);
  transformChanged = true;
}

void Light::applyLight() {
  const GLenum unit = static_cast<GLenum>(glLight);
  if (!isRenderingEnabled()) {
    glDisable(unit);
    return;
  }
  const bool modeChanged = (changeMask & MODE_CHANGED) != 0;
  const bool colors = modeChanged || (changeMask & COLOR_CHANGED) != 0;
  const bool attenuations = modeChanged || (changeMask & ATTENUATION_CHANGED) != 0;
  const bool geometry = modeChanged || transformChanged;
  const bool cutoff = modeChanged || (changeMask & SPOT_ANGLE_CHANGED) != 0;
  const bool exponent = modeChanged || (changeMask & SPOT_EXPONENT_CHANGED) != 0;

  const bool known = mode >= AMBIENT && mode <= SPOT;
  if (colors && known) {
    const bool ambient = mode == AMBIENT;
    glLightfv(unit, GL_AMBIENT, ambient ? scaledColor : black);
    glLightfv(unit, GL_DIFFUSE, ambient ? black : scaledColor);
    glLightfv(unit, GL_SPECULAR, ambient ? black : scaledColor);
  }
  if (attenuations && known) {
    if (mode == AMBIENT || mode == DIRECTIONAL) {
      sendAttenuation(unit, 1.0f, 0.0f, 0.0f);
    } else {
      sendAttenuation(unit, attenuation[0], attenuation[1], attenuation[2]);
    }
  }
  if (mode == SPOT && cutoff) {
    glLightf(unit, GL_SPOT_CUTOFF, spotAngle);
  }
  if (mode == SPOT && exponent) {
    glLightf(unit, GL_SPOT_EXPONENT, spotExponent);
  }
  if (geometry) {
    if (mode == DIRECTIONAL) {
      glLightfv(unit, GL_POSITION, direction);
    } else if (mode == OMNI || mode == SPOT) {
      glLightfv(unit, GL_POSITION, position);
    }
    if (mode == SPOT) {
      glLightfv(unit, GL_SPOT_DIRECTION, direction);
    }
  }
  glEnable(unit);
  changeMask = 0;
  transformChanged = false;
}

void Light::disableLight() {
  if (glLight >= 0) {
    glDisable(static_cast<GLenum>(glLight));
  }
}

void Light::releaseGLLight() {
  glLight = -1;
  changeMask = ALL_CHANGED;
  transformChanged = true;
}

}  // namespace varnel_m3g
