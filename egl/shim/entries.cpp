#include <cstring>

#include "egl/shim/shim.h"

extern "C" {

EGLBoolean EGLAPIENTRY eglLockSurfaceKHR(EGLDisplay dpy, EGLSurface surface,
                                         const EGLint* attrib_list);
EGLBoolean EGLAPIENTRY eglUnlockSurfaceKHR(EGLDisplay dpy, EGLSurface surface);

EGLint EGLAPIENTRY eglGetError() {
  const EGLShimLocals* locals = shimLocals();
  return locals ? locals->error : EGL_NOT_INITIALIZED;
}

EGLDisplay EGLAPIENTRY eglGetDisplay(EGLNativeDisplayType display_id) {
  ShimTurn turn;
  if (!ensureShimLocals()) {
    return EGL_NO_DISPLAY;
  }
  return forwarded(eglBackend().getDisplay(display_id));
}

EGLBoolean EGLAPIENTRY eglInitialize(EGLDisplay dpy, EGLint* major, EGLint* minor) {
  ShimTurn turn;
  EGLShimLocals* locals = ensureShimLocals();
  if (!locals) {
    return EGL_FALSE;
  }
  const EGLBoolean initialised = forwarded(eglBackend().initialize(dpy, nullptr, nullptr));
  if (initialised && !locals->configList && !buildConfigList(*locals, dpy)) {
    freeConfigList(*locals);
    return shimFail(EGL_BAD_ALLOC);
  }
  if (major) {
    *major = 1;
  }
  if (minor) {
    *minor = 3;
  }
  return initialised;
}

EGLBoolean EGLAPIENTRY eglTerminate(EGLDisplay dpy) {
  ShimTurn turn;
  const EGLBoolean terminated = forwarded(eglBackend().terminate(dpy));
  if (terminated) {
    freeSurfacesOf(dpy);
  }
  dropShimLocals();
  return terminated;
}

const char* EGLAPIENTRY eglQueryString(EGLDisplay, EGLint name) {
  switch (name) {
    case EGL_VENDOR:
      return "Tolvane";
    case EGL_VERSION:
      return "1.3 Tolvane EGL wrapper";
    case EGL_EXTENSIONS:
      return "EGL_KHR_lock_surface";
    case EGL_CLIENT_APIS:
      return "OpenGL_ES";
    default:
      return nullptr;
  }
}

EGLBoolean EGLAPIENTRY eglBindAPI(EGLenum api) {
  return api == EGL_OPENGL_ES_API ? EGL_TRUE : shimFail(EGL_BAD_PARAMETER);
}

EGLenum EGLAPIENTRY eglQueryAPI() {
  return EGL_OPENGL_ES_API;
}

EGLBoolean EGLAPIENTRY eglWaitClient() {
  ShimTurn turn;
  return forwarded(eglBackend().waitClient());
}

EGLBoolean EGLAPIENTRY eglWaitGL() {
  ShimTurn turn;
  return forwarded(eglBackend().waitClient());
}

EGLBoolean EGLAPIENTRY eglWaitNative(EGLint engine) {
  ShimTurn turn;
  return forwarded(eglBackend().waitNative(engine));
}

EGLBoolean EGLAPIENTRY eglReleaseThread() {
  return EGL_TRUE;
}

EGLBoolean EGLAPIENTRY eglSwapInterval(EGLDisplay dpy, EGLint interval) {
  ShimTurn turn;
  return forwarded(eglBackend().swapInterval(dpy, interval));
}

EGLContext EGLAPIENTRY eglCreateContext(EGLDisplay dpy, EGLConfig config, EGLContext share_context,
                                        const EGLint*) {
  ShimTurn turn;
  const ShimConfig* known = findShimConfig(config);
  if (!known) {
    shimFail(EGL_BAD_CONFIG);
    return EGL_NO_CONTEXT;
  }
  return forwarded(eglBackend().createContext(dpy, known->backendConfig, share_context, nullptr));
}

EGLBoolean EGLAPIENTRY eglDestroyContext(EGLDisplay dpy, EGLContext ctx) {
  ShimTurn turn;
  return forwarded(eglBackend().destroyContext(dpy, ctx));
}

EGLBoolean EGLAPIENTRY eglMakeCurrent(EGLDisplay dpy, EGLSurface draw, EGLSurface read,
                                      EGLContext ctx) {
  ShimTurn turn;
  ShimSurface* drawSurface = findShimSurface(draw);
  ShimSurface* readSurface = findShimSurface(read);
  if ((drawSurface && drawSurface->locked) || (readSurface && readSurface->locked)) {
    return shimFail(EGL_BAD_ACCESS);
  }
  if (!forwarded(
          eglBackend().makeCurrent(dpy, backendSurfaceOf(draw), backendSurfaceOf(read), ctx))) {
    return EGL_FALSE;
  }
  if (EGLShimLocals* locals = shimLocals()) {
    locals->drawSurface = drawSurface;
    locals->readSurface = readSurface;
  }
  return EGL_TRUE;
}

EGLContext EGLAPIENTRY eglGetCurrentContext() {
  ShimTurn turn;
  return forwarded(eglBackend().getCurrentContext());
}

EGLDisplay EGLAPIENTRY eglGetCurrentDisplay() {
  ShimTurn turn;
  return forwarded(eglBackend().getCurrentDisplay());
}

EGLSurface EGLAPIENTRY eglGetCurrentSurface(EGLint readdraw) {
  ShimTurn turn;
  const EGLShimLocals* locals = shimLocals();
  if (readdraw != EGL_READ && readdraw != EGL_DRAW) {
    shimFail(EGL_BAD_PARAMETER);
    return EGL_NO_SURFACE;
  }
  if (!locals) {
    return EGL_NO_SURFACE;
  }
  return readdraw == EGL_READ ? locals->readSurface : locals->drawSurface;
}

EGLBoolean EGLAPIENTRY eglQueryContext(EGLDisplay dpy, EGLContext ctx, EGLint attribute,
                                       EGLint* value) {
  ShimTurn turn;
  if (!value) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  switch (attribute) {
    case EGL_RENDER_BUFFER:
      *value = EGL_BACK_BUFFER;
      return EGL_TRUE;
    case EGL_CONTEXT_CLIENT_TYPE:
      *value = EGL_OPENGL_ES_API;
      return EGL_TRUE;
    case EGL_CONTEXT_CLIENT_VERSION:
      *value = 1;
      return EGL_TRUE;
    default:
      return forwarded(eglBackend().queryContext(dpy, ctx, attribute, value));
  }
}

__eglMustCastToProperFunctionPointerType EGLAPIENTRY eglGetProcAddress(const char* procname) {
  using Function = __eglMustCastToProperFunctionPointerType;
  if (!procname) {
    return nullptr;
  }
  if (std::strncmp(procname, "eglLockSurfaceKHR", 20) == 0) {
    return reinterpret_cast<Function>(eglLockSurfaceKHR);
  }
  if (std::strncmp(procname, "eglUnlockSurfaceKHR", 20) == 0) {
    return reinterpret_cast<Function>(eglUnlockSurfaceKHR);
  }
  ShimTurn turn;
  return forwarded(eglBackend().getProcAddress(procname));
}

}  // extern "C"
