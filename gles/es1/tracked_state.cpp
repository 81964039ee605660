// State that is forwarded and remembered: matrix stacks, pixel store, texture units, finishing.

#include <GLES/gl.h>

#include "gles/desktop_enums.h"
#include "gles/driver/driver.h"
#include "gles/es1/context_state.h"
#include "gles/function_table.h"

namespace {

using namespace gles;
using es1::current;

// Whether the current mode's stack has to be made here: the driver's texture stack holds no more
// than the current matrix.
bool usesSavedMatrix() {
  if (current->matrixMode != GL_TEXTURE) {
    return false;
  }
  if (es1::textureStackDepth < 0) {
    driver.glGetIntegerv(desktop::MAX_TEXTURE_STACK_DEPTH, &es1::textureStackDepth);
  }
  return es1::textureStackDepth < 2;
}

}  // namespace

extern "C" {

void GL_APIENTRY glMatrixMode(GLenum mode) {
  if (!current) {
    return;
  }
  if (mode == GL_MODELVIEW || mode == GL_PROJECTION || mode == GL_TEXTURE) {
    current->matrixMode = mode;
  }
  driver.glMatrixMode(mode);
}

void GL_APIENTRY glPushMatrix(void) {
  if (!current) {
    return;
  }
  if (usesSavedMatrix()) {
    es1::UnitState& unit = *es1::unitOf(current->activeTexture);
    driver.glGetFloatv(GL_TEXTURE_MATRIX, unit.savedTextureMatrix.data());
  } else {
    driver.glPushMatrix();
  }
}

void GL_APIENTRY glPopMatrix(void) {
  if (!current) {
    return;
  }
  if (usesSavedMatrix()) {
    driver.glLoadMatrixf(es1::unitOf(current->activeTexture)->savedTextureMatrix.data());
  } else {
    driver.glPopMatrix();
  }
}

void GL_APIENTRY glActiveTexture(GLenum texture) {
  if (!current || !driver.glActiveTexture) {
    return;
  }
  if (es1::unitOf(texture)) {
    current->activeTexture = texture;
  }
  driver.glActiveTexture(texture);
}

void GL_APIENTRY glPixelStorei(GLenum pname, GLint param) {
  if (!current) {
    return;
  }
  const bool isAlignment = param == 1 || param == 2 || param == 4 || param == 8;
  if (pname == GL_PACK_ALIGNMENT && isAlignment) {
    current->packAlignment = param;
  } else if (pname == GL_UNPACK_ALIGNMENT && isAlignment) {
    current->unpackAlignment = param;
  }
  driver.glPixelStorei(pname, param);
}

void GL_APIENTRY glFinish(void) {
  if (!current) {
    return;
  }
  driver.glFinish();
  if (current->conversionDirty) {
    current->conversionDirty = false;
    runCopyBackHook();
  }
}

}  // extern "C"
