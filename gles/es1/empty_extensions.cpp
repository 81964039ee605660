// Commands of extensions that this layer does not have: a call to them does nothing.

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>
#include <GLES/glext.h>

extern "C" {

void GL_APIENTRY glPointSizePointerOES(GLenum, GLsizei, const void*) {}

// GL_OES_EGL_image
void GL_APIENTRY glEGLImageTargetRenderbufferStorageOES(GLenum, GLeglImageOES) {}

// GL_OES_blend_equation_separate
void GL_APIENTRY glBlendEquationSeparateOES(GLenum, GLenum) {}

// GL_OES_blend_func_separate
void GL_APIENTRY glBlendFuncSeparateOES(GLenum, GLenum, GLenum, GLenum) {}

// GL_OES_blend_subtract
void GL_APIENTRY glBlendEquationOES(GLenum) {}

// GL_OES_draw_texture
void GL_APIENTRY glDrawTexsOES(GLshort, GLshort, GLshort, GLshort, GLshort) {}
void GL_APIENTRY glDrawTexiOES(GLint, GLint, GLint, GLint, GLint) {}
void GL_APIENTRY glDrawTexxOES(GLfixed, GLfixed, GLfixed, GLfixed, GLfixed) {}
void GL_APIENTRY glDrawTexsvOES(const GLshort*) {}
void GL_APIENTRY glDrawTexivOES(const GLint*) {}
void GL_APIENTRY glDrawTexxvOES(const GLfixed*) {}
void GL_APIENTRY glDrawTexfOES(GLfloat, GLfloat, GLfloat, GLfloat, GLfloat) {}
void GL_APIENTRY glDrawTexfvOES(const GLfloat*) {}

// GL_OES_fixed_point
void GL_APIENTRY glGetTexGenxvOES(GLenum, GLenum, GLfixed*) {}
void GL_APIENTRY glTexGenxOES(GLenum, GLenum, GLfixed) {}
void GL_APIENTRY glTexGenxvOES(GLenum, GLenum, const GLfixed*) {}

// GL_OES_framebuffer_object
GLboolean GL_APIENTRY glIsRenderbufferOES(GLuint) {
  return 0;
}
void GL_APIENTRY glBindRenderbufferOES(GLenum, GLuint) {}
void GL_APIENTRY glDeleteRenderbuffersOES(GLsizei, const GLuint*) {}
void GL_APIENTRY glGenRenderbuffersOES(GLsizei, GLuint*) {}
void GL_APIENTRY glRenderbufferStorageOES(GLenum, GLenum, GLsizei, GLsizei) {}
void GL_APIENTRY glGetRenderbufferParameterivOES(GLenum, GLenum, GLint*) {}
GLboolean GL_APIENTRY glIsFramebufferOES(GLuint) {
  return 0;
}
void GL_APIENTRY glBindFramebufferOES(GLenum, GLuint) {}
void GL_APIENTRY glDeleteFramebuffersOES(GLsizei, const GLuint*) {}
void GL_APIENTRY glGenFramebuffersOES(GLsizei, GLuint*) {}
GLenum GL_APIENTRY glCheckFramebufferStatusOES(GLenum) {
  return 0;
}
void GL_APIENTRY glFramebufferRenderbufferOES(GLenum, GLenum, GLenum, GLuint) {}
void GL_APIENTRY glFramebufferTexture2DOES(GLenum, GLenum, GLenum, GLuint, GLint) {}
void GL_APIENTRY glGetFramebufferAttachmentParameterivOES(GLenum, GLenum, GLenum, GLint*) {}
void GL_APIENTRY glGenerateMipmapOES(GLenum) {}

// GL_OES_mapbuffer
void* GL_APIENTRY glMapBufferOES(GLenum, GLenum) {
  return nullptr;
}
GLboolean GL_APIENTRY glUnmapBufferOES(GLenum) {
  return 0;
}
void GL_APIENTRY glGetBufferPointervOES(GLenum, GLenum, void**) {}

// GL_OES_matrix_palette
void GL_APIENTRY glCurrentPaletteMatrixOES(GLuint) {}
void GL_APIENTRY glLoadPaletteFromModelViewMatrixOES() {}
void GL_APIENTRY glMatrixIndexPointerOES(GLint, GLenum, GLsizei, const void*) {}
void GL_APIENTRY glWeightPointerOES(GLint, GLenum, GLsizei, const void*) {}

// GL_OES_query_matrix
GLbitfield GL_APIENTRY glQueryMatrixxOES(GLfixed*, GLint*) {
  return 0;
}

// GL_OES_single_precision
void GL_APIENTRY glClearDepthfOES(GLclampf) {}
void GL_APIENTRY glClipPlanefOES(GLenum, const GLfloat*) {}
void GL_APIENTRY glDepthRangefOES(GLclampf, GLclampf) {}
void GL_APIENTRY glFrustumfOES(GLfloat, GLfloat, GLfloat, GLfloat, GLfloat, GLfloat) {}
void GL_APIENTRY glGetClipPlanefOES(GLenum, GLfloat*) {}
void GL_APIENTRY glOrthofOES(GLfloat, GLfloat, GLfloat, GLfloat, GLfloat, GLfloat) {}

// GL_OES_texture_cube_map
void GL_APIENTRY glTexGenfOES(GLenum, GLenum, GLfloat) {}
void GL_APIENTRY glTexGenfvOES(GLenum, GLenum, const GLfloat*) {}
void GL_APIENTRY glTexGeniOES(GLenum, GLenum, GLint) {}
void GL_APIENTRY glTexGenivOES(GLenum, GLenum, const GLint*) {}
void GL_APIENTRY glGetTexGenfvOES(GLenum, GLenum, GLfloat*) {}
void GL_APIENTRY glGetTexGenivOES(GLenum, GLenum, GLint*) {}

// GL_OES_vertex_array_object
void GL_APIENTRY glBindVertexArrayOES(GLuint) {}
void GL_APIENTRY glDeleteVertexArraysOES(GLsizei, const GLuint*) {}
void GL_APIENTRY glGenVertexArraysOES(GLsizei, GLuint*) {}
GLboolean GL_APIENTRY glIsVertexArrayOES(GLuint) {
  return 0;
}

}  // extern "C"
