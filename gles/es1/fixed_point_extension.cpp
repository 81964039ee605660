// The commands of GL_OES_fixed_point, which the core commands answer.

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>
#include <GLES/glext.h>

extern "C" {

void GL_APIENTRY glAlphaFuncxOES(GLenum func, GLfixed ref) {
  glAlphaFuncx(func, ref);
}

void GL_APIENTRY glClearColorxOES(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  glClearColorx(red, green, blue, alpha);
}

void GL_APIENTRY glClearDepthxOES(GLfixed depth) {
  glClearDepthx(depth);
}

void GL_APIENTRY glClipPlanexOES(GLenum plane, const GLfixed* equation) {
  glClipPlanex(plane, equation);
}

void GL_APIENTRY glColor4xOES(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  glColor4x(red, green, blue, alpha);
}

void GL_APIENTRY glDepthRangexOES(GLfixed n, GLfixed f) {
  glDepthRangex(n, f);
}

void GL_APIENTRY glFogxOES(GLenum pname, GLfixed param) {
  glFogx(pname, param);
}

void GL_APIENTRY glFogxvOES(GLenum pname, const GLfixed* param) {
  glFogxv(pname, param);
}

void GL_APIENTRY glFrustumxOES(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  glFrustumx(l, r, b, t, n, f);
}

void GL_APIENTRY glGetClipPlanexOES(GLenum plane, GLfixed* equation) {
  glGetClipPlanex(plane, equation);
}

void GL_APIENTRY glGetFixedvOES(GLenum pname, GLfixed* params) {
  glGetFixedv(pname, params);
}

void GL_APIENTRY glGetTexEnvxvOES(GLenum target, GLenum pname, GLfixed* params) {
  glGetTexEnvxv(target, pname, params);
}

void GL_APIENTRY glGetTexParameterxvOES(GLenum target, GLenum pname, GLfixed* params) {
  glGetTexParameterxv(target, pname, params);
}

void GL_APIENTRY glLightModelxOES(GLenum pname, GLfixed param) {
  glLightModelx(pname, param);
}

void GL_APIENTRY glLightModelxvOES(GLenum pname, const GLfixed* param) {
  glLightModelxv(pname, param);
}

void GL_APIENTRY glLightxOES(GLenum light, GLenum pname, GLfixed param) {
  glLightx(light, pname, param);
}

void GL_APIENTRY glLightxvOES(GLenum light, GLenum pname, const GLfixed* params) {
  glLightxv(light, pname, params);
}

void GL_APIENTRY glLineWidthxOES(GLfixed width) {
  glLineWidthx(width);
}

void GL_APIENTRY glLoadMatrixxOES(const GLfixed* m) {
  glLoadMatrixx(m);
}

void GL_APIENTRY glMaterialxOES(GLenum face, GLenum pname, GLfixed param) {
  glMaterialx(face, pname, param);
}

void GL_APIENTRY glMaterialxvOES(GLenum face, GLenum pname, const GLfixed* param) {
  glMaterialxv(face, pname, param);
}

void GL_APIENTRY glMultMatrixxOES(const GLfixed* m) {
  glMultMatrixx(m);
}

void GL_APIENTRY glMultiTexCoord4xOES(GLenum texture, GLfixed s, GLfixed t, GLfixed r, GLfixed q) {
  glMultiTexCoord4x(texture, s, t, r, q);
}

void GL_APIENTRY glNormal3xOES(GLfixed nx, GLfixed ny, GLfixed nz) {
  glNormal3x(nx, ny, nz);
}

void GL_APIENTRY glOrthoxOES(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  glOrthox(l, r, b, t, n, f);
}

void GL_APIENTRY glPointParameterxvOES(GLenum pname, const GLfixed* params) {
  glPointParameterxv(pname, params);
}

void GL_APIENTRY glPointSizexOES(GLfixed size) {
  glPointSizex(size);
}

void GL_APIENTRY glPolygonOffsetxOES(GLfixed factor, GLfixed units) {
  glPolygonOffsetx(factor, units);
}

void GL_APIENTRY glRotatexOES(GLfixed angle, GLfixed x, GLfixed y, GLfixed z) {
  glRotatex(angle, x, y, z);
}

void GL_APIENTRY glScalexOES(GLfixed x, GLfixed y, GLfixed z) {
  glScalex(x, y, z);
}

void GL_APIENTRY glTexEnvxOES(GLenum target, GLenum pname, GLfixed param) {
  glTexEnvx(target, pname, param);
}

void GL_APIENTRY glTexEnvxvOES(GLenum target, GLenum pname, const GLfixed* params) {
  glTexEnvxv(target, pname, params);
}

void GL_APIENTRY glTexParameterxOES(GLenum target, GLenum pname, GLfixed param) {
  glTexParameterx(target, pname, param);
}

void GL_APIENTRY glTexParameterxvOES(GLenum target, GLenum pname, const GLfixed* params) {
  glTexParameterxv(target, pname, params);
}

void GL_APIENTRY glTranslatexOES(GLfixed x, GLfixed y, GLfixed z) {
  glTranslatex(x, y, z);
}

void GL_APIENTRY glGetLightxvOES(GLenum light, GLenum pname, GLfixed* params) {
  glGetLightxv(light, pname, params);
}

void GL_APIENTRY glGetMaterialxvOES(GLenum face, GLenum pname, GLfixed* params) {
  glGetMaterialxv(face, pname, params);
}

void GL_APIENTRY glPointParameterxOES(GLenum pname, GLfixed param) {
  glPointParameterx(pname, param);
}

void GL_APIENTRY glSampleCoveragexOES(GLclampx value, GLboolean invert) {
  glSampleCoveragex(value, invert);
}

}  // extern "C"
