#ifndef VARNEL_GLES_ES2_SHADER_SOURCE_H
#define VARNEL_GLES_ES2_SHADER_SOURCE_H

#include <string>

namespace gles::es2 {

/// The source that a driver which knows the shading language of OpenGL ES compiles: with a
/// `#version 100` in front unless the source has one.
std::string versionedSource(const std::string& source);

/// The source in the shading language 1.20 of desktop OpenGL: `precision` statements and precision
/// qualifiers are taken out, the macros that OpenGL ES predefines are there, and lines keep their
/// numbers.
std::string desktopSource(const std::string& source);

}  // namespace gles::es2

#endif  // VARNEL_GLES_ES2_SHADER_SOURCE_H
