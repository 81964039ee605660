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

void drawRectangle(int width, int height, unsigned format, unsigned type, int alignment,
                   const void* pixels) {
  if (es2::current) {
    gles::drawPixelRectangle({width, height, format, type, alignment, pixels},
                             es2::current->buffers.boundArrayBuffer, 1);
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
