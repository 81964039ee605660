#include "gles/function_table.h"

#include <GLES/gl.h>

#include "gles/driver/driver.h"
#include "gles/es1/context_state.h"
#include "gles/pixel_rectangle.h"

namespace {

using namespace gles;
using es1::current;

void doNothing() {}

void* createState() {
  return es1::createContextState();
}

void destroyState(void* state) {
  es1::destroyContextState(static_cast<es1::ContextState*>(state));
}

void setCurrentState(void* state) {
  current = static_cast<es1::ContextState*>(state);
}

void drawRectangle(int width, int height, unsigned format, unsigned type, int alignment,
                   const void* pixels) {
  if (current) {
    gles::drawPixelRectangle({width, height, format, type, alignment, pixels},
                             current->buffers.boundArrayBuffer, es1::unitCount());
  }
}

int packAlignment() {
  return current ? current->packAlignment : 4;
}

// The published entries have a calling convention of their own on some systems.

void finish() {
  glFinish();
}

void pixelStore(unsigned name, int value) {
  glPixelStorei(name, value);
}

void readPixels(int x, int y, int width, int height, unsigned format, unsigned type, void* pixels) {
  glReadPixels(x, y, width, height, format, type, pixels);
}

void getInteger(unsigned name, int* values) {
  glGetIntegerv(name, values);
}

void bindTexture(unsigned target, unsigned texture) {
  glBindTexture(target, texture);
}

void getTexLevelParameter(unsigned target, int level, unsigned name, int* values) {
  driver.glGetTexLevelParameteriv(target, level, name, values);
}

void getTexImage(unsigned target, int level, unsigned format, unsigned type, void* pixels) {
  driver.glGetTexImage(target, level, format, type, pixels);
}

}  // namespace

void fillEs1FunctionTable(GlFunctionTable* table, bool) {
  *table = {doNothing,     createState,   destroyState, setCurrentState,
            drawRectangle, packAlignment, finish,       pixelStore,
            readPixels,    getInteger,    bindTexture,  getTexLevelParameter,
            getTexImage};
}
