#include "tests/support/native_client.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <stdexcept>

#include "tests/support/x11/x_connection.h"

namespace {

int ignoreError(Display*, XErrorEvent*) {
  return 0;
}

/// Ignores X errors while it lives.
class Quiet {
 public:
  explicit Quiet(Display* display) : display(display), former(XSetErrorHandler(ignoreError)) {}
  ~Quiet() {
    XSync(display, False);
    XSetErrorHandler(former);
  }
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;

 private:
  Display* display;
  XErrorHandler former;
};

}  // namespace

NativeClient::NativeClient() : connection(std::make_unique<Connection>()) {
  connection->display = XOpenDisplay(nullptr);
  if (!connection->display) {
    throw std::runtime_error("no X display");
  }
}

NativeClient::~NativeClient() {
  XCloseDisplay(connection->display);
}

std::uintptr_t NativeClient::displayOf(std::uintptr_t) const {
  return reinterpret_cast<std::uintptr_t>(connection->display);
}

bool NativeClient::showsOpenGlOfChildren() {
  return true;
}

std::uint32_t NativeClient::pixel(std::uintptr_t window, int x, int y) {
  return static_cast<std::uint32_t>(raw(window, x, y) & 0xFFFFFF);
}

std::string NativeClient::title(std::uintptr_t window) {
  char* name = nullptr;
  std::string text;
  if (XFetchName(connection->display, window, &name) && name) {
    text = name;
    XFree(name);
  }
  return text;
}

std::string NativeClient::className(std::uintptr_t window) {
  XClassHint hint = {};
  std::string text;
  if (XGetClassHint(connection->display, window, &hint)) {
    text = hint.res_class;
    XFree(hint.res_name);
    XFree(hint.res_class);
  }
  return text;
}

long NativeClient::process(std::uintptr_t window) {
  Atom type = 0;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* data = nullptr;
  const Atom name = XInternAtom(connection->display, "_NET_WM_PID", False);
  long value = 0;
  if (XGetWindowProperty(connection->display, window, name, 0, 1, False, XA_CARDINAL, &type,
                         &format, &count, &rest, &data) == Success &&
      data) {
    value = count == 1 ? *reinterpret_cast<long*>(data) : 0;
    XFree(data);
  }
  return value;
}

bool NativeClient::isShown(std::uintptr_t window) {
  const Quiet quiet(connection->display);
  XWindowAttributes attributes;
  return XGetWindowAttributes(connection->display, window, &attributes) &&
         attributes.map_state != IsUnmapped;
}

bool NativeClient::exists(std::uintptr_t window) {
  const Quiet quiet(connection->display);
  XWindowAttributes attributes;
  return XGetWindowAttributes(connection->display, window, &attributes) != 0;
}

void NativeClient::askToClose(std::uintptr_t window) {
  XEvent event = {};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(connection->display, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] =
      static_cast<long>(XInternAtom(connection->display, "WM_DELETE_WINDOW", False));
  XSendEvent(connection->display, window, False, NoEventMask, &event);
  XSync(connection->display, False);
}

void NativeClient::destroyWindow(std::uintptr_t window) {
  const Quiet quiet(connection->display);
  XDestroyWindow(connection->display, window);
}

void NativeClient::resizeWindow(std::uintptr_t window, int width, int height) {
  XResizeWindow(connection->display, window, static_cast<unsigned>(width),
                static_cast<unsigned>(height));
  XSync(connection->display, False);
}

std::uintptr_t NativeClient::createWindow(int width, int height) {
  const Window window =
      XCreateSimpleWindow(connection->display, DefaultRootWindow(connection->display), 0, 0,
                          static_cast<unsigned>(width), static_cast<unsigned>(height), 0, 0, 0);
  XMapWindow(connection->display, window);
  XSync(connection->display, False);
  return window;
}

bool NativeClient::hasDepth(int depth) {
  int count = 0;
  int* depths = XListDepths(connection->display, DefaultScreen(connection->display), &count);
  bool found = false;
  for (int i = 0; depths && i < count; ++i) {
    found = found || depths[i] == depth;
  }
  if (depths) {
    XFree(depths);
  }
  return found;
}

std::uintptr_t NativeClient::createPixmap(int width, int height, int depth) {
  const Pixmap pixmap = XCreatePixmap(connection->display, DefaultRootWindow(connection->display),
                                      static_cast<unsigned>(width), static_cast<unsigned>(height),
                                      static_cast<unsigned>(depth));
  XSync(connection->display, False);
  return pixmap;
}

void NativeClient::freePixmap(std::uintptr_t pixmap) {
  XFreePixmap(connection->display, pixmap);
  XSync(connection->display, False);
}

void NativeClient::setRaw(std::uintptr_t pixmap, int x, int y, unsigned long value) {
  XGCValues values = {};
  values.foreground = value;
  GC gc = XCreateGC(connection->display, pixmap, GCForeground, &values);
  XDrawPoint(connection->display, pixmap, gc, x, y);
  XFreeGC(connection->display, gc);
  XSync(connection->display, False);
}

unsigned long NativeClient::raw(std::uintptr_t pixmap, int x, int y) {
  XImage* image = XGetImage(connection->display, pixmap, x, y, 1, 1, AllPlanes, ZPixmap);
  if (!image) {
    throw std::runtime_error("no such drawable");
  }
  const unsigned long value = XGetPixel(image, 0, 0);
  XDestroyImage(image);
  return value;
}
