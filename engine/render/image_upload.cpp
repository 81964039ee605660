// The side of an image that speaks OpenGL ES: its texture object.

#include <GLES/gl.h>

#include "engine/surface/image2d.h"
#include "engine/surface/image_texture.h"

namespace varnel_m3g {

void ImageTexture::bind() {
  constexpr GLint rowAlignment = 4;
  if (needsUpload) {
    if (glName == 0) {
      glGenTextures(1, &glName);
    }
    glBindTexture(GL_TEXTURE_2D, glName);
    glPixelStorei(GL_UNPACK_ALIGNMENT, rowAlignment);
    data = image->getPixels();
    glTexParameterf(GL_TEXTURE_2D, GL_GENERATE_MIPMAP, 1.0f);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(glInternalFormat), width, height, 0, glFormat,
                 glType, data);
    needsUpload = false;
    needsSubUpload = false;
  }
  if (needsSubUpload) {
    glBindTexture(GL_TEXTURE_2D, glName);
    glPixelStorei(GL_UNPACK_ALIGNMENT, rowAlignment);
    glTexSubImage2D(GL_TEXTURE_2D, 0, dirtyRect.x, dirtyRect.y, dirtyRect.width, dirtyRect.height,
                    glFormat, glType, data);
    needsSubUpload = false;
  }
  glBindTexture(GL_TEXTURE_2D, glName);
}

}  // namespace varnel_m3g
