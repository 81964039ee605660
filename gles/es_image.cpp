#include "gles/es_image.h"

#include <GLES/gl.h>

#include "gles/desktop_enums.h"
#include "gles/driver/driver.h"

namespace {
const EsImage* (*imageLookup)(const void*) = nullptr;
}

void setEsImageLookup(const EsImage* (*lookup)(const void* handle)) {
  imageLookup = lookup;
}

const EsImage* findEsImage(const void* handle) {
  return imageLookup ? imageLookup(handle) : nullptr;
}

void uploadEsImage(const void* handle) {
  using namespace gles;
  const EsImage* image = findEsImage(handle);
  if (!image) {
    return;
  }
  int alignment = 4;
  driver.glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
  // Rows of 32-bit words: an alignment of 8 would look for gaps that are not there.
  driver.glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  driver.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, image->width, image->height, 0, desktop::BGRA,
                      desktop::UNSIGNED_INT_8_8_8_8_REV, image->pixels);
  driver.glPixelStorei(GL_UNPACK_ALIGNMENT, alignment);
}
