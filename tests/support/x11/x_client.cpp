#include "tests/support/x11/x_client.h"

#include <X11/Xutil.h>

#include "tests/support/x11/x_connection.h"

void XClient::killOwner(std::uintptr_t resource) {
  XKillClient(connection->display, resource);
  XSync(connection->display, False);
}

void XClient::provokeError() {
  XMapWindow(connection->display, 4711);
  XSync(connection->display, False);
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
