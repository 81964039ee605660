// The published C names of OpenGL ES 2.0, for programs that link with this layer directly.

#define GL_GLEXT_PROTOTYPES
#include "gles/es2/gl2.h"

extern "C" {

void GL_APIENTRY glActiveTexture(GLenum texture) {
  gles::es2::glActiveTexture(texture);
}

void GL_APIENTRY glAttachShader(GLuint program, GLuint shader) {
  gles::es2::glAttachShader(program, shader);
}

void GL_APIENTRY glBindAttribLocation(GLuint program, GLuint index, const GLchar* name) {
  gles::es2::glBindAttribLocation(program, index, name);
}

void GL_APIENTRY glBindBuffer(GLenum target, GLuint buffer) {
  gles::es2::glBindBuffer(target, buffer);
}

void GL_APIENTRY glBindFramebuffer(GLenum target, GLuint framebuffer) {
  gles::es2::glBindFramebuffer(target, framebuffer);
}

void GL_APIENTRY glBindRenderbuffer(GLenum target, GLuint renderbuffer) {
  gles::es2::glBindRenderbuffer(target, renderbuffer);
}

void GL_APIENTRY glBindTexture(GLenum target, GLuint texture) {
  gles::es2::glBindTexture(target, texture);
}

void GL_APIENTRY glBlendColor(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  gles::es2::glBlendColor(red, green, blue, alpha);
}

void GL_APIENTRY glBlendEquation(GLenum mode) {
  gles::es2::glBlendEquation(mode);
}

void GL_APIENTRY glBlendEquationSeparate(GLenum modeRGB, GLenum modeAlpha) {
  gles::es2::glBlendEquationSeparate(modeRGB, modeAlpha);
}

void GL_APIENTRY glBlendFunc(GLenum sfactor, GLenum dfactor) {
  gles::es2::glBlendFunc(sfactor, dfactor);
}

void GL_APIENTRY glBlendFuncSeparate(GLenum sfactorRGB, GLenum dfactorRGB, GLenum sfactorAlpha,
                                     GLenum dfactorAlpha) {
  gles::es2::glBlendFuncSeparate(sfactorRGB, dfactorRGB, sfactorAlpha, dfactorAlpha);
}

void GL_APIENTRY glBufferData(GLenum target, GLsizeiptr size, const void* data, GLenum usage) {
  gles::es2::glBufferData(target, size, data, usage);
}

void GL_APIENTRY glBufferSubData(GLenum target, GLintptr offset, GLsizeiptr size,
                                 const void* data) {
  gles::es2::glBufferSubData(target, offset, size, data);
}

GLenum GL_APIENTRY glCheckFramebufferStatus(GLenum target) {
  return gles::es2::glCheckFramebufferStatus(target);
}

void GL_APIENTRY glClear(GLbitfield mask) {
  gles::es2::glClear(mask);
}

void GL_APIENTRY glClearColor(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  gles::es2::glClearColor(red, green, blue, alpha);
}

void GL_APIENTRY glClearDepthf(GLfloat d) {
  gles::es2::glClearDepthf(d);
}

void GL_APIENTRY glClearStencil(GLint s) {
  gles::es2::glClearStencil(s);
}

void GL_APIENTRY glColorMask(GLboolean red, GLboolean green, GLboolean blue, GLboolean alpha) {
  gles::es2::glColorMask(red, green, blue, alpha);
}

void GL_APIENTRY glCompileShader(GLuint shader) {
  gles::es2::glCompileShader(shader);
}

void GL_APIENTRY glCompressedTexImage2D(GLenum target, GLint level, GLenum internalformat,
                                        GLsizei width, GLsizei height, GLint border,
                                        GLsizei imageSize, const void* data) {
  gles::es2::glCompressedTexImage2D(target, level, internalformat, width, height, border, imageSize,
                                    data);
}

void GL_APIENTRY glCompressedTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                           GLsizei width, GLsizei height, GLenum format,
                                           GLsizei imageSize, const void* data) {
  gles::es2::glCompressedTexSubImage2D(target, level, xoffset, yoffset, width, height, format,
                                       imageSize, data);
}

void GL_APIENTRY glCopyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x,
                                  GLint y, GLsizei width, GLsizei height, GLint border) {
  gles::es2::glCopyTexImage2D(target, level, internalformat, x, y, width, height, border);
}

void GL_APIENTRY glCopyTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                     GLint x, GLint y, GLsizei width, GLsizei height) {
  gles::es2::glCopyTexSubImage2D(target, level, xoffset, yoffset, x, y, width, height);
}

GLuint GL_APIENTRY glCreateProgram() {
  return gles::es2::glCreateProgram();
}

GLuint GL_APIENTRY glCreateShader(GLenum type) {
  return gles::es2::glCreateShader(type);
}

void GL_APIENTRY glCullFace(GLenum mode) {
  gles::es2::glCullFace(mode);
}

void GL_APIENTRY glDeleteBuffers(GLsizei n, const GLuint* buffers) {
  gles::es2::glDeleteBuffers(n, buffers);
}

void GL_APIENTRY glDeleteFramebuffers(GLsizei n, const GLuint* framebuffers) {
  gles::es2::glDeleteFramebuffers(n, framebuffers);
}

void GL_APIENTRY glDeleteProgram(GLuint program) {
  gles::es2::glDeleteProgram(program);
}

void GL_APIENTRY glDeleteRenderbuffers(GLsizei n, const GLuint* renderbuffers) {
  gles::es2::glDeleteRenderbuffers(n, renderbuffers);
}

void GL_APIENTRY glDeleteShader(GLuint shader) {
  gles::es2::glDeleteShader(shader);
}

void GL_APIENTRY glDeleteTextures(GLsizei n, const GLuint* textures) {
  gles::es2::glDeleteTextures(n, textures);
}

void GL_APIENTRY glDepthFunc(GLenum func) {
  gles::es2::glDepthFunc(func);
}

void GL_APIENTRY glDepthMask(GLboolean flag) {
  gles::es2::glDepthMask(flag);
}

void GL_APIENTRY glDepthRangef(GLfloat n, GLfloat f) {
  gles::es2::glDepthRangef(n, f);
}

void GL_APIENTRY glDetachShader(GLuint program, GLuint shader) {
  gles::es2::glDetachShader(program, shader);
}

void GL_APIENTRY glDisable(GLenum cap) {
  gles::es2::glDisable(cap);
}

void GL_APIENTRY glDisableVertexAttribArray(GLuint index) {
  gles::es2::glDisableVertexAttribArray(index);
}

void GL_APIENTRY glDrawArrays(GLenum mode, GLint first, GLsizei count) {
  gles::es2::glDrawArrays(mode, first, count);
}

void GL_APIENTRY glDrawElements(GLenum mode, GLsizei count, GLenum type, const void* indices) {
  gles::es2::glDrawElements(mode, count, type, indices);
}

void GL_APIENTRY glEnable(GLenum cap) {
  gles::es2::glEnable(cap);
}

void GL_APIENTRY glEnableVertexAttribArray(GLuint index) {
  gles::es2::glEnableVertexAttribArray(index);
}

void GL_APIENTRY glFinish() {
  gles::es2::glFinish();
}

void GL_APIENTRY glFlush() {
  gles::es2::glFlush();
}

void GL_APIENTRY glFramebufferRenderbuffer(GLenum target, GLenum attachment,
                                           GLenum renderbuffertarget, GLuint renderbuffer) {
  gles::es2::glFramebufferRenderbuffer(target, attachment, renderbuffertarget, renderbuffer);
}

void GL_APIENTRY glFramebufferTexture2D(GLenum target, GLenum attachment, GLenum textarget,
                                        GLuint texture, GLint level) {
  gles::es2::glFramebufferTexture2D(target, attachment, textarget, texture, level);
}

void GL_APIENTRY glFrontFace(GLenum mode) {
  gles::es2::glFrontFace(mode);
}

void GL_APIENTRY glGenBuffers(GLsizei n, GLuint* buffers) {
  gles::es2::glGenBuffers(n, buffers);
}

void GL_APIENTRY glGenerateMipmap(GLenum target) {
  gles::es2::glGenerateMipmap(target);
}

void GL_APIENTRY glGenFramebuffers(GLsizei n, GLuint* framebuffers) {
  gles::es2::glGenFramebuffers(n, framebuffers);
}

void GL_APIENTRY glGenRenderbuffers(GLsizei n, GLuint* renderbuffers) {
  gles::es2::glGenRenderbuffers(n, renderbuffers);
}

void GL_APIENTRY glGenTextures(GLsizei n, GLuint* textures) {
  gles::es2::glGenTextures(n, textures);
}

void GL_APIENTRY glGetActiveAttrib(GLuint program, GLuint index, GLsizei bufSize, GLsizei* length,
                                   GLint* size, GLenum* type, GLchar* name) {
  gles::es2::glGetActiveAttrib(program, index, bufSize, length, size, type, name);
}

void GL_APIENTRY glGetActiveUniform(GLuint program, GLuint index, GLsizei bufSize, GLsizei* length,
                                    GLint* size, GLenum* type, GLchar* name) {
  gles::es2::glGetActiveUniform(program, index, bufSize, length, size, type, name);
}

void GL_APIENTRY glGetAttachedShaders(GLuint program, GLsizei maxCount, GLsizei* count,
                                      GLuint* shaders) {
  gles::es2::glGetAttachedShaders(program, maxCount, count, shaders);
}

GLint GL_APIENTRY glGetAttribLocation(GLuint program, const GLchar* name) {
  return gles::es2::glGetAttribLocation(program, name);
}

void GL_APIENTRY glGetBooleanv(GLenum pname, GLboolean* data) {
  gles::es2::glGetBooleanv(pname, data);
}

void GL_APIENTRY glGetBufferParameteriv(GLenum target, GLenum pname, GLint* params) {
  gles::es2::glGetBufferParameteriv(target, pname, params);
}

GLenum GL_APIENTRY glGetError() {
  return gles::es2::glGetError();
}

void GL_APIENTRY glGetFloatv(GLenum pname, GLfloat* data) {
  gles::es2::glGetFloatv(pname, data);
}

void GL_APIENTRY glGetFramebufferAttachmentParameteriv(GLenum target, GLenum attachment,
                                                       GLenum pname, GLint* params) {
  gles::es2::glGetFramebufferAttachmentParameteriv(target, attachment, pname, params);
}

void GL_APIENTRY glGetIntegerv(GLenum pname, GLint* data) {
  gles::es2::glGetIntegerv(pname, data);
}

void GL_APIENTRY glGetProgramiv(GLuint program, GLenum pname, GLint* params) {
  gles::es2::glGetProgramiv(program, pname, params);
}

void GL_APIENTRY glGetProgramInfoLog(GLuint program, GLsizei bufSize, GLsizei* length,
                                     GLchar* infoLog) {
  gles::es2::glGetProgramInfoLog(program, bufSize, length, infoLog);
}

void GL_APIENTRY glGetRenderbufferParameteriv(GLenum target, GLenum pname, GLint* params) {
  gles::es2::glGetRenderbufferParameteriv(target, pname, params);
}

void GL_APIENTRY glGetShaderiv(GLuint shader, GLenum pname, GLint* params) {
  gles::es2::glGetShaderiv(shader, pname, params);
}

void GL_APIENTRY glGetShaderInfoLog(GLuint shader, GLsizei bufSize, GLsizei* length,
                                    GLchar* infoLog) {
  gles::es2::glGetShaderInfoLog(shader, bufSize, length, infoLog);
}

void GL_APIENTRY glGetShaderPrecisionFormat(GLenum shadertype, GLenum precisiontype, GLint* range,
                                            GLint* precision) {
  gles::es2::glGetShaderPrecisionFormat(shadertype, precisiontype, range, precision);
}

void GL_APIENTRY glGetShaderSource(GLuint shader, GLsizei bufSize, GLsizei* length,
                                   GLchar* source) {
  gles::es2::glGetShaderSource(shader, bufSize, length, source);
}

const GLubyte* GL_APIENTRY glGetString(GLenum name) {
  return gles::es2::glGetString(name);
}

void GL_APIENTRY glGetTexParameterfv(GLenum target, GLenum pname, GLfloat* params) {
  gles::es2::glGetTexParameterfv(target, pname, params);
}

void GL_APIENTRY glGetTexParameteriv(GLenum target, GLenum pname, GLint* params) {
  gles::es2::glGetTexParameteriv(target, pname, params);
}

void GL_APIENTRY glGetUniformfv(GLuint program, GLint location, GLfloat* params) {
  gles::es2::glGetUniformfv(program, location, params);
}

void GL_APIENTRY glGetUniformiv(GLuint program, GLint location, GLint* params) {
  gles::es2::glGetUniformiv(program, location, params);
}

GLint GL_APIENTRY glGetUniformLocation(GLuint program, const GLchar* name) {
  return gles::es2::glGetUniformLocation(program, name);
}

void GL_APIENTRY glGetVertexAttribfv(GLuint index, GLenum pname, GLfloat* params) {
  gles::es2::glGetVertexAttribfv(index, pname, params);
}

void GL_APIENTRY glGetVertexAttribiv(GLuint index, GLenum pname, GLint* params) {
  gles::es2::glGetVertexAttribiv(index, pname, params);
}

void GL_APIENTRY glGetVertexAttribPointerv(GLuint index, GLenum pname, void** pointer) {
  gles::es2::glGetVertexAttribPointerv(index, pname, pointer);
}

void GL_APIENTRY glHint(GLenum target, GLenum mode) {
  gles::es2::glHint(target, mode);
}

GLboolean GL_APIENTRY glIsBuffer(GLuint buffer) {
  return gles::es2::glIsBuffer(buffer);
}

GLboolean GL_APIENTRY glIsEnabled(GLenum cap) {
  return gles::es2::glIsEnabled(cap);
}

GLboolean GL_APIENTRY glIsFramebuffer(GLuint framebuffer) {
  return gles::es2::glIsFramebuffer(framebuffer);
}

GLboolean GL_APIENTRY glIsProgram(GLuint program) {
  return gles::es2::glIsProgram(program);
}

GLboolean GL_APIENTRY glIsRenderbuffer(GLuint renderbuffer) {
  return gles::es2::glIsRenderbuffer(renderbuffer);
}

GLboolean GL_APIENTRY glIsShader(GLuint shader) {
  return gles::es2::glIsShader(shader);
}

GLboolean GL_APIENTRY glIsTexture(GLuint texture) {
  return gles::es2::glIsTexture(texture);
}

void GL_APIENTRY glLineWidth(GLfloat width) {
  gles::es2::glLineWidth(width);
}

void GL_APIENTRY glLinkProgram(GLuint program) {
  gles::es2::glLinkProgram(program);
}

void GL_APIENTRY glPixelStorei(GLenum pname, GLint param) {
  gles::es2::glPixelStorei(pname, param);
}

void GL_APIENTRY glPolygonOffset(GLfloat factor, GLfloat units) {
  gles::es2::glPolygonOffset(factor, units);
}

void GL_APIENTRY glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
                              GLenum type, void* pixels) {
  gles::es2::glReadPixels(x, y, width, height, format, type, pixels);
}

void GL_APIENTRY glReleaseShaderCompiler() {
  gles::es2::glReleaseShaderCompiler();
}

void GL_APIENTRY glRenderbufferStorage(GLenum target, GLenum internalformat, GLsizei width,
                                       GLsizei height) {
  gles::es2::glRenderbufferStorage(target, internalformat, width, height);
}

void GL_APIENTRY glSampleCoverage(GLfloat value, GLboolean invert) {
  gles::es2::glSampleCoverage(value, invert);
}

void GL_APIENTRY glScissor(GLint x, GLint y, GLsizei width, GLsizei height) {
  gles::es2::glScissor(x, y, width, height);
}

void GL_APIENTRY glShaderBinary(GLsizei count, const GLuint* shaders, GLenum binaryFormat,
                                const void* binary, GLsizei length) {
  gles::es2::glShaderBinary(count, shaders, binaryFormat, binary, length);
}

void GL_APIENTRY glShaderSource(GLuint shader, GLsizei count, const GLchar* const* string,
                                const GLint* length) {
  gles::es2::glShaderSource(shader, count, string, length);
}

void GL_APIENTRY glStencilFunc(GLenum func, GLint ref, GLuint mask) {
  gles::es2::glStencilFunc(func, ref, mask);
}

void GL_APIENTRY glStencilFuncSeparate(GLenum face, GLenum func, GLint ref, GLuint mask) {
  gles::es2::glStencilFuncSeparate(face, func, ref, mask);
}

void GL_APIENTRY glStencilMask(GLuint mask) {
  gles::es2::glStencilMask(mask);
}

void GL_APIENTRY glStencilMaskSeparate(GLenum face, GLuint mask) {
  gles::es2::glStencilMaskSeparate(face, mask);
}

void GL_APIENTRY glStencilOp(GLenum fail, GLenum zfail, GLenum zpass) {
  gles::es2::glStencilOp(fail, zfail, zpass);
}

void GL_APIENTRY glStencilOpSeparate(GLenum face, GLenum sfail, GLenum dpfail, GLenum dppass) {
  gles::es2::glStencilOpSeparate(face, sfail, dpfail, dppass);
}

void GL_APIENTRY glTexImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width,
                              GLsizei height, GLint border, GLenum format, GLenum type,
                              const void* pixels) {
  gles::es2::glTexImage2D(target, level, internalformat, width, height, border, format, type,
                          pixels);
}

void GL_APIENTRY glTexParameterf(GLenum target, GLenum pname, GLfloat param) {
  gles::es2::glTexParameterf(target, pname, param);
}

void GL_APIENTRY glTexParameterfv(GLenum target, GLenum pname, const GLfloat* params) {
  gles::es2::glTexParameterfv(target, pname, params);
}

void GL_APIENTRY glTexParameteri(GLenum target, GLenum pname, GLint param) {
  gles::es2::glTexParameteri(target, pname, param);
}

void GL_APIENTRY glTexParameteriv(GLenum target, GLenum pname, const GLint* params) {
  gles::es2::glTexParameteriv(target, pname, params);
}

void GL_APIENTRY glTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                 GLsizei width, GLsizei height, GLenum format, GLenum type,
                                 const void* pixels) {
  gles::es2::glTexSubImage2D(target, level, xoffset, yoffset, width, height, format, type, pixels);
}

void GL_APIENTRY glUniform1f(GLint location, GLfloat v0) {
  gles::es2::glUniform1f(location, v0);
}

void GL_APIENTRY glUniform1fv(GLint location, GLsizei count, const GLfloat* value) {
  gles::es2::glUniform1fv(location, count, value);
}

void GL_APIENTRY glUniform1i(GLint location, GLint v0) {
  gles::es2::glUniform1i(location, v0);
}

void GL_APIENTRY glUniform1iv(GLint location, GLsizei count, const GLint* value) {
  gles::es2::glUniform1iv(location, count, value);
}

void GL_APIENTRY glUniform2f(GLint location, GLfloat v0, GLfloat v1) {
  gles::es2::glUniform2f(location, v0, v1);
}

void GL_APIENTRY glUniform2fv(GLint location, GLsizei count, const GLfloat* value) {
  gles::es2::glUniform2fv(location, count, value);
}

void GL_APIENTRY glUniform2i(GLint location, GLint v0, GLint v1) {
  gles::es2::glUniform2i(location, v0, v1);
}

void GL_APIENTRY glUniform2iv(GLint location, GLsizei count, const GLint* value) {
  gles::es2::glUniform2iv(location, count, value);
}

void GL_APIENTRY glUniform3f(GLint location, GLfloat v0, GLfloat v1, GLfloat v2) {
  gles::es2::glUniform3f(location, v0, v1, v2);
}

void GL_APIENTRY glUniform3fv(GLint location, GLsizei count, const GLfloat* value) {
  gles::es2::glUniform3fv(location, count, value);
}

void GL_APIENTRY glUniform3i(GLint location, GLint v0, GLint v1, GLint v2) {
  gles::es2::glUniform3i(location, v0, v1, v2);
}

void GL_APIENTRY glUniform3iv(GLint location, GLsizei count, const GLint* value) {
  gles::es2::glUniform3iv(location, count, value);
}

void GL_APIENTRY glUniform4f(GLint location, GLfloat v0, GLfloat v1, GLfloat v2, GLfloat v3) {
  gles::es2::glUniform4f(location, v0, v1, v2, v3);
}

void GL_APIENTRY glUniform4fv(GLint location, GLsizei count, const GLfloat* value) {
  gles::es2::glUniform4fv(location, count, value);
}

void GL_APIENTRY glUniform4i(GLint location, GLint v0, GLint v1, GLint v2, GLint v3) {
  gles::es2::glUniform4i(location, v0, v1, v2, v3);
}

void GL_APIENTRY glUniform4iv(GLint location, GLsizei count, const GLint* value) {
  gles::es2::glUniform4iv(location, count, value);
}

void GL_APIENTRY glUniformMatrix2fv(GLint location, GLsizei count, GLboolean transpose,
                                    const GLfloat* value) {
  gles::es2::glUniformMatrix2fv(location, count, transpose, value);
}

void GL_APIENTRY glUniformMatrix3fv(GLint location, GLsizei count, GLboolean transpose,
                                    const GLfloat* value) {
  gles::es2::glUniformMatrix3fv(location, count, transpose, value);
}

void GL_APIENTRY glUniformMatrix4fv(GLint location, GLsizei count, GLboolean transpose,
                                    const GLfloat* value) {
  gles::es2::glUniformMatrix4fv(location, count, transpose, value);
}

void GL_APIENTRY glUseProgram(GLuint program) {
  gles::es2::glUseProgram(program);
}

void GL_APIENTRY glValidateProgram(GLuint program) {
  gles::es2::glValidateProgram(program);
}

void GL_APIENTRY glVertexAttrib1f(GLuint index, GLfloat x) {
  gles::es2::glVertexAttrib1f(index, x);
}

void GL_APIENTRY glVertexAttrib1fv(GLuint index, const GLfloat* v) {
  gles::es2::glVertexAttrib1fv(index, v);
}

void GL_APIENTRY glVertexAttrib2f(GLuint index, GLfloat x, GLfloat y) {
  gles::es2::glVertexAttrib2f(index, x, y);
}

void GL_APIENTRY glVertexAttrib2fv(GLuint index, const GLfloat* v) {
  gles::es2::glVertexAttrib2fv(index, v);
}

void GL_APIENTRY glVertexAttrib3f(GLuint index, GLfloat x, GLfloat y, GLfloat z) {
  gles::es2::glVertexAttrib3f(index, x, y, z);
}

void GL_APIENTRY glVertexAttrib3fv(GLuint index, const GLfloat* v) {
  gles::es2::glVertexAttrib3fv(index, v);
}

void GL_APIENTRY glVertexAttrib4f(GLuint index, GLfloat x, GLfloat y, GLfloat z, GLfloat w) {
  gles::es2::glVertexAttrib4f(index, x, y, z, w);
}

void GL_APIENTRY glVertexAttrib4fv(GLuint index, const GLfloat* v) {
  gles::es2::glVertexAttrib4fv(index, v);
}

void GL_APIENTRY glVertexAttribPointer(GLuint index, GLint size, GLenum type, GLboolean normalized,
                                       GLsizei stride, const void* pointer) {
  gles::es2::glVertexAttribPointer(index, size, type, normalized, stride, pointer);
}

void GL_APIENTRY glViewport(GLint x, GLint y, GLsizei width, GLsizei height) {
  gles::es2::glViewport(x, y, width, height);
}

void GL_APIENTRY glEGLImageTargetTexture2DOES(GLenum target, GLeglImageOES image) {
  gles::es2::glEGLImageTargetTexture2DOES(target, image);
}

}  // extern "C"
