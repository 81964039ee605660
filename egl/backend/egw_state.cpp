#include <cstddef>

#include "egl/backend/egw.h"

EgwState egw;

EGLBoolean egwFail(EGLint error) {
  egw.error = error;
  return EGL_FALSE;
}

EGLBoolean egwSucceed() {
  egw.error = EGL_SUCCESS;
  return EGL_TRUE;
}

EGLint egwGetError() {
  const EGLint error = egw.error;
  egw.error = EGL_SUCCESS;
  return error;
}

const EgwConfig* egwFindConfig(EGLConfig handle) {
  for (const EgwConfig& row : egw.configs) {
    if (handle == &row) {
      return &row;
    }
  }
  egw.error = EGL_BAD_CONFIG;
  return nullptr;
}

EgwSurface* egwFindSurface(const EgwDisplay& display, EGLSurface handle) {
  for (EgwSurface* surface = display.surfaces; surface; surface = surface->next) {
    if (surface == handle && !surface->doomed) {
      return surface;
    }
  }
  egw.error = EGL_BAD_SURFACE;
  return nullptr;
}

EgwContext* egwFindContext(const EgwDisplay& display, EGLContext handle) {
  for (EgwContext* context = display.contexts; context; context = context->next) {
    if (context == handle && !context->doomed) {
      return context;
    }
  }
  egw.error = EGL_BAD_CONTEXT;
  return nullptr;
}
