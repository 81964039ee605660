// Programs, and what desktop OpenGL has of shaders under the same meaning.

#include "gles/driver/driver.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

void glAttachShader(GLuint program, GLuint shader) {
  driver.glAttachShader(program, shader);
}

void glBindAttribLocation(GLuint program, GLuint index, const GLchar* name) {
  driver.glBindAttribLocation(program, index, name);
}

void glCompileShader(GLuint shader) {
  driver.glCompileShader(shader);
}

GLuint glCreateProgram() {
  return driver.glCreateProgram();
}

void glDeleteProgram(GLuint program) {
  driver.glDeleteProgram(program);
}

void glDetachShader(GLuint program, GLuint shader) {
  driver.glDetachShader(program, shader);
}

void glGetActiveAttrib(GLuint program, GLuint index, GLsizei bufSize, GLsizei* length, GLint* size,
                       GLenum* type, GLchar* name) {
  driver.glGetActiveAttrib(program, index, bufSize, length, size, type, name);
}

void glGetActiveUniform(GLuint program, GLuint index, GLsizei bufSize, GLsizei* length, GLint* size,
                        GLenum* type, GLchar* name) {
  driver.glGetActiveUniform(program, index, bufSize, length, size, type, name);
}

void glGetAttachedShaders(GLuint program, GLsizei maxCount, GLsizei* count, GLuint* shaders) {
  driver.glGetAttachedShaders(program, maxCount, count, shaders);
}

GLint glGetAttribLocation(GLuint program, const GLchar* name) {
  return driver.glGetAttribLocation(program, name);
}

void glGetProgramInfoLog(GLuint program, GLsizei bufSize, GLsizei* length, GLchar* infoLog) {
  driver.glGetProgramInfoLog(program, bufSize, length, infoLog);
}

void glGetShaderInfoLog(GLuint shader, GLsizei bufSize, GLsizei* length, GLchar* infoLog) {
  driver.glGetShaderInfoLog(shader, bufSize, length, infoLog);
}

void glGetUniformfv(GLuint program, GLint location, GLfloat* params) {
  driver.glGetUniformfv(program, location, params);
}

void glGetUniformiv(GLuint program, GLint location, GLint* params) {
  driver.glGetUniformiv(program, location, params);
}

GLint glGetUniformLocation(GLuint program, const GLchar* name) {
  return driver.glGetUniformLocation(program, name);
}

GLboolean glIsProgram(GLuint program) {
  return driver.glIsProgram(program);
}

GLboolean glIsShader(GLuint shader) {
  return driver.glIsShader(shader);
}

void glLinkProgram(GLuint program) {
  driver.glLinkProgram(program);
}

void glUseProgram(GLuint program) {
  driver.glUseProgram(program);
}

void glValidateProgram(GLuint program) {
  driver.glValidateProgram(program);
}

void glGetProgramiv(GLuint program, GLenum pname, GLint* params) {
  driver.glGetProgramiv(program, pname, params);
}

}  // namespace gles::es2
