#include "engine/render/vertex_submission.h"

#include <GLES/gl.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "engine/geometry/index_buffer.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/render/coord_arrays.h"
#include "engine/render/render_state.h"
#include "engine/surface/appearance.h"
#include "engine/surface/texture2d.h"

namespace varnel_m3g {

namespace {

/// Vertices that every array set up last can give; drawing stays below it.
unsigned vertexLimit = 0;

void limitTo(unsigned vertices) {
  vertexLimit = std::min(vertexLimit, vertices);
}

void limitTo(const VertexArray& array) {
  limitTo(static_cast<unsigned>(array.getVertexCount()));
}

GLubyte scaledAlpha(GLubyte alpha, float factor) {
  return static_cast<GLubyte>(static_cast<float>(alpha) * factor);
}

void setupPositions(const VertexBuffer& buffer) {
  const boost::shared_ptr<VertexArray> positions = buffer.getPositions(nullptr);
  if (!positions) {
    glDisableClientState(GL_VERTEX_ARRAY);
    throw std::runtime_error("renderVertexBuffers called with invalid vertex data");
  }
  glEnableClientState(GL_VERTEX_ARRAY);
  const float* bias = buffer.getPositionBias();
  if (bias) {
    glTranslatef(bias[0], bias[1], bias[2]);
  } else {
    glTranslatef(0.0f, 0.0f, 0.0f);
  }
  const float scale = buffer.getPositionScale();
  glScalef(scale, scale, scale);
  if (positions->getComponentType() == 1) {
    glVertexPointer(positions->getComponentCount(), GL_BYTE, 0, positions->byteData());
  } else {
    glVertexPointer(positions->getComponentCount(), GL_SHORT, 0, positions->shortData());
  }
  limitTo(*positions);
}

void setupNormals(const VertexBuffer& buffer) {
  const VertexArray* normals = buffer.getNormals().get();
  if (!normals) {
    glDisableClientState(GL_NORMAL_ARRAY);
    return;
  }
  glEnableClientState(GL_NORMAL_ARRAY);
  if (normals->getComponentType() == 1) {
    glNormalPointer(GL_BYTE, 0, normals->byteData());
  } else {
    glNormalPointer(GL_SHORT, 0, normals->shortData());
  }
  limitTo(*normals);
}

/// The copy of the colours whose alpha is scaled; its other bytes are those of the time it was
/// made.
const VertexArray& fadedColors(VertexBuffer& buffer, float alphaFactor) {
  const boost::shared_ptr<VertexArray>& colors = buffer.getColors();
  boost::shared_ptr<VertexArray> working = buffer.getWorkingColors();
  // An array of another length would be read past its end.
  const bool made = !working || working->getVertexCount() != colors->getVertexCount();
  if (made) {
    working = colors->copyInto(boost::shared_ptr<VertexArray>());
    buffer.setWorkingColors(working);
  }
  if (made || colors->isDirty() || buffer.getWorkingRevision() != colors->getRevision() ||
      buffer.getCachedAlphaFactor() != alphaFactor) {
    working->scaleAlphaFrom(*colors, alphaFactor);
    colors->clearDirty();
    buffer.setWorkingRevision(colors->getRevision());
    buffer.setCachedAlphaFactor(alphaFactor);
  }
  return *working;
}

void setupColors(VertexBuffer& buffer, float alphaFactor) {
  const bool lit = renderState().currentMaterial != nullptr;
  const bool faded = alphaFactor < opaqueAlpha;
  const VertexArray* colors = buffer.getColors().get();
  if (!colors) {
    glDisableClientState(GL_COLOR_ARRAY);
    const unsigned char* color = buffer.getDefaultColorBytes();
    const GLubyte alpha = !lit && faded ? scaledAlpha(color[3], alphaFactor) : color[3];
    glColor4ub(color[0], color[1], color[2], alpha);
    return;
  }
  glEnableClientState(GL_COLOR_ARRAY);
  const bool bytes = colors->getComponentType() == 1;
  if (colors->getComponentCount() == 3 && bytes && colors->rgbaCopy()) {
    glColorPointer(4, GL_UNSIGNED_BYTE, 0, colors->rgbaCopy());
    limitTo(*colors);
  } else if (colors->getComponentCount() == 4 && bytes) {
    const VertexArray& sent = lit || !faded ? *colors : fadedColors(buffer, alphaFactor);
    glColorPointer(4, GL_UNSIGNED_BYTE, 0, sent.byteData());
    limitTo(sent);
  } else {
    // The pointer of an earlier draw is in force, and nothing tells how far it may be read.
    limitTo(0);
  }
}

void setupTexCoords(const VertexBuffer& buffer, const Appearance& appearance) {
  CoordArrays& arrays = CoordArrays::get();
  for (int i = 0; i < appearance.getTextureUnitCount(); ++i) {
    const GLenum unit = GL_TEXTURE0 + static_cast<GLenum>(i);
    const boost::shared_ptr<Texture2D>& texture = appearance.textureAt(i);
    if (!texture) {
      glActiveTexture(unit);
      glDisable(GL_TEXTURE_2D);
      continue;
    }
    const boost::shared_ptr<VertexArray> coords = buffer.texCoordArray(i);
    if (!coords) {
      continue;
    }
    glActiveTexture(unit);
    arrays.activate(i);
    arrays.enable();
    glMatrixMode(GL_TEXTURE);
    glPushMatrix();
    glLoadMatrixf(texture->updateComposite().data());
    const float* bias = buffer.texCoordBias(i);
    if (bias) {
      glTranslatef(bias[0], bias[1], bias[2]);
    }
    const float scale = buffer.texCoordScale(i);
    if (scale != 1.0f) {
      glScalef(scale, scale, scale);
    }
    glMatrixMode(GL_MODELVIEW);
    arrays.point(coords);
    limitTo(*coords);
  }
}

bool reachesPastArrays(const IndexBuffer& buffer, unsigned strip) {
  // A strip of no vertices names none; its start may lie anywhere all the same.
  return buffer.highestIndex(strip) >= static_cast<long long>(vertexLimit) ||
         (!buffer.isExplicit() && buffer.stripStart(strip) > vertexLimit);
}

}  // namespace

void setupVertexArrays(VertexBuffer& vertexBuffer, float alphaFactor,
                       const Appearance& appearance) {
  vertexLimit = std::numeric_limits<unsigned>::max();
  setupPositions(vertexBuffer);
  setupNormals(vertexBuffer);
  setupColors(vertexBuffer, alphaFactor);
  setupTexCoords(vertexBuffer, appearance);
  CoordArrays::get().retireShorterThan(vertexLimit);
}

void drawIndexBuffer(unsigned mode, const IndexBuffer& indexBuffer) {
  for (unsigned i = 0; i < indexBuffer.stripCount(); ++i) {
    if (reachesPastArrays(indexBuffer, i)) {
      continue;
    }
    const GLsizei length = static_cast<GLsizei>(indexBuffer.stripLength(i));
    if (indexBuffer.isExplicit()) {
      glDrawElements(mode, length, GL_UNSIGNED_SHORT, indexBuffer.stripIndices(i));
    } else {
      glDrawArrays(mode, static_cast<GLint>(indexBuffer.stripStart(i)), length);
    }
  }
}

void finishVertexArrays() {
  glMatrixMode(GL_TEXTURE);
  glPopMatrix();
  glMatrixMode(GL_MODELVIEW);
  glDisableClientState(GL_VERTEX_ARRAY);
  glDisableClientState(GL_NORMAL_ARRAY);
  glDisableClientState(GL_COLOR_ARRAY);
  CoordArrays::get().disable();
}

}  // namespace varnel_m3g
