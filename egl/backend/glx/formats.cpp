#include <cstring>

#include "egl/backend/glx/glx_port.h"

namespace {

constexpr std::size_t formatLimit = 16;

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
    PixelFormat format;
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

PixelFormatRequest requestFor(const PortFormatRequest& wanted) {
  PixelFormatRequest request;
  static_cast<PortFormatRequest&>(request) = wanted;
  return request;
}

PixelFormatRequest requestFor(const PortFormatRequest& wanted, PortConnection& connection,
                              Window window) {
  PixelFormatRequest request = requestFor(wanted);
  request.window = true;
  if (window && !connection.dead) {
    XErrorTrap trap(connection);
    XWindowAttributes attributes;
    if (XGetWindowAttributes(connection.display, window, &attributes)) {
      request.visual = XVisualIDFromVisual(attributes.visual);
    }
  }
  return request;
}

PortFormat chooseFirst(PortConnection& connection, const PixelFormatRequest& request) {
  const std::vector<std::size_t> chosen =
      choosePixelFormats(pixelFormats(connection), request, formatLimit);
  return chosen.empty() ? 0 : chosen[0] + 1;
}

}  // namespace

const std::vector<PixelFormat>& pixelFormats(PortConnection& connection) {
  if (connection.formats.empty() && !connection.dead) {
    XErrorTrap trap(connection);
    readPixelFormats(connection);
    if (!connection.formats.empty()) {
      readExtensions(connection);
    }
  }
  return connection.formats;
}

GLXFBConfig configOf(const PortConnection& connection, PortFormat format) {
  const bool known = format >= 1 && format <= connection.configs.size() && !connection.dead;
  return known ? connection.configs[format - 1] : nullptr;
}

bool portMultisamples(PortConnection* connection, bool doubleBuffer) {
  PixelFormatRequest request;
  request.window = true;
  request.doubleBuffer = doubleBuffer;
  request.sampleBuffers = 1;
  request.samples = 4;
  return chooseFirst(*connection, request) != 0;
}

PortFormat portChooseWindowFormat(PortConnection* connection, PortNativeWindow window,
                                  const PortFormatRequest& wanted) {
  return chooseFirst(*connection, requestFor(wanted, *connection, window));
}

PortFormat portPlainWindowFormat(PortConnection* connection, PortNativeWindow window,
                                 const PortFormatRequest& wanted) {
  const int nearest =
      nearestPixelFormat(pixelFormats(*connection), requestFor(wanted, *connection, window));
  return static_cast<PortFormat>(nearest + 1);
}

PortFormat portChoosePbufferFormat(PortConnection* connection, const PortFormatRequest& wanted) {
  return chooseFirst(*connection, requestFor(wanted));
}
