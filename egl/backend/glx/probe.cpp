#include "egl/backend/glx/glx_port.h"

namespace {

/// The configuration that needs the least: the first accelerated one for windows, or any for them.
const PortPixelFormat* basicFormat(const std::vector<PortPixelFormat>& formats) {
  const PortPixelFormat* found = nullptr;
  for (const PortPixelFormat& format : formats) {
    if (format.drawsToWindow && format.red >= 8 && format.green >= 8 && format.blue >= 8) {
      if (format.accelerated) {
        return &format;
      }
      if (!found) {
        found = &format;
      }
    }
  }
  for (std::size_t i = 0; !found && i < formats.size(); ++i) {
    if (formats[i].drawsToWindow) {
      found = &formats[i];
    }
  }
  return found;
}

}  // namespace

bool portBeginProbe(PortConnection* connection) {
  const PortPixelFormat* format = basicFormat(portPixelFormats(connection));
  if (!format || connection->dead) {
    return false;
  }
  Display* display = connection->display;
  bool current = false;
  {
    XErrorTrap trap(*connection);
    GLXFBConfig config = connection->configs[format->id];
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
