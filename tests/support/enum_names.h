#ifndef VARNEL_TESTS_SUPPORT_ENUM_NAMES_H
#define VARNEL_TESTS_SUPPORT_ENUM_NAMES_H

#include <string>

/// The published name of an OpenGL enumerant of 0x100 or more, such as "GL_FOG"; its number in
/// hexadecimal if it is unknown.
std::string enumName(unsigned value);

#endif  // VARNEL_TESTS_SUPPORT_ENUM_NAMES_H
