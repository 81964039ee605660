#include <vector>

#include "egl/backend/wgl/devices.h"

namespace {

constexpr UINT formatLimit = 16;

/// The first format of the device that has the attributes; 0 if there is none.
PortFormat chooseFirst(HDC device, std::vector<int> attributes) {
  if (!device || !wglExtensions.wglChoosePixelFormatARB) {
    return 0;
  }
  attributes.push_back(0);
  int formats[formatLimit] = {};
  UINT count = 0;
  if (!wglExtensions.wglChoosePixelFormatARB(device, attributes.data(), nullptr, formatLimit,
                                             formats, &count) ||
      count == 0) {
    return 0;
  }
  return static_cast<PortFormat>(formats[0]);
}

std::vector<int> attributesOf(const PortFormatRequest& request, int drawTo) {
  return {WGL_SUPPORT_OPENGL_ARB,
          1,
          drawTo,
          1,
          WGL_PIXEL_TYPE_ARB,
          WGL_TYPE_RGBA_ARB,
          WGL_RED_BITS_ARB,
          request.red,
          WGL_GREEN_BITS_ARB,
          request.green,
          WGL_BLUE_BITS_ARB,
          request.blue,
          WGL_ALPHA_BITS_ARB,
          request.alpha,
          WGL_DEPTH_BITS_ARB,
          request.depth,
          WGL_STENCIL_BITS_ARB,
          request.stencil,
          WGL_ACCELERATION_ARB,
          WGL_FULL_ACCELERATION_ARB,
          WGL_DOUBLE_BUFFER_ARB,
          request.doubleBuffer};
}

void append(std::vector<int>& attributes, int name, int value) {
  attributes.push_back(name);
  attributes.push_back(value);
}

void appendSamples(std::vector<int>& attributes, const PortFormatRequest& request) {
  if (request.sampleBuffers > 0) {
    append(attributes, WGL_SAMPLE_BUFFERS_ARB, request.sampleBuffers);
    append(attributes, WGL_SAMPLES_ARB, request.samples);
  }
}

}  // namespace

PIXELFORMATDESCRIPTOR plainDescriptor(HDC device, int depthBits, int stencilBits) {
  PIXELFORMATDESCRIPTOR descriptor = {};
  descriptor.nSize = sizeof descriptor;
  descriptor.nVersion = 1;
  descriptor.dwFlags = PFD_DOUBLEBUFFER | PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL;
  descriptor.iPixelType = PFD_TYPE_RGBA;
  const int colorBits = GetDeviceCaps(device, BITSPIXEL) * GetDeviceCaps(device, PLANES);
  descriptor.cColorBits = static_cast<BYTE>(colorBits > 0 ? colorBits : 32);
  descriptor.cDepthBits = static_cast<BYTE>(depthBits);
  descriptor.cStencilBits = static_cast<BYTE>(stencilBits);
  return descriptor;
}

bool portMultisamples(PortConnection* connection, bool doubleBuffer) {
  return chooseFirst(connection->probeContextDevice,
                     {WGL_SUPPORT_OPENGL_ARB, 1, WGL_DRAW_TO_WINDOW_ARB, 1, WGL_ACCELERATION_ARB,
                      WGL_FULL_ACCELERATION_ARB, WGL_DOUBLE_BUFFER_ARB, doubleBuffer,
                      WGL_SAMPLE_BUFFERS_ARB, 1, WGL_SAMPLES_ARB, 4}) != 0;
}

PortFormat portChooseWindowFormat(PortConnection* connection, PortNativeWindow window,
                                  const PortFormatRequest& request) {
  const WindowDevice device(*connection, reinterpret_cast<HWND>(window));
  std::vector<int> attributes = attributesOf(request, WGL_DRAW_TO_WINDOW_ARB);
  appendSamples(attributes, request);
  return chooseFirst(device.get(), attributes);
}

PortFormat portPlainWindowFormat(PortConnection* connection, PortNativeWindow window,
                                 const PortFormatRequest& request) {
  const WindowDevice device(*connection, reinterpret_cast<HWND>(window));
  if (!device.get()) {
    return 0;
  }
  // A window keeps the first format that it was given.
  if (const int present = GetPixelFormat(device.get())) {
    return static_cast<PortFormat>(present);
  }
  const PIXELFORMATDESCRIPTOR descriptor =
      plainDescriptor(device.get(), request.depth, request.stencil);
  return static_cast<PortFormat>(ChoosePixelFormat(device.get(), &descriptor));
}

PortFormat portChoosePbufferFormat(PortConnection* connection, const PortFormatRequest& request) {
  const PbufferDevice device(*connection);
  std::vector<int> attributes = attributesOf(request, WGL_DRAW_TO_PBUFFER_ARB);
  if (portBindsTextures(connection)) {
    if (request.bindsRgb) {
      append(attributes, WGL_BIND_TO_TEXTURE_RGB_ARB, 1);
    } else if (request.bindsRgba) {
      append(attributes, WGL_BIND_TO_TEXTURE_RGBA_ARB, 1);
    }
  }
  appendSamples(attributes, request);
  return chooseFirst(device.get(), attributes);
}
