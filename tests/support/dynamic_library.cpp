#include "tests/support/dynamic_library.h"

#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace varnel_test {

DynamicLibrary::DynamicLibrary(const std::string& name) : path(name) {
#ifdef _WIN32
  library = reinterpret_cast<void*>(LoadLibraryA(path.c_str()));
  const std::string reason = "error " + std::to_string(GetLastError());
#else
  library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  const char* text = library ? nullptr : dlerror();
  const std::string reason = text ? text : "";
#endif
  if (!library) {
    throw std::runtime_error(path + ": " + reason);
  }
}

void* DynamicLibrary::address(const std::string& name) const {
#ifdef _WIN32
  void* found =
      reinterpret_cast<void*>(GetProcAddress(reinterpret_cast<HMODULE>(library), name.c_str()));
#else
  void* found = dlsym(library, name.c_str());
#endif
  if (!found) {
    throw std::runtime_error(path + " does not show " + name);
  }
  return found;
}

}  // namespace varnel_test
