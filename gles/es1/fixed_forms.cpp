// The fixed-point commands, each through the command that takes floats.

#include <GLES/gl.h>

#include "gles/es1/parameters.h"
#include "gles/fixed_point.h"

namespace {

using gles::fixedToFloat;
using gles::es1::isEnumerated;
using gles::es1::parameterCount;

// The floats of a parameter's values. There are as many as any parameter has, so that a command
// that is given a wrong name reads no others.
struct Floats {
  Floats(const GLfixed* fixed, int count) {
    for (int i = 0; i < count; ++i) {
      values[i] = fixedToFloat(fixed[i]);
    }
  }

  operator const float*() const { return values; }

  float values[gles::es1::mostValues] = {};
};

float valueOf(unsigned name, GLfixed value) {
  return isEnumerated(name) ? static_cast<float>(value) : fixedToFloat(value);
}

Floats valuesOf(unsigned name, const GLfixed* values) {
  Floats floats(values, parameterCount(name));
  if (isEnumerated(name)) {
    floats.values[0] = static_cast<float>(values[0]);
  }
  return floats;
}

}  // namespace

extern "C" {

void GL_APIENTRY glAlphaFuncx(GLenum func, GLfixed ref) {
  glAlphaFunc(func, fixedToFloat(ref));
}

void GL_APIENTRY glClearColorx(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  glClearColor(fixedToFloat(red), fixedToFloat(green), fixedToFloat(blue), fixedToFloat(alpha));
}

void GL_APIENTRY glClearDepthx(GLfixed depth) {
  glClearDepthf(fixedToFloat(depth));
}

void GL_APIENTRY glClipPlanex(GLenum plane, const GLfixed* equation) {
  glClipPlanef(plane, Floats(equation, 4));
}

void GL_APIENTRY glColor4x(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
  glColor4f(fixedToFloat(red), fixedToFloat(green), fixedToFloat(blue), fixedToFloat(alpha));
}

void GL_APIENTRY glDepthRangex(GLfixed n, GLfixed f) {
  glDepthRangef(fixedToFloat(n), fixedToFloat(f));
}

void GL_APIENTRY glFogx(GLenum pname, GLfixed param) {
  glFogf(pname, valueOf(pname, param));
}

void GL_APIENTRY glFogxv(GLenum pname, const GLfixed* param) {
  glFogfv(pname, valuesOf(pname, param));
}

void GL_APIENTRY glFrustumx(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  glFrustumf(fixedToFloat(l), fixedToFloat(r), fixedToFloat(b), fixedToFloat(t), fixedToFloat(n),
             fixedToFloat(f));
}

void GL_APIENTRY glLightModelx(GLenum pname, GLfixed param) {
  glLightModelf(pname, valueOf(pname, param));
}

void GL_APIENTRY glLightModelxv(GLenum pname, const GLfixed* param) {
  glLightModelfv(pname, valuesOf(pname, param));
}

void GL_APIENTRY glLightx(GLenum light, GLenum pname, GLfixed param) {
  glLightf(light, pname, valueOf(pname, param));
}

void GL_APIENTRY glLightxv(GLenum light, GLenum pname, const GLfixed* params) {
  glLightfv(light, pname, valuesOf(pname, params));
}

void GL_APIENTRY glLineWidthx(GLfixed width) {
  glLineWidth(fixedToFloat(width));
}

void GL_APIENTRY glLoadMatrixx(const GLfixed* m) {
  glLoadMatrixf(Floats(m, 16));
}

void GL_APIENTRY glMaterialx(GLenum face, GLenum pname, GLfixed param) {
  glMaterialf(face, pname, valueOf(pname, param));
}

void GL_APIENTRY glMaterialxv(GLenum face, GLenum pname, const GLfixed* param) {
  glMaterialfv(face, pname, valuesOf(pname, param));
}

void GL_APIENTRY glMultMatrixx(const GLfixed* m) {
  glMultMatrixf(Floats(m, 16));
}

void GL_APIENTRY glMultiTexCoord4x(GLenum texture, GLfixed s, GLfixed t, GLfixed r, GLfixed q) {
  glMultiTexCoord4f(texture, fixedToFloat(s), fixedToFloat(t), fixedToFloat(r), fixedToFloat(q));
}

void GL_APIENTRY glNormal3x(GLfixed nx, GLfixed ny, GLfixed nz) {
  glNormal3f(fixedToFloat(nx), fixedToFloat(ny), fixedToFloat(nz));
}

void GL_APIENTRY glOrthox(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f) {
  glOrthof(fixedToFloat(l), fixedToFloat(r), fixedToFloat(b), fixedToFloat(t), fixedToFloat(n),
           fixedToFloat(f));
}

void GL_APIENTRY glPointParameterx(GLenum pname, GLfixed param) {
  glPointParameterf(pname, valueOf(pname, param));
}

void GL_APIENTRY glPointParameterxv(GLenum pname, const GLfixed* params) {
  glPointParameterfv(pname, valuesOf(pname, params));
}

void GL_APIENTRY glPointSizex(GLfixed size) {
  glPointSize(fixedToFloat(size));
}

void GL_APIENTRY glPolygonOffsetx(GLfixed factor, GLfixed units) {
  glPolygonOffset(fixedToFloat(factor), fixedToFloat(units));
}

void GL_APIENTRY glRotatex(GLfixed angle, GLfixed x, GLfixed y, GLfixed z) {
  glRotatef(fixedToFloat(angle), fixedToFloat(x), fixedToFloat(y), fixedToFloat(z));
}

void GL_APIENTRY glSampleCoveragex(GLclampx value, GLboolean invert) {
  glSampleCoverage(fixedToFloat(value), invert);
}

void GL_APIENTRY glScalex(GLfixed x, GLfixed y, GLfixed z) {
  glScalef(fixedToFloat(x), fixedToFloat(y), fixedToFloat(z));
}

void GL_APIENTRY glTexEnvx(GLenum target, GLenum pname, GLfixed param) {
  glTexEnvf(target, pname, valueOf(pname, param));
}

void GL_APIENTRY glTexEnvxv(GLenum target, GLenum pname, const GLfixed* params) {
  glTexEnvfv(target, pname, valuesOf(pname, params));
}

void GL_APIENTRY glTexParameterx(GLenum target, GLenum pname, GLfixed param) {
  glTexParameterf(target, pname, valueOf(pname, param));
}

void GL_APIENTRY glTexParameterxv(GLenum target, GLenum pname, const GLfixed* params) {
  glTexParameterfv(target, pname, valuesOf(pname, params));
}

void GL_APIENTRY glTranslatex(GLfixed x, GLfixed y, GLfixed z) {
  glTranslatef(fixedToFloat(x), fixedToFloat(y), fixedToFloat(z));
}

}  // extern "C"
