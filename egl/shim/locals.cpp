#include <mutex>
#include <new>

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

/// The slot of one thread; the record goes with the thread.
struct ThreadSlot {
  EGLShimLocals* record = nullptr;
  ~ThreadSlot() {
    if (record) {
      ShimTurn turn;
      releaseCurrentOf(*record);
      freeLocals(record);
      record = nullptr;
    }
  }
};

thread_local ThreadSlot slot;

}  // namespace

ShimTurn::ShimTurn() {
  turnMutex().lock();
}

ShimTurn::~ShimTurn() {
  turnMutex().unlock();
}

EGLShimLocals* shimLocals() {
  return slot.record;
}

EGLShimLocals* ensureShimLocals() {
  if (!slot.record) {
    slot.record = new (std::nothrow) EGLShimLocals();
    if (slot.record) {
      slot.record->next = allLocals;
      if (allLocals) {
        allLocals->prev = slot.record;
      }
      allLocals = slot.record;
    }
  }
  return slot.record;
}

void dropShimLocals() {
  if (slot.record) {
    freeLocals(slot.record);
    slot.record = nullptr;
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
