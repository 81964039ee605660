// Uniforms.

#include "gles/driver/driver.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

void glUniform1f(GLint location, GLfloat v0) {
  driver.glUniform1f(location, v0);
}

void glUniform1fv(GLint location, GLsizei count, const GLfloat* value) {
  driver.glUniform1fv(location, count, value);
}

void glUniform1i(GLint location, GLint v0) {
  driver.glUniform1i(location, v0);
}

void glUniform1iv(GLint location, GLsizei count, const GLint* value) {
  driver.glUniform1iv(location, count, value);
}

void glUniform2f(GLint location, GLfloat v0, GLfloat v1) {
  driver.glUniform2f(location, v0, v1);
}

void glUniform2fv(GLint location, GLsizei count, const GLfloat* value) {
  driver.glUniform2fv(location, count, value);
}

void glUniform2i(GLint location, GLint v0, GLint v1) {
  driver.glUniform2i(location, v0, v1);
}

void glUniform2iv(GLint location, GLsizei count, const GLint* value) {
  driver.glUniform2iv(location, count, value);
}

void glUniform3f(GLint location, GLfloat v0, GLfloat v1, GLfloat v2) {
  driver.glUniform3f(location, v0, v1, v2);
}

void glUniform3fv(GLint location, GLsizei count, const GLfloat* value) {
  driver.glUniform3fv(location, count, value);
}

void glUniform3i(GLint location, GLint v0, GLint v1, GLint v2) {
  driver.glUniform3i(location, v0, v1, v2);
}

void glUniform3iv(GLint location, GLsizei count, const GLint* value) {
  driver.glUniform3iv(location, count, value);
}

void glUniform4f(GLint location, GLfloat v0, GLfloat v1, GLfloat v2, GLfloat v3) {
  driver.glUniform4f(location, v0, v1, v2, v3);
}

void glUniform4fv(GLint location, GLsizei count, const GLfloat* value) {
  driver.glUniform4fv(location, count, value);
}

void glUniform4i(GLint location, GLint v0, GLint v1, GLint v2, GLint v3) {
  driver.glUniform4i(location, v0, v1, v2, v3);
}

void glUniform4iv(GLint location, GLsizei count, const GLint* value) {
  driver.glUniform4iv(location, count, value);
}

void glUniformMatrix2fv(GLint location, GLsizei count, GLboolean transpose, const GLfloat* value) {
  driver.glUniformMatrix2fv(location, count, transpose, value);
}

void glUniformMatrix3fv(GLint location, GLsizei count, GLboolean transpose, const GLfloat* value) {
  driver.glUniformMatrix3fv(location, count, transpose, value);
}

void glUniformMatrix4fv(GLint location, GLsizei count, GLboolean transpose, const GLfloat* value) {
  driver.glUniformMatrix4fv(location, count, transpose, value);
}

}  // namespace gles::es2
