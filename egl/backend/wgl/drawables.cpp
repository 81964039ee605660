#include <new>

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

/// Lets the context share the objects of the first root that it may share with, or of a new one. It
/// stands alone where there is no memory for that.
void share(PortConnection& connection, HDC device, HGLRC context) {
  for (const HGLRC root : connection.shareRoots) {
    if (wglShareLists(root, context)) {
      return;
    }
  }
  const HGLRC root = wglCreateContext(device);
  if (!root || !wglShareLists(root, context)) {
    wglDeleteContext(root);
    return;
  }
  try {
    connection.shareRoots.push_back(root);
  } catch (const std::bad_alloc&) {
    wglDeleteContext(root);
  }
}

HWND windowOf(PortNativeWindow window) {
  return reinterpret_cast<HWND>(window);
}

}  // namespace

PortContext* portCreateContext(PortConnection* connection, PortFormat, PortDrawable* drawable) {
  const HGLRC context = wglCreateContext(drawable->device());
  auto* made = context ? new (std::nothrow) PortContext{context} : nullptr;
  if (!made) {
    if (context) {
      wglDeleteContext(context);
    }
    return nullptr;
  }
  share(*connection, drawable->device(), context);
  return made;
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
    return wglExtensions.wglMakeContextCurrentARB(draw->device(), read->device(),
                                                  context->context) != FALSE;
  }
  return wglMakeCurrent(draw->device(), context->context) != FALSE;
}

bool portWindowSize(PortConnection*, PortNativeWindow window, int* width, int* height) {
  RECT client;
  if (!IsWindow(windowOf(window)) || isClosedNativeWindow(windowOf(window)) ||
      !GetClientRect(windowOf(window), &client)) {
    return false;
  }
  if (IsIconic(windowOf(window)) && *width > 0 && *height > 0) {
    return true;  // it has no client area until it is restored
  }
  *width = client.right - client.left;
  *height = client.bottom - client.top;
  return true;
}

PortDrawable* portCreateWindowDrawable(PortConnection* connection, PortNativeWindow window,
                                       PortFormat format) {
  auto* drawable = new (std::nothrow) PortDrawable();
  if (!drawable) {
    return nullptr;
  }
  drawable->window = windowOf(window);
  drawable->ownsDevice = connection->display == nullptr;
  drawable->deviceContext = drawable->ownsDevice ? GetDC(drawable->window) : connection->display;
  if (!drawable->deviceContext || !setFormat(drawable->deviceContext, format)) {
    portDestroyDrawable(connection, drawable);
    return nullptr;
  }
  return drawable;
}

bool portSwapBuffers(PortConnection*, PortDrawable* drawable) {
  return SwapBuffers(drawable->deviceContext) != FALSE;
}

bool portSwapInterval(PortConnection*, PortDrawable*, int interval) {
  return wglExtensions.wglSwapIntervalEXT && wglExtensions.wglSwapIntervalEXT(interval);
}

PortDrawable* portCreatePbuffer(PortConnection* connection, PortFormat format,
                                const PortPbufferRequest& request) {
  const PbufferDevice device(*connection);
  const WglExtensions& wgl = wglExtensions;
  if (!device.get() || !wgl.wglCreatePbufferARB || !wgl.wglGetPbufferDCARB ||
      !wgl.wglReleasePbufferDCARB || !wgl.wglDestroyPbufferARB) {
    return nullptr;
  }
  int attributes[8] = {};
  int* next = attributes;
  if (request.textureFormat != 0 && request.textureTarget != 0 && portBindsTextures(connection)) {
    *next++ = WGL_TEXTURE_FORMAT_ARB;
    *next++ = textureFormatOf(request.textureFormat);
    *next++ = WGL_TEXTURE_TARGET_ARB;
    *next++ = request.textureTarget == EGL_TEXTURE_2D ? WGL_TEXTURE_2D_ARB : WGL_NO_TEXTURE_ARB;
    if (request.mipmap) {
      *next++ = WGL_MIPMAP_TEXTURE_ARB;
      *next++ = 1;
    }
  }
  auto* drawable = new (std::nothrow) PortDrawable();
  if (!drawable) {
    return nullptr;
  }
  drawable->pbuffer = wgl.wglCreatePbufferARB(device.get(), static_cast<int>(format), request.width,
                                              request.height, attributes);
  drawable->pbufferDC = drawable->pbuffer ? wgl.wglGetPbufferDCARB(drawable->pbuffer) : nullptr;
  if (!drawable->pbufferDC) {
    portDestroyDrawable(connection, drawable);
    return nullptr;
  }
  return drawable;
}

void portDestroyDrawable(PortConnection*, PortDrawable* drawable) {
  if (!drawable) {
    return;
  }
  if (drawable->pbuffer) {
    if (drawable->pbufferDC) {
      wglExtensions.wglReleasePbufferDCARB(drawable->pbuffer, drawable->pbufferDC);
    }
    wglExtensions.wglDestroyPbufferARB(drawable->pbuffer);
  } else if (drawable->ownsDevice && drawable->deviceContext) {
    ReleaseDC(drawable->window, drawable->deviceContext);
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
