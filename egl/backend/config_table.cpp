#include "egl/backend/config_table.h"

#include <cstring>

namespace {

struct ConfigRequest {
  EGLint red = EGL_DONT_CARE, green = EGL_DONT_CARE, blue = EGL_DONT_CARE, alpha = EGL_DONT_CARE;
  EGLint depth = EGL_DONT_CARE, stencil = EGL_DONT_CARE;
  EGLint samples = EGL_DONT_CARE, sampleBuffers = EGL_DONT_CARE;
  EGLint surfaceType = EGL_WINDOW_BIT;
  EGLint bindRgb = EGL_DONT_CARE, bindRgba = EGL_DONT_CARE;
};

/// The request's field for an attribute; null for one that is accepted and has no effect.
EGLint* requestField(ConfigRequest& request, EGLint attribute) {
  switch (attribute) {
    case EGL_RED_SIZE:
      return &request.red;
    case EGL_GREEN_SIZE:
      return &request.green;
    case EGL_BLUE_SIZE:
      return &request.blue;
    case EGL_ALPHA_SIZE:
      return &request.alpha;
    case EGL_DEPTH_SIZE:
      return &request.depth;
    case EGL_STENCIL_SIZE:
      return &request.stencil;
    case EGL_SAMPLES:
      return &request.samples;
    case EGL_SAMPLE_BUFFERS:
      return &request.sampleBuffers;
    case EGL_SURFACE_TYPE:
      return &request.surfaceType;
    case EGL_BIND_TO_TEXTURE_RGB:
      return &request.bindRgb;
    case EGL_BIND_TO_TEXTURE_RGBA:
      return &request.bindRgba;
    default:
      return nullptr;
  }
}

bool atLeast(EGLint present, EGLint wanted) {
  return wanted == EGL_DONT_CARE || present >= wanted;
}

bool equals(EGLint present, EGLint wanted) {
  return wanted == EGL_DONT_CARE || present == wanted;
}

bool matches(const EgwConfig& row, const ConfigRequest& request) {
  return equals(row.surfaceBits, request.surfaceType) && atLeast(row.red, request.red) &&
         atLeast(row.green, request.green) && atLeast(row.blue, request.blue) &&
         atLeast(row.alpha, request.alpha) && atLeast(row.depth, request.depth) &&
         atLeast(row.stencil, request.stencil) && atLeast(row.samples, request.samples) &&
         atLeast(row.sampleBuffers, request.sampleBuffers) &&
         equals(row.bindRgb, request.bindRgb) && equals(row.bindRgba, request.bindRgba);
}

}  // namespace

EgwConfigTable defaultConfigTable() {
  return {{{0, 1, 0, 0, 8, 8, 8, 8, 24, 8, 0, 0},
           {1, 1, 0, 0, 8, 8, 8, 8, 24, 8, 0, 1},
           {2, 1, 0, 0, 5, 6, 5, 0, 24, 8, 0, 0},
           {3, 1, 0, 0, 5, 6, 5, 0, 24, 8, 1, 0},
           {4, 2, 0, 0, 8, 8, 8, 8, 24, 8, 0, 0},
           {5, 2, 0, 0, 5, 6, 5, 0, 24, 8, 0, 0},
           {6, 4, 0, 0, 8, 8, 8, 8, 24, 8, 0, 0},
           {7, 4, 1, 4, 8, 8, 8, 8, 24, 8, 0, 0},
           {8, 4, 0, 0, 5, 6, 5, 0, 24, 8, 0, 0},
           {9, 4, 1, 4, 5, 6, 5, 0, 24, 8, 0, 0}}};
}

bool needsIntelException(const char* adapterName) {
  return adapterName && std::strncmp(adapterName, "Intel", 5) == 0;
}

void applyIntelException(EgwConfigTable& table) {
  for (const std::size_t index : {0u, 1u, 4u}) {
    EgwConfig& row = table[index];
    row.red = 5;
    row.green = 6;
    row.blue = 5;
    row.alpha = 0;
    row.depth = 0;
    row.stencil = 0;
  }
  table[1].bindRgb = 1;
  table[1].bindRgba = 0;
}

EGLint configAttribute(const EgwConfig& row, EGLint attribute) {
  switch (attribute) {
    case EGL_CONFIG_ID:
      return row.id;
    case EGL_SURFACE_TYPE:
      return row.surfaceBits;
    case EGL_SAMPLE_BUFFERS:
      return row.sampleBuffers;
    case EGL_SAMPLES:
      return row.samples;
    case EGL_RED_SIZE:
      return row.red;
    case EGL_GREEN_SIZE:
      return row.green;
    case EGL_BLUE_SIZE:
      return row.blue;
    case EGL_ALPHA_SIZE:
      return row.alpha;
    case EGL_DEPTH_SIZE:
      return row.depth;
    case EGL_STENCIL_SIZE:
      return row.stencil;
    case EGL_BIND_TO_TEXTURE_RGB:
      return row.bindRgb;
    case EGL_BIND_TO_TEXTURE_RGBA:
      return row.bindRgba;
    case EGL_BUFFER_SIZE:
      return row.red + row.green + row.blue + row.alpha;
    case EGL_CONFIG_CAVEAT:
    case EGL_TRANSPARENT_TYPE:
      return EGL_NONE;
    case EGL_MAX_PBUFFER_WIDTH:
    case EGL_MAX_PBUFFER_HEIGHT:
      return 1024;
    case EGL_MAX_PBUFFER_PIXELS:
      return 0x100000;
    case EGL_NATIVE_RENDERABLE:
      return (row.surfaceBits & EGL_PIXMAP_BIT) ? 1 : 0;
    case EGL_MAX_SWAP_INTERVAL:
      return 1;
    case EGL_RENDERABLE_TYPE:
      return EGL_OPENGL_ES_BIT | EGL_OPENGL_ES2_BIT;
    default:
      return 0;
  }
}

int matchConfigs(const EgwConfigTable& table, const EGLint* attributes, int (&found)[10]) {
  ConfigRequest request;
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    if (pair[0] < EGL_BUFFER_SIZE || pair[0] > EGL_BIND_TO_TEXTURE_RGBA) {
      return -1;
    }
    if (EGLint* field = requestField(request, pair[0])) {
      *field = pair[1];
    }
  }
  int count = 0;
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (matches(table[i], request)) {
      found[count++] = static_cast<int>(i);
    }
  }
  return count;
}
