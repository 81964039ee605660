#ifndef VARNEL_TESTS_SUPPORT_X_CLIENT_H
#define VARNEL_TESTS_SUPPORT_X_CLIENT_H

#include <cstdint>
#include <memory>
#include <string>

/// Another program on the X server, with a connection of its own: it looks at windows, closes them,
/// and owns windows and pixmaps that the library is given. Ids are X's.
class XClient {
 public:
  XClient();
  ~XClient();
  XClient(const XClient&) = delete;
  XClient& operator=(const XClient&) = delete;

  /// The connection as a native display.
  void* display() const;

  /// Colour 0xRRGGBB that a drawable shows at a place counted from its upper left corner.
  std::uint32_t pixel(std::uintptr_t drawable, int x, int y);
  std::string title(std::uintptr_t window);
  std::string className(std::uintptr_t window);
  /// _NET_WM_PID, 0 if there is none.
  long process(std::uintptr_t window);
  bool isMapped(std::uintptr_t window);
  bool exists(std::uintptr_t window);

  /// Asks the window to close, as a window manager does when its user clicks its cross.
  void sendDelete(std::uintptr_t window);
  void destroyWindow(std::uintptr_t window);
  void resizeWindow(std::uintptr_t window, int width, int height);
  /// Ends the connection that owns the resource, as a user does who loses patience.
  void killOwner(std::uintptr_t resource);

  /// Makes a request that the server refuses, and waits for the error.
  void provokeError();

  /// A mapped window of the screen's default visual, or of the first other one of the given depth.
  std::uintptr_t createWindow(int width, int height);
  std::uintptr_t createWindowOfDepth(int width, int height, int depth);

  /// True if the screen has pixmaps of that depth.
  bool hasDepth(int depth);
  std::uintptr_t createPixmap(int width, int height, int depth);
  void freePixmap(std::uintptr_t pixmap);
  /// Writes and reads one pixel in the pixmap's own form.
  void setRaw(std::uintptr_t pixmap, int x, int y, unsigned long value);
  unsigned long raw(std::uintptr_t pixmap, int x, int y);

 private:
  struct Connection;
  std::unique_ptr<Connection> connection;
};

#endif
