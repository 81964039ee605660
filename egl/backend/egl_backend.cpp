#include "egl/backend/egl_backend.h"

#include <cstring>

#include "egl/backend/egw.h"

extern "C" void KHRONOS_APIENTRY glEGLImageTargetTexture2DOES(unsigned target, void* image);

namespace {

constexpr EglBackend ownBackend = {
    egwGetError,
    egwGetDisplay,
    egwInitialize,
    egwTerminate,
    egwQueryString,
    egwGetConfigs,
    egwChooseConfig,
    egwGetConfigAttrib,
    egwCreateWindowSurface,
    egwCreatePbufferSurface,
    egwCreatePixmapSurface,
    egwDestroySurface,
    egwQuerySurface,
    egwSurfaceAttrib,
    egwBindTexImage,
    egwReleaseTexImage,
    egwWaitClient,
    egwWaitNative,
    egwSwapInterval,
    egwCreateContext,
    egwDestroyContext,
    egwMakeCurrent,
    egwGetCurrentContext,
    egwGetCurrentSurface,
    egwGetCurrentDisplay,
    egwQueryContext,
    egwSwapBuffers,
    egwCopyBuffers,
    egwGetProcAddress,
};

const EglBackend* backend = &ownBackend;

using Function = __eglMustCastToProperFunctionPointerType;

struct NamedFunction {
  const char* name;
  Function function;
};

}  // namespace

const EglBackend& eglBackend() {
  return *backend;
}

void setEglBackend(const EglBackend* other) {
  backend = other ? other : &ownBackend;
}

Function egwGetProcAddress(const char* name) {
  const NamedFunction functions[] = {
      {"eglCreateImageKHR", reinterpret_cast<Function>(egwCreateImage)},
      {"eglDestroyImageKHR", reinterpret_cast<Function>(egwDestroyImage)},
      {"glEGLImageTargetTexture2DOES", reinterpret_cast<Function>(glEGLImageTargetTexture2DOES)},
  };
  egwSucceed();
  for (const NamedFunction& entry : functions) {
    if (name && std::strcmp(entry.name, name) == 0) {
      return entry.function;
    }
  }
  return nullptr;
}
