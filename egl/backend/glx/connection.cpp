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

void* portGetProcAddress(const char* name) {
  return reinterpret_cast<void*>(glXGetProcAddressARB(reinterpret_cast<const GLubyte*>(name)));
}
