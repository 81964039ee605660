#include "tests/support/x_client.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <stdexcept>

struct XClient::Connection {
  Display* display = nullptr;
};

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

XClient::XClient() : connection(std::make_unique<Connection>()) {
  connection->display = XOpenDisplay(nullptr);
  if (!connection->display) {
    throw std::runtime_error("no X display");
  }
}

XClient::~XClient() {
  XCloseDisplay(connection->display);
}

void* XClient::display() const {
  return connection->display;
}

std::uint32_t XClient::pixel(std::uintptr_t drawable, int x, int y) {
  return static_cast<std::uint32_t>(raw(drawable, x, y) & 0xFFFFFF);
}

std::string XClient::title(std::uintptr_t window) {
  char* name = nullptr;
  std::string text;
  if (XFetchName(connection->display, window, &name) && name) {
    text = name;
    XFree(name);
  }
  return text;
}

std::string XClient::className(std::uintptr_t window) {
  XClassHint hint = {};
  std::string text;
  if (XGetClassHint(connection->display, window, &hint)) {
    text = hint.res_class;
    XFree(hint.res_name);
    XFree(hint.res_class);
  }
  return text;
}

long XClient::process(std::uintptr_t window) {
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

bool XClient::isMapped(std::uintptr_t window) {
  const Quiet quiet(connection->display);
  XWindowAttributes attributes;
  return XGetWindowAttributes(connection->display, window, &attributes) &&
         attributes.map_state != IsUnmapped;
}

bool XClient::exists(std::uintptr_t window) {
  const Quiet quiet(connection->display);
  XWindowAttributes attributes;
  return XGetWindowAttributes(connection->display, window, &attributes) != 0;
}

void XClient::sendDelete(std::uintptr_t window) {
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

void XClient::destroyWindow(std::uintptr_t window) {
  const Quiet quiet(connection->display);
  XDestroyWindow(connection->display, window);
}

void XClient::resizeWindow(std::uintptr_t window, int width, int height) {
  XResizeWindow(connection->display, window, static_cast<unsigned>(width),
                static_cast<unsigned>(height));
  XSync(connection->display, False);
}

void XClient::killOwner(std::uintptr_t resource) {
  XKillClient(connection->display, resource);
  XSync(connection->display, False);
}

void XClient::provokeError() {
  XMapWindow(connection->display, 4711);
  XSync(connection->display, False);
}

std::uintptr_t XClient::createWindow(int width, int height) {
  const Window window =
      XCreateSimpleWindow(connection->display, DefaultRootWindow(connection->display), 0, 0,
                          static_cast<unsigned>(width), static_cast<unsigned>(height), 0, 0, 0);
  XMapWindow(connection->display, window);
  XSync(connection->display, False);
  return window;
}

std::uintptr_t XClient::createWindowOfDepth(int width, int height, int depth) {
  Display* display = connection->display;
  XVisualInfo wanted = {};
  wanted.depth = depth;
  wanted.c_class = TrueColor;
  int count = 0;
  XVisualInfo* visuals =
      XGetVisualInfo(display, VisualDepthMask | VisualClassMask, &wanted, &count);
  if (!visuals) {
    return 0;
  }
  const Window root = DefaultRootWindow(display);
  XSetWindowAttributes attributes = {};
  attributes.colormap = XCreateColormap(display, root, visuals[0].visual, AllocNone);
  const Window window = XCreateWindow(
      display, root, 0, 0, static_cast<unsigned>(width), static_cast<unsigned>(height), 0, depth,
      InputOutput, visuals[0].visual, CWBackPixel | CWBorderPixel | CWColormap, &attributes);
  XFree(visuals);
  XMapWindow(display, window);
  XSync(display, False);
  return window;
}

bool XClient::hasDepth(int depth) {
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

std::uintptr_t XClient::createPixmap(int width, int height, int depth) {
  const Pixmap pixmap = XCreatePixmap(connection->display, DefaultRootWindow(connection->display),
                                      static_cast<unsigned>(width), static_cast<unsigned>(height),
                                      static_cast<unsigned>(depth));
  XSync(connection->display, False);
  return pixmap;
}

void XClient::freePixmap(std::uintptr_t pixmap) {
  XFreePixmap(connection->display, pixmap);
  XSync(connection->display, False);
}

void XClient::setRaw(std::uintptr_t pixmap, int x, int y, unsigned long value) {
  XGCValues values = {};
  values.foreground = value;
  GC gc = XCreateGC(connection->display, pixmap, GCForeground, &values);
  XDrawPoint(connection->display, pixmap, gc, x, y);
  XFreeGC(connection->display, gc);
  XSync(connection->display, False);
}

unsigned long XClient::raw(std::uintptr_t pixmap, int x, int y) {
  XImage* image = XGetImage(connection->display, pixmap, x, y, 1, 1, AllPlanes, ZPixmap);
  if (!image) {
    throw std::runtime_error("no such drawable");
  }
  const unsigned long value = XGetPixel(image, 0, 0);
  XDestroyImage(image);
  return value;
}
