#include "egl/backend/thread_value.h"

namespace {

struct Slot {
  void* value = nullptr;
  void (*end)(void* value) = nullptr;

  ~Slot() {
    if (value) {
      void* last = value;
      value = nullptr;
      end(last);
    }
  }
};

thread_local Slot slot;

}  // namespace

void* portThreadValue() {
  return slot.value;
}

bool portSetThreadValue(void* value, void (*end)(void* value)) {
  slot.end = end;
  slot.value = value;
  return true;
}
