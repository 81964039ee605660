#ifndef VARNEL_EGL_BACKEND_WGL_DEVICES_H
#define VARNEL_EGL_BACKEND_WGL_DEVICES_H

#include "egl/backend/wgl/wgl_port.h"

/// The device of a window for as long as this object lives: the connection's own, or the window's.
class WindowDevice {
 public:
  WindowDevice(const PortConnection& connection, HWND window);
  ~WindowDevice();
  WindowDevice(const WindowDevice&) = delete;
  WindowDevice& operator=(const WindowDevice&) = delete;

  /// Null if there is none.
  HDC get() const { return device; }

 private:
  HDC device = nullptr;
  HWND borrowedFrom = nullptr;
};

/// A device to make pbuffers on for as long as this object lives: the connection's own, that of the
/// thread's first window, or that of a hidden window where the thread has none.
class PbufferDevice {
 public:
  explicit PbufferDevice(const PortConnection& connection);
  ~PbufferDevice();
  PbufferDevice(const PbufferDevice&) = delete;
  PbufferDevice& operator=(const PbufferDevice&) = delete;

  /// Null if there is none.
  HDC get() const { return device; }

 private:
  HDC device = nullptr;
  HWND window = nullptr;
  HWND hidden = nullptr;
};

#endif
