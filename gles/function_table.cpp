#include "gles/function_table.h"

namespace {
void (*copyBackHook)() = nullptr;
}

void setCopyBackHook(void (*hook)()) {
  copyBackHook = hook;
}

void runCopyBackHook() {
  if (copyBackHook) {
    copyBackHook();
  }
}
