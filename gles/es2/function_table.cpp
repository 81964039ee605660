#include "gles/function_table.h"

#include <new>

#include "gles/driver/driver.h"
#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"
#include "gles/pixel_rectangle.h"

namespace {

using namespace gles;

void doNothing() {}

void* createState() {
  return new (std::nothrow) es2::ContextState;
}

void destroyState(void* state) {
  if (es2::current == state) {
    es2::current = nullptr;
  }
  delete static_cast<es2::ContextState*>(state);
}

void setCurrentState(void* state) {
  es2::current = static_cast<es2::ContextState*>(state);
}

// The fixed function draws it: no program, no generic attributes, the surface's own framebuffer.
void drawRectangle(int width, int height, unsigned format, unsigned type, int alignment,
                   const void* pixels) {
  if (!es2::current) {
    return;
  }
  int program = 0;
  int framebuffer = 0;
  if (driver.glUseProgram) {
    driver.glGetIntegerv(GL_CURRENT_PROGRAM, &program);
    driver.glUseProgram(0);
  }
  if (driver.glBindFramebufferEXT) {
    driver.glGetIntegerv(GL_FRAMEBUFFER_BINDING, &framebuffer);
    driver.glBindFramebufferEXT(GL_FRAMEBUFFER, 0);
  }
  const std::deque<es2::AttributeState>& attributes = es2::current->attributes;
  for (unsigned i = 0; i < attributes.size(); ++i) {
    if (attributes[i].enabled) {
      driver.glDisableVertexAttribArray(i);
    }
  }
  gles::drawPixelRectangle({width, height, format, type, alignment, pixels},
                           es2::current->buffers.boundArrayBuffer, 1);
  for (unsigned i = 0; i < attributes.size(); ++i) {
    if (attributes[i].enabled) {
      driver.glEnableVertexAttribArray(i);
    }
  }
  if (driver.glBindFramebufferEXT) {
    driver.glBindFramebufferEXT(GL_FRAMEBUFFER, static_cast<unsigned>(framebuffer));
  }
  if (driver.glUseProgram) {
    driver.glUseProgram(static_cast<unsigned>(program));
  }
}

int packAlignment() {
  return es2::current ? es2::current->packAlignment : 4;
}

void getTexLevelParameter(unsigned target, int level, unsigned name, int* values) {
  driver.glGetTexLevelParameteriv(target, level, name, values);
}

void getTexImage(unsigned target, int level, unsigned format, unsigned type, void* pixels) {
  driver.glGetTexImage(target, level, format, type, pixels);
}

}  // namespace

void fillEs2FunctionTable(GlFunctionTable* table) {
  *table = {doNothing,         createState,        destroyState,       setCurrentState,
            drawRectangle,     packAlignment,      es2::glFinish,      es2::glPixelStorei,
            es2::glReadPixels, es2::glGetIntegerv, es2::glBindTexture, getTexLevelParameter,
            getTexImage};
}
