#include "egl/backend/glx/glx_port.h"

namespace {

XErrorTrap* innermostTrap = nullptr;
PortConnection* guarded = nullptr;
XErrorHandler chain = nullptr;
XIOErrorHandler ioChain = nullptr;

/// Waits until the server has answered every request so far.
void settle(const PortConnection& connection) {
  if (!connection.dead &&
      LastKnownRequestProcessed(connection.display) + 1 != NextRequest(connection.display)) {
    XSync(connection.display, False);
  }
}

}  // namespace

/// The server has closed a connection. By default Xlib ends the process for it; for an own
/// connection the note that its exit handler takes is enough.
int handleXIoError(Display* display) {
  for (XErrorTrap* trap = innermostTrap; trap; trap = trap->outer) {
    if (trap->connection.own && trap->connection.display == display) {
      return 0;
    }
  }
  if (guarded && guarded->display == display) {
    return 0;
  }
  return ioChain ? ioChain(display) : 0;
}

int handleXError(Display* display, XErrorEvent* event) {
  for (XErrorTrap* trap = innermostTrap; trap; trap = trap->outer) {
    if (trap->connection.display == display) {
      const bool ofDriver = trap->work == XErrorTrap::openGl && event->error_code == BadMatch &&
                            event->request_code != trap->connection.glxOpcode;
      if (!ofDriver) {
        trap->code = event->error_code;
      }
      return 0;
    }
  }
  if (guarded && guarded->display == display) {
    return 0;
  }
  return chain ? chain(display, event) : 0;
}

XErrorTrap::XErrorTrap(PortConnection& connection, Work work)
    : connection(connection), work(work), outer(innermostTrap) {
  // Errors that are still under way are not the trap's.
  settle(connection);
  formerHandler = XSetErrorHandler(handleXError);
  formerChain = chain;
  if (formerHandler != handleXError) {
    chain = formerHandler;
  }
  formerIoHandler = XSetIOErrorHandler(handleXIoError);
  formerIoChain = ioChain;
  if (formerIoHandler != handleXIoError) {
    ioChain = formerIoHandler;
  }
  innermostTrap = this;
}

XErrorTrap::~XErrorTrap() {
  settle(connection);
  innermostTrap = outer;
  XSetErrorHandler(formerHandler);
  chain = formerChain;
  XSetIOErrorHandler(formerIoHandler);
  ioChain = formerIoChain;
}

bool XErrorTrap::failed() {
  settle(connection);
  return code != 0 || connection.dead;
}

int XErrorTrap::errorCode() const {
  return code;
}

void guardXErrors(PortConnection& connection) {
  if (!connection.own || guarded == &connection) {
    return;
  }
  guarded = &connection;
  XErrorHandler former = XSetErrorHandler(handleXError);
  if (former != handleXError) {
    chain = former;
  }
  XIOErrorHandler formerIo = XSetIOErrorHandler(handleXIoError);
  if (formerIo != handleXIoError) {
    ioChain = formerIo;
  }
}

void unguardXErrors() {
  if (!guarded) {
    return;
  }
  guarded = nullptr;
  XErrorHandler present = XSetErrorHandler(chain);
  if (present != handleXError) {
    // Somebody else has taken over since: theirs stays.
    XSetErrorHandler(present);
  }
  XIOErrorHandler presentIo = XSetIOErrorHandler(ioChain);
  if (presentIo != handleXIoError) {
    XSetIOErrorHandler(presentIo);
  }
}
