#include <cstring>
#include <memory>

#include "egl/backend/glx/glx_port.h"

namespace {

std::vector<std::unique_ptr<PortConnection>>& connections() {
  // Never destroyed: the OpenGL library's own clean-up at process end may come after ours.
  static auto* list = new std::vector<std::unique_ptr<PortConnection>>();
  return *list;
}

void markDead(Display* display, void* connection) {
  static_cast<PortConnection*>(connection)->dead = true;
  // Xlib 1.8 leaves the display locked when this returns, and libGLX's clean-up at process end
  // would wait for that lock without end. Nobody else makes requests on this display.
  forgetDisplayLocks(display);
}

bool hasExtension(const char* list, const char* name) {
  const std::size_t length = std::strlen(name);
  for (const char* at = list; at && (at = std::strstr(at, name)); at += length) {
    const bool starts = at == list || at[-1] == ' ';
    if (starts && (at[length] == ' ' || at[length] == '\0')) {
      return true;
    }
  }
  return false;
}

template <class Function>
Function lookUp(const char* name) {
  return reinterpret_cast<Function>(portGetProcAddress(name));
}

int configValue(PortConnection& connection, GLXFBConfig config, int attribute) {
  int value = 0;
  if (glXGetFBConfigAttrib(connection.display, config, attribute, &value) != 0) {
    return 0;
  }
  return value;
}

void readPixelFormats(PortConnection& connection) {
  int major = 0;
  int minor = 0;
  int errorBase = 0;
  int eventBase = 0;
  if (!glXQueryExtension(connection.display, &errorBase, &eventBase) ||
      !glXQueryVersion(connection.display, &major, &minor) || (major == 1 && minor < 3)) {
    return;
  }
  int count = 0;
  GLXFBConfig* configs =
      glXGetFBConfigs(connection.display, DefaultScreen(connection.display), &count);
  if (!configs) {
    return;
  }
  for (int i = 0; i < count; ++i) {
    const auto value = [&](int attribute) {
      return configValue(connection, configs[i], attribute);
    };
    if (!(value(GLX_RENDER_TYPE) & GLX_RGBA_BIT) || value(GLX_LEVEL) != 0 ||
        value(GLX_STEREO) != 0) {
      continue;
    }
    PortPixelFormat format;
    format.id = connection.configs.size();
    const int drawables = value(GLX_DRAWABLE_TYPE);
    if (drawables & GLX_WINDOW_BIT) {
      if (XVisualInfo* visual = glXGetVisualFromFBConfig(connection.display, configs[i])) {
        format.visual = visual->visualid;
        format.visualDepth = visual->depth;
        format.drawsToWindow = true;
        XFree(visual);
      }
    }
    format.drawsToPbuffer = (drawables & GLX_PBUFFER_BIT) != 0;
    format.accelerated = value(GLX_CONFIG_CAVEAT) == GLX_NONE;
    format.doubleBuffer = value(GLX_DOUBLEBUFFER) != 0;
    format.red = value(GLX_RED_SIZE);
    format.green = value(GLX_GREEN_SIZE);
    format.blue = value(GLX_BLUE_SIZE);
    format.alpha = value(GLX_ALPHA_SIZE);
    format.depth = value(GLX_DEPTH_SIZE);
    format.stencil = value(GLX_STENCIL_SIZE);
    format.sampleBuffers = value(GLX_SAMPLE_BUFFERS);
    format.samples = value(GLX_SAMPLES);
    // GLX makes no textures of pbuffers; copying their pixels works with any format.
    format.bindsRgb = format.drawsToPbuffer;
    format.bindsRgba = format.drawsToPbuffer;
    connection.configs.push_back(configs[i]);
    connection.formats.push_back(format);
  }
  XFree(configs);
}

void readExtensions(PortConnection& connection) {
  const char* list =
      glXQueryExtensionsString(connection.display, DefaultScreen(connection.display));
  if (hasExtension(list, "GLX_EXT_swap_control")) {
    connection.swapIntervalExt = lookUp<PFNGLXSWAPINTERVALEXTPROC>("glXSwapIntervalEXT");
  }
  if (hasExtension(list, "GLX_MESA_swap_control")) {
    connection.swapIntervalMesa = lookUp<PFNGLXSWAPINTERVALMESAPROC>("glXSwapIntervalMESA");
  }
  if (hasExtension(list, "GLX_SGI_swap_control")) {
    connection.swapIntervalSgi = lookUp<PFNGLXSWAPINTERVALSGIPROC>("glXSwapIntervalSGI");
  }
}

}  // namespace

PortConnection* portConnect(PortNativeDisplay native) {
  auto& list = connections();
  for (auto& connection : list) {
    if (native ? (!connection->own && connection->display == reinterpret_cast<Display*>(native))
               : connection->own) {
      return connection.get();
    }
  }
  auto connection = std::make_unique<PortConnection>();
  connection->own = native == 0;
  connection->display = native ? reinterpret_cast<Display*>(native) : XOpenDisplay(nullptr);
  if (!connection->display) {
    return nullptr;
  }
  if (connection->own) {
    // By default Xlib ends the process when the server closes the connection.
    XSetIOErrorExitHandler(connection->display, markDead, connection.get());
  }
  int event = 0;
  int error = 0;
  XQueryExtension(connection->display, "GLX", &connection->glxOpcode, &event, &error);
  list.push_back(std::move(connection));
  return list.back().get();
}

void portDisconnect(PortConnection* connection) {
  if (connection->shareRoot && !connection->dead) {
    XErrorTrap trap(*connection);
    glXDestroyContext(connection->display, connection->shareRoot);
  }
  connection->shareRoot = nullptr;
  if (connection->own) {
    return;
  }
  auto& list = connections();
  for (auto at = list.begin(); at != list.end(); ++at) {
    if (at->get() == connection) {
      list.erase(at);
      return;
    }
  }
}

const std::vector<PortPixelFormat>& portPixelFormats(PortConnection* connection) {
  if (connection->formats.empty() && !connection->dead) {
    XErrorTrap trap(*connection);
    readPixelFormats(*connection);
    if (!connection->formats.empty()) {
      readExtensions(*connection);
    }
  }
  return connection->formats;
}

void* portGetProcAddress(const char* name) {
  return reinterpret_cast<void*>(glXGetProcAddressARB(reinterpret_cast<const GLubyte*>(name)));
}
