#include "egl/backend/wgl/wgl_port.h"

namespace {

constexpr wchar_t dummyClass[] = L"egw_dummy_class";
constexpr wchar_t dummyTitle[] = L"egw_dummy_window";
constexpr int dummySide = 64;

/// Hidden windows in existence; the class goes with the last one.
int hiddenWindows = 0;

HINSTANCE moduleHandle() {
  return GetModuleHandleW(nullptr);
}

template <class Function>
void find(Function& function, const char* name) {
  function = reinterpret_cast<Function>(portGetProcAddress(name));
}

void findExtensions() {
  WglExtensions& wgl = wglExtensions;
  find(wgl.wglGetExtensionsStringARB, "wglGetExtensionsStringARB");
  find(wgl.wglGetPixelFormatAttribivARB, "wglGetPixelFormatAttribivARB");
  find(wgl.wglGetPixelFormatAttribfvARB, "wglGetPixelFormatAttribfvARB");
  find(wgl.wglChoosePixelFormatARB, "wglChoosePixelFormatARB");
  find(wgl.wglCreatePbufferARB, "wglCreatePbufferARB");
  find(wgl.wglGetPbufferDCARB, "wglGetPbufferDCARB");
  find(wgl.wglReleasePbufferDCARB, "wglReleasePbufferDCARB");
  find(wgl.wglDestroyPbufferARB, "wglDestroyPbufferARB");
  find(wgl.wglQueryPbufferARB, "wglQueryPbufferARB");
  find(wgl.wglBindTexImageARB, "wglBindTexImageARB");
  find(wgl.wglReleaseTexImageARB, "wglReleaseTexImageARB");
  find(wgl.wglSetPbufferAttribARB, "wglSetPbufferAttribARB");
  find(wgl.wglMakeContextCurrentARB, "wglMakeContextCurrentARB");
  find(wgl.wglSwapIntervalEXT, "wglSwapIntervalEXT");
}

/// One attribute of a format; 0 where the driver does not know it.
int attribute(HDC device, int format, int name) {
  int value = 0;
  if (!wglExtensions.wglGetPixelFormatAttribivARB(device, format, 0, 1, &name, &value)) {
    return 0;
  }
  return value;
}

bool readExtendedFormat(HDC device, int index, PortPixelFormat* format) {
  const auto value = [&](int name) { return attribute(device, index, name); };
  if (!value(WGL_SUPPORT_OPENGL_ARB) || value(WGL_PIXEL_TYPE_ARB) != WGL_TYPE_RGBA_ARB) {
    return false;
  }
  format->drawsToWindow = value(WGL_DRAW_TO_WINDOW_ARB) != 0;
  format->drawsToPbuffer = value(WGL_DRAW_TO_PBUFFER_ARB) != 0;
  format->accelerated = value(WGL_ACCELERATION_ARB) == WGL_FULL_ACCELERATION_ARB;
  format->doubleBuffer = value(WGL_DOUBLE_BUFFER_ARB) != 0;
  format->red = value(WGL_RED_BITS_ARB);
  format->green = value(WGL_GREEN_BITS_ARB);
  format->blue = value(WGL_BLUE_BITS_ARB);
  format->alpha = value(WGL_ALPHA_BITS_ARB);
  format->depth = value(WGL_DEPTH_BITS_ARB);
  format->stencil = value(WGL_STENCIL_BITS_ARB);
  format->sampleBuffers = value(WGL_SAMPLE_BUFFERS_ARB);
  format->samples = value(WGL_SAMPLES_ARB);
  format->bindsRgb = value(WGL_BIND_TO_TEXTURE_RGB_ARB) != 0;
  format->bindsRgba = value(WGL_BIND_TO_TEXTURE_RGBA_ARB) != 0;
  return true;
}

bool readPlainFormat(HDC device, int index, PortPixelFormat* format) {
  PIXELFORMATDESCRIPTOR descriptor = {};
  if (!DescribePixelFormat(device, index, sizeof descriptor, &descriptor) ||
      !(descriptor.dwFlags & PFD_SUPPORT_OPENGL) || descriptor.iPixelType != PFD_TYPE_RGBA) {
    return false;
  }
  format->drawsToWindow = (descriptor.dwFlags & PFD_DRAW_TO_WINDOW) != 0;
  format->accelerated = !(descriptor.dwFlags & PFD_GENERIC_FORMAT);
  format->doubleBuffer = (descriptor.dwFlags & PFD_DOUBLEBUFFER) != 0;
  format->red = descriptor.cRedBits;
  format->green = descriptor.cGreenBits;
  format->blue = descriptor.cBlueBits;
  format->alpha = descriptor.cAlphaBits;
  format->depth = descriptor.cDepthBits;
  format->stencil = descriptor.cStencilBits;
  return true;
}

void readFormats(PortConnection& connection, HDC device) {
  const bool extended = wglExtensions.wglGetPixelFormatAttribivARB != nullptr;
  const int count = extended ? attribute(device, 1, WGL_NUMBER_PIXEL_FORMATS_ARB)
                             : DescribePixelFormat(device, 1, 0, nullptr);
  // Only where pbuffers can be made at all do formats for them count.
  const bool pbuffers = wglExtensions.wglCreatePbufferARB && wglExtensions.wglGetPbufferDCARB &&
                        wglExtensions.wglReleasePbufferDCARB && wglExtensions.wglDestroyPbufferARB;
  for (int index = 1; index <= count; ++index) {
    PortPixelFormat format;
    format.id = static_cast<std::uintptr_t>(index);
    if (extended ? readExtendedFormat(device, index, &format)
                 : readPlainFormat(device, index, &format)) {
      format.drawsToPbuffer = format.drawsToPbuffer && pbuffers;
      connection.formats.push_back(format);
    }
  }
}

std::string toUtf8(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (size <= 1) {
    return std::string();
  }
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, narrow.data(), size, nullptr, nullptr);
  narrow.pop_back();
  return narrow;
}

std::string firstAdapter() {
  DISPLAY_DEVICEW adapter = {};
  adapter.cb = sizeof adapter;
  return EnumDisplayDevicesW(nullptr, 0, &adapter, 0) ? toUtf8(adapter.DeviceString)
                                                      : std::string();
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

HWND createHiddenWindow() {
  if (hiddenWindows == 0) {
    WNDCLASSW dummy = {};
    dummy.style = CS_OWNDC;
    dummy.lpfnWndProc = DefWindowProcW;
    dummy.hInstance = moduleHandle();
    dummy.lpszClassName = dummyClass;
    if (!RegisterClassW(&dummy) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
      return nullptr;
    }
  }
  const HWND window = CreateWindowExW(0, dummyClass, dummyTitle, WS_POPUP, 0, 0, dummySide,
                                      dummySide, nullptr, nullptr, moduleHandle(), nullptr);
  if (window) {
    ++hiddenWindows;
  } else if (hiddenWindows == 0) {
    UnregisterClassW(dummyClass, moduleHandle());
  }
  return window;
}

void destroyHiddenWindow(HWND window) {
  if (!window) {
    return;
  }
  DestroyWindow(window);
  --hiddenWindows;
  if (hiddenWindows == 0) {
    UnregisterClassW(dummyClass, moduleHandle());
  }
}

bool portBeginProbe(PortConnection* connection) {
  connection->probeWindow = createHiddenWindow();
  if (!connection->probeWindow) {
    return false;
  }
  const HDC device = GetDC(connection->probeWindow);
  connection->probeContextDevice = device;
  if (device) {
    const PIXELFORMATDESCRIPTOR descriptor = plainDescriptor(device, 0, 0);
    const int format = ChoosePixelFormat(device, &descriptor);
    if (format && SetPixelFormat(device, format, &descriptor)) {
      connection->probeContext = wglCreateContext(device);
    }
  }
  if (!connection->probeContext || !wglMakeCurrent(device, connection->probeContext)) {
    portEndProbe(connection);
    return false;
  }
  findExtensions();
  if (connection->formats.empty()) {
    readFormats(*connection, device);
  }
  connection->adapterName = firstAdapter();
  return true;
}

void portEndProbe(PortConnection* connection) {
  if (connection->probeContext) {
    wglMakeCurrent(nullptr, nullptr);
    wglDeleteContext(connection->probeContext);
    connection->probeContext = nullptr;
  }
  if (connection->probeContextDevice) {
    ReleaseDC(connection->probeWindow, connection->probeContextDevice);
    connection->probeContextDevice = nullptr;
  }
  destroyHiddenWindow(connection->probeWindow);
  connection->probeWindow = nullptr;
}

const char* portAdapterName(PortConnection* connection) {
  return connection->adapterName.c_str();
}
