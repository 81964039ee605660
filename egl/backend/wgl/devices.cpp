#include "egl/backend/wgl/devices.h"

namespace {

BOOL CALLBACK keepFirstWindow(HWND window, LPARAM found) {
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

}  // namespace

WindowDevice::WindowDevice(const PortConnection& connection, HWND window)
    : device(connection.display) {
  if (!device) {
    borrowedFrom = window;
    device = GetDC(window);
  }
}

WindowDevice::~WindowDevice() {
  if (borrowedFrom && device) {
    ReleaseDC(borrowedFrom, device);
  }
}

PbufferDevice::PbufferDevice(const PortConnection& connection) : device(connection.display) {
  if (device) {
    return;
  }
  EnumThreadWindows(GetCurrentThreadId(), keepFirstWindow, reinterpret_cast<LPARAM>(&window));
  if (!window) {
    window = hidden = createHiddenWindow();
  }
  device = window ? GetDC(window) : nullptr;
}

PbufferDevice::~PbufferDevice() {
  if (window && device) {
    ReleaseDC(window, device);
  }
  destroyHiddenWindow(hidden);
}
