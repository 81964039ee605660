// The published C names of OpenGL ES 1.1, for programs that link with this layer directly. The
// EGL layer has the commands under private names, so that a program may give the published ones to
// OpenGL ES 2.0 instead.

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>
#include <GLES/glext.h>

extern "C" {

void GL_APIENTRY es1_glActiveTexture(GLenum texture);
void GL_APIENTRY glActiveTexture(GLenum texture) {
  es1_glActiveTexture(texture);
}

void GL_APIENTRY es1_glAlphaFunc(GLenum func, GLfloat ref);
void GL_APIENTRY glAlphaFunc(GLenum func, GLfloat ref) {
  es1_glAlphaFunc(func, ref);
}

void GL_APIENTRY es1_glAlphaFuncx(GLenum func, GLfixed ref);
void GL_APIENTRY glAlphaFuncx(GLenum func, GLfixed ref) {
  es1_glAlphaFuncx(func, ref);
}

void GL_APIENTRY es1_glAlphaFuncxOES(GLenum func, GLfixed ref);
void GL_APIENTRY glAlphaFuncxOES(GLenum func, GLfixed ref) {
  es1_glAlphaFuncxOES(func, ref);
}

void GL_APIENTRY es1_glBindBuffer(GLenum target, GLuint buffer);
void GL_APIENTRY glBindBuffer(GLenum target, GLuint buffer) {
  es1_glBindBuffer(target, buffer);
}

void GL_APIENTRY es1_glBindFramebufferOES(GLenum target, GLuint framebuffer);
void GL_APIENTRY glBindFramebufferOES(GLenum target, GLuint framebuffer) {
  es1_glBindFramebufferOES(target, framebuffer);
}

void GL_APIENTRY es1_glBindRenderbufferOES(GLenum target, GLuint renderbuffer);
void GL_APIENTRY glBindRenderbufferOES(GLenum target, GLuint renderbuffer) {
  es1_glBindRenderbufferOES(target, renderbuffer);
}

void GL_APIENTRY es1_glBindTexture(GLenum target, GLuint texture);
void GL_APIENTRY glBindTexture(GLenum target, GLuint texture) {
  es1_glBindTexture(target, texture);
}

void GL_APIENTRY es1_glBindVertexArrayOES(GLuint array);
void GL_APIENTRY glBindVertexArrayOES(GLuint array) {
  es1_glBindVertexArrayOES(array);
}

void GL_APIENTRY es1_glBlendEquationOES(GLenum mode);
void GL_APIENTRY glBlendEquationOES(GLenum mode) {
  es1_glBlendEquationOES(mode);
}

void GL_APIENTRY es1_glBlendEquationSeparateOES(GLenum modeRGB, GLenum modeAlpha);
void GL_APIENTRY glBlendEquationSeparateOES(GLenum modeRGB, GLenum modeAlpha) {
  es1_glBlendEquationSeparateOES(modeRGB, modeAlpha);
}

void GL_APIENTRY es1_glBlendFunc(GLenum sfactor, GLenum dfactor);
void GL_APIENTRY glBlendFunc(GLenum sfactor, GLenum dfactor) {
  es1_glBlendFunc(sfactor, dfactor);
}

void GL_APIENTRY es1_glBlendFuncSeparateOES(GLenum srcRGB, GLenum dstRGB, GLenum srcAlpha,
                                            GLenum dstAlpha);
void GL_APIENTRY glBlendFuncSeparateOES(GLenum srcRGB, GLenum dstRGB, GLenum srcAlpha,
                                        GLenum dstAlpha) {
  es1_glBlendFuncSeparateOES(srcRGB, dstRGB, srcAlpha, dstAlpha);
}

void GL_APIENTRY es1_glBufferData(GLenum target, GLsizeiptr size, const void* data, GLenum usage);
void GL_APIENTRY glBufferData(GLenum target, GLsizeiptr size, const void* data, GLenum usage) {
  es1_glBufferData(target, size, data, usage);
}

void GL_APIENTRY es1_glBufferSubData(GLenum target, GLintptr offset, GLsizeiptr size,
                                     const void* data);
void GL_APIENTRY glBufferSubData(GLenum target, GLintptr offset, GLsizeiptr size,
                                 const void* data) {
  es1_glBufferSubData(target, offset, size, data);
}

GLenum GL_APIENTRY es1_glCheckFramebufferStatusOES(GLenum target);
GLenum GL_APIENTRY glCheckFramebufferStatusOES(GLenum target) {
  return es1_glCheckFramebufferStatusOES(target);
}

void GL_APIENTRY es1_glClear(GLbitfield mask);
void GL_APIENTRY glClear(GLbitfield mask) {
  es1_glClear(mask);
}

void GL_APIENTRY es1_glClearColor(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha);
void GL_APIENTRY glClearColor(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  es1_glClearColor(red, green, blue, alpha);
}

void GL_APIENTRY es1_glClearColorx(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha);
void GL_APIENTRY glClearColorx(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  es1_glClearColorx(red, green, blue, alpha);
}

void GL_APIENTRY es1_glClearColorxOES(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha);
void GL_APIENTRY glClearColorxOES(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  es1_glClearColorxOES(red, green, blue, alpha);
}

void GL_APIENTRY es1_glClearDepthf(GLfloat d);
void GL_APIENTRY glClearDepthf(GLfloat d) {
  es1_glClearDepthf(d);
}

void GL_APIENTRY es1_glClearDepthfOES(GLclampf depth);
void GL_APIENTRY glClearDepthfOES(GLclampf depth) {
  es1_glClearDepthfOES(depth);
}

void GL_APIENTRY es1_glClearDepthx(GLfixed depth);
void GL_APIENTRY glClearDepthx(GLfixed depth) {
  es1_glClearDepthx(depth);
}

void GL_APIENTRY es1_glClearDepthxOES(GLfixed depth);
void GL_APIENTRY glClearDepthxOES(GLfixed depth) {
  es1_glClearDepthxOES(depth);
}

void GL_APIENTRY es1_glClearStencil(GLint s);
void GL_APIENTRY glClearStencil(GLint s) {
  es1_glClearStencil(s);
}

void GL_APIENTRY es1_glClientActiveTexture(GLenum texture);
void GL_APIENTRY glClientActiveTexture(GLenum texture) {
  es1_glClientActiveTexture(texture);
}

void GL_APIENTRY es1_glClipPlanef(GLenum p, const GLfloat* eqn);
void GL_APIENTRY glClipPlanef(GLenum p, const GLfloat* eqn) {
  es1_glClipPlanef(p, eqn);
}

void GL_APIENTRY es1_glClipPlanefOES(GLenum plane, const GLfloat* equation);
void GL_APIENTRY glClipPlanefOES(GLenum plane, const GLfloat* equation) {
  es1_glClipPlanefOES(plane, equation);
}

void GL_APIENTRY es1_glClipPlanex(GLenum plane, const GLfixed* equation);
void GL_APIENTRY glClipPlanex(GLenum plane, const GLfixed* equation) {
  es1_glClipPlanex(plane, equation);
}

void GL_APIENTRY es1_glClipPlanexOES(GLenum plane, const GLfixed* equation);
void GL_APIENTRY glClipPlanexOES(GLenum plane, const GLfixed* equation) {
  es1_glClipPlanexOES(plane, equation);
}

void GL_APIENTRY es1_glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha);
void GL_APIENTRY glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  es1_glColor4f(red, green, blue, alpha);
}

void GL_APIENTRY es1_glColor4ub(GLubyte red, GLubyte green, GLubyte blue, GLubyte alpha);
void GL_APIENTRY glColor4ub(GLubyte red, GLubyte green, GLubyte blue, GLubyte alpha) {
  es1_glColor4ub(red, green, blue, alpha);
}

void GL_APIENTRY es1_glColor4x(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha);
void GL_APIENTRY glColor4x(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  es1_glColor4x(red, green, blue, alpha);
}

void GL_APIENTRY es1_glColor4xOES(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha);
void GL_APIENTRY glColor4xOES(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  es1_glColor4xOES(red, green, blue, alpha);
}

void GL_APIENTRY es1_glColorMask(GLboolean red, GLboolean green, GLboolean blue, GLboolean alpha);
void GL_APIENTRY glColorMask(GLboolean red, GLboolean green, GLboolean blue, GLboolean alpha) {
  es1_glColorMask(red, green, blue, alpha);
}

void GL_APIENTRY es1_glColorPointer(GLint size, GLenum type, GLsizei stride, const void* pointer);
void GL_APIENTRY glColorPointer(GLint size, GLenum type, GLsizei stride, const void* pointer) {
  es1_glColorPointer(size, type, stride, pointer);
}

void GL_APIENTRY es1_glCompressedTexImage2D(GLenum target, GLint level, GLenum internalformat,
                                            GLsizei width, GLsizei height, GLint border,
                                            GLsizei imageSize, const void* data);
void GL_APIENTRY glCompressedTexImage2D(GLenum target, GLint level, GLenum internalformat,
                                        GLsizei width, GLsizei height, GLint border,
                                        GLsizei imageSize, const void* data) {
  es1_glCompressedTexImage2D(target, level, internalformat, width, height, border, imageSize, data);
}

void GL_APIENTRY es1_glCompressedTexSubImage2D(GLenum target, GLint level, GLint xoffset,
                                               GLint yoffset, GLsizei width, GLsizei height,
                                               GLenum format, GLsizei imageSize, const void* data);
void GL_APIENTRY glCompressedTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                           GLsizei width, GLsizei height, GLenum format,
                                           GLsizei imageSize, const void* data) {
  es1_glCompressedTexSubImage2D(target, level, xoffset, yoffset, width, height, format, imageSize,
                                data);
}

void GL_APIENTRY es1_glCopyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x,
                                      GLint y, GLsizei width, GLsizei height, GLint border);
void GL_APIENTRY glCopyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x,
                                  GLint y, GLsizei width, GLsizei height, GLint border) {
  es1_glCopyTexImage2D(target, level, internalformat, x, y, width, height, border);
}

void GL_APIENTRY es1_glCopyTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                         GLint x, GLint y, GLsizei width, GLsizei height);
void GL_APIENTRY glCopyTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                     GLint x, GLint y, GLsizei width, GLsizei height) {
  es1_glCopyTexSubImage2D(target, level, xoffset, yoffset, x, y, width, height);
}

void GL_APIENTRY es1_glCullFace(GLenum mode);
void GL_APIENTRY glCullFace(GLenum mode) {
  es1_glCullFace(mode);
}

void GL_APIENTRY es1_glCurrentPaletteMatrixOES(GLuint matrixpaletteindex);
void GL_APIENTRY glCurrentPaletteMatrixOES(GLuint matrixpaletteindex) {
  es1_glCurrentPaletteMatrixOES(matrixpaletteindex);
}

void GL_APIENTRY es1_glDeleteBuffers(GLsizei n, const GLuint* buffers);
void GL_APIENTRY glDeleteBuffers(GLsizei n, const GLuint* buffers) {
  es1_glDeleteBuffers(n, buffers);
}

void GL_APIENTRY es1_glDeleteFramebuffersOES(GLsizei n, const GLuint* framebuffers);
void GL_APIENTRY glDeleteFramebuffersOES(GLsizei n, const GLuint* framebuffers) {
  es1_glDeleteFramebuffersOES(n, framebuffers);
}

void GL_APIENTRY es1_glDeleteRenderbuffersOES(GLsizei n, const GLuint* renderbuffers);
void GL_APIENTRY glDeleteRenderbuffersOES(GLsizei n, const GLuint* renderbuffers) {
  es1_glDeleteRenderbuffersOES(n, renderbuffers);
}

void GL_APIENTRY es1_glDeleteTextures(GLsizei n, const GLuint* textures);
void GL_APIENTRY glDeleteTextures(GLsizei n, const GLuint* textures) {
  es1_glDeleteTextures(n, textures);
}

void GL_APIENTRY es1_glDeleteVertexArraysOES(GLsizei n, const GLuint* arrays);
void GL_APIENTRY glDeleteVertexArraysOES(GLsizei n, const GLuint* arrays) {
  es1_glDeleteVertexArraysOES(n, arrays);
}

void GL_APIENTRY es1_glDepthFunc(GLenum func);
void GL_APIENTRY glDepthFunc(GLenum func) {
  es1_glDepthFunc(func);
}

void GL_APIENTRY es1_glDepthMask(GLboolean flag);
void GL_APIENTRY glDepthMask(GLboolean flag) {
  es1_glDepthMask(flag);
}

void GL_APIENTRY es1_glDepthRangef(GLfloat n, GLfloat f);
void GL_APIENTRY glDepthRangef(GLfloat n, GLfloat f) {
  es1_glDepthRangef(n, f);
}

void GL_APIENTRY es1_glDepthRangefOES(GLclampf n, GLclampf f);
void GL_APIENTRY glDepthRangefOES(GLclampf n, GLclampf f) {
  es1_glDepthRangefOES(n, f);
}

void GL_APIENTRY es1_glDepthRangex(GLfixed n, GLfixed f);
void GL_APIENTRY glDepthRangex(GLfixed n, GLfixed f) {
  es1_glDepthRangex(n, f);
}

void GL_APIENTRY es1_glDepthRangexOES(GLfixed n, GLfixed f);
void GL_APIENTRY glDepthRangexOES(GLfixed n, GLfixed f) {
  es1_glDepthRangexOES(n, f);
}

void GL_APIENTRY es1_glDisable(GLenum cap);
void GL_APIENTRY glDisable(GLenum cap) {
  es1_glDisable(cap);
}

void GL_APIENTRY es1_glDisableClientState(GLenum array);
void GL_APIENTRY glDisableClientState(GLenum array) {
  es1_glDisableClientState(array);
}

void GL_APIENTRY es1_glDrawArrays(GLenum mode, GLint first, GLsizei count);
void GL_APIENTRY glDrawArrays(GLenum mode, GLint first, GLsizei count) {
  es1_glDrawArrays(mode, first, count);
}

void GL_APIENTRY es1_glDrawElements(GLenum mode, GLsizei count, GLenum type, const void* indices);
void GL_APIENTRY glDrawElements(GLenum mode, GLsizei count, GLenum type, const void* indices) {
  es1_glDrawElements(mode, count, type, indices);
}

void GL_APIENTRY es1_glDrawTexfOES(GLfloat x, GLfloat y, GLfloat z, GLfloat width, GLfloat height);
void GL_APIENTRY glDrawTexfOES(GLfloat x, GLfloat y, GLfloat z, GLfloat width, GLfloat height) {
  es1_glDrawTexfOES(x, y, z, width, height);
}

void GL_APIENTRY es1_glDrawTexfvOES(const GLfloat* coords);
void GL_APIENTRY glDrawTexfvOES(const GLfloat* coords) {
  es1_glDrawTexfvOES(coords);
}

void GL_APIENTRY es1_glDrawTexiOES(GLint x, GLint y, GLint z, GLint width, GLint height);
void GL_APIENTRY glDrawTexiOES(GLint x, GLint y, GLint z, GLint width, GLint height) {
  es1_glDrawTexiOES(x, y, z, width, height);
}

void GL_APIENTRY es1_glDrawTexivOES(const GLint* coords);
void GL_APIENTRY glDrawTexivOES(const GLint* coords) {
  es1_glDrawTexivOES(coords);
}

void GL_APIENTRY es1_glDrawTexsOES(GLshort x, GLshort y, GLshort z, GLshort width, GLshort height);
void GL_APIENTRY glDrawTexsOES(GLshort x, GLshort y, GLshort z, GLshort width, GLshort height) {
  es1_glDrawTexsOES(x, y, z, width, height);
}

void GL_APIENTRY es1_glDrawTexsvOES(const GLshort* coords);
void GL_APIENTRY glDrawTexsvOES(const GLshort* coords) {
  es1_glDrawTexsvOES(coords);
}

void GL_APIENTRY es1_glDrawTexxOES(GLfixed x, GLfixed y, GLfixed z, GLfixed width, GLfixed height);
void GL_APIENTRY glDrawTexxOES(GLfixed x, GLfixed y, GLfixed z, GLfixed width, GLfixed height) {
  es1_glDrawTexxOES(x, y, z, width, height);
}

void GL_APIENTRY es1_glDrawTexxvOES(const GLfixed* coords);
void GL_APIENTRY glDrawTexxvOES(const GLfixed* coords) {
  es1_glDrawTexxvOES(coords);
}

void GL_APIENTRY es1_glEGLImageTargetRenderbufferStorageOES(GLenum target, GLeglImageOES image);
void GL_APIENTRY glEGLImageTargetRenderbufferStorageOES(GLenum target, GLeglImageOES image) {
  es1_glEGLImageTargetRenderbufferStorageOES(target, image);
}

void GL_APIENTRY es1_glEGLImageTargetTexture2DOES(GLenum target, GLeglImageOES image);
void GL_APIENTRY glEGLImageTargetTexture2DOES(GLenum target, GLeglImageOES image) {
  es1_glEGLImageTargetTexture2DOES(target, image);
}

void GL_APIENTRY es1_glEnable(GLenum cap);
void GL_APIENTRY glEnable(GLenum cap) {
  es1_glEnable(cap);
}

void GL_APIENTRY es1_glEnableClientState(GLenum array);
void GL_APIENTRY glEnableClientState(GLenum array) {
  es1_glEnableClientState(array);
}

void GL_APIENTRY es1_glFinish();
void GL_APIENTRY glFinish() {
  es1_glFinish();
}

void GL_APIENTRY es1_glFlush();
void GL_APIENTRY glFlush() {
  es1_glFlush();
}

void GL_APIENTRY es1_glFogf(GLenum pname, GLfloat param);
void GL_APIENTRY glFogf(GLenum pname, GLfloat param) {
  es1_glFogf(pname, param);
}

void GL_APIENTRY es1_glFogfv(GLenum pname, const GLfloat* params);
void GL_APIENTRY glFogfv(GLenum pname, const GLfloat* params) {
  es1_glFogfv(pname, params);
}

void GL_APIENTRY es1_glFogx(GLenum pname, GLfixed param);
void GL_APIENTRY glFogx(GLenum pname, GLfixed param) {
  es1_glFogx(pname, param);
}

void GL_APIENTRY es1_glFogxOES(GLenum pname, GLfixed param);
void GL_APIENTRY glFogxOES(GLenum pname, GLfixed param) {
  es1_glFogxOES(pname, param);
}

void GL_APIENTRY es1_glFogxv(GLenum pname, const GLfixed* param);
void GL_APIENTRY glFogxv(GLenum pname, const GLfixed* param) {
  es1_glFogxv(pname, param);
}

void GL_APIENTRY es1_glFogxvOES(GLenum pname, const GLfixed* param);
void GL_APIENTRY glFogxvOES(GLenum pname, const GLfixed* param) {
  es1_glFogxvOES(pname, param);
}

void GL_APIENTRY es1_glFramebufferRenderbufferOES(GLenum target, GLenum attachment,
                                                  GLenum renderbuffertarget, GLuint renderbuffer);
void GL_APIENTRY glFramebufferRenderbufferOES(GLenum target, GLenum attachment,
                                              GLenum renderbuffertarget, GLuint renderbuffer) {
  es1_glFramebufferRenderbufferOES(target, attachment, renderbuffertarget, renderbuffer);
}

void GL_APIENTRY es1_glFramebufferTexture2DOES(GLenum target, GLenum attachment, GLenum textarget,
                                               GLuint texture, GLint level);
void GL_APIENTRY glFramebufferTexture2DOES(GLenum target, GLenum attachment, GLenum textarget,
                                           GLuint texture, GLint level) {
  es1_glFramebufferTexture2DOES(target, attachment, textarget, texture, level);
}

void GL_APIENTRY es1_glFrontFace(GLenum mode);
void GL_APIENTRY glFrontFace(GLenum mode) {
  es1_glFrontFace(mode);
}

void GL_APIENTRY es1_glFrustumf(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f);
void GL_APIENTRY glFrustumf(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
  es1_glFrustumf(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glFrustumfOES(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n,
                                   GLfloat f);
void GL_APIENTRY glFrustumfOES(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
  es1_glFrustumfOES(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glFrustumx(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f);
void GL_APIENTRY glFrustumx(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  es1_glFrustumx(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glFrustumxOES(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n,
                                   GLfixed f);
void GL_APIENTRY glFrustumxOES(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  es1_glFrustumxOES(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glGenBuffers(GLsizei n, GLuint* buffers);
void GL_APIENTRY glGenBuffers(GLsizei n, GLuint* buffers) {
  es1_glGenBuffers(n, buffers);
}

void GL_APIENTRY es1_glGenFramebuffersOES(GLsizei n, GLuint* framebuffers);
void GL_APIENTRY glGenFramebuffersOES(GLsizei n, GLuint* framebuffers) {
  es1_glGenFramebuffersOES(n, framebuffers);
}

void GL_APIENTRY es1_glGenRenderbuffersOES(GLsizei n, GLuint* renderbuffers);
void GL_APIENTRY glGenRenderbuffersOES(GLsizei n, GLuint* renderbuffers) {
  es1_glGenRenderbuffersOES(n, renderbuffers);
}

void GL_APIENTRY es1_glGenTextures(GLsizei n, GLuint* textures);
void GL_APIENTRY glGenTextures(GLsizei n, GLuint* textures) {
  es1_glGenTextures(n, textures);
}

void GL_APIENTRY es1_glGenVertexArraysOES(GLsizei n, GLuint* arrays);
void GL_APIENTRY glGenVertexArraysOES(GLsizei n, GLuint* arrays) {
  es1_glGenVertexArraysOES(n, arrays);
}

void GL_APIENTRY es1_glGenerateMipmapOES(GLenum target);
void GL_APIENTRY glGenerateMipmapOES(GLenum target) {
  es1_glGenerateMipmapOES(target);
}

void GL_APIENTRY es1_glGetBooleanv(GLenum pname, GLboolean* data);
void GL_APIENTRY glGetBooleanv(GLenum pname, GLboolean* data) {
  es1_glGetBooleanv(pname, data);
}

void GL_APIENTRY es1_glGetBufferParameteriv(GLenum target, GLenum pname, GLint* params);
void GL_APIENTRY glGetBufferParameteriv(GLenum target, GLenum pname, GLint* params) {
  es1_glGetBufferParameteriv(target, pname, params);
}

void GL_APIENTRY es1_glGetBufferPointervOES(GLenum target, GLenum pname, void** params);
void GL_APIENTRY glGetBufferPointervOES(GLenum target, GLenum pname, void** params) {
  es1_glGetBufferPointervOES(target, pname, params);
}

void GL_APIENTRY es1_glGetClipPlanef(GLenum plane, GLfloat* equation);
void GL_APIENTRY glGetClipPlanef(GLenum plane, GLfloat* equation) {
  es1_glGetClipPlanef(plane, equation);
}

void GL_APIENTRY es1_glGetClipPlanefOES(GLenum plane, GLfloat* equation);
void GL_APIENTRY glGetClipPlanefOES(GLenum plane, GLfloat* equation) {
  es1_glGetClipPlanefOES(plane, equation);
}

void GL_APIENTRY es1_glGetClipPlanex(GLenum plane, GLfixed* equation);
void GL_APIENTRY glGetClipPlanex(GLenum plane, GLfixed* equation) {
  es1_glGetClipPlanex(plane, equation);
}

void GL_APIENTRY es1_glGetClipPlanexOES(GLenum plane, GLfixed* equation);
void GL_APIENTRY glGetClipPlanexOES(GLenum plane, GLfixed* equation) {
  es1_glGetClipPlanexOES(plane, equation);
}

GLenum GL_APIENTRY es1_glGetError();
GLenum GL_APIENTRY glGetError() {
  return es1_glGetError();
}

void GL_APIENTRY es1_glGetFixedv(GLenum pname, GLfixed* params);
void GL_APIENTRY glGetFixedv(GLenum pname, GLfixed* params) {
  es1_glGetFixedv(pname, params);
}

void GL_APIENTRY es1_glGetFixedvOES(GLenum pname, GLfixed* params);
void GL_APIENTRY glGetFixedvOES(GLenum pname, GLfixed* params) {
  es1_glGetFixedvOES(pname, params);
}

void GL_APIENTRY es1_glGetFloatv(GLenum pname, GLfloat* data);
void GL_APIENTRY glGetFloatv(GLenum pname, GLfloat* data) {
  es1_glGetFloatv(pname, data);
}

void GL_APIENTRY es1_glGetFramebufferAttachmentParameterivOES(GLenum target, GLenum attachment,
                                                              GLenum pname, GLint* params);
void GL_APIENTRY glGetFramebufferAttachmentParameterivOES(GLenum target, GLenum attachment,
                                                          GLenum pname, GLint* params) {
  es1_glGetFramebufferAttachmentParameterivOES(target, attachment, pname, params);
}

void GL_APIENTRY es1_glGetIntegerv(GLenum pname, GLint* data);
void GL_APIENTRY glGetIntegerv(GLenum pname, GLint* data) {
  es1_glGetIntegerv(pname, data);
}

void GL_APIENTRY es1_glGetLightfv(GLenum light, GLenum pname, GLfloat* params);
void GL_APIENTRY glGetLightfv(GLenum light, GLenum pname, GLfloat* params) {
  es1_glGetLightfv(light, pname, params);
}

void GL_APIENTRY es1_glGetLightxv(GLenum light, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetLightxv(GLenum light, GLenum pname, GLfixed* params) {
  es1_glGetLightxv(light, pname, params);
}

void GL_APIENTRY es1_glGetLightxvOES(GLenum light, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetLightxvOES(GLenum light, GLenum pname, GLfixed* params) {
  es1_glGetLightxvOES(light, pname, params);
}

void GL_APIENTRY es1_glGetMaterialfv(GLenum face, GLenum pname, GLfloat* params);
void GL_APIENTRY glGetMaterialfv(GLenum face, GLenum pname, GLfloat* params) {
  es1_glGetMaterialfv(face, pname, params);
}

void GL_APIENTRY es1_glGetMaterialxv(GLenum face, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetMaterialxv(GLenum face, GLenum pname, GLfixed* params) {
  es1_glGetMaterialxv(face, pname, params);
}

void GL_APIENTRY es1_glGetMaterialxvOES(GLenum face, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetMaterialxvOES(GLenum face, GLenum pname, GLfixed* params) {
  es1_glGetMaterialxvOES(face, pname, params);
}

void GL_APIENTRY es1_glGetPointerv(GLenum pname, void** params);
void GL_APIENTRY glGetPointerv(GLenum pname, void** params) {
  es1_glGetPointerv(pname, params);
}

void GL_APIENTRY es1_glGetRenderbufferParameterivOES(GLenum target, GLenum pname, GLint* params);
void GL_APIENTRY glGetRenderbufferParameterivOES(GLenum target, GLenum pname, GLint* params) {
  es1_glGetRenderbufferParameterivOES(target, pname, params);
}

const GLubyte* GL_APIENTRY es1_glGetString(GLenum name);
const GLubyte* GL_APIENTRY glGetString(GLenum name) {
  return es1_glGetString(name);
}

void GL_APIENTRY es1_glGetTexEnvfv(GLenum target, GLenum pname, GLfloat* params);
void GL_APIENTRY glGetTexEnvfv(GLenum target, GLenum pname, GLfloat* params) {
  es1_glGetTexEnvfv(target, pname, params);
}

void GL_APIENTRY es1_glGetTexEnviv(GLenum target, GLenum pname, GLint* params);
void GL_APIENTRY glGetTexEnviv(GLenum target, GLenum pname, GLint* params) {
  es1_glGetTexEnviv(target, pname, params);
}

void GL_APIENTRY es1_glGetTexEnvxv(GLenum target, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetTexEnvxv(GLenum target, GLenum pname, GLfixed* params) {
  es1_glGetTexEnvxv(target, pname, params);
}

void GL_APIENTRY es1_glGetTexEnvxvOES(GLenum target, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetTexEnvxvOES(GLenum target, GLenum pname, GLfixed* params) {
  es1_glGetTexEnvxvOES(target, pname, params);
}

void GL_APIENTRY es1_glGetTexGenfvOES(GLenum coord, GLenum pname, GLfloat* params);
void GL_APIENTRY glGetTexGenfvOES(GLenum coord, GLenum pname, GLfloat* params) {
  es1_glGetTexGenfvOES(coord, pname, params);
}

void GL_APIENTRY es1_glGetTexGenivOES(GLenum coord, GLenum pname, GLint* params);
void GL_APIENTRY glGetTexGenivOES(GLenum coord, GLenum pname, GLint* params) {
  es1_glGetTexGenivOES(coord, pname, params);
}

void GL_APIENTRY es1_glGetTexGenxvOES(GLenum coord, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetTexGenxvOES(GLenum coord, GLenum pname, GLfixed* params) {
  es1_glGetTexGenxvOES(coord, pname, params);
}

void GL_APIENTRY es1_glGetTexParameterfv(GLenum target, GLenum pname, GLfloat* params);
void GL_APIENTRY glGetTexParameterfv(GLenum target, GLenum pname, GLfloat* params) {
  es1_glGetTexParameterfv(target, pname, params);
}

void GL_APIENTRY es1_glGetTexParameteriv(GLenum target, GLenum pname, GLint* params);
void GL_APIENTRY glGetTexParameteriv(GLenum target, GLenum pname, GLint* params) {
  es1_glGetTexParameteriv(target, pname, params);
}

void GL_APIENTRY es1_glGetTexParameterxv(GLenum target, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetTexParameterxv(GLenum target, GLenum pname, GLfixed* params) {
  es1_glGetTexParameterxv(target, pname, params);
}

void GL_APIENTRY es1_glGetTexParameterxvOES(GLenum target, GLenum pname, GLfixed* params);
void GL_APIENTRY glGetTexParameterxvOES(GLenum target, GLenum pname, GLfixed* params) {
  es1_glGetTexParameterxvOES(target, pname, params);
}

void GL_APIENTRY es1_glHint(GLenum target, GLenum mode);
void GL_APIENTRY glHint(GLenum target, GLenum mode) {
  es1_glHint(target, mode);
}

GLboolean GL_APIENTRY es1_glIsBuffer(GLuint buffer);
GLboolean GL_APIENTRY glIsBuffer(GLuint buffer) {
  return es1_glIsBuffer(buffer);
}

GLboolean GL_APIENTRY es1_glIsEnabled(GLenum cap);
GLboolean GL_APIENTRY glIsEnabled(GLenum cap) {
  return es1_glIsEnabled(cap);
}

GLboolean GL_APIENTRY es1_glIsFramebufferOES(GLuint framebuffer);
GLboolean GL_APIENTRY glIsFramebufferOES(GLuint framebuffer) {
  return es1_glIsFramebufferOES(framebuffer);
}

GLboolean GL_APIENTRY es1_glIsRenderbufferOES(GLuint renderbuffer);
GLboolean GL_APIENTRY glIsRenderbufferOES(GLuint renderbuffer) {
  return es1_glIsRenderbufferOES(renderbuffer);
}

GLboolean GL_APIENTRY es1_glIsTexture(GLuint texture);
GLboolean GL_APIENTRY glIsTexture(GLuint texture) {
  return es1_glIsTexture(texture);
}

GLboolean GL_APIENTRY es1_glIsVertexArrayOES(GLuint array);
GLboolean GL_APIENTRY glIsVertexArrayOES(GLuint array) {
  return es1_glIsVertexArrayOES(array);
}

void GL_APIENTRY es1_glLightModelf(GLenum pname, GLfloat param);
void GL_APIENTRY glLightModelf(GLenum pname, GLfloat param) {
  es1_glLightModelf(pname, param);
}

void GL_APIENTRY es1_glLightModelfv(GLenum pname, const GLfloat* params);
void GL_APIENTRY glLightModelfv(GLenum pname, const GLfloat* params) {
  es1_glLightModelfv(pname, params);
}

void GL_APIENTRY es1_glLightModelx(GLenum pname, GLfixed param);
void GL_APIENTRY glLightModelx(GLenum pname, GLfixed param) {
  es1_glLightModelx(pname, param);
}

void GL_APIENTRY es1_glLightModelxOES(GLenum pname, GLfixed param);
void GL_APIENTRY glLightModelxOES(GLenum pname, GLfixed param) {
  es1_glLightModelxOES(pname, param);
}

void GL_APIENTRY es1_glLightModelxv(GLenum pname, const GLfixed* param);
void GL_APIENTRY glLightModelxv(GLenum pname, const GLfixed* param) {
  es1_glLightModelxv(pname, param);
}

void GL_APIENTRY es1_glLightModelxvOES(GLenum pname, const GLfixed* param);
void GL_APIENTRY glLightModelxvOES(GLenum pname, const GLfixed* param) {
  es1_glLightModelxvOES(pname, param);
}

void GL_APIENTRY es1_glLightf(GLenum light, GLenum pname, GLfloat param);
void GL_APIENTRY glLightf(GLenum light, GLenum pname, GLfloat param) {
  es1_glLightf(light, pname, param);
}

void GL_APIENTRY es1_glLightfv(GLenum light, GLenum pname, const GLfloat* params);
void GL_APIENTRY glLightfv(GLenum light, GLenum pname, const GLfloat* params) {
  es1_glLightfv(light, pname, params);
}

void GL_APIENTRY es1_glLightx(GLenum light, GLenum pname, GLfixed param);
void GL_APIENTRY glLightx(GLenum light, GLenum pname, GLfixed param) {
  es1_glLightx(light, pname, param);
}

void GL_APIENTRY es1_glLightxOES(GLenum light, GLenum pname, GLfixed param);
void GL_APIENTRY glLightxOES(GLenum light, GLenum pname, GLfixed param) {
  es1_glLightxOES(light, pname, param);
}

void GL_APIENTRY es1_glLightxv(GLenum light, GLenum pname, const GLfixed* params);
void GL_APIENTRY glLightxv(GLenum light, GLenum pname, const GLfixed* params) {
  es1_glLightxv(light, pname, params);
}

void GL_APIENTRY es1_glLightxvOES(GLenum light, GLenum pname, const GLfixed* params);
void GL_APIENTRY glLightxvOES(GLenum light, GLenum pname, const GLfixed* params) {
  es1_glLightxvOES(light, pname, params);
}

void GL_APIENTRY es1_glLineWidth(GLfloat width);
void GL_APIENTRY glLineWidth(GLfloat width) {
  es1_glLineWidth(width);
}

void GL_APIENTRY es1_glLineWidthx(GLfixed width);
void GL_APIENTRY glLineWidthx(GLfixed width) {
  es1_glLineWidthx(width);
}

void GL_APIENTRY es1_glLineWidthxOES(GLfixed width);
void GL_APIENTRY glLineWidthxOES(GLfixed width) {
  es1_glLineWidthxOES(width);
}

void GL_APIENTRY es1_glLoadIdentity();
void GL_APIENTRY glLoadIdentity() {
  es1_glLoadIdentity();
}

void GL_APIENTRY es1_glLoadMatrixf(const GLfloat* m);
void GL_APIENTRY glLoadMatrixf(const GLfloat* m) {
  es1_glLoadMatrixf(m);
}

void GL_APIENTRY es1_glLoadMatrixx(const GLfixed* m);
void GL_APIENTRY glLoadMatrixx(const GLfixed* m) {
  es1_glLoadMatrixx(m);
}

void GL_APIENTRY es1_glLoadMatrixxOES(const GLfixed* m);
void GL_APIENTRY glLoadMatrixxOES(const GLfixed* m) {
  es1_glLoadMatrixxOES(m);
}

void GL_APIENTRY es1_glLoadPaletteFromModelViewMatrixOES();
void GL_APIENTRY glLoadPaletteFromModelViewMatrixOES() {
  es1_glLoadPaletteFromModelViewMatrixOES();
}

void GL_APIENTRY es1_glLogicOp(GLenum opcode);
void GL_APIENTRY glLogicOp(GLenum opcode) {
  es1_glLogicOp(opcode);
}

void* GL_APIENTRY es1_glMapBufferOES(GLenum target, GLenum access);
void* GL_APIENTRY glMapBufferOES(GLenum target, GLenum access) {
  return es1_glMapBufferOES(target, access);
}

void GL_APIENTRY es1_glMaterialf(GLenum face, GLenum pname, GLfloat param);
void GL_APIENTRY glMaterialf(GLenum face, GLenum pname, GLfloat param) {
  es1_glMaterialf(face, pname, param);
}

void GL_APIENTRY es1_glMaterialfv(GLenum face, GLenum pname, const GLfloat* params);
void GL_APIENTRY glMaterialfv(GLenum face, GLenum pname, const GLfloat* params) {
  es1_glMaterialfv(face, pname, params);
}

void GL_APIENTRY es1_glMaterialx(GLenum face, GLenum pname, GLfixed param);
void GL_APIENTRY glMaterialx(GLenum face, GLenum pname, GLfixed param) {
  es1_glMaterialx(face, pname, param);
}

void GL_APIENTRY es1_glMaterialxOES(GLenum face, GLenum pname, GLfixed param);
void GL_APIENTRY glMaterialxOES(GLenum face, GLenum pname, GLfixed param) {
  es1_glMaterialxOES(face, pname, param);
}

void GL_APIENTRY es1_glMaterialxv(GLenum face, GLenum pname, const GLfixed* param);
void GL_APIENTRY glMaterialxv(GLenum face, GLenum pname, const GLfixed* param) {
  es1_glMaterialxv(face, pname, param);
}

void GL_APIENTRY es1_glMaterialxvOES(GLenum face, GLenum pname, const GLfixed* param);
void GL_APIENTRY glMaterialxvOES(GLenum face, GLenum pname, const GLfixed* param) {
  es1_glMaterialxvOES(face, pname, param);
}

void GL_APIENTRY es1_glMatrixIndexPointerOES(GLint size, GLenum type, GLsizei stride,
                                             const void* pointer);
void GL_APIENTRY glMatrixIndexPointerOES(GLint size, GLenum type, GLsizei stride,
                                         const void* pointer) {
  es1_glMatrixIndexPointerOES(size, type, stride, pointer);
}

void GL_APIENTRY es1_glMatrixMode(GLenum mode);
void GL_APIENTRY glMatrixMode(GLenum mode) {
  es1_glMatrixMode(mode);
}

void GL_APIENTRY es1_glMultMatrixf(const GLfloat* m);
void GL_APIENTRY glMultMatrixf(const GLfloat* m) {
  es1_glMultMatrixf(m);
}

void GL_APIENTRY es1_glMultMatrixx(const GLfixed* m);
void GL_APIENTRY glMultMatrixx(const GLfixed* m) {
  es1_glMultMatrixx(m);
}

void GL_APIENTRY es1_glMultMatrixxOES(const GLfixed* m);
void GL_APIENTRY glMultMatrixxOES(const GLfixed* m) {
  es1_glMultMatrixxOES(m);
}

void GL_APIENTRY es1_glMultiTexCoord4f(GLenum target, GLfloat s, GLfloat t, GLfloat r, GLfloat q);
void GL_APIENTRY glMultiTexCoord4f(GLenum target, GLfloat s, GLfloat t, GLfloat r, GLfloat q) {
  es1_glMultiTexCoord4f(target, s, t, r, q);
}

void GL_APIENTRY es1_glMultiTexCoord4x(GLenum texture, GLfixed s, GLfixed t, GLfixed r, GLfixed q);
void GL_APIENTRY glMultiTexCoord4x(GLenum texture, GLfixed s, GLfixed t, GLfixed r, GLfixed q) {
  es1_glMultiTexCoord4x(texture, s, t, r, q);
}

void GL_APIENTRY es1_glMultiTexCoord4xOES(GLenum texture, GLfixed s, GLfixed t, GLfixed r,
                                          GLfixed q);
void GL_APIENTRY glMultiTexCoord4xOES(GLenum texture, GLfixed s, GLfixed t, GLfixed r, GLfixed q) {
  es1_glMultiTexCoord4xOES(texture, s, t, r, q);
}

void GL_APIENTRY es1_glNormal3f(GLfloat nx, GLfloat ny, GLfloat nz);
void GL_APIENTRY glNormal3f(GLfloat nx, GLfloat ny, GLfloat nz) {
  es1_glNormal3f(nx, ny, nz);
}

void GL_APIENTRY es1_glNormal3x(GLfixed nx, GLfixed ny, GLfixed nz);
void GL_APIENTRY glNormal3x(GLfixed nx, GLfixed ny, GLfixed nz) {
  es1_glNormal3x(nx, ny, nz);
}

void GL_APIENTRY es1_glNormal3xOES(GLfixed nx, GLfixed ny, GLfixed nz);
void GL_APIENTRY glNormal3xOES(GLfixed nx, GLfixed ny, GLfixed nz) {
  es1_glNormal3xOES(nx, ny, nz);
}

void GL_APIENTRY es1_glNormalPointer(GLenum type, GLsizei stride, const void* pointer);
void GL_APIENTRY glNormalPointer(GLenum type, GLsizei stride, const void* pointer) {
  es1_glNormalPointer(type, stride, pointer);
}

void GL_APIENTRY es1_glOrthof(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f);
void GL_APIENTRY glOrthof(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
  es1_glOrthof(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glOrthofOES(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f);
void GL_APIENTRY glOrthofOES(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f) {
  es1_glOrthofOES(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glOrthox(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f);
void GL_APIENTRY glOrthox(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  es1_glOrthox(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glOrthoxOES(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f);
void GL_APIENTRY glOrthoxOES(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  es1_glOrthoxOES(l, r, b, t, n, f);
}

void GL_APIENTRY es1_glPixelStorei(GLenum pname, GLint param);
void GL_APIENTRY glPixelStorei(GLenum pname, GLint param) {
  es1_glPixelStorei(pname, param);
}

void GL_APIENTRY es1_glPointParameterf(GLenum pname, GLfloat param);
void GL_APIENTRY glPointParameterf(GLenum pname, GLfloat param) {
  es1_glPointParameterf(pname, param);
}

void GL_APIENTRY es1_glPointParameterfv(GLenum pname, const GLfloat* params);
void GL_APIENTRY glPointParameterfv(GLenum pname, const GLfloat* params) {
  es1_glPointParameterfv(pname, params);
}

void GL_APIENTRY es1_glPointParameterx(GLenum pname, GLfixed param);
void GL_APIENTRY glPointParameterx(GLenum pname, GLfixed param) {
  es1_glPointParameterx(pname, param);
}

void GL_APIENTRY es1_glPointParameterxOES(GLenum pname, GLfixed param);
void GL_APIENTRY glPointParameterxOES(GLenum pname, GLfixed param) {
  es1_glPointParameterxOES(pname, param);
}

void GL_APIENTRY es1_glPointParameterxv(GLenum pname, const GLfixed* params);
void GL_APIENTRY glPointParameterxv(GLenum pname, const GLfixed* params) {
  es1_glPointParameterxv(pname, params);
}

void GL_APIENTRY es1_glPointParameterxvOES(GLenum pname, const GLfixed* params);
void GL_APIENTRY glPointParameterxvOES(GLenum pname, const GLfixed* params) {
  es1_glPointParameterxvOES(pname, params);
}

void GL_APIENTRY es1_glPointSize(GLfloat size);
void GL_APIENTRY glPointSize(GLfloat size) {
  es1_glPointSize(size);
}

void GL_APIENTRY es1_glPointSizePointerOES(GLenum type, GLsizei stride, const void* pointer);
void GL_APIENTRY glPointSizePointerOES(GLenum type, GLsizei stride, const void* pointer) {
  es1_glPointSizePointerOES(type, stride, pointer);
}

void GL_APIENTRY es1_glPointSizex(GLfixed size);
void GL_APIENTRY glPointSizex(GLfixed size) {
  es1_glPointSizex(size);
}

void GL_APIENTRY es1_glPointSizexOES(GLfixed size);
void GL_APIENTRY glPointSizexOES(GLfixed size) {
  es1_glPointSizexOES(size);
}

void GL_APIENTRY es1_glPolygonOffset(GLfloat factor, GLfloat units);
void GL_APIENTRY glPolygonOffset(GLfloat factor, GLfloat units) {
  es1_glPolygonOffset(factor, units);
}

void GL_APIENTRY es1_glPolygonOffsetx(GLfixed factor, GLfixed units);
void GL_APIENTRY glPolygonOffsetx(GLfixed factor, GLfixed units) {
  es1_glPolygonOffsetx(factor, units);
}

void GL_APIENTRY es1_glPolygonOffsetxOES(GLfixed factor, GLfixed units);
void GL_APIENTRY glPolygonOffsetxOES(GLfixed factor, GLfixed units) {
  es1_glPolygonOffsetxOES(factor, units);
}

void GL_APIENTRY es1_glPopMatrix();
void GL_APIENTRY glPopMatrix() {
  es1_glPopMatrix();
}

void GL_APIENTRY es1_glPushMatrix();
void GL_APIENTRY glPushMatrix() {
  es1_glPushMatrix();
}

GLbitfield GL_APIENTRY es1_glQueryMatrixxOES(GLfixed* mantissa, GLint* exponent);
GLbitfield GL_APIENTRY glQueryMatrixxOES(GLfixed* mantissa, GLint* exponent) {
  return es1_glQueryMatrixxOES(mantissa, exponent);
}

void GL_APIENTRY es1_glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
                                  GLenum type, void* pixels);
void GL_APIENTRY glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
                              GLenum type, void* pixels) {
  es1_glReadPixels(x, y, width, height, format, type, pixels);
}

void GL_APIENTRY es1_glRenderbufferStorageOES(GLenum target, GLenum internalformat, GLsizei width,
                                              GLsizei height);
void GL_APIENTRY glRenderbufferStorageOES(GLenum target, GLenum internalformat, GLsizei width,
                                          GLsizei height) {
  es1_glRenderbufferStorageOES(target, internalformat, width, height);
}

void GL_APIENTRY es1_glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z);
void GL_APIENTRY glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) {
  es1_glRotatef(angle, x, y, z);
}

void GL_APIENTRY es1_glRotatex(GLfixed angle, GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY glRotatex(GLfixed angle, GLfixed x, GLfixed y, GLfixed z) {
  es1_glRotatex(angle, x, y, z);
}

void GL_APIENTRY es1_glRotatexOES(GLfixed angle, GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY glRotatexOES(GLfixed angle, GLfixed x, GLfixed y, GLfixed z) {
  es1_glRotatexOES(angle, x, y, z);
}

void GL_APIENTRY es1_glSampleCoverage(GLfloat value, GLboolean invert);
void GL_APIENTRY glSampleCoverage(GLfloat value, GLboolean invert) {
  es1_glSampleCoverage(value, invert);
}

void GL_APIENTRY es1_glSampleCoveragex(GLclampx value, GLboolean invert);
void GL_APIENTRY glSampleCoveragex(GLclampx value, GLboolean invert) {
  es1_glSampleCoveragex(value, invert);
}

void GL_APIENTRY es1_glSampleCoveragexOES(GLclampx value, GLboolean invert);
void GL_APIENTRY glSampleCoveragexOES(GLclampx value, GLboolean invert) {
  es1_glSampleCoveragexOES(value, invert);
}

void GL_APIENTRY es1_glScalef(GLfloat x, GLfloat y, GLfloat z);
void GL_APIENTRY glScalef(GLfloat x, GLfloat y, GLfloat z) {
  es1_glScalef(x, y, z);
}

void GL_APIENTRY es1_glScalex(GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY glScalex(GLfixed x, GLfixed y, GLfixed z) {
  es1_glScalex(x, y, z);
}

void GL_APIENTRY es1_glScalexOES(GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY glScalexOES(GLfixed x, GLfixed y, GLfixed z) {
  es1_glScalexOES(x, y, z);
}

void GL_APIENTRY es1_glScissor(GLint x, GLint y, GLsizei width, GLsizei height);
void GL_APIENTRY glScissor(GLint x, GLint y, GLsizei width, GLsizei height) {
  es1_glScissor(x, y, width, height);
}

void GL_APIENTRY es1_glShadeModel(GLenum mode);
void GL_APIENTRY glShadeModel(GLenum mode) {
  es1_glShadeModel(mode);
}

void GL_APIENTRY es1_glStencilFunc(GLenum func, GLint ref, GLuint mask);
void GL_APIENTRY glStencilFunc(GLenum func, GLint ref, GLuint mask) {
  es1_glStencilFunc(func, ref, mask);
}

void GL_APIENTRY es1_glStencilMask(GLuint mask);
void GL_APIENTRY glStencilMask(GLuint mask) {
  es1_glStencilMask(mask);
}

void GL_APIENTRY es1_glStencilOp(GLenum fail, GLenum zfail, GLenum zpass);
void GL_APIENTRY glStencilOp(GLenum fail, GLenum zfail, GLenum zpass) {
  es1_glStencilOp(fail, zfail, zpass);
}

void GL_APIENTRY es1_glTexCoordPointer(GLint size, GLenum type, GLsizei stride,
                                       const void* pointer);
void GL_APIENTRY glTexCoordPointer(GLint size, GLenum type, GLsizei stride, const void* pointer) {
  es1_glTexCoordPointer(size, type, stride, pointer);
}

void GL_APIENTRY es1_glTexEnvf(GLenum target, GLenum pname, GLfloat param);
void GL_APIENTRY glTexEnvf(GLenum target, GLenum pname, GLfloat param) {
  es1_glTexEnvf(target, pname, param);
}

void GL_APIENTRY es1_glTexEnvfv(GLenum target, GLenum pname, const GLfloat* params);
void GL_APIENTRY glTexEnvfv(GLenum target, GLenum pname, const GLfloat* params) {
  es1_glTexEnvfv(target, pname, params);
}

void GL_APIENTRY es1_glTexEnvi(GLenum target, GLenum pname, GLint param);
void GL_APIENTRY glTexEnvi(GLenum target, GLenum pname, GLint param) {
  es1_glTexEnvi(target, pname, param);
}

void GL_APIENTRY es1_glTexEnviv(GLenum target, GLenum pname, const GLint* params);
void GL_APIENTRY glTexEnviv(GLenum target, GLenum pname, const GLint* params) {
  es1_glTexEnviv(target, pname, params);
}

void GL_APIENTRY es1_glTexEnvx(GLenum target, GLenum pname, GLfixed param);
void GL_APIENTRY glTexEnvx(GLenum target, GLenum pname, GLfixed param) {
  es1_glTexEnvx(target, pname, param);
}

void GL_APIENTRY es1_glTexEnvxOES(GLenum target, GLenum pname, GLfixed param);
void GL_APIENTRY glTexEnvxOES(GLenum target, GLenum pname, GLfixed param) {
  es1_glTexEnvxOES(target, pname, param);
}

void GL_APIENTRY es1_glTexEnvxv(GLenum target, GLenum pname, const GLfixed* params);
void GL_APIENTRY glTexEnvxv(GLenum target, GLenum pname, const GLfixed* params) {
  es1_glTexEnvxv(target, pname, params);
}

void GL_APIENTRY es1_glTexEnvxvOES(GLenum target, GLenum pname, const GLfixed* params);
void GL_APIENTRY glTexEnvxvOES(GLenum target, GLenum pname, const GLfixed* params) {
  es1_glTexEnvxvOES(target, pname, params);
}

void GL_APIENTRY es1_glTexGenfOES(GLenum coord, GLenum pname, GLfloat param);
void GL_APIENTRY glTexGenfOES(GLenum coord, GLenum pname, GLfloat param) {
  es1_glTexGenfOES(coord, pname, param);
}

void GL_APIENTRY es1_glTexGenfvOES(GLenum coord, GLenum pname, const GLfloat* params);
void GL_APIENTRY glTexGenfvOES(GLenum coord, GLenum pname, const GLfloat* params) {
  es1_glTexGenfvOES(coord, pname, params);
}

void GL_APIENTRY es1_glTexGeniOES(GLenum coord, GLenum pname, GLint param);
void GL_APIENTRY glTexGeniOES(GLenum coord, GLenum pname, GLint param) {
  es1_glTexGeniOES(coord, pname, param);
}

void GL_APIENTRY es1_glTexGenivOES(GLenum coord, GLenum pname, const GLint* params);
void GL_APIENTRY glTexGenivOES(GLenum coord, GLenum pname, const GLint* params) {
  es1_glTexGenivOES(coord, pname, params);
}

void GL_APIENTRY es1_glTexGenxOES(GLenum coord, GLenum pname, GLfixed param);
void GL_APIENTRY glTexGenxOES(GLenum coord, GLenum pname, GLfixed param) {
  es1_glTexGenxOES(coord, pname, param);
}

void GL_APIENTRY es1_glTexGenxvOES(GLenum coord, GLenum pname, const GLfixed* params);
void GL_APIENTRY glTexGenxvOES(GLenum coord, GLenum pname, const GLfixed* params) {
  es1_glTexGenxvOES(coord, pname, params);
}

void GL_APIENTRY es1_glTexImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width,
                                  GLsizei height, GLint border, GLenum format, GLenum type,
                                  const void* pixels);
void GL_APIENTRY glTexImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width,
                              GLsizei height, GLint border, GLenum format, GLenum type,
                              const void* pixels) {
  es1_glTexImage2D(target, level, internalformat, width, height, border, format, type, pixels);
}

void GL_APIENTRY es1_glTexParameterf(GLenum target, GLenum pname, GLfloat param);
void GL_APIENTRY glTexParameterf(GLenum target, GLenum pname, GLfloat param) {
  es1_glTexParameterf(target, pname, param);
}

void GL_APIENTRY es1_glTexParameterfv(GLenum target, GLenum pname, const GLfloat* params);
void GL_APIENTRY glTexParameterfv(GLenum target, GLenum pname, const GLfloat* params) {
  es1_glTexParameterfv(target, pname, params);
}

void GL_APIENTRY es1_glTexParameteri(GLenum target, GLenum pname, GLint param);
void GL_APIENTRY glTexParameteri(GLenum target, GLenum pname, GLint param) {
  es1_glTexParameteri(target, pname, param);
}

void GL_APIENTRY es1_glTexParameteriv(GLenum target, GLenum pname, const GLint* params);
void GL_APIENTRY glTexParameteriv(GLenum target, GLenum pname, const GLint* params) {
  es1_glTexParameteriv(target, pname, params);
}

void GL_APIENTRY es1_glTexParameterx(GLenum target, GLenum pname, GLfixed param);
void GL_APIENTRY glTexParameterx(GLenum target, GLenum pname, GLfixed param) {
  es1_glTexParameterx(target, pname, param);
}

void GL_APIENTRY es1_glTexParameterxOES(GLenum target, GLenum pname, GLfixed param);
void GL_APIENTRY glTexParameterxOES(GLenum target, GLenum pname, GLfixed param) {
  es1_glTexParameterxOES(target, pname, param);
}

void GL_APIENTRY es1_glTexParameterxv(GLenum target, GLenum pname, const GLfixed* params);
void GL_APIENTRY glTexParameterxv(GLenum target, GLenum pname, const GLfixed* params) {
  es1_glTexParameterxv(target, pname, params);
}

void GL_APIENTRY es1_glTexParameterxvOES(GLenum target, GLenum pname, const GLfixed* params);
void GL_APIENTRY glTexParameterxvOES(GLenum target, GLenum pname, const GLfixed* params) {
  es1_glTexParameterxvOES(target, pname, params);
}

void GL_APIENTRY es1_glTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                     GLsizei width, GLsizei height, GLenum format, GLenum type,
                                     const void* pixels);
void GL_APIENTRY glTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                 GLsizei width, GLsizei height, GLenum format, GLenum type,
                                 const void* pixels) {
  es1_glTexSubImage2D(target, level, xoffset, yoffset, width, height, format, type, pixels);
}

void GL_APIENTRY es1_glTranslatef(GLfloat x, GLfloat y, GLfloat z);
void GL_APIENTRY glTranslatef(GLfloat x, GLfloat y, GLfloat z) {
  es1_glTranslatef(x, y, z);
}

void GL_APIENTRY es1_glTranslatex(GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY glTranslatex(GLfixed x, GLfixed y, GLfixed z) {
  es1_glTranslatex(x, y, z);
}

void GL_APIENTRY es1_glTranslatexOES(GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY glTranslatexOES(GLfixed x, GLfixed y, GLfixed z) {
  es1_glTranslatexOES(x, y, z);
}

GLboolean GL_APIENTRY es1_glUnmapBufferOES(GLenum target);
GLboolean GL_APIENTRY glUnmapBufferOES(GLenum target) {
  return es1_glUnmapBufferOES(target);
}

void GL_APIENTRY es1_glVertexPointer(GLint size, GLenum type, GLsizei stride, const void* pointer);
void GL_APIENTRY glVertexPointer(GLint size, GLenum type, GLsizei stride, const void* pointer) {
  es1_glVertexPointer(size, type, stride, pointer);
}

void GL_APIENTRY es1_glViewport(GLint x, GLint y, GLsizei width, GLsizei height);
void GL_APIENTRY glViewport(GLint x, GLint y, GLsizei width, GLsizei height) {
  es1_glViewport(x, y, width, height);
}

void GL_APIENTRY es1_glWeightPointerOES(GLint size, GLenum type, GLsizei stride,
                                        const void* pointer);
void GL_APIENTRY glWeightPointerOES(GLint size, GLenum type, GLsizei stride, const void* pointer) {
  es1_glWeightPointerOES(size, type, stride, pointer);
}

}  // extern "C"
