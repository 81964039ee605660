#include "egl/backend/thread_value.h"

#include <windows.h>

namespace {

using End = void (*)(void* value);

End endThread = nullptr;

/// True once the process is ending, and all threads but this one have been stopped wherever they
/// were: what they held stays locked.
bool isProcessEnding() {
  using ShutdownInProgress = BOOLEAN(WINAPI*)();
  const HMODULE system = GetModuleHandleW(L"ntdll.dll");
  const auto inProgress = reinterpret_cast<ShutdownInProgress>(
      reinterpret_cast<void*>(GetProcAddress(system, "RtlDllShutdownInProgress")));
  return inProgress && inProgress();
}

/// The fiber-local index of the values. Its callback runs outside the loader's lock, unlike a
/// thread_local object's destructor, and before that object's storage would go.
class Values {
 public:
  Values() : index(FlsAlloc(callBack)) {}
  ~Values() {
    endThread = nullptr;  // FlsFree calls back for values that are left
    if (isUsable()) {
      FlsFree(index);
    }
    index = FLS_OUT_OF_INDEXES;
  }
  Values(const Values&) = delete;
  Values& operator=(const Values&) = delete;

  bool isUsable() const { return index != FLS_OUT_OF_INDEXES; }
  void* get() const { return isUsable() ? FlsGetValue(index) : nullptr; }
  bool set(void* value) { return isUsable() && FlsSetValue(index, value); }

 private:
  static void WINAPI callBack(void* value) {
    if (value && endThread && !isProcessEnding()) {
      endThread(value);
    }
  }

  DWORD index;
};

Values values;

}  // namespace

void* portThreadValue() {
  return values.get();
}

bool portSetThreadValue(void* value, void (*end)(void* value)) {
  endThread = end;
  return values.set(value);
}
