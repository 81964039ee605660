#include <cstdint>
#include <new>
#include <vector>

#include "egl/shim/shim.h"

namespace {

/// A back end may write this many handles into any array that it is asked to choose into.
constexpr EGLint chosenRoom = 10;

bool push(EGLShimLocals& locals, EGLConfig backendConfig, EGLBoolean lockable, EGLBoolean is565) {
  auto* config = new (std::nothrow) ShimConfig();
  if (!config) {
    return false;
  }
  config->backendConfig = backendConfig;
  config->lockable = lockable;
  config->is565 = is565;
  config->next = locals.configList;
  locals.configList = config;
  ++locals.configCount;
  return true;
}

EGLint greenSize(EGLDisplay display, EGLConfig config) {
  EGLint size = 0;
  eglBackend().getConfigAttrib(display, config, EGL_GREEN_SIZE, &size);
  return size;
}

}  // namespace

bool buildConfigList(EGLShimLocals& locals, EGLDisplay display) {
  const EglBackend& backend = eglBackend();
  EGLint count = 0;
  if (!backend.getConfigs(display, nullptr, 0, &count) || count < 0) {
    count = 0;
  }
  std::vector<EGLConfig> work;
  try {
    work.resize(static_cast<std::size_t>(count > chosenRoom ? count : chosenRoom));
  } catch (const std::bad_alloc&) {
    return false;
  }
  const EGLint rgba8888[] = {EGL_RED_SIZE,   8, EGL_GREEN_SIZE, 8, EGL_BLUE_SIZE, 8,
                             EGL_ALPHA_SIZE, 8, EGL_NONE};
  EGLint found = 0;
  if (backend.chooseConfig(display, rgba8888, work.data(), 1, &found) && found > 0 &&
      !push(locals, work[0], EGL_TRUE, EGL_FALSE)) {
    return false;
  }
  const EGLint rgb565[] = {EGL_RED_SIZE, 5, EGL_GREEN_SIZE, 6, EGL_BLUE_SIZE, 5, EGL_NONE};
  EGLConfig config565 = nullptr;
  found = 0;
  if (backend.chooseConfig(display, rgb565, work.data(), count, &found) && found > 0) {
    config565 = work[0];
    for (EGLint i = 0; i < found && static_cast<std::size_t>(i) < work.size(); ++i) {
      if (greenSize(display, work[static_cast<std::size_t>(i)]) == 6) {
        config565 = work[static_cast<std::size_t>(i)];
        break;
      }
    }
  }
  if (!push(locals, config565, EGL_TRUE, EGL_TRUE)) {
    return false;
  }
  found = 0;
  if (!backend.getConfigs(display, work.data(), count, &found)) {
    found = 0;
  }
  for (EGLint i = found < count ? found : count; i > 0; --i) {
    if (!push(locals, work[static_cast<std::size_t>(i - 1)], EGL_FALSE, EGL_FALSE)) {
      return false;
    }
  }
  return true;
}

void freeConfigList(EGLShimLocals& locals) {
  while (ShimConfig* config = locals.configList) {
    locals.configList = config->next;
    orphanSurfacesOf(config);
    if (config->lockContext != EGL_NO_CONTEXT) {
      eglBackend().destroyContext(config->lockDisplay, config->lockContext);
    }
    delete config;
  }
  locals.configCount = 0;
}

ShimConfig* findShimConfig(EGLConfig handle) {
  const EGLShimLocals* locals = shimLocals();
  for (ShimConfig* config = locals ? locals->configList : nullptr; config; config = config->next) {
    if (config == handle) {
      return config;
    }
  }
  return nullptr;
}
