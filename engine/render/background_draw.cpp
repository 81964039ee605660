// Clearing: the viewport, the buffers and a background's image.

#include <GLES/gl.h>

#include <algorithm>
#include <stdexcept>

#include "engine/render/coord_arrays.h"
#include "engine/render/graphics3d.h"
#include "engine/render/render_state.h"
#include "engine/surface/background.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {

namespace {

/// Truncates towards zero; what no int can hold becomes the nearest one.
int truncated(double value) {
  constexpr double limit = 2147483647.0;
  if (!(value > -limit)) {
    return -2147483647;
  }
  return static_cast<int>(std::min(value, limit));
}

/// The last pixel of an edge that starts at first; wraps around far outside any target.
int lastPixel(int first, int size) {
  return static_cast<int>(static_cast<long long>(first) + size - 1);
}

}  // namespace

void Graphics3D::clear(const boost::shared_ptr<Background>& background) {
  if (!target) {
    throw std::runtime_error("no rendering target currently defined");
  }
  Background& used = background ? *background : *defaultBackground();
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  const Rectangle& view = glViewportRect;
  glViewport(view.x, view.y, view.width, view.height);
  const int right = lastPixel(view.x, view.width);
  const int top = lastPixel(view.y, view.height);
  glOrthof(static_cast<GLfloat>(view.x), static_cast<GLfloat>(right), static_cast<GLfloat>(view.y),
           static_cast<GLfloat>(top), 0.0f, 1.0f);
  applyDefaultCompositing();
  glDisable(GL_LIGHTING);
  GLbitfield mask = 0;
  if (used.isColorClearEnabled()) {
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    const float* color = used.getClearColorRGBA();
    glClearColor(color[0], color[1], color[2], color[3]);
    mask |= GL_COLOR_BUFFER_BIT;
  }
  if (depthBufferEnabled && used.isDepthClearEnabled()) {
    glDepthMask(GL_TRUE);
    glClearDepthf(1.0f);
    mask |= GL_DEPTH_BUFFER_BIT;
  }
  glClear(mask);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  if (used.getImage() && used.isColorClearEnabled() && used.getCropWidth() != 0 &&
      used.getCropHeight() != 0) {
    glEnableClientState(GL_VERTEX_ARRAY);
    CoordArrays::get().enable();
    glEnable(GL_TEXTURE_2D);
    used.getImage()->getTexture()->bind();
    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, static_cast<GLfloat>(GL_LINEAR));
    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, static_cast<GLfloat>(GL_LINEAR));
    used.drawImage(view.x, right, top, view.y);
    glDisable(GL_TEXTURE_2D);
    glDisableClientState(GL_VERTEX_ARRAY);
    CoordArrays::get().disable();
  }
}

void Background::drawImage(int left, int right, int top, int bottom) {
  const double width = image ? image->getWidth() : 0;
  const double height = image ? image->getHeight() : 0;
  // The crop fills the viewport; the image's own edges lie outside.
  if (imageModeX != REPEAT) {
    const double scale = (static_cast<double>(right) - left) / crop.width;
    left = truncated(left - crop.x * scale);
    right = truncated(right - (static_cast<double>(crop.x) + crop.width - width) * scale);
  }
  if (imageModeY != REPEAT) {
    const double scale = (static_cast<double>(top) - bottom) / crop.height;
    bottom = truncated((static_cast<double>(crop.y) + crop.height - height) * scale + bottom);
    top = truncated(crop.y * scale + top);
  }
  const GLshort l = static_cast<GLshort>(left);
  const GLshort r = static_cast<GLshort>(right);
  const GLshort t = static_cast<GLshort>(top);
  const GLshort b = static_cast<GLshort>(bottom);
  const GLshort vertices[12] = {l, t, -1, l, b, -1, r, t, -1, r, b, -1};
  glVertexPointer(3, GL_SHORT, 0, vertices);

  if (texCoordsDirty && image) {
    float s0 = 0.0f;
    float s1 = 1.0f;
    float t0 = 0.0f;
    float t1 = 1.0f;
    if (imageModeX == REPEAT) {
      s0 = static_cast<float>(crop.x / width);
      s1 = static_cast<float>((static_cast<double>(crop.x) + crop.width) / width);
    }
    if (imageModeY == REPEAT) {
      t0 = static_cast<float>(-(static_cast<double>(crop.height) - crop.y) / height);
      t1 = static_cast<float>(crop.y / height);
    }
    const float pairs[8] = {s0, t0, s0, t1, s1, t0, s1, t1};
    std::copy(pairs, pairs + 8, texCoords);
    texCoordsDirty = false;
  }
  constexpr unsigned corners = 4;
  CoordArrays::get().point(texCoords, corners);
  CoordArrays::get().retireShorterThan(corners);
  glDrawArrays(GL_TRIANGLE_STRIP, 0, corners);
}

}  // namespace varnel_m3g
