// Compressed textures and textures from EGL images.

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>
#include <GLES/glext.h>

#include "gles/desktop_enums.h"
#include "gles/driver/driver.h"
#include "gles/es1/context_state.h"
#include "gles/es_image.h"
#include "gles/paletted_texture.h"

using namespace gles;
using gles::es1::current;

extern "C" {

void GL_APIENTRY glCompressedTexImage2D(GLenum target, GLint level, GLenum internalformat,
                                        GLsizei width, GLsizei height, GLint border,
                                        GLsizei imageSize, const void* data) {
  if (!current) {
    return;
  }
  if (isPalettedFormat(internalformat)) {
    uploadPalettedTexture(target, level, internalformat, width, height, border, imageSize, data,
                          current->unpackAlignment);
  } else {
    driver.glCompressedTexImage2D(target, level, internalformat, width, height, border, imageSize,
                                  data);
  }
}

void GL_APIENTRY glCompressedTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                                           GLsizei width, GLsizei height, GLenum format,
                                           GLsizei imageSize, const void* data) {
  if (current && !isPalettedFormat(format)) {
    driver.glCompressedTexSubImage2D(target, level, xoffset, yoffset, width, height, format,
                                     imageSize, data);
  }
}

void GL_APIENTRY glEGLImageTargetTexture2DOES(GLenum target, GLeglImageOES image) {
  if (current && target == GL_TEXTURE_2D) {
    uploadEsImage(image);
  }
}

}  // extern "C"
