#include "gles/driver/driver.h"

#include <cstdint>

namespace gles {

DriverTable driver;

namespace {

enum Need { OPTIONAL, REQUIRED };

// Some drivers of Windows answer 1, 2, 3 or -1 for a name that they do not know.
bool isFunction(const void* address) {
  const auto value = reinterpret_cast<std::intptr_t>(address);
  return value != -1 && (value < 0 || value > 3);
}

template <class Function>
bool loadFunction(void* (*getProcAddress)(const char*), Function& function, const char* name,
                  const char* alternative) {
  void* address = getProcAddress(name);
  if (!isFunction(address) && alternative) {
    address = getProcAddress(alternative);
  }
  function.pointer =
      isFunction(address) ? reinterpret_cast<typename Function::Pointer>(address) : nullptr;
  return function.pointer != nullptr;
}

}  // namespace

bool loadDriver(void* (*getProcAddress)(const char*)) {
  bool complete = true;
#define VARNEL_LOAD_MEMBER(need, result, name, alternative, parameters)                     \
  if (!loadFunction(getProcAddress, driver.name, #name, alternative) && need == REQUIRED) { \
    complete = false;                                                                       \
  }
  VARNEL_DRIVER_FUNCTIONS(VARNEL_LOAD_MEMBER)
#undef VARNEL_LOAD_MEMBER
  return complete;
}

}  // namespace gles
