// Commands that desktop OpenGL 2 has under the same name and meaning.

#include "gles/driver/driver.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

void glBlendColor(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  driver.glBlendColor(red, green, blue, alpha);
}

void glBlendEquation(GLenum mode) {
  driver.glBlendEquation(mode);
}

void glBlendEquationSeparate(GLenum modeRGB, GLenum modeAlpha) {
  driver.glBlendEquationSeparate(modeRGB, modeAlpha);
}

void glBlendFunc(GLenum sfactor, GLenum dfactor) {
  driver.glBlendFunc(sfactor, dfactor);
}

void glBlendFuncSeparate(GLenum sfactorRGB, GLenum dfactorRGB, GLenum sfactorAlpha,
                         GLenum dfactorAlpha) {
  driver.glBlendFuncSeparate(sfactorRGB, dfactorRGB, sfactorAlpha, dfactorAlpha);
}

void glBindTexture(GLenum target, GLuint texture) {
  driver.glBindTexture(target, texture);
}

void glClear(GLbitfield mask) {
  driver.glClear(mask);
}

void glClearColor(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  driver.glClearColor(red, green, blue, alpha);
}

void glClearStencil(GLint s) {
  driver.glClearStencil(s);
}

void glColorMask(GLboolean red, GLboolean green, GLboolean blue, GLboolean alpha) {
  driver.glColorMask(red, green, blue, alpha);
}

void glCopyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x, GLint y,
                      GLsizei width, GLsizei height, GLint border) {
  driver.glCopyTexImage2D(target, level, internalformat, x, y, width, height, border);
}

void glCopyTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLint x, GLint y,
                         GLsizei width, GLsizei height) {
  driver.glCopyTexSubImage2D(target, level, xoffset, yoffset, x, y, width, height);
}

void glCullFace(GLenum mode) {
  driver.glCullFace(mode);
}

void glDeleteTextures(GLsizei n, const GLuint* textures) {
  driver.glDeleteTextures(n, textures);
}

void glDepthFunc(GLenum func) {
  driver.glDepthFunc(func);
}

void glDepthMask(GLboolean flag) {
  driver.glDepthMask(flag);
}

void glDisable(GLenum cap) {
  driver.glDisable(cap);
}

void glEnable(GLenum cap) {
  driver.glEnable(cap);
}

void glFlush() {
  driver.glFlush();
}

void glFrontFace(GLenum mode) {
  driver.glFrontFace(mode);
}

void glGenTextures(GLsizei n, GLuint* textures) {
  driver.glGenTextures(n, textures);
}

const GLubyte* glGetString(GLenum name) {
  return driver.glGetString(name);
}

void glGetTexParameterfv(GLenum target, GLenum pname, GLfloat* params) {
  driver.glGetTexParameterfv(target, pname, params);
}

void glGetTexParameteriv(GLenum target, GLenum pname, GLint* params) {
  driver.glGetTexParameteriv(target, pname, params);
}

void glHint(GLenum target, GLenum mode) {
  driver.glHint(target, mode);
}

GLboolean glIsEnabled(GLenum cap) {
  return driver.glIsEnabled(cap);
}

GLboolean glIsTexture(GLuint texture) {
  return driver.glIsTexture(texture);
}

void glLineWidth(GLfloat width) {
  driver.glLineWidth(width);
}

void glPolygonOffset(GLfloat factor, GLfloat units) {
  driver.glPolygonOffset(factor, units);
}

void glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type,
                  void* pixels) {
  driver.glReadPixels(x, y, width, height, format, type, pixels);
}

void glSampleCoverage(GLfloat value, GLboolean invert) {
  driver.glSampleCoverage(value, invert);
}

void glScissor(GLint x, GLint y, GLsizei width, GLsizei height) {
  driver.glScissor(x, y, width, height);
}

void glStencilFunc(GLenum func, GLint ref, GLuint mask) {
  driver.glStencilFunc(func, ref, mask);
}

void glStencilFuncSeparate(GLenum face, GLenum func, GLint ref, GLuint mask) {
  driver.glStencilFuncSeparate(face, func, ref, mask);
}

void glStencilMask(GLuint mask) {
  driver.glStencilMask(mask);
}

void glStencilMaskSeparate(GLenum face, GLuint mask) {
  driver.glStencilMaskSeparate(face, mask);
}

void glStencilOp(GLenum fail, GLenum zfail, GLenum zpass) {
  driver.glStencilOp(fail, zfail, zpass);
}

void glStencilOpSeparate(GLenum face, GLenum sfail, GLenum dpfail, GLenum dppass) {
  driver.glStencilOpSeparate(face, sfail, dpfail, dppass);
}

void glTexImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,
                  GLint border, GLenum format, GLenum type, const void* pixels) {
  driver.glTexImage2D(target, level, internalformat, width, height, border, format, type, pixels);
}

void glTexParameterf(GLenum target, GLenum pname, GLfloat param) {
  driver.glTexParameterf(target, pname, param);
}

void glTexParameterfv(GLenum target, GLenum pname, const GLfloat* params) {
  driver.glTexParameterfv(target, pname, params);
}

void glTexParameteri(GLenum target, GLenum pname, GLint param) {
  driver.glTexParameteri(target, pname, param);
}

void glTexParameteriv(GLenum target, GLenum pname, const GLint* params) {
  driver.glTexParameteriv(target, pname, params);
}

void glTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width,
                     GLsizei height, GLenum format, GLenum type, const void* pixels) {
  driver.glTexSubImage2D(target, level, xoffset, yoffset, width, height, format, type, pixels);
}

void glViewport(GLint x, GLint y, GLsizei width, GLsizei height) {
  driver.glViewport(x, y, width, height);
}

void glActiveTexture(GLenum texture) {
  driver.glActiveTexture(texture);
}

void glClearDepthf(GLfloat d) {
  driver.glClearDepth(static_cast<double>(d));
}

void glDepthRangef(GLfloat n, GLfloat f) {
  driver.glDepthRange(static_cast<double>(n), static_cast<double>(f));
}

}  // namespace gles::es2
