#include "egl/backend/wgl/devices.h"

namespace {

/// Pairs of a name and a value, ended by a 0.
class Attributes {
 public:
  void add(int name, int value) {
    list[count++] = name;
    list[count++] = value;
  }
  void addSamples(const PortFormatRequest& request) {
    if (request.sampleBuffers > 0) {
      add(WGL_SAMPLE_BUFFERS_ARB, request.sampleBuffers);
      add(WGL_SAMPLES_ARB, request.samples);
    }
  }
  const int* get() const { return list; }

 private:
  static constexpr int room = 16;
  int list[2 * room + 1] = {};
  int count = 0;
};

/// The first of up to `limit` formats of the device that have the attributes; 0 if there is none.
PortFormat chooseFirst(HDC device, const Attributes& attributes, UINT limit) {
  constexpr UINT room = 16;
  int formats[room] = {};
  UINT count = 0;
  if (!device || !wglExtensions.wglChoosePixelFormatARB ||
      !wglExtensions.wglChoosePixelFormatARB(device, attributes.get(), nullptr,
                                             limit < room ? limit : room, formats, &count) ||
      count == 0) {
    return 0;
  }
  return static_cast<PortFormat>(formats[0]);
}

Attributes attributesOf(const PortFormatRequest& request, int drawTo) {
  Attributes attributes;
  attributes.add(WGL_SUPPORT_OPENGL_ARB, 1);
  attributes.add(drawTo, 1);
  attributes.add(WGL_PIXEL_TYPE_ARB, WGL_TYPE_RGBA_ARB);
  attributes.add(WGL_RED_BITS_ARB, request.red);
  attributes.add(WGL_GREEN_BITS_ARB, request.green);
  attributes.add(WGL_BLUE_BITS_ARB, request.blue);
  attributes.add(WGL_ALPHA_BITS_ARB, request.alpha);
  attributes.add(WGL_DEPTH_BITS_ARB, request.depth);
  attributes.add(WGL_STENCIL_BITS_ARB, request.stencil);
  attributes.add(WGL_ACCELERATION_ARB, WGL_FULL_ACCELERATION_ARB);
  attributes.add(WGL_DOUBLE_BUFFER_ARB, request.doubleBuffer);
  return attributes;
}

constexpr UINT formatLimit = 16;

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
  Attributes attributes;
  attributes.add(WGL_SUPPORT_OPENGL_ARB, 1);
  attributes.add(WGL_DRAW_TO_WINDOW_ARB, 1);
  attributes.add(WGL_ACCELERATION_ARB, WGL_FULL_ACCELERATION_ARB);
  attributes.add(WGL_DOUBLE_BUFFER_ARB, doubleBuffer);
  attributes.add(WGL_SAMPLE_BUFFERS_ARB, 1);
  attributes.add(WGL_SAMPLES_ARB, 4);
  return chooseFirst(connection->probeContextDevice, attributes, 1) != 0;
}

PortFormat portChooseWindowFormat(PortConnection* connection, PortNativeWindow window,
                                  const PortFormatRequest& request) {
  const WindowDevice device(*connection, reinterpret_cast<HWND>(window));
  Attributes attributes = attributesOf(request, WGL_DRAW_TO_WINDOW_ARB);
  attributes.addSamples(request);
  return chooseFirst(device.get(), attributes, formatLimit);
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
  Attributes attributes = attributesOf(request, WGL_DRAW_TO_PBUFFER_ARB);
  if (portBindsTextures(connection)) {
    if (request.bindsRgb) {
      attributes.add(WGL_BIND_TO_TEXTURE_RGB_ARB, 1);
    } else if (request.bindsRgba) {
      attributes.add(WGL_BIND_TO_TEXTURE_RGBA_ARB, 1);
    }
  }
  attributes.addSamples(request);
  return chooseFirst(device.get(), attributes, formatLimit);
}
