#include <bit>
#include <new>
#include <vector>

#include "egl/backend/egw.h"
#include "gles/driver/driver.h"

namespace {

constexpr std::uintptr_t defaultDisplayValue = 1;

/// Handles that eglGetDisplay has answered.
std::vector<EGLDisplay>& knownDisplays() {
  static std::vector<EGLDisplay> list;
  return list;
}

bool isKnown(EGLDisplay handle) {
  for (EGLDisplay known : knownDisplays()) {
    if (known == handle) {
      return true;
    }
  }
  return false;
}

void forget(EGLDisplay handle) {
  std::vector<EGLDisplay>& list = knownDisplays();
  for (auto at = list.begin(); at != list.end(); ++at) {
    if (*at == handle) {
      list.erase(at);
      return;
    }
  }
}

PortNativeDisplay nativeOf(EGLDisplay handle) {
  const auto value = reinterpret_cast<std::uintptr_t>(handle);
  return value == defaultDisplayValue ? 0 : value;
}

EgwDisplay* findEntered(EGLDisplay handle) {
  for (EgwDisplay* display = egw.displays; display; display = display->next) {
    if (display->handle == handle) {
      return display;
    }
  }
  return nullptr;
}

bool initialiseFirst(PortConnection* connection) {
  if (!portBeginProbe(connection)) {
    return false;
  }
  const bool loaded = loadDriver(portGetProcAddress);
  if (loaded) {
    const bool intelException = needsIntelException(portAdapterName(connection));
    if (intelException) {
      applyIntelException(egw.configs);
    }
    fillEs1FunctionTable(&egw.es1, intelException);
    fillEs2FunctionTable(&egw.es2);
    setCopyBackHook(egwCopyBack);
    setEsImageLookup(egwFindImage);
    egw.multisampleAvailable =
        portMultisamples(connection, false) || portMultisamples(connection, true);
  }
  portEndProbe(connection);
  return loaded;
}

}  // namespace

EgwDisplay* egwFindDisplay(EGLDisplay handle) {
  EgwDisplay* display = findEntered(handle);
  if (!display) {
    egw.error = isKnown(handle) ? EGL_NOT_INITIALIZED : EGL_BAD_DISPLAY;
  }
  return display;
}

EGLDisplay egwGetDisplay(EGLNativeDisplayType native) {
  const auto value = std::bit_cast<std::uintptr_t>(native);
  egw.error = EGL_SUCCESS;
  const auto handle = reinterpret_cast<EGLDisplay>(value ? value : defaultDisplayValue);
  if (!portConnect(nativeOf(handle))) {
    return EGL_NO_DISPLAY;
  }
  if (!isKnown(handle)) {
    knownDisplays().push_back(handle);
  }
  return handle;
}

EGLBoolean egwInitialize(EGLDisplay handle, EGLint* major, EGLint* minor) {
  if (handle == EGL_NO_DISPLAY) {
    return egwFail(EGL_BAD_DISPLAY);
  }
  // Only what eglGetDisplay was given is trusted to be a native display.
  const bool trusted = isKnown(handle) || nativeOf(handle) == 0;
  PortConnection* connection = trusted ? portConnect(nativeOf(handle)) : nullptr;
  if (!egw.initialised) {
    PortConnection* probed = connection ? connection : portConnect(0);
    if (!probed || !initialiseFirst(probed)) {
      return egwFail(EGL_NOT_INITIALIZED);
    }
    egw.initialised = true;
  }
  if (!findEntered(handle)) {
    auto* display = new (std::nothrow) EgwDisplay();
    if (!display) {
      return egwFail(EGL_BAD_ALLOC);
    }
    display->handle = handle;
    display->connection = connection;
    egwLink(egw.displays, display);
  }
  if (major) {
    *major = 1;
  }
  if (minor) {
    *minor = 1;
  }
  return egwSucceed();
}

EGLBoolean egwTerminate(EGLDisplay handle) {
  EgwDisplay* display = findEntered(handle);
  if (!display) {
    // A display that is known and not initialised needs nothing more.
    return isKnown(handle) ? egwSucceed() : egwFail(EGL_BAD_DISPLAY);
  }
  if (egw.currentDisplay == display) {
    egwReleaseCurrent();
  }
  while (display->contexts) {
    egwFreeContext(*display, display->contexts);
  }
  while (display->surfaces) {
    egwFreeSurface(*display, display->surfaces);
  }
  while (display->images) {
    egwFreeImage(*display, display->images);
  }
  if (display->connection) {
    portDisconnect(display->connection);
    if (nativeOf(handle) != 0) {
      // Its owner may close it now, and its address may be another's tomorrow.
      forget(handle);
    }
  }
  egwUnlink(egw.displays, display);
  delete display;
  return egwSucceed();
}

const char* egwQueryString(EGLDisplay handle, EGLint name) {
  if (!egwFindDisplay(handle)) {
    return nullptr;
  }
  egwSucceed();
  switch (name) {
    case EGL_VENDOR:
      return "Test implementation";
    case EGL_VERSION:
      return "1.1 00.00-07";
    case EGL_EXTENSIONS:
      return "EGL_KHR_image EGL_KHR_gl_texture_2D_image";
    default:
      egwFail(EGL_BAD_PARAMETER);
      return nullptr;
  }
}

EGLBoolean egwGetConfigs(EGLDisplay handle, EGLConfig* configs, EGLint configSize, EGLint* count) {
  if (!egwFindDisplay(handle)) {
    return EGL_FALSE;
  }
  const auto rows = static_cast<EGLint>(egw.configs.size());
  if (!count || configSize < 0) {
    return egwFail(EGL_BAD_PARAMETER);
  }
  const EGLint size = configSize == 0 || configSize > rows ? rows : configSize;
  for (EGLint i = 0; configs && i < size; ++i) {
    configs[i] = &egw.configs[static_cast<std::size_t>(i)];
  }
  *count = size;
  return egwSucceed();
}

EGLBoolean egwChooseConfig(EGLDisplay handle, const EGLint* attributes, EGLConfig* configs, EGLint,
                           EGLint* count) {
  if (!egwFindDisplay(handle)) {
    return EGL_FALSE;
  }
  if (!count) {
    return egwFail(EGL_BAD_PARAMETER);
  }
  int rows[10];
  const int found = matchConfigs(egw.configs, attributes, rows);
  if (found < 0) {
    return egwFail(EGL_BAD_ATTRIBUTE);
  }
  for (int i = 0; configs && i < found; ++i) {
    configs[i] = &egw.configs[static_cast<std::size_t>(rows[i])];
  }
  *count = found;
  return egwSucceed();
}

EGLBoolean egwGetConfigAttrib(EGLDisplay handle, EGLConfig config, EGLint attribute,
                              EGLint* value) {
  if (!egwFindDisplay(handle)) {
    return EGL_FALSE;
  }
  const EgwConfig* row = egwFindConfig(config);
  if (!row) {
    return EGL_FALSE;
  }
  if (!value) {
    return egwFail(EGL_BAD_PARAMETER);
  }
  *value = configAttribute(*row, attribute);
  return egwSucceed();
}
