#ifndef VARNEL_TESTS_SUPPORT_NATIVE_CLIENT_H
#define VARNEL_TESTS_SUPPORT_NATIVE_CLIENT_H

#include <EGL/egl.h>

#include <bit>
#include <cstdint>
#include <memory>
#include <string>

/// Native handles as plain numbers, whatever type the published headers give them here.
inline EGLNativeWindowType nativeWindow(std::uintptr_t id) {
  return std::bit_cast<EGLNativeWindowType>(id);
}
inline EGLNativePixmapType nativePixmap(std::uintptr_t id) {
  return std::bit_cast<EGLNativePixmapType>(id);
}
inline std::uintptr_t idOf(EGLNativeWindowType window) {
  return std::bit_cast<std::uintptr_t>(window);
}

/// Another user of the window system beside the library: it looks at windows, closes them, and owns
/// windows and bitmaps that the library is given. Ids are native handles. Each window system
/// defines these functions; on X11 the client has a connection of its own.
class NativeClient {
 public:
  NativeClient();
  ~NativeClient();
  NativeClient(const NativeClient&) = delete;
  NativeClient& operator=(const NativeClient&) = delete;

  /// A native display on which the window can be drawn to.
  std::uintptr_t displayOf(std::uintptr_t window) const;

  /// False where the screen does not show what OpenGL draws into windows inside others.
  static bool showsOpenGlOfChildren();
  /// Colour 0xRRGGBB that the screen shows at a place counted from the window's upper left corner.
  std::uint32_t pixel(std::uintptr_t window, int x, int y);
  std::string title(std::uintptr_t window);
  std::string className(std::uintptr_t window);
  /// The process that the window says it belongs to, 0 if it says none.
  long process(std::uintptr_t window);
  bool isShown(std::uintptr_t window);
  bool exists(std::uintptr_t window);

  /// Asks the window to close, as happens when its user clicks its cross.
  void askToClose(std::uintptr_t window);
  void destroyWindow(std::uintptr_t window);
  /// Gives the window's inner part that size.
  void resizeWindow(std::uintptr_t window, int width, int height);

  /// A shown, bare window. It lives as long as the client, unless it is destroyed.
  std::uintptr_t createWindow(int width, int height);

  /// True if the window system has bitmaps of that depth.
  bool hasDepth(int depth);
  /// A bitmap that lives as long as the client, unless it is freed. Its words hold red, green and
  /// blue of 5, 5, 5 bits for a depth of 15; 5, 6, 5 for 16; 8, 8, 8 for 24 and 32.
  std::uintptr_t createPixmap(int width, int height, int depth);
  void freePixmap(std::uintptr_t pixmap);
  /// Writes and reads one pixel in the bitmap's own form, counted from its upper left corner.
  void setRaw(std::uintptr_t pixmap, int x, int y, unsigned long value);
  unsigned long raw(std::uintptr_t pixmap, int x, int y);

 protected:
  struct Connection;
  std::unique_ptr<Connection> connection;
};

#endif
