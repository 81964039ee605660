#include "egl/backend/glx/glx_port.h"

PortContext* portCreateContext(PortConnection* connection, PortFormat format, PortDrawable*) {
  GLXFBConfig config = configOf(*connection, format);
  if (!config) {
    return nullptr;
  }
  XErrorTrap trap(*connection);
  Display* display = connection->display;
  if (!connection->shareRoot) {
    connection->shareRoot = glXCreateNewContext(display, config, GLX_RGBA_TYPE, nullptr, True);
  }
  GLXContext context =
      glXCreateNewContext(display, config, GLX_RGBA_TYPE, connection->shareRoot, True);
  const bool refused = trap.failed();
  if (!context) {
    return nullptr;
  }
  if (refused) {
    glXDestroyContext(display, context);
    return nullptr;
  }
  return new PortContext{context};
}

void portDestroyContext(PortConnection* connection, PortContext* context) {
  if (!context) {
    return;
  }
  if (!connection->dead) {
    XErrorTrap trap(*connection);
    glXDestroyContext(connection->display, context->context);
  }
  delete context;
}

bool portMakeCurrent(PortConnection* connection, PortDrawable* draw, PortDrawable* read,
                     PortContext* context) {
  if (connection->dead) {
    return false;
  }
  bool done = false;
  {
    XErrorTrap trap(*connection, XErrorTrap::openGl);
    done = glXMakeContextCurrent(connection->display, draw ? draw->id : 0, read ? read->id : 0,
                                 context ? context->context : nullptr) &&
           !trap.failed();
  }
  if (context && done) {
    guardXErrors(*connection);
  } else if (!context) {
    unguardXErrors();
  }
  return done;
}

bool portWindowSize(PortConnection* connection, PortNativeWindow window, int* width, int* height) {
  if (connection->dead || isClosedNativeWindow(window)) {
    return false;
  }
  XErrorTrap trap(*connection);
  XWindowAttributes attributes;
  if (!XGetWindowAttributes(connection->display, window, &attributes)) {
    return false;
  }
  *width = attributes.width;
  *height = attributes.height;
  return true;
}

PortDrawable* portCreateWindowDrawable(PortConnection* connection, PortNativeWindow window,
                                       PortFormat format) {
  GLXFBConfig config = configOf(*connection, format);
  if (!config) {
    return nullptr;
  }
  XErrorTrap trap(*connection);
  // A GLXWindow and not the bare window: its back buffer stays while another one is current.
  const GLXWindow id = glXCreateWindow(connection->display, config, window, nullptr);
  if (trap.failed() || !id) {
    return nullptr;
  }
  return new PortDrawable{id, window};
}

bool portSwapBuffers(PortConnection* connection, PortDrawable* drawable) {
  if (connection->dead) {
    return false;
  }
  XErrorTrap trap(*connection, XErrorTrap::openGl);
  glXSwapBuffers(connection->display, drawable->id);
  return !trap.failed();
}

bool portSwapInterval(PortConnection* connection, PortDrawable* drawable, int interval) {
  if (connection->dead) {
    return false;
  }
  XErrorTrap trap(*connection, XErrorTrap::openGl);
  if (connection->swapIntervalExt) {
    connection->swapIntervalExt(connection->display, drawable->id, interval);
    return !trap.failed();
  }
  if (connection->swapIntervalMesa) {
    return connection->swapIntervalMesa(static_cast<unsigned>(interval)) == 0;
  }
  // The oldest extension knows no interval of 0.
  return connection->swapIntervalSgi && interval > 0 && connection->swapIntervalSgi(interval) == 0;
}

PortDrawable* portCreatePbuffer(PortConnection* connection, PortFormat format,
                                const PortPbufferRequest& request) {
  GLXFBConfig config = configOf(*connection, format);
  if (!config) {
    return nullptr;
  }
  XErrorTrap trap(*connection);
  const int attributes[] = {GLX_PBUFFER_WIDTH,
                            request.width,
                            GLX_PBUFFER_HEIGHT,
                            request.height,
                            GLX_LARGEST_PBUFFER,
                            False,
                            GLX_PRESERVED_CONTENTS,
                            True,
                            0};
  const GLXPbuffer id = glXCreatePbuffer(connection->display, config, attributes);
  if (trap.failed() || !id) {
    return nullptr;
  }
  return new PortDrawable{id, 0};
}

void portDestroyDrawable(PortConnection* connection, PortDrawable* drawable) {
  if (!drawable) {
    return;
  }
  if (!connection->dead) {
    XErrorTrap trap(*connection);
    if (drawable->window) {
      glXDestroyWindow(connection->display, drawable->id);
    } else {
      glXDestroyPbuffer(connection->display, drawable->id);
    }
  }
  delete drawable;
}

bool portBindsTextures(PortConnection*) {
  // GLX_EXT_texture_from_pixmap takes pixmaps only.
  return false;
}

bool portBindTexImage(PortConnection*, PortDrawable*) {
  return false;
}

bool portReleaseTexImage(PortConnection*, PortDrawable*) {
  return false;
}

bool portSetMipmapLevel(PortConnection*, PortDrawable*, int) {
  return false;
}
