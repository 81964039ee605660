// Commands that desktop OpenGL has too: under the same name, or in double precision.

#include <GLES/gl.h>

#include "gles/driver/driver.h"

extern "C" {

void GL_APIENTRY glAlphaFunc(GLenum func, GLfloat ref) {
  driver.glAlphaFunc(func, ref);
}

void GL_APIENTRY glBindTexture(GLenum target, GLuint texture) {
  driver.glBindTexture(target, texture);
}

void GL_APIENTRY glBlendFunc(GLenum sfactor, GLenum dfactor) {
  driver.glBlendFunc(sfactor, dfactor);
}

void GL_APIENTRY glClear(GLbitfield mask) {
  driver.glClear(mask);
}

void GL_APIENTRY glClearColor(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  driver.glClearColor(red, green, blue, alpha);
}

void GL_APIENTRY glClearStencil(GLint s) {
  driver.glClearStencil(s);
}

void GL_APIENTRY glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  driver.glColor4f(red, green, blue, alpha);
}

void GL_APIENTRY glColor4ub(GLubyte red, GLubyte green, GLubyte blue, GLubyte alpha) {
  driver.glColor4ub(red, green, blue, alpha);
}

void GL_APIENTRY glColorMask(GLboolean red, GLboolean green, GLboolean blue, GLboolean alpha) {
  driver.glColorMask(red, green, blue, alpha);
}

void GL_APIENTRY glCopyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x,
                                  GLint y, GLsizei width, GLsizei height, GLint border) {
  driver.glCopyTexImage2D(target, level, internalformat, x, y, width, height, border);
}

void GL_APIENTRY glCopyTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                     GLint x, GLint y, GLsizei width, GLsizei height) {
  driver.glCopyTexSubImage2D(target, level, xoffset, yoffset, x, y, width, height);
}

void GL_APIENTRY glCullFace(GLenum mode) {
  driver.glCullFace(mode);
}

void GL_APIENTRY glDeleteTextures(GLsizei n, const GLuint* textures) {
  driver.glDeleteTextures(n, textures);
}

void GL_APIENTRY glDepthFunc(GLenum func) {
  driver.glDepthFunc(func);
}

void GL_APIENTRY glDepthMask(GLboolean flag) {
  driver.glDepthMask(flag);
}

void GL_APIENTRY glDisable(GLenum cap) {
  driver.glDisable(cap);
}

void GL_APIENTRY glEnable(GLenum cap) {
  driver.glEnable(cap);
}

void GL_APIENTRY glFlush() {
  driver.glFlush();
}

void GL_APIENTRY glFogf(GLenum pname, GLfloat param) {
  driver.glFogf(pname, param);
}

void GL_APIENTRY glFogfv(GLenum pname, const GLfloat* params) {
  driver.glFogfv(pname, params);
}

void GL_APIENTRY glFrontFace(GLenum mode) {
  driver.glFrontFace(mode);
}

void GL_APIENTRY glGenTextures(GLsizei n, GLuint* textures) {
  driver.glGenTextures(n, textures);
}

GLenum GL_APIENTRY glGetError() {
  return driver.glGetError();
}

void GL_APIENTRY glGetLightfv(GLenum light, GLenum pname, GLfloat* params) {
  driver.glGetLightfv(light, pname, params);
}

void GL_APIENTRY glGetMaterialfv(GLenum face, GLenum pname, GLfloat* params) {
  driver.glGetMaterialfv(face, pname, params);
}

const GLubyte* GL_APIENTRY glGetString(GLenum name) {
  return driver.glGetString(name);
}

void GL_APIENTRY glGetTexEnvfv(GLenum target, GLenum pname, GLfloat* params) {
  driver.glGetTexEnvfv(target, pname, params);
}

void GL_APIENTRY glGetTexEnviv(GLenum target, GLenum pname, GLint* params) {
  driver.glGetTexEnviv(target, pname, params);
}

void GL_APIENTRY glGetTexParameterfv(GLenum target, GLenum pname, GLfloat* params) {
  driver.glGetTexParameterfv(target, pname, params);
}

void GL_APIENTRY glGetTexParameteriv(GLenum target, GLenum pname, GLint* params) {
  driver.glGetTexParameteriv(target, pname, params);
}

void GL_APIENTRY glHint(GLenum target, GLenum mode) {
  driver.glHint(target, mode);
}

GLboolean GL_APIENTRY glIsEnabled(GLenum cap) {
  return driver.glIsEnabled(cap);
}

GLboolean GL_APIENTRY glIsTexture(GLuint texture) {
  return driver.glIsTexture(texture);
}

void GL_APIENTRY glLightModelf(GLenum pname, GLfloat param) {
  driver.glLightModelf(pname, param);
}

void GL_APIENTRY glLightModelfv(GLenum pname, const GLfloat* params) {
  driver.glLightModelfv(pname, params);
}

void GL_APIENTRY glLightf(GLenum light, GLenum pname, GLfloat param) {
  driver.glLightf(light, pname, param);
}

void GL_APIENTRY glLightfv(GLenum light, GLenum pname, const GLfloat* params) {
  driver.glLightfv(light, pname, params);
}

void GL_APIENTRY glLineWidth(GLfloat width) {
  driver.glLineWidth(width);
}

void GL_APIENTRY glLoadIdentity() {
  driver.glLoadIdentity();
}

void GL_APIENTRY glLoadMatrixf(const GLfloat* m) {
  driver.glLoadMatrixf(m);
}

void GL_APIENTRY glLogicOp(GLenum opcode) {
  driver.glLogicOp(opcode);
}

void GL_APIENTRY glMaterialf(GLenum face, GLenum pname, GLfloat param) {
  driver.glMaterialf(face, pname, param);
}

void GL_APIENTRY glMaterialfv(GLenum face, GLenum pname, const GLfloat* params) {
  driver.glMaterialfv(face, pname, params);
}

void GL_APIENTRY glMultMatrixf(const GLfloat* m) {
  driver.glMultMatrixf(m);
}

void GL_APIENTRY glMultiTexCoord4f(GLenum target, GLfloat s, GLfloat t, GLfloat r, GLfloat q) {
  driver.glMultiTexCoord4f(target, s, t, r, q);
}

void GL_APIENTRY glNormal3f(GLfloat nx, GLfloat ny, GLfloat nz) {
  driver.glNormal3f(nx, ny, nz);
}

void GL_APIENTRY glPointParameterf(GLenum pname, GLfloat param) {
  driver.glPointParameterf(pname, param);
}

void GL_APIENTRY glPointParameterfv(GLenum pname, const GLfloat* params) {
  driver.glPointParameterfv(pname, params);
}

void GL_APIENTRY glPointSize(GLfloat size) {
  driver.glPointSize(size);
}

void GL_APIENTRY glPolygonOffset(GLfloat factor, GLfloat units) {
  driver.glPolygonOffset(factor, units);
}

void GL_APIENTRY glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
                              GLenum type, void* pixels) {
  driver.glReadPixels(x, y, width, height, format, type, pixels);
}

void GL_APIENTRY glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) {
  driver.glRotatef(angle, x, y, z);
}

void GL_APIENTRY glSampleCoverage(GLfloat value, GLboolean invert) {
  driver.glSampleCoverage(value, invert);
}

void GL_APIENTRY glScalef(GLfloat x, GLfloat y, GLfloat z) {
  driver.glScalef(x, y, z);
}

void GL_APIENTRY glScissor(GLint x, GLint y, GLsizei width, GLsizei height) {
  driver.glScissor(x, y, width, height);
}

void GL_APIENTRY glShadeModel(GLenum mode) {
  driver.glShadeModel(mode);
}

void GL_APIENTRY glStencilFunc(GLenum func, GLint ref, GLuint mask) {
  driver.glStencilFunc(func, ref, mask);
}

void GL_APIENTRY glStencilMask(GLuint mask) {
  driver.glStencilMask(mask);
}

void GL_APIENTRY glStencilOp(GLenum fail, GLenum zfail, GLenum zpass) {
  driver.glStencilOp(fail, zfail, zpass);
}

void GL_APIENTRY glTexEnvf(GLenum target, GLenum pname, GLfloat param) {
  driver.glTexEnvf(target, pname, param);
}

void GL_APIENTRY glTexEnvfv(GLenum target, GLenum pname, const GLfloat* params) {
  driver.glTexEnvfv(target, pname, params);
}

void GL_APIENTRY glTexEnvi(GLenum target, GLenum pname, GLint param) {
  driver.glTexEnvi(target, pname, param);
}

void GL_APIENTRY glTexEnviv(GLenum target, GLenum pname, const GLint* params) {
  driver.glTexEnviv(target, pname, params);
}

void GL_APIENTRY glTexImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width,
                              GLsizei height, GLint border, GLenum format, GLenum type,
                              const void* pixels) {
  driver.glTexImage2D(target, level, internalformat, width, height, border, format, type, pixels);
}

void GL_APIENTRY glTexParameterf(GLenum target, GLenum pname, GLfloat param) {
  driver.glTexParameterf(target, pname, param);
}

void GL_APIENTRY glTexParameterfv(GLenum target, GLenum pname, const GLfloat* params) {
  driver.glTexParameterfv(target, pname, params);
}

void GL_APIENTRY glTexParameteri(GLenum target, GLenum pname, GLint param) {
  driver.glTexParameteri(target, pname, param);
}

void GL_APIENTRY glTexParameteriv(GLenum target, GLenum pname, const GLint* params) {
  driver.glTexParameteriv(target, pname, params);
}

void GL_APIENTRY glTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                 GLsizei width, GLsizei height, GLenum format, GLenum type,
                                 const void* pixels) {
  driver.glTexSubImage2D(target, level, xoffset, yoffset, width, height, format, type, pixels);
}

void GL_APIENTRY glTranslatef(GLfloat x, GLfloat y, GLfloat z) {
  driver.glTranslatef(x, y, z);
}

void GL_APIENTRY glViewport(GLint x, GLint y, GLsizei width, GLsizei height) {
  driver.glViewport(x, y, width, height);
}

void GL_APIENTRY glClearDepthf(GLfloat d) {
  driver.glClearDepth(static_cast<double>(d));
}

void GL_APIENTRY glDepthRangef(GLfloat n, GLfloat f) {
  driver.glDepthRange(static_cast<double>(n), static_cast<double>(f));
}

void GL_APIENTRY glFrustumf(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
  driver.glFrustum(static_cast<double>(l), static_cast<double>(r), static_cast<double>(b),
                   static_cast<double>(t), static_cast<double>(n), static_cast<double>(f));
}

void GL_APIENTRY glOrthof(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
  driver.glOrtho(static_cast<double>(l), static_cast<double>(r), static_cast<double>(b),
                 static_cast<double>(t), static_cast<double>(n), static_cast<double>(f));
}

void GL_APIENTRY glClipPlanef(GLenum p, const GLfloat* eqn) {
  const double equation[4] = {eqn[0], eqn[1], eqn[2], eqn[3]};
  driver.glClipPlane(p, equation);
}

void GL_APIENTRY glGetClipPlanef(GLenum plane, GLfloat* equation) {
  double wide[4] = {equation[0], equation[1], equation[2], equation[3]};
  driver.glGetClipPlane(plane, wide);
  for (int i = 0; i < 4; ++i) {
    equation[i] = static_cast<float>(wide[i]);
  }
}

}  // extern "C"
