// Framebuffer and renderbuffer objects, through the EXT commands. Desktop OpenGL 2 has no
// GL_RGB565 under that name.

#include "gles/desktop_enums.h"
#include "gles/driver/driver.h"
#include "gles/es2/gl2.h"

namespace gles::es2 {

void glBindFramebuffer(GLenum target, GLuint framebuffer) {
  driver.glBindFramebufferEXT(target, framebuffer);
}

void glBindRenderbuffer(GLenum target, GLuint renderbuffer) {
  driver.glBindRenderbufferEXT(target, renderbuffer);
}

GLenum glCheckFramebufferStatus(GLenum target) {
  return driver.glCheckFramebufferStatusEXT(target);
}

void glDeleteFramebuffers(GLsizei n, const GLuint* framebuffers) {
  driver.glDeleteFramebuffersEXT(n, framebuffers);
}

void glDeleteRenderbuffers(GLsizei n, const GLuint* renderbuffers) {
  driver.glDeleteRenderbuffersEXT(n, renderbuffers);
}

void glFramebufferRenderbuffer(GLenum target, GLenum attachment, GLenum renderbuffertarget,
                               GLuint renderbuffer) {
  driver.glFramebufferRenderbufferEXT(target, attachment, renderbuffertarget, renderbuffer);
}

void glFramebufferTexture2D(GLenum target, GLenum attachment, GLenum textarget, GLuint texture,
                            GLint level) {
  driver.glFramebufferTexture2DEXT(target, attachment, textarget, texture, level);
}

void glGenFramebuffers(GLsizei n, GLuint* framebuffers) {
  driver.glGenFramebuffersEXT(n, framebuffers);
}

void glGenRenderbuffers(GLsizei n, GLuint* renderbuffers) {
  driver.glGenRenderbuffersEXT(n, renderbuffers);
}

void glGenerateMipmap(GLenum target) {
  driver.glGenerateMipmapEXT(target);
}

void glGetFramebufferAttachmentParameteriv(GLenum target, GLenum attachment, GLenum pname,
                                           GLint* params) {
  driver.glGetFramebufferAttachmentParameterivEXT(target, attachment, pname, params);
}

void glGetRenderbufferParameteriv(GLenum target, GLenum pname, GLint* params) {
  driver.glGetRenderbufferParameterivEXT(target, pname, params);
  if (pname == GL_RENDERBUFFER_INTERNAL_FORMAT && params &&
      *params == static_cast<GLint>(desktop::RGB5)) {
    *params = GL_RGB565;
  }
}

GLboolean glIsFramebuffer(GLuint framebuffer) {
  return driver.glIsFramebufferEXT(framebuffer);
}

GLboolean glIsRenderbuffer(GLuint renderbuffer) {
  return driver.glIsRenderbufferEXT(renderbuffer);
}

void glRenderbufferStorage(GLenum target, GLenum internalformat, GLsizei width, GLsizei height) {
  driver.glRenderbufferStorageEXT(
      target, internalformat == GL_RGB565 ? desktop::RGB5 : internalformat, width, height);
}

}  // namespace gles::es2
