// Shader objects: sources in the language of OpenGL ES, and the commands that desktop OpenGL lacks.

#include "gles/es2/shader_source.h"

#include <algorithm>
#include <cstring>

#include "gles/driver/driver.h"
#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

namespace {

ShaderSource* findSource(unsigned shader) {
  const auto found =
      std::find_if(current->shaderSources.begin(), current->shaderSources.end(),
                   [shader](const ShaderSource& source) { return source.shader == shader; });
  return found == current->shaderSources.end() ? nullptr : &*found;
}

void forgetSource(unsigned shader) {
  std::erase_if(current->shaderSources,
                [shader](const ShaderSource& source) { return source.shader == shader; });
}

bool driverHasExtension(const char* name) {
  const auto* text = reinterpret_cast<const char*>(driver.glGetString(GL_EXTENSIONS));
  const std::size_t length = std::strlen(name);
  for (const char* at = text; at && (at = std::strstr(at, name)); at += length) {
    const bool begins = at == text || at[-1] == ' ';
    if (begins && (at[length] == ' ' || at[length] == '\0')) {
      return true;
    }
  }
  return false;
}

std::string joined(GLsizei count, const GLchar* const* strings, const GLint* lengths) {
  std::string text;
  for (GLsizei i = 0; i < count; ++i) {
    if (lengths && lengths[i] >= 0) {
      text.append(strings[i], static_cast<std::size_t>(lengths[i]));
    } else {
      text.append(strings[i]);
    }
  }
  return text;
}

}  // namespace

GLuint glCreateShader(GLenum type) {
  const GLuint shader = driver.glCreateShader(type);
  if (current) {
    forgetSource(shader);
  }
  return shader;
}

void glDeleteShader(GLuint shader) {
  driver.glDeleteShader(shader);
  // A shader that is still attached lives on, with its source.
  if (current && findSource(shader) && !driver.glIsShader(shader)) {
    forgetSource(shader);
  }
}

void glShaderSource(GLuint shader, GLsizei count, const GLchar* const* string,
                    const GLint* length) {
  if (!current || !driver.glShaderSource) {
    return;
  }
  if (count < 0 || !string || !driver.glIsShader(shader)) {
    driver.glShaderSource(shader, count, string, length);  // The driver refuses it.
    return;
  }
  const std::string text = joined(count, string, length);
  const std::string translated =
      driverHasExtension("GL_ARB_ES2_compatibility") ? versionedSource(text) : desktopSource(text);
  const GLchar* whole = translated.c_str();
  driver.glShaderSource(shader, 1, &whole, nullptr);
  if (ShaderSource* source = findSource(shader)) {
    source->text = text;
  } else {
    current->shaderSources.push_back({shader, text});
  }
}

void glGetShaderSource(GLuint shader, GLsizei bufSize, GLsizei* length, GLchar* source) {
  if (!current) {
    return;
  }
  if (bufSize < 0) {
    setError(GL_INVALID_VALUE);
    return;
  }
  const ShaderSource* found = findSource(shader);
  if (!found && !driver.glIsShader(shader)) {
    GLint ignored = 0;
    driver.glGetShaderiv(shader, GL_SHADER_TYPE, &ignored);  // The driver refuses it.
    return;
  }
  const std::size_t room = bufSize > 0 ? static_cast<std::size_t>(bufSize) - 1 : 0;
  const std::size_t copied = found ? std::min(found->text.size(), room) : 0;
  if (bufSize > 0 && source) {
    if (found) {
      std::memcpy(source, found->text.data(), copied);
    }
    source[copied] = '\0';
  }
  if (length) {
    *length = static_cast<GLsizei>(copied);
  }
}

void glGetShaderiv(GLuint shader, GLenum pname, GLint* params) {
  const ShaderSource* source = current ? findSource(shader) : nullptr;
  if (source && pname == GL_SHADER_SOURCE_LENGTH) {
    *params = source->text.empty() ? 0 : static_cast<GLint>(source->text.size() + 1);
  } else {
    driver.glGetShaderiv(shader, pname, params);
  }
}

void glGetShaderPrecisionFormat(GLenum shadertype, GLenum precisiontype, GLint* range,
                                GLint* precision) {
  if (!current) {
    return;
  }
  const bool isFloat = precisiontype == GL_LOW_FLOAT || precisiontype == GL_MEDIUM_FLOAT ||
                       precisiontype == GL_HIGH_FLOAT;
  const bool isInt =
      precisiontype == GL_LOW_INT || precisiontype == GL_MEDIUM_INT || precisiontype == GL_HIGH_INT;
  if ((shadertype != GL_VERTEX_SHADER && shadertype != GL_FRAGMENT_SHADER) ||
      (!isFloat && !isInt)) {
    setError(GL_INVALID_ENUM);
    return;
  }
  // Desktop OpenGL has one precision: floats of 32 bits, and integers of as many.
  range[0] = isFloat ? 127 : 31;
  range[1] = isFloat ? 127 : 30;
  *precision = isFloat ? 23 : 0;
}

void glReleaseShaderCompiler() {}

void glShaderBinary(GLsizei count, const GLuint*, GLenum, const void*, GLsizei length) {
  if (current) {
    // There is no binary format that could be known.
    setError(count < 0 || length < 0 ? GL_INVALID_VALUE : GL_INVALID_ENUM);
  }
}

}  // namespace gles::es2
