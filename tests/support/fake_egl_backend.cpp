#include "tests/support/fake_egl_backend.h"

#include <algorithm>
#include <cstdint>

namespace {

FakeEglBackend* fake = nullptr;
EGLint error = EGL_SUCCESS;
std::uintptr_t nextHandle = 100;
EGLDisplay currentDisplay = EGL_NO_DISPLAY;
EGLSurface currentDraw = EGL_NO_SURFACE;
EGLSurface currentRead = EGL_NO_SURFACE;
EGLContext currentContext = EGL_NO_CONTEXT;

EGLBoolean note(const char* call) {
  fake->calls.emplace_back(call);
  error = fake->failingCall == call ? fake->failingError : fake->nextError;
  return error == EGL_SUCCESS;
}

void* newHandle() {
  return reinterpret_cast<void*>(nextHandle++);
}

const FakeEglBackend::Config* configOf(EGLConfig handle) {
  const auto number = reinterpret_cast<std::uintptr_t>(handle);
  return number >= 1 && number <= fake->configs.size() ? &fake->configs[number - 1] : nullptr;
}

EGLConfig handleOf(std::size_t index) {
  return reinterpret_cast<EGLConfig>(index + 1);
}

EGLSurface newSurface(const char* call, const EGLint* attributes) {
  fake->lastAttributes.clear();
  for (const EGLint* at = attributes; at && at[0] != EGL_NONE; at += 2) {
    fake->lastAttributes.push_back(at[0]);
    fake->lastAttributes.push_back(at[1]);
  }
  return note(call) ? newHandle() : EGL_NO_SURFACE;
}

EGLint wanted(const EGLint* attributes, EGLint name) {
  for (const EGLint* at = attributes; at && at[0] != EGL_NONE; at += 2) {
    if (at[0] == name) {
      return at[1];
    }
  }
  return 0;
}

const EglBackend table = {
    [] {
      const EGLint answer = error;
      error = EGL_SUCCESS;
      return answer;
    },
    [](EGLNativeDisplayType) -> EGLDisplay {
      return note("getDisplay") ? reinterpret_cast<EGLDisplay>(1) : EGL_NO_DISPLAY;
    },
    [](EGLDisplay, EGLint* major, EGLint* minor) {
      if (major) {
        *major = 7;
      }
      if (minor) {
        *minor = 8;
      }
      return note("initialize");
    },
    [](EGLDisplay) { return note("terminate"); },
    [](EGLDisplay, EGLint) -> const char* { return note("queryString") ? "fake" : nullptr; },
    [](EGLDisplay, EGLConfig* configs, EGLint size, EGLint* count) {
      const auto total = static_cast<EGLint>(fake->configs.size());
      *count = configs ? std::min(size, total) : total;
      for (EGLint i = 0; configs && i < *count; ++i) {
        configs[i] = handleOf(static_cast<std::size_t>(i));
      }
      return note("getConfigs");
    },
    [](EGLDisplay, const EGLint* attributes, EGLConfig* configs, EGLint, EGLint* count) {
      *count = 0;
      for (std::size_t i = 0; i < fake->configs.size() && *count < 10; ++i) {
        const FakeEglBackend::Config& config = fake->configs[i];
        if (config.red >= wanted(attributes, EGL_RED_SIZE) &&
            config.green >= wanted(attributes, EGL_GREEN_SIZE) &&
            config.blue >= wanted(attributes, EGL_BLUE_SIZE) &&
            config.alpha >= wanted(attributes, EGL_ALPHA_SIZE)) {
          configs[(*count)++] = handleOf(i);
        }
      }
      return note("chooseConfig");
    },
    [](EGLDisplay, EGLConfig handle, EGLint attribute, EGLint* value) {
      const FakeEglBackend::Config* config = configOf(handle);
      if (!config) {
        error = EGL_BAD_CONFIG;
        return static_cast<EGLBoolean>(EGL_FALSE);
      }
      switch (attribute) {
        case EGL_SURFACE_TYPE:
          *value = config->surfaceType;
          break;
        case EGL_RED_SIZE:
          *value = config->red;
          break;
        case EGL_GREEN_SIZE:
          *value = config->green;
          break;
        case EGL_BLUE_SIZE:
          *value = config->blue;
          break;
        case EGL_ALPHA_SIZE:
          *value = config->alpha;
          break;
        case EGL_RENDERABLE_TYPE:
          *value = config->renderable;
          break;
        default:
          *value = 0;
          break;
      }
      return note("getConfigAttrib");
    },
    [](EGLDisplay, EGLConfig, EGLNativeWindowType, const EGLint* attributes) {
      return newSurface("createWindowSurface", attributes);
    },
    [](EGLDisplay, EGLConfig, const EGLint* attributes) {
      return newSurface("createPbufferSurface", attributes);
    },
    [](EGLDisplay, EGLConfig, EGLNativePixmapType, const EGLint* attributes) {
      return newSurface("createPixmapSurface", attributes);
    },
    [](EGLDisplay, EGLSurface) { return note("destroySurface"); },
    [](EGLDisplay, EGLSurface, EGLint attribute, EGLint* value) {
      *value = attribute == EGL_WIDTH    ? fake->surfaceWidth
               : attribute == EGL_HEIGHT ? fake->surfaceHeight
                                         : 4711;
      return note("querySurface");
    },
    [](EGLDisplay, EGLSurface, EGLint, EGLint) { return note("surfaceAttrib"); },
    [](EGLDisplay, EGLSurface, EGLint) { return note("bindTexImage"); },
    [](EGLDisplay, EGLSurface, EGLint) { return note("releaseTexImage"); },
    [] { return note("waitClient"); },
    [](EGLint) { return note("waitNative"); },
    [](EGLDisplay, EGLint) { return note("swapInterval"); },
    [](EGLDisplay, EGLConfig, EGLContext, const EGLint* attributes) -> EGLContext {
      fake->lastAttributes.clear();
      for (const EGLint* at = attributes; at && at[0] != EGL_NONE; at += 2) {
        fake->lastAttributes.push_back(at[0]);
        fake->lastAttributes.push_back(at[1]);
      }
      if (!note("createContext")) {
        return EGL_NO_CONTEXT;
      }
      ++fake->liveContexts;
      return newHandle();
    },
    [](EGLDisplay, EGLContext) {
      const EGLBoolean done = note("destroyContext");
      fake->liveContexts -= done ? 1 : 0;
      return done;
    },
    [](EGLDisplay display, EGLSurface draw, EGLSurface read, EGLContext context) {
      const EGLBoolean done = note("makeCurrent");
      if (done) {
        currentDisplay = display;
        currentDraw = draw;
        currentRead = read;
        currentContext = context;
      }
      return done;
    },
    [] {
      note("getCurrentContext");
      return currentContext;
    },
    [](EGLint which) {
      note("getCurrentSurface");
      return which == EGL_DRAW ? currentDraw : currentRead;
    },
    [] {
      note("getCurrentDisplay");
      return currentDisplay;
    },
    [](EGLDisplay, EGLContext, EGLint, EGLint* value) {
      *value = 4712;
      return note("queryContext");
    },
    [](EGLDisplay, EGLSurface) { return note("swapBuffers"); },
    [](EGLDisplay, EGLSurface, EGLNativePixmapType) { return note("copyBuffers"); },
    [](const char*) -> __eglMustCastToProperFunctionPointerType {
      note("getProcAddress");
      return nullptr;
    },
};

}  // namespace

FakeEglBackend::FakeEglBackend()
    : configs{{EGL_PBUFFER_BIT, 8, 8, 8, 8, 5},
              {EGL_WINDOW_BIT, 8, 8, 8, 8, 5},
              {EGL_WINDOW_BIT, 5, 6, 5, 0, 5}} {
  fake = this;
  error = EGL_SUCCESS;
  currentDisplay = EGL_NO_DISPLAY;
  currentDraw = currentRead = EGL_NO_SURFACE;
  currentContext = EGL_NO_CONTEXT;
  setEglBackend(&table);
}

FakeEglBackend::~FakeEglBackend() {
  setEglBackend(nullptr);
  fake = nullptr;
}

int FakeEglBackend::countOf(const std::string& call) const {
  return static_cast<int>(std::count(calls.begin(), calls.end(), call));
}
