#include "engine/render/render_state.h"

#include <GLES/gl.h>

#include "engine/object/engine_limits.h"
#include "engine/render/coord_arrays.h"
#include "engine/surface/appearance.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/image_texture.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"

namespace varnel_m3g {

namespace {

GLboolean glBool(bool value) {
  return value ? GL_TRUE : GL_FALSE;
}

void applyDefaultFog() {
  RenderState& state = renderState();
  if (state.fogIsDefault) {
    return;
  }
  glDisable(GL_FOG);
  state.fogIsDefault = true;
}

void applyDefaultMaterial() {
  RenderState& state = renderState();
  if (state.materialIsDefault) {
    return;
  }
  glDisable(GL_LIGHTING);
  glDisable(GL_NORMALIZE);
  state.materialIsDefault = true;
}

void applyDefaultPolygon() {
  RenderState& state = renderState();
  if (state.polygonIsDefault) {
    return;
  }
  glEnable(GL_CULL_FACE);
  glCullFace(GL_BACK);
  glFrontFace(GL_CCW);
  glShadeModel(GL_SMOOTH);
  glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 0.0f);
  state.polygonIsDefault = true;
}

void applyFog(const boost::shared_ptr<Fog>& fog) {
  RenderState& state = renderState();
  if (!fog) {
    applyDefaultFog();
  } else if (fog != state.currentFog || fog->isDirty()) {
    fog->clearDirty();
    glEnable(GL_FOG);
    glFogfv(GL_FOG_COLOR, fog->getColorRGBA());
    if (fog->getMode() == Fog::LINEAR) {
      glFogf(GL_FOG_MODE, static_cast<GLfloat>(GL_LINEAR));
      glFogf(GL_FOG_START, fog->getNearDistance());
      glFogf(GL_FOG_END, fog->getFarDistance());
    } else {
      glFogf(GL_FOG_MODE, static_cast<GLfloat>(GL_EXP));
      glFogf(GL_FOG_DENSITY, fog->getDensity());
    }
    state.fogIsDefault = false;
  }
  state.currentFog = fog;
}

void applyPolygonMode(const boost::shared_ptr<PolygonMode>& mode) {
  RenderState& state = renderState();
  if (!mode) {
    applyDefaultPolygon();
  } else if (mode != state.currentPolygonMode) {
    if (mode->getCulling() != PolygonMode::CULL_NONE) {
      glEnable(GL_CULL_FACE);
      glCullFace(mode->getGlCullFace());
    } else {
      glDisable(GL_CULL_FACE);
    }
    glFrontFace(mode->getGlFrontFace());
    glShadeModel(mode->getGlShadeModel());
    glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, mode->isTwoSidedLightingEnabled() ? 1.0f : 0.0f);
    if (mode->isPerspectiveCorrectionEnabled()) {
      glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST);
    }
    state.polygonIsDefault = false;
  }
  state.currentPolygonMode = mode;
}

void applyMaterial(const boost::shared_ptr<Material>& material) {
  RenderState& state = renderState();
  if (!material) {
    applyDefaultMaterial();
  } else if (material != state.currentMaterial) {
    glEnable(GL_LIGHTING);
    glEnable(GL_NORMALIZE);
    if (!material->isVertexColorTrackingEnabled()) {
      glDisable(GL_COLOR_MATERIAL);
      glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, material->getAmbient());
      glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, material->getDiffuse());
    } else {
      glEnable(GL_COLOR_MATERIAL);
    }
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, material->getSpecular());
    glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, material->getEmissive());
    glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, material->getShininess());
    state.materialIsDefault = false;
  }
  state.currentMaterial = material;
}

void sendCompositingMode(const CompositingMode& mode) {
  if (mode.isDepthOffsetZero()) {
    glDisable(GL_POLYGON_OFFSET_FILL);
  } else {
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(mode.getDepthOffsetFactor(), mode.getDepthOffsetUnits());
  }
  if (mode.isDepthTestEnabled()) {
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
  } else {
    glDisable(GL_DEPTH_TEST);
  }
  if (mode.getAlphaThreshold() == 0.0f) {
    glAlphaFunc(GL_ALWAYS, 0.0f);
    glDisable(GL_ALPHA_TEST);
  } else {
    // Fragments at or below the threshold pass.
    glEnable(GL_ALPHA_TEST);
    glAlphaFunc(GL_LEQUAL, mode.getAlphaThreshold());
  }
  const GLboolean color = glBool(mode.isColorWriteEnabled());
  glColorMask(color, color, color, glBool(mode.isAlphaWriteEnabled()));
  glDepthMask(glBool(mode.isDepthWriteEnabled()));
  if (mode.getBlending() == CompositingMode::REPLACE) {
    glDisable(GL_BLEND);
  } else {
    glEnable(GL_BLEND);
    glBlendFunc(mode.getSrcFactor(), mode.getDstFactor());
  }
}

void applyCompositingMode(const boost::shared_ptr<CompositingMode>& mode) {
  RenderState& state = renderState();
  if (!mode) {
    applyDefaultCompositing();
  } else {
    const bool plain =
        mode->isDepthOffsetZero() && mode->isDepthWriteEnabled() && mode->isAlphaWriteEnabled() &&
        mode->getBlending() == CompositingMode::REPLACE && mode->getAlphaThreshold() >= 1.0f;
    if (!(plain && state.compositingIsDefault && mode == state.currentCompositingMode)) {
      sendCompositingMode(*mode);
      state.compositingIsDefault = false;
    }
  }
  state.currentCompositingMode = mode;
}

void sendTextureBlending(int blending) {
  GLenum mode;
  switch (blending) {
    case Texture2D::FUNC_ADD:
      mode = GL_ADD;
      break;
    case Texture2D::FUNC_BLEND:
      mode = GL_BLEND;
      break;
    case Texture2D::FUNC_DECAL:
      mode = GL_DECAL;
      break;
    case Texture2D::FUNC_MODULATE:
      mode = GL_MODULATE;
      break;
    case Texture2D::FUNC_REPLACE:
      mode = GL_REPLACE;
      break;
    default:
      return;
  }
  glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, static_cast<GLfloat>(mode));
}

GLfloat wrapMode(int wrapping) {
  return static_cast<GLfloat>(wrapping == Texture2D::WRAP_REPEAT ? GL_REPEAT : GL_CLAMP_TO_EDGE);
}

void applyTexture(int unit, const boost::shared_ptr<Texture2D>& texture) {
  glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
  if (!texture) {
    CoordArrays::get().activate(unit);
    glDisable(GL_TEXTURE_2D);
    CoordArrays::get().disable();
    return;
  }
  glEnable(GL_TEXTURE_2D);
  texture->getImage()->getTexture()->bind();
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrapMode(texture->getWrappingS()));
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, wrapMode(texture->getWrappingT()));
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER,
                  static_cast<GLfloat>(texture->getGlMagFilter()));
  glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER,
                  static_cast<GLfloat>(texture->getGlMinFilter()));
  sendTextureBlending(texture->getBlending());
}

}  // namespace

RenderState& renderState() {
  // Never destroyed: its objects must not outlive the virtual machine's part of the process.
  static RenderState& state = *new RenderState;
  return state;
}

void applyDefaultCompositing() {
  RenderState& state = renderState();
  if (state.compositingIsDefault) {
    return;
  }
  glDisable(GL_POLYGON_OFFSET_FILL);
  glEnable(GL_DEPTH_TEST);
  glDepthFunc(GL_LEQUAL);
  glAlphaFunc(GL_ALWAYS, 0.0f);
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  glDepthMask(GL_TRUE);
  glDisable(GL_BLEND);
  state.compositingIsDefault = true;
}

void resetRenderState() {
  RenderState& state = renderState();
  state.fogIsDefault = false;
  state.materialIsDefault = false;
  state.polygonIsDefault = false;
  state.compositingIsDefault = false;
  applyDefaultFog();
  applyDefaultMaterial();
  applyDefaultPolygon();
  applyDefaultCompositing();
  state.currentFog.reset();
  state.currentMaterial.reset();
  state.currentPolygonMode.reset();
  state.currentCompositingMode.reset();
}

void applyAppearance(const boost::shared_ptr<Appearance>& appearance) {
  renderState().currentAppearance = appearance;
  applyFog(appearance->getFog());
  applyPolygonMode(appearance->getPolygonMode());
  applyMaterial(appearance->getMaterial());
  applyCompositingMode(appearance->getCompositingMode());
  for (int i = 0; i < maxTextureUnits; ++i) {
    applyTexture(i, appearance->textureAt(i));
  }
}

}  // namespace varnel_m3g
