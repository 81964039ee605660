#include <cstring>

#include "egl/backend/wgl/wgl_port.h"

namespace {

constexpr wchar_t dummyClass[] = L"egw_dummy_class";
constexpr wchar_t dummyTitle[] = L"egw_dummy_window";
constexpr int dummySide = 64;

/// Hidden windows in existence; the class goes with the last one.
int hiddenWindows = 0;

template <class Function>
void find(Function& function, const char* name) {
  function = reinterpret_cast<Function>(portGetProcAddress(name));
}

bool isListed(const char* list, const char* name) {
  const std::size_t length = std::strlen(name);
  for (const char* at = list; (at = std::strstr(at, name)) != nullptr; at += length) {
    if ((at == list || at[-1] == ' ') && (at[length] == ' ' || at[length] == '\0')) {
      return true;
    }
  }
  return false;
}

/// Looks the functions up. Some drivers give addresses for what they do not support, so that the
/// list of extensions decides where there is one.
void findExtensions(HDC device) {
  WglExtensions& wgl = wglExtensions;
  wgl = {};
  find(wgl.wglGetExtensionsStringARB, "wglGetExtensionsStringARB");
  const char* list =
      wgl.wglGetExtensionsStringARB ? wgl.wglGetExtensionsStringARB(device) : nullptr;
  const auto has = [list](const char* name) { return !list || isListed(list, name); };
  if (has("WGL_ARB_pixel_format")) {
    find(wgl.wglGetPixelFormatAttribivARB, "wglGetPixelFormatAttribivARB");
    find(wgl.wglGetPixelFormatAttribfvARB, "wglGetPixelFormatAttribfvARB");
    find(wgl.wglChoosePixelFormatARB, "wglChoosePixelFormatARB");
  }
  if (has("WGL_ARB_pbuffer")) {
    find(wgl.wglCreatePbufferARB, "wglCreatePbufferARB");
    find(wgl.wglGetPbufferDCARB, "wglGetPbufferDCARB");
    find(wgl.wglReleasePbufferDCARB, "wglReleasePbufferDCARB");
    find(wgl.wglDestroyPbufferARB, "wglDestroyPbufferARB");
    find(wgl.wglQueryPbufferARB, "wglQueryPbufferARB");
  }
  if (has("WGL_ARB_render_texture")) {
    find(wgl.wglBindTexImageARB, "wglBindTexImageARB");
    find(wgl.wglReleaseTexImageARB, "wglReleaseTexImageARB");
    find(wgl.wglSetPbufferAttribARB, "wglSetPbufferAttribARB");
  }
  if (has("WGL_ARB_make_current_read")) {
    find(wgl.wglMakeContextCurrentARB, "wglMakeContextCurrentARB");
  }
  if (has("WGL_EXT_swap_control")) {
    find(wgl.wglSwapIntervalEXT, "wglSwapIntervalEXT");
  }
}

}  // namespace

HWND createHiddenWindow() {
  if (hiddenWindows == 0) {
    WNDCLASSW dummy = {};
    dummy.style = CS_OWNDC;
    dummy.lpfnWndProc = DefWindowProcW;
    dummy.hInstance = ownModule();
    dummy.lpszClassName = dummyClass;
    if (!RegisterClassW(&dummy) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
      return nullptr;
    }
  }
  const HWND window = CreateWindowExW(0, dummyClass, dummyTitle, WS_POPUP, 0, 0, dummySide,
                                      dummySide, nullptr, nullptr, ownModule(), nullptr);
  if (window) {
    ++hiddenWindows;
  } else if (hiddenWindows == 0) {
    UnregisterClassW(dummyClass, ownModule());
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
    UnregisterClassW(dummyClass, ownModule());
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
  findExtensions(device);
  DISPLAY_DEVICEW adapter = {};
  adapter.cb = sizeof adapter;
  connection->adapterName[0] = '\0';
  if (EnumDisplayDevicesW(nullptr, 0, &adapter, 0)) {
    WideCharToMultiByte(CP_UTF8, 0, adapter.DeviceString, -1, connection->adapterName,
                        sizeof connection->adapterName, nullptr, nullptr);
  }
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
  return connection->adapterName;
}
