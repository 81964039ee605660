#include "gles/es_image.h"

namespace {
const EsImage* (*imageLookup)(const void*) = nullptr;
}

void setEsImageLookup(const EsImage* (*lookup)(const void* handle)) {
  imageLookup = lookup;
}

const EsImage* findEsImage(const void* handle) {
  return imageLookup ? imageLookup(handle) : nullptr;
}
