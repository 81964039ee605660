#ifndef VARNEL_EGL_BACKEND_PORT_H
#define VARNEL_EGL_BACKEND_PORT_H

#include <cstdint>

// What the back end needs from the window system. Each port defines these functions in its own
// folder; native handles pass as integers, and a port never dereferences one that is not its own.
// Errors of the window system end in the result of the operation that met them.

/// A connection to the window system, owned by the port.
struct PortConnection;
/// An OpenGL context with its port's data, owned by whoever made it.
struct PortContext;
/// What a context draws into: the drawing side of a window, or a pbuffer.
struct PortDrawable;

using PortNativeDisplay = std::uintptr_t;
using PortNativeWindow = std::uintptr_t;
using PortNativePixmap = std::uintptr_t;

/// The port's own number of a native framebuffer configuration, 0 for none.
using PortFormat = std::uintptr_t;

/// What a surface wants of its format. Sizes are minima.
struct PortFormatRequest {
  bool doubleBuffer = false;  ///< must be equal
  int red = 0, green = 0, blue = 0, alpha = 0;
  int depth = 0, stencil = 0;
  int sampleBuffers = 0, samples = 0;
  bool bindsRgb = false, bindsRgba = false;  ///< pbuffers of it can become textures
};

/// How a native bitmap keeps its pixels. Rows lie from top to bottom, each on a multiple of 4
/// bytes.
struct PortPixmapLayout {
  int width = 0, height = 0;
  int bitsPerPixel = 0;
  std::uint32_t redMask = 0, greenMask = 0, blueMask = 0;  ///< all 0: plain
};

/// What a pbuffer is to be, beside its format. The texture values are those of EGL, 0 for none.
struct PortPbufferRequest {
  int width = 0, height = 0;
  int textureFormat = 0;
  int textureTarget = 0;
  bool mipmap = false;
};

// --- Connections -------------------------------------------------------------------------------

/// The connection for a native display, 0 for the default one; opened at the first call and kept.
/// Null where there is none. A native display other than 0 is trusted where it cannot be tested.
PortConnection* portConnect(PortNativeDisplay native);
/// Frees what the port made on the connection. The default one stays open for the next use; of any
/// other the native display is forgotten.
void portDisconnect(PortConnection* connection);

// --- First initialisation ----------------------------------------------------------------------

/// Makes a hidden 64 by 64 window with an OpenGL context and makes that current, so that functions
/// can be looked up. False with everything undone on failure.
bool portBeginProbe(PortConnection* connection);
/// Releases the probe's context, window and class; nothing is current afterwards.
void portEndProbe(PortConnection* connection);
/// The display adapter's description; valid between begin and end of the probe.
const char* portAdapterName(PortConnection* connection);
/// True if there is an accelerated format for windows with four samples a pixel; valid between
/// begin and end of the probe.
bool portMultisamples(PortConnection* connection, bool doubleBuffer);
/// A function of the desktop's OpenGL by name, core 1.1 names included; null if missing.
void* portGetProcAddress(const char* name);

// --- Pixel formats and contexts ----------------------------------------------------------------

/// The first accelerated format for the window that meets the request; 0 where there is none.
PortFormat portChooseWindowFormat(PortConnection* connection, PortNativeWindow window,
                                  const PortFormatRequest& request);
/// The format that any driver has for the window and that comes nearest to the request, whether or
/// not it meets it; 0 where there is none.
PortFormat portPlainWindowFormat(PortConnection* connection, PortNativeWindow window,
                                 const PortFormatRequest& request);
/// The first accelerated format for pbuffers that meets the request; 0 where there is none.
PortFormat portChoosePbufferFormat(PortConnection* connection, const PortFormatRequest& request);
/// A context for the drawable, which is of the format, sharing objects with all others of the
/// connection that the driver lets it share with. Null on failure. Freed by portDestroyContext.
PortContext* portCreateContext(PortConnection* connection, PortFormat format,
                               PortDrawable* drawable);
void portDestroyContext(PortConnection* connection, PortContext* context);
/// Makes the context current on the two drawables; all null releases what is current.
bool portMakeCurrent(PortConnection* connection, PortDrawable* draw, PortDrawable* read,
                     PortContext* context);

// --- Windows -----------------------------------------------------------------------------------

/// Size of the window's client area; false if there is no such window or its user has closed it.
/// A window that is iconic for now may leave a size that is above 0 as it was.
bool portWindowSize(PortConnection* connection, PortNativeWindow window, int* width, int* height);
/// The drawing side of a window, with the format set on it. Null on failure. Freed by
/// portDestroyDrawable, which leaves the window itself alone.
PortDrawable* portCreateWindowDrawable(PortConnection* connection, PortNativeWindow window,
                                       PortFormat format);
/// Shows the back buffer; false if the window is gone.
bool portSwapBuffers(PortConnection* connection, PortDrawable* drawable);
/// Frames to wait between swaps of the drawable. False where the driver has no way to say so.
bool portSwapInterval(PortConnection* connection, PortDrawable* drawable, int interval);

// --- Pbuffers ----------------------------------------------------------------------------------

/// Null on failure. Freed by portDestroyDrawable.
PortDrawable* portCreatePbuffer(PortConnection* connection, PortFormat format,
                                const PortPbufferRequest& request);
void portDestroyDrawable(PortConnection* connection, PortDrawable* drawable);
/// True where the window system itself can make a texture of a pbuffer; if not, pixels are copied.
bool portBindsTextures(PortConnection* connection);
bool portBindTexImage(PortConnection* connection, PortDrawable* drawable);
bool portReleaseTexImage(PortConnection* connection, PortDrawable* drawable);
bool portSetMipmapLevel(PortConnection* connection, PortDrawable* drawable, int level);

// --- Native bitmaps ----------------------------------------------------------------------------

/// False if there is no such bitmap or its pixels have no form that can be told.
bool portPixmapLayout(PortConnection* connection, PortNativePixmap pixmap,
                      PortPixmapLayout* layout);
/// Copies all rows of the bitmap, in the layout's form, into or out of `rows`.
bool portReadPixmap(PortConnection* connection, PortNativePixmap pixmap,
                    const PortPixmapLayout& layout, void* rows);
bool portWritePixmap(PortConnection* connection, PortNativePixmap pixmap,
                     const PortPixmapLayout& layout, const void* rows);
/// Waits until the window system's own drawing is done; of a connection, where there is one.
void portFlushNative(PortConnection* connection);

#endif
