#include <cstdint>

#include "egl/shim/shim.h"

namespace {

/// How an attribute of a configuration is compared with what was asked for.
enum class Match { atLeast, equal, allBits, ignored, never, unknown };

Match matchOf(EGLint attribute) {
  switch (attribute) {
    case EGL_MATCH_NATIVE_PIXMAP:
      return Match::never;
    case EGL_BUFFER_SIZE:
    case EGL_RED_SIZE:
    case EGL_GREEN_SIZE:
    case EGL_BLUE_SIZE:
    case EGL_ALPHA_SIZE:
    case EGL_LUMINANCE_SIZE:
    case EGL_ALPHA_MASK_SIZE:
    case EGL_DEPTH_SIZE:
    case EGL_STENCIL_SIZE:
    case EGL_SAMPLES:
    case EGL_SAMPLE_BUFFERS:
      return Match::atLeast;
    case EGL_CONFIG_CAVEAT:
    case EGL_CONFIG_ID:
    case EGL_LEVEL:
    case EGL_NATIVE_RENDERABLE:
    case EGL_NATIVE_VISUAL_TYPE:
    case EGL_TRANSPARENT_TYPE:
    case EGL_TRANSPARENT_RED_VALUE:
    case EGL_TRANSPARENT_GREEN_VALUE:
    case EGL_TRANSPARENT_BLUE_VALUE:
    case EGL_BIND_TO_TEXTURE_RGB:
    case EGL_BIND_TO_TEXTURE_RGBA:
    case EGL_MIN_SWAP_INTERVAL:
    case EGL_MAX_SWAP_INTERVAL:
    case EGL_COLOR_BUFFER_TYPE:
    case EGL_MATCH_FORMAT_KHR:
      return Match::equal;
    case EGL_MAX_PBUFFER_HEIGHT:
    case EGL_MAX_PBUFFER_WIDTH:
    case EGL_MAX_PBUFFER_PIXELS:
    case EGL_NATIVE_VISUAL_ID:
      return Match::ignored;
    case EGL_SURFACE_TYPE:
    case EGL_RENDERABLE_TYPE:
    case EGL_CONFORMANT:
      return Match::allBits;
    default:
      return Match::unknown;
  }
}

/// Answer for the sizes that a lockable configuration has as a bitmap; false for other attributes.
bool lockableSize(const ShimConfig& config, EGLint attribute, EGLint* value) {
  switch (attribute) {
    case EGL_BUFFER_SIZE:
      *value = config.is565 ? 16 : 32;
      return true;
    case EGL_RED_SIZE:
    case EGL_BLUE_SIZE:
      *value = config.is565 ? 5 : 8;
      return true;
    case EGL_GREEN_SIZE:
      *value = config.is565 ? 6 : 8;
      return true;
    case EGL_ALPHA_SIZE:
      *value = config.is565 ? 0 : 8;
      return true;
    default:
      return false;
  }
}

EGLBoolean configAttrib(EGLDisplay display, ShimConfig& config, EGLint attribute, EGLint* value) {
  if (config.lockable && lockableSize(config, attribute, value)) {
    return EGL_TRUE;
  }
  const EglBackend& backend = eglBackend();
  switch (attribute) {
    case EGL_CONFIG_ID:
      // The low word of the address.
      *value = static_cast<EGLint>(
          static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(&config)));
      return EGL_TRUE;
    case EGL_SURFACE_TYPE: {
      EGLint bits = 0;
      const EGLBoolean answered = forwarded(
          backend.getConfigAttrib(display, config.backendConfig, EGL_SURFACE_TYPE, &bits));
      *value = bits | (config.lockable ? EGL_LOCK_SURFACE_BIT_KHR | EGL_OPTIMAL_FORMAT_BIT_KHR : 0);
      return answered;
    }
    case EGL_BIND_TO_TEXTURE_RGB:
    case EGL_BIND_TO_TEXTURE_RGBA:
    case EGL_LUMINANCE_SIZE:
    case EGL_ALPHA_MASK_SIZE:
      *value = 0;
      return EGL_TRUE;
    case EGL_MIN_SWAP_INTERVAL:
    case EGL_MAX_SWAP_INTERVAL:
      *value = 1;
      return EGL_TRUE;
    case EGL_COLOR_BUFFER_TYPE:
      *value = EGL_RGB_BUFFER;
      return EGL_TRUE;
    case EGL_RENDERABLE_TYPE:
    case EGL_CONFORMANT:
      if (config.lockable) {
        *value = 0;
      } else if (!backend.getConfigAttrib(display, config.backendConfig, attribute, value)) {
        *value = EGL_OPENGL_ES_BIT;
      }
      return EGL_TRUE;
    case EGL_MATCH_NATIVE_PIXMAP:
      return shimFail(EGL_BAD_ATTRIBUTE);
    case EGL_MATCH_FORMAT_KHR:
      *value = !config.lockable ? EGL_NONE
               : config.is565   ? EGL_FORMAT_RGB_565_EXACT_KHR
                                : EGL_FORMAT_RGBA_8888_KHR;
      return EGL_TRUE;
    default:
      return forwarded(backend.getConfigAttrib(display, config.backendConfig, attribute, value));
  }
}

bool matchesPair(EGLDisplay display, ShimConfig& config, EGLint attribute, EGLint wanted) {
  const Match match = matchOf(attribute);
  if (match == Match::ignored) {
    return true;
  }
  if (match == Match::never) {
    return false;
  }
  EGLint present = 0;
  if (!configAttrib(display, config, attribute, &present)) {
    return false;
  }
  switch (match) {
    case Match::atLeast:
      return present >= wanted;
    case Match::allBits:
      return (present & wanted) == wanted;
    default:
      return present == wanted;
  }
}

bool matches(EGLDisplay display, ShimConfig& config, const EGLint* attributes) {
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    if (pair[1] != EGL_DONT_CARE && !matchesPair(display, config, pair[0], pair[1])) {
      return false;
    }
  }
  return true;
}

bool hasUnknown(const EGLint* attributes) {
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    if (pair[1] != EGL_DONT_CARE && matchOf(pair[0]) == Match::unknown) {
      return true;
    }
  }
  return false;
}

}  // namespace

extern "C" {

EGLBoolean EGLAPIENTRY eglGetConfigs(EGLDisplay, EGLConfig* configs, EGLint config_size,
                                     EGLint* num_config) {
  ShimTurn turn;
  const EGLShimLocals* locals = shimLocals();
  if (!num_config) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  if (!locals) {
    return EGL_FALSE;
  }
  if (!configs) {
    *num_config = locals->configCount;
    return EGL_TRUE;
  }
  EGLint count = 0;
  for (ShimConfig* config = locals->configList; config && count < config_size;
       config = config->next) {
    configs[count++] = config;
  }
  *num_config = count;
  return EGL_TRUE;
}

EGLBoolean EGLAPIENTRY eglChooseConfig(EGLDisplay dpy, const EGLint* attrib_list,
                                       EGLConfig* configs, EGLint config_size, EGLint* num_config) {
  ShimTurn turn;
  const EGLShimLocals* locals = shimLocals();
  if (!num_config) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  if (!locals) {
    return EGL_FALSE;
  }
  *num_config = 0;
  if (hasUnknown(attrib_list)) {
    return shimFail(EGL_BAD_ATTRIBUTE);
  }
  for (ShimConfig* config = locals->configList; config; config = config->next) {
    if (configs && *num_config >= config_size) {
      break;
    }
    if (!matches(dpy, *config, attrib_list)) {
      continue;
    }
    if (configs) {
      configs[*num_config] = config;
    }
    ++*num_config;
  }
  return EGL_TRUE;
}

EGLBoolean EGLAPIENTRY eglGetConfigAttrib(EGLDisplay dpy, EGLConfig config, EGLint attribute,
                                          EGLint* value) {
  ShimTurn turn;
  if (!value) {
    return shimFail(EGL_BAD_PARAMETER);
  }
  ShimConfig* known = findShimConfig(config);
  if (!known) {
    return shimFail(EGL_BAD_CONFIG);
  }
  return configAttrib(dpy, *known, attribute, value);
}

}  // extern "C"
