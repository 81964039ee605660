// State that is forwarded and remembered, errors, and textures that the layer unpacks.

#include <utility>

#include "gles/driver/driver.h"
#include "gles/es2/context_state.h"
#include "gles/es2/gl2.h"
#include "gles/es_image.h"
#include "gles/function_table.h"
#include "gles/paletted_texture.h"

namespace gles::es2 {

GLenum glGetError() {
  if (current && current->error != GL_NO_ERROR) {
    return std::exchange(current->error, static_cast<unsigned>(GL_NO_ERROR));
  }
  return driver.glGetError();
}

void glPixelStorei(GLenum pname, GLint param) {
  if (!current) {
    return;
  }
  const bool isAlignment = param == 1 || param == 2 || param == 4 || param == 8;
  if (pname == GL_PACK_ALIGNMENT && isAlignment) {
    current->packAlignment = param;
  } else if (pname == GL_UNPACK_ALIGNMENT && isAlignment) {
    current->unpackAlignment = param;
  }
  driver.glPixelStorei(pname, param);
}

void glFinish() {
  if (!current) {
    return;
  }
  driver.glFinish();
  if (current->conversionDirty) {
    current->conversionDirty = false;
    runCopyBackHook();
  }
}

void glCompressedTexImage2D(GLenum target, GLint level, GLenum internalformat, GLsizei width,
                            GLsizei height, GLint border, GLsizei imageSize, const void* data) {
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

void glCompressedTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset,
                               GLsizei width, GLsizei height, GLenum format, GLsizei imageSize,
                               const void* data) {
  if (current && !isPalettedFormat(format)) {
    driver.glCompressedTexSubImage2D(target, level, xoffset, yoffset, width, height, format,
                                     imageSize, data);
  }
}

void glEGLImageTargetTexture2DOES(GLenum target, GLeglImageOES image) {
  if (current && target == GL_TEXTURE_2D) {
    uploadEsImage(image);
  }
}

}  // namespace gles::es2
