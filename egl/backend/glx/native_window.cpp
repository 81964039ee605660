#include "egl/window/native_window.h"

#include <unistd.h>

#include <cstdio>
#include <memory>

#include <X11/Xatom.h>
#include "egl/backend/glx/glx_port.h"

namespace {

constexpr int clientWidth = 640;
constexpr int clientHeight = 480;

/// One window of the library's own.
struct NativeWindow {
  Window window = 0;
  Window parent = 0;  ///< 0 for a top-level window
  Colormap colormap = 0;
  GC gc = nullptr;
  bool closed = false;     ///< by its user or by another program
  bool destroyed = false;  ///< the server knows it no more
};

char errorText[256] = "Never called init";

std::vector<std::unique_ptr<NativeWindow>>& windows() {
  // Never destroyed: the windows live to process end.
  static auto* list = new std::vector<std::unique_ptr<NativeWindow>>();
  return *list;
}

NativeWindow* findWindow(Window window) {
  for (auto& candidate : windows()) {
    if (candidate->window == window) {
      return candidate.get();
    }
  }
  return nullptr;
}

PortConnection* liveConnection() {
  PortConnection* connection = portConnect(0);
  return connection && !connection->dead ? connection : nullptr;
}

void setError(const char* text) {
  std::snprintf(errorText, sizeof errorText, "%s", text);
}

void setChildError(PortConnection& connection, int code) {
  char reason[200] = "";
  XGetErrorText(connection.display, code, reason, sizeof reason);
  std::snprintf(errorText, sizeof errorText, "Child: %s", reason);
}

/// The format that the renderer's window configuration would choose, so that its visual fits.
PortFormat windowFormat(PortConnection& connection) {
  PortFormatRequest request;
  request.doubleBuffer = true;
  request.red = request.green = request.blue = request.alpha = 8;
  request.depth = 24;
  request.stencil = 8;
  const PortFormat exact = portChooseWindowFormat(&connection, 0, request);
  return exact ? exact : portPlainWindowFormat(&connection, 0, request);
}

void setWindowProperties(Display* display, Window window) {
  char title[] = "Sample";
  char instance[] = "varneljni";
  char className[] = "MainWClass";
  XSizeHints sizes = {};
  sizes.flags = PSize;
  sizes.width = clientWidth;
  sizes.height = clientHeight;
  XClassHint names = {instance, className};
  XWMHints hints = {};
  hints.flags = StateHint | InputHint;
  hints.initial_state = NormalState;
  hints.input = True;
  // It also sets WM_CLIENT_MACHINE, without which the process number below means nothing.
  Xutf8SetWMProperties(display, window, title, title, nullptr, 0, &sizes, &hints, &names);
  XChangeProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False),
                  XInternAtom(display, "UTF8_STRING", False), 8, PropModeReplace,
                  reinterpret_cast<unsigned char*>(title), sizeof title - 1);
  // Xlib takes 32-bit properties as longs.
  const long process = getpid();
  XChangeProperty(display, window, XInternAtom(display, "_NET_WM_PID", False), XA_CARDINAL, 32,
                  PropModeReplace, reinterpret_cast<const unsigned char*>(&process), 1);
  Atom deleteWindow = XInternAtom(display, "WM_DELETE_WINDOW", False);
  XSetWMProtocols(display, window, &deleteWindow, 1);
}

void resizeChildren(PortConnection& connection, Window parent, int width, int height) {
  for (auto& child : windows()) {
    if (child->parent == parent && !child->destroyed && width > 0 && height > 0) {
      XResizeWindow(connection.display, child->window, static_cast<unsigned>(width),
                    static_cast<unsigned>(height));
    }
  }
}

void close(NativeWindow& window) {
  window.closed = true;
  for (auto& child : windows()) {
    if (child->parent == window.window) {
      child->closed = true;
    }
  }
}

void dispatch(PortConnection& connection, const XEvent& event) {
  if (event.type == ConfigureNotify) {
    resizeChildren(connection, event.xconfigure.window, event.xconfigure.width,
                   event.xconfigure.height);
    return;
  }
  NativeWindow* window = findWindow(event.xany.window);
  if (!window) {
    return;
  }
  switch (event.type) {
    case ClientMessage:
      if (event.xclient.message_type == XInternAtom(connection.display, "WM_PROTOCOLS", False) &&
          static_cast<Atom>(event.xclient.data.l[0]) ==
              XInternAtom(connection.display, "WM_DELETE_WINDOW", False)) {
        // Hidden and not destroyed: OpenGL may still draw into it until its surface goes.
        close(*window);
        XWithdrawWindow(connection.display, window->window, DefaultScreen(connection.display));
      }
      break;
    case DestroyNotify:
      close(*window);
      window->destroyed = true;
      break;
    default:
      break;
  }
}

}  // namespace

bool isClosedNativeWindow(Window window) {
  const NativeWindow* known = findWindow(window);
  return known && known->closed;
}

const char* nativeWindowError() {
  return errorText;
}

EGLNativeWindowType createNativeWindow() {
  PortConnection* connection = liveConnection();
  GLXFBConfig config = connection ? configOf(*connection, windowFormat(*connection)) : nullptr;
  if (!config) {
    setError("Bad class");
    return 0;
  }
  XErrorTrap trap(*connection);
  Display* display = connection->display;
  XVisualInfo* visual = glXGetVisualFromFBConfig(display, config);
  if (!visual) {
    setError("Bad class");
    return 0;
  }
  const Window root = DefaultRootWindow(display);
  auto made = std::make_unique<NativeWindow>();
  made->colormap = XCreateColormap(display, root, visual->visual, AllocNone);
  XSetWindowAttributes attributes = {};
  attributes.colormap = made->colormap;
  attributes.event_mask = StructureNotifyMask;
  made->window = XCreateWindow(display, root, 0, 0, clientWidth, clientHeight, 0, visual->depth,
                               InputOutput, visual->visual,
                               CWBackPixel | CWBorderPixel | CWColormap | CWEventMask, &attributes);
  XFree(visual);
  setWindowProperties(display, made->window);
  made->gc = XCreateGC(display, made->window, 0, nullptr);
  XMapWindow(display, made->window);
  if (trap.failed()) {
    setError("Bad class");
    XFreeGC(display, made->gc);
    XDestroyWindow(display, made->window);
    XFreeColormap(display, made->colormap);
    return 0;
  }
  windows().push_back(std::move(made));
  return windows().back()->window;
}

EGLNativeWindowType createNativeChildWindow(EGLNativeWindowType parent) {
  PortConnection* connection = liveConnection();
  const NativeWindow* known = findWindow(parent);
  if (!connection || (known && known->closed)) {
    setError("Bad Child class");
    return 0;
  }
  XErrorTrap trap(*connection);
  Display* display = connection->display;
  XWindowAttributes size;
  if (!XGetWindowAttributes(display, parent, &size)) {
    setChildError(*connection, trap.errorCode());
    return 0;
  }
  if (!known) {
    XSelectInput(display, parent, StructureNotifyMask);  // tells its size
  }
  auto made = std::make_unique<NativeWindow>();
  made->parent = parent;
  XSetWindowAttributes attributes = {};
  attributes.event_mask = StructureNotifyMask;
  made->window = XCreateWindow(display, parent, 0, 0, static_cast<unsigned>(size.width),
                               static_cast<unsigned>(size.height), 0, size.depth, InputOutput,
                               size.visual, CWBackPixel | CWEventMask, &attributes);
  char instance[] = "varneljni";
  char className[] = "ChildWClass";
  XClassHint names = {instance, className};
  XSetClassHint(display, made->window, &names);
  made->gc = XCreateGC(display, made->window, 0, nullptr);
  XMapWindow(display, made->window);
  if (trap.failed()) {
    setChildError(*connection, trap.errorCode());
    XFreeGC(display, made->gc);
    XDestroyWindow(display, made->window);
    return 0;
  }
  windows().push_back(std::move(made));
  return windows().back()->window;
}

bool realizeNativeWindow(EGLNativeWindowType window, std::uintptr_t* deviceContext) {
  const NativeWindow* known = findWindow(window);
  int width = 0;
  int height = 0;
  PortConnection* connection = liveConnection();
  if (!known || !connection || !portWindowSize(connection, window, &width, &height)) {
    setError("Bad class");
    return false;
  }
  *deviceContext = XGContextFromGC(known->gc);
  return true;
}

void pumpNativeMessages(std::uintptr_t handle) {
  PortConnection* connection = liveConnection();
  bool known = false;
  for (auto& window : windows()) {
    known = known || window->window == handle || XGContextFromGC(window->gc) == handle;
  }
  if (!connection || !known) {
    return;
  }
  XErrorTrap trap(*connection);
  while (!connection->dead && XPending(connection->display) > 0) {
    XEvent event;
    XNextEvent(connection->display, &event);
    dispatch(*connection, event);
  }
}

void destroyNativeWindow(EGLNativeWindowType window) {
  auto& list = windows();
  PortConnection* connection = liveConnection();
  for (auto at = list.begin(); at != list.end(); ++at) {
    if ((*at)->window != window) {
      continue;
    }
    close(**at);
    if (connection) {
      XErrorTrap trap(*connection);
      XFreeGC(connection->display, (*at)->gc);
      if (!(*at)->destroyed) {
        XDestroyWindow(connection->display, (*at)->window);
      }
      if ((*at)->colormap) {
        XFreeColormap(connection->display, (*at)->colormap);
      }
    }
    list.erase(at);
    return;
  }
}
