#include <memory>
#include <vector>

#include "egl/backend/wgl/devices.h"

#include <EGL/egl.h>

namespace {

/// Sets the format on the device; a device keeps the first one that it gets.
bool setFormat(HDC device, PortFormat format) {
  const int index = static_cast<int>(format);
  const int present = GetPixelFormat(device);
  if (present != 0) {
    return present == index;
  }
  PIXELFORMATDESCRIPTOR descriptor = {};
  return DescribePixelFormat(device, index, sizeof descriptor, &descriptor) != 0 &&
         SetPixelFormat(device, index, &descriptor);
}

int textureFormatOf(int eglFormat) {
  switch (eglFormat) {
    case EGL_TEXTURE_RGB:
      return WGL_TEXTURE_RGB_ARB;
    case EGL_TEXTURE_RGBA:
      return WGL_TEXTURE_RGBA_ARB;
    default:
      return WGL_NO_TEXTURE_ARB;
  }
}

HWND windowOf(PortNativeWindow window) {
  return reinterpret_cast<HWND>(window);
}

}  // namespace

PortContext* portCreateContext(PortConnection* connection, PortFormat, PortDrawable* drawable) {
  if (!connection->shareRoot) {
    connection->shareRoot = wglCreateContext(drawable->device);
  }
  const HGLRC context = wglCreateContext(drawable->device);
  if (!context) {
    return nullptr;
  }
  if (connection->shareRoot) {
    // Drivers refuse to share between formats that differ too much: such a context stands alone.
    wglShareLists(connection->shareRoot, context);
  }
  return new PortContext{context};
}

void portDestroyContext(PortConnection*, PortContext* context) {
  if (!context) {
    return;
  }
  wglDeleteContext(context->context);
  delete context;
}

bool portMakeCurrent(PortConnection*, PortDrawable* draw, PortDrawable* read,
                     PortContext* context) {
  if (!context) {
    return wglMakeCurrent(nullptr, nullptr) != FALSE;
  }
  if (draw != read && wglExtensions.wglMakeContextCurrentARB) {
    return wglExtensions.wglMakeContextCurrentARB(draw->device, read->device, context->context) !=
           FALSE;
  }
  return wglMakeCurrent(draw->device, context->context) != FALSE;
}

bool portWindowSize(PortConnection*, PortNativeWindow window, int* width, int* height) {
  RECT client;
  if (!IsWindow(windowOf(window)) || isClosedNativeWindow(windowOf(window)) ||
      !GetClientRect(windowOf(window), &client)) {
    return false;
  }
  *width = client.right - client.left;
  *height = client.bottom - client.top;
  return true;
}

PortDrawable* portCreateWindowDrawable(PortConnection* connection, PortNativeWindow window,
                                       PortFormat format) {
  auto drawable = std::make_unique<PortDrawable>();
  drawable->window = windowOf(window);
  drawable->ownsDevice = connection->display == nullptr;
  drawable->device = drawable->ownsDevice ? GetDC(drawable->window) : connection->display;
  if (!drawable->device) {
    return nullptr;
  }
  if (!setFormat(drawable->device, format)) {
    portDestroyDrawable(connection, drawable.release());
    return nullptr;
  }
  return drawable.release();
}

bool portSwapBuffers(PortConnection*, PortDrawable* drawable) {
  return SwapBuffers(drawable->device) != FALSE;
}

bool portSwapInterval(PortConnection*, PortDrawable*, int interval) {
  return wglExtensions.wglSwapIntervalEXT && wglExtensions.wglSwapIntervalEXT(interval);
}

PortDrawable* portCreatePbuffer(PortConnection* connection, PortFormat format,
                                const PortPbufferRequest& request) {
  const PbufferDevice device(*connection);
  if (!device.get() || !wglExtensions.wglCreatePbufferARB) {
    return nullptr;
  }
  std::vector<int> attributes;
  if (request.textureFormat != 0 && request.textureTarget != 0 && portBindsTextures(connection)) {
    attributes = {
        WGL_TEXTURE_FORMAT_ARB, textureFormatOf(request.textureFormat), WGL_TEXTURE_TARGET_ARB,
        request.textureTarget == EGL_TEXTURE_2D ? WGL_TEXTURE_2D_ARB : WGL_NO_TEXTURE_ARB};
    if (request.mipmap) {
      attributes.insert(attributes.end(), {WGL_MIPMAP_TEXTURE_ARB, 1});
    }
  }
  attributes.push_back(0);
  auto drawable = std::make_unique<PortDrawable>();
  drawable->pbuffer = wglExtensions.wglCreatePbufferARB(
      device.get(), static_cast<int>(format), request.width, request.height, attributes.data());
  if (!drawable->pbuffer) {
    return nullptr;
  }
  drawable->device = wglExtensions.wglGetPbufferDCARB(drawable->pbuffer);
  if (!drawable->device) {
    portDestroyDrawable(connection, drawable.release());
    return nullptr;
  }
  return drawable.release();
}

void portDestroyDrawable(PortConnection*, PortDrawable* drawable) {
  if (!drawable) {
    return;
  }
  if (drawable->pbuffer) {
    if (drawable->device) {
      wglExtensions.wglReleasePbufferDCARB(drawable->pbuffer, drawable->device);
    }
    wglExtensions.wglDestroyPbufferARB(drawable->pbuffer);
  } else if (drawable->ownsDevice) {
    ReleaseDC(drawable->window, drawable->device);
  }
  delete drawable;
}

bool portBindsTextures(PortConnection*) {
  return wglExtensions.wglBindTexImageARB && wglExtensions.wglReleaseTexImageARB;
}

bool portBindTexImage(PortConnection*, PortDrawable* drawable) {
  return wglExtensions.wglBindTexImageARB(drawable->pbuffer, WGL_FRONT_LEFT_ARB) != FALSE;
}

bool portReleaseTexImage(PortConnection*, PortDrawable* drawable) {
  return wglExtensions.wglReleaseTexImageARB(drawable->pbuffer, WGL_FRONT_LEFT_ARB) != FALSE;
}

bool portSetMipmapLevel(PortConnection*, PortDrawable* drawable, int level) {
  const int attributes[] = {WGL_MIPMAP_LEVEL_ARB, level, 0};
  return wglExtensions.wglSetPbufferAttribARB &&
         wglExtensions.wglSetPbufferAttribARB(drawable->pbuffer, attributes);
}
