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
