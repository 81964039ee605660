#ifndef VARNEL_TESTS_SUPPORT_DYNAMIC_LIBRARY_H
#define VARNEL_TESTS_SUPPORT_DYNAMIC_LIBRARY_H

#include <string>

namespace varnel_test {

/// A shared library, loaded for the rest of the process.
class DynamicLibrary {
 public:
  /// Throws std::runtime_error with the system's reason if there is no such library.
  explicit DynamicLibrary(const std::string& path);

  /// Throws std::runtime_error if the library does not show the name.
  template <class Function>
  Function* find(const std::string& name) const {
    return reinterpret_cast<Function*>(address(name));
  }

 private:
  void* address(const std::string& name) const;

  std::string path;
  void* library = nullptr;
};

}  // namespace varnel_test

#endif
