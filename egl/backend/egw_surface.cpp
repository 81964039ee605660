#include <bit>
#include <new>

#include "egl/backend/egw.h"
#include "egl/backend/pixel_layout.h"

namespace {

PortFormatRequest requestFor(const EgwConfig& row) {
  PortFormatRequest request;
  request.red = row.red;
  request.green = row.green;
  request.blue = row.blue;
  request.alpha = row.alpha;
  request.depth = row.depth;
  request.stencil = row.stencil;
  return request;
}

/// Gives the surface, which has a drawable, a context of the format; without one the drawable goes.
bool openContext(PortConnection* connection, EgwSurface& surface, PortFormat format) {
  surface.renderContext = portCreateContext(connection, format, surface.drawable);
  if (!surface.renderContext) {
    portDestroyDrawable(connection, surface.drawable);
    surface.drawable = nullptr;
  }
  return surface.renderContext != nullptr;
}

bool openWindow(PortConnection* connection, EgwSurface& surface, PortFormat format) {
  surface.drawable =
      format ? portCreateWindowDrawable(connection, surface.window, format) : nullptr;
  return surface.drawable && openContext(connection, surface, format);
}

bool openPbuffer(PortConnection* connection, EgwSurface& surface, const PortFormatRequest& request,
                 const PortPbufferRequest& pbuffer) {
  const PortFormat format = portChoosePbufferFormat(connection, request);
  surface.drawable = format ? portCreatePbuffer(connection, format, pbuffer) : nullptr;
  surface.width = pbuffer.width;
  surface.height = pbuffer.height;
  return surface.drawable && openContext(connection, surface, format);
}

EGLSurface enter(EgwDisplay& display, const EgwSurface& made) {
  auto* surface = new (std::nothrow) EgwSurface(made);
  if (!surface) {
    portDestroyContext(display.connection, made.renderContext);
    portDestroyDrawable(display.connection, made.drawable);
    egwFail(EGL_BAD_ALLOC);
    return EGL_NO_SURFACE;
  }
  egwLink(display.surfaces, surface);
  egwSucceed();
  return surface;
}

EGLSurface refuse(EGLint error) {
  egwFail(error);
  return EGL_NO_SURFACE;
}

/// Reads the pbuffer's attributes into the records. An EGL error, EGL_SUCCESS for none.
EGLint readPbufferAttributes(const EGLint* attributes, EgwSurface* surface,
                             PortPbufferRequest* request, EGLint* largest) {
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    const EGLint value = pair[1];
    switch (pair[0]) {
      case EGL_WIDTH:
        request->width = value;
        break;
      case EGL_HEIGHT:
        request->height = value;
        break;
      case EGL_LARGEST_PBUFFER:
        *largest = value;
        break;
      case EGL_TEXTURE_FORMAT:
        if (value != EGL_NO_TEXTURE && value != EGL_TEXTURE_RGB && value != EGL_TEXTURE_RGBA) {
          return EGL_BAD_ATTRIBUTE;
        }
        surface->textureFormat = value;
        break;
      case EGL_TEXTURE_TARGET:
        if (value != EGL_NO_TEXTURE && value != EGL_TEXTURE_2D) {
          return EGL_BAD_ATTRIBUTE;
        }
        surface->textureTarget = value;
        break;
      case EGL_MIPMAP_TEXTURE:
        surface->mipmapTexture = value;
        break;
      default:
        return EGL_BAD_ATTRIBUTE;
    }
  }
  return request->width > 0 && request->height > 0 ? EGL_SUCCESS : EGL_BAD_ATTRIBUTE;
}

}  // namespace

bool egwRefreshSurface(const EgwDisplay& display, EgwSurface& surface) {
  if (surface.type != EGW_WINDOW) {
    return true;
  }
  if (!surface.lost &&
      !portWindowSize(display.connection, surface.window, &surface.width, &surface.height)) {
    surface.lost = true;
  }
  return !surface.lost;
}

void egwFreeSurface(EgwDisplay& display, EgwSurface* surface) {
  egwUnlink(display.surfaces, surface);
  portDestroyContext(display.connection, surface->renderContext);
  portDestroyDrawable(display.connection, surface->drawable);
  delete surface;
}

EGLSurface egwCreateWindowSurface(EGLDisplay handle, EGLConfig config, EGLNativeWindowType window,
                                  const EGLint* attributes) {
  EgwDisplay* display = egwFindDisplay(handle);
  const EgwConfig* row = display ? egwFindConfig(config) : nullptr;
  if (!row) {
    return EGL_NO_SURFACE;
  }
  if (!(row->surfaceBits & EGL_WINDOW_BIT)) {
    return refuse(EGL_BAD_MATCH);
  }
  EgwSurface surface;
  surface.configIndex = row->id;
  surface.type = EGW_WINDOW;
  surface.window = std::bit_cast<PortNativeWindow>(window);
  PortConnection* connection = display->connection;
  if (!surface.window || !connection ||
      !portWindowSize(connection, surface.window, &surface.width, &surface.height)) {
    return refuse(EGL_BAD_NATIVE_WINDOW);
  }
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    if (pair[0] != EGL_RENDER_BUFFER ||
        (pair[1] != EGL_SINGLE_BUFFER && pair[1] != EGL_BACK_BUFFER)) {
      return refuse(EGL_BAD_ATTRIBUTE);
    }
    surface.renderBuffer = pair[1];
  }
  PortFormatRequest request = requestFor(*row);
  request.doubleBuffer = surface.renderBuffer == EGL_BACK_BUFFER;
  if (egw.multisampleAvailable && row->sampleBuffers > 0 && row->samples > 1) {
    request.sampleBuffers = row->sampleBuffers;
    request.samples = row->samples;
  }
  if (!openWindow(connection, surface,
                  portChooseWindowFormat(connection, surface.window, request))) {
    request.doubleBuffer = true;
    surface.renderBuffer = EGL_BACK_BUFFER;
    if (!openWindow(connection, surface,
                    portPlainWindowFormat(connection, surface.window, request))) {
      return refuse(EGL_BAD_ALLOC);
    }
  }
  return enter(*display, surface);
}

EGLSurface egwCreatePbufferSurface(EGLDisplay handle, EGLConfig config, const EGLint* attributes) {
  EgwDisplay* display = egwFindDisplay(handle);
  const EgwConfig* row = display ? egwFindConfig(config) : nullptr;
  if (!row) {
    return EGL_NO_SURFACE;
  }
  if (!(row->surfaceBits & EGL_PBUFFER_BIT)) {
    return refuse(EGL_BAD_MATCH);
  }
  EgwSurface surface;
  surface.configIndex = row->id;
  surface.type = EGW_PBUFFER;
  PortPbufferRequest pbuffer;
  EGLint largest = egw.largestPbuffer;
  const EGLint error = readPbufferAttributes(attributes, &surface, &pbuffer, &largest);
  if (error != EGL_SUCCESS) {
    return refuse(error);
  }
  egw.largestPbuffer = largest;
  PortFormatRequest request = requestFor(*row);
  if (surface.textureFormat != EGL_NO_TEXTURE && surface.textureTarget != EGL_NO_TEXTURE) {
    request.bindsRgb = row->bindRgb != 0;
    request.bindsRgba = !request.bindsRgb && row->bindRgba != 0;
    pbuffer.textureFormat = surface.textureFormat;
    pbuffer.textureTarget = surface.textureTarget;
    pbuffer.mipmap = surface.mipmapTexture != 0;
  }
  request.sampleBuffers = row->sampleBuffers;
  request.samples = row->samples;
  if (!display->connection || !openPbuffer(display->connection, surface, request, pbuffer)) {
    return refuse(EGL_BAD_ALLOC);
  }
  return enter(*display, surface);
}

EGLSurface egwCreatePixmapSurface(EGLDisplay handle, EGLConfig config, EGLNativePixmapType pixmap,
                                  const EGLint* attributes) {
  EgwDisplay* display = egwFindDisplay(handle);
  const EgwConfig* row = display ? egwFindConfig(config) : nullptr;
  if (!row) {
    return EGL_NO_SURFACE;
  }
  if (!(row->surfaceBits & EGL_PIXMAP_BIT)) {
    return refuse(EGL_BAD_MATCH);
  }
  EgwSurface surface;
  surface.configIndex = row->id;
  surface.type = EGW_PIXMAP;
  surface.bitmap = std::bit_cast<PortNativePixmap>(pixmap);
  PortPixmapLayout layout;
  if (!surface.bitmap || !display->connection ||
      !portPixmapLayout(display->connection, surface.bitmap, &layout) || layout.width <= 0 ||
      layout.height <= 0) {
    return refuse(EGL_BAD_NATIVE_PIXMAP);
  }
  if (attributes && attributes[0] != EGL_NONE) {
    return refuse(EGL_BAD_ATTRIBUTE);
  }
  PortPbufferRequest pbuffer;
  pbuffer.width = layout.width;
  pbuffer.height = layout.height;
  if (!openPbuffer(display->connection, surface, requestFor(*row), pbuffer)) {
    return refuse(EGL_BAD_ALLOC);
  }
  return enter(*display, surface);
}

EGLBoolean egwDestroySurface(EGLDisplay handle, EGLSurface surfaceHandle) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwSurface* surface = display ? egwFindSurface(*display, surfaceHandle) : nullptr;
  if (!surface) {
    return EGL_FALSE;
  }
  if (surface == egw.currentDraw || surface == egw.currentRead) {
    surface->doomed = true;
  } else {
    egwFreeSurface(*display, surface);
  }
  return egwSucceed();
}

EGLBoolean egwQuerySurface(EGLDisplay handle, EGLSurface surfaceHandle, EGLint attribute,
                           EGLint* value) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwSurface* surface = display ? egwFindSurface(*display, surfaceHandle) : nullptr;
  if (!surface) {
    return EGL_FALSE;
  }
  if (!egwRefreshSurface(*display, *surface)) {
    return egwFail(EGL_BAD_SURFACE);
  }
  if (!value) {
    return egwFail(EGL_BAD_PARAMETER);
  }
  const bool pbuffer = surface->type == EGW_PBUFFER;
  switch (attribute) {
    case EGL_CONFIG_ID:
      *value = egw.configs[static_cast<std::size_t>(surface->configIndex)].id;
      break;
    case EGL_WIDTH:
      *value = surface->width;
      break;
    case EGL_HEIGHT:
      *value = surface->height;
      break;
    case EGL_RENDER_BUFFER:
      *value = surface->renderBuffer;
      break;
    case EGL_SWAP_BEHAVIOR:
      *value = EGL_BUFFER_DESTROYED;
      break;
    // For other surfaces than pbuffers these succeed and leave the value alone.
    case EGL_LARGEST_PBUFFER:
      *value = pbuffer ? egw.largestPbuffer : *value;
      break;
    case EGL_TEXTURE_FORMAT:
      *value = pbuffer ? surface->textureFormat : *value;
      break;
    case EGL_TEXTURE_TARGET:
      *value = pbuffer ? surface->textureTarget : *value;
      break;
    case EGL_MIPMAP_TEXTURE:
      *value = pbuffer ? surface->mipmapTexture : *value;
      break;
    case EGL_MIPMAP_LEVEL:
      *value = pbuffer ? surface->mipmapLevel : *value;
      break;
    default:
      return egwFail(EGL_BAD_ATTRIBUTE);
  }
  return egwSucceed();
}

EGLBoolean egwSurfaceAttrib(EGLDisplay handle, EGLSurface surfaceHandle, EGLint attribute,
                            EGLint value) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwSurface* surface = display ? egwFindSurface(*display, surfaceHandle) : nullptr;
  if (!surface) {
    return EGL_FALSE;
  }
  if (attribute != EGL_MIPMAP_LEVEL) {
    return egwFail(EGL_BAD_ATTRIBUTE);
  }
  const bool isTexture = surface->type == EGW_PBUFFER && surface->textureFormat != EGL_NO_TEXTURE &&
                         surface->textureTarget != EGL_NO_TEXTURE;
  if (isTexture && surface->drawable && portBindsTextures(display->connection) &&
      !portSetMipmapLevel(display->connection, surface->drawable, value)) {
    return egwFail(EGL_BAD_PARAMETER);
  }
  surface->mipmapLevel = value;
  return egwSucceed();
}
