#include "gles/pixel_rectangle.h"

#include <initializer_list>

#include <GLES/gl.h>

#include "gles/desktop_enums.h"
#include "gles/driver/driver.h"

namespace gles {

namespace {

// The power of two at or above a size, 2 at least.
int textureSide(int size) {
  int side = 2;
  while (side < size && side < (1 << 30)) {
    side *= 2;
  }
  return side;
}

int internalFormat(unsigned format) {
  switch (format) {
    case desktop::BGRA:
    case GL_RGBA:
      return GL_RGBA;
    case desktop::BGR:
    case GL_RGB:
      return GL_RGB;
    default:
      return static_cast<int>(format);
  }
}

void setEverythingPassing(unsigned units) {
  for (const GLenum test : {GL_LIGHTING, GL_CULL_FACE, GL_DEPTH_TEST, GL_SCISSOR_TEST,
                            GL_STENCIL_TEST, GL_COLOR_LOGIC_OP, GL_BLEND, GL_ALPHA_TEST, GL_FOG,
                            GL_SAMPLE_ALPHA_TO_COVERAGE, GL_SAMPLE_COVERAGE}) {
    driver.glDisable(test);
  }
  int planes = 0;
  driver.glGetIntegerv(GL_MAX_CLIP_PLANES, &planes);
  for (int plane = 0; plane < planes; ++plane) {
    driver.glDisable(GL_CLIP_PLANE0 + static_cast<unsigned>(plane));
  }
  driver.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  for (unsigned unit = units; unit-- > 1;) {
    driver.glActiveTexture(GL_TEXTURE0 + unit);
    driver.glDisable(GL_TEXTURE_2D);
    driver.glClientActiveTexture(GL_TEXTURE0 + unit);
    driver.glDisableClientState(GL_TEXTURE_COORD_ARRAY);
  }
  driver.glActiveTexture(GL_TEXTURE0);
  driver.glClientActiveTexture(GL_TEXTURE0);
}

// For the length of a block no program is in use, and the surface is what is drawn on. Only OpenGL
// ES 2.0 has it otherwise, and attribute stacks do not keep either.
class SurfaceOfFixedFunction {
 public:
  SurfaceOfFixedFunction() {
    if (driver.glUseProgram) {
      driver.glGetIntegerv(desktop::CURRENT_PROGRAM, &program_);
    }
    if (driver.glBindFramebufferEXT) {
      driver.glGetIntegerv(desktop::FRAMEBUFFER_BINDING, &framebuffer_);
    }
    change(0, 0);
  }
  SurfaceOfFixedFunction(const SurfaceOfFixedFunction&) = delete;
  SurfaceOfFixedFunction& operator=(const SurfaceOfFixedFunction&) = delete;
  ~SurfaceOfFixedFunction() {
    change(static_cast<unsigned>(program_), static_cast<unsigned>(framebuffer_));
  }

 private:
  void change(unsigned program, unsigned framebuffer) const {
    if (program_) {
      driver.glUseProgram(program);
    }
    if (framebuffer_) {
      driver.glBindFramebufferEXT(desktop::FRAMEBUFFER, framebuffer);
    }
  }

  int program_ = 0;
  int framebuffer_ = 0;
};

GLuint makeTexture(const PixelRectangle& rectangle, int sideX, int sideY) {
  GLuint texture = 0;
  driver.glPixelStorei(GL_UNPACK_ALIGNMENT, rectangle.alignment);
  driver.glGenTextures(1, &texture);
  driver.glBindTexture(GL_TEXTURE_2D, texture);
  driver.glTexImage2D(GL_TEXTURE_2D, 0, internalFormat(rectangle.format), sideX, sideY, 0,
                      rectangle.format, rectangle.type, nullptr);
  driver.glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, rectangle.width, rectangle.height,
                         rectangle.format, rectangle.type, rectangle.pixels);
  driver.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  driver.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  driver.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
  driver.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
  driver.glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
  driver.glEnable(GL_TEXTURE_2D);
  return texture;
}

}  // namespace

void drawPixelRectangle(const PixelRectangle& rectangle, unsigned boundArrayBuffer,
                        unsigned units) {
  if (rectangle.width <= 0 || rectangle.height <= 0 || !rectangle.pixels) {
    return;
  }
  const SurfaceOfFixedFunction surface;
  if (boundArrayBuffer) {
    driver.glBindBuffer(GL_ARRAY_BUFFER, 0);
  }
  driver.glPushAttrib(desktop::ALL_ATTRIB_BITS);
  driver.glPushClientAttrib(desktop::CLIENT_ALL_ATTRIB_BITS);
  driver.glDisableVertexAttribArray(0);  // It would stand before the vertices.
  setEverythingPassing(units);
  const int sideX = textureSide(rectangle.width);
  const int sideY = textureSide(rectangle.height);
  const GLuint texture = makeTexture(rectangle, sideX, sideY);

  driver.glMatrixMode(GL_PROJECTION);
  driver.glPushMatrix();
  driver.glLoadIdentity();
  driver.glMatrixMode(GL_MODELVIEW);
  driver.glPushMatrix();
  driver.glLoadIdentity();
  float textureMatrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
  driver.glGetFloatv(GL_TEXTURE_MATRIX, textureMatrix);
  driver.glMatrixMode(GL_TEXTURE);
  driver.glLoadIdentity();
  driver.glScalef(1.0f / static_cast<float>(sideX), 1.0f / static_cast<float>(sideY), 1.0f);

  const auto width = static_cast<float>(rectangle.width);
  const auto height = static_cast<float>(rectangle.height);
  const float vertices[] = {-1, 1, 1, 1, -1, -1, 1, -1};
  const float coordinates[] = {0, 0, width, 0, 0, height, width, height};
  driver.glEnableClientState(GL_VERTEX_ARRAY);
  driver.glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  driver.glDisableClientState(GL_NORMAL_ARRAY);
  driver.glDisableClientState(GL_COLOR_ARRAY);
  driver.glVertexPointer(2, GL_FLOAT, 0, vertices);
  driver.glTexCoordPointer(2, GL_FLOAT, 0, coordinates);
  driver.glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);

  driver.glLoadMatrixf(textureMatrix);
  driver.glMatrixMode(GL_MODELVIEW);
  driver.glPopMatrix();
  driver.glMatrixMode(GL_PROJECTION);
  driver.glPopMatrix();
  driver.glPopClientAttrib();
  driver.glPopAttrib();
  driver.glDeleteTextures(1, &texture);
  if (boundArrayBuffer) {
    driver.glBindBuffer(GL_ARRAY_BUFFER, boundArrayBuffer);
  }
}

}  // namespace gles
