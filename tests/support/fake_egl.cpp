#include "tests/support/fake_egl.h"

#include "tests/support/native_client.h"

namespace {

FakeEgl* fake = nullptr;

template <class Handle>
Handle handle(std::size_t number) {
  return reinterpret_cast<Handle>(number);
}

std::vector<EGLint> listOf(const EGLint* attributes) {
  std::vector<EGLint> list;
  while (attributes && *attributes != EGL_NONE) {
    list.push_back(attributes[0]);
    list.push_back(attributes[1]);
    attributes += 2;
  }
  list.push_back(EGL_NONE);
  return list;
}

}  // namespace

/// The back end's functions.
struct FakeEglCalls {
  static EGLint getError() { return fake->lastError; }

  static EGLDisplay getDisplay(EGLNativeDisplayType) {
    return fake->passes("getDisplay") ? handle<EGLDisplay>(1) : EGL_NO_DISPLAY;
  }

  static EGLBoolean initialize(EGLDisplay, EGLint*, EGLint*) { return fake->passes("initialize"); }

  static EGLBoolean terminate(EGLDisplay) { return fake->passes("terminate"); }

  static EGLBoolean getConfigs(EGLDisplay, EGLConfig* configs, EGLint, EGLint* count) {
    if (configs) {
      configs[0] = handle<EGLConfig>(16);
    }
    *count = 1;
    return EGL_TRUE;
  }

  static EGLBoolean chooseConfig(EGLDisplay, const EGLint* attributes, EGLConfig* configs, EGLint,
                                 EGLint* count) {
    fake->chosenAttributes = listOf(attributes);
    const bool found = fake->passes("chooseConfig");
    if (found && configs) {
      configs[0] = handle<EGLConfig>(16);
    }
    *count = found ? 1 : 0;
    return found;
  }

  // A config that fits whatever is asked for.
  static EGLBoolean getConfigAttrib(EGLDisplay, EGLConfig, EGLint attribute, EGLint* value) {
    if (!fake->passes("chooseConfig")) {
      *value = 0;
    } else if (attribute == EGL_SURFACE_TYPE || attribute == EGL_RENDERABLE_TYPE) {
      *value = 7;
    } else {
      *value = 8;
    }
    return EGL_TRUE;
  }

  static EGLSurface createWindowSurface(EGLDisplay, EGLConfig, EGLNativeWindowType, const EGLint*) {
    return fake->passes("createWindowSurface") ? handle<EGLSurface>(32) : EGL_NO_SURFACE;
  }

  static EGLSurface createPbufferSurface(EGLDisplay, EGLConfig, const EGLint* attributes) {
    fake->pbufferAttributes = listOf(attributes);
    return fake->passes("createPbufferSurface") ? handle<EGLSurface>(48) : EGL_NO_SURFACE;
  }

  static EGLSurface createPixmapSurface(EGLDisplay, EGLConfig, EGLNativePixmapType, const EGLint*) {
    return fake->passes("createPixmapSurface") ? handle<EGLSurface>(64) : EGL_NO_SURFACE;
  }

  static EGLBoolean destroySurface(EGLDisplay, EGLSurface) {
    return fake->passes("destroySurface");
  }

  static EGLBoolean querySurface(EGLDisplay, EGLSurface, EGLint attribute, EGLint* value) {
    if (fake->surfacesLost) {
      fake->lastError = EGL_BAD_SURFACE;
      return EGL_FALSE;
    }
    if (attribute == EGL_WIDTH) {
      *value = fake->width;
    } else if (attribute == EGL_HEIGHT) {
      *value = fake->height;
    }
    fake->lastError = EGL_SUCCESS;
    return EGL_TRUE;
  }

  static EGLBoolean waitClient() { return fake->passes("waitClient"); }

  static EGLBoolean waitNative(EGLint) { return fake->passes("waitNative"); }

  static EGLContext createContext(EGLDisplay, EGLConfig, EGLContext, const EGLint*) {
    return fake->passes("createContext") ? handle<EGLContext>(80) : EGL_NO_CONTEXT;
  }

  static EGLBoolean destroyContext(EGLDisplay, EGLContext) {
    return fake->passes("destroyContext");
  }

  static EGLBoolean makeCurrent(EGLDisplay, EGLSurface, EGLSurface, EGLContext context) {
    if (!fake->passes("makeCurrent")) {
      return EGL_FALSE;
    }
    fake->currentContext = context;
    return EGL_TRUE;
  }

  static EGLContext getCurrentContext() { return fake->currentContext; }

  static EGLDisplay getCurrentDisplay() {
    return fake->currentContext ? handle<EGLDisplay>(1) : EGL_NO_DISPLAY;
  }

  static EGLBoolean swapBuffers(EGLDisplay, EGLSurface) { return fake->passes("swapBuffers"); }
};

FakeEgl::FakeEgl() {
  fake = this;
  backend.getError = FakeEglCalls::getError;
  backend.getDisplay = FakeEglCalls::getDisplay;
  backend.initialize = FakeEglCalls::initialize;
  backend.terminate = FakeEglCalls::terminate;
  backend.getConfigs = FakeEglCalls::getConfigs;
  backend.chooseConfig = FakeEglCalls::chooseConfig;
  backend.getConfigAttrib = FakeEglCalls::getConfigAttrib;
  backend.createWindowSurface = FakeEglCalls::createWindowSurface;
  backend.createPbufferSurface = FakeEglCalls::createPbufferSurface;
  backend.createPixmapSurface = FakeEglCalls::createPixmapSurface;
  backend.destroySurface = FakeEglCalls::destroySurface;
  backend.querySurface = FakeEglCalls::querySurface;
  backend.waitClient = FakeEglCalls::waitClient;
  backend.waitNative = FakeEglCalls::waitNative;
  backend.createContext = FakeEglCalls::createContext;
  backend.destroyContext = FakeEglCalls::destroyContext;
  backend.makeCurrent = FakeEglCalls::makeCurrent;
  backend.getCurrentContext = FakeEglCalls::getCurrentContext;
  backend.getCurrentDisplay = FakeEglCalls::getCurrentDisplay;
  backend.swapBuffers = FakeEglCalls::swapBuffers;
  setEglBackend(&backend);
}

FakeEgl::~FakeEgl() {
  release();
  // What a test has made of its own goes with the shim's record of this thread.
  const EGLDisplay last = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  eglMakeCurrent(last, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  eglTerminate(last);
  setEglBackend(nullptr);
  fake = nullptr;
}

bool FakeEgl::passes(const std::string& call) {
  calls.push_back(call);
  const bool passed = failing.count(call) == 0;
  lastError = passed ? EGL_SUCCESS : error;
  return passed;
}

EGLSurface FakeEgl::makeSurfaceCurrent() {
  display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
  eglInitialize(display, nullptr, nullptr);
  EGLConfig config = nullptr;
  EGLint found = 0;
  eglGetConfigs(display, &config, 1, &found);
  surface = eglCreateWindowSurface(display, config, nativeWindow(1), nullptr);
  context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
  eglMakeCurrent(display, surface, surface, context);
  return surface;
}

void FakeEgl::release() {
  failing.clear();
  surfacesLost = false;
  if (display != EGL_NO_DISPLAY) {
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglDestroySurface(display, surface);
    eglDestroyContext(display, context);
    eglTerminate(display);
    display = EGL_NO_DISPLAY;
  }
}
