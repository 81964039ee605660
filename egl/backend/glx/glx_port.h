#ifndef VARNEL_EGL_BACKEND_GLX_GLX_PORT_H
#define VARNEL_EGL_BACKEND_GLX_GLX_PORT_H

#include "egl/backend/glx/pixel_format.h"
#include "egl/backend/port.h"
// X11's headers come after those of the project and the standard library: their macros would
// break them.
#include <string>
#include <vector>

#include <GL/glx.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#undef None
#undef Bool
#undef Status
#undef Success
#undef Always

/// One X display with what the port keeps for it.
struct PortConnection {
  Display* display = nullptr;
  bool own = false;   ///< opened by the port, on which nobody else makes requests
  bool dead = false;  ///< the X server has gone or has closed the connection
  int glxOpcode = 0;  ///< major request code of GLX, 0 without it

  // All configurations in the window system's order; a PortFormat is an index beyond by one.
  std::vector<GLXFBConfig> configs;
  std::vector<PixelFormat> formats;
  GLXContext shareRoot = nullptr;  ///< never current; all contexts share its objects

  Window probeWindow = 0;
  Colormap probeColormap = 0;
  GLXContext probeContext = nullptr;
  std::string adapterName;

  PFNGLXSWAPINTERVALEXTPROC swapIntervalExt = nullptr;
  PFNGLXSWAPINTERVALMESAPROC swapIntervalMesa = nullptr;
  PFNGLXSWAPINTERVALSGIPROC swapIntervalSgi = nullptr;
};

/// All configurations of the connection, read at the first call.
const std::vector<PixelFormat>& pixelFormats(PortConnection& connection);
/// The configuration behind a format; null if there is none or the connection is lost.
GLXFBConfig configOf(const PortConnection& connection, PortFormat format);

struct PortContext {
  GLXContext context = nullptr;
};

struct PortDrawable {
  GLXDrawable id = 0;
  Window window = 0;  ///< 0 for a pbuffer
};

/// Catches the X errors of one connection, and the end of an own one, between its construction and
/// its destruction, and brings the former error handlers back. Errors of other displays go to the
/// former handler. Traps nest.
class XErrorTrap {
 public:
  /// What may be at work inside the trap. Mesa's software driver puts the front buffers of pbuffers
  /// into pixmaps of another depth and takes no notice of the BadMatch; nor does a trap for it.
  enum Work { requests, openGl };

  explicit XErrorTrap(PortConnection& connection, Work work = requests);
  ~XErrorTrap();
  XErrorTrap(const XErrorTrap&) = delete;
  XErrorTrap& operator=(const XErrorTrap&) = delete;

  /// Waits for the server's answers; true if any request since the construction was refused.
  bool failed();
  /// The code of the last error, 0 for none.
  int errorCode() const;

 private:
  PortConnection& connection;
  Work work;
  XErrorTrap* outer;
  XErrorHandler formerHandler;
  XErrorHandler formerChain;
  XIOErrorHandler formerIoHandler;
  XIOErrorHandler formerIoChain;
  int code = 0;

  friend int handleXError(Display* display, XErrorEvent* event);
  friend int handleXIoError(Display* display);
};

/// While a context of an own connection is current, requests that the OpenGL library makes between
/// two calls of the port must not end the process when the window has gone: errors of that
/// connection are swallowed from the first call to the second. Others go to the former handler.
void guardXErrors(PortConnection& connection);
void unguardXErrors();

/// Has Xlib lock the display no more; for one whose connection is lost.
void forgetDisplayLocks(Display* display);

/// True if the window was made by the port and its user has closed it.
bool isClosedNativeWindow(Window window);

#endif
