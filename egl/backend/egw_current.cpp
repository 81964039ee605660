#include <new>

#include "egl/backend/egw.h"

namespace {

/// The display whose drawable is borrowed; null while none is.
const EgwDisplay* borrowedFrom = nullptr;

/// Frees the records that were destroyed while they were current.
void freeDoomed(EgwDisplay& display, EgwSurface* draw, EgwSurface* read, EgwContext* context) {
  if (draw && draw->doomed) {
    egwFreeSurface(display, draw);
  }
  if (read && read != draw && read->doomed) {
    egwFreeSurface(display, read);
  }
  if (context && context->doomed) {
    egwFreeContext(display, context);
  }
}

/// Replaces the current records and frees those of the former ones that waited for it.
void setCurrent(EgwDisplay* display, EgwSurface* draw, EgwSurface* read, EgwContext* context) {
  EgwDisplay* formerDisplay = egw.currentDisplay;
  EgwSurface* formerDraw = egw.currentDraw;
  EgwSurface* formerRead = egw.currentRead;
  EgwContext* formerContext = egw.currentContext;
  egw.es1.setCurrentContextState(context ? context->es1State : nullptr);
  egw.es2.setCurrentContextState(context ? context->es2State : nullptr);
  egw.currentDisplay = display;
  egw.currentDraw = draw;
  egw.currentRead = read;
  egw.currentContext = context;
  if (formerDisplay) {
    freeDoomed(*formerDisplay, formerDraw, formerRead, formerContext);
  }
}

bool makePortCurrent(const EgwDisplay& display, const EgwSurface& draw, const EgwSurface& read) {
  return portMakeCurrent(display.connection, draw.drawable, read.drawable, draw.renderContext);
}

/// Makes the recorded current surfaces current in the window system again, or none.
void restorePortCurrent(PortConnection* used) {
  if (egw.currentDisplay && !(egw.currentDraw->lost || egw.currentRead->lost) &&
      makePortCurrent(*egw.currentDisplay, *egw.currentDraw, *egw.currentRead)) {
    return;
  }
  portMakeCurrent(used, nullptr, nullptr, nullptr);
}

void applySwapInterval(const EgwDisplay& display, EgwSurface& surface) {
  if (surface.type == EGW_WINDOW && surface.swapInterval != egw.swapInterval) {
    // A driver without a way to set it keeps its own.
    portSwapInterval(display.connection, surface.drawable, egw.swapInterval);
    surface.swapInterval = egw.swapInterval;
  }
}

}  // namespace

bool egwBorrowSurface(const EgwDisplay& display, EgwSurface& surface) {
  if (!surface.renderContext || surface.lost) {
    return false;
  }
  if (&surface == egw.currentDraw && &surface == egw.currentRead) {
    return true;
  }
  if (!makePortCurrent(display, surface, surface)) {
    restorePortCurrent(display.connection);
    return false;
  }
  borrowedFrom = &display;
  return true;
}

void egwReturnSurface() {
  if (borrowedFrom) {
    restorePortCurrent(borrowedFrom->connection);
    borrowedFrom = nullptr;
  }
}

void egwReleaseCurrent() {
  if (!egw.currentDisplay) {
    return;
  }
  portMakeCurrent(egw.currentDisplay->connection, nullptr, nullptr, nullptr);
  setCurrent(nullptr, nullptr, nullptr, nullptr);
}

void egwFreeContext(EgwDisplay& display, EgwContext* context) {
  egwUnlink(display.contexts, context);
  egw.es1.destroyContextState(context->es1State);
  egw.es2.destroyContextState(context->es2State);
  delete context;
}

EGLContext egwCreateContext(EGLDisplay handle, EGLConfig config, EGLContext shareContext,
                            const EGLint* attributes) {
  EgwDisplay* display = egwFindDisplay(handle);
  const EgwConfig* row = display ? egwFindConfig(config) : nullptr;
  if (!row || (shareContext != EGL_NO_CONTEXT && !egwFindContext(*display, shareContext))) {
    return EGL_NO_CONTEXT;
  }
  for (const EGLint* pair = attributes; pair && pair[0] != EGL_NONE; pair += 2) {
    if (pair[0] != EGL_CONTEXT_CLIENT_VERSION || (pair[1] != 1 && pair[1] != 2)) {
      egwFail(EGL_BAD_ATTRIBUTE);
      return EGL_NO_CONTEXT;
    }
  }
  auto* context = new (std::nothrow) EgwContext();
  if (!context) {
    egwFail(EGL_BAD_ALLOC);
    return EGL_NO_CONTEXT;
  }
  context->configIndex = row->id;
  context->es1State = egw.es1.createContextState();
  context->es2State = egw.es2.createContextState();
  egwLink(display->contexts, context);
  if (!context->es1State || !context->es2State) {
    egwFreeContext(*display, context);
    egwFail(EGL_BAD_ALLOC);
    return EGL_NO_CONTEXT;
  }
  egwSucceed();
  return context;
}

EGLBoolean egwDestroyContext(EGLDisplay handle, EGLContext contextHandle) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwContext* context = display ? egwFindContext(*display, contextHandle) : nullptr;
  if (!context) {
    return EGL_FALSE;
  }
  if (context == egw.currentContext) {
    context->doomed = true;
  } else {
    egwFreeContext(*display, context);
  }
  return egwSucceed();
}

EGLBoolean egwMakeCurrent(EGLDisplay handle, EGLSurface drawHandle, EGLSurface readHandle,
                          EGLContext contextHandle) {
  EgwDisplay* display = egwFindDisplay(handle);
  if (!display) {
    return EGL_FALSE;
  }
  if (drawHandle == EGL_NO_SURFACE && readHandle == EGL_NO_SURFACE &&
      contextHandle == EGL_NO_CONTEXT) {
    egwReleaseCurrent();
    return egwSucceed();
  }
  if (drawHandle == EGL_NO_SURFACE || readHandle == EGL_NO_SURFACE ||
      contextHandle == EGL_NO_CONTEXT) {
    return egwFail(EGL_BAD_MATCH);
  }
  EgwSurface* draw = egwFindSurface(*display, drawHandle);
  EgwSurface* read = draw ? egwFindSurface(*display, readHandle) : nullptr;
  EgwContext* context = read ? egwFindContext(*display, contextHandle) : nullptr;
  if (!context) {
    return EGL_FALSE;
  }
  if (draw->configIndex != context->configIndex || read->configIndex != context->configIndex) {
    return egwFail(EGL_BAD_MATCH);
  }
  if (!draw->renderContext || !egwRefreshSurface(*display, *draw) ||
      !egwRefreshSurface(*display, *read)) {
    return egwFail(EGL_BAD_SURFACE);
  }
  if (!makePortCurrent(*display, *draw, *read)) {
    restorePortCurrent(display->connection);
    return egwFail(EGL_BAD_ACCESS);
  }
  setCurrent(display, draw, read, context);
  applySwapInterval(*display, *draw);
  return egwSucceed();
}

EGLContext egwGetCurrentContext() {
  egwSucceed();
  return egw.currentContext ? egw.currentContext : EGL_NO_CONTEXT;
}

EGLSurface egwGetCurrentSurface(EGLint which) {
  if (which != EGL_DRAW && which != EGL_READ) {
    egwFail(EGL_BAD_PARAMETER);
    return EGL_NO_SURFACE;
  }
  egwSucceed();
  return which == EGL_DRAW ? egw.currentDraw : egw.currentRead;
}

EGLDisplay egwGetCurrentDisplay() {
  egwSucceed();
  return egw.currentDisplay ? egw.currentDisplay->handle : EGL_NO_DISPLAY;
}

EGLBoolean egwQueryContext(EGLDisplay handle, EGLContext contextHandle, EGLint attribute,
                           EGLint* value) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwContext* context = display ? egwFindContext(*display, contextHandle) : nullptr;
  if (!context) {
    return EGL_FALSE;
  }
  if (!value) {
    return egwFail(EGL_BAD_PARAMETER);
  }
  switch (attribute) {
    case EGL_CONFIG_ID:
      *value = egw.configs[static_cast<std::size_t>(context->configIndex)].id;
      break;
    case EGL_CONTEXT_CLIENT_TYPE:
      *value = EGL_OPENGL_ES_API;
      break;
    case EGL_CONTEXT_CLIENT_VERSION:
      *value = 1;
      break;
    case EGL_RENDER_BUFFER:
      *value = context == egw.currentContext ? egw.currentDraw->renderBuffer : EGL_NONE;
      break;
    default:
      return egwFail(EGL_BAD_ATTRIBUTE);
  }
  return egwSucceed();
}

EGLBoolean egwWaitClient() {
  if (egw.currentContext) {
    egw.es1.glFinish();
    egw.es2.glFinish();
  }
  return egwSucceed();
}

EGLBoolean egwWaitNative(EGLint engine) {
  if (engine != EGL_CORE_NATIVE_ENGINE) {
    return egwFail(EGL_BAD_PARAMETER);
  }
  portFlushNative(egw.currentDisplay ? egw.currentDisplay->connection : nullptr);
  return egwCopyIn() ? egwSucceed() : egwFail(EGL_BAD_CURRENT_SURFACE);
}

EGLBoolean egwSwapInterval(EGLDisplay handle, EGLint interval) {
  if (!egwFindDisplay(handle)) {
    return EGL_FALSE;
  }
  if (!egw.currentContext) {
    return egwFail(EGL_BAD_CONTEXT);
  }
  // The range that all configurations tell.
  egw.swapInterval = interval < 0 ? 0 : interval > 1 ? 1 : interval;
  if (!egw.currentDraw->lost) {
    applySwapInterval(*egw.currentDisplay, *egw.currentDraw);
  }
  return egwSucceed();
}

EGLBoolean egwSwapBuffers(EGLDisplay handle, EGLSurface surfaceHandle) {
  EgwDisplay* display = egwFindDisplay(handle);
  EgwSurface* surface = display ? egwFindSurface(*display, surfaceHandle) : nullptr;
  if (!surface) {
    return EGL_FALSE;
  }
  if (surface->type != EGW_WINDOW) {
    return egwSucceed();
  }
  if (!egwRefreshSurface(*display, *surface)) {
    return egwFail(EGL_BAD_SURFACE);
  }
  if (!egwBorrowSurface(*display, *surface)) {
    return egwFail(EGL_BAD_ACCESS);
  }
  const bool shown = portSwapBuffers(display->connection, surface->drawable);
  egwReturnSurface();
  if (!shown) {
    // Most likely the window has gone between the look at it and the swap.
    return egwFail(egwRefreshSurface(*display, *surface) ? EGL_BAD_ALLOC : EGL_BAD_SURFACE);
  }
  return egwSucceed();
}
