#ifndef VARNEL_GLES_DRIVER_DRIVER_H
#define VARNEL_GLES_DRIVER_DRIVER_H

#include <cstddef>

#include "gles/driver/driver_functions.h"

#if defined(_WIN32)
#define VARNEL_DRIVER_CALL __stdcall
#else
#define VARNEL_DRIVER_CALL
#endif

namespace gles {

/// The types of desktop OpenGL, so that its headers are seen nowhere.
namespace desktop {
using GLenum = unsigned int;
using GLbitfield = unsigned int;
using GLuint = unsigned int;
using GLint = int;
using GLsizei = int;
using GLboolean = unsigned char;
using GLubyte = unsigned char;
using GLchar = char;
using GLfloat = float;
using GLdouble = double;
using GLvoid = void;
using GLintptr = std::ptrdiff_t;
using GLsizeiptr = std::ptrdiff_t;
}  // namespace desktop

template <class Signature>
class DriverFunction;

/// A pointer to one function of the driver. A call while it is null does nothing and answers zero.
template <class Result, class... Parameters>
class DriverFunction<Result(Parameters...)> {
 public:
  using Pointer = Result(VARNEL_DRIVER_CALL*)(Parameters...);

  Result operator()(Parameters... parameters) const {
    if (pointer) {
      return pointer(parameters...);
    }
    return Result();
  }

  explicit operator bool() const { return pointer != nullptr; }

  Pointer pointer = nullptr;
};

namespace desktop {
/// The driver's functions, one member for each under its desktop name. All null at first.
struct DriverTable {
#define VARNEL_DECLARE_MEMBER(need, result, name, alternative, parameters) \
  DriverFunction<result parameters> name;
  VARNEL_DRIVER_FUNCTIONS(VARNEL_DECLARE_MEMBER)
#undef VARNEL_DECLARE_MEMBER
};
}  // namespace desktop

using desktop::DriverTable;

/// The table that the OpenGL ES layers call.
extern DriverTable driver;

/// Fills `driver` through `getProcAddress`, the window system's look-up of OpenGL functions by
/// name, while a context is current. A function that is found under neither of its names stays
/// null. Answers whether all the required ones were found.
bool loadDriver(void* (*getProcAddress)(const char*));

}  // namespace gles

using gles::driver;
using gles::loadDriver;

#endif  // VARNEL_GLES_DRIVER_DRIVER_H
