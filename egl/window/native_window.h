#ifndef VARNEL_EGL_WINDOW_NATIVE_WINDOW_H
#define VARNEL_EGL_WINDOW_NATIVE_WINDOW_H

#include <EGL/egl.h>

#include <cstdint>

// A plain top-level window of the library's own on the default display, and a child window to fill
// it. Each port defines these functions.

/// Text of the last failure of the functions below; "Never called init" before any call has failed.
const char* nativeWindowError();

/// Creates and shows the window titled "Sample" with a client area of 640 by 480 pixels. 0 on
/// failure, with the text set. The window lives until destroyNativeWindow or process end; when its
/// user closes it, it disappears and counts as gone from then on: its surfaces are reported as bad.
EGLNativeWindowType createNativeWindow();

/// Creates and shows a child window that fills the client area of `parent`, which may be another
/// program's; its size follows when messages are pumped. 0 on failure, with the text set: "Bad Child
/// class", or "Child: " and the system's reason.
EGLNativeWindowType createNativeChildWindow(EGLNativeWindowType parent);

/// Makes the window ready to be drawn to and gives its device context's handle, which stays valid
/// as long as the window. False, with the text set, if the window is gone.
bool realizeNativeWindow(EGLNativeWindowType window, std::uintptr_t* deviceContext);

/// Dispatches the pending messages of a window of this header, or of a device context's handle,
/// until none is left. Any other handle is ignored.
void pumpNativeMessages(std::uintptr_t handle);

/// Destroys a window of this header; its surfaces should be destroyed before.
void destroyNativeWindow(EGLNativeWindowType window);

#endif
