#include <mutex>
#include <new>

#include "egl/backend/thread_value.h"
#include "egl/shim/shim.h"

namespace {

std::recursive_mutex& turnMutex() {
  // Never destroyed: threads may end after static objects have gone.
  static auto* mutex = new std::recursive_mutex();
  return *mutex;
}

EGLShimLocals* allLocals = nullptr;

void freeLocals(EGLShimLocals* locals) {
  freeConfigList(*locals);
  (locals->prev ? locals->prev->next : allLocals) = locals->next;
  if (locals->next) {
    locals->next->prev = locals->prev;
  }
  delete locals;
}

/// Releases what the ending thread has current, so that another may take it.
void releaseCurrentOf(const EGLShimLocals& locals) {
  const EglBackend& backend = eglBackend();
  if (locals.drawSurface &&
      backend.getCurrentSurface(EGL_DRAW) == locals.drawSurface->backendSurface) {
    backend.makeCurrent(backend.getCurrentDisplay(), EGL_NO_SURFACE, EGL_NO_SURFACE,
                        EGL_NO_CONTEXT);
  }
}

/// Called on the thread with its record.
void endThread(void* record) {
  auto* locals = static_cast<EGLShimLocals*>(record);
  ShimTurn turn;
  releaseCurrentOf(*locals);
  freeLocals(locals);
}

}  // namespace

ShimTurn::ShimTurn() {
  turnMutex().lock();
}

ShimTurn::~ShimTurn() {
  turnMutex().unlock();
}

EGLShimLocals* shimLocals() {
  return static_cast<EGLShimLocals*>(portThreadValue());
}

EGLShimLocals* ensureShimLocals() {
  if (EGLShimLocals* present = shimLocals()) {
    return present;
  }
  auto* made = new (std::nothrow) EGLShimLocals();
  if (!made || !portSetThreadValue(made, endThread)) {
    delete made;
    return nullptr;
  }
  made->next = allLocals;
  if (allLocals) {
    allLocals->prev = made;
  }
  allLocals = made;
  return made;
}

void dropShimLocals() {
  if (EGLShimLocals* present = shimLocals()) {
    portSetThreadValue(nullptr, endThread);
    freeLocals(present);
  }
}

EGLBoolean shimFail(EGLint error) {
  if (EGLShimLocals* locals = shimLocals()) {
    locals->error = error;
  }
  return EGL_FALSE;
}

bool isCurrentSurface(const ShimSurface& surface) {
  for (const EGLShimLocals* locals = allLocals; locals; locals = locals->next) {
    if (locals->drawSurface == &surface || locals->readSurface == &surface) {
      return true;
    }
  }
  return false;
}

void forgetCurrentSurface(const ShimSurface& surface) {
  for (EGLShimLocals* locals = allLocals; locals; locals = locals->next) {
    if (locals->drawSurface == &surface) {
      locals->drawSurface = nullptr;
    }
    if (locals->readSurface == &surface) {
      locals->readSurface = nullptr;
    }
  }
}
