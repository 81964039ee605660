#include "egl/backend/glx/glx_port.h"

namespace {

/// The configuration that needs the least: the first accelerated one for windows, or any for them;
/// 0 without one.
PortFormat basicFormat(const std::vector<PixelFormat>& formats) {
  PortFormat full = 0;
  PortFormat any = 0;
  for (std::size_t i = 0; i < formats.size(); ++i) {
    const PixelFormat& format = formats[i];
    if (!format.drawsToWindow) {
      continue;
    }
    if (format.red >= 8 && format.green >= 8 && format.blue >= 8) {
      if (format.accelerated) {
        return i + 1;
      }
      full = full ? full : i + 1;
    }
    any = any ? any : i + 1;
  }
  return full ? full : any;
}

}  // namespace

bool portBeginProbe(PortConnection* connection) {
  GLXFBConfig config = configOf(*connection, basicFormat(pixelFormats(*connection)));
  if (!config) {
    return false;
  }
  Display* display = connection->display;
  bool current = false;
  {
    XErrorTrap trap(*connection);
    XVisualInfo* visual = glXGetVisualFromFBConfig(display, config);
    if (!visual) {
      return false;
    }
    const Window root = DefaultRootWindow(display);
    connection->probeColormap = XCreateColormap(display, root, visual->visual, AllocNone);
    XSetWindowAttributes attributes = {};
    attributes.colormap = connection->probeColormap;
    connection->probeWindow =
        XCreateWindow(display, root, 0, 0, 64, 64, 0, visual->depth, InputOutput, visual->visual,
                      CWBorderPixel | CWColormap, &attributes);
    XStoreName(display, connection->probeWindow, "egw_dummy_window");
    XFree(visual);
    connection->probeContext = glXCreateNewContext(display, config, GLX_RGBA_TYPE, nullptr, True);
    current = connection->probeContext && !trap.failed() &&
              glXMakeContextCurrent(display, connection->probeWindow, connection->probeWindow,
                                    connection->probeContext);
  }
  if (!current) {
    portEndProbe(connection);
    return false;
  }
  using GetString = const GLubyte* (*)(GLenum);
  if (const auto getString = reinterpret_cast<GetString>(portGetProcAddress("glGetString"))) {
    const GLubyte* renderer = getString(GL_RENDERER);
    connection->adapterName = renderer ? reinterpret_cast<const char*>(renderer) : "";
  }
  return true;
}

void portEndProbe(PortConnection* connection) {
  if (connection->dead) {
    return;
  }
  XErrorTrap trap(*connection);
  Display* display = connection->display;
  if (connection->probeContext) {
    glXMakeContextCurrent(display, 0, 0, nullptr);
    glXDestroyContext(display, connection->probeContext);
    connection->probeContext = nullptr;
  }
  if (connection->probeWindow) {
    XDestroyWindow(display, connection->probeWindow);
    connection->probeWindow = 0;
  }
  if (connection->probeColormap) {
    XFreeColormap(display, connection->probeColormap);
    connection->probeColormap = 0;
  }
}

const char* portAdapterName(PortConnection* connection) {
  return connection->adapterName.c_str();
}
